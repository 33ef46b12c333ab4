#include "persistence/settings_table.h"

#include "appearance/colors.h"
#include "containers/layout.h"
#include "core/frmMain.h"
#include "dock/docking.h"
#include "dock/sliding.h"
#include "persistence/text_values.h"
#include "platform/clock.h"
#include "platform/texts.h"

#include <charconv>
#include <type_traits>

namespace quill {

namespace {

using Row = SettingsRow;

template <auto Member> using FieldOf = std::remove_cvref_t<decltype(std::declval<SettingsRecord&>().*Member)>;

template <class Value> struct BareType { using Type = Value; };
template <class Value> struct BareType<std::optional<Value>> { using Type = Value; };

template <class Value> constexpr std::string_view TypeName() {
    using Bare = typename BareType<Value>::Type;
    if constexpr (std::is_same_v<Bare, bool>) return "Boolean";
    if constexpr (std::is_same_v<Bare, std::uint8_t>) return "8-bit";
    if constexpr (std::is_same_v<Bare, std::int16_t>) return "16-bit";
    if constexpr (std::is_same_v<Bare, std::int32_t>) return "32-bit";
    if constexpr (std::is_same_v<Bare, float>) return "number";
    return "text";
}

template <class Value> bool ReadableAs(std::string_view text) {
    Value value{};
    return ReadValue(text, value);
}

template <auto Member> bool SetField(SettingsRecord& settings, std::string_view text) {
    return ReadValue(text, settings.*Member);
}
template <auto Member> void ApplyField(frmMain& Main, DeferredSettings&, std::string_view text) {
    (void)ReadValue(text, Main.Settings.*Member);
}
template <auto Member> void WriteSetting(std::string& out, const frmMain& Main) {
    const auto& field = Main.Settings.*Member;
    if constexpr (requires { field.has_value(); })
        AppendValue(out, *field);
    else if constexpr (std::is_same_v<FieldOf<Member>, std::string>)
        AppendTrimmed(out, field);
    else
        AppendValue(out, field);
}
template <auto Member> bool IsSet(const frmMain& Main) {
    return Main.Settings.*Member != FieldOf<Member>{};
}

template <auto Member>
constexpr Row Option(std::string_view key, std::string_view standard, float low = 0, float high = 0) {
    return {key,
            SettingKind::Option,
            TypeName<FieldOf<Member>>(),
            standard,
            low,
            high,
            &ReadableAs<FieldOf<Member>>,
            &ApplyField<Member>,
            &WriteSetting<Member>,
            nullptr,
            &SetField<Member>};
}
template <auto Member>
constexpr Row Looks(std::string_view key, std::string_view standard, float low = 0, float high = 0) {
    Row row = Option<Member>(key, standard, low, high);
    row.Kind = SettingKind::Appearance;
    return row;
}
// Written once it is known.
template <auto Member> constexpr Row Place(std::string_view key) {
    Row row = Option<Member>(key, {});
    row.Kind = SettingKind::Place;
    row.Stands = &IsSet<Member>;
    return row;
}

using ApplyValue = void (*)(frmMain&, DeferredSettings&, std::string_view);
using WriteValue = void (*)(std::string&, const frmMain&);

constexpr Row With(Row row, ApplyValue apply) {
    row.Apply = apply;
    return row;
}
template <class Value>
constexpr Row Window(std::string_view key, std::string_view standard, ApplyValue apply, WriteValue write) {
    return {key, SettingKind::Window, TypeName<Value>(), standard, 0, 0, &ReadableAs<Value>, apply, write};
}

// Kept for the end of the load, as text that is "1" or "0", or a number with ".".
template <class Value, auto Member> void Defer(frmMain&, DeferredSettings& deferred, std::string_view text) {
    Value value{};
    if (!ReadValue(text, value)) return;
    AppendValue((deferred.*Member).emplace(), value);
}
template <auto Member> void ApplyDock(frmMain& Main, DeferredSettings&, std::string_view text) {
    (void)ReadValue(text, Main.Dock.*Member);
}
template <auto Member> void WriteDock(std::string& out, const frmMain& Main) {
    AppendValue(out, Main.Dock.*Member);
}
template <auto Side> void WritePlace(std::string& out, const frmMain& Main) {
    AppendValue(out, NormalPlace(Main).*Side);
}

void WriteWindowState(std::string& out, const frmMain& Main) {
    AppendValue(out, static_cast<std::int32_t>(Main.View.State));
}

// An unlocking for a moment is not kept.
void WriteLocked(std::string& out, const frmMain& Main) {
    AppendValue(out, Main.Dock.Locked || Main.P.Clock.IsRunning({TimerName::TimerBrieflyUnlock}));
}

void ApplyWallpaper(frmMain& Main, DeferredSettings&, std::string_view text) {
    if (const auto name = Trimmed(text); !name.empty()) Main.Settings.Wallpaper = ReadPath(name);
}
void WriteWallpaper(std::string& out, const frmMain& Main) {
    AppendPath(out, Main.Settings.Wallpaper);
}
constexpr Row WallpaperRow() {
    Row row = With(Option<&SettingsRecord::Wallpaper>("[Wallpaper]", ""), &ApplyWallpaper);
    row.Write = &WriteWallpaper;
    return row;
}

void ApplyFontName(frmMain& Main, DeferredSettings&, std::string_view text) {
    constexpr const char* Standard = "Tahoma";
    const std::string name(Trimmed(text));
    Main.Settings.FontName = Main.P.Texts.FontExists(name) ? name : Standard;
}

// Nothing animates during the load: the value takes its place at the end of it.
void ApplyEffect(frmMain& Main, DeferredSettings&, std::string_view text) {
    Main.Store.StoredEffect = ReadBoolean(text).value_or(true) ? "1" : "0";
}

void ApplyMovement(frmMain& Main, DeferredSettings&, std::string_view text) {
    (void)ReadValue(text, Main.Settings.PreventWindowMovement);
    LockUnlockWindowMovement(Main, Main.Settings.PreventWindowMovement);
}

void ApplyBackground(frmMain& Main, DeferredSettings&, std::string_view text) {
    SetWorkspaceColors(Main, ReadWhole(text).value_or(Main.View.BackColor), Main.View.ForeColor);
}
void WriteBackground(std::string& out, const frmMain& Main) {
    AppendValue(out, Main.View.BackColor);
}
void ApplyForeground(frmMain& Main, DeferredSettings&, std::string_view text) {
    SetWorkspaceColors(Main, Main.View.BackColor, ReadWhole(text).value_or(Main.View.ForeColor));
}
void WriteForeground(std::string& out, const frmMain& Main) {
    AppendValue(out, Main.View.ForeColor);
}

bool Anything(std::string_view) {
    return true;
}
void DoNothing(frmMain&, DeferredSettings&, std::string_view) {}

using S = SettingsRecord;
using D = DeferredSettings;

constexpr Row Rows[] = {
    Window<bool>("[Hidden]", "0", &Defer<bool, &D::Hidden>, &WriteDock<&DockState::Hidden>),
    Window<std::int16_t>("[WindowState]", "", &Defer<std::int16_t, &D::WindowState>, &WriteWindowState),
    Window<bool>("[Maximized]", "", &Defer<bool, &D::Maximized>, &WriteDock<&DockState::Maximized>),
    Window<float>("[X]", "", &Defer<float, &D::X>, &WritePlace<&Rect::Left>),
    Window<float>("[Y]", "", &Defer<float, &D::Y>, &WritePlace<&Rect::Top>),
    Window<float>("[W]", "", &Defer<float, &D::W>, &WritePlace<&Rect::Width>),
    Window<float>("[H]", "", &Defer<float, &D::H>, &WritePlace<&Rect::Height>),
    Window<bool>("[SUSPEND_AUTO_COLLAPSE]", "0", &Defer<bool, &D::SuspendAutoCollapse>,
                 &WriteDock<&DockState::Suspended>),
    Window<bool>("[LOCKED]", "0", &Defer<bool, &D::Locked>, &WriteLocked),
    Option<&S::ShowTrayIcon>("[ShowTrayIcon]", "1"),
    Option<&S::CheckForUpdatesOnStartup>("[CheckForUpdatesOnStartup]", "1"),
    Option<&S::CheckForBetaVersions>("[CheckForBetaVersions]", "0"),
    Option<&S::ShowInTaskbar>("[ShowInTaskbar]", "0"),
    Option<&S::MaxContainers>("[MaxContainers]", "50"),
    Option<&S::ApplyStyle>("[ApplyStyle]", "1"),
    WallpaperRow(),
    Option<&S::Stretch>("[Stretch]", "0"),
    Option<&S::Gradient>("[Gradient]", "1"),
    Option<&S::GradientDark>("[GradientDark]", "0"),
    Option<&S::GradientContainers>("[GradientContainers]", "1"),
    Option<&S::ShowTime>("[ShowTime]", "0"),
    Option<&S::SystemInfo>("[SystemInfo]", "0"),
    Window<bool>("[Align]", "0", &ApplyDock<&DockState::Align>, &WriteDock<&DockState::Align>),
    Option<&S::ConfirmDelete>("[ConfirmDelete]", "1"),
    Option<&S::GlobalHotkey>("[GlobalHotkey]", "1"),
    Option<&S::GlobalHotkeyChar>("[GlobalHotkeyChar]", "S"),
    Option<&S::GlobalHotkeyMod>("[GlobalHotkeyMod]", "9"),
    Option<&S::GlobalHotkeyDetached>("[GlobalHotkeyDetached]", "0"),
    Option<&S::ShowKBLauncher>("[ShowKBLauncher]", "0"),
    Option<&S::WebSearch>("[Web Search]", "https://www.google.com/search?q=%s"),
    Option<&S::SearchOnSpace>("[SearchOnSpace]", "0"),
    Option<&S::KBLauncherTips>("[KBLauncherTips]", "1"),
    Window<bool>("[ClickToTagStart]", "0", &ApplyDock<&DockState::ClickToTagStart>,
                 &WriteDock<&DockState::ClickToTagStart>),
    With(Option<&S::PreventWindowMovement>("[PreventWindowMovement]", "0"), &ApplyMovement),
    Option<&S::RepeatReminder>("[RepeatReminder]", "0"),
    Option<&S::BackupOnSave>("[BackupOnSave]", "0"),
    Option<&S::BackupDateStamp>("[BackupDateStamp]", "0"),
    Option<&S::ExtractURLs>("[ExtractURLs]", "1"),
    Option<&S::PreviewPictures>("[PreviewPictures]", "1"),
    Option<&S::CommandOverlay>("[CommandOverlay]", "1"),
    Option<&S::Translucent>("[Translucent]", "0"),
    Option<&S::Opacity>("[Opacity]", "235", 10, 250),
    Option<&S::Animate>("[Animate]", "1"),
    Option<&S::VisibleBorderCollapsed>("[VisibleBorderCollapsed]", "1"),
    Option<&S::KeyboardHistory>("[KeyboardHistory]", "1"),
    Option<&S::KeyboardHistoryCount>("[KeyboardHistoryCount]", "20", 5, 50),
    Option<&S::UndockImmediately>("[Undock Immediately]", "0"),
    Option<&S::MiniDockSize>("[Mini Dock Size]", "2500"),
    Option<&S::MiniDockSide>("[Mini Dock Side]", "2"),
    Option<&S::MiniDockFlash>("[Mini Dock Flash]", "1"),
    Option<&S::AccentColor>("[Accent Color]", "0"),
    Option<&S::QuicklyUnlock>("[Quickly Unlock]", "0"),
    Option<&S::CenterMouse>("[Center Mouse]", "0"),
    Option<&S::UndockOnClick>("[Undock On Click]", "0"),
    Option<&S::AutoSlideShow>("[AutoSlideShow]", "1"),
    Option<&S::ReEncryptNotes>("[ReEncryptNotes]", "0"),
    Option<&S::GrabFocus>("[GrabFocus]", "0"),
    Option<&S::OnTop>("[OnTop]", "1"),
    Option<&S::ConfirmOpenWith>("[ConfirmOpenWith]", "1"),
    Option<&S::AutoExpand>("[AutoExpand]", "1"),
    Option<&S::AutoExpandDelay>("[AutoExpandDelay]", "1"),
    With(Option<&S::Effect>("[Effect]", "1"), &ApplyEffect),
    Option<&S::EffectMode>("[EffectMode]", "0"),
    Option<&S::FoldUnfoldEffect>("[FoldUnfoldEffect]", "1"),
    Option<&S::FoldOnClick>("[FoldOnClick]", "1"),
    Looks<&S::Buttons>("[Buttons]", "Modern Dark"),
    Looks<&S::FontSize>("[Font Size]", "10", 1, 200),
    With(Looks<&S::FontName>("[Font Name]", "Tahoma"), &ApplyFontName),
    Looks<&S::LargeIconSize>("[Large Icon Size]", "32"),
    Window<std::int32_t>("[Background]", "1708806", &ApplyBackground, &WriteBackground), // 0x1A1306
    Looks<&S::ContainerFor>("[ContainerFor]", "2688768"),                                // 0x290700
    Looks<&S::ContainerLabel>("[ContainerLabel]", "16777215"),                           // 0xFFFFFF
    Looks<&S::DockingColor>("[DockingColor]", "3680526"),                                // 0x38290E
    Looks<&S::ContainerTextBack>("[ContainerTextBack]", "14810623"),                     // 0xE1FDFF
    Looks<&S::ContainerTextFor>("[ContainerTextFor]", "0"),
    Window<std::int32_t>("[Foreground]", "16777215", &ApplyForeground, &WriteForeground), // 0xFFFFFF
    Option<&S::DragToDetach>("[DragToDetach]", "1"),
    Option<&S::DetachNotes>("[DetachNotes]", "0"),
    Option<&S::DblClick>("[Dbl-Click]", "1"),
    Option<&S::LockOnlyShortcuts>("[LockOnlyShortcuts]", "0"),
    Option<&S::LineSpacing>("[LineSpacing]", "155"),
    Option<&S::DeleteDesktopShortcuts>("[DeleteDesktopShortcuts]", "1"),
    Option<&S::RememberParams>("[RememberParams]", "1"),
    Option<&S::ContainerFromFolder>("[ContainerFromFolder]", "1"),
    Option<&S::ShortcutTooltips>("[ShortcutTooltips]", "1"),
    Option<&S::FolderConnector>("[FolderConnector]", "0"),
    Option<&S::CalcOrSpeedLaunch>("[CalcOrSpeedLaunch]", "1"),
    Option<&S::ConfirmStartAllShortcuts>("[ConfirmStartAllShortcuts]", "1"),
    Option<&S::DblClickToStartAll>("[DblClickToStartAll]", "0"),
    Option<&S::ShowTips>("[ShowTips]", "1"),
    Option<&S::WhichTips>("[WhichTips]", "0"),
    Option<&S::SpacebarFlip>("[SpacebarFlip]", "1"),
    Option<&S::ConShrinkW>("[ConShrinkW]", "700"),
    Option<&S::ConShrinkH>("[ConShrinkH]", "950"),
    Place<&S::RSSViewerOnTop>("[RSSViewerOnTop]"),
    Place<&S::RSSViewerX>("[RSSViewerX]"),
    Place<&S::RSSViewerY>("[RSSViewerY]"),
    Place<&S::RSSViewerW>("[RSSViewerW]"),
    Place<&S::RSSViewerH>("[RSSViewerH]"),
    Place<&S::RSSSearchX>("[RSSSearchX]"),
    Place<&S::RSSSearchY>("[RSSSearchY]"),
    Place<&S::ReminderDialogX>("[ReminderDialogX]"),
    Place<&S::ReminderDialogY>("[ReminderDialogY]"),
    Place<&S::ReminderDialogW>("[ReminderDialogW]"),
    Place<&S::ReminderDialogH>("[ReminderDialogH]"),
    Place<&S::LibraryServer>("[LibraryServer]"),
    Place<&S::UpdateServer>("[UpdateServer]"),
    {"[Capture]", SettingKind::Ignored, "text", "", 0, 0, &Anything, &DoNothing},
};

void SetDefaults(SettingsRecord& settings, SettingKind kind) {
    for (const Row& row : Rows)
        if (row.Kind == kind) row.Set(settings, row.Default);
}

std::string_view KindText(SettingKind kind) {
    switch (kind) {
    case SettingKind::Option:
        return "option";
    case SettingKind::Appearance:
        return "appearance";
    case SettingKind::Place:
        return "only when known";
    case SettingKind::Window:
        return "window";
    case SettingKind::Ignored:
        return "read and ignored";
    }
    return {};
}

// Colours by their hexadecimal digits, 0x00BBGGRR; whatever else is as it stands in the file.
std::string DefaultText(const Row& row) {
    const auto colour = row.Type == "32-bit" ? ReadWhole(row.Default).value_or(0) : 0;
    if (colour <= 0xFFFF) return std::string(row.Default);
    char digits[8];
    const auto end = std::to_chars(digits, digits + sizeof digits, colour, 16).ptr;
    return std::string(row.Default) + " = 0x" + std::string(digits, end);
}

void AppendRowText(std::string& out, const Row& row) {
    out.append("| `").append(row.Key).append("` | ").append(row.Type).append(" | ");
    if (!row.Default.empty()) out.append("`").append(DefaultText(row)).append("`");
    out += " | ";
    if (row.Low != row.High) {
        AppendValue(out, row.Low);
        out += " to ";
        AppendValue(out, row.High);
    }
    out.append(" | ").append(KindText(row.Kind)).append(" |\n");
}

} // namespace

std::span<const SettingsRow> SettingsRows() {
    return Rows;
}

std::string SettingsTableText() {
    std::string text = "| Key | Type | Default | Bounds | Kind |\n|---|---|---|---|---|\n";
    for (const Row& row : Rows) AppendRowText(text, row);
    return text;
}

void InitDefaultSettings(SettingsRecord& settings) {
    SetDefaults(settings, SettingKind::Option);
}

void InitAppearanceDefaults(SettingsRecord& settings) {
    SetDefaults(settings, SettingKind::Appearance);
}

Rect NormalPlace(const frmMain& Main) {
    const bool maximised = Main.Dock.Maximized || Main.View.State == WindowState::Maximized;
    Rect place = maximised && Main.View.RestoreRect.Width > 0 ? Main.View.RestoreRect : Main.View.Window;
    return OutPlace(Main, Main.Dock.DockPosition, place);
}

} // namespace quill
