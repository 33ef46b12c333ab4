// frmQuickLaunch: what it shows, its keys, the mouse on it, and when it goes.
#include "shortcuts/speed_launch.h"

#include "appearance/colors.h"
#include "appearance/paint.h"
#include "appearance/palette.h"
#include "containers/layout.h"
#include "core/keyboard_focus.h"
#include "core/surfaces.h"
#include "dock/docking.h"
#include "fake/canvas.h"
#include "fake/desk.h"
#include "fake/words.h"
#include "shortcuts/at_work.h"

namespace quill {
namespace {

constexpr SurfaceId window{SurfaceKind::QuickLaunch, -1};
constexpr int moment = 100; // milliseconds, a tick of TimeUnload

struct QuickLaunch : AtWork {
    QuickLaunch() {
        fake::Connect(Computer, &Main);
        Main.View.Window = {6000, 3000, 12000, 9000};
        SetWorkspaceColors(Main, Rgb(6, 19, 26), Rgb(255, 255, 255));
        ResizeForm(Main);
        Main.View.Visible = true;
        Main.Settings.Animate = false;
        Main.Settings.OnTop = true;
        Computer.Windows.Show(MainWindow, Activate::Yes);
        Main.P.Windows.SetWindowOnTop(MainWindow, true);
    }
    ~QuickLaunch() override { fake::Connect(Computer, nullptr); }

