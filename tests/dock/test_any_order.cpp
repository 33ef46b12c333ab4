// Whatever a person does to a sliding workspace, and in whatever order: it is never lost, stuck half out or
// in the way. The orders are drawn from fixed seeds, so that a failure can be played again.
#include "dock/dock_fixture.h"
#include "shortcuts/launch.h"

#include <random>
#include <set>

namespace quill::test {
namespace {

// What is maximised leaves the panel free.
Monitor WithPanel(const Rect& place) {
    return {place, {place.Left, place.Top, place.Width, place.Height - 450}};
}

const std::vector<std::vector<Monitor>> layouts = {
    {WithPanel({0, 0, 28800, 16200})},
    {WithPanel({0, 0, 28800, 16200}), WithPanel({28800, 0, 19200, 10800})},
    {WithPanel({0, 0, 19200, 10800}), WithPanel({19200, 0, 28800, 16200})},
    {WithPanel({0, 0, 28800, 16200}), WithPanel({4800, 16200, 19200, 10800})},
    {WithPanel({0, 0, 19200, 10800}), WithPanel({19200, 10800, 19200, 10800})},
    {WithPanel({0, 0, 28800, 16200}), WithPanel({28800, 3000, 28800, 16200})},
    {WithPanel({0, 0, 15000, 9000})},
};

struct AnyOrder : DockFixture {
    std::mt19937 dice;
    int dialogs = 0;
    std::string story;

    float Upto(float limit) { return static_cast<float>(dice() % static_cast<unsigned>(limit)); }
    std::size_t Pick(std::size_t count) { return dice() % count; }
    bool Shows() { return desk.WorkspaceShows() && Main().View.State != WindowState::Minimized; }

    // The hand stays on a screen, and with it the middle of the title row.
    void Carry() {
        if (!Shows() || dialogs == 1 || !desk.Find(ElementKind::lblCaption)->Reachable) return;
        const Rect& screen = windows.Screens[Pick(windows.Screens.size())].Place;
        const float x = screen.Left + Upto(screen.Width), y = screen.Top + Upto(screen.Height - 600);
        desk.CarryWindow({x - Window().Width / 2, y - 150, Window().Width, Window().Height});
    }
    void Dialog() {
        Dock().DialogPauses += dialogs == 0 ? 1 : -1;
        dialogs = 1 - dialogs;
    }
    void ByKey(int code, bool alt) {
        if (HasKeyboard() && dialogs == 0) desk.PressKey(code, false, false, alt);
    }
    void Suspend() {
        if (HasKeyboard() && dialogs == 0) mnuSuspendSlideOut_Click(Main()), desk.Turn();
    }
    void Hover() {
        if (desk.BarShows()) desk.PointAtBar();
    }
    void PointInside() {
        if (Shows()) desk.MoveMouse({Window().Left + Window().Width / 2, Window().Top + Window().Height / 2});
    }

    void Do(std::size_t what) {
        switch (what) {
        case 0:
            return story += " hotkey", desk.PressHotkey();
        case 1:
            return story += " away", desk.MouseAway();
        case 2:
            return story += " other", desk.OtherProgram();
        case 3:
            return story += " wait", desk.Wait(2500);
        case 4:
            return story += " moment", desk.Wait(static_cast<std::int64_t>(Upto(200)));
        case 5:
            return story += " hover", Hover();
        case 6:
            return story += " inside", PointInside();
        case 7:
            return story += " escape", ByKey(KeyEscape, false);
        case 8:
            return story += " f11", ByKey(KeyF1 + 10, false);
        case 9:
            return story += " position", ByKey(KeyLeft + static_cast<int>(Pick(4)), true);
        case 10:
            return story += " suspend", Suspend();
        case 11:
            return story += " hide", mnuHideAlterDesk_Click(Main()), desk.Turn();
        case 12:
            return story += " tray", desk.ClickTray();
        case 13:
            return story += " center", desk.ChooseInTray("Center Workspace");
        case 14:
            return story += " second", SecondStart(Main(), Summons::Show), desk.Turn();
        case 15:
            return story += " dialog", Dialog();
        case 16:
            return story += " minimise", (Shows() ? desk.Minimize() : desk.Turn());
        case 17:
            return story += " carry", Carry();
        case 18:
            return story += " start", PreLaunch(Main()), desk.Turn();
        default:
            return story += " screens", desk.ChangeScreens(layouts[Pick(layouts.size())]);
        }
    }
    // Enough of it shows on one screen to be pointed at and pressed.
    bool InReachOfAHand() {
        const Rect& it = Window();
        for (const auto& screen : windows.Screens) {
            const float width =
                std::min(it.Right(), screen.Place.Right()) - std::max(it.Left, screen.Place.Left);
            const float height =
                std::min(it.Bottom(), screen.Place.Bottom()) - std::max(it.Top, screen.Place.Top);
            if (width >= 450 && height >= 450) return true;
        }
        return false;
    }
    void Check() {
        static const std::set<std::string> right{"out",       "floating",       "docked",
                                                 "sliding",   "maximised",      "hidden",
                                                 "minimised", "suspended, out", "suspended, floating"};
        if (Dock().Slide.Edge != 0 && !Shows()) desk.Wait(20); // the next frame sees that it has gone
        ASSERT_TRUE(right.contains(State())) << State() << " after" << story;
        const bool stands = Shows() && Dock().Slide.Edge == 0;
        ASSERT_TRUE(!stands || InReachOfAHand()) << fake::Words(Window()) << " after" << story;
    }
    // The ways back that are always there, and the way out of the way.
    void CheckItComesAndGoes() {
        if (dialogs == 1) Dialog();
        desk.Wait(300);
        if (desk.BarShows()) {
            desk.PointAtBar();
            desk.Wait(1200);
            ASSERT_TRUE(Shows()) << "the bar brings nothing, after" << story;
        }
        SecondStart(Main(), Summons::Show);
        desk.Wait(300);
        ASSERT_TRUE(Shows() && HasKeyboard()) << State() << " after" << story;
        ASSERT_TRUE(InReachOfAHand()) << fake::Words(Window()) << " after" << story;
        if (State() != "out") return;
        Leave();
        ASSERT_EQ(State(), "docked") << "after" << story;
    }
};

TEST_F(AnyOrder, NothingThatAPersonDoesInAnyOrderLosesTheWorkspace) {
    constexpr unsigned orders = 1500;
    constexpr int steps = 40;
    for (unsigned seed = 1; seed <= orders; ++seed) {
        dice.seed(seed);
        windows.Screens = layouts[Pick(layouts.size())];
        const char* taskbar = Pick(2) == 0 ? "0" : "1";
        story = "order " + std::to_string(seed) + ":";
        Start(PlaceAt(static_cast<int>(Pick(5))), {"[ShowInTaskbar]", taskbar});
        for (int step = 0; step < steps && !HasFatalFailure(); ++step) Do(Pick(20)), Check();
        if (!HasFatalFailure()) CheckItComesAndGoes();
        dialogs = 0;
        desk.StopWorkspace();
        if (HasFatalFailure()) return;
    }
}

} // namespace
} // namespace quill::test
