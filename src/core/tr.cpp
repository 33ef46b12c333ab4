#include "core/tr.h"

#include "core/frmMain.h"
#include "platform/texts.h"

namespace quill {

std::string TrFill(std::string pattern, std::initializer_list<std::string_view> values) {
    if (values.size() == 0) return pattern;
    std::string filled;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        const bool place = pattern[at] == '%' && at + 1 < pattern.size() && pattern[at + 1] >= '1' &&
                           pattern[at + 1] < static_cast<char>('1' + values.size());
        if (place)
            filled += values.begin()[pattern[++at] - '1'];
        else
            filled += pattern[at];
    }
    return filled;
}

std::string TrLookup(const frmMain& Main, std::string_view english) {
    return Main.P.Catalogue.Lookup(english);
}
std::string TrLookup(const Catalogue& catalogue, std::string_view english) {
    return catalogue.Lookup(english);
}

} // namespace quill
