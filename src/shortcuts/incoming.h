// Incoming: files and addresses that come from outside, by a drop, by a paste or out of a folder, and the
// shortcuts that they become. All of them pass the same rules: link files are followed once, what lies there
// already is skipped, and a parent takes no more than its limit.
#pragma once

#include "core/frmMain.h"
#include "shortcuts/drop_target.h"

#include <string>
#include <vector>

namespace quill {

struct Incoming {
    bool Address = false;
    std::string Target; // a path as the file tree knows it, or an address
};

// Paths of this machine and addresses that may become shortcuts, in this order; the text counts where there
// is nothing else.
std::vector<Incoming> IncomingOf(const std::vector<std::string>& files,
                                 const std::vector<std::string>& addresses, std::string_view text);

struct Added {
    int Count = 0;
    bool All = true;                // nothing was there already
    bool Room = true;               // for each of them
    std::vector<std::string> Links; // link files that were followed, and so are needed here no more
};

// Adds and selects them; nothing is told and nothing is saved.
Added AddIncoming(frmMain& Main, const DropPlace& place, const std::vector<Incoming>& items);
// The boxes that follow, after the save: a box runs a loop of its own.
void TellAdded(frmMain& Main, Parent to, const Added& added);

} // namespace quill
