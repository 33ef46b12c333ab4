// MotionWish: whether the person has asked the desktop for less motion. The desktop is asked once the first
// picture stands and never waited for; until it answers, and where there is nobody to answer, there is no
// such wish. A change of mind is followed while the program runs.
#pragma once

#include <memory>

namespace quill {

class MotionWish {
public:
    MotionWish();
    ~MotionWish();

    void Begin(); // to be called once, with the event loop running
    bool IsForLess() const;

private:
    class Portal;
    std::unique_ptr<Portal> portal_;
};

} // namespace quill
