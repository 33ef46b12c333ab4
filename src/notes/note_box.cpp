// The note box while a person is in it. Its text flows one way, from the box to the table, and two seconds
// after the last key a recovery save follows.
#include "core/handlers.h"
#include "core/objects.h"
#include "notes/notes.h"
#include "persistence/save.h"

namespace quill {
namespace {

constexpr int saveDelay = 2000; // milliseconds after the last change
constexpr TimerId saveTimer{TimerName::TimerSaveNotes};

void Stamp(frmMain& Main, int Index) {
    Main.Con(Index).ModifyDate = DateText(Main);
}

} // namespace

void ContainerNote_GotFocus(frmMain& Main, int Index) {
    if (!IsLive(Main.Containers, Index)) return;
    Main.Group.CurrentContainer = Index;
    Main.Group.ContainerHasFocus = true;
}

// Every key stamps, also one that changes nothing.
void ContainerNote_KeyDown(frmMain& Main, int Index, const KeyEvent& /*event*/) {
    if (IsLive(Main.Containers, Index)) Stamp(Main, Index);
}

void ContainerNote_Change(frmMain& Main, int Index, const std::string& text) {
    if (!IsLive(Main.Containers, Index) || !TypeNoteText(Main, Index, text)) return;
    Stamp(Main, Index);
    Main.P.Clock.Start(saveTimer, saveDelay);
}

void ContainerNote_LostFocus(frmMain& Main, int Index) {
    if (!IsLive(Main.Containers, Index) || Main.IsExiting) return;
    Main.P.Clock.Stop(saveTimer);
    SaveContainers(Main, true);
}

void TimerSaveNotes_Timer(frmMain& Main) {
    Main.P.Clock.Stop(saveTimer);
    if (!Main.IsExiting) SaveContainers(Main, true);
}

} // namespace quill
