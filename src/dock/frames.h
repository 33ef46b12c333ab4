// Frames: what moves on the screen, step by step. A stream has a rate of its own and is stepped by
// Frame_Tick whenever clsTick says that it is due; a late one is stepped as often as it takes to catch up, so
// that an animation lasts as long as it should. Starting returns at once.
#pragma once

#include "core/frmMain.h"

#include <functional>

namespace quill {

// Starts the stream, or starts it over with another step. The step may stop its own stream.
void StartFrames(frmMain& Main, FrameStream stream, int perSecond, std::function<void(frmMain&)> step);
void StopFrames(frmMain& Main, FrameStream stream);
bool FramesRun(const frmMain& Main, FrameStream stream);
void StepFrames(frmMain& Main); // by Frame_Tick

} // namespace quill
