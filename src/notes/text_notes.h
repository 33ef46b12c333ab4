// Text notes: text from elsewhere as a note: pasted, dropped, or read from a text file.
#pragma once

#include "core/frmMain.h"

#include <string>

namespace quill {

inline constexpr int MaxLinesOfTextFile = 200; // what stands behind them is left out without a word

// A note at NewContainerPos, on the grid of notes and whole inside the workspace, and not exactly over
// another container. False: none was made (there is no text, or no room, which was told).
bool PasteTextFromClipboard(frmMain& Main, const std::string& Text, const std::string& Caption);
// A note with the file's name and its first lines; the title row asks to wait meanwhile, and it is saved. One
// that can't be read is told. A file on a server comes when that answers.
void AddNoteFromTextFile(frmMain& Main, const std::string& Path);
// Behind what it holds, after an empty line.
void AppendToNote(frmMain& Main, int Index, const std::string& text);

} // namespace quill
