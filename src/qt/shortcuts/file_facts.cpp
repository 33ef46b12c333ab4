#include "qt/shortcuts/file_facts.h"

#include "qt/system/gobject.h"

#include <array>
#include <cstdio>

namespace quill {
namespace {

constexpr const char* attributes = "standard::type,standard::size,standard::content-type,time::modified,"
                                   "time::created,unix::mode,owner::user";

std::string AsText(const char* text) {
    return text != nullptr ? text : "";
}

std::int64_t Seconds(GFileInfo* info, const char* attribute) {
    return static_cast<std::int64_t>(g_file_info_get_attribute_uint64(info, attribute));
}

} // namespace

FileFacts ReadFileFacts(const std::string& path) {
    FileFacts facts;
    const OwnedObject<GFile> file(g_file_new_for_commandline_arg(path.c_str()));
    GlibError error;
    const OwnedObject<GFileInfo> info(
        g_file_query_info(file.get(), attributes, G_FILE_QUERY_INFO_NONE, nullptr, error.Out()));
    if (!info) {
        facts.Error = error.Text();
        return facts;
    }
    const Owned<char> type(g_content_type_get_description(
        g_file_info_get_attribute_string(info.get(), G_FILE_ATTRIBUTE_STANDARD_CONTENT_TYPE)));
    facts.Type = AsText(type.get());
    facts.Bytes = static_cast<std::uint64_t>(g_file_info_get_size(info.get()));
    facts.IsFolder = g_file_info_get_file_type(info.get()) == G_FILE_TYPE_DIRECTORY;
    facts.Modified = Seconds(info.get(), G_FILE_ATTRIBUTE_TIME_MODIFIED);
    facts.Created = Seconds(info.get(), G_FILE_ATTRIBUTE_TIME_CREATED);
    facts.Permissions = g_file_info_get_attribute_uint32(info.get(), G_FILE_ATTRIBUTE_UNIX_MODE) & 07777U;
    facts.Owner = AsText(g_file_info_get_attribute_string(info.get(), G_FILE_ATTRIBUTE_OWNER_USER));
    return facts;
}

std::string PermissionText(std::uint32_t permissions) {
    std::string text;
    for (int bit = 8; bit >= 0; --bit) text += (permissions >> bit & 1U) != 0 ? "xwr"[bit % 3] : '-';
    std::array<char, 16> number{};
    std::snprintf(number.data(), number.size(), " (%03o)", permissions);
    return text + number.data();
}

} // namespace quill
