// Wallpaper and button set of the workspace. Names from files are single path elements or full paths; what is
// missing today is not shown, and its name is kept.
#pragma once

#include "core/frmMain.h"

#include <string>

namespace quill {

void LoadWallpaper(frmMain& Main);
void InitButtons(frmMain& Main, const std::string& Set);
// File of a button of the present set ("lock", "dock" ...); empty when the set lacks it.
std::string ButtonFile(const frmMain& Main, const std::string& name);
// A file that stands beside the program: program folder, then data folder. Empty when it is in neither.
std::string FileBeside(const frmMain& Main, const std::string& name);

} // namespace quill
