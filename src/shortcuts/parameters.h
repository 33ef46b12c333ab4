// Parameters of a program as a person writes them: one text that is split by the shell's quoting rules. Only
// blanks, quotes and backslashes mean something; nothing is expanded, and no shell ever sees the text.
#pragma once

#include "platform/result.h"

#include <string>
#include <string_view>
#include <vector>

namespace quill {

// Damaged when a quote is not closed; Text is then a key for Tr.
Result<std::vector<std::string>> SplitParameters(std::string_view text);

} // namespace quill
