#include "containers/con_properties.h"

#include "appearance/colors.h"
#include "appearance/schemes.h"
#include "containers/arrange.h"
#include "containers/commands.h"
#include "containers/layout.h"
#include "containers/lifecycle.h"
#include "containers/lock.h"
#include "containers/selection.h"
#include "containers/undo.h"
#include "core/objects.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "persistence/save.h"
#include "persistence/text_values.h"
#include "platform/dialogs.h"
#include "platform/questions.h"
#include "shortcuts/icons.h"

#include <algorithm>
#include <cmath>

namespace quill {
namespace {

constexpr TileSize steps[] = {{700, 950}, {650, 870}, {410, 650}}; // normal, small, tiny; twips
constexpr int iconPixels = 64;                                     // as large as a tile shows it
constexpr double mostPixels = 10000;                               // of spacing, worth converting
constexpr int firstScheme = 3;                                     // entry of CboColors
constexpr Color white = 0xFFFFFF;

constexpr PickedColor allColors[] = {PickedColor::Back, PickedColor::Fore, PickedColor::BackText,
                                     PickedColor::ForeText};

// The step is told by the width alone.
int StepOf(TileSize tile) {
    for (int step = 1; step < 3; ++step)
        if (steps[step].Width == tile.Width) return step;
    return 0;
}

std::string Pixels(int twips) {
    return std::to_string(std::lround(static_cast<float>(twips) / TwipsPerPixel));
}

FeedView* FeedOf(frmMain& Main, int Index) {
    const int row = Main.Con(Index).RSSListIndex;
    const bool has = row >= 0 && static_cast<std::size_t>(row) < Main.FeedViews.size();
    return has ? &Main.Feed(Index) : nullptr;
}

ContainerLooks LooksOf(frmMain& Main, int Index) {
    const auto& view = Main.ConView(Index);
    const auto* feed = FeedOf(Main, Index);
    return {Index,
            view.FrameBackColor,
            view.FrameForeColor,
            feed ? feed->FeedBackColor : view.ContainerNote.BackColor,
            feed ? feed->FeedForeColor : view.ContainerNote.ForeColor,
            Main.Con(Index).ShrinkPath};
}

Color Of(const ContainerLooks& looks, PickedColor which) {
    switch (which) {
    case PickedColor::Back:
        return looks.Back;
    case PickedColor::Fore:
        return looks.Fore;
    case PickedColor::BackText:
        return looks.BackText;
    case PickedColor::ForeText:
        return looks.ForeText;
    }
    return 0;
}

// A reminder's note is written on the container itself.
void GiveBack(frmMain& Main, int Index, Color color) {
    auto& view = Main.ConView(Index);
    SetColors(Main, Index, color);
    if (KindOf(Main, Index) == ContainerKind::FolderConnector)
        view.ContainerLabel.BorderColor = Lighter(color, true);
    if (Main.Con(Index).IsReminder()) view.ContainerNote.BackColor = color;
    if (auto* feed = FeedOf(Main, Index)) feed->FrameBackColor = color;
}

void GiveFore(frmMain& Main, int Index, Color color) {
    SetLabelColors(Main, Index, color);
    if (Main.Con(Index).IsReminder()) Main.ConView(Index).ContainerNote.ForeColor = color;
}

void GiveBackText(frmMain& Main, int Index, Color color) {
    if (Main.Con(Index).IsReminder()) return;
    Main.ConView(Index).ContainerNote.BackColor = color;
    if (auto* feed = FeedOf(Main, Index)) feed->FeedBackColor = color;
}

void GiveForeText(frmMain& Main, int Index, Color color) {
    if (Main.Con(Index).IsReminder()) return;
    Main.ConView(Index).ContainerNote.ForeColor = color;
    if (auto* feed = FeedOf(Main, Index)) feed->FeedForeColor = color;
}

// The shortcuts are arranged anew by it, which can be undone. What is no number changes nothing.
void TakeSpacing(frmMain& Main, int Index, const std::string& text) {
    const auto pixels = ReadNumber(text);
    if (!pixels) return;
    const auto twips = std::lround(std::clamp(*pixels, -mostPixels, mostPixels) * TwipsPerPixel);
    Main.Con(Index).LineSpacing = static_cast<std::int16_t>(GetProperSpacing(static_cast<int>(twips)));
    if (!NeedsEdit(Main, Edit::Shortcuts)) return;
    MoveStep before;
    EachShortcutIn(Main, InContainer(Index),
                   [&](int link) { before.push_back(PlaceNow(Main, MovedKind::Shortcut, link)); });
    LayShortcuts(Main, InContainer(Index));
    PushMove(Main, std::move(before));
}

std::vector<int> Addressed(const frmMain& Main) {
    auto selected = SelectedContainers(Main);
    if (selected.size() < 2) return {Main.Group.CurrentContainer};
    // The one that was pressed shows its colours in the dialog.
    const auto current = std::ranges::find(selected, Main.Group.CurrentContainer);
    if (current != selected.end()) std::rotate(selected.begin(), current, current + 1);
    return selected;
}

} // namespace

frmConProperties::frmConProperties(frmMain& main) : Main(main) {
    for (const int index : Addressed(Main))
        if (IsLive(Main.Containers, index)) before_.push_back(LooksOf(Main, index));
    colorEntries_ = {Tr(Main, "Reset to Default"),
                     IsForSeveral() ? Tr(Main, "Colors from Icons") : Tr(Main, "Colors from Icon"), "---"};
    std::ranges::copy(ColorSchemes(Main), std::back_inserter(colorEntries_));
    if (before_.empty()) return;
    const auto& container = Main.Con(before_.front().Index);
    txtContainerName = Main.ConView(before_.front().Index).ContainerLabel.Caption;
    txtSpacing = spacingBefore_ = Pixels(GetProperSpacing(container.LineSpacing));
    chkSpacebarFlip = container.SpacebarFlip;
    chkHideToolbar = container.HideToolbar;
    cboShrinkSize = sizeBefore_ = StepOf(container.ShrinkSize());
    TakeShown();
}

frmConProperties::~frmConProperties() {
    CancelButton_Click();
}

std::string frmConProperties::Title() const {
    if (IsForSeveral()) return Tr(Main, "%1 Containers Selected", std::to_string(before_.size()));
    return Tr(Main, "Container Properties");
}

bool frmConProperties::IsFeed() const {
    return std::ranges::all_of(before_, [&](const ContainerLooks& looks) {
        return IsLive(Main.Containers, looks.Index) && Main.Con(looks.Index).RSS;
    });
}

std::string frmConProperties::CaptionOf(PickedColor which) const {
    switch (which) {
    case PickedColor::Back:
        return Tr(Main, "Background");
    case PickedColor::Fore:
        return Tr(Main, "Foreground");
    case PickedColor::BackText:
        return IsFeed() ? Tr(Main, "RSS Background") : Tr(Main, "Note Background");
    case PickedColor::ForeText:
        return IsFeed() ? Tr(Main, "RSS Foreground") : Tr(Main, "Note Foreground");
    }
    return {};
}

std::string frmConProperties::TextColorsCaption() const {
    return IsFeed() ? Tr(Main, "RSS Colors") : Tr(Main, "Note Colors");
}

bool frmConProperties::HasTextColors() const {
    return std::ranges::any_of(before_, [&](const ContainerLooks& looks) {
        return IsLive(Main.Containers, looks.Index) && !Main.Con(looks.Index).IsReminder();
    });
}

Color frmConProperties::ColorOf(PickedColor which) const {
    return Of({-1, picBackColor, picFore, picBackText, picForeText, {}}, which);
}

std::optional<Rect> frmConProperties::PlaceOnScreen() const {
    if (before_.empty() || !IsLive(Main.Containers, before_.front().Index)) return std::nullopt;
    Rect place = Main.ConView(before_.front().Index).Container.Place;
    place.Left += Main.View.Window.Left + Main.View.picBack.Place.Left;
    place.Top += Main.View.Window.Top + Main.View.picBack.Place.Top;
    return place;
}

IconSource frmConProperties::Icon() const {
    if (before_.empty() || !IsLive(Main.Containers, before_.front().Index)) return {};
    const auto& file = Main.ConView(before_.front().Index).IconFile;
    return {file, {}, IsImageName(file)};
}

// ---- what shows at once

void frmConProperties::Give(int Index, PickedColor which, Color color) {
    constexpr decltype(&GiveBack) give[] = {&GiveBack, &GiveFore, &GiveBackText, &GiveForeText};
    if (!IsLive(Main.Containers, Index)) return;
    give[static_cast<int>(which)](Main, Index, color);
    Main.Marks.Container(Index);
    Main.Marks.Note(Index);
}

void frmConProperties::GiveAll(PickedColor which, const std::optional<Color>& color) {
    if (!color) return;
    for (const auto& looks : before_) Give(looks.Index, which, *color);
}

void frmConProperties::TakeShown() {
    if (before_.empty() || !IsLive(Main.Containers, before_.front().Index)) return;
    const auto looks = LooksOf(Main, before_.front().Index);
    picBackColor = looks.Back;
    picFore = looks.Fore;
    picBackText = looks.BackText;
    picForeText = looks.ForeText;
}

void frmConProperties::PickColor(PickedColor which) {
    std::optional<Color> chosen;
    {
        const DialogPause pause(Main);
        chosen = Main.P.Dialogs.ChooseColor(ColorOf(which), CaptionOf(which));
    }
    if (Main.IsExiting) return;
    GiveAll(which, chosen);
    TakeShown();
}

void frmConProperties::PicJumpToIcon_Click() {
    if (before_.empty() || IsForSeveral()) return;
    std::optional<std::string> chosen;
    {
        const DialogPause pause(Main);
        chosen =
            Main.P.Dialogs.OpenFile({Tr(Main, "Select Container Icon"), Tr(Main, "All Files (*.*)"), {}});
    }
    if (chosen && !chosen->empty() && !Main.IsExiting) AddShrinkIcon(Main, *chosen, before_.front().Index);
}

void frmConProperties::ColorsOfSettings() {
    const auto& settings = Main.Settings;
    GiveAll(PickedColor::Back, settings.ContainerFor);
    GiveAll(PickedColor::Fore, settings.ContainerLabel);
    GiveAll(PickedColor::BackText, settings.ContainerTextBack);
    GiveAll(PickedColor::ForeText, settings.ContainerTextFor);
}

// An icon that is nothing but white gives white.
std::optional<Color> frmConProperties::IconColor(int Index) const {
    if (!IsLive(Main.Containers, Index)) return std::nullopt;
    const auto& file = Main.ConView(Index).IconFile;
    const auto pixels = Main.P.Images.PixelsOf({file, {}, IsImageName(file)}, iconPixels);
    if (pixels.Colors.empty()) return std::nullopt;
    Color color = white;
    ComputeAveragePixelColor(pixels, true, color);
    return color;
}

void frmConProperties::ColorsFromIcons() {
    if (IsForSeveral()) {
        const DialogPause pause(Main);
        const auto question = Tr(Main, "Match each selected container color with its icon?");
        const int flags = BoxYesNo | BoxQuestion;
        if (Main.P.Questions.MsgBox(question, flags, Tr(Main, "Set Colors")) != AnswerYes) return;
        if (Main.IsExiting) return;
    }
    for (const auto& looks : before_) {
        const auto color = IconColor(looks.Index);
        if (!color) continue;
        Give(looks.Index, PickedColor::Back, *color);
        Give(looks.Index, PickedColor::Fore, ContrastColor(*color));
    }
}

void frmConProperties::CboColors_Click(int entry) {
    if (entry == 0) ColorsOfSettings();
    if (entry == 1) ColorsFromIcons();
    if (entry >= firstScheme && static_cast<std::size_t>(entry) < colorEntries_.size()) {
        const auto scheme =
            LoadScheme(Main, colorEntries_[static_cast<std::size_t>(entry)]).value_or(ColorScheme{});
        GiveAll(PickedColor::Back, scheme.ContainerFor);
        GiveAll(PickedColor::Fore, scheme.ContainerLabel);
        GiveAll(PickedColor::BackText, scheme.ContainerTextBack);
        GiveAll(PickedColor::ForeText, scheme.ContainerTextFor);
    }
    TakeShown();
}

// ---- the end

void frmConProperties::ApplyFields(int Index) {
    auto& container = Main.Con(Index);
    Main.ConView(Index).ContainerLabel.Caption = std::string(Trimmed(txtContainerName));
    if (txtSpacing != spacingBefore_) TakeSpacing(Main, Index, txtSpacing);
    container.SpacebarFlip = chkSpacebarFlip;
    container.HideToolbar = chkHideToolbar;
    ShowHideContainerToolbar(Main, Index, !chkHideToolbar);
    // Only a step that was chosen: the size may be one of the settings' own.
    if (cboShrinkSize != sizeBefore_ && cboShrinkSize >= 0 && cboShrinkSize < 3)
        SetContainerShrinkSize(Main, Index, steps[cboShrinkSize].Width, steps[cboShrinkSize].Height);
}

std::string frmConProperties::OKButton_Click() {
    const bool single = !IsForSeveral() && !before_.empty();
    if (single && IsLive(Main.Containers, before_.front().Index)) {
        if (Trimmed(txtContainerName).empty()) return Tr(Main, "Please enter a name for the container.");
        ApplyFields(before_.front().Index);
    }
    done_ = true;
    RefreshLinksAndShrinkIcons(Main);
    SaveContainers(Main, true);
    return {};
}

void frmConProperties::CancelButton_Click() {
    if (done_) return;
    done_ = true;
    for (const auto& looks : before_) {
        if (!IsLive(Main.Containers, looks.Index)) continue;
        for (const auto which : allColors) Give(looks.Index, which, Of(looks, which));
        if (Main.Con(looks.Index).ShrinkPath != looks.ShrinkPath)
            AddShrinkIcon(Main, looks.ShrinkPath, looks.Index);
    }
}

} // namespace quill
