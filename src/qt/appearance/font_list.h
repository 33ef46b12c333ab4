// FontList: the fonts of the system, listed on a thread of its own while the display is being opened. The
// list is what takes longest before a first text can be shown, and needs no display.
#pragma once

#include <thread>

namespace quill {

class FontList {
public:
    FontList(); // begins
    ~FontList() { Wait(); }
    FontList(const FontList&) = delete;
    FontList& operator=(const FontList&) = delete;

    void Wait(); // before the first font is asked for: two at the same time would list them twice

private:
    std::thread thread_;
};

} // namespace quill
