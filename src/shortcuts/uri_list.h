// The text/uri-list of a drag or the clipboard: a line each, percent-encoded, "#" begins a comment. What
// comes in it is data of strangers.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quill {

struct UriList {
    std::vector<std::string> Files;     // absolute paths of this machine, decoded
    std::vector<std::string> Addresses; // with any other scheme, as they stand
};

inline constexpr int MostUris = 2000; // lines that are read

// Left out: lines that are no address, files of other machines, paths with a NUL in them. host is this
// machine's name.
UriList ReadUriList(std::string_view text, std::string_view host);
std::string FileUri(std::string_view path);
std::string PercentDecoded(std::string_view text); // a "%" that no two digits follow stands for itself

} // namespace quill
