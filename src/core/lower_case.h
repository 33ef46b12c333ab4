// Lower case for comparing, in every alphabet that has two cases. Knows no language: what a person reads is
// never made with it.
#pragma once

#include <string>
#include <string_view>

namespace quill {

constexpr char LowerAscii(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}
std::string LowerCase(std::string_view utf8); // bytes that are no UTF-8 stay as they are

} // namespace quill
