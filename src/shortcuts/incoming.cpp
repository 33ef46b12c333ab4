#include "shortcuts/incoming.h"

#include "containers/selection.h"
#include "core/objects.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "platform/questions.h"
#include "shortcuts/create.h"
#include "shortcuts/placing.h"

#include <set>

namespace quill {
namespace {

// What lies in a parent, by paths as the file tree knows them and by addresses.
class Present {
public:
    Present(const frmMain& main, Parent in) : Main(main) {
        EachShortcutIn(Main, in, [&](int link) { Take(Main.Link(link).Path, Main.Link(link).Parameters); });
    }

    bool HoldsTarget(const std::string& path) const { return targets_.contains(Key(path)); }
    // One that a link file stands for is another one with other parameters.
    bool Holds(const NewShortcut& shortcut) const {
        if (shortcut.Parameters.empty()) return HoldsTarget(shortcut.Path);
        return starts_.contains({Key(shortcut.Path), shortcut.Parameters});
    }
    void Take(const std::string& path, const std::string& parameters) {
        std::string key = Key(path);
        if (!parameters.empty()) starts_.insert({key, parameters});
        targets_.insert(std::move(key));
    }

private:
    std::string Key(const std::string& path) const { return WithoutEndSeparator(ResolvedPath(Main, path)); }

    const frmMain& Main;
    std::set<std::string> targets_;
    std::set<std::pair<std::string, std::string>> starts_;
};

NewShortcut ShortcutFor(const frmMain& Main, const Incoming& item, Parent to) {
    if (item.Address) return ShortcutForAddress("", item.Target);
    return ShortcutForFile(Main, StoredPath(Main, item.Target), to);
}

void TellDuplicates(frmMain& Main) {
    const DialogPause pause(Main);
    Main.P.Questions.MsgBox(Tr(Main, "Duplicate items were not added."), BoxWarning, ProgramName);
}

} // namespace

std::vector<Incoming> IncomingOf(const std::vector<std::string>& files,
                                 const std::vector<std::string>& addresses, std::string_view text) {
    std::vector<Incoming> items;
    for (const std::string& file : files)
        if (IsLocalPath(file)) items.push_back({false, WithoutEndSeparator(file)});
    for (const std::string& address : addresses)
        if (IsWebAddress(address)) items.push_back({true, address});
    if (items.empty() && IsWebAddress(text)) items.push_back({true, std::string(text)});
    return items;
}

Added AddIncoming(frmMain& Main, const DropPlace& place, const std::vector<Incoming>& items) {
    Added added;
    Present present(Main, place.To);
    const int room = RoomFor(Main, place.To);
    int last = -1;
    for (const Incoming& item : items) {
        NewShortcut shortcut = ShortcutFor(Main, item, place.To);
        if (present.HoldsTarget(item.Target) || present.Holds(shortcut)) {
            added.All = false;
            continue;
        }
        added.Room = added.Count < room;
        if (!added.Room) break;
        present.Take(shortcut.Path, shortcut.Parameters);
        if (shortcut.Followed) added.Links.push_back(item.Target);
        const int link = AddShortcut(Main, std::move(shortcut), place.To, place.At);
        PlaceNewShortcut(Main, place, link, last);
        SetSelection(Main, link, true);
        last = link;
        ++added.Count;
    }
    return added;
}

void TellAdded(frmMain& Main, Parent to, const Added& added) {
    if (!added.Room) TellLimit(Main, to);
    if (!added.All && !Main.IsExiting) TellDuplicates(Main);
}

} // namespace quill
