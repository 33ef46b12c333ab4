// Calculator: the loop of questions that shows a value and takes the next expression.
#pragma once

#include "core/frmMain.h"

#include <string>

namespace quill {

// Ends when it is cancelled, emptied, or the text is left as it stands.
void ParseCalculator(frmMain& Main, const std::string& expression);
// Up to 15 significant digits, never an exponent, "." before decimals; -0 is 0.
std::string NumberText(double value);

} // namespace quill
