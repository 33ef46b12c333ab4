// QtImages: the port that asks about picture files.
#pragma once

#include "platform/drawing.h"

namespace quill {

struct DisplayHolder;

class QtImages : public Images {
public:
    explicit QtImages(const DisplayHolder& display) : display_(display) {}

    Size PictureSize(const std::string& path) const override;
    PixelGrid PixelsOf(const IconSource& source, int edgePixels) const override;
    void Forget(const std::string& path) override;

private:
    const DisplayHolder& display_;
};

} // namespace quill
