#include "keyboard/web_search.h"

#include <array>

namespace quill {
namespace {

constexpr std::string_view Placeholder = "%s";

constexpr std::array<SearchEngine, 7> Engines{{
    {"Google", "https://www.google.com/search?q=%s"},
    {"Bing", "https://www.bing.com/search?q=%s"},
    {"Yahoo", "https://search.yahoo.com/search?p=%s"},
    {"DuckDuckGo", "https://duckduckgo.com/?q=%s"},
    {"Baidu", "https://www.baidu.com/s?wd=%s"},
    {"Yandex", "https://yandex.com/search/?text=%s"},
    {"Wolfram|Alpha", "https://www.wolframalpha.com/input/?i=%s"},
}};

bool IsUnreserved(char letter) {
    return (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z') ||
           (letter >= '0' && letter <= '9') || letter == '-' || letter == '.' || letter == '_' ||
           letter == '~';
}

std::string PercentEncoded(std::string_view text) {
    static constexpr char Hex[] = "0123456789ABCDEF";
    std::string encoded;
    for (const char letter : text) {
        if (IsUnreserved(letter)) {
            encoded += letter;
            continue;
        }
        const auto byte = static_cast<unsigned char>(letter);
        encoded += '%';
        encoded += Hex[byte >> 4];
        encoded += Hex[byte & 15];
    }
    return encoded;
}

} // namespace

std::span<const SearchEngine> SearchEngines() {
    return Engines;
}

std::string SearchAddress(std::string_view address, std::string_view query) {
    const std::string encoded = PercentEncoded(query);
    std::string whole;
    for (auto at = address.find(Placeholder); at != std::string_view::npos; at = address.find(Placeholder)) {
        whole.append(address.substr(0, at)).append(encoded);
        address.remove_prefix(at + Placeholder.size());
    }
    return whole.append(address);
}

std::string WebSearchAddress(const frmMain& Main) {
    const std::string& chosen = Main.Settings.WebSearch;
    return chosen.empty() ? std::string(Engines.front().Address) : chosen;
}

} // namespace quill
