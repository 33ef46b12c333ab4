// Keys: Qt's key events in the logic's terms.
#pragma once

#include "core/handlers.h"

class QKeyEvent;

namespace quill {

enum class TypingInto { Workspace, TextField };

KeyEvent KeyOf(const QKeyEvent& event, TypingInto where);

} // namespace quill
