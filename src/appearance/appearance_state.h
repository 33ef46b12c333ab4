// The looks' part of the workspace's state: what moves for a moment above the workspace, and the tip.
#pragma once

#include "platform/geometry.h"

#include <string>

namespace quill {

// A container's change of size, shown by a rectangle that runs from the one place to the other. Places are
// twips on picBack.
struct EffectState {
    enum class Kind { Explode, Implode, FadeOut, Blast };

    bool Loaded = false; // frmExplode shows
    Kind Running = Kind::Explode;
    int Container = -1;
    Rect Start, End, Now;
    Rect Step;          // whole twips a frame, added to Now
    int Frame = 0;      // frames so far
    int Alpha = 0;      // 0 to 255
    bool Flash = false; // a blast follows
};

// frmTip: what is told about a container, or the workspace's title, while the mouse rests on it.
struct TipState {
    bool Waiting = false; // the mouse is on the way to rest: TimerTip shows it
    int Container = -1;   // whose tip waits or shows; -1: the title's
    std::string Text;     // lblTip
    Rect Place;           // on the desktop, twips
    int Alpha = 0;        // 0 to 255
    bool Visible = false;
    bool Leaving = false; // fading out
};

struct LooksState {
    EffectState frmExplode;
    TipState frmTip;
};

} // namespace quill
