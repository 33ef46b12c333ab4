#include "shortcuts/drop_target.h"

#include "containers/hover.h"
#include "containers/layout.h"
#include "containers/lock.h"
#include "core/lower_case.h"
#include "core/objects.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "platform/clock.h"
#include "platform/questions.h"
#include "shortcuts/foreign_text.h"
#include "shortcuts/open_with.h"

#include <algorithm>
#include <array>

namespace quill {
namespace {

constexpr std::size_t longestAddress = 8192;
constexpr auto addressSchemes =
    std::to_array<std::string_view>({"http://", "https://", "ftp://", "ftps://", "sftp://", "smb://",
                                     "nfs://", "dav://", "davs://", "mailto:"});

bool AnyFile(const DragData& data) {
    return std::ranges::any_of(data.Files, &IsLocalPath);
}

bool AnyTarget(const DragData& data) {
    return AnyFile(data) || std::ranges::any_of(data.Addresses, &IsWebAddress);
}

// What a Folder Connector shows are the files of its folder: they are put in order there, and nothing joins
// them.
DropOutcome OutcomeOfObjects(const frmMain& Main, const Parent& to, const DragData& data) {
    const auto there = [&](const auto& object) { return IsThere(Main, object); };
    const auto lies = [&](const auto& object) { return there(object) && ParentOf(Main, object) == to; };
    if (to.Kind == ParentKind::ContainerFrame) {
        if (!IsOpenToDrops(Main, to.Index)) return DropOutcome::Nothing;
        if (KindOf(Main, to.Index) == ContainerKind::FolderConnector &&
            !std::ranges::all_of(data.Objects, lies))
            return DropOutcome::Nothing;
    }
    return std::ranges::any_of(data.Objects, there) ? DropOutcome::Objects : DropOutcome::Nothing;
}

// Only the first file counts.
DropOutcome OutcomeOfShift(const DragData& data) {
    if (!AnyFile(data)) return DroppedText(data).empty() ? DropOutcome::Nothing : DropOutcome::TextDialog;
    const std::string& first = data.Files.front();
    if (!IsLocalPath(first)) return DropOutcome::Nothing;
    if (IsPictureFile(first)) return DropOutcome::Picture;
    return EndsInAnyCase(first, "txt") ? DropOutcome::NoteFromFile : DropOutcome::Nothing;
}

DropOutcome OutcomeOnWorkspace(const DragData& data, bool ShiftAlone) {
    if (ShiftAlone) return OutcomeOfShift(data);
    if (AnyTarget(data) || IsWebAddress(TrimmedText(data))) return DropOutcome::Shortcuts;
    return TrimmedText(data).empty() ? DropOutcome::Nothing : DropOutcome::NewNote;
}

DropOutcome OutcomeInContainer(const frmMain& Main, int container, const DragData& data, bool ShiftAlone) {
    if (!IsOpenToDrops(Main, container)) return DropOutcome::Nothing;
    const bool ownFolder = KindOf(Main, container) == ContainerKind::FolderConnector;
    if (AnyTarget(data) || IsWebAddress(TrimmedText(data))) {
        if (ownFolder) return DropOutcome::Nothing;
        const bool picture = ShiftAlone && data.Files.size() == 1 && IsPictureFile(data.Files.front());
        return picture ? DropOutcome::Picture : DropOutcome::Shortcuts;
    }
    const bool onNote = Main.ConView(container).ContainerNote.Visible && !TrimmedText(data).empty();
    return onNote ? DropOutcome::NoteText : DropOutcome::Nothing;
}

// None: it holds nothing that is changed. A new note, or more text in one, is no edit that it keeps away.
std::optional<Edit> EditOf(const DragData& data, DropOutcome outcome) {
    const bool pictures = outcome == DropOutcome::Picture ||
                          (!data.Objects.empty() && std::ranges::all_of(data.Objects, &IsPicture));
    if (pictures) return Edit::Containers;
    const bool links = outcome == DropOutcome::Objects || outcome == DropOutcome::Shortcuts;
    return links ? std::optional(Edit::Shortcuts) : std::nullopt;
}

bool IsLockedFor(const frmMain& Main, std::optional<Edit> edit) {
    if (!edit) return false;
    return *edit == Edit::Containers ? !MayMoveContainers(Main) : !MayMoveShortcuts(Main);
}

void MarkOver(frmMain& Main) {
    if (IsLive(Main.Containers, Main.Links.Dragged.Over)) Main.Marks.Container(Main.Links.Dragged.Over);
}

// What is open for the moment closes when something is dragged into another frame, and stays under a drag
// that it has been opened by.
void Enter(frmMain& Main, int container) {
    DragLeftSurface(Main);
    Main.Links.Dragged.Over = container;
    if (container != -1 && IsOpenFrame(Main, container) && container != Main.Group.ExpandedContainer)
        DragEnteredFrame(Main);
}

float ScrollStepAt(const frmMain& Main, int container, Point at) {
    const auto& view = Main.ConView(container);
    if (!view.VScroll.Visible) return 0;
    const float y = at.Y - view.ScrollTop;
    if (y < 0) return 0; // the title row
    if (y < ScrollEdge) return -ScrollOnDragStep;
    return y > view.ContainerFrame.Place.Height - ScrollEdge ? ScrollOnDragStep : 0;
}

void SetScrollStep(frmMain& Main, float step) {
    auto& dragged = Main.Links.Dragged;
    if (dragged.ScrollStep == step) return;
    dragged.ScrollStep = step;
    if (step == 0)
        Main.P.Clock.Stop({TimerName::TimerScrollOnDrag});
    else
        Main.P.Clock.Start({TimerName::TimerScrollOnDrag}, ScrollOnDragTick);
}

std::optional<DropPlace> InContainerAt(const frmMain& Main, int index, Point at) {
    if (!IsLive(Main.Containers, index)) return {};
    const auto& view = Main.ConView(index);
    const auto& frame = view.ContainerFrame.Place;
    return DropPlace{InContainer(index), {at.X - frame.Left, at.Y - frame.Top + view.ScrollTop}};
}

} // namespace

bool IsThere(const frmMain& Main, const DraggedObject& object) {
    return IsPicture(object) ? IsLive(Main.Pictures, object.Index) : IsLive(Main.Shortcuts, object.Index);
}

Parent ParentOf(const frmMain& Main, const DraggedObject& object) {
    return IsPicture(object) ? Main.PicView(object.Index).In : Main.LinkView(object.Index).In;
}

std::optional<DropPlace> DropPlaceAt(const frmMain& Main, SurfaceId surface, Point at) {
    if (surface.Kind == SurfaceKind::Container) return InContainerAt(Main, surface.Index, at);
    if (surface.Kind != SurfaceKind::Picture) return DropPlace{OnWorkspace(), at};
    if (!IsLive(Main.Pictures, surface.Index)) return {};
    const auto& picture = Main.PicView(surface.Index);
    return DropPlace{picture.In, {picture.PicContainer.Left + at.X, picture.PicContainer.Top + at.Y}};
}

bool IsOpenToDrops(const frmMain& Main, int container) {
    if (!IsLive(Main.Containers, container) || Main.Con(container).Encrypted) return false;
    const auto kind = KindOf(Main, container);
    return kind != ContainerKind::Feed && kind != ContainerKind::Reminder;
}

bool TakesShortcuts(const frmMain& Main, Parent to) {
    if (to.Kind == ParentKind::picBack) return true;
    return IsOpenToDrops(Main, to.Index) && KindOf(Main, to.Index) != ContainerKind::FolderConnector;
}

DropOutcome OutcomeOf(const frmMain& Main, Parent to, const DragData& data, bool ShiftAlone) {
    if (!data.Objects.empty()) return OutcomeOfObjects(Main, to, data);
    if (to.Kind == ParentKind::picBack) return OutcomeOnWorkspace(data, ShiftAlone);
    return OutcomeInContainer(Main, to.Index, data, ShiftAlone);
}

bool TakesDrop(const frmMain& Main, Parent to, const DragData& data, bool ShiftAlone) {
    const DropOutcome outcome = OutcomeOf(Main, to, data, ShiftAlone);
    return !Main.Group.FrameLinkGroup && outcome != DropOutcome::Nothing &&
           !IsLockedFor(Main, EditOf(data, outcome));
}

bool OpensForDrop(frmMain& Main, Parent to, const DragData& data, bool ShiftAlone) {
    if (!TakesDrop(Main, to, data, ShiftAlone)) return false;
    const auto edit = EditOf(data, OutcomeOf(Main, to, data, ShiftAlone));
    return !edit || NeedsEdit(Main, *edit);
}

bool IsOpenFrame(const frmMain& Main, int Index) {
    return IsLive(Main.Containers, Index) && !IsFolded(Main, Index) && !IsShrunk(Main, Index) &&
           !Main.ConView(Index).ContainerNote.Visible;
}

bool ShowsPlace(const frmMain& Main, const DropPlace& place) {
    if (place.To.Kind == ParentKind::picBack) return true;
    return IsOpenFrame(Main, place.To.Index) && place.At.Y >= Main.ConView(place.To.Index).ScrollTop;
}

bool IsLocalPath(std::string_view path) {
    return path.starts_with('/') && path.find('\0') == path.npos;
}

bool IsPictureFile(std::string_view path) {
    constexpr auto endings = std::to_array<std::string_view>({".jpg", ".gif", ".bmp", "jpeg"});
    const auto trimmed = WithoutBlanks(path);
    return std::ranges::any_of(endings, [&](auto ending) { return EndsInAnyCase(trimmed, ending); });
}

std::string_view TrimmedText(const DragData& data) {
    return WithoutBlanks(data.Text);
}

std::string DroppedText(const DragData& data) {
    if (!TrimmedText(data).empty()) return data.Text;
    std::string text;
    for (const std::string& address : data.Addresses) text += (text.empty() ? "" : "\n") + address;
    return text;
}

bool IsWebAddress(std::string_view text) {
    if (text.size() > longestAddress) return false;
    const auto isNoPart = [](char letter) {
        return static_cast<unsigned char>(letter) <= ' ' || letter == 127;
    };
    if (std::ranges::any_of(text, isNoPart)) return false;
    const std::string lower = LowerCase(text.substr(0, 16));
    return std::ranges::any_of(addressSchemes, [&](std::string_view scheme) {
        return lower.starts_with(scheme) && text.size() > scheme.size();
    });
}

void WatchDrag(frmMain& Main, const DropPlace& place, bool taken, Point screen) {
    auto& dragged = Main.Links.Dragged;
    const int container = place.To.Kind == ParentKind::ContainerFrame ? place.To.Index : -1;
    if (container != dragged.Over) Enter(Main, container);
    if (taken != dragged.Taken) MarkOver(Main);
    dragged.Taken = taken;
    SetScrollStep(Main, container == -1 ? 0 : ScrollStepAt(Main, container, place.At));
    if (container != -1) DragOverContainer(Main, container, screen);
}

void DragLeftSurface(frmMain& Main) {
    MarkOver(Main);
    ShowOpenWith(Main, -1, -1);
    SetScrollStep(Main, 0);
    Main.Links.Dragged = {};
    DragLeftContainer(Main);
}

void TimerScrollOnDrag_Timer(frmMain& Main) {
    const auto& dragged = Main.Links.Dragged;
    if (!IsLive(Main.Containers, dragged.Over)) return SetScrollStep(Main, 0);
    ScrollContainer(Main, dragged.Over, Main.ConView(dragged.Over).ScrollTop + dragged.ScrollStep);
}

bool IsDropTarget(const frmMain& Main, int Index) {
    return Main.Links.Dragged.Taken && Main.Links.Dragged.Over == Index;
}

int RoomFor(const frmMain& Main, Parent in) {
    if (in.Kind == ParentKind::picBack) return MaxShortcutsOnWorkspace - WorkspaceShortcutCount(Main);
    return MaxShortcutsInContainer - GetContainerShortcutCount(Main, in.Index);
}

void TellLimit(frmMain& Main, Parent in) {
    const DialogPause pause(Main);
    const auto text =
        in.Kind == ParentKind::picBack
            ? Tr(Main, "There's a limit of 350 shortcuts in the workspace. Please use containers instead.")
            : Tr(Main, "There's a limit of 250 shortcuts per container (much less is recommended!)");
    Main.P.Questions.MsgBox(text, BoxWarning, Tr(Main, "Error"));
}

} // namespace quill
