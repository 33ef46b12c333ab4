// A workspace on the fake computer with a place of its own, and a person who points, leaves, calls and
// unplugs. The screen is 28800 by 16200 twips unless a test says otherwise, with a panel below.
#pragma once

#include "dock/dock_commands.h"
#include "dock/docking.h"
#include "dock/sliding.h"
#include "fake/desk.h"
#include "fake/words.h"

#include <gtest/gtest.h>

namespace quill::test {

inline constexpr int Top = edge::Top, Left = edge::Left, Right = edge::Right, Bottom = edge::Bottom;
inline constexpr float ScreenWidth = 28800, ScreenHeight = 16200;

inline Monitor Screen(const Rect& place) {
    return {place, place};
}

struct DockFixture : testing::Test {
    fake::Desk desk;
    fake::FakeWindows& windows = desk.Computer.Windows;
    fake::FakeClock& clock = desk.Computer.Clock;

    // What else the settings file says comes as "[Key]" and value in turn.
    void Start(const Rect& place, const std::vector<std::string>& more = {}) {
        std::string text = "108\r\n[X]\r\n" + fake::Words(place.Left) + "\r\n[Y]\r\n" +
                           fake::Words(place.Top) + "\r\n[W]\r\n" + fake::Words(place.Width) + "\r\n[H]\r\n" +
                           fake::Words(place.Height) + "\r\n";
        for (const auto& line : more) text += line + "\r\n";
        ForgetRecovery();
        desk.Files().Put(desk.Settings("Quillmere.ini"), text);
        desk.StartWorkspace();
        desk.Wait(60); // tray and hotkey come after the first picture
    }
    // What an earlier workspace of the same test has left.
    void ForgetRecovery() {
        const auto names = desk.Files().List(fake::SettingsFolder);
        if (!names) return;
        for (const auto& name : names.Value())
            if (name.ends_with(".REC")) static_cast<void>(desk.Files().Remove(desk.Settings(name)));
    }
    // Out at an edge of the usual screen, with the keyboard.
    void StartAt(int at, const std::vector<std::string>& more = {}) { Start(PlaceAt(at), more); }
    static Rect PlaceAt(int at) {
        static constexpr Rect Places[] = {{9000, 4500, 9000, 6000},
                                          {9000, 0, 9000, 6000},
                                          {0, 4500, 9000, 6000},
                                          {ScreenWidth - 9000, 4500, 9000, 6000},
                                          {9000, ScreenHeight - 6000, 9000, 6000}};
        return Places[at];
    }
    // Nobody looks at it for two seconds: whatever docks by itself has docked.
    void Leave() {
        desk.LeaveWorkspace();
        desk.Wait(2000);
    }
    void StartDocked(int at, const std::vector<std::string>& more = {}) {
        StartAt(at, more);
        Leave();
        ASSERT_EQ(State(), "docked");
    }
    void TearDown() override {
        EXPECT_EQ(desk.Person().Unexpected, 0)
            << (desk.Person().UnexpectedTexts.empty() ? "" : desk.Person().UnexpectedTexts.front());
        EXPECT_TRUE(desk.Person().AllAnswered());
    }

    frmMain& Main() { return *desk.Main; }
    DockState& Dock() { return desk.Main->Dock; }
    Rect Window() { return desk.Main->View.Window; }
    Rect Bar() { return windows.Of(MiniDockWindow).Place; }
    int Opacity() { return windows.Of(MainWindow).Opacity; }
    void Tick() { Timer_Tick(Main(), {TimerName::TimerHide}), desk.Turn(); }
    bool HasKeyboard() { return windows.Foreground == MainWindow; }
    bool AnyScreenShows(const Rect& place) {
        for (const auto& screen : windows.Screens)
            if (screen.Place.Intersects(place)) return true;
        return false;
    }

    // The state as a person sees it, with what must hold in it.
    std::string State() {
        const auto& dock = Dock();
        const bool shown = desk.WorkspaceShows();
        if (dock.Slide.Edge != 0) return shown && !desk.BarShows() ? "sliding" : "sliding, wrongly";
        if (dock.DockPosition != 0) {
            const bool right = !shown && desk.BarShows() && dock.MiniDock.Loaded && AnyScreenShows(Bar());
            return right ? "docked" : "docked, but lost";
        }
        if (desk.BarShows() || dock.MiniDock.Loaded) return "a bar without a docked workspace";
        if (!shown) return "hidden";
        const int full = Main().Settings.Translucent ? Main().Settings.Opacity : 255;
        if (Opacity() != full) return "half faded";
        if (!AnyScreenShows(Window())) return "lost";
        if (dock.Maximized) return "maximised";
        if (Main().View.State == WindowState::Minimized) return "minimised";
        const std::string where = EdgeOfWindow(Main(), Window()) == 0 ? "floating" : "out";
        return dock.Suspended ? "suspended, " + where : where;
    }
    std::string Saved(const std::string& key, const std::string& file = "Quillmere.ini") {
        const auto text = desk.Files().Read(desk.Settings(file), 1 << 20);
        if (!text) return "(no file)";
        const std::string& all = text.Value();
        const auto at = all.find(key + "\r\n");
        if (at == std::string::npos) return "(no key)";
        const auto begin = at + key.size() + 2;
        return all.substr(begin, all.find("\r\n", begin) - begin);
    }
    bool Logged(const std::string& line) {
        for (const auto& it : windows.Log)
            if (it == line) return true;
        return false;
    }
};

} // namespace quill::test
