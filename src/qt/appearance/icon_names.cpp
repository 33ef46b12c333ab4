#include "qt/appearance/icon_names.h"

#include "qt/appearance/decode.h"
#include "qt/core/convert.h"
#include "qt/system/gobject.h"
#include "qt/system/remote_paths.h"

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

namespace quill {
namespace {

using Names = std::vector<std::string>;

Names NamesOf(GIcon* icon) {
    Names names;
    if (icon == nullptr || !G_IS_THEMED_ICON(icon)) return names;
    for (auto name = g_themed_icon_get_names(G_THEMED_ICON(icon)); *name != nullptr; ++name)
        names.emplace_back(*name);
    return names;
}

// An icon of a desktop entry or of a file: a name of the theme or a path.
IconAnswer AnswerOf(GIcon* icon, int side) {
    if (icon == nullptr || !G_IS_FILE_ICON(icon)) return {{}, NamesOf(icon)};
    const Owned<char> path(g_file_get_path(g_file_icon_get_file(G_FILE_ICON(icon))));
    return {path ? DecodeWithin(QString::fromUtf8(path.get()), side) : QImage(), {}};
}

IconAnswer OfAddress(const std::string& address, int side) {
    const Owned<char> scheme(g_uri_parse_scheme(address.c_str()));
    const OwnedObject<GAppInfo> program(scheme ? g_app_info_get_default_for_uri_scheme(scheme.get())
                                               : nullptr);
    IconAnswer answer;
    if (program) answer = AnswerOf(g_app_info_get_icon(program.get()), side);
    for (const char* name : {"internet-web-browser", "text-html"}) answer.Names.emplace_back(name);
    return answer;
}

IconAnswer OfEntry(const std::string& path, int side) {
    const OwnedObject<GDesktopAppInfo> entry(g_desktop_app_info_new_from_filename(path.c_str()));
    IconAnswer answer;
    if (entry) answer = AnswerOf(g_app_info_get_icon(G_APP_INFO(entry.get())), side);
    answer.Names.emplace_back("application-x-executable");
    return answer;
}

IconAnswer OfContentType(const char* type) {
    const OwnedObject<GIcon> icon(g_content_type_get_icon(type));
    return {{}, NamesOf(icon.get())};
}

// By the name alone: nothing is asked of a server that may not answer.
IconAnswer ByName(const std::string& path) {
    const Owned<char> type(g_content_type_guess(path.c_str(), nullptr, 0, nullptr));
    IconAnswer answer = OfContentType(type.get());
    answer.Names.emplace_back("folder-remote");
    return answer;
}

bool IsImageType(const char* type) {
    return type != nullptr && g_content_type_is_a(type, "image/*");
}

IconAnswer OfFile(const std::string& path, int side) {
    const OwnedObject<GFile> file(g_file_new_for_path(path.c_str()));
    const OwnedObject<GFileInfo> info(
        g_file_query_info(file.get(), "standard::*", G_FILE_QUERY_INFO_NONE, nullptr, nullptr));
    if (!info) return {};
    const char* type = g_file_info_get_content_type(info.get());
    IconAnswer answer;
    if (IsImageType(type)) answer.Image = DecodeWithin(Text(path), side);
    answer.Names = NamesOf(g_file_info_get_icon(info.get()));
    return answer;
}

bool IsEntry(const std::string& path) {
    return path.ends_with(".desktop");
}

} // namespace

IconAnswer FindIcon(const IconSource& source, int side) {
    IconAnswer answer;
    if (source.IsImage)
        answer.Image = DecodeWithin(Text(source.File), side);
    else if (source.File.empty())
        answer = {};
    else if (IsAddress(source.File))
        answer = OfAddress(source.File, side);
    else if (IsOnRemoteMount(source.File))
        answer = ByName(source.File);
    else if (IsEntry(source.File))
        answer = OfEntry(source.File, side);
    else
        answer = OfFile(source.File, side);
    if (!source.ThemeName.empty()) answer.Names.insert(answer.Names.begin(), source.ThemeName);
    return answer;
}

} // namespace quill
