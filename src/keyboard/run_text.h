// Run text: what Enter in the Keyboard Launcher does. Prefix commands and "=" are tested before paths, paths
// before addresses, addresses before the shortcut that the preview shows, and the web search comes last.
// Nothing that was typed ever reaches a shell.
#pragma once

#include "core/frmMain.h"

namespace quill {

// Does what the box shows, and nothing while it shows something else than what its text means by now: that is
// shown then, and the next Enter means it. A refusal opens the box again with the text.
void RunTypedText(frmMain& Main);
// The shortcut that is shown, with what is typed behind its name.
void RunAsAdministrator(frmMain& Main);

} // namespace quill
