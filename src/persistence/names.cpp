#include "persistence/names.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace quill {
namespace {

char Lower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
}

bool SameLetter(char one, char other) {
    return Lower(one) == Lower(other);
}

int LeadingNumber(std::string_view name) {
    int number = std::numeric_limits<int>::max();
    std::from_chars(name.data(), name.data() + name.size(), number);
    return number;
}

} // namespace

std::string ContainerName(int number, std::string_view extension) {
    std::string name(ContainersFolder);
    name += '/';
    name += std::to_string(number);
    name += extension;
    return name;
}

std::string_view BareName(std::string_view name) {
    const auto slash = name.rfind('/');
    return slash == name.npos ? name : name.substr(slash + 1);
}

std::optional<int> NumberOf(std::string_view name, std::string_view extension) {
    const auto bare = BareName(name);
    if (!bare.ends_with(extension)) return {};
    const auto digits = bare.substr(0, bare.size() - extension.size());
    int number = -1;
    const auto [end, trouble] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (trouble != std::errc() || std::to_string(number) != digits) return {};
    return number < 0 ? std::nullopt : std::optional(number);
}

std::string FreeName(const FileReader& files, const std::string& path) {
    std::string name = path;
    for (int next = 2; files.Exists(name); ++next) name = path + std::to_string(next);
    return name;
}

std::string AsideName(const FileReader& files, const std::string& folder, const std::string& name) {
    return FreeName(files, folder + "/" + name + ".aside").substr(folder.size() + 1);
}

int RunLength(const NameSet& standing) {
    int length = 0;
    while (standing.contains(ContainerName(length, CommittedExtension))) ++length;
    return length;
}

// Goes back to the last "*" whenever the letters behind it differ.
bool MatchesPattern(std::string_view name, std::string_view pattern) {
    std::size_t at = 0, mark = 0, star = pattern.npos, resume = 0;
    while (at < name.size()) {
        const bool more = mark < pattern.size();
        if (more && pattern[mark] == '*') {
            star = mark++, resume = at;
        } else if (more && (pattern[mark] == '?' || SameLetter(pattern[mark], name[at]))) {
            ++mark, ++at;
        } else if (star != pattern.npos) {
            mark = star + 1, at = ++resume;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', mark) == pattern.npos;
}

void SortByNumber(std::vector<std::string>& names) {
    std::sort(names.begin(), names.end(), [](const auto& one, const auto& other) {
        const int first = LeadingNumber(BareName(one)), second = LeadingNumber(BareName(other));
        return first != second ? first < second : one < other;
    });
}

} // namespace quill
