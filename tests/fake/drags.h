// The fake computer's drags: what was carried is written down, and a scene of the test carries it on.
#pragma once

#include "platform/drags.h"

#include <functional>
#include <vector>

namespace quill::fake {

class FakeDrags : public Drags {
public:
    DropAnswer StartDrag(const DragData& data, float, float) override {
        Started.push_back(data);
        return OnDrag ? OnDrag(data) : DropAnswer::Refused;
    }

    std::function<DropAnswer(const DragData&)> OnDrag; // empty: let go where nobody takes it
    std::vector<DragData> Started;
};

} // namespace quill::fake
