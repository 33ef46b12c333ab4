#include "keyboard/path_walk.h"

#include "core/name_order.h"
#include "core/tr.h"
#include "keyboard/search_list.h"
#include "platform/files.h"
#include "platform/places.h"
#include "platform/shell.h"
#include "platform/windows.h"
#include "platform/work.h"

#include <algorithm>
#include <memory>
#include <optional>

namespace quill {
namespace {

constexpr int networkTimeout = 5000;      // milliseconds until a server that says nothing counts as gone
constexpr std::size_t mostAskedOne = 500; // entries that are each asked whether they lie on a server

std::string WithoutEnd(std::string path) {
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    return path;
}

std::string Join(std::string folder, std::string_view name) {
    if (!folder.ends_with('/')) folder += '/';
    return folder.append(name);
}

std::string Home(const frmMain& Main) {
    auto home = Main.P.Places.Folder(SpecialFolder::Home);
    return home.empty() ? "/" : home;
}

// Nothing: it is no folder, or can't be listed. It may run on another thread: it knows the file tree alone.
using Names = std::optional<std::vector<std::string>>;

template <class Test> Names Subfolders(const FileReader& files, const std::string& folder, const Test& test) {
    if (!files.FolderExists(folder)) return {};
    auto listed = files.List(folder);
    if (!listed) return {};
    auto names = std::move(listed.Value());
    std::erase_if(names, [&](const std::string& name) { return !test(names.size(), Join(folder, name)); });
    std::ranges::sort(names, [](const std::string& one, const std::string& other) {
        const int order = CompareNames(one, other);
        return order != 0 ? order < 0 : one < other;
    });
    return names;
}

// A mount below that a dead server has left behind would hold everything up if it were looked at; it is a
// folder in any case.
Names LocalSubfolders(frmMain& Main, const std::string& folder) {
    return Subfolders(Main.P.Files, folder, [&](std::size_t count, const std::string& path) {
        if (count <= mostAskedOne && Main.P.Shell.PathIsNetworkPath(path)) return true;
        return Main.P.Files.FolderExists(path);
    });
}

// The question whose answer fills the list.
struct Walk {
    std::string Text, Folder;
    ListThen Then = ListThen::Open;
};

void SetHint(frmMain& Main, std::string_view english) {
    Main.Keys.PicJumpToLink.lblJumpToTip = Tr(Main, english);
    Main.Marks.JumpTo();
}

void TakeNames(frmMain& Main, const Walk& walk, const Names& names) {
    if (!names) return SetHint(Main, "Invalid Path");
    if (names->empty()) return SetHint(Main, "No Subfolders");
    std::vector<JumpItem> items;
    items.reserve(names->size());
    const auto front = WithoutEnd(walk.Text);
    for (const auto& name : *names) items.push_back({Join(front, name), -1});
    SetSearchList(Main, std::move(items));
    if (walk.Then == ListThen::Open) return OpenSearchList(Main);
    SetHint(Main, "Down arrow: List folders");
}

bool StillAsked(const frmMain& Main, const Walk& walk) {
    const auto& box = Main.Keys.PicJumpToLink;
    return !Main.IsExiting && box.Visible && box.cboSearch.Text == walk.Text;
}

void ListOnServer(frmMain& Main, Walk walk) {
    const auto names = std::make_shared<Names>();
    const auto job = [files = &Main.P.Files, folder = walk.Folder, names] {
        *names = Subfolders(*files, folder,
                            [&](std::size_t, const std::string& path) { return files->FolderExists(path); });
    };
    Main.P.Worker.Run(job, [&Main, walk = std::move(walk), names] {
        if (StillAsked(Main, walk)) TakeNames(Main, walk, *names);
    });
}

void AskServer(frmMain& Main, Walk walk) {
    const auto folder = walk.Folder;
    Main.P.Shell.PathFileExists(folder, networkTimeout, [&Main, walk = std::move(walk)](bool there) {
        if (!StillAsked(Main, walk)) return;
        if (there)
            ListOnServer(Main, walk);
        else
            TakeNames(Main, walk, {});
    });
}

} // namespace

bool IsWalkable(std::string_view text) {
    return text.starts_with('/') || text.starts_with('~') || text.starts_with('.');
}

bool IsPathText(std::string_view text) {
    if (IsWalkable(text)) return true;
    if (text.find(" /") != std::string_view::npos || text.find(" ~") != std::string_view::npos) return true;
    const auto slash = text.find('/');
    return slash != std::string_view::npos &&
           text.substr(0, slash).find_first_of(" :.") == std::string_view::npos;
}

std::string PathOfText(const frmMain& Main, std::string_view text) {
    if (text.starts_with('/')) return std::string(text);
    if (text == "~") return Home(Main);
    if (text.starts_with("~/")) return Join(Home(Main), text.substr(2));
    if (IsWalkable(text)) return Join(Home(Main), text);
    return Join(Main.P.Places.MountPoint(Main.P.Places.ProgramFolder()), text);
}

std::string UpOneFolder(std::string_view text) {
    auto path = WithoutEnd(std::string(text));
    const auto slash = path.rfind('/');
    if (slash == std::string::npos) return path;
    return slash == 0 ? "/" : WithoutEnd(path.substr(0, slash));
}

void ListSubfolders(frmMain& Main, std::string_view text, ListThen then) {
    CloseSearchList(Main);
    Walk walk{std::string(text), WithoutEnd(PathOfText(Main, text)), then};
    if (Main.P.Shell.PathIsNetworkPath(walk.Folder)) return AskServer(Main, std::move(walk));
    Main.P.Windows.ShowBusy(true);
    const auto names = LocalSubfolders(Main, walk.Folder);
    Main.P.Windows.ShowBusy(false);
    TakeNames(Main, walk, names);
}

} // namespace quill
