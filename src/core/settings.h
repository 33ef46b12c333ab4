// Settings: every option of the workspace, in one plain record. Fields are named after the keys of the
// settings file without brackets and blanks; the table that ties a key to a field, a type, a default and
// bounds stands in persistence/settings_table.h. Values are the table's defaults only after
// InitDefaultSettings.
#pragma once

#include "platform/geometry.h"

#include <cstdint>
#include <optional>
#include <string>

namespace quill {

struct SettingsRecord {
    bool ShowTrayIcon = true, CheckForUpdatesOnStartup = true, CheckForBetaVersions = false,
         ShowInTaskbar = false;
    std::int16_t MaxContainers = 50;
    bool ApplyStyle = true;
    std::string Wallpaper; // as the file has it, "@" kept; empty = none
    bool Stretch = false, Gradient = true, GradientDark = false, GradientContainers = true;
    bool ShowTime = false, SystemInfo = false, ConfirmDelete = true;
    bool GlobalHotkey = true;
    std::string GlobalHotkeyChar = "S";
    std::int32_t GlobalHotkeyMod = 9; // 1 Alt, 2 Ctrl, 4 Shift, 8 Win
    bool GlobalHotkeyDetached = false, ShowKBLauncher = false;
    std::string WebSearch; // "%s" is the query
    bool SearchOnSpace = false, KBLauncherTips = true, PreventWindowMovement = false, RepeatReminder = false;
    bool BackupOnSave = false, BackupDateStamp = false, ExtractURLs = true, PreviewPictures = true;
    bool CommandOverlay = true, Translucent = false;
    std::int16_t Opacity = 235; // clamped to 10 .. 250 where it is used
    bool Animate = true, VisibleBorderCollapsed = true, KeyboardHistory = true;
    float KeyboardHistoryCount = 20; // 5 to 50
    bool UndockImmediately = false;
    float MiniDockSize = 2500; // twips, 0 = the whole side
    float MiniDockSide = 2;    // 2 centre, 1 right or top, 0 left or bottom
    bool MiniDockFlash = true, AccentColor = false;
    std::uint8_t QuicklyUnlock = 0; // seconds, 0 = off
    bool CenterMouse = false, UndockOnClick = false, AutoSlideShow = true, ReEncryptNotes = false;
    bool GrabFocus = false, OnTop = true, ConfirmOpenWith = true, AutoExpand = true;
    std::int16_t AutoExpandDelay = 1; // 0 at once, 1 = 250 ms, 2 = 500 ms
    bool Effect = true;
    std::uint8_t EffectMode = 0; // 0 both, 1 explode, 2 implode
    bool FoldUnfoldEffect = true, FoldOnClick = true;
    std::string Buttons = "Modern Dark"; // one path element
    std::int32_t FontSize = 10;          // points
    std::string FontName = "Tahoma";
    std::int32_t LargeIconSize = 32; // pixels
    Color ContainerFor = 0x290700, ContainerLabel = 0xFFFFFF, DockingColor = 0x38290E;
    Color ContainerTextBack = 0xE1FDFF, ContainerTextFor = 0;
    bool DragToDetach = true, DetachNotes = false, DblClick = true, LockOnlyShortcuts = false;
    std::int16_t LineSpacing = 155; // twips
    bool DeleteDesktopShortcuts = true, RememberParams = true, ContainerFromFolder = true,
         ShortcutTooltips = true;
    bool FolderConnector = false, CalcOrSpeedLaunch = true, ConfirmStartAllShortcuts = true,
         DblClickToStartAll = false;
    bool ShowTips = true;
    std::uint8_t WhichTips = 0;                      // 0 full, 1 info
    std::int16_t SpacebarFlip = 1;                   // 0 all, 1 feeds, 2 notes and reminders, 3 selected
    std::int32_t ConShrinkW = 700, ConShrinkH = 950; // twips
    // Dialog places; empty until a dialog was first moved. Written back only when they stand.
    std::optional<bool> RSSViewerOnTop;
    std::optional<std::int32_t> RSSViewerX, RSSViewerY, RSSViewerW, RSSViewerH, RSSSearchX, RSSSearchY;
    std::optional<float> ReminderDialogX, ReminderDialogY, ReminderDialogW, ReminderDialogH;
    std::string LibraryServer, UpdateServer; // empty: none set
};

} // namespace quill
