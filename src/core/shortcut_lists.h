// Shortcut lists: which shortcuts lie in which parent, found in one walk over the views, so that painting
// fifty containers does not walk twelve thousand shortcuts fifty times. A list may be older than the tables:
// each of its entries is asked again whether it lives and lies there still.
#pragma once

#include "core/frmMain.h"

#include <cstdint>
#include <span>
#include <vector>

namespace quill {

class ShortcutLists {
public:
    explicit ShortcutLists(const frmMain& Main);

    // Live shortcuts in table order.
    template <class Act> void Each(const frmMain& Main, const Parent& in, const Act& act) const {
        for (const int index : Of(in))
            if (IsLive(Main.Shortcuts, index) && Main.LinkView(index).In == in) act(index);
    }

private:
    std::span<const std::int32_t> Of(const Parent& in) const;

    std::vector<std::int32_t> rows_; // sorted by place; place 0 is the workspace, place i + 1 the container i
    std::vector<std::uint32_t> starts_; // of each place in rows_
};

} // namespace quill
