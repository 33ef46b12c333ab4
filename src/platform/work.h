// Work: what must not hold up the interface. The job runs on another thread and may touch nothing of the
// workspace: all that it needs it carries by value. Its completion runs on the one thread afterwards; when
// the program ends first, the completion never runs.
#pragma once

#include <functional>

namespace quill {

class Worker {
public:
    virtual ~Worker() = default;
    virtual void Run(std::function<void()> job, std::function<void()> completion) = 0;
};

} // namespace quill
