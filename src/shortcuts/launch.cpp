#include "shortcuts/launch.h"

#include "core/tr.h"
#include "dock/docking.h"
#include "dock/sliding.h"
#include "persistence/save.h"
#include "platform/questions.h"
#include "platform/shell.h"
#include "platform/windows.h"
#include "shortcuts/create.h"
#include "shortcuts/open_with.h"
#include "shortcuts/properties.h"

#include <system_error>

namespace quill {

namespace {

constexpr int NetworkTimeout = 5000; // milliseconds until a server that says nothing counts as gone

// After everything that waits: the world may have changed meanwhile.
bool StillWanted(const frmMain& Main, const Launch& launch) {
    return !Main.IsExiting && IsLive(Main.Shortcuts, launch.Shortcut);
}

bool Confirmed(frmMain& Main, const Launch& launch) {
    if (!launch.Confirm) return true;
    const DialogPause pause(Main);
    return Main.P.Questions.MsgBox(Tr(Main, "Start %1?", launch.Caption), BoxYesNo | BoxWarning,
                                   Tr(Main, "Launch Confirmation")) == AnswerYes;
}

bool IsBlank(const std::string& text) {
    return text.find_first_not_of(" \t\r\n") == std::string::npos;
}

// The parameters prompt. False: called off, nothing is to start. Ignored, it starts with none, and what the
// record holds stays.
bool PromptAdditionalParameters(frmMain& Main, const Launch& launch, std::string& parameters,
                                bool& remember) {
    InputQuestion question;
    question.Title = ProgramName;
    question.Caption = Tr(Main, "Parameters:");
    question.Text = launch.Parameters;
    question.OtherCaption = Tr(Main, "Ignore");
    question.CheckCaption = Tr(Main, "Remember");
    question.Checked = Main.Settings.RememberParams;
    const DialogPause pause(Main);
    if (!Main.P.Questions.AskInput(question)) return false;
    parameters = question.Other ? std::string() : question.Text;
    remember = question.Checked && !question.Other;
    Main.Settings.RememberParams = question.Checked;
    return true;
}

bool ParametersSettled(frmMain& Main, Launch& launch) {
    if (!launch.Prompt) return true;
    std::string parameters;
    bool remember = false;
    if (!PromptAdditionalParameters(Main, launch, parameters, remember) || !StillWanted(Main, launch))
        return false;
    if (remember && !IsBlank(parameters)) Main.Link(launch.Shortcut).Parameters = parameters;
    launch.Parameters = std::move(parameters);
    return true;
}

// An address stays an address, also one of a file.
std::string TargetOf(const frmMain& Main, const Launch& launch) {
    const bool isUrl = Main.Link(launch.Shortcut).ShortcutType == TypeUrl;
    return isUrl ? ExpandDriveMarker(Main, launch.Path) : ResolvedPath(Main, launch.Path);
}

LaunchRequest RequestOf(const Launch& launch) {
    LaunchRequest request;
    if (launch.Admin)
        request.Verb = "runas";
    else if (launch.Command)
        request.Verb = "open";
    if (!launch.Command) request.File = launch.Path;
    request.Parameters = launch.Parameters;
    request.Directory = launch.StartIn;
    request.Show = launch.RunIn;
    request.Command = launch.Command;
    return request;
}

// A failed start is recent like a good one.
void RecordStart(frmMain& Main, const Launch& launch, const Status& status) {
    if (status.Ok()) ++Main.Links.Starts;
    if (!status.Ok()) ShowLaunchError(Main, launch.Shortcut, status.Error());
    if (!StillWanted(Main, launch)) return;
    UpdateRecent(Main, launch.Shortcut);
    SaveWorkspace(Main, true, false);
}

// The pointer of who waits, until the end of the block.
class Busy {
public:
    explicit Busy(frmMain& main) : windows_(main.P.Windows) { windows_.ShowBusy(true); }
    ~Busy() { windows_.ShowBusy(false); }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

private:
    Windows& windows_;
};

Status Started(frmMain& Main, const Launch& launch) {
    const Busy busy(Main);
    if (!launch.SkipPreLaunch) PreLaunch(Main);
    return Main.P.Shell.ShellExecute(RequestOf(launch));
}

void StartNow(frmMain& Main, Launch launch) {
    if (!ParametersSettled(Main, launch)) return;
    RecordStart(Main, launch, Started(Main, launch));
}

Failure NotThere() {
    return {Reason::NotFound,
            std::generic_category().message(static_cast<int>(std::errc::no_such_file_or_directory))};
}

// A dead server must not freeze the workspace: it is asked off the thread, and the start goes on, with all
// that it needs in the launch itself, when there is an answer.
void StartWhenReached(frmMain& Main, Launch launch) {
    const std::string path = launch.Path;
    Main.P.Windows.ShowBusy(true);
    Main.P.Shell.PathFileExists(path, NetworkTimeout, [&Main, launch = std::move(launch)](bool there) {
        Main.P.Windows.ShowBusy(false);
        if (!StillWanted(Main, launch)) return;
        if (there)
            StartNow(Main, launch);
        else
            RecordStart(Main, launch, NotThere());
    });
}

} // namespace

Launch LaunchOf(const frmMain& Main, int Index) {
    const clsShortcut& record = Main.Link(Index);
    Launch launch;
    launch.Shortcut = Index;
    launch.Confirm = record.Confirm;
    if (record.Confirm) launch.Caption = record.FullCaption;
    launch.Parameters = record.Parameters;
    launch.Path = record.Path;
    launch.StartIn = record.StartIn;
    launch.RunIn = record.RunIn;
    launch.Command = record.Command;
    launch.Admin = record.Admin;
    launch.Prompt = record.PromptParameters;
    return launch;
}

void StartShortcut(frmMain& Main, int Index, bool NoTagStart, const std::string& OverrideParameters,
                   bool ForceAdmin, bool SkipPreLaunch) {
    if (Main.IsExiting || !IsLive(Main.Shortcuts, Index)) return;
    Main.Links.CurrentShortcut = Index;
    if (Main.Link(Index).TagStart && !NoTagStart)
        return StartAllWithTag(Main, std::string(Main.Link(Index).Tags));
    Launch launch = LaunchOf(Main, Index);
    if (!OverrideParameters.empty()) launch.Parameters = OverrideParameters;
    launch.Admin = ForceAdmin || launch.Admin;
    launch.SkipPreLaunch = SkipPreLaunch;
    LinkClick(Main, std::move(launch));
}

void LinkClick(frmMain& Main, Launch launch) {
    // A shortcut that was dragged does not start on release.
    if (Main.Links.DragIndex == -1) return Main.P.Windows.ShowBusy(false);
    if (!Confirmed(Main, launch) || !StillWanted(Main, launch)) return;
    launch.StartIn = ResolvedPath(Main, launch.StartIn);
    if (!launch.Command) launch.Path = TargetOf(Main, launch);
    if (!launch.Command && Main.P.Shell.PathIsNetworkPath(launch.Path))
        StartWhenReached(Main, std::move(launch));
    else
        StartNow(Main, std::move(launch));
}

// A workspace at an edge makes room; one that stays lets what starts come in front of it, and the heartbeat
// does not take that back. While it is suspended it stays as it is.
void PreLaunch(frmMain& Main) {
    if (Main.Dock.Suspended || Main.Dock.DockPosition != 0) return;
    if (MayCollapse(Main)) return DockMe(Main, EdgeOfWindow(Main, Main.View.Window), true);
    if (!Main.Settings.OnTop) return;
    Main.P.Windows.SetWindowOnTop(MainWindow, false);
    Main.Dock.ZOrderAsserted = true;
}

// What the person has refused is no news to them. Words of ours are still to be put in their language; the
// system's are in it.
void ShowLaunchError(frmMain& Main, int Shortcut, const Failure& failure) {
    if (failure.Kind == Reason::Refused || Main.Links.PropertiesOpen) return;
    if (Main.IsExiting || !IsLive(Main.Shortcuts, Shortcut)) return;
    const bool ours = failure.Kind == Reason::Damaged;
    ShowShortcutProperties(Main,
                           {.Index = Shortcut, .ErrorText = ours ? Tr(Main, failure.Text) : failure.Text});
}

} // namespace quill
