// Checksum: 64 bits that tell whether a file still holds what was written. It guards against chance (a torn
// write, a stray edit), not against people.
#pragma once

#include <cstdint>
#include <string_view>

namespace quill {

std::uint64_t Checksum(std::string_view bytes);

} // namespace quill
