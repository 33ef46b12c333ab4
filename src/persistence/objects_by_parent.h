// Objects by parent: which shortcuts and pictures lie where, found in one walk over the tables, so that
// writing fifty containers does not walk twelve thousand shortcuts fifty times. A value of the moment: it is
// made for one save and not kept.
#pragma once

#include "core/views.h"

#include <cstdint>
#include <span>
#include <vector>

namespace quill {

struct frmMain;

class ObjectsByParent {
public:
    explicit ObjectsByParent(const frmMain& Main);

    // Live rows in table order.
    std::span<const std::int32_t> ShortcutsIn(const Parent& parent) const { return shortcuts_.Of(parent); }
    // Live rows, bottom of the stack first.
    std::span<const std::int32_t> PicturesIn(const Parent& parent) const { return pictures_.Of(parent); }

private:
    // Rows sorted by place; place 0 is the workspace, place i + 1 the container i.
    struct Bucketed {
        std::vector<std::int32_t> Rows;
        std::vector<std::uint32_t> Starts;
        std::span<const std::int32_t> Of(const Parent& parent) const;
    };
    template <class View>
    static Bucketed Bucket(const std::vector<std::int32_t>& rows, const std::vector<View>& views,
                           std::size_t places);

    Bucketed shortcuts_, pictures_;
};

} // namespace quill
