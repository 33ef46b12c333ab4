// What a person is told about an element: its name, what a press does, its tip and its states.
#include "core/element_walk.h"
#include "core/tr.h"

namespace quill {
namespace {

struct Words {
    ElementKind Kind;
    quill::Role Role;
    std::string_view Name; // English, through Tr; empty: the container's, shortcut's or picture's own
    std::string_view Action;
    std::string_view Tip;
};

constexpr Words table[] = {
    {ElementKind::picBack, Role::Pane, "Workspace", "", ""},
    {ElementKind::picMoveMe, Role::Title, "Title", "", ""},
    {ElementKind::lblCaption, Role::Title, "", "Maximize", ""},
    {ElementKind::PicMenu, Role::Button, "Menu", "Open", "Menu"},
    {ElementKind::PicDock, Role::Button, "Dock", "Dock", "Dock"},
    {ElementKind::PicLockToolbar, Role::Button, "Unlock", "Unlock", "Unlock"},
    {ElementKind::PicUnLockToolbar, Role::Button, "Lock", "Lock", "Lock"},
    {ElementKind::ImgLock, Role::Button, "Briefly Unlock", "Briefly Unlock", "Briefly Unlock"},
    {ElementKind::Container, Role::Pane, "", "", ""},
    {ElementKind::ContainerFrame, Role::Pane, "", "", ""},
    {ElementKind::ContainerLabel, Role::Title, "", "Fold", ""},
    {ElementKind::ContainerIcon, Role::Button, "", "Expand", "Shrink/Expand"},
    {ElementKind::lblFoldUnfold, Role::Button, "Fold", "Fold", ""},
    {ElementKind::lblPinNote, Role::Button, "Note", "", ""},
    {ElementKind::shapeShrink, Role::Button, "Shrink", "Shrink", "Shrink/Expand"},
    {ElementKind::shapeTags, Role::Mark, "Shows a tag", "", ""},
    {ElementKind::shapeNoteIndicator, Role::Mark, "Holds a note", "Show Note", ""},
    {ElementKind::ResizeSymbol, Role::Grip, "Resize", "Auto Resize",
     "Right/Middle Click: Auto Resize | Left Click: Drag to manually set the size"},
    {ElementKind::ContainerNote, Role::Note, "", "Edit", ""},
    {ElementKind::LstRSS, Role::Pane, "", "", ""},
    {ElementKind::lblRSSLastUpdate, Role::Label, "Last update", "", ""},
    {ElementKind::VScroll, Role::Scroll, "Scroll bar", "", ""},
    {ElementKind::lblShortcut, Role::ListItem, "", "Start", ""},
    {ElementKind::picShortcut, Role::Image, "", "Start", ""},
    {ElementKind::PicContainer, Role::Pane, "", "", ""},
    {ElementKind::PicImage, Role::Image, "", "", ""},
    {ElementKind::PictureGrip, Role::Grip, "Resize", "", ""},
    {ElementKind::frmSelection, Role::Mark, "Selection", "", ""},
    {ElementKind::frmExplode, Role::Mark, "Effect", "", ""},
    {ElementKind::PicJumpToLink, Role::Pane, "Keyboard Launcher", "", ""},
    {ElementKind::PicJumpToIcon, Role::Image, "Icon", "", ""},
    {ElementKind::lblJumpToLink, Role::Label, "", "", ""},
    {ElementKind::lblJumpToTip, Role::Label, "", "", ""},
    {ElementKind::cboSearch, Role::Edit, "Keyboard Launcher", "Edit", ""},
    {ElementKind::lblHistory, Role::Button, "History", "Open", "History (Alt+H)"},
    {ElementKind::lblGo, Role::Button, "Go", "Start", "Go (Enter)"},
    {ElementKind::lblClosePicJumpTo, Role::Button, "Close", "Close", "Close (Esc)"},
    {ElementKind::frmQuickLaunch, Role::Pane, "Speed Launch", "", ""},
    {ElementKind::picIcon, Role::Image, "Icon", "", ""},
    {ElementKind::lblSpeedLaunch, Role::ListItem, "", "Start", ""},
    {ElementKind::picMiniToolbar, Role::Pane, "Selected Shortcuts", "", ""},
    {ElementKind::MiniToolbarButton, Role::Button, "", "", ""},
    {ElementKind::PicLinkColor, Role::Button, "Font Color", "", ""},
};

const Words* WordsOf(ElementKind kind) {
    const auto* found = std::ranges::find(table, kind, &Words::Kind);
    return found == std::end(table) ? nullptr : found;
}

bool IsOfContainer(ElementKind kind) {
    return kind >= ElementKind::Container && kind <= ElementKind::VScroll;
}

std::string LastElement(const std::string& path) {
    return path.substr(path.find_last_of("/\\") + 1);
}

// Nothing that a person meets is without a name.
std::string FirstName(std::string name, std::string second, std::string last) {
    if (name.find_first_not_of(' ') != std::string::npos) return name;
    return second.empty() ? last : second;
}

void DescribeLink(const frmMain& Main, ElementInfo& info) {
    const auto& link = Main.Link(info.Id.Index);
    info.Name = FirstName(link.FullCaption, LastElement(link.Path), Tr(Main, "Shortcut"));
    info.Tip = Main.Settings.ShortcutTooltips ? link.Tip : std::string();
    info.Selected = link.Selected;
    if (!Main.LinkView(info.Id.Index).lblShortcut.Enabled) info.Action.clear();
}

void DescribePicture(const frmMain& Main, ElementInfo& info) {
    const auto& picture = Main.Pic(info.Id.Index);
    info.Name = FirstName(LastElement(picture.Path), {}, Tr(Main, "Picture"));
    info.Tip = picture.Comment;
}

void DescribeFoldMark(const frmMain& Main, const ContainerView& view, ElementInfo& info) {
    info.Expanded = view.FoldMark == "-";
    info.Name = info.Action = Tr(Main, info.Expanded ? "Fold" : "Unfold");
    info.Tip = view.FoldTip;
}

void DescribePin(const frmMain& Main, const ContainerView& view, ElementInfo& info) {
    info.Pressed = view.PinPressed;
    info.Name = info.Action = info.Tip = Tr(Main, view.PinPressed ? "Hide Note" : "Show Note");
}

void DescribeContainerPart(const frmMain& Main, ElementInfo& info) {
    const auto& view = Main.ConView(info.Id.Index);
    if (info.Name.empty()) info.Name = FirstName(view.ContainerLabel.Caption, {}, Tr(Main, "Container"));
    info.Selected = view.LabelSelected;
    info.Expanded = view.FoldMark == "-" && !IsShrunk(Main, info.Id.Index);
    switch (info.Id.Kind) {
    case ElementKind::ContainerLabel:
        info.Action = Tr(Main, info.Expanded ? "Fold" : "Unfold");
        break;
    case ElementKind::lblFoldUnfold:
        DescribeFoldMark(Main, view, info);
        break;
    case ElementKind::lblPinNote:
        DescribePin(Main, view, info);
        break;
    default:
        break;
    }
}

void DescribeCaption(const frmMain& Main, ElementInfo& info) {
    info.Name = FirstName(Main.View.Caption, {}, ProgramName);
    if (Main.Dock.Maximized) info.Action = Tr(Main, "Restore");
}

// What the lock holds does nothing.
void DescribeMiniToolbarCell(const frmMain& Main, ElementInfo& info) {
    const int cell = info.Id.Kind == ElementKind::PicLinkColor ? MiniToolbarButtons : info.Id.Index;
    info.Tip = TipOfMiniToolbarCell(Main, cell);
    if (info.Name.empty()) info.Name = info.Tip;
    if (MiniToolbarCellWorks(Main, cell)) info.Action = info.Name;
}

void DescribeSpeedLaunchRow(const frmMain& Main, ElementInfo& info) {
    const auto& window = Main.Links.QuickLaunch;
    const auto& row = window.Rows[static_cast<std::size_t>(info.Id.Index)];
    info.Name = std::to_string(info.Id.Index + 1) + ' ' + row.Caption;
    info.Selected = window.Selected == info.Id.Index;
    if (row.Shortcut == -1) info.Action.clear();
}

// The two lines of the launcher's box say what Enter would do.
void DescribeJumpToLine(const frmMain& Main, ElementInfo& info) {
    const auto& box = Main.Keys.PicJumpToLink;
    info.Name = info.Id.Kind == ElementKind::lblJumpToLink ? box.lblJumpToLink : box.lblJumpToTip;
}

std::string Translated(const frmMain& Main, std::string_view english) {
    return english.empty() ? std::string() : Tr(Main, english);
}

} // namespace

ElementInfo DescribeElement(const frmMain& Main, const Spot& spot) {
    ElementInfo info;
    info.Id = spot.Id;
    info.Place = spot.Place;
    info.Whole = spot.Whole;
    const auto* words = WordsOf(spot.Id.Kind);
    if (!words) return info;
    info.Role = words->Role;
    info.Name = Translated(Main, words->Name);
    info.Action = Translated(Main, words->Action);
    info.Tip = Translated(Main, words->Tip);
    if (spot.Id.Kind == ElementKind::lblCaption)
        DescribeCaption(Main, info);
    else if (IsOfContainer(spot.Id.Kind))
        DescribeContainerPart(Main, info);
    else if (spot.Id.Kind == ElementKind::lblShortcut || spot.Id.Kind == ElementKind::picShortcut)
        DescribeLink(Main, info);
    else if (spot.Id.Kind == ElementKind::PicContainer || spot.Id.Kind == ElementKind::PicImage)
        DescribePicture(Main, info);
    else if (spot.Id.Kind == ElementKind::MiniToolbarButton || spot.Id.Kind == ElementKind::PicLinkColor)
        DescribeMiniToolbarCell(Main, info);
    else if (spot.Id.Kind == ElementKind::lblSpeedLaunch)
        DescribeSpeedLaunchRow(Main, info);
    else if (spot.Id.Kind == ElementKind::lblJumpToLink || spot.Id.Kind == ElementKind::lblJumpToTip)
        DescribeJumpToLine(Main, info);
    return info;
}

} // namespace quill
