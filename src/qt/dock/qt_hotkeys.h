// QtHotkeys: the hotkey port: a key of the X server, and, in a session that lets programs hear no keys of
// others, a wish to the desktop's portal beside it.
#pragma once

#include "platform/hotkeys.h"
#include "qt/core/display.h"

#include <memory>

namespace quill {

class QtHotkeys : public Hotkeys {
public:
    QtHotkeys(const Attachment& attached, const DisplayHolder& display);
    ~QtHotkeys() override;

    Status RegisterHotKey(int modifiers, int key) override;
    void UnregisterHotKey() override;

private:
    class Keys;
    const Attachment& attached_;
    const DisplayHolder& display_;
    std::unique_ptr<Keys> keys_; // made for the first key
};

} // namespace quill
