#include "persistence/line_reader.h"

#include "persistence/text_values.h"

namespace quill {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

std::string_view TakeLine(std::string_view& rest) {
    const std::size_t feed = rest.find('\n');
    const std::string_view line = rest.substr(0, feed == rest.npos ? rest.size() : feed + 1);
    rest.remove_prefix(line.size());
    return line;
}

} // namespace

void PrepareText(std::string& bytes) {
    if (IsUtf8(bytes)) return;
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (std::string_view rest = bytes; !rest.empty();) {
        const std::string_view line = TakeLine(rest);
        if (IsUtf8(line))
            text.append(line);
        else
            AppendFromWindows1252(text, line);
    }
    bytes = std::move(text);
}

LineReader::LineReader(std::string_view bytes) {
    if (bytes.starts_with(ByteOrderMark)) bytes.remove_prefix(ByteOrderMark.size());
    at_ = bytes.data();
    end_ = bytes.data() + bytes.size();
}

} // namespace quill
