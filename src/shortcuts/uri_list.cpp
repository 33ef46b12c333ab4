#include "shortcuts/uri_list.h"

#include "core/lower_case.h"

#include <algorithm>

namespace quill {
namespace {

constexpr std::string_view fileScheme = "file:";

bool IsLetter(char letter) {
    return LowerAscii(letter) >= 'a' && LowerAscii(letter) <= 'z';
}

bool IsDigit(char letter) {
    return letter >= '0' && letter <= '9';
}

bool EqualAnyCase(std::string_view one, std::string_view other) {
    return std::ranges::equal(one, other, {}, LowerAscii, LowerAscii);
}

// Some programs end the list as they end a string.
std::string_view NextLine(std::string_view& rest) {
    constexpr std::string_view ends("\r\n\0", 3);
    const auto end = rest.find_first_of(ends);
    const auto line = rest.substr(0, end);
    rest.remove_prefix(end == rest.npos ? rest.size() : end + 1);
    return line;
}

int HexDigit(char digit) {
    const char lower = LowerAscii(digit);
    if (IsDigit(lower)) return lower - '0';
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

// "file:///path", "file://host/path" and "file:/path"; empty for what is no path of this machine.
std::string PathOf(std::string_view uri, std::string_view host) {
    uri.remove_prefix(fileScheme.size());
    if (uri.starts_with("//")) {
        uri.remove_prefix(2);
        const auto named = uri.substr(0, uri.find('/'));
        if (!named.empty() && !EqualAnyCase(named, "localhost") && !EqualAnyCase(named, host)) return {};
        uri.remove_prefix(named.size());
    }
    std::string path = PercentDecoded(uri);
    return path.starts_with('/') && path.find('\0') == path.npos ? path : std::string();
}

// A letter, then letters, digits, "+", "-" and ".", up to a colon.
bool HasScheme(std::string_view uri) {
    const auto scheme = uri.substr(0, uri.find(':'));
    if (scheme.empty() || scheme.size() == uri.size() || !IsLetter(scheme.front())) return false;
    return std::ranges::all_of(scheme, [](char letter) {
        return IsLetter(letter) || IsDigit(letter) || letter == '+' || letter == '-' || letter == '.';
    });
}

bool StandsInUri(char letter) {
    constexpr std::string_view others = "/-._~!$&'()*+,;=:@";
    return IsLetter(letter) || IsDigit(letter) || others.find(letter) != others.npos;
}

} // namespace

UriList ReadUriList(std::string_view text, std::string_view host) {
    UriList list;
    for (int read = 0; !text.empty() && read < MostUris;) {
        const auto line = NextLine(text);
        if (line.empty() || line.front() == '#') continue;
        ++read;
        if (!EqualAnyCase(line.substr(0, fileScheme.size()), fileScheme)) {
            if (HasScheme(line)) list.Addresses.emplace_back(line);
        } else if (std::string path = PathOf(line, host); !path.empty()) {
            list.Files.push_back(std::move(path));
        }
    }
    return list;
}

std::string PercentDecoded(std::string_view text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool coded = text[at] == '%' && at + 2 < text.size();
        const int high = coded ? HexDigit(text[at + 1]) : -1, low = high >= 0 ? HexDigit(text[at + 2]) : -1;
        plain += low >= 0 ? static_cast<char>(high * 16 + low) : text[at];
        if (low >= 0) at += 2;
    }
    return plain;
}

std::string FileUri(std::string_view path) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string uri = "file://";
    for (const char letter : path) {
        const auto byte = static_cast<unsigned char>(letter);
        if (StandsInUri(letter))
            uri += letter;
        else
            uri.append({'%', digits[byte >> 4], digits[byte & 15]});
    }
    return uri;
}

} // namespace quill
