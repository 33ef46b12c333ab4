// Path walk: typed paths. A path begins with "/", "~" or "."; or has " /" or " ~" in it; or has "/" with no
// blank, no ":" and no "." before the first "/". "~" is the home folder, where paths that begin with "." lie
// too, and what begins with none of these lies on the mount point that holds the program.
#pragma once

#include "core/frmMain.h"

#include <string>
#include <string_view>

namespace quill {

enum class ListThen { Keep, Open }; // what is done with a list that has lines

bool IsPathText(std::string_view text);
bool IsWalkable(std::string_view text); // the arrows lead from folder to folder: "/", "~" or "." in front
std::string PathOfText(const frmMain& Main, std::string_view text); // absolute, for the file tree
// The text less its last element; "/" and "~" stay.
std::string UpOneFolder(std::string_view text);
// Fills the list with the folders below, as texts to go on with, hidden ones too; sets the hint "Invalid
// Path" or "No Subfolders". A folder on a server that may be dead is asked off the thread, and its answer
// counts only while the text still stands in the box.
void ListSubfolders(frmMain& Main, std::string_view text, ListThen then = ListThen::Open);

} // namespace quill
