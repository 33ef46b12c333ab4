// Names: what the files in the settings folder are called. All names here are relative to that folder
// ("Quillmere.ini", "Containers/3.REC"). Only names that this file can spell are ever changed or removed by a
// save; whatever else lies in the folder is the user's.
#pragma once

#include "platform/files.h"

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace quill {

inline constexpr std::string_view CommittedSettings = "Quillmere.ini";
inline constexpr std::string_view RecoverySettings = "Quillmere.REC";
inline constexpr std::string_view ContainersFolder = "Containers";
inline constexpr std::string_view CommittedExtension = ".con";
inline constexpr std::string_view RecoveryExtension = ".REC";
inline constexpr std::string_view OldBackupExtension = ".con.bak"; // written by older versions only

using NameSet = std::set<std::string, std::less<>>;

std::string ContainerName(int number, std::string_view extension); // "Containers/3.con"
// The number in "3.con" or "Containers/3.con"; none for another extension and for other spellings ("03.con").
std::optional<int> NumberOf(std::string_view name, std::string_view extension);
std::string_view BareName(std::string_view name); // what follows the last "/"

// How many container files stand from 0 on without a gap. Only these are read by a start.
int RunLength(const NameSet& standing);

// The first name that is free: as it is, then with 2, 3 ... behind it.
std::string FreeName(const FileReader& files, const std::string& path);
// A free name beside a file that is not deleted but must not stay: "Containers/7.con.aside".
std::string AsideName(const FileReader& files, const std::string& folder, const std::string& name);

// "*" is any text, "?" any one character; letters compare without regard to case.
bool MatchesPattern(std::string_view name, std::string_view pattern);

// By number where a name begins with one, then by letters: 2.con before 10.con.
void SortByNumber(std::vector<std::string>& names);

} // namespace quill
