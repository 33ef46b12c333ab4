#include "dock/mini_toolbar.h"

#include "containers/fold.h"
#include "containers/lock.h"
#include "containers/rubber_band.h"
#include "containers/selection.h"
#include "containers/workspace_fixture.h"
#include "core/keyboard_focus.h"
#include "dock/dock_commands.h"
#include "dock/sliding.h"
#include "dock/workspace_lock.h"

#include <algorithm>
#include <cmath>

namespace quill {
namespace {

constexpr SurfaceId OnStrip{SurfaceKind::MiniToolbar, -1};

// A workspace in the middle of a monitor, with the keyboard, and three shortcuts in a column.
struct MiniToolbar : test::WorkspaceFixture {
    MiniToolbar() {
        Main.View.Window = {6000, 3000, 12035, 9030};
        ResizeForm(Main);
        Main.View.Visible = true;
        computer.Windows.Foreground = MainWindow;
        for (const float top : {1000.0F, 2000.0F, 3000.0F})
            links.push_back(Named(OnWorkspace(), {2000, top}));
    }
    int Named(Parent in, Point at) {
        const int link = NewLink(in, at);
        Main.LinkView(link).lblShortcut.Place = {at.X, at.Y, 900, 240};
        Main.LinkView(link).LabelMeasured = true;
        MoveLinkIcon(Main, link);
        return link;
    }
    void Select(const std::vector<int>& some) {
        for (const int link : some) SetSelection(Main, link, true);
        Wait(1);
    }
    bool Shows() const { return computer.Windows.IsVisible(MiniToolbarWindow); }
    Rect Strip() const { return computer.Windows.Of(MiniToolbarWindow).Place; }
    // Icon and caption of a shortcut on the workspace.
    Rect OnDesktop(int link) {
        const auto& back = Main.View.picBack.Place;
        const auto label = LabelPlace(Main, link), icon = IconPlace(Main, link);
        const float left = std::min(label.Left, icon.Left), top = std::min(label.Top, icon.Top);
        return {Main.View.Window.Left + back.Left + left, Main.View.Window.Top + back.Top + top,
                std::max(label.Right(), icon.Right()) - left, std::max(label.Bottom(), icon.Bottom()) - top};
    }
    bool CoversOne(const std::vector<int>& some) {
        return std::ranges::any_of(some, [&](int link) { return Strip().Intersects(OnDesktop(link)); });
    }
    void PressCell(int cell, MouseButton button = MouseButton::Left) {
        const Rect place = PlaceOfMiniToolbarCell(cell);
        const Point at{place.Left + place.Width / 2, place.Top + place.Height / 2};
        const MouseEvent event{
            .At = at, .Screen = {Strip().Left + at.X, Strip().Top + at.Y}, .Button = button};
        MouseDown(Main, OnStrip, event);
        MouseUp(Main, OnStrip, event);
    }
    void PointAt(int cell) {
        const Rect place = PlaceOfMiniToolbarCell(cell);
        MouseMove(Main, OnStrip, {.At = {place.Left + 30, place.Top + 30}});
    }
    std::string Names() {
        std::string text;
        for (const int link : links)
            if (IsLive(Main.Shortcuts, link)) text += Main.Link(link).FullCaption + " ";
        return text;
    }
    std::vector<int> links;
};

// ---- when it shows

TEST_F(MiniToolbar, ItComesWithTheSecondSelectedShortcutAndGoesWithIt) {
    Select({links[0]});
    EXPECT_FALSE(Shows());
    Select({links[1]});
    EXPECT_TRUE(Shows());
    EXPECT_TRUE(computer.Windows.Of(MiniToolbarWindow).OnTop);
    SetSelection(Main, links[0], false);
    EXPECT_FALSE(Shows());
    EXPECT_FALSE(computer.Clock.IsRunning({TimerName::TimerUnload}))
        << "nothing wakes up for a strip that is gone";
}

TEST_F(MiniToolbar, ItTakesNoKeyboard) {
    computer.Windows.Log.clear();
    Select(links);
    EXPECT_EQ(computer.Windows.Foreground, MainWindow);
    EXPECT_TRUE(std::ranges::none_of(computer.Windows.Log, [](const auto& line) {
        return line.find("frmMiniToolbar active") != std::string::npos;
    }));
}

// A click on the workspace raises that.
TEST_F(MiniToolbar, ItStaysAboveTheWorkspaceThatIsClicked) {
    computer.Windows.Show(MainWindow, Activate::Yes);
    Select({links[0], links[1]});
    computer.Windows.RaiseWindow(MainWindow);
    Select({links[2]});
    EXPECT_EQ(computer.Windows.Stack.back(), MiniToolbarWindow);
}

TEST_F(MiniToolbar, HoweverManyAreSelectedAtOnceItIsPlacedOnce) {
    for (int more = 0; more < 50; ++more) links.push_back(Named(OnWorkspace(), {5000, 1000.0F + 30 * more}));
    computer.Windows.Log.clear();
    mnuSelectShortcuts_Click(Main, 0);
    Wait(1);
    const auto places = std::ranges::count_if(
        computer.Windows.Log, [](const auto& line) { return line.find("place frmMiniToolbar") == 0; });
    EXPECT_EQ(places, 1);
}

TEST_F(MiniToolbar, ARubberBandBringsIt) {
    MouseEvent event{.At = {1500, 700}, .Screen = {7500, 3700}, .Button = MouseButton::Left};
    MouseDown(Main, OnBack, event);
    event.At = {4000, 2500}, event.Screen = {10000, 5500};
    MouseMove(Main, OnBack, event);
    Wait(300);
    EXPECT_FALSE(Shows());
    MouseUp(Main, OnBack, event);
    Wait(1);
    EXPECT_EQ(Main.Links.SelectedShortcuts.size(), 2U);
    EXPECT_TRUE(Shows());
}

TEST_F(MiniToolbar, ItDoesNotComeWithASelectionOfADockedOrHiddenWorkspace) {
    Main.Dock.DockPosition = 2;
    Select(links);
    EXPECT_FALSE(Shows());
    Main.Dock.DockPosition = 0;
    Main.View.Visible = false;
    SetSelection(Main, links[0], true);
    Wait(300);
    EXPECT_FALSE(Shows());
}

TEST_F(MiniToolbar, ItDoesNotComeWhileTheWorkspaceLoads) {
    Main.IsLoading = true;
    Select(links);
    EXPECT_FALSE(Shows());
}

// ---- where it stands

TEST_F(MiniToolbar, ItStandsBelowTheOneThatWasSelectedLast) {
    Select({links[0], links[2]});
    EXPECT_FALSE(CoversOne(links));
    EXPECT_GE(Strip().Top, OnDesktop(links[2]).Bottom());
    EXPECT_LT(Strip().Top, OnDesktop(links[2]).Bottom() + 300);
    Select({links[1]});
    EXPECT_LT(Strip().Top, OnDesktop(links[2]).Top) << "it goes along";
    EXPECT_GE(Strip().Top, OnDesktop(links[1]).Bottom());
}

TEST_F(MiniToolbar, ItStandsAboveWhereAnotherSelectedOneLiesBelow) {
    const int close = Named(OnWorkspace(), {2000, 3300});
    Select({close, links[2]});
    EXPECT_FALSE(CoversOne({close, links[2]}));
    EXPECT_LE(Strip().Bottom(), OnDesktop(links[2]).Top);
}

TEST_F(MiniToolbar, BesideALongColumnItCoversNoneOfIt) {
    std::vector<int> column;
    for (int row = 0; row < 18; ++row) column.push_back(Named(OnWorkspace(), {6000, 600 + 300.0F * row}));
    std::ranges::rotate(column, column.begin() + 9); // the last is in the middle
    Select(column);
    ASSERT_TRUE(Shows());
    EXPECT_FALSE(CoversOne(column));
}

TEST_F(MiniToolbar, ASelectionAsHighAsTheMonitorHasItAtItsSide) {
    computer.Windows.Screens = {{{0, 0, 28800, 9000}, {0, 0, 28800, 9000}}};
    Main.View.Window = {6000, 0, 12035, 9000};
    ResizeForm(Main);
    std::vector<int> column;
    for (int row = 0; row < 29; ++row) column.push_back(Named(OnWorkspace(), {6000, 300.0F * row}));
    std::ranges::rotate(column, column.begin() + 15);
    Select(column);
    EXPECT_FALSE(CoversOne(column));
    EXPECT_GE(Strip().Top, 0);
    EXPECT_LE(Strip().Bottom(), 9000);
}

struct CornerRow {
    const char* Where;
    Point Window;
    Point Label;
};

const CornerRow corners[] = {
    {"lower right corner of the first monitor", {16765, 6720}, {10800, 8600}},
    {"upper left corner", {0, 0}, {0, 0}},
    {"lower left corner of the second", {28800, 7170}, {0, 8700}},
    {"right edge of the second", {45565, 3000}, {10900, 4000}},
};

TEST_F(MiniToolbar, ItLiesWholeInTheWorkAreaOfTheMonitorOfTheLastOne) {
    computer.Windows.Screens = {{{0, 0, 28800, 16200}, {0, 0, 28800, 15750}},
                                {{28800, 0, 28800, 16200}, {28800, 0, 28800, 16200}}};
    for (const auto& row : corners) {
        UnselectLinks(Main);
        Main.View.Window = {row.Window.X, row.Window.Y, 12035, 9030};
        ResizeForm(Main);
        const int last = Named(OnWorkspace(), row.Label);
        Select({links[1], last});
        ASSERT_TRUE(Shows()) << row.Where;
        const auto& screens = computer.Windows.Screens;
        const Rect area = row.Window.X < 28800 ? screens[0].WorkArea : screens[1].WorkArea;
        EXPECT_GE(Strip().Left, area.Left) << row.Where;
        EXPECT_GE(Strip().Top, area.Top) << row.Where;
        EXPECT_LE(Strip().Right(), area.Right()) << row.Where;
        EXPECT_LE(Strip().Bottom(), area.Bottom()) << row.Where;
        EXPECT_FALSE(CoversOne({links[1], last})) << row.Where;
    }
}

TEST_F(MiniToolbar, ItStandsOnWholePixels) {
    Main.View.Window.Left += 7;
    Select(links);
    EXPECT_EQ(std::fmod(Strip().Left, TwipsPerPixel), 0);
    EXPECT_EQ(std::fmod(Strip().Top, TwipsPerPixel), 0);
}

TEST_F(MiniToolbar, ItGoesAlongWhenTheWorkspaceIsMoved) {
    Select(links);
    const Rect before = Strip();
    Form_Moved(Main, {7500, 4500, 12035, 9030});
    Wait(100);
    EXPECT_EQ(Strip(), (Rect{before.Left + 1500, before.Top + 1500, before.Width, before.Height}));
}

TEST_F(MiniToolbar, ItStaysUnderThePointerUntilThatHasLeft) {
    Select(links);
    const Rect before = Strip();
    PointAt(4);
    Main.LinkView(links[2]).lblShortcut.Place.Left += 3000;
    Wait(1000);
    EXPECT_EQ(Strip(), before) << "the next press of the same button would miss it";
    MouseLeave(Main, OnStrip);
    Wait(100);
    EXPECT_EQ(Strip().Left, before.Left + 3000);
}

TEST_F(MiniToolbar, InAScrolledContainerItStandsBesideWhatIsSeen) {
    const int box = New({4000, 1000, 3000, 3000});
    const int seen = Named(InContainer(box), {500, 400}), below = Named(InContainer(box), {500, 6000});
    Select({seen, below});
    ASSERT_TRUE(Shows());
    const float frame = Main.View.Window.Top + Main.View.picBack.Place.Top + 1000 +
                        Main.ConView(box).ContainerFrame.Place.Top;
    EXPECT_GE(Strip().Top, frame + 640);
    EXPECT_LT(Strip().Top, frame + 1200);
}

TEST_F(MiniToolbar, WithNothingOfTheSelectionToBeSeenItGoes) {
    const int box = New({4000, 1000, 3000, 3000});
    Select({Named(InContainer(box), {500, 400}), Named(InContainer(box), {500, 900})});
    ASSERT_TRUE(Shows());
    FoldUnfoldContainer(Main, box, false);
    Wait(100);
    EXPECT_FALSE(Shows());
    EXPECT_EQ(Main.Links.SelectedShortcuts.size(), 2U);
}

// ---- when it goes

TEST_F(MiniToolbar, ItGoesWithinATenthOfASecondWhenAnotherProgramHasTheKeyboard) {
    Select(links);
    Wait(500);
    EXPECT_TRUE(Shows());
    computer.Windows.Foreground = {};
    Wait(100);
    EXPECT_FALSE(Shows());
    EXPECT_FALSE(computer.Clock.IsRunning({TimerName::TimerUnload}));
    EXPECT_EQ(Main.Links.SelectedShortcuts.size(), 3U) << "the selection stays";
}

TEST_F(MiniToolbar, ItStaysWhileADetachedContainerHasTheKeyboard) {
    const int box = New({4000, 1000, 3000, 3000});
    Select(links);
    computer.Windows.Foreground = WindowId{WindowName::frmContainer, box};
    Wait(500);
    EXPECT_TRUE(Shows());
}

struct HoldRow {
    const char* What;
    void (*Begin)(frmMain&);
    void (*End)(frmMain&);
};

const HoldRow holds[] = {
    {"a question", [](frmMain& Main) { ++Main.Dock.DialogPauses; },
     [](frmMain& Main) { --Main.Dock.DialogPauses; }},
    {"a band or a group move", [](frmMain& Main) { Main.Dock.WorkspaceDragging = true; },
     [](frmMain& Main) { Main.Dock.WorkspaceDragging = false; }},
    {"a carried shortcut", [](frmMain& Main) { Main.Links.Carried.emplace_back(); },
     [](frmMain& Main) { Main.Links.Carried.clear(); }},
    {"a dragged container", [](frmMain& Main) { Main.Group.Drag.Moving = true; },
     [](frmMain& Main) { Main.Group.Drag.Moving = false; }},
    {"an effect", [](frmMain& Main) { Main.Looks.frmExplode.Loaded = true; },
     [](frmMain& Main) { Main.Looks.frmExplode.Loaded = false; }},
};

TEST_F(MiniToolbar, QuestionsDragsAndEffectsHoldItAndGiveTimeForTheKeyboardToComeBack) {
    for (const auto& row : holds) {
        Select(links);
        row.Begin(Main);
        computer.Windows.Foreground = {};
        Wait(1000);
        EXPECT_TRUE(Shows()) << row.What;
        row.End(Main);
        Wait(100);
        EXPECT_TRUE(Shows()) << row.What << ": the keyboard may be on its way";
        Wait(100);
        EXPECT_FALSE(Shows()) << row.What;
        computer.Windows.Foreground = MainWindow;
    }
}

TEST_F(MiniToolbar, DockingClosesIt) {
    Select(links);
    DockMe(Main, 2, false);
    EXPECT_FALSE(Shows());
    Wait(500);
    EXPECT_FALSE(Shows());
}

TEST_F(MiniToolbar, ASlideClosesItAtItsBeginning) {
    Main.Settings.Animate = true;
    Select(links);
    DockMe(Main, 2, true);
    ASSERT_EQ(Main.Dock.Slide.Edge, 2);
    EXPECT_FALSE(Shows());
}

TEST_F(MiniToolbar, HidingClosesIt) {
    Select(links);
    mnuHideAlterDesk_Click(Main);
    EXPECT_FALSE(Shows());
}

TEST_F(MiniToolbar, AMinimisedWorkspaceTakesItAlong) {
    Select(links);
    Form_StateChanged(Main, WindowState::Minimized);
    Wait(100);
    EXPECT_FALSE(Shows());
}

TEST_F(MiniToolbar, AContainerThatOpensOrShrinksClosesIt) {
    const int tile = NewTile(8000, 1000);
    for (int turn = 0; turn < 2; ++turn) {
        UnselectLinks(Main);
        Select(links);
        ASSERT_TRUE(Shows());
        ExpandShrinkContainer(Main, tile, false);
        EXPECT_FALSE(Shows()) << turn;
        Wait(1000);
        EXPECT_FALSE(Shows()) << turn;
    }
}

// ---- its buttons

TEST_F(MiniToolbar, ItHasEightButtonsAndTheColour) {
    Select(links);
    EXPECT_EQ(Seen(OnStrip), "picMiniToolbar MiniToolbarButton MiniToolbarButton MiniToolbarButton "
                             "MiniToolbarButton MiniToolbarButton MiniToolbarButton MiniToolbarButton "
                             "MiniToolbarButton PicLinkColor");
}

TEST_F(MiniToolbar, ItsButtonsLieWholeOnItSideBySide) {
    Select(links);
    float right = 0;
    Elements(Main, OnStrip, [&](const ElementInfo& info) {
        if (info.Id.Kind == ElementKind::picMiniToolbar) return true;
        EXPECT_GE(info.Place.Left, right);
        EXPECT_GE(info.Place.Top, 0);
        EXPECT_LE(info.Place.Bottom(), Strip().Height);
        right = info.Place.Right();
        return true;
    });
    EXPECT_LE(right, Strip().Width);
}

TEST_F(MiniToolbar, EachButtonSaysWhatItDoes) {
    Select(links);
    const char* tips[] = {"Larger",         "Smaller",         "Other Size...",    "Bold",
                          "Sort Ascending", "Sort Descending", "Remove Shortcuts", "Start Selected (3)"};
    for (int cell = 0; cell < MiniToolbarButtons; ++cell) {
        const auto info = Find(OnStrip, ElementKind::MiniToolbarButton, cell);
        EXPECT_EQ(info.Tip, tips[cell]);
        EXPECT_EQ(info.Name, tips[cell]);
        EXPECT_EQ(info.Role, Role::Button);
    }
    EXPECT_EQ(Find(OnStrip, ElementKind::PicLinkColor, -1).Tip, "Click to select color");
    SetSelection(Main, links[1], false);
    EXPECT_EQ(Find(OnStrip, ElementKind::MiniToolbarButton, 7).Tip, "Start Selected (2)");
}

struct ButtonRow {
    const char* What;
    int Cell;
    bool (*Done)(MiniToolbar&);
};

const ButtonRow buttons[] = {
    {"larger", 0, [](MiniToolbar& t) { return t.Main.Link(t.links[2]).FontSize == 12; }},
    {"smaller", 1, [](MiniToolbar& t) { return t.Main.Link(t.links[2]).FontSize == 8; }},
    {"another size", 2,
     [](MiniToolbar& t) {
         return t.Main.Link(t.links[2]).FontSize == 31 && t.Main.Link(t.links[0]).FontSize == 31;
     }},
    {"bold", 3,
     [](MiniToolbar& t) { return t.Main.Link(t.links[0]).FontBold && t.Main.Link(t.links[2]).FontBold; }},
    {"a to z", 4,
     [](MiniToolbar& t) {
         return t.OnDesktop(t.links[0]).Top > t.OnDesktop(t.links[1]).Top &&
                t.OnDesktop(t.links[1]).Top > t.OnDesktop(t.links[2]).Top;
     }},
    {"z to a", 5,
     [](MiniToolbar& t) {
         return t.OnDesktop(t.links[0]).Top < t.OnDesktop(t.links[1]).Top &&
                t.OnDesktop(t.links[1]).Top < t.OnDesktop(t.links[2]).Top;
     }},
    {"remove", 6, [](MiniToolbar& t) { return t.Names().empty(); }},
    {"start", 7, [](MiniToolbar& t) { return t.computer.Shell.Launches.size() == 3; }},
    {"colour", 8, [](MiniToolbar& t) { return t.Main.Link(t.links[1]).Color == 0x123456; }},
};

// Every button starts from the same three, which stand in the wrong order for it.
struct MiniToolbarButtonsTest : MiniToolbar, testing::WithParamInterface<ButtonRow> {};

TEST_P(MiniToolbarButtonsTest, APressActsOnTheWholeSelection) {
    const auto& row = GetParam();
    const char* names[] = {"c", "b", "a"};
    for (int at = 0; at < 3; ++at) Main.Link(links[static_cast<std::size_t>(at)]).FullCaption = names[at];
    if (row.Cell == 5)
        for (auto& link : links) // upside down
            Main.LinkView(link).lblShortcut.Place.Top = 5000 - Main.LinkView(link).lblShortcut.Place.Top;
    Main.Settings.ConfirmDelete = false;
    computer.Questions.Type("31");
    computer.Dialogs.Colors.push_back(0x123456);
    Select(links);
    EXPECT_FALSE(row.Done(*this));
    PressCell(row.Cell, MouseButton::Right);
    PressCell(row.Cell, MouseButton::Middle);
    EXPECT_FALSE(row.Done(*this)) << "only the left button presses";
    PressCell(row.Cell);
    EXPECT_TRUE(row.Done(*this));
}

INSTANTIATE_TEST_SUITE_P(All, MiniToolbarButtonsTest, testing::ValuesIn(buttons),
                         [](const auto& row) { return "Cell" + std::to_string(row.param.Cell); });

TEST_F(MiniToolbar, WhateverNamesAnActionDoesIt) {
    Main.Settings.ConfirmDelete = false;
    computer.Questions.CancelInput();
    std::vector<ElementId> doing;
    Select(links);
    Elements(Main, OnStrip, [&](const ElementInfo& info) {
        if (!info.Action.empty()) doing.push_back(info.Id);
        return true;
    });
    EXPECT_EQ(doing.size(), 9U);
    for (const auto& element : doing) EXPECT_TRUE(ActivateElement(Main, OnStrip, element)) << element.Index;
    EXPECT_EQ(Names(), "") << "removed by one of them";
}

TEST_F(MiniToolbar, APressBesideTheButtonsAndAReleaseElsewhereDoNothing) {
    Select(links);
    const Rect cell = PlaceOfMiniToolbarCell(3);
    MouseEvent event{.At = {cell.Left + 10, cell.Top + 10}, .Button = MouseButton::Left};
    MouseDown(Main, OnStrip, event);
    event.At = {5, 5};
    MouseUp(Main, OnStrip, event);
    MouseDown(Main, OnStrip, event);
    MouseUp(Main, OnStrip, event);
    EXPECT_FALSE(Main.Link(links[0]).FontBold);
    EXPECT_EQ(Main.Links.SelectedShortcuts.size(), 3U);
}

TEST_F(MiniToolbar, TwoQuickPressesAreTwo) {
    Select(links);
    PressCell(0);
    const Rect cell = PlaceOfMiniToolbarCell(0);
    const MouseEvent event{.At = {cell.Left + 10, cell.Top + 10}, .Button = MouseButton::Left};
    MouseDoubleClick(Main, OnStrip, event);
    MouseUp(Main, OnStrip, event);
    EXPECT_EQ(Main.Link(links[0]).FontSize, 14);
}

TEST_F(MiniToolbar, WhatTheLockHoldsFastItOffersNotAndStartsAllTheSame) {
    Select(links);
    mnuLock_Click(Main);
    for (int cell = 0; cell < 7; ++cell)
        EXPECT_EQ(Find(OnStrip, ElementKind::MiniToolbarButton, cell).Action, "") << cell;
    EXPECT_EQ(Find(OnStrip, ElementKind::PicLinkColor, -1).Action, "");
    for (int cell = 0; cell <= MiniToolbarButtons; ++cell) PressCell(cell);
    EXPECT_EQ(Main.Link(links[0]).FontSize, 10);
    EXPECT_FALSE(Main.Link(links[0]).FontBold);
    EXPECT_TRUE(computer.Dialogs.ColorsAsked.empty());
    EXPECT_EQ(computer.Shell.Launches.size(), 3U);
}

// A chooser of colours that stays open for a second, with the keyboard in it.
struct SlowChooser : fake::FakeDialogs {
    std::function<void()> While;
    std::optional<Color> ChooseColor(Color, const std::string& title) override {
        Title = title;
        While();
        return 0x00FF00;
    }
    std::string Title;
};

Platform WithDialogs(const Platform& p, Dialogs& dialogs) {
    return {p.Files,     p.Places, p.Clock,   p.Instance, p.Session,   p.Windows, p.Shell,
            p.Questions, dialogs,  p.Drags,   p.Texts,    p.Catalogue, p.Images,  p.Worker,
            p.Zip,       p.Tray,   p.Hotkeys, p.Counters, p.Clipboard, p.Web};
}

TEST(MiniToolbarAlone, WhileTheColourIsChosenItStays) {
    fake::Computer computer;
    SlowChooser chooser;
    frmMain Main(WithDialogs(computer.MakePlatform(), chooser));
    fake::Connect(computer, &Main);
    Main.SettingsFolder = fake::SettingsFolder;
    Main.IsLoading = false;
    Main.View.Visible = true;
    Main.View.Window = {6000, 3000, 12035, 9030};
    ResizeForm(Main);
    for (const float top : {1000.0F, 2000.0F}) AddFile(Main, "/usr/bin/thing", OnWorkspace(), {2000, top});
    computer.Windows.Foreground = MainWindow;
    SetSelection(Main, 0, true);
    SetSelection(Main, 1, true);
    computer.Clock.Advance(1);
    const auto shows = [&] { return computer.Windows.IsVisible(MiniToolbarWindow); };
    chooser.While = [&] {
        computer.Windows.Foreground = {};
        computer.Clock.Advance(1000);
        EXPECT_TRUE(shows());
    };
    ASSERT_TRUE(ActivateElement(Main, OnStrip, {ElementKind::PicLinkColor, -1}));
    EXPECT_EQ(Main.Link(1).Color, 0x00FF00);
    EXPECT_EQ(chooser.Title, "Color");
    computer.Clock.Advance(100);
    computer.Windows.Foreground = MainWindow; // it comes back a moment later
    computer.Clock.Advance(500);
    EXPECT_TRUE(shows());
    fake::Connect(computer, nullptr);
}

TEST_F(MiniToolbar, StartingADockedNeighbourhoodClosesItAndStillStartsAll) {
    Form_Moved(Main, {0, 3000, 12035, 9030}); // at the left edge
    Main.Settings.Animate = false;
    Select(links);
    PressCell(7);
    EXPECT_EQ(Main.Dock.DockPosition, 2);
    EXPECT_FALSE(Shows());
    EXPECT_EQ(computer.Shell.Launches.size(), 3U);
}

TEST_F(MiniToolbar, RemovingTheSelectionClosesIt) {
    Main.Settings.ConfirmDelete = false;
    Select(links);
    PressCell(6);
    EXPECT_FALSE(Shows());
    Wait(500);
    EXPECT_FALSE(Shows());
}

TEST_F(MiniToolbar, ThePointerMarksTheCellUnderIt) {
    Select(links);
    MarkTurn(Main.Marks);
    PointAt(3);
    EXPECT_EQ(Main.Dock.MiniToolbar.Pointed, 3);
    EXPECT_TRUE(MarkTurn(Main.Marks).Set.MiniToolbar);
    PointAt(3);
    EXPECT_FALSE(MarkTurn(Main.Marks).Set.MiniToolbar) << "nothing new";
    PointAt(MiniToolbarButtons);
    EXPECT_EQ(Main.Dock.MiniToolbar.Pointed, MiniToolbarButtons);
    MouseLeave(Main, OnStrip);
    EXPECT_EQ(Main.Dock.MiniToolbar.Pointed, -1);
}

} // namespace
} // namespace quill
