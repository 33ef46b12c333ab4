#include "containers/layout.h"

namespace quill {

void ScrollIntoView(frmMain& Main, int Index, const Rect& place) {
    const auto& view = Main.ConView(Index);
    const auto& frame = view.ContainerFrame.Place;
    if (place.Top < frame.Top || place.Height > frame.Height)
        ScrollContainer(Main, Index, view.ScrollTop + place.Top - frame.Top);
    else if (place.Bottom() > frame.Bottom())
        ScrollContainer(Main, Index, view.ScrollTop + place.Bottom() - frame.Bottom());
}

} // namespace quill