    int InSlot(int digit, const std::string& path) {
        const int index = File(path);
        Main.Link(index).SpeedLaunch = static_cast<std::uint8_t>(digit);
        return index;
    }
    QuickLaunchView& View() { return Main.Links.QuickLaunch; }
    bool Shows() { return View().Loaded && Computer.Windows.IsVisible(QuickLaunchWindow); }
    bool Press(int code, bool ctrl = false, bool alt = false) {
        KeyEvent event;
        event.Code = code;
        event.Ctrl = ctrl;
        event.Alt = alt;
        return QuickLaunch_KeyDown(Main, event);
    }
    MouseEvent On(int row, MouseButton button = MouseButton::None) {
        const Rect place = PlaceOfSpeedLaunchRow(row);
        MouseEvent event;
        event.At = {place.Left + place.Width / 2, place.Top + place.Height / 2};
        event.Screen = {View().Place.Left + event.At.X, View().Place.Top + event.At.Y};
        event.Button = button;
        return event;
    }
    void Click(int row, MouseButton button = MouseButton::Left) {
        MouseMove(Main, window, On(row));
        MouseDown(Main, window, On(row, button));
        MouseUp(Main, window, On(row, button));
    }
    std::size_t Starts() { return Computer.Shell.Launches.size(); }
    std::string LastStarted() { return Starts() == 0 ? "" : Computer.Shell.Launches.back().File; }
    void Tick() { Computer.Clock.Advance(moment); }
    std::string Painted() {
        fake::FakeCanvas canvas;
        PaintSurface(Main, window, canvas);
        EXPECT_EQ(canvas.Clips, 0);
        return canvas.Painted();
    }
};

// ---- what it shows

TEST_F(QuickLaunch, WithAllSlotsEmptyItShowsNineEmptyRows) {
    ShowSpeedLaunch(Main);
    ASSERT_TRUE(Shows());
    int rows = 0;
    Elements(Main, window, [&](const ElementInfo& info) {
        if (info.Id.Kind != ElementKind::lblSpeedLaunch) return true;
        EXPECT_EQ(info.Name, std::to_string(++rows) + " - empty -");
        EXPECT_EQ(info.Action, "") << "there is nothing to start";
        return true;
    });
    EXPECT_EQ(rows, 9);
    EXPECT_EQ(Painted().find("icon"), std::string::npos) << Painted();
}

TEST_F(QuickLaunch, ARowBearsItsNumberItsNameAndItsIcon) {
    InSlot(2, "/usr/bin/editor");
    ShowSpeedLaunch(Main);
    EXPECT_EQ(View().Rows[1].Caption, "editor");
    EXPECT_EQ(View().Rows[0].Caption, "- empty -");
    const std::string painted = Painted();
    EXPECT_NE(painted.find("text \"2\""), std::string::npos) << painted;
    EXPECT_NE(painted.find("text \"editor\""), std::string::npos) << painted;
    EXPECT_NE(painted.find("/usr/bin/editor"), std::string::npos) << "the icon: " << painted;
    int icons = 0;
    for (std::size_t at = 0; (at = painted.find("/usr/bin/", at)) != std::string::npos; ++at) ++icons;
    EXPECT_EQ(icons, 1);
}

TEST_F(QuickLaunch, UntilAnIconIsThereItsSymbolStands) {
    InSlot(2, "/usr/bin/editor");
    ShowSpeedLaunch(Main);
    fake::FakeCanvas canvas;
    canvas.Missing.insert("/usr/bin/editor");
    PaintSurface(Main, window, canvas);
    EXPECT_EQ(canvas.LinesWith("generic-program").size(), 1U) << canvas.Painted();
}

TEST_F(QuickLaunch, OfTwoWithOneDigitTheFirstIsShown) {
    InSlot(1, "/first");
    InSlot(1, "/second");
    ShowSpeedLaunch(Main);
    EXPECT_EQ(View().Rows[0].Caption, "first");
}

TEST_F(QuickLaunch, WhatHasNoCaptionIsShownByItsFile) {
    Main.Link(InSlot(1, "/usr/bin/editor")).FullCaption = "  ";
    ShowSpeedLaunch(Main);
    EXPECT_EQ(View().Rows[0].Caption, "editor");
}

TEST_F(QuickLaunch, AnyCaptionIsOneLineInItsOwnRow) {
    Main.Link(InSlot(1, "/a")).FullCaption = "one\r\ntwo\x1b[31m";
    Main.Link(InSlot(2, "/b")).FullCaption = std::string(4096, 'x');
    Main.Link(InSlot(3, "/c")).FullCaption = "\xE2\x80\xAE"
                                             "right to left";
    ShowSpeedLaunch(Main);
    fake::FakeCanvas canvas;
    PaintSurface(Main, window, canvas);
    EXPECT_EQ(canvas.LinesWith("one  two [31m").size(), 1U) << canvas.Painted();
    for (int row = 0; row < SpeedLaunchSlots; ++row) {
        const Rect name = PlaceOfSpeedLaunchName(row);
        EXPECT_LE(name.Right(), View().Place.Width);
        EXPECT_EQ(canvas
                      .LinesWith("text \"" + std::to_string(row + 1) + "\" " +
                                 fake::Words(PlaceOfSpeedLaunchNumber(row)))
                      .size(),
                  1U)
            << "a number stands where it stands: " << canvas.Painted();
    }
}

TEST_F(QuickLaunch, ItsRowsLieWholeOnItOneBelowTheOther) {
    ShowSpeedLaunch(Main);
    float bottom = 0;
    for (int row = 0; row < SpeedLaunchSlots; ++row) {
        const Rect place = PlaceOfSpeedLaunchRow(row), icon = PlaceOfSpeedLaunchIcon(row);
        EXPECT_GE(place.Top, bottom);
        EXPECT_GE(icon.Top, place.Top);
        EXPECT_LE(icon.Bottom(), place.Bottom());
        EXPECT_FLOAT_EQ(icon.Top - place.Top, place.Bottom() - icon.Bottom());
        bottom = place.Bottom();
    }
    EXPECT_LT(bottom, View().Place.Height);
}

TEST_F(QuickLaunch, ItsTextsCanBeReadInEveryColour) {
    struct Inks : fake::FakeCanvas {
        void Text(const Rect& place, std::string_view text, const TextStyle& style) override {
            const bool onPlate = Plate.Contains(place.Left, place.Top + place.Height / 2);
            const Color ground = onPlate ? PlateFill : Back;
            EXPECT_GE(ContrastRatio(style.Ink, ground), ReadableContrast) << text << " on " << ground;
        }
        void RoundRect(const Rect& place, float, Color fill, Pen pen, float) override {
            if (pen.Width == 0) Plate = place, PlateFill = fill;
        }
        Color Back = 0, PlateFill = 0;
        Rect Plate;
    };
    InSlot(1, "/usr/bin/editor");
    ShowSpeedLaunch(Main);
    for (int back = 0; back < 256; back += 17)
        for (const Color fore : {Rgb(255, 255, 255), Rgb(0, 0, 0), Rgb(back, back, 128)})
            for (int selected = -1; selected < 2; ++selected) {
                SetWorkspaceColors(Main, Rgb(back, 255 - back, back / 2), fore);
                View().Selected = selected;
                Inks canvas;
                canvas.Back = Main.View.BackColor;
                PaintSurface(Main, window, canvas);
            }
}

// ---- where it stands

struct PlaceRow {
    const char* What;
    Rect Workspace;
    bool Out;
    Point Middle; // of the window
};

TEST_F(QuickLaunch, ItOpensOverTheWorkspaceOrInTheMiddleOfTheScreen) {
    for (const PlaceRow& row : {
             PlaceRow{"over the workspace", {6000, 3000, 12000, 9000}, true, {12000, 7500}},
             PlaceRow{"on the screen where it is docked", {-11000, 3000, 12000, 9000}, false, {14400, 7875}},
         }) {
        Main.View.Window = row.Workspace;
        Main.View.Visible = row.Out;
        ShowSpeedLaunch(Main);
        const Rect& place = View().Place;
        EXPECT_NEAR(place.Left + place.Width / 2, row.Middle.X, TwipsPerPixel) << row.What;
        EXPECT_NEAR(place.Top + place.Height / 2, row.Middle.Y, TwipsPerPixel) << row.What;
        EXPECT_EQ(Computer.Windows.Of(QuickLaunchWindow).Place, place) << row.What;
        CloseSpeedLaunch(Main);
    }
}

TEST_F(QuickLaunch, OverAWorkspaceThatReachesOffTheScreenItIsWholeAllTheSame) {
    for (const Point corner : {Point{-2900, -2900}, Point{28000, 15600}}) {
        Main.View.Window = {corner.X, corner.Y, 3000, 3000};
        Main.Dock.Suspended = true;
        ShowSpeedLaunch(Main);
        const Rect area = WorkAreaOf(Main, Main.View.Window);
        EXPECT_GE(View().Place.Left, area.Left);
        EXPECT_GE(View().Place.Top, area.Top);
        EXPECT_LE(View().Place.Right(), area.Right());
        EXPECT_LE(View().Place.Bottom(), area.Bottom());
    }
}

TEST_F(QuickLaunch, ItIsOnTopByTheSettingOfTheWorkspace) {
    for (const bool onTop : {true, false}) {
        Main.Settings.OnTop = onTop;
        ShowSpeedLaunch(Main);
        EXPECT_EQ(Computer.Windows.Of(QuickLaunchWindow).OnTop, onTop);
        EXPECT_EQ(Computer.Windows.Stack.back(), QuickLaunchWindow) << "above all of ours in any case";
        CloseSpeedLaunch(Main);
    }
}

TEST_F(QuickLaunch, ItTakesTheKeyboard) {
    ShowSpeedLaunch(Main);
    EXPECT_TRUE(Computer.Windows.IsForeground(QuickLaunchWindow));
}

TEST_F(QuickLaunch, AskedForTwiceItIsOneWindowThatShowsWhatIsTrueNow) {
    ShowSpeedLaunch(Main);
    Press(KeyDown);
    InSlot(1, "/late");
    ShowSpeedLaunch(Main);
    EXPECT_EQ(View().Rows[0].Caption, "late");
    EXPECT_EQ(View().Selected, -1);
    Press(KeyEscape);
    EXPECT_FALSE(Shows());
}

TEST_F(QuickLaunch, UnderAQuestionItDoesNotOpen) {
    const DialogPause pause(Main);
    ShowSpeedLaunch(Main);
    EXPECT_FALSE(Shows());
}

// ---- the workspace makes room

TEST_F(QuickLaunch, AWorkspaceAtAnEdgeGoesAndTheWindowStaysWithTheKeyboard) {
    Main.View.Window = {0, 3000, 12000, 9000};
    InSlot(1, "/usr/bin/editor");
    ShowSpeedLaunch(Main);
    EXPECT_EQ(Main.Dock.DockPosition, 2);
    EXPECT_FALSE(Main.View.Visible);
    for (int tick = 0; tick < 20; ++tick) Tick();
    EXPECT_TRUE(Shows());
    EXPECT_TRUE(Computer.Windows.IsForeground(QuickLaunchWindow));
    Press('1');
    EXPECT_EQ(LastStarted(), "/usr/bin/editor");
}

TEST_F(QuickLaunch, TheWorkspaceKeepsTheKeyboardUntilTheWindowHasIt) {
    // A window manager that takes its time.
    struct Late : fake::FakeWindows {
        void Show(WindowId id, Activate) override { FakeWindows::Show(id, Activate::No); }
    };
    Late windows;
    windows.Foreground = MainWindow;
    const Platform p = Computer.MakePlatform();
    frmMain Other({p.Files,     p.Places,  p.Clock,   p.Instance, p.Session,   windows,  p.Shell,
                   p.Questions, p.Dialogs, p.Drags,   p.Texts,    p.Catalogue, p.Images, p.Worker,
                   p.Zip,       p.Tray,    p.Hotkeys, p.Counters, p.Clipboard, p.Web});
    Other.IsLoading = false;
    Other.View.Window = {0, 3000, 12000, 9000};
    Other.View.Visible = true;
    Other.Settings.Animate = false;
    ShowSpeedLaunch(Other);
    TimeUnload_Timer(Other);
    EXPECT_EQ(Other.Dock.DockPosition, 0) << "the next keys would go to a stranger";
    EXPECT_TRUE(Other.Links.QuickLaunch.Loaded);
    windows.Foreground = QuickLaunchWindow;
    TimeUnload_Timer(Other);
    EXPECT_EQ(Other.Dock.DockPosition, 2);
    Other.View.Visible = false;
    TimeUnload_Timer(Other);
    EXPECT_TRUE(Other.Links.QuickLaunch.Loaded);
    CloseSpeedLaunch(Other);
}

TEST_F(QuickLaunch, AFloatingWorkspaceLetsWhatStartsInFront) {
    ShowSpeedLaunch(Main);
    EXPECT_FALSE(Computer.Windows.Of(MainWindow).OnTop);
    EXPECT_TRUE(Main.View.Visible);
}

// ---- its keys

TEST_F(QuickLaunch, ADigitStartsItsSlotAndClosesTheWindow) {
    InSlot(1, "/one");
    InSlot(9, "/nine");
    ShowSpeedLaunch(Main);
    EXPECT_TRUE(Press('9'));
    EXPECT_EQ(LastStarted(), "/nine");
    EXPECT_EQ(Starts(), 1U);
    EXPECT_FALSE(Shows());
}

TEST_F(QuickLaunch, TheDigitOfAnEmptySlotOnlyClosesTheWindow) {
    InSlot(1, "/one");
    ShowSpeedLaunch(Main);
    EXPECT_TRUE(Press('2'));
    EXPECT_EQ(Starts(), 0U);
    EXPECT_FALSE(Shows());
}

TEST_F(QuickLaunch, AConfirmShortcutAsksWhenTheWindowIsGone) {
    Main.Link(InSlot(1, "/one")).Confirm = true;
    Person().OnBox = [&](const fake::Box&) { EXPECT_FALSE(Shows()) << "it would lie over the question"; };
    Person().Answer(AnswerYes);
    ShowSpeedLaunch(Main);
    Press('1');
    EXPECT_EQ(Starts(), 1U);
}

TEST_F(QuickLaunch, WithDigitsForTheCalculatorADigitGoesToTheWorkspace) {
    Main.Settings.CalcOrSpeedLaunch = false;
    InSlot(1, "/one");
    ShowSpeedLaunch(Main);
    EXPECT_TRUE(Press('1'));
    EXPECT_FALSE(Shows());
    EXPECT_EQ(Starts(), 0U);
    EXPECT_EQ(Main.Keys.PicJumpToLink.cboSearch.Text, "=1");
    EXPECT_TRUE(Computer.Windows.IsForeground(MainWindow)) << "what is typed next goes there too";
}

TEST_F(QuickLaunch, WithDigitsForTheCalculatorOneWithCtrlStartsItsSlot) {
    Main.Settings.CalcOrSpeedLaunch = false;
    InSlot(1, "/one");
    ShowSpeedLaunch(Main);
    Press('1', true);
    EXPECT_EQ(LastStarted(), "/one");
    EXPECT_FALSE(Shows());
}

TEST_F(QuickLaunch, NothingIsSelectedUntilTheFirstArrow) {
    for (const int code : {KeyDown, KeyUp}) {
        ShowSpeedLaunch(Main);
        EXPECT_EQ(View().Selected, -1);
        EXPECT_EQ(PlaceOfSpeedLaunchMarker(Main), Rect{});
        Press(code);
        EXPECT_EQ(View().Selected, 0) << code;
        EXPECT_FLOAT_EQ(PlaceOfSpeedLaunchMarker(Main).Top, PlaceOfSpeedLaunchIcon(0).Top + 96);
        CloseSpeedLaunch(Main);
    }
}

TEST_F(QuickLaunch, TheArrowsGoThroughAllRowsAndWrapBothWays) {
    ShowSpeedLaunch(Main);
    Press(KeyDown);
    for (int row = 1; row < SpeedLaunchSlots; ++row) {
        Press(KeyDown);
        EXPECT_EQ(View().Selected, row);
        EXPECT_FLOAT_EQ(PlaceOfSpeedLaunchMarker(Main).Top, PlaceOfSpeedLaunchIcon(row).Top + 96);
    }
    Press(KeyDown);
    EXPECT_EQ(View().Selected, 0) << "below the last comes the first";
    Press(KeyUp);
    EXPECT_EQ(View().Selected, 8) << "and the other way round";
    Press(KeyUp);
    EXPECT_EQ(View().Selected, 7);
    EXPECT_TRUE(Shows());
}

TEST_F(QuickLaunch, ThePlateAndTheMarkerAreSeenOnTheSelectedRowAlone) {
    ShowSpeedLaunch(Main);
    EXPECT_EQ(Painted().find("symbol start"), std::string::npos) << Painted();
    Press(KeyDown);
    Press(KeyDown);
    fake::FakeCanvas canvas;
    PaintSurface(Main, window, canvas);
    EXPECT_EQ(canvas.LinesWith("start " + fake::Words(PlaceOfSpeedLaunchMarker(Main))).size(), 1U)
        << canvas.Painted();
    EXPECT_EQ(canvas.LinesWith("round " + fake::Words(Inset(PlaceOfSpeedLaunchRow(1), TwipsPerPixel))).size(),
              1U)
        << canvas.Painted();
}

TEST_F(QuickLaunch, EnterStartsTheSelectedRow) {
    InSlot(1, "/one");
    InSlot(2, "/two");
    ShowSpeedLaunch(Main);
    Press(KeyDown);
    Press(KeyDown);
    Press(KeyReturn);
    EXPECT_EQ(LastStarted(), "/two");
    EXPECT_EQ(Starts(), 1U);
    EXPECT_FALSE(Shows());
}

TEST_F(QuickLaunch, EnterWithNothingSelectedStartsNothing) {
    InSlot(1, "/one");
    ShowSpeedLaunch(Main);
    Press(KeyReturn);
    EXPECT_EQ(Starts(), 0U);
    EXPECT_FALSE(Shows());
}

TEST_F(QuickLaunch, EnterOnAnEmptyRowStartsNothing) {
    InSlot(2, "/two");
    ShowSpeedLaunch(Main);
    Press(KeyDown);
    Press(KeyReturn);
    EXPECT_EQ(Starts(), 0U);
    EXPECT_FALSE(Shows());
}

TEST_F(QuickLaunch, AnyOtherKeyClosesIt) {
    InSlot(1, "/one");
    for (const int code :
         {int(KeyEscape), int(KeySpace), int('A'), int('0'), int(KeyTab), int(KeyLeft), 191, 0}) {
        Computer.Windows.Foreground = MainWindow;
        ShowSpeedLaunch(Main);
        EXPECT_TRUE(Press(code)) << code;
        EXPECT_FALSE(Shows()) << code;
        EXPECT_TRUE(Computer.Windows.IsForeground(MainWindow)) << "the keyboard is back: " << code;
    }
    ShowSpeedLaunch(Main);
    Press('1', false, true);
    EXPECT_FALSE(Shows()) << "a digit with Alt is none";
    EXPECT_EQ(Starts(), 0U);
}

TEST_F(QuickLaunch, AKeyThatIsHeldForAnotherOneIsNoKeyYet) {
    InSlot(1, "/one");
    ShowSpeedLaunch(Main);
    for (const int code : {16, 17, 18, 20, 144}) EXPECT_FALSE(Press(code)) << code;
    EXPECT_TRUE(Shows());
    Press('1');
    EXPECT_EQ(LastStarted(), "/one");
}

TEST_F(QuickLaunch, ClosedByAKeyADockedWorkspaceIsNotCalled) {
    Main.View.Window = {0, 3000, 12000, 9000};
    ShowSpeedLaunch(Main);
    ASSERT_EQ(Main.Dock.DockPosition, 2);
    Press(KeyEscape);
    EXPECT_FALSE(Shows());
    EXPECT_EQ(Main.Dock.DockPosition, 2);
    EXPECT_FALSE(Computer.Windows.IsForeground(MainWindow));
}

TEST_F(QuickLaunch, WhatIsStartedFindsNobodyElseAskingForTheKeyboard) {
    InSlot(1, "/one");
    ShowSpeedLaunch(Main);
    Computer.Windows.Log.clear();
    Press('1');
    for (const auto& line : Computer.Windows.Log)
        EXPECT_EQ(line.find("foreground"), std::string::npos) << line;
    EXPECT_FALSE(Computer.Windows.IsForeground(MainWindow));
}

TEST_F(QuickLaunch, KeysThatComeWhenItIsGoneAreNotItsOwn) {
    InSlot(1, "/one");
    EXPECT_FALSE(Press('1'));
    ShowSpeedLaunch(Main);
    Press(KeyEscape);
    EXPECT_FALSE(Press('1'));
    EXPECT_EQ(Starts(), 0U);
}

TEST_F(QuickLaunch, ASlotThatHasChangedSinceItWasShownStartsNothing) {
    const int shown = InSlot(1, "/shown");
    ShowSpeedLaunch(Main);
    Main.Link(shown).SpeedLaunch = 0;
    InSlot(1, "/other");
    Press('1');
    EXPECT_EQ(Starts(), 0U);
}

TEST_F(QuickLaunch, OneThatIsRemovedMeanwhileIsNeitherPaintedNorStarted) {
    const int gone = InSlot(1, "/usr/bin/gone");
    ShowSpeedLaunch(Main);
    DeleteShortcut(Main, gone);
    EXPECT_EQ(Painted().find("/usr/bin/gone"), std::string::npos);
    Click(0);
    EXPECT_EQ(Starts(), 0U);
}

// ---- the mouse

TEST_F(QuickLaunch, ThePointerSelectsTheRowThatItMovesOver) {
    ShowSpeedLaunch(Main);
    for (const int row : {4, 0, 8}) {
        MouseMove(Main, window, On(row));
        EXPECT_EQ(View().Selected, row);
    }
    MouseEvent rim;
    rim.At = {1, 1};
    MouseMove(Main, window, rim);
    EXPECT_EQ(View().Selected, 8) << "between the rows it stays where it was";
    Press(KeyDown);
    EXPECT_EQ(View().Selected, 0) << "and the keys go on from there";
}

TEST_F(QuickLaunch, OnlyANewSelectionIsPaintedAnew) {
    ShowSpeedLaunch(Main);
    MouseMove(Main, window, On(4));
    MarkTurn(Main.Marks);
    MouseMove(Main, window, On(4));
    EXPECT_FALSE(MarkTurn(Main.Marks).Set.QuickLaunch);
    MouseMove(Main, window, On(5));
    EXPECT_TRUE(MarkTurn(Main.Marks).Set.QuickLaunch);
}

TEST_F(QuickLaunch, AClickStartsItsRowAndClosesTheWindow) {
    InSlot(4, "/four");
    ShowSpeedLaunch(Main);
    Click(3);
    EXPECT_EQ(LastStarted(), "/four");
    EXPECT_FALSE(Shows());
}

TEST_F(QuickLaunch, AClickOnTheIconIsOneOnItsRow) {
    InSlot(4, "/four");
    ShowSpeedLaunch(Main);
    const Rect icon = PlaceOfSpeedLaunchIcon(3);
    MouseEvent event;
    event.At = {icon.Left + 30, icon.Top + 30};
    event.Button = MouseButton::Left;
    MouseDown(Main, window, event);
    MouseUp(Main, window, event);
    EXPECT_EQ(LastStarted(), "/four");
}

TEST_F(QuickLaunch, OtherButtonsStartNothing) {
    InSlot(4, "/four");
    ShowSpeedLaunch(Main);
    Click(3, MouseButton::Right);
    Click(3, MouseButton::Middle);
    EXPECT_EQ(Starts(), 0U);
    EXPECT_TRUE(Shows());
}

TEST_F(QuickLaunch, APressThatIsLetGoElsewhereStartsNothing) {
    InSlot(4, "/four");
    InSlot(5, "/five");
    ShowSpeedLaunch(Main);
    MouseDown(Main, window, On(3, MouseButton::Left));
    MouseUp(Main, window, On(4, MouseButton::Left));
    EXPECT_EQ(Starts(), 0U);
}

TEST_F(QuickLaunch, WhoDoesNotSeeItStartsARowByName) {
    InSlot(4, "/four");
    ShowSpeedLaunch(Main);
    EXPECT_EQ(NameOf(ElementKind::lblSpeedLaunch), "lblSpeedLaunch");
    EXPECT_TRUE(ActivateElement(Main, window, {ElementKind::lblSpeedLaunch, 3}));
    EXPECT_EQ(LastStarted(), "/four");
}

// ---- when it goes

TEST_F(QuickLaunch, AClickOutsideClosesItWithinATick) {
    ShowSpeedLaunch(Main);
    Tick();
    ASSERT_TRUE(Shows());
    Computer.Windows.Foreground = std::nullopt; // another program has it
    Tick();
    EXPECT_FALSE(Shows());
    EXPECT_FALSE(Computer.Clock.IsRunning({TimerName::TimeUnload}));
}

TEST_F(QuickLaunch, AClickOnTheWorkspaceClosesItToo) {
    ShowSpeedLaunch(Main);
    Computer.Windows.Foreground = MainWindow;
    Tick();
    EXPECT_FALSE(Shows());
}

TEST_F(QuickLaunch, WhileTheKeyboardIsOnItsWayItStays) {
    ShowSpeedLaunch(Main);
    View().HadKeyboard = false;
    Computer.Windows.Foreground = MainWindow;
    for (int tick = 0; tick < 10; ++tick) Tick();
    EXPECT_TRUE(Shows());
    Computer.Windows.Foreground = QuickLaunchWindow;
    Tick();
    Computer.Windows.Foreground = MainWindow;
    Tick();
    EXPECT_FALSE(Shows());
}

TEST_F(QuickLaunch, OneThatNeverGetsTheKeyboardGoesInTheEndUnlessSomebodyPointsAtIt) {
    for (const bool pointed : {true, false}) {
        ShowSpeedLaunch(Main);
        View().HadKeyboard = false;
        Computer.Windows.Foreground = std::nullopt;
        Computer.Windows.Cursor =
            pointed ? Point{View().Place.Left + 300, View().Place.Top + 300} : Point{30, 30};
        for (int tick = 0; tick < 60; ++tick) Tick();
        EXPECT_EQ(Shows(), pointed);
        CloseSpeedLaunch(Main);
    }
}

TEST_F(QuickLaunch, ClosedItLeavesNothingBehind) {
    InSlot(1, "/one");
    ShowSpeedLaunch(Main);
    Press(KeyDown);
    CloseSpeedLaunch(Main);
    EXPECT_FALSE(SurfaceVisible(Main, window));
    EXPECT_FALSE(Computer.Clock.IsRunning({TimerName::TimeUnload}));
    EXPECT_EQ(View().Selected, -1);
    CloseSpeedLaunch(Main);
    lblSpeedLaunch_Click(Main, 0);
    EXPECT_EQ(Starts(), 0U);
}

} // namespace
} // namespace quill
