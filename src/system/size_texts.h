// Sizes in bytes as people read them. Both take the two halves of a 64-bit count.
#pragma once

#include <cstdint>
#include <string>

namespace quill {

// By powers of 1024, without trailing zeros: "1023 bytes", "1.5 KB", "3.25 GB".
std::string NumberInKB(std::uint32_t Low, std::int32_t High);
// Of files, in three significant digits: "999 Bytes", "1.00 KB". Empty for a negative size, "0" for none.
std::string formatFileSize(std::uint32_t Low, std::int32_t High);

} // namespace quill
