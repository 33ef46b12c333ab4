// Drop target: what lies under something that is dragged, whether that would take it, and what it does
// meanwhile: its rim shows it, closed containers open, and a frame scrolls while the pointer is near its
// edge.
#pragma once

#include "core/frmMain.h"
#include "core/handlers.h"

#include <optional>
#include <string>
#include <string_view>

namespace quill {

inline constexpr float ScrollEdge = 300; // twips of a frame's upper and lower edge where it scrolls by itself
inline constexpr float ScrollOnDragStep = 155; // twips a tick
inline constexpr int ScrollOnDragTick = 50;    // milliseconds

// A place of a parent, in the coordinates of what lies in it. Above 0 it is in a container's title row.
struct DropPlace {
    Parent To;
    Point At;
};

inline bool IsPicture(const DraggedObject& object) {
    return object.Kind == static_cast<std::uint8_t>(MovedKind::Picture);
}
bool IsThere(const frmMain& Main, const DraggedObject& object); // its row lives
Parent ParentOf(const frmMain& Main, const DraggedObject& object);

// Under the pointer at a place of a surface. None: the object of the surface is gone.
std::optional<DropPlace> DropPlaceAt(const frmMain& Main, SurfaceId surface, Point at);
// What a drop there would become. Shift, held without another such key, asks for the thing itself instead of
// a shortcut to it: a picture, or a note with the text.
enum class DropOutcome {
    Nothing,
    Objects, // our own move
    Shortcuts,
    Picture,
    NoteText, // joins the note that shows
    NewNote,
    NoteFromFile,
    TextDialog // is shown before it becomes a note
};
DropOutcome OutcomeOf(const frmMain& Main, Parent to, const DragData& data, bool ShiftAlone);
inline bool IsShiftAlone(const DragEvent& event) {
    return event.Shift && !event.Ctrl && !event.Alt;
}
// Whether the data may be dropped there at all; whether there is room is told after the drop.
bool TakesDrop(const frmMain& Main, Parent to, const DragData& data, bool ShiftAlone = false);
// The same at the drop itself: a lock that may be opened briefly is.
bool OpensForDrop(frmMain& Main, Parent to, const DragData& data, bool ShiftAlone = false);
// Nothing is dropped on feeds, reminders and encrypted notes, nor on what is gone.
bool IsOpenToDrops(const frmMain& Main, int container);
// A parent that new shortcuts may be put in. The files of a Folder Connector come from its folder alone.
bool TakesShortcuts(const frmMain& Main, Parent to);
// A place in a tile, a folded container, a title row or under a note is no place that anybody sees: what is
// dropped there goes to the next free cell.
bool ShowsPlace(const frmMain& Main, const DropPlace& place);
bool IsOpenFrame(const frmMain& Main, int Index); // its shortcuts can be seen

// What a drop may bring: a path of this machine, an address like http and https, a text that is one.
bool IsLocalPath(std::string_view path);
bool IsWebAddress(std::string_view text);
bool IsPictureFile(std::string_view path); // by the endings of the kinds that are shown as pictures
std::string_view TrimmedText(const DragData& data);
std::string DroppedText(const DragData& data); // addresses are text too where there is no other

// The drag is here now.
void WatchDrag(frmMain& Main, const DropPlace& place, bool taken, Point screen);
void DragLeftSurface(frmMain& Main); // it is over nothing any more, or it has ended
void TimerScrollOnDrag_Timer(frmMain& Main);

bool IsDropTarget(const frmMain& Main, int Index); // the container whose rim is to show that it would take it

// The room that is left for shortcuts, and the words for who finds none.
int RoomFor(const frmMain& Main, Parent in);
void TellLimit(frmMain& Main, Parent in);

} // namespace quill
