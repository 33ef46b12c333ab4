// TrayArrival: tells when the desktop has a notification area, of either of the two kinds: one that is
// reached over the session bus, or one of the X server. Both may come long after this program and neither is
// waited for or looked for by the clock; a word of theirs says that they are there.
//
// The toolkit can choose the kind only once and asks for it with a call that waits for the answer. So its
// icon is to be made only when this has said that there is somebody to answer.
#pragma once

#include <functional>
#include <memory>

namespace quill::qt {

class TrayArrival {
public:
    // The call comes at most once, from the event loop.
    explicit TrayArrival(std::function<void()> arrived);
    ~TrayArrival();

private:
    class Watch;
    std::unique_ptr<Watch> watch_;
};

} // namespace quill::qt
