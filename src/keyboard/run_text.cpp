#include "keyboard/run_text.h"

#include "containers/new_place.h"
#include "core/tr.h"
#include "dock/dock_commands.h"
#include "dock/docking.h"
#include "keyboard/calculator.h"
#include "keyboard/history.h"
#include "keyboard/jump_to.h"
#include "keyboard/meaning.h"
#include "keyboard/path_walk.h"
#include "keyboard/preview.h"
#include "keyboard/quick_reminder.h"
#include "keyboard/web_search.h"
#include "notes/notes.h"
#include "persistence/save.h"
#include "platform/questions.h"
#include "platform/shell.h"
#include "shortcuts/launch.h"
#include "shortcuts/open_with.h"

#include <utility>

namespace quill {
namespace {

constexpr int networkTimeout = 5000; // milliseconds until a server that says nothing counts as gone

struct Order {
    TypedMeaning Is;
    std::string Text; // as it was typed
};

// Something else may have been opened or typed while a question or a server was waited for. A workspace that
// has made room for nothing comes back.
void OpenAgain(frmMain& Main, const std::string& text) {
    if (Main.IsExiting || IsJumpToOpen(Main)) return;
    if (Main.Dock.DockPosition != 0) CallForward(Main);
    ShowPicJumpTo(Main, text, true, false);
}

// ---- what the shell starts

void TellOpenError(frmMain& Main, const std::string& text) {
    const DialogPause pause(Main);
    Main.P.Questions.MsgBox(Tr(Main, "Error opening %1", text), BoxOk | BoxWarning, ProgramName);
}

// False: it was refused. What a person has turned down is not told.
bool Opened(frmMain& Main, const std::string& text, const Status& status) {
    if (status.Ok() || status.Error().Kind == Reason::Refused) return true;
    TellOpenError(Main, text);
    return false;
}

bool OpenFile(frmMain& Main, const std::string& text, const std::string& verb, const std::string& file) {
    PreLaunch(Main);
    LaunchRequest request;
    request.Verb = verb;
    request.File = file;
    return Opened(Main, text, Main.P.Shell.ShellExecute(request));
}

void OpenWhenReached(frmMain& Main, const std::string& text, const std::string& path) {
    Main.P.Shell.PathFileExists(path, networkTimeout, [&Main, text, path](bool there) {
        if (Main.IsExiting) return;
        if (!there) TellOpenError(Main, text);
        if (!there || !OpenFile(Main, text, "open", path)) OpenAgain(Main, text);
    });
}

// ---- what each meaning does. False: refused.

bool RunPath(frmMain& Main, const Order& order) {
    const auto path = PathOfText(Main, order.Text);
    if (!Main.P.Shell.PathIsNetworkPath(path)) return OpenFile(Main, order.Text, "open", path);
    OpenWhenReached(Main, order.Text, path);
    return true;
}

bool RunAddress(frmMain& Main, const Order& order) {
    return OpenFile(Main, order.Text, {}, AddressOf(order.Text));
}

bool RunSearch(frmMain& Main, const Order& order) {
    return OpenFile(Main, order.Text, {}, SearchAddress(WebSearchAddress(Main), order.Is.Argument));
}

bool RunTag(frmMain& Main, const Order& order) {
    StartAllWithTag(Main, order.Is.Argument);
    return true;
}

bool RunCalculator(frmMain& Main, const Order& order) {
    ParseCalculator(Main, order.Is.Argument);
    return true;
}

bool RunNote(frmMain& Main, const Order& order) {
    ChooseNewPlace(Main);
    if (!NewNote(Main, order.Is.Argument, Tr(Main, "Note"), false)) return false;
    const int container = Main.NextContainerIndex - 1;
    SaveContainers(Main, true);
    ++Main.ConView(container).ContainerNote.FocusWish;
    Main.Marks.Note(container);
    return true;
}

bool RunReminder(frmMain& Main, const Order& order) {
    return ScheduleQuickReminder(Main, order.Is.Argument);
}

bool RunTile(frmMain& Main, const Order& order) {
    OpenTile(Main, order.Is.Container, order.Text);
    return true;
}

bool RunShortcut(frmMain& Main, const Order& order) {
    StartShortcut(Main, order.Is.Shortcut, false, order.Is.Argument, false, false);
    return true;
}

struct RunRow {
    Meaning What;
    bool (*Run)(frmMain&, const Order&);
};

constexpr RunRow runs[] = {
    {Meaning::TagStart, &RunTag},      {Meaning::Calculator, &RunCalculator},
    {Meaning::Note, &RunNote},         {Meaning::Reminder, &RunReminder},
    {Meaning::Shortcut, &RunShortcut}, {Meaning::WithParameters, &RunShortcut},
    {Meaning::Container, &RunTile},    {Meaning::Path, &RunPath},
    {Meaning::Address, &RunAddress},   {Meaning::WebSearch, &RunSearch},
};

bool Run(frmMain& Main, const Order& order) {
    for (const auto& row : runs)
        if (row.What == order.Is.What) return row.Run(Main, order);
    return false;
}

// ---- Enter

bool IsActive(const frmMain& Main) {
    return Main.Keys.LauncherActive && IsJumpToOpen(Main) && !Main.IsExiting;
}

// Nothing while the box shows another meaning than the text has by now.
Order OrderOf(frmMain& Main) {
    Main.Keys.HistoryMode = false;
    Order order{{}, Main.Keys.PicJumpToLink.cboSearch.Text};
    auto meaning = MeaningOf(Main, order.Text, NoMatch);
    if (IsShown(Main, meaning))
        order.Is = std::move(meaning);
    else
        PreviewText(Main, NoMatch);
    return order;
}

// A shortcut is remembered by its name, also where only a part of it was typed.
std::string ToRemember(const frmMain& Main, const Order& order) {
    return order.Is.Shortcut != -1 ? Main.Link(order.Is.Shortcut).FullCaption : order.Text;
}

} // namespace

// The text is remembered before it does something: what it does may end the program.
void RunTypedText(frmMain& Main) {
    if (!IsActive(Main)) return;
    const auto order = OrderOf(Main);
    if (order.Is.What == Meaning::Nothing) return;
    ClosePicJumpTo(Main);
    if (order.Is.What != Meaning::Container) AddToHistory(Main, ToRemember(Main, order));
    if (!Run(Main, order)) OpenAgain(Main, order.Text);
}

void RunAsAdministrator(frmMain& Main) {
    if (!IsActive(Main)) return;
    const auto order = OrderOf(Main);
    if (order.Is.Shortcut == -1) return;
    ClosePicJumpTo(Main);
    AddToHistory(Main, ToRemember(Main, order));
    StartShortcut(Main, order.Is.Shortcut, false, order.Is.Argument, true, false);
}

} // namespace quill
