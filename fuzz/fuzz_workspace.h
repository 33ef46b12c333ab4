// What the fuzz targets share: an empty workspace on a fake computer that loads, and a way to say what must
// hold.
#pragma once

#include "core/frmMain.h"
#include "fake/computer.h"

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace quill::fuzz {

struct Workspace {
    fake::Computer Computer;
    frmMain Main{Computer.MakePlatform()};
};

inline void Require(bool holds) {
    if (!holds) std::abort();
}

} // namespace quill::fuzz
