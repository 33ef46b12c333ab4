// Preview: what the typed text means, shown in the box while it is typed, and the match that Enter uses.
#pragma once

#include "core/frmMain.h"

#include <string>
#include <string_view>

namespace quill {

struct TypedMeaning;

// MatchIndex: -1 to search, or the shortcut of the highlighted line. Its result is the same by reference. A
// text that is the name of a tile opens it and closes the box.
void UpdateJumpTo(frmMain& Main, const std::string& text, int& MatchIndex);
// The same for what stands in the field, but a tile is only shown: the text came from a line of the list.
void PreviewText(frmMain& Main, int Listed);
// Whether the box still shows this meaning of its text: what is shown may have died or taken another name.
bool IsShown(const frmMain& Main, const TypedMeaning& meaning);
// The name line, the hint and the icon of a box in which nothing is typed.
void ShowOwnLook(frmMain& Main);
// The tile opens, the box closes, and the text is remembered.
void OpenTile(frmMain& Main, int container, const std::string& text);

} // namespace quill
