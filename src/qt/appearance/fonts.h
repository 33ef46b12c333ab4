// Fonts: Qt fonts for the logic's font records, each made once. A point is 96/72 of a device-independent
// pixel whatever the desktop's own resolution says, since all measures of the workspace are.
#pragma once

#include "platform/texts.h"

#include <QFont>
#include <QFontMetricsF>

#include <map>
#include <string>
#include <tuple>

namespace quill {

struct FontEntry {
    QFont Font;
    QFontMetricsF Metrics;
};

class Fonts {
public:
    const FontEntry& Get(const FontSpec& spec) const;

private:
    using Key = std::tuple<std::string, float, int, int>; // name, points, style bits, weight
    mutable std::map<Key, FontEntry> made_;
};

} // namespace quill
