#include "core/clsContainer.h"

namespace quill {

void clsContainer::SetShrinkSize(std::int32_t width, std::int32_t height) {
    if (width != 0) shrink_.Width = width;
    if (height != 0) shrink_.Height = height;
}

void clsContainer::SetReminder(bool is, int year, int month, int day, int hour, int minute,
                               const std::string& readable) {
    const auto narrow = [](int value) { return static_cast<std::int16_t>(value); };
    reminder_.IsReminder = is;
    reminder_.Year = narrow(year);
    reminder_.Month = narrow(month);
    reminder_.Day = narrow(day);
    reminder_.Hour = narrow(hour);
    reminder_.Minute = narrow(minute);
    if (!readable.empty()) reminder_.ReadbleTimeString = readable;
}

void clsContainer::Apply(const RectChange& change, StoredRect& rect) {
    rect.X = change.X.value_or(rect.X);
    rect.Y = change.Y.value_or(rect.Y);
    rect.H = change.H.value_or(rect.H);
    rect.W = change.W.value_or(rect.W);
}

} // namespace quill
