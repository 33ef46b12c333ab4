// AccentColor: the colour that the person has chosen to set marks with on the whole desktop. The desktop is
// asked once the first picture stands and never waited for; until it answers, and where there is nobody to
// answer or no such choice, there is none. A change of mind is followed while the program runs.
#pragma once

#include <QColor>

#include <memory>
#include <optional>

namespace quill {

class AccentColor {
public:
    AccentColor();
    ~AccentColor();

    void Begin(); // to be called once, with the event loop running
    std::optional<QColor> Get() const;

private:
    class Portal;
    std::unique_ptr<Portal> portal_;
};

} // namespace quill
