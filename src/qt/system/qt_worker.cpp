#include "qt/system/qt_worker.h"

#include <QMetaObject>
#include <QObject>

#include <csignal>

namespace quill {

QtWorker::QtWorker() = default;
QtWorker::~QtWorker() {
    Finish();
}

void QtWorker::Run(std::function<void()> job, std::function<void()> completion) {
    if (!home_) home_ = std::make_unique<QObject>();
    {
        const std::lock_guard hold(lock_);
        if (ending_) return;
        tasks_.push_back({std::move(job), std::move(completion)});
    }
    if (!thread_.joinable()) thread_ = std::thread([this] { Work(); });
    news_.notify_one();
}

void QtWorker::Finish() {
    {
        const std::lock_guard hold(lock_);
        ending_ = true;
        tasks_.clear();
    }
    news_.notify_one();
    if (thread_.joinable()) thread_.join();
    home_.reset(); // with the completions that were on their way
}

// Signals are the main thread's business.
void QtWorker::Work() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);
    for (;;) {
        std::unique_lock hold(lock_);
        news_.wait(hold, [this] { return ending_ || !tasks_.empty(); });
        if (ending_) return;
        Task task = std::move(tasks_.front());
        tasks_.pop_front();
        hold.unlock();
        task.Job();
        Post(std::move(task.Completion));
    }
}

void QtWorker::Post(std::function<void()> completion) {
    const std::lock_guard hold(lock_);
    if (!ending_) QMetaObject::invokeMethod(home_.get(), std::move(completion), Qt::QueuedConnection);
}

} // namespace quill
