// Notes: the note box of a container: shown, hidden, edited, stamped. Encryption is not part of it.
#pragma once

#include "core/frmMain.h"

#include <string>
#include <string_view>

namespace quill {

bool NewNote(frmMain& Main, const std::string& Text, const std::string& Caption, bool NoDetach);
void SelectNote(frmMain& Main, bool Selected, int Index);
void lblPinNote_Click(frmMain& Main, int Index);
void SetNoteText(frmMain& Main, int Index, std::string text); // not by typing: a new revision
// By typing: the box holds it already. False when nothing differs.
bool TypeNoteText(frmMain& Main, int Index, const std::string& text);
// Blanks, tabs, CR and LF off both ends.
std::string_view CleanNoteText(std::string_view text);
// The paragraph at the upper edge of a note, from 0, and how much of it is scrolled out, in twips.
struct NoteTop {
    int Paragraph = 0;
    float Above = 0;
};
NoteTop TopOfNote(const frmMain& Main, int Index);
// A note that is higher than its place, while nobody types in it; clamps.
void ScrollNote(frmMain& Main, int Index, float top);
void TimerSaveNotes_Timer(frmMain& Main);
// The word at the foot of a container: "Reminder", "Encrypted" or nothing.
std::string FootText(const frmMain& Main, int Index);

} // namespace quill
