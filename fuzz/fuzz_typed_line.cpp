// Any text and any keys in the Keyboard Launcher, over a few shortcuts that come, go and are renamed
// meanwhile: what starts is what the box showed, nothing that was typed reaches a shell, and the box stays
// whole.
#include "fuzz_workspace.h"

#include "containers/layout.h"
#include "containers/lifecycle.h"
#include "containers/shrink.h"
#include "core/handlers.h"
#include "keyboard/jump_to.h"
#include "keyboard/preview.h"
#include "keyboard/run_text.h"
#include "shortcuts/create.h"

using namespace quill;

namespace {

constexpr const char* names[] = {"Notepad", "Notepad Plus", "git",  "Git Gui", "Größe",
                                 "t rex",   "=1+1",         "a.b",  "AC/DC",   "node.js",
                                 "/",       "two\nlines",   "Same", "Same"};
constexpr const char* commandText = "echo 'kept' | cat";

struct Desk {
    fuzz::Workspace World;
    frmMain& Main = World.Main;
    SearchBox& Field = Main.Keys.PicJumpToLink.cboSearch;
    int Command = -1;

    explicit Desk(unsigned settings) {
        Main.SettingsFolder = fake::SettingsFolder;
        World.Computer.Files.PutFolder(fake::SettingsFolder);
        World.Computer.Files.PutFolder("/usr/lib");
        World.Computer.Shell.NetworkPaths.push_back("/net/");
        Main.IsLoading = false;
        Main.View.Window = {0, 0, 12000, 9000};
        ResizeForm(Main);
        Main.Settings.SearchOnSpace = (settings & 1) != 0;
        Main.Settings.CalcOrSpeedLaunch = (settings & 2) != 0;
        Main.Settings.KeyboardHistory = (settings & 4) != 0;
        for (const char* name : names) Add(name);
        Command = Add("command");
        Main.Link(Command).Command = true;
        Main.Link(Command).Parameters = commandText;
        AddTile();
    }
    int Add(const std::string& name) {
        AddFile(Main, "/apps/x", OnWorkspace(), {0, 0});
        const int index = Main.NextShortcutIndex - 1;
        Main.Link(index).Path = "/apps/" + std::to_string(index);
        Rename(index, name);
        return index;
    }
    void Rename(int index, const std::string& name) {
        Main.Link(index).FullCaption = name;
        ++Main.Links.CaptionsRevision;
    }
    void AddTile() {
        bool ok = false;
        NewGroup(Main, false, ok);
        Main.ConView(0).ContainerLabel.Caption = "Mail";
        ExpandShrinkContainer(Main, 0, false);
    }
    int Some(unsigned number) const { return static_cast<int>(number % Main.Shortcuts.size()); }
    void Key(int code, bool ctrl = false) {
        KeyEvent event;
        event.Code = code, event.Ctrl = ctrl;
        cboSearch_KeyDown(Main, event, Field.SelStart, Field.SelLength);
    }
};

void Letter(Desk& desk, char letter) {
    const std::string text = desk.Field.Text + letter;
    cboSearch_Change(desk.Main, text, CodePoints(text));
}

void Erase(Desk& desk) {
    std::string text = desk.Field.Text;
    if (!text.empty()) text.pop_back();
    cboSearch_Change(desk.Main, text, CodePoints(text));
}

// One shortcut at most, the one that was shown; of typed things nothing but files and addresses.
void Enter(Desk& desk, bool admin) {
    auto& launches = desk.World.Computer.Shell.Launches;
    launches.clear();
    const int shown = desk.Main.Keys.PreviewedShortcut;
    const bool alive = IsLive(desk.Main.Shortcuts, shown);
    const std::string path = alive ? desk.Main.Link(shown).Path : std::string();
    desk.Key(KeyReturn, admin);
    for (const auto& request : launches) {
        fuzz::Require(request.Command ? request.Parameters == commandText && shown == desk.Command
                                      : !request.File.empty());
        if (request.Command) continue;
        const bool own = request.File.starts_with("/apps/") && shown != -1;
        fuzz::Require(!own || (alive && request.File == path));
        fuzz::Require(own || request.File.front() == '/' || request.File.find(':') != std::string::npos);
        fuzz::Require(request.File.find('\0') == std::string::npos || !own);
    }
    fuzz::Require(launches.size() <= 1);
}

void Wait(Desk& desk) {
    desk.World.Computer.Clock.Advance(100);
    desk.World.Computer.Worker.RunAll();
}

void Special(Desk& desk, unsigned key, unsigned number) {
    switch (key) {
    case 0:
        return Erase(desk);
    case 1:
        return desk.Key(KeyTab);
    case 2:
        return desk.Key(KeyDown);
    case 3:
        return desk.Key(KeyUp);
    case 4:
        return desk.Key(KeyRight);
    case 5:
        return desk.Key(KeyLeft);
    case 6:
        return desk.Key(KeyEscape);
    case 7:
        return desk.Key('A', true);
    case 8:
        return desk.Key('3', true);
    case 9:
        return desk.Key(KeyPageDown);
    case 10:
        return Enter(desk, false);
    case 11:
        return Enter(desk, true);
    case 12:
        return cboSearch_Choose(desk.Main, static_cast<int>(number % 20) - 1);
    case 13:
        return cboSearch_Highlight(desk.Main, static_cast<int>(number % 20) - 1);
    case 14:
        return lblHistory_Click(desk.Main);
    case 15:
        return DeleteShortcut(desk.Main, desk.Some(number));
    case 16:
        return desk.Rename(desk.Some(number), desk.Field.Text);
    case 17:
        return static_cast<void>(desk.Add(desk.Field.Text));
    case 18:
        return mnuKeyboardLauncher_Click(desk.Main);
    default:
        return Wait(desk);
    }
}

void IsWhole(Desk& desk) {
    const auto& field = desk.Field;
    const int rows = static_cast<int>(field.List.size());
    fuzz::Require(field.ListIndex >= -1 && field.ListIndex < rows);
    fuzz::Require(!field.DroppedDown || rows > 0);
    const int picked = desk.Main.Keys.Picked;
    fuzz::Require(picked == -1 || picked == desk.Main.Keys.PreviewedShortcut);
    fuzz::Require(desk.Main.Keys.LauncherActive == IsJumpToOpen(desk.Main));
    fuzz::Require(IsJumpToOpen(desk.Main) || !field.DroppedDown);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0 || size > 400) return 0;
    Desk desk(data[0]);
    ShowPicJumpTo(desk.Main, "", true, false);
    for (std::size_t at = 1; at < size; ++at) {
        if (!IsJumpToOpen(desk.Main)) ShowPicJumpTo(desk.Main, "", true, false);
        const unsigned number = at + 1 < size ? data[at + 1] : 0U;
        if (data[at] < ' ')
            Special(desk, data[at], number);
        else
            Letter(desk, static_cast<char>(data[at]));
        IsWhole(desk);
        desk.Main.Marks.Take();
    }
    return 0;
}
