// Undo: moves are taken back and done again. What one gesture moved is one step; a stack holds 100.
#pragma once

#include "core/frmMain.h"

namespace quill {

inline constexpr std::size_t UndoDepth = 100;

// Where an object stands now, to be pushed before it is moved.
MoveRecord PlaceNow(const frmMain& Main, MovedKind kind, int Index);
// A finished move, with the places before it. It also empties the redo stack. An empty step is no step.
void PushMove(frmMain& Main, MoveStep step);
// Takes the last step of the stack back; the opposite stack gets the places just left.
void UndoMove(frmMain& Main, bool IsUndo);
void mnuUndoRedo_Click(frmMain& Main, int Index); // 0 undo, 1 redo
void mnuClearUndoRedoBuffer_Click(frmMain& Main);

// The one routine by which a shortcut or a picture changes its parent and place. False, and nothing done,
// when the parent is dead, refuses or is full.
bool MoveShortcutTo(frmMain& Main, int Shortcut, Parent to, Point at);
bool MovePictureTo(frmMain& Main, int Picture, Parent to, Point at);

} // namespace quill
