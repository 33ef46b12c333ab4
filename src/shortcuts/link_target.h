// Link target: what a link file stands for. Files with the endings ".lnk", ".url" and ".desktop" are read by
// readers of our own, whose bytes come from anywhere: a damaged one is itself the target.
#pragma once

#include "core/frmMain.h"

#include <string>

namespace quill {

enum class LinkKind { None, Target, Address, Entry };

// Target: Path is another file that exists here. Address: Path is a web address. Entry: a desktop entry that
// is started by its own rules, Path is that file itself.
struct LinkTarget {
    LinkKind Kind = LinkKind::None;
    std::string Path;
    std::string Caption;    // of an entry its name in the person's language; else empty
    std::string Parameters; // trimmed
    std::string StartIn;
};

bool IsLinkFileName(std::string_view path); // ".lnk" or ".url", any case
LinkTarget ResolveLink(const frmMain& Main, const std::string& path);

} // namespace quill
