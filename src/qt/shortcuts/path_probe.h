// PathProbe: whether something stands at a path whose server may never answer. It is asked on a thread of its
// own, which is left behind when the time is over.
#pragma once

#include <functional>
#include <string>

namespace quill {

// The handler runs on the calling thread's event loop, once; "no" when there is no answer in time. Never when
// the program ends first.
void ProbePath(const std::string& path, int timeout, std::function<void(bool)> handler);

} // namespace quill
