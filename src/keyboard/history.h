// History: what was typed into the Keyboard Launcher, KB_History.txt in the settings folder, a line each,
// oldest first, ended by CR LF. Lines are data: whatever stands in them is only ever shown or typed again.
#pragma once

#include "core/frmMain.h"

#include <string>
#include <vector>

namespace quill {

// Does nothing while [KeyboardHistory] is off, and with a text that is not ASCII or has control characters.
// An equal line, ignoring case, moves to the end. A file that can't be written costs nothing but the memory.
void AddToHistory(frmMain& Main, const std::string& text);
std::vector<std::string> HistoryLines(const frmMain& Main); // newest first, blank ones left out

} // namespace quill
