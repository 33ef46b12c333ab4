#include "qt/core/end_signals.h"

#include <csignal>
#include <fcntl.h>

namespace quill {
namespace {

constexpr int endings[] = {SIGTERM, SIGINT, SIGHUP};

// A signal handler is given nothing but a number, so the way out of it can stand nowhere else. Signals are
// not blocked and read instead, because every program that is started from here would inherit that.
volatile std::sig_atomic_t wayOut = -1;

void Heard(int) {
    const int keep = errno;
    const char word = 1;
    [[maybe_unused]] const auto written = write(wayOut, &word, 1);
    errno = keep;
}

void Listen(void (*handler)(int)) {
    for (const int number : endings) {
        struct sigaction action {};
        action.sa_handler = handler;
        action.sa_flags = SA_RESTART;
        sigaction(number, &action, nullptr);
    }
}

void Drain(int fd) {
    char words[16];
    while (read(fd, words, sizeof words) > 0) {
    }
}

} // namespace

EndSignals::EndSignals(std::function<void()> told) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) return;
    hear_ = Descriptor(ends[0]);
    say_ = Descriptor(ends[1]);
    wayOut = ends[1];
    notifier_ = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [this, told = std::move(told)] {
                         Drain(hear_.Get());
                         told();
                     });
    Listen(&Heard);
}

// From here on the end is near anyway, and must not be cut short.
EndSignals::~EndSignals() {
    if (wayOut == -1) return;
    Listen(SIG_IGN);
    wayOut = -1;
}

} // namespace quill
