// clsHeadLine: one article of a news feed. Belongs to a feed, never saved with the workspace.
#pragma once

#include <string>

namespace quill {

struct clsHeadLine {
    std::string HeadLine;
    std::string Description;
    std::string ArticleLink;
};

} // namespace quill
