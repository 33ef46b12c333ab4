// ActivationToken: the word of the desktop that a program may come to the front which a person has started
// just now. It carries the server's present time, so that the window manager lets its window through though
// the person was at work elsewhere, or the workspace goes away meanwhile. The program finds it in its
// environment, the window manager hears of it as a startup notice.
#pragma once

#include <string>

namespace quill {

// Whether the desktop shows that something is starting. Only for who is known to tell when it is there: for
// anything else a busy pointer would stand for many seconds after a program that never shows a window.
enum class Feedback { No, Yes };

// Announces the start; the token is empty where there is no X server. program is a path or a name.
std::string AnnounceStart(const std::string& name, const std::string& program, Feedback feedback);
// The program is there, or will never be.
void EndStartNotice(const std::string& token);

} // namespace quill
