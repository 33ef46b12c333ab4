// IconTheme: the desktop's icon theme, or, on a desktop that names none, the best one that is installed.
// Asked on the one thread only, and never before the first picture is on the screen: a theme is slow to open.
#pragma once

#include <QImage>

#include <string>
#include <vector>

namespace quill {

class IconTheme {
public:
    // The first of the names that the theme has; null for none. Sides are device pixels.
    QImage Draw(const std::vector<std::string>& names, int side);

private:
    void Choose();
    bool chosen_ = false;
};

} // namespace quill
