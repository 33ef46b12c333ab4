// The fake computer's clipboard.
#pragma once

#include "platform/clipboard.h"

namespace quill::fake {

class FakeClipboard : public Clipboard {
public:
    ClipboardData Read() const override { return Data; }
    bool HasSomething() const override {
        return !Data.Files.empty() || !Data.Addresses.empty() || !Data.Text.empty();
    }

    ClipboardData Data;
};

} // namespace quill::fake
