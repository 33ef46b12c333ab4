// Shell link: the reader of ".lnk" files by their published layout. Knows no file tree: what the texts in it
// mean here is decided elsewhere.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quill {

// Texts are UTF-8 with the separators of the file; any may be empty.
struct ShellLink {
    std::string LocalPath;    // "C:\Tools\edit.exe"
    std::string NetworkPath;  // "\\server\share\folder\file"
    std::string RelativePath; // from the folder of the link
    std::string WorkingDirectory;
    std::string Arguments;
    std::string Description;
};

// Nothing for what is no such file or is damaged.
std::optional<ShellLink> ReadShellLink(std::string_view bytes);

} // namespace quill
