// Web search: the address of a query, and the search engines that are offered.
#pragma once

#include "core/frmMain.h"

#include <span>
#include <string>
#include <string_view>

namespace quill {

struct SearchEngine {
    std::string_view Name;
    std::string_view Address; // "%s" is the query
};
std::span<const SearchEngine> SearchEngines(); // in the order of the settings' list

// "%s" in the address replaced in one pass by the percent-encoded query.
std::string SearchAddress(std::string_view address, std::string_view query);
// [Web Search], or the first engine where it is empty.
std::string WebSearchAddress(const frmMain& Main);

} // namespace quill
