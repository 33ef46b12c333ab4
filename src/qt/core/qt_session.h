// QtSession: the process on its desktop: the connection to the display, the event loop, and the words from
// outside that reach it, as a second start, a signal, the end of the session, a monitor that was plugged in.
#pragma once

#include "platform/places.h"
#include "platform/session.h"
#include "platform/work.h"
#include "qt/core/display.h"
#include "qt/core/end_signals.h"
#include "qt/core/open_questions.h"
#include "qt/system/accent_color.h"
#include "qt/system/motion_wish.h"

#include <QSocketNotifier>
#include <QTimer>

#include <memory>
#include <optional>

namespace quill {

class InstancePosix;

// The parts of the backend that the session ties together.
struct SessionParts {
    Attachment& Attached;
    DisplayHolder& Display;
    OpenQuestions& Questions;
    InstancePosix& Instance;
    const quill::Places& Places;
    quill::Worker& Worker;
};

class QtSession : public Session {
public:
    explicit QtSession(const SessionParts& parts);
    ~QtSession() override;

    Status OpenDisplay() override;
    void Attach(frmMain& main) override;
    void Detach() override;
    int Run() override;
    void Quit(int code) override;
    void ProcessPending() override;
    void ShowSplashNow() override;
    bool ReducedMotion() const override;
    Color AccentColor() const override;
    void PrintOut(const std::string& text) override;
    void PrintError(const std::string& text) override;

private:
    void EndWished();
    void EndNow();
    void WatchInstance();
    void WatchScreens();
    void TakeCalls();

    SessionParts parts_;
    ToolkitArguments arguments_;
    int code_ = 0;
    bool quit_ = false;
    bool endWished_ = false;
    MotionWish motion_;
    quill::AccentColor accent_;
    std::unique_ptr<EndSignals> signals_;
    std::unique_ptr<QSocketNotifier> calls_;
    std::unique_ptr<QTimer> screens_; // runs while monitors are still changing
};

} // namespace quill
