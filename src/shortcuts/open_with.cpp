#include "shortcuts/open_with.h"

#include "appearance/tips.h"
#include "containers/layout.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/questions.h"
#include "platform/shell.h"
#include "platform/windows.h"
#include "shortcuts/create.h"
#include "shortcuts/drop_target.h"
#include "shortcuts/launch.h"

#include <algorithm>
#include <utility>

namespace quill {
namespace {

constexpr int networkTimeout = 5000; // milliseconds until a server that says nothing counts as gone

std::string TargetPath(const frmMain& Main, int index) {
    const clsShortcut& record = Main.Link(index);
    return record.ShortcutType == TypeUrl ? ExpandDriveMarker(Main, record.Path)
                                          : ResolvedPath(Main, record.Path);
}

// What stands on a server is not asked for while the hand moves.
bool MayBeProgram(const frmMain& Main, const std::string& path) {
    if (!path.starts_with('/') || Main.P.Shell.PathIsNetworkPath(path)) return true;
    const auto found = Main.P.Files.Stat(path);
    if (!found) return true;
    return found.Value().IsRegular && (found.Value().IsExecutable || path.ends_with(".desktop"));
}

// All that the opening needs, by value: it may wait for a dead server.
struct Opening {
    int Target = -1;
    std::string Program;
    std::vector<std::string> Documents;
};

Opening OpeningOf(const frmMain& Main, int target, int source) {
    Opening opening{target, TargetPath(Main, target), {TargetPath(Main, source)}};
    for (const int other : Main.Links.SelectedShortcuts)
        if (other != source && CanOpenWith(Main, target, other))
            opening.Documents.push_back(TargetPath(Main, other));
    return opening;
}

Status OpenDocument(frmMain& Main, const Opening& opening, const std::string& document) {
    LaunchRequest request;
    request.File = opening.Program;
    request.Arguments = {document};
    request.Directory = opening.Program.substr(0, opening.Program.rfind('/') + 1);
    return Main.P.Shell.ShellExecute(request);
}

// What goes wrong with one goes wrong with all.
void OpenAll(frmMain& Main, const Opening& opening) {
    for (const std::string& document : opening.Documents) {
        const Status opened = OpenDocument(Main, opening, document);
        if (!opened) return ShowLaunchError(Main, opening.Target, opened.Error());
    }
}

void OpenWhenReached(frmMain& Main, Opening opening) {
    const std::string path = opening.Program;
    Main.P.Windows.ShowBusy(true);
    Main.P.Shell.PathFileExists(path, networkTimeout, [&Main, opening = std::move(opening)](bool there) {
        Main.P.Windows.ShowBusy(false);
        if (there && !Main.IsExiting && IsLive(Main.Shortcuts, opening.Target)) OpenAll(Main, opening);
    });
}

std::string Question(const frmMain& Main, int target, int source) {
    const std::string& program = Main.Link(target).FullCaption;
    const std::string what =
        Main.Links.SelectedShortcuts.size() < 2
            ? Tr(Main, "Open: %1 with: %2?", Main.LinkView(source).lblShortcut.Caption, program)
            : Tr(Main, "Open: %1 with selected shortcuts?", program);
    return what + "\n\n" + Tr(Main, "Disable this confirmation from the Settings dialog.");
}

bool Confirmed(frmMain& Main, int target, int source) {
    if (!Main.Settings.ConfirmOpenWith) return true;
    const DialogPause pause(Main);
    return Main.P.Questions.MsgBox(Question(Main, target, source), BoxYesNo | BoxQuestion,
                                   Tr(Main, "Open with...")) == AnswerYes;
}

// It stays while the pointer does; the watch over tips of containers knows nothing of drags.
void ShowDragTip(frmMain& Main, const std::string& text) {
    HideTip(Main);
    if (text.empty()) return;
    SetTip(Main, text);
    Main.P.Clock.Stop({TimerName::TimerMouseMove});
}

} // namespace

bool CanOpenWith(const frmMain& Main, int targetIndex, int sourceIndex) {
    if (targetIndex == sourceIndex) return false;
    if (!IsLive(Main.Shortcuts, targetIndex) || !IsLive(Main.Shortcuts, sourceIndex)) return false;
    const clsShortcut& target = Main.Link(targetIndex);
    if (target.Command || Main.Link(sourceIndex).Command || target.ShortcutType == TypeUrl) return false;
    return MayBeProgram(Main, TargetPath(Main, targetIndex));
}

void DropOnShortcut(frmMain& Main, int targetIndex, int sourceIndex) {
    if (Main.IsExiting || !CanOpenWith(Main, targetIndex, sourceIndex)) return;
    if (Confirmed(Main, targetIndex, sourceIndex)) OpenShortcutWith(Main, targetIndex, sourceIndex);
}

void OpenShortcutWith(frmMain& Main, int targetIndex, int sourceIndex) {
    if (Main.IsExiting || !CanOpenWith(Main, targetIndex, sourceIndex)) return;
    PreLaunch(Main);
    Opening opening = OpeningOf(Main, targetIndex, sourceIndex);
    if (Main.P.Shell.PathIsNetworkPath(opening.Program)) return OpenWhenReached(Main, std::move(opening));
    const bool gone = opening.Program.starts_with('/') && !Main.P.Files.Exists(opening.Program);
    if (!gone) OpenAll(Main, opening);
}

std::string OpenWithTip(const frmMain& Main, int targetIndex, int sourceIndex) {
    if (!CanOpenWith(Main, targetIndex, sourceIndex)) return {};
    const auto caption = [&](int index) { return Main.LinkView(index).lblShortcut.Caption; };
    const std::string document =
        Main.Links.SelectedShortcuts.size() < 2 ? caption(sourceIndex) : Tr(Main, "[Selected Shortcuts]");
    return Tr(Main, "Start: %1", caption(targetIndex)) + "\n" + Tr(Main, "With Parameter:") + "\n" + document;
}

int OpenWithAt(const frmMain& Main, SurfaceId surface, Point at, const DragData& data) {
    if (data.Objects.empty() || IsPicture(data.Objects.front())) return -1;
    const ElementId hit = ElementAt(Main, surface, at);
    if (hit.Kind != ElementKind::lblShortcut && hit.Kind != ElementKind::picShortcut) return -1;
    const auto isIt = [&](const DraggedObject& object) {
        return !IsPicture(object) && object.Index == hit.Index;
    };
    if (std::ranges::any_of(data.Objects, isIt)) return -1;
    return CanOpenWith(Main, hit.Index, data.Objects.front().Index) ? hit.Index : -1;
}

void ShowOpenWith(frmMain& Main, int targetIndex, int sourceIndex) {
    const int before = std::exchange(Main.Links.OpenWithTarget, targetIndex);
    if (before == targetIndex) return;
    for (const int link : {before, targetIndex})
        if (IsLive(Main.Shortcuts, link)) MarkParent(Main, Main.LinkView(link).In);
    ShowDragTip(Main, OpenWithTip(Main, targetIndex, sourceIndex));
}

} // namespace quill
