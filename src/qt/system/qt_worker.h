// QtWorker: one thread for what must not hold up the interface. A job that has begun is finished even when
// the program ends; jobs that have not begun, and all completions, are dropped then.
#pragma once

#include "platform/work.h"

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>

class QObject;

namespace quill {

class QtWorker : public Worker {
public:
    QtWorker();
    ~QtWorker() override;

    void Run(std::function<void()> job, std::function<void()> completion) override;
    void Finish(); // ends the thread; from here on nothing runs

private:
    struct Task {
        std::function<void()> Job, Completion;
    };
    void Work();
    void Post(std::function<void()> completion);

    std::mutex lock_;
    std::condition_variable news_;
    std::deque<Task> tasks_;
    bool ending_ = false;
    std::unique_ptr<QObject> home_; // lives on the one thread; completions are sent to it
    std::thread thread_;            // begins with the first job
};

} // namespace quill
