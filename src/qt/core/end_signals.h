// EndSignals: the system's wish that the program ends (SIGTERM, SIGINT, SIGHUP), brought to the event loop.
// Until the loop runs a signal waits; a second one while the first is being followed changes nothing.
#pragma once

#include "posix/descriptor.h"

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace quill {

class EndSignals {
public:
    explicit EndSignals(std::function<void()> told);
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

private:
    Descriptor hear_, say_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace quill
