// Skin: the folder of looks, which a person has in the settings folder and the program in its data folder.
// What the person has comes first. Names from files are single path elements and lead nowhere else.
#pragma once

#include "core/frmMain.h"

#include <string>
#include <string_view>
#include <vector>

namespace quill {

bool IsOneElement(std::string_view name);
bool IsFile(const frmMain& Main, const std::string& path);
// Of several names, relative to Skin, the first that a person has, else the first that came with the program;
// empty when none stands there.
std::string SkinFile(const frmMain& Main, std::initializer_list<std::string> names);

// A file below Skin that is known by its name without the ending.
struct SkinEntry {
    std::string Name, Path;
};
// The files of a folder of Skin ("/Colors", "" for itself) with an ending (".qmc", in any case), one for a
// name, in the order of names. Hidden files are none of them.
std::vector<SkinEntry> SkinEntries(const frmMain& Main, std::string_view folder, std::string_view ending);

} // namespace quill
