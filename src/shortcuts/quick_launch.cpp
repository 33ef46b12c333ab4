// frmQuickLaunch: the nine slots as a window of its own. It takes the keyboard, and goes as soon as another
// window has it.
#include "shortcuts/speed_launch.h"

#include "core/tr.h"
#include "dock/docking.h"
#include "dock/edges.h"
#include "dock/foreground.h"
#include "platform/clock.h"
#include "platform/windows.h"
#include "shortcuts/launch.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace quill {
namespace {

constexpr TimerId unloadTimer{TimerName::TimeUnload};
constexpr int unloadTime = 100; // milliseconds
constexpr int patience = 50;    // ticks in which the keyboard may come

constexpr float rim = 6 * TwipsPerPixel;
constexpr float rowWidth = 320 * TwipsPerPixel, rowHeight = 34 * TwipsPerPixel;
constexpr float iconLeft = 24 * TwipsPerPixel, iconEdge = 24 * TwipsPerPixel;
constexpr float gap = 10 * TwipsPerPixel;
constexpr float numberWidth = 16 * TwipsPerPixel;
constexpr float markerLeft = 6 * TwipsPerPixel;
constexpr float markerInset = 96; // of the marker below the top of the icon, and above its foot
constexpr Size windowSize{rowWidth + 2 * rim, rowHeight* SpeedLaunchSlots + 2 * rim};

// ---- what it shows

SpeedLaunchRow RowOf(const frmMain& Main, int row) {
    const int shortcut = ShortcutInSlot(Main, row + 1);
    if (shortcut == -1) return {-1, Tr(Main, "- empty -")};
    const auto& link = Main.Link(shortcut);
    if (link.FullCaption.find_first_not_of(' ') != std::string::npos) return {shortcut, link.FullCaption};
    const std::string file = link.Path.substr(link.Path.find_last_of("/\\") + 1);
    return {shortcut, file.empty() ? Tr(Main, "Shortcut") : file};
}

void CollectRows(frmMain& Main) {
    int row = 0;
    for (auto& shown : Main.Links.QuickLaunch.Rows) shown = RowOf(Main, row++);
}

float WholePixels(float twips) {
    return std::round(twips / TwipsPerPixel) * TwipsPerPixel;
}

// Over the workspace while that is out, or else in the middle of the screen where it was; whole in either
// case.
Rect PlaceOnScreen(const frmMain& Main) {
    const Rect area = WorkAreaOf(Main, Main.View.Window);
    const bool out = Main.View.Visible && Main.Dock.DockPosition == 0;
    const Rect middle =
        CenteredOn(out ? Main.View.Window : area, {0, 0, windowSize.Width, windowSize.Height});
    const auto within = [](float begin, float length, float from, float to) {
        return WholePixels(std::max(from, std::min(begin, to - length)));
    };
    return {within(middle.Left, middle.Width, area.Left, area.Right()),
            within(middle.Top, middle.Height, area.Top, area.Bottom()), middle.Width, middle.Height};
}

void Select(frmMain& Main, int row) {
    auto& window = Main.Links.QuickLaunch;
    if (window.Selected == row) return;
    window.Selected = row;
    Main.Marks.QuickLaunch();
}

// The first arrow shows the marker at the first row, whichever way it points.
void Step(frmMain& Main, int by) {
    const int now = Main.Links.QuickLaunch.Selected;
    Select(Main, now == -1 ? 0 : (now + by + SpeedLaunchSlots) % SpeedLaunchSlots);
}

// ---- the keyboard

// The workspace makes room only now: it had the keyboard, and the next keys would go to a stranger.
void NoticeKeyboard(frmMain& Main) {
    if (!std::exchange(Main.Links.QuickLaunch.HadKeyboard, true)) PreLaunch(Main);
}

bool IsPointedAt(const frmMain& Main) {
    const auto at = Main.P.Windows.GetCursorPos();
    return Main.Links.QuickLaunch.Place.Contains(at.X, at.Y);
}

// Closed by a person who starts nothing: the keyboard goes back to where they were. What is started takes it
// itself, and must not find the workspace asking for it too.
void Leave(frmMain& Main) {
    CloseSpeedLaunch(Main);
    if (Main.View.Visible && Main.Dock.DockPosition == 0) ForceForeground(Main);
}

// Only what the row shows, whatever has happened to the slot meanwhile.
void StartRow(frmMain& Main, int row) {
    const auto& rows = Main.Links.QuickLaunch.Rows;
    const int shown = row < 0 ? -1 : rows[static_cast<std::size_t>(row)].Shortcut;
    if (shown == -1 || ShortcutInSlot(Main, row + 1) != shown) return Leave(Main);
    CloseSpeedLaunch(Main);
    RunSpeedLaunchSlot(Main, row + 1);
}

// Where digits are for the calculator, one with Ctrl is for Speed Launch, as on the workspace.
void PressDigit(frmMain& Main, const KeyEvent& event) {
    if (Main.Settings.CalcOrSpeedLaunch || event.Ctrl) return StartRow(Main, event.Code - '1');
    Leave(Main);
    Form_KeyDown(Main, event);
}

// A key that is only held for another one: on some keyboards digits are typed with Shift.
bool IsHeldKey(int code) {
    constexpr int held[] = {16, 17, 18, 20, 91, 144, 145}; // Shift, Ctrl, Alt, the locks
    return std::ranges::find(held, code) != std::end(held);
}

} // namespace

