#include "appearance/tips.h"

#include "appearance/paint_tip.h"
#include "core/handlers.h"
#include "core/objects.h"
#include "dock/docking.h"
#include "platform/session.h"

#include <algorithm>
#include <initializer_list>

namespace quill {
namespace {

constexpr int restTime = 500, fadeInTime = 10, fadeOutTime = 5, watchTime = 100; // milliseconds
constexpr int fadeStep = 25;                                                     // of 255
constexpr float besideCursor = 12 * TwipsPerPixel;
constexpr float belowCursor = 20 * TwipsPerPixel; // clear of the arrow
constexpr float aboveCursor = 6 * TwipsPerPixel;

void StopTipTimers(frmMain& Main) {
    for (const auto name :
         {TimerName::TimerTip, TimerName::TimerFadeIn, TimerName::TimerFadeOut, TimerName::TimerMouseMove})
        Main.P.Clock.Stop({name});
}

// What lies at a place of picBack; pictures in containers lie on their container.
SurfaceId SurfaceAt(const frmMain& Main, Point at) {
    SurfaceId found;
    for (const auto surface : Surfaces(Main)) {
        const bool picture = surface.Kind == SurfaceKind::Picture;
        if (surface.Kind != SurfaceKind::Container && !picture) continue;
        if (picture && Main.PicView(surface.Index).In != OnWorkspace()) continue;
        if (SurfaceVisible(Main, surface) && PlaceOfSurface(Main, surface).Contains(at.X, at.Y))
            found = surface;
    }
    return found;
}

// The buttons in the row have words of their own.
bool IsTitleAt(const frmMain& Main, Point at) {
    if (!Main.View.picMoveMe.Place.Contains(at.X, at.Y)) return false;
    const auto hit = ElementAt(Main, {}, at).Kind;
    return hit == ElementKind::lblCaption || hit == ElementKind::picMoveMe;
}

// Whether the cursor is over the title or tile of this container, or over the workspace's own title, and
// nothing covers that. What the session has told as left counts as left.
bool IsPointedAt(const frmMain& Main, int container) {
    const bool title = container == TitleTip;
    if (Main.Dock.PointerAway || !(title ? Main.View.Visible : IsLive(Main.Containers, container)))
        return false;
    const auto cursor = Main.P.Windows.GetCursorPos();
    const auto& back = Main.View.picBack.Place;
    const Point at{cursor.X - Main.View.Window.Left - back.Left, cursor.Y - Main.View.Window.Top - back.Top};
    const SurfaceId surface = title ? SurfaceId{} : SurfaceId{SurfaceKind::Container, container};
    if (SurfaceAt(Main, at) != surface) return false;
    if (title) return IsTitleAt(Main, at);
    const auto place = PlaceOfSurface(Main, surface);
    const auto hit = ElementAt(Main, surface, {at.X - place.Left, at.Y - place.Top});
    return hit.Kind == ElementKind::ContainerLabel || hit.Kind == ElementKind::ContainerIcon;
}

// Below the cursor and to its right; where there is no room, above it and further left. It never lies under
// the cursor unless it is higher than both halves of the monitor.
Rect PlaceBeside(const frmMain& Main, Size size) {
    const auto cursor = Main.P.Windows.GetCursorPos();
    const auto area = WorkAreaOf(Main, {cursor.X, cursor.Y, 1, 1});
    Rect place{cursor.X + besideCursor, cursor.Y + belowCursor, size.Width, size.Height};
    if (place.Bottom() > area.Bottom()) place.Top = cursor.Y - aboveCursor - size.Height;
    place.Left = std::max(area.Left, std::min(place.Left, area.Right() - size.Width));
    place.Top = std::max(area.Top, std::min(place.Top, area.Bottom() - size.Height));
    return place;
}

void SetTipAlpha(frmMain& Main, int alpha) {
    Main.Looks.frmTip.Alpha = std::clamp(alpha, 0, 255);
    Main.P.Windows.SetOpacity(TipWindow, Main.Looks.frmTip.Alpha);
}

void FadeTipIn(frmMain& Main) {
    if (Main.P.Session.ReducedMotion()) return SetTipAlpha(Main, 255);
    SetTipAlpha(Main, fadeStep);
    Main.P.Clock.Start({TimerName::TimerFadeIn}, fadeInTime);
}

void FadeTipOut(frmMain& Main) {
    if (Main.P.Session.ReducedMotion()) return HideTip(Main);
    StopTipTimers(Main);
    Main.Looks.frmTip.Leaving = true;
    Main.P.Clock.Start({TimerName::TimerFadeOut}, fadeOutTime);
}

} // namespace

// Every move begins the rest anew; a tip that shows stays while the mouse is over its object.
void ContainerLabel_MouseMove(frmMain& Main, int Index, const MouseEvent&) {
    auto& tip = Main.Looks.frmTip;
    if (!Main.Settings.ShowTips) return;
    if (tip.Visible && tip.Container == Index && !tip.Leaving) return;
    HideTip(Main);
    tip.Waiting = true;
    tip.Container = Index;
    Main.P.Clock.Start({TimerName::TimerTip}, restTime);
}

void Title_MouseMove(frmMain& Main, const MouseEvent& event) {
    if (IsTitleAt(Main, event.At)) ContainerLabel_MouseMove(Main, TitleTip, event);
}

void Tip_MouseLeave(frmMain& Main, int Index) {
    auto& tip = Main.Looks.frmTip;
    if (tip.Container != Index) return;
    if (tip.Waiting) return HideTip(Main);
    if (tip.Visible && !tip.Leaving) FadeTipOut(Main);
}

void HideTip(frmMain& Main) {
    auto& tip = Main.Looks.frmTip;
    if (!tip.Visible && !tip.Waiting) return;
    StopTipTimers(Main);
    if (tip.Visible) Main.P.Windows.Hide(TipWindow);
    tip = {};
}

void SetTip(frmMain& Main, const std::string& text) {
    auto& tip = Main.Looks.frmTip;
    const auto cursor = Main.P.Windows.GetCursorPos();
    const auto area = WorkAreaOf(Main, {cursor.X, cursor.Y, 1, 1});
    tip.Text = text;
    tip.Place = PlaceBeside(Main, LayTip(Main, text, area.Height).Whole);
    tip.Waiting = tip.Leaving = false;
    tip.Visible = true;
    Main.Marks.Tip();
    Main.P.Windows.Place(TipWindow, tip.Place);
    FadeTipIn(Main);
    Main.P.Windows.Show(TipWindow, Activate::No);
    Main.P.Clock.Start({TimerName::TimerMouseMove}, watchTime);
}

// What the tip says is put together now and not when the mouse came: meanwhile the object may have changed.
void TimerTip_Timer(frmMain& Main) {
    auto& tip = Main.Looks.frmTip;
    Main.P.Clock.Stop({TimerName::TimerTip});
    if (!tip.Waiting) return;
    const bool wanted = Main.Dock.DialogPauses == 0 && IsPointedAt(Main, tip.Container);
    const auto text = !wanted                     ? std::string()
                      : tip.Container == TitleTip ? TipOfTitle(Main)
                                                  : TipOfContainer(Main, tip.Container);
    if (text.empty()) return HideTip(Main);
    SetTip(Main, text);
}

void TipTimerFadeIn_Timer(frmMain& Main) {
    SetTipAlpha(Main, Main.Looks.frmTip.Alpha + fadeStep);
    if (Main.Looks.frmTip.Alpha == 255) Main.P.Clock.Stop({TimerName::TimerFadeIn});
}

void TipTimerFadeOut_Timer(frmMain& Main) {
    if (Main.Looks.frmTip.Alpha <= fadeStep) return HideTip(Main);
    SetTipAlpha(Main, Main.Looks.frmTip.Alpha - fadeStep);
}

void TipTimerMouseMove_Timer(frmMain& Main) {
    if (!IsPointedAt(Main, Main.Looks.frmTip.Container)) FadeTipOut(Main);
}

} // namespace quill
