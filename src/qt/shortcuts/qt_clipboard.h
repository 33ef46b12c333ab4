// QtClipboard: the clipboard port, over the formats of qt/shortcuts/foreign_data.h and plain text.
#pragma once

#include "platform/clipboard.h"
#include "qt/core/display.h"

namespace quill {

class QtClipboard : public Clipboard {
public:
    explicit QtClipboard(const DisplayHolder& display) : display_(display) {}

    ClipboardData Read() const override;
    bool HasSomething() const override;

private:
    const DisplayHolder& display_;
};

} // namespace quill
