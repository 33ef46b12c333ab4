// Covers: what containers that lie above hide of a surface, so that nothing is painted under them. Their
// bodies are solid but for the rounded corners.
#pragma once

#include "core/frmMain.h"

#include <vector>

namespace quill {

// Places on the surface of the workspace or of a container that something above it hides for certain.
std::vector<Rect> CoversAbove(const frmMain& Main, const Parent& surface);
bool IsCovered(const std::vector<Rect>& covers, const Rect& place);

} // namespace quill
