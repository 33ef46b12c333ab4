// The load, in its order: each step is a name.
#include "core/start.h"

#include "appearance/wallpaper.h"
#include "containers/layout.h"
#include "core/caption.h"
#include "core/frmMain.h"
#include "core/splash.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "persistence/load.h"
#include "persistence/save.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/places.h"
#include "platform/windows.h"
#include "shortcuts/launch.h"

#include <charconv>

namespace quill {
namespace {

constexpr int heartbeat = 1000, afterFirstPicture = 50; // milliseconds

bool IsTrue(const std::optional<std::string>& text) {
    return text && (*text == "1" || *text == "-1" || *text == "True");
}

float NumberOr(const std::optional<std::string>& text, float otherwise) {
    if (!text) return otherwise;
    float value = otherwise;
    std::from_chars(text->data(), text->data() + text->size(), value);
    return value;
}

// Without [X] the file tells no place.
void RestorePlace(frmMain& Main, const DeferredSettings& stored) {
    if (!stored.X) return;
    const auto now = Main.View.Window;
    PlaceMain(Main, {NumberOr(stored.X, now.Left), NumberOr(stored.Y, now.Top), NumberOr(stored.W, now.Width),
                     NumberOr(stored.H, now.Height)});
    BringIntoView(Main);
}

void RestoreWindow(frmMain& Main, const DeferredSettings& stored) {
    PlaceMain(Main, FirstPlace(Main)); // what a file does not tell
    RestorePlace(Main, stored);
    if (IsTrue(stored.Maximized)) mnuMaximize_Click(Main);
}

// A maximised state of the window manager's is not restored; the workspace has its own.
void RestoreWindowState(frmMain& Main, const DeferredSettings& stored) {
    if (!stored.WindowState || *stored.WindowState == "2") return;
    if (NumberOr(stored.WindowState, 0) == 1) Main.View.State = WindowState::Minimized;
}

void StartStartupContainers(frmMain& Main, const std::vector<int>& containers) {
    for (const int container : containers) {
        for (std::size_t index = 0; index < Main.Shortcuts.size(); ++index) {
            const int shortcut = static_cast<int>(index);
            const bool inside =
                IsLive(Main.Shortcuts, shortcut) && Main.ShortcutViews[index].In == InContainer(container);
            if (inside) StartShortcut(Main, shortcut, false, "", false, true);
        }
    }
}

void ShowWorkspace(frmMain& Main, const DeferredSettings& stored) {
    Main.P.Windows.SetTaskbarEntry(MainWindow, Main.Settings.ShowInTaskbar);
    Main.Dock.Suspended = IsTrue(stored.SuspendAutoCollapse);
    Main.Dock.Hidden = IsTrue(stored.Hidden);
    Main.Dock.Locked = IsTrue(stored.Locked);
    Main.View.PicLockToolbar.Visible = Main.Dock.Locked;
    Main.View.PicUnLockToolbar.Visible = !Main.Dock.Locked;
    Main.Marks.Everything();
    if (!Main.Dock.Hidden) {
        Main.View.Visible = true;
        Main.P.Windows.Show(MainWindow, Activate::Yes);
        if (Main.View.State == WindowState::Minimized)
            Main.P.Windows.SetState(MainWindow, WindowState::Minimized);
    }
    Main.Settings.Effect = Main.Store.StoredEffect == "1" || Main.Store.StoredEffect == "-1" ||
                           Main.Store.StoredEffect == "True";
}

void LoadDefaults(frmMain& Main) {
    InitDefaultSettings(Main.Settings);
    Main.Settings.Effect = false; // nothing animates during the load
}

bool ReadWorkspace(frmMain& Main, const GenerationFiles& files, DeferredSettings& stored,
                   std::vector<int>& startup) {
    ShowSplashText(Main, Tr(Main, "Loading Workspace..."));
    if (files.Settings.empty())
        FirstRun(Main);
    else if (!ReadSettingsFile(Main, files, stored))
        return false;
    Main.Settings.LineSpacing = static_cast<std::int16_t>(GetProperSpacing(Main.Settings.LineSpacing));
    if (!ReadContainerFiles(Main, files, startup)) return false;
    LoadWallpaper(Main);
    return true;
}

} // namespace

void SettleSettingsFolder(frmMain& Main) {
    const auto folder = Main.P.Places.ProgramFolder();
    Main.PortableMode = Main.P.Files.Exists((folder == "/" ? "" : folder) + "/LOCATIONROOT");
    const auto configuration = Main.P.Places.Folder(SpecialFolder::Configuration);
    if (Main.PortableMode)
        Main.SettingsFolder = folder;
    else
        Main.SettingsFolder = configuration.empty() ? ProgramName : configuration + "/" + ProgramName;
}

void LoadSettings(frmMain& Main) {
    BeginSplash(Main);
    LoadDefaults(Main);
    FinishInterruptedSave(Main);
    auto files = ChooseGeneration(Main);
    DeferredSettings stored;
    std::vector<int> startup;
    if (!SettleGeneration(Main, files) || !ReadWorkspace(Main, files, stored, startup)) {
        Main.Store.Quit = true;
        return;
    }
    TakeOverRecovery(Main, files);
    RestoreWindow(Main, stored);
    RestoreWindowState(Main, stored);
    InitButtons(Main, Main.Settings.Buttons);
    ResizeForm(Main);
    ApplyOpacity(Main);
    StartStartupContainers(Main, startup);
    ShowWorkspace(Main, stored);
    ResolveRecentRows(Main);
}

void PostLoad(frmMain& Main) {
    SetWindowOnTop(Main);
    Main.IsLoading = false;
    Main.P.Clock.Start({TimerName::TimerHide}, heartbeat);
    Main.P.Clock.Start({TimerName::TimerServices}, afterFirstPicture);
    if (Main.Dock.Suspended) RestoreCaption(Main);
    if (Main.Store.SaveAfterLoad) SaveWorkspace(Main, true, false);
}

} // namespace quill
