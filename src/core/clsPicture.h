// clsPicture: the record of a picture. Its place is kept by the PictureView of the same index.
#pragma once

#include <cstdint>
#include <string>

namespace quill {

struct clsPicture {
    std::string Comment;
    std::string Path;          // may begin with the drive marker "@"
    std::int32_t counter = -1; // slideshow position; -1 stopped, 0 or more running there
};

} // namespace quill
