// URL file: the reader of ".url" files.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quill {

// The address, UTF-8; nothing for what is no such file or has none.
std::optional<std::string> ReadUrlFile(std::string_view bytes);

} // namespace quill
