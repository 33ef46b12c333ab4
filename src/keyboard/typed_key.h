// A key on the workspace that no row of the key table has used: a digit starts its Speed Launch slot, letters
// and digits open the Keyboard Launcher with what they type, "=" the calculator, "!" the history and "/" the
// Speed Launch window.
#pragma once

#include "core/handlers.h"

namespace quill {

bool TypedKey(frmMain& Main, const KeyEvent& event); // true: used

} // namespace quill
