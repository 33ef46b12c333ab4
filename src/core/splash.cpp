#include "core/splash.h"

#include "dock/docking.h"
#include "platform/clock.h"
#include "platform/session.h"
#include "platform/windows.h"

namespace quill {
namespace {

constexpr Size splashSize{5400, 2700}; // twips
constexpr int splashAlpha = 200;

void Appear(frmMain& Main) {
    const auto area = WorkAreaOf(Main, Main.P.Windows.Monitors().front().Place);
    Main.P.Windows.Place(SplashWindow, {area.Left + (area.Width - splashSize.Width) / 2,
                                        area.Top + (area.Height - splashSize.Height) / 2, splashSize.Width,
                                        splashSize.Height});
    Main.P.Windows.SetOpacity(SplashWindow, splashAlpha);
    Main.P.Windows.Show(SplashWindow, Activate::No);
    Main.P.Windows.SetWindowOnTop(SplashWindow, true);
    Main.View.SplashVisible = true;
}

} // namespace

void BeginSplash(frmMain& Main) {
    Main.View.SplashSince = Main.P.Clock.GetTickCount();
}

void ShowSplashText(frmMain& Main, const std::string& text) {
    if (Main.Start.NoSplash || !Main.IsLoading) return;
    Main.View.SplashText = text;
    if (Main.P.Clock.GetTickCount() - Main.View.SplashSince < SplashDelay) return;
    if (!Main.View.SplashVisible) Appear(Main);
    Main.Marks.Splash();
    Main.P.Session.ShowSplashNow();
}

void EndSplash(frmMain& Main) {
    if (!Main.View.SplashVisible) return;
    Main.View.SplashVisible = false;
    Main.P.Windows.Hide(SplashWindow);
}

} // namespace quill
