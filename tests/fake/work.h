// The fake computer's second thread: jobs wait in a line until a test runs them, and their completions wait
// once more, so that a test can let anything happen in between.
#pragma once

#include "platform/work.h"

#include <deque>
#include <utility>

namespace quill::fake {

class FakeWorker : public Worker {
public:
    void Run(std::function<void()> job, std::function<void()> completion) override {
        jobs_.emplace_back(std::move(job), std::move(completion));
    }

    std::size_t Waiting() const { return jobs_.size(); }
    std::size_t Done() const { return done_.size(); }

    void RunJob() { // the first job in the line, without its completion
        auto [job, completion] = std::move(jobs_.front());
        jobs_.pop_front();
        job();
        done_.push_back(std::move(completion));
    }
    void Complete() { // the first completion that is due
        auto completion = std::move(done_.front());
        done_.pop_front();
        if (completion) completion();
    }
    void RunAll() { // until nothing waits
        while (!jobs_.empty() || !done_.empty()) {
            while (!jobs_.empty()) RunJob();
            while (!done_.empty()) Complete();
        }
    }
    void Drop() { jobs_.clear(), done_.clear(); } // the program ended

private:
    std::deque<std::pair<std::function<void()>, std::function<void()>>> jobs_;
    std::deque<std::function<void()>> done_;
};

} // namespace quill::fake
