// A workspace with a place of its own, and a person who types into the Keyboard Launcher.
#pragma once

#include "containers/lifecycle.h"
#include "containers/selection.h"
#include "containers/shrink.h"
#include "fake/desk.h"
#include "keyboard/history.h"
#include "keyboard/jump_to.h"
#include "shortcuts/create.h"

#include <gtest/gtest.h>

namespace quill::test {

struct LauncherFixture : testing::Test {
    fake::Desk desk;

    void SetUp() override {
        desk.Files().Put(desk.Settings("Quillmere.ini"),
                         "108\r\n[X]\r\n1500\r\n[Y]\r\n1500\r\n[W]\r\n15000\r\n[H]\r\n9000\r\n");
        desk.StartWorkspace();
        for (const char* folder : {"/usr/lib", "/usr/share", "/home/user/.config", "/home/user/Music"})
            desk.Files().PutFolder(folder);
    }
    void TearDown() override {
        const auto& person = desk.Computer.Questions;
        EXPECT_EQ(person.Unexpected, 0) << (person.Unexpected == 0 ? "" : person.UnexpectedTexts.front());
    }

    frmMain& Main() { return *desk.Main; }
    KeyboardState& Keys() { return Main().Keys; }
    JumpToView& Box() { return Keys().PicJumpToLink; }
    SearchBox& Field() { return Box().cboSearch; }
    bool IsOpen() { return Box().Visible; }

    int Link(const std::string& caption, Parent in = OnWorkspace()) {
        AddFile(Main(), "/apps/" + caption, in, {600, 900});
        const int index = Main().NextShortcutIndex - 1;
        Main().Link(index).FullCaption = caption;
        ++Main().Links.CaptionsRevision;
        return index;
    }
    void Rename(int shortcut, const std::string& caption) {
        Main().Link(shortcut).FullCaption = caption;
        ++Main().Links.CaptionsRevision;
    }
    int Tile(const std::string& name) {
        bool ok = false;
        NewGroup(Main(), false, ok);
        const int index = Main().NextContainerIndex - 1;
        Main().ConView(index).ContainerLabel.Caption = name;
        ExpandShrinkContainer(Main(), index, false);
        Main().Group.JustExpanded = false;
        return index;
    }

    // The box open and empty, then what is typed into it.
    void Open() {
        mnuKeyboardLauncher_Click(Main());
        desk.Turn();
    }
    void Type(const std::string& text) {
        Open();
        desk.Type(text);
    }
    void Enter() { desk.PressKey(KeyReturn); }
    void Run(const std::string& text) { Type(text), Enter(); }
    void Press(int code, int times = 1) {
        for (int time = 0; time < times; ++time) desk.PressKey(code);
    }

    // "name | hint", and the icon's words.
    std::string Preview() { return Box().lblJumpToLink + " | " + Box().lblJumpToTip; }
    std::string Icon() {
        const auto& icon = Box().PicJumpToIcon;
        if (icon.Shortcut != -1)
            return "shortcut " + std::to_string(icon.Shortcut) +
                   (icon.ThemeName.empty() ? "" : " or " + icon.ThemeName);
        return icon.File.empty() ? icon.ThemeName : icon.File;
    }
    std::string Lines() {
        std::string all;
        for (const auto& item : Field().List) all += (all.empty() ? "" : ", ") + item.Text;
        return all;
    }
    std::string Started() {
        std::string all;
        for (const auto& request : desk.Computer.Shell.Launches)
            all += (all.empty() ? "" : "; ") + fake::Words(request);
        return all;
    }
    std::string History() {
        std::string all;
        for (const auto& line : HistoryLines(Main())) all += (all.empty() ? "" : ", ") + line;
        return all;
    }
    std::string Boxes() {
        std::string all;
        for (const auto& box : desk.Person().Boxes)
            all += box.Text + " (" + std::to_string(box.Flags) + ", " + box.Title + ")";
        return all;
    }
    std::string Selected() {
        std::string all;
        for (const int index : Main().Links.SelectedShortcuts)
            all += (all.empty() ? "" : ", ") + Main().Link(index).FullCaption;
        return all;
    }
};

} // namespace quill::test
