// Tr: the one way of every text that a person sees. The English text is the key; "%1" to "%9" are filled in
// one pass, so that a name which holds "%2" stays as it is. What files and comparisons need never goes
// through here.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace quill {

struct frmMain;
class Catalogue;

std::string TrFill(std::string pattern, std::initializer_list<std::string_view> values);
std::string TrLookup(const frmMain& Main, std::string_view english);
std::string TrLookup(const Catalogue& catalogue, std::string_view english);

template <class Source, class... Values>
std::string Tr(const Source& source, std::string_view english, const Values&... values) {
    return TrFill(TrLookup(source, english), {std::string_view(values)...});
}

} // namespace quill
