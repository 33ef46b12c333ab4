#include "shortcuts/folder_items.h"

#include "containers/boundaries.h"
#include "containers/full_size.h"
#include "containers/lifecycle.h"
#include "core/name_order.h"
#include "core/objects.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "persistence/save.h"
#include "platform/files.h"
#include "platform/questions.h"
#include "platform/shell.h"
#include "shortcuts/create.h"
#include "shortcuts/foreign_text.h"
#include "shortcuts/incoming.h"
#include "shortcuts/placing.h"

#include <algorithm>

namespace quill {
namespace {

// Names that begin with a dot are hidden ones: they come last, or a home folder would show nothing else.
bool ComesBefore(const std::string& one, const std::string& other) {
    const bool hidden = one.starts_with('.');
    if (hidden != other.starts_with('.')) return !hidden;
    const int order = CompareNames(one, other);
    return order != 0 ? order < 0 : one < other;
}

std::string NameOf(const std::string& folder) {
    const std::string name = folder.substr(folder.find_last_of('/') + 1);
    return ShownLine(name.empty() ? folder : name);
}

bool IsFolderHere(const frmMain& Main, const std::string& path) {
    return !Main.P.Shell.PathIsNetworkPath(path) && Main.P.Files.FolderExists(path);
}

bool Wanted(frmMain& Main, const std::string& folder) {
    const DialogPause pause(Main);
    const std::string text = Tr(Main,
                                "Yes: Create a new container with some of the items in the folder '%1'?\n"
                                "No: Just add a shortcut to the folder. \n\n"
                                "* Disable this notification from the Settings dialog.",
                                NameOf(folder));
    const int answer =
        Main.P.Questions.MsgBox(text, BoxYesNo | BoxInformation, Tr(Main, "Container from Folder?"));
    return answer == AnswerYes && !Main.IsExiting;
}

void TellNotAll(frmMain& Main) {
    const DialogPause pause(Main);
    Main.P.Questions.MsgBox(Tr(Main, "Not all items were added.\n\n"
                                     "- You can manually add any additional items using Drag & Drop.\n"
                                     "- Resize the container to arrange the new shortcuts within."),
                            BoxInformation, ProgramName);
}

// -1: there is no room for one more, which was told.
int NewContainerNamed(frmMain& Main, const std::string& name, Point at) {
    Main.Group.NewContainerPos = at;
    bool ok = false;
    NewGroup(Main, false, ok);
    if (!ok) return -1;
    const int index = Main.NextContainerIndex - 1;
    Main.ConView(index).ContainerLabel.Caption = name;
    Main.Con(index).CreationDate = Main.Con(index).ModifyDate = DateText(Main);
    Main.Group.CurrentContainer = index;
    BringInside(Main, index);
    RememberPlace(Main, index);
    return index;
}

} // namespace

bool AddFolderItems(frmMain& Main, const std::string& folder, int container, int limit) {
    if (!IsLive(Main.Containers, container)) return false;
    const std::string path = WithoutEndSeparator(folder);
    std::vector<Incoming> items{{false, path}};
    auto listed = Main.P.Files.List(path);
    std::vector<std::string> names = listed ? std::move(listed.Value()) : std::vector<std::string>();
    std::ranges::sort(names, &ComesBefore);
    const auto taken = std::min(names.size(), static_cast<std::size_t>(std::max(0, limit)));
    for (std::size_t at = 0; at < taken; ++at)
        items.push_back({false, (path == "/" ? "" : path) + "/" + names[at]});
    const DropPlace nowhere{InContainer(container), {0, -1}};
    const bool shownAll = ShowsAll(Main, nowhere.To);
    const Added added = AddIncoming(Main, nowhere, items);
    FitToContent(Main, nowhere.To, shownAll);
    return listed && taken == names.size() && added.Room;
}

bool ContainerFromFolder(frmMain& Main, const std::string& path, Point at) {
    if (!Main.Settings.ContainerFromFolder || !IsFolderHere(Main, path) || !Wanted(Main, path)) return false;
    const int container = NewContainerNamed(Main, NameOf(path), at);
    if (container == -1) return false;
    const bool all = AddFolderItems(Main, path, container, FolderItemsOfDrop);
    SaveContainers(Main, true);
    if (!all) TellNotAll(Main);
    return true;
}

} // namespace quill
