// System colours: codes that stand for a colour of the desktop's own palette. They are kept as they are and
// looked up when something is drawn, so that a change of the desktop's theme shows at the next painting. A
// canvas takes them wherever it takes a colour; arithmetic on colours does not.
#pragma once

#include "platform/geometry.h"

namespace quill {

enum class SystemColor {
    WindowBackground = 1, // of the desktop, and what frames a rounded window
    Window = 5,           // ground of fields
    WindowText = 8,
    ButtonFace = 15,
    ButtonText = 18,
};

constexpr Color CodeOf(SystemColor color) {
    return static_cast<Color>(0x80000000U | static_cast<unsigned>(color));
}

// -1, which stands for "none" in records, is not one of them.
constexpr bool IsSystemColor(Color color) {
    return (static_cast<unsigned>(color) & 0xFFFFFF00U) == 0x80000000U;
}

} // namespace quill
