// Name order: the order in which a person expects names: without regard to case, numbers by their value ("2"
// before "10"), letters with accents beside those without. Knows no language.
#pragma once

#include <string_view>

namespace quill {

// Below 0: the first comes first; 0: neither does ("Work", "WORK"; "7", "07").
int CompareNames(std::string_view first, std::string_view second);

} // namespace quill
