// Foreign text: what programs of other systems have written into their files, as UTF-8. Nothing in it is
// trusted: what can't be read becomes a letter that stands for it, and no byte is read twice.
#pragma once

#include <string>
#include <string_view>

namespace quill {

// Pairs of bytes, the lower first or the higher; halves without their other half become U+FFFD, and a single
// byte at the end is left out.
enum class ByteOrder { LowFirst, HighFirst };
std::string FromUtf16(std::string_view bytes, ByteOrder order);
std::string FromWindows1252(std::string_view bytes);

// A whole text file: by its byte order mark, else UTF-8, and each line that is not in it as Windows-1252.
// Lines end in LF afterwards, whatever they ended in.
std::string FromTextFile(std::string_view bytes);
// The next line of such a text, without blanks at its ends; rest is what follows it.
std::string_view TakeLine(std::string_view& rest);
// One line as it can be shown: control characters are blanks, and all of it is letters.
std::string ShownLine(std::string_view text);

std::string_view WithoutBlanks(std::string_view text); // at both ends
bool EndsInAnyCase(std::string_view text, std::string_view lowerEnding);
bool SameInAnyCase(std::string_view text, std::string_view lower);

} // namespace quill
