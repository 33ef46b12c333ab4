#include "qt/shortcuts/path_probe.h"

#include "qt/system/gobject.h"
#include "qt/system/remote_paths.h"

#include <QCoreApplication>
#include <QObject>
#include <QTimer>

#include <csignal>
#include <memory>
#include <mutex>
#include <sys/stat.h>
#include <thread>
#include <utility>

namespace quill {
namespace {

bool Exists(const std::string& path) {
    if (!IsAddress(path)) {
        struct stat info {};
        return stat(path.c_str(), &info) == 0;
    }
    const OwnedObject<GFile> file(g_file_new_for_uri(path.c_str()));
    return g_file_query_exists(file.get(), nullptr) != 0;
}

// Shared by the asking thread and the asked one; who is late finds Home gone.
struct Question {
    std::mutex Lock;
    QObject* Home = nullptr; // lives on the asking thread until the answer is given
};

void Ask(const std::string& path, const std::shared_ptr<Question>& question,
         const std::shared_ptr<std::function<void(bool)>>& answer) {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);
    const bool exists = Exists(path);
    const std::lock_guard hold(question->Lock);
    if (question->Home != nullptr)
        QMetaObject::invokeMethod(
            question->Home, [answer, exists] { (*answer)(exists); }, Qt::QueuedConnection);
}

} // namespace

void ProbePath(const std::string& path, int timeout, std::function<void(bool)> handler) {
    auto* home = new QObject(QCoreApplication::instance());
    auto question = std::make_shared<Question>();
    question->Home = home;
    auto answer = std::make_shared<std::function<void(bool)>>(
        [question, home, handler = std::move(handler)](bool exists) {
            {
                const std::lock_guard hold(question->Lock);
                if (std::exchange(question->Home, nullptr) == nullptr) return;
            }
            home->deleteLater();
            handler(exists);
        });
    QObject::connect(home, &QObject::destroyed, [question] {
        const std::lock_guard hold(question->Lock);
        question->Home = nullptr;
    });
    QTimer::singleShot(timeout, home, [answer] { (*answer)(false); });
    std::thread(Ask, path, question, answer).detach();
}

} // namespace quill
