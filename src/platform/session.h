// Session: the process and the desktop it runs on. It opens the display only when it is asked to, so that
// what needs none (help, backup, a second start) never pays for one.
#pragma once

#include "platform/geometry.h"
#include "platform/result.h"

#include <string>

namespace quill {

struct frmMain;

class Session {
public:
    virtual ~Session() = default;

    // Connects to the display and makes the toolkit ready. A second call does nothing.
    virtual Status OpenDisplay() = 0;
    // From here on events of the toolkit reach this workspace through core/handlers.h, and its marks are
    // drained to the screen once a turn.
    virtual void Attach(frmMain& main) = 0;
    virtual void Detach() = 0;
    // The event loop; returns the code given to Quit.
    virtual int Run() = 0;
    // Ends the outermost loop as soon as it is back in it; open questions are cancelled innermost first.
    virtual void Quit(int code) = 0;
    // Lets what is pending run once, where a told order says so.
    virtual void ProcessPending() = 0;
    // Paints the splash with what its text says now, and lets no other event through: nothing may act on a
    // workspace that is half loaded.
    virtual void ShowSplashNow() = 0;

    // A person who asked the desktop for less motion gets no effects.
    virtual bool ReducedMotion() const = 0;
    // The desktop's accent colour; where it has none, what it marks selected things with.
    virtual Color AccentColor() const = 0;

    virtual void PrintOut(const std::string& text) = 0;
    virtual void PrintError(const std::string& text) = 0;
};

} // namespace quill
