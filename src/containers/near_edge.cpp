#include "containers/near_edge.h"

#include "containers/measures.h"

#include <algorithm>

namespace quill {

void KeepAboveLowerEdge(frmMain& Main, int Index, bool runsOff) {
    auto& container = Main.Con(Index);
    auto& place = Main.ConView(Index).Container.Place;
    container.CloseToEdgeY = runsOff;
    if (!runsOff) return;
    container.SetSize({.Y = place.Top});
    const float fitting = Main.View.picBack.Place.Height - (place.Height + measures::EdgeGap);
    const float title = Main.View.picMoveMe.Place.Bottom();
    place.Top = std::max(fitting, title);
}

} // namespace quill
