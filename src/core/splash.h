// Splash: what is being loaded, for a load that takes long enough to be noticed. It comes only after 150 ms,
// so that an everyday start shows the workspace and nothing before it.
#pragma once

#include "core/frmMain.h"

#include <string>

namespace quill {

inline constexpr int SplashDelay = 150; // milliseconds since the load began

void BeginSplash(frmMain& Main);
void ShowSplashText(frmMain& Main, const std::string& text); // nothing with /nosplash
void EndSplash(frmMain& Main);

} // namespace quill
