#include "containers/new_place.h"

#include "containers/measures.h"

#include <algorithm>

namespace quill {
namespace {

constexpr float stepAside = 300; // twips, about a title row
constexpr int mostSteps = 20;

bool StandsAt(const frmMain& Main, Point corner) {
    for (const auto& row : Live(Main.Containers)) {
        const auto& place = Main.ConView(row.Index).Container.Place;
        if (place.Left == corner.X && place.Top == corner.Y) return true;
    }
    return false;
}

} // namespace

void ChooseNewPlace(frmMain& Main) {
    const auto& back = Main.View.picBack.Place;
    const float edge = measures::NewContainerEdge + measures::EdgeGap;
    const float top = Main.View.picMoveMe.Place.Bottom();
    const float right = std::max(0.0F, back.Width - edge), bottom = std::max(top, back.Height - edge);
    Point& place = Main.Group.NewContainerPos;
    place = {std::clamp(place.X, 0.0F, right), std::clamp(place.Y, top, bottom)};
    const Point step{place.X + stepAside > right ? -stepAside : stepAside,
                     place.Y + stepAside > bottom ? -stepAside : stepAside};
    for (int tries = 0; tries < mostSteps && StandsAt(Main, place); ++tries)
        place = {std::clamp(place.X + step.X, 0.0F, right), std::clamp(place.Y + step.Y, top, bottom)};
}

} // namespace quill
