// The fake computer's pictures: a path has the size that a test gives it; any other is no picture.
#pragma once

#include "platform/drawing.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace quill::fake {

class FakeImages : public Images {
public:
    Size PictureSize(const std::string& path) const override {
        const auto found = Sizes.find(path);
        if (found != Sizes.end()) return found->second;
        return OnSize ? OnSize(path) : Size{};
    }
    PixelGrid PixelsOf(const IconSource& source, int) const override {
        const auto found = Pixels.find(source.File);
        return found == Pixels.end() ? PixelGrid{} : found->second;
    }
    void Forget(const std::string& path) override { Forgotten.push_back(path); }

    std::map<std::string, Size> Sizes;
    std::function<Size(const std::string&)> OnSize; // for files whose names nobody knows before
    std::map<std::string, PixelGrid> Pixels;        // by file
    std::vector<std::string> Forgotten;
};

} // namespace quill::fake
