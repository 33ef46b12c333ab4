// Desktop entry: the reader of ".desktop" files, as far as a shortcut shows them. They are started by the
// desktop's own routines.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quill {

struct DesktopEntry {
    std::string Type; // "Application", "Link", "Directory"
    std::string Name; // in the first of the languages that has one
    std::string Comment;
    std::string Url; // of a Link
};

// languages: "de_DE", "de" ... the preferred first. Nothing for what is no such file or has no name.
std::optional<DesktopEntry> ReadDesktopEntry(std::string_view bytes,
                                             const std::vector<std::string>& languages);

} // namespace quill
