#include "qt/shortcuts/first_window.h"

#include "qt/dock/x11.h"
#include "qt/shortcuts/activation_token.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QObject>
#include <QTimer>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <unistd.h>
#include <vector>
#include <xcb/xcb.h>

namespace quill {
namespace {

namespace x11 = qt::x11;

constexpr int lookAfter = 500; // milliseconds; whether the program still lives
constexpr int looks = 30;      // a program that shows nothing in fifteen seconds shows nothing at all
constexpr std::uint32_t iconic = 3, addState = 1, sourcePager = 2;

void ApplyShow(x11::WindowId window, int show) {
    if (show == 2) x11::TellWindowManager(window, "WM_CHANGE_STATE", {iconic});
    if (show == 3)
        x11::TellWindowManager(window, "_NET_WM_STATE",
                               {addState, x11::Atom("_NET_WM_STATE_MAXIMIZED_VERT"),
                                x11::Atom("_NET_WM_STATE_MAXIMIZED_HORZ"), sourcePager});
}

// A window names the start it comes from, by itself or through the one that leads its group.
bool BearsToken(x11::WindowId window, const std::string& token) {
    if (x11::Text(window, "_NET_STARTUP_ID") == token) return true;
    const auto leader = x11::Numbers(window, "WM_CLIENT_LEADER");
    return !leader.empty() && x11::Text(leader.front(), "_NET_STARTUP_ID") == token;
}

// Deletes itself, and ends the notice with that.
class Watch final : public QObject, private QAbstractNativeEventFilter {
public:
    // What is started has a session of its own, which its own children are in too.
    explicit Watch(StartedProgram program)
        : QObject(qApp), program_(std::move(program)),
          session_(program_.Number > 0 ? ::getsid(program_.Number) : -1) {
        qApp->installNativeEventFilter(this);
        timer_.callOnTimeout(this, [this] { LookAtProgram(); });
        timer_.start(lookAfter);
        LookAtWindows();
    }
    ~Watch() override { EndStartNotice(program_.Token); }

private:
    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override {
        const auto* event = static_cast<const xcb_generic_event_t*>(message);
        if ((event->response_type & 0x7f) != XCB_PROPERTY_NOTIFY) return false;
        const auto* notice = reinterpret_cast<const xcb_property_notify_event_t*>(event);
        if (notice->window == x11::Root() && notice->atom == x11::Atom("_NET_CLIENT_LIST")) LookAtWindows();
        return false;
    }

    void LookAtWindows() {
        for (const x11::WindowId window : x11::Numbers(x11::Root(), "_NET_CLIENT_LIST")) {
            if (done_ || std::ranges::find(seen_, window) != seen_.end()) continue;
            seen_.push_back(window);
            if (!x11::IsOurs(window) && IsItsOwn(window)) Found(window);
        }
    }

    bool IsItsOwn(x11::WindowId window) const {
        if (BearsToken(window, program_.Token)) return true;
        const auto number = x11::Numbers(window, "_NET_WM_PID");
        return session_ > 0 && !number.empty() && ::getsid(static_cast<pid_t>(number.front())) == session_;
    }

    void Found(x11::WindowId window) {
        ApplyShow(window, program_.Show);
        End();
    }

    // One that has handed its work to a copy of itself that ran already is gone too, and no window is to
    // come.
    void LookAtProgram() {
        const bool gone = program_.Number > 0 && ::kill(program_.Number, 0) == -1 && errno == ESRCH;
        if (gone || ++looked_ == looks) End();
    }

    void End() {
        done_ = true;
        timer_.stop();
        deleteLater();
    }

    StartedProgram program_;
    pid_t session_;                   // -1: not known
    std::vector<x11::WindowId> seen_; // and not its own
    QTimer timer_;
    int looked_ = 0;
    bool done_ = false;
};

} // namespace

void FollowFirstWindow(const StartedProgram& program) {
    if (!program.Token.empty() && x11::IsPresent()) new Watch(program);
}

} // namespace quill
