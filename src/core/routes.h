// Routes: which handler a press, a click or a double-click on an element leads to. The contents page of the
// window.
#pragma once

#include "core/handlers.h"

namespace quill {

using ElementHandler = void (*)(frmMain& Main, int Index, const MouseEvent& event);

struct Route {
    ElementKind Kind;
    ElementHandler Press = nullptr;       // any button goes down
    ElementHandler Click = nullptr;       // the left one comes up where it went down
    ElementHandler DoubleClick = nullptr; // the left one, twice
};

const Route* RouteOf(ElementKind kind); // null: nothing happens there

} // namespace quill
