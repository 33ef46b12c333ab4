#include "qt/system/gettext_catalogue.h"

#include <clocale>
#include <libintl.h>

namespace quill {
namespace {

constexpr const char* domain = "quillmere";

} // namespace

// An empty key stands for the catalogue's own head.
std::string GettextCatalogue::Lookup(std::string_view english) const {
    if (english.empty()) return {};
    if (!bound_) Bind();
    return dgettext(domain, std::string(english).c_str());
}

void GettextCatalogue::Bind() const {
    bound_ = true;
    std::setlocale(LC_MESSAGES, "");
    std::setlocale(LC_CTYPE, "");
    bindtextdomain(domain, (places_.DataFolder() + "/../locale").c_str());
    bind_textdomain_codeset(domain, "UTF-8");
}

} // namespace quill
