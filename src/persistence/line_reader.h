// Line reader: a whole file in memory, line by line, with no copy. Lines end in CR LF or LF; a byte order
// mark is ignored. Knows nothing of tags; it counts lines so that a message can name one.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace quill {

inline constexpr std::uint64_t MaxFileBytes = 256ULL * 1024 * 1024;
inline constexpr std::size_t MaxLineBytes = 4UL * 1024 * 1024;

// Makes the bytes of a file fit for the readers: each line that is not UTF-8 is read as Windows-1252. Nearly
// every file passes untouched.
void PrepareText(std::string& bytes);

class LineReader {
public:
    explicit LineReader(std::string_view bytes);

    // False at the end, and at a line that is too long.
    bool Next(std::string_view& line) {
        if (at_ == end_) return false;
        const auto* const feed = static_cast<const char*>(std::memchr(at_, '\n', Left()));
        const char* const stop = feed ? feed : end_;
        std::size_t length = static_cast<std::size_t>(stop - at_);
        ++line_;
        if (length > MaxLineBytes) return TooLong();
        if (length > 0 && at_[length - 1] == '\r') --length;
        line = {at_, length};
        at_ = feed ? feed + 1 : end_;
        return true;
    }

    // Number of the line read last, from 1; 0 before the first.
    std::size_t Line() const { return line_; }
    bool HitLongLine() const { return long_; }
    std::string_view Rest() const { return {at_, Left()}; }

private:
    std::size_t Left() const { return static_cast<std::size_t>(end_ - at_); }
    bool TooLong() {
        long_ = true;
        at_ = end_;
        return false;
    }

    const char* at_;
    const char* end_;
    std::size_t line_ = 0;
    bool long_ = false;
};

} // namespace quill
