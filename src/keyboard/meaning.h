// Meaning: what a typed text stands for. It is decided in one place, so that Enter does what the preview
// shows. Prefix commands and "=" come first, then a name with parameters behind it, paths, addresses, the
// shortcut that was found, and the web search.
#pragma once

#include "core/frmMain.h"

#include <string>
#include <string_view>

namespace quill {

enum class Meaning {
    Nothing, // blank, or nothing was found
    TagStart,
    Calculator,
    Note,
    Reminder,
    Shortcut,
    WithParameters, // a shortcut, and what it is started with
    Container,      // a tile that opens
    Path,
    Address,
    WebSearch
};

struct TypedMeaning {
    Meaning What = Meaning::Nothing;
    int Shortcut = -1;    // of Shortcut and WithParameters
    int Container = -1;   // of Container
    std::string Argument; // behind a prefix or a name, trimmed; of a reminder as it is; a query
};

// Listed: the shortcut of the highlighted line, or -1 to search. One that is listed or was picked is meant
// while the text is its name, whatever else the text looks like.
TypedMeaning MeaningOf(frmMain& Main, std::string_view text, int Listed);

bool HoldsBlank(std::string_view text);
// A dot or "://" and no blank. To be asked behind paths.
bool LooksLikeAddress(std::string_view text);
// "http://" in front where no scheme stands.
std::string AddressOf(std::string_view text);

} // namespace quill