void ShowSpeedLaunch(frmMain& Main) {
    if (Main.IsLoading || Main.IsExiting || Main.Dock.DialogPauses > 0) return;
    auto& window = Main.Links.QuickLaunch;
    window = {};
    window.Loaded = true;
    CollectRows(Main);
    window.Place = PlaceOnScreen(Main);
    Main.Marks.QuickLaunch();
    Main.P.Windows.Place(QuickLaunchWindow, window.Place);
    Main.P.Windows.SetWindowOnTop(QuickLaunchWindow, Main.Settings.OnTop);
    Main.P.Windows.Show(QuickLaunchWindow, Activate::Yes);
    Main.P.Clock.Start(unloadTimer, unloadTime);
    if (Main.P.Windows.IsForeground(QuickLaunchWindow)) NoticeKeyboard(Main);
}

void CloseSpeedLaunch(frmMain& Main) {
    Main.P.Clock.Stop(unloadTimer);
    if (!Main.Links.QuickLaunch.Loaded) return;
    Main.Links.QuickLaunch = {};
    Main.P.Windows.Hide(QuickLaunchWindow);
}

bool QuickLaunch_KeyDown(frmMain& Main, const KeyEvent& event) {
    const auto& window = Main.Links.QuickLaunch;
    if (!window.Loaded || Main.IsExiting || IsHeldKey(event.Code)) return false;
    if (event.Code == KeyUp)
        Step(Main, -1);
    else if (event.Code == KeyDown)
        Step(Main, 1);
    else if (event.Code == KeyReturn)
        StartRow(Main, window.Selected);
    else if (IsSpeedLaunchKey(event.Code) && !event.Alt)
        PressDigit(Main, event);
    else
        Leave(Main);
    return true;
}

void QuickLaunch_MouseMove(frmMain& Main, const MouseEvent& event) {
    if (!Main.Links.QuickLaunch.Loaded) return;
    for (int row = 0; row < SpeedLaunchSlots; ++row)
        if (PlaceOfSpeedLaunchRow(row).Contains(event.At.X, event.At.Y)) Select(Main, row);
}

void lblSpeedLaunch_Click(frmMain& Main, int row) {
    if (Main.Links.QuickLaunch.Loaded) StartRow(Main, row);
}

// One that never gets the keyboard could not be closed by a click elsewhere; it goes by itself, unless
// somebody points at it.
void TimeUnload_Timer(frmMain& Main) {
    auto& window = Main.Links.QuickLaunch;
    if (!window.Loaded) return CloseSpeedLaunch(Main);
    if (Main.P.Windows.IsForeground(QuickLaunchWindow)) return NoticeKeyboard(Main);
    if (window.HadKeyboard) return CloseSpeedLaunch(Main);
    if (++window.TicksWithout >= patience && !IsPointedAt(Main)) CloseSpeedLaunch(Main);
}

// ---- places

Rect PlaceOfSpeedLaunchRow(int row) {
    return {rim, rim + static_cast<float>(row) * rowHeight, rowWidth, rowHeight};
}
Rect PlaceOfSpeedLaunchIcon(int row) {
    const Rect place = PlaceOfSpeedLaunchRow(row);
    return {place.Left + iconLeft, place.Top + (rowHeight - iconEdge) / 2, iconEdge, iconEdge};
}
Rect PlaceOfSpeedLaunchNumber(int row) {
    const Rect place = PlaceOfSpeedLaunchRow(row);
    return {PlaceOfSpeedLaunchIcon(row).Right() + gap, place.Top, numberWidth, rowHeight};
}
Rect PlaceOfSpeedLaunchName(int row) {
    const Rect number = PlaceOfSpeedLaunchNumber(row);
    return {number.Right(), number.Top, PlaceOfSpeedLaunchRow(row).Right() - gap - number.Right(), rowHeight};
}
Rect PlaceOfSpeedLaunchMarker(const frmMain& Main) {
    const int row = Main.Links.QuickLaunch.Selected;
    if (row == -1) return {};
    const float edge = iconEdge - 2 * markerInset;
    return {PlaceOfSpeedLaunchRow(row).Left + markerLeft, PlaceOfSpeedLaunchIcon(row).Top + markerInset, edge,
            edge};
}

} // namespace quill
