// QtPlatform: the backend as a whole, every port over Qt, GIO, libzip and the C library. Cheap to make:
// whatever belongs to the toolkit is made when the display is opened, so that a start which needs no window
// does not pay for one.
#pragma once

#include "platform/platform.h"

#include <memory>

namespace quill::qt {

class QtPlatform {
public:
    QtPlatform(int& argc, char** argv);
    ~QtPlatform();

    Platform Ports();

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace quill::qt
