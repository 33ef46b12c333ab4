// Started: what belongs to every start of a program that shows windows: its notice to the desktop before, and
// behind it its name at the service manager and the look at its first window.
#pragma once

#include "qt/shortcuts/activation_token.h"

#include <string>

namespace quill {

class StartNotice {
public:
    // caption is for people, program a path or a name.
    StartNotice(const std::string& caption, const std::string& program, Feedback feedback);
    ~StartNotice(); // nothing was started
    StartNotice(const StartNotice&) = delete;
    StartNotice& operator=(const StartNotice&) = delete;

    const std::string& Token() const { return token_; } // empty without an X server
    void Runs(int process, int show);                   // 0: its number is not known

private:
    std::string name_, token_;
    bool runs_ = false;
};

} // namespace quill
