#include "notes/text_notes.h"

#include "containers/boundaries.h"
#include "containers/full_size.h"
#include "core/caption.h"
#include "core/objects.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "notes/notes.h"
#include "persistence/save.h"
#include "platform/files.h"
#include "platform/questions.h"
#include "platform/shell.h"
#include "shortcuts/create.h"
#include "shortcuts/foreign_text.h"

#include <algorithm>
#include <cmath>

namespace quill {
namespace {

constexpr float gridStep = 100;
constexpr float stepAside = 300;
constexpr int mostSteps = 20;
constexpr std::uint64_t largestTextFile = 16 << 20;
constexpr int networkTimeout = 5000; // milliseconds for a server to answer
constexpr std::size_t shortestPath = 4;

bool CoversAnother(const frmMain& Main, int Index) {
    const auto& corner = Main.ConView(Index).Container.Place;
    for (const auto& row : Live(Main.Containers)) {
        const auto& place = Main.ConView(row.Index).Container.Place;
        if (row.Index != Index && place.Left == corner.Left && place.Top == corner.Top) return true;
    }
    return false;
}

void PutInside(frmMain& Main, int Index, Point at) {
    auto& place = Main.ConView(Index).Container.Place;
    place.Left = at.X;
    place.Top = at.Y;
    BringInside(Main, Index);
}

// The nearest steps down and up from there that are not exactly over a container, which nobody would see.
void StepAside(frmMain& Main, int Index) {
    const auto from = Main.ConView(Index).Container.Place;
    for (int step = 1; step <= mostSteps && CoversAnother(Main, Index); ++step) {
        const float by = static_cast<float>(step) * stepAside;
        PutInside(Main, Index, {from.Left + by, from.Top + by});
        if (CoversAnother(Main, Index)) PutInside(Main, Index, {from.Left - by, from.Top - by});
    }
}

void SettleNote(frmMain& Main, int Index) {
    const auto& place = Main.ConView(Index).Container.Place;
    PutInside(Main, Index,
              {std::round(place.Left / gridStep) * gridStep, std::round(place.Top / gridStep) * gridStep});
    StepAside(Main, Index);
    RememberPlace(Main, Index);
    Main.Marks.Container(Index);
}

// All of it can be shown and stored.
std::string NoteText(const std::string& text) {
    std::string lines = FromTextFile(text);
    std::ranges::replace(lines, '\0', ' ');
    return lines;
}

std::string FirstLines(const std::string& text, int count) {
    std::size_t end = 0;
    for (int line = 0; line < count; ++line) {
        end = text.find('\n', end);
        if (end == text.npos) return text;
        ++end;
    }
    return text.substr(0, end - 1);
}

std::string NameOf(const std::string& path) {
    return ShownLine(path.size() < shortestPath ? path : path.substr(path.find_last_of('/') + 1));
}

void TellUnreadable(frmMain& Main, const std::string& path, const std::string& why) {
    const DialogPause pause(Main);
    Main.P.Questions.MsgBox(Tr(Main, "Unable to read '%1'.", NameOf(path)) + "\n\n" + why, BoxWarning,
                            ProgramName);
}

void ReadIntoNote(frmMain& Main, const std::string& path) {
    const auto bytes = Main.P.Files.Read(path, largestTextFile);
    if (!bytes) return TellUnreadable(Main, path, bytes.Error().Text);
    const std::string text = FirstLines(NoteText(bytes.Value()), MaxLinesOfTextFile);
    if (!NewNote(Main, text, NameOf(path), false)) return;
    SettleNote(Main, Main.NextContainerIndex - 1);
    SaveWorkspace(Main, true, false);
}

} // namespace

bool PasteTextFromClipboard(frmMain& Main, const std::string& Text, const std::string& Caption) {
    const std::string text = NoteText(Text);
    if (WithoutBlanks(text).empty() || !NewNote(Main, text, ShownLine(Caption), false)) return false;
    SettleNote(Main, Main.NextContainerIndex - 1);
    return true;
}

void AddNoteFromTextFile(frmMain& Main, const std::string& Path) {
    const std::string path = ResolvedPath(Main, Path);
    SetCaption(Main, Tr(Main, "Please wait..."));
    if (!Main.P.Shell.PathIsNetworkPath(path)) {
        ReadIntoNote(Main, path);
        return RestoreCaption(Main);
    }
    Main.P.Shell.PathFileExists(path, networkTimeout, [&Main, path](bool there) {
        if (Main.IsExiting) return;
        if (there) ReadIntoNote(Main, path);
        RestoreCaption(Main);
    });
}

void AppendToNote(frmMain& Main, int Index, const std::string& text) {
    if (!IsLive(Main.Containers, Index)) return;
    const std::string& before = Main.ConView(Index).ContainerNote.Text;
    SetNoteText(Main, Index, before + (before.empty() ? "" : "\r\n\r\n") + NoteText(text));
    Main.Con(Index).ModifyDate = DateText(Main);
}

} // namespace quill
