// The fake computer's keys of the whole desktop.
#pragma once

#include "platform/hotkeys.h"

#include <optional>
#include <set>
#include <utility>

namespace quill::fake {

class FakeHotkeys : public Hotkeys {
public:
    using Key = std::pair<int, int>; // modifiers, key code

    Status RegisterHotKey(int modifiers, int key) override {
        ++Asked;
        Held.reset();
        if (Taken.contains({modifiers, key})) return Failure{Reason::Refused, "another program has the key"};
        Held = Key{modifiers, key};
        return {};
    }
    void UnregisterHotKey() override { Held.reset(); }

    std::optional<Key> Held;
    std::set<Key> Taken; // by other programs
    int Asked = 0;       // calls that reached the system
};

} // namespace quill::fake
