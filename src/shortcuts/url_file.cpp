#include "shortcuts/url_file.h"

#include "shortcuts/foreign_text.h"

namespace quill {
namespace {

std::string_view Unquoted(std::string_view value) {
    const bool quoted = value.size() >= 2 && value.front() == '"' && value.back() == '"';
    return quoted ? WithoutBlanks(value.substr(1, value.size() - 2)) : value;
}

} // namespace

std::optional<std::string> ReadUrlFile(std::string_view bytes) {
    const std::string text = FromTextFile(bytes);
    bool inGroup = false;
    for (std::string_view rest = text; !rest.empty();) {
        const auto line = TakeLine(rest);
        if (line.starts_with('[')) {
            inGroup = SameInAnyCase(line, "[internetshortcut]");
            continue;
        }
        const auto equals = line.find('=');
        if (!inGroup || equals == line.npos) continue;
        if (!SameInAnyCase(WithoutBlanks(line.substr(0, equals)), "url")) continue;
        const auto address = Unquoted(WithoutBlanks(line.substr(equals + 1)));
        return address.empty() ? std::nullopt : std::optional<std::string>(address);
    }
    return std::nullopt;
}

} // namespace quill
