#include "shortcuts/icons.h"

#include "appearance/wallpaper.h"
#include "core/lower_case.h"
#include "shortcuts/create.h"

#include <algorithm>

namespace quill {

namespace {

constexpr std::string_view ImageEndings[] = {".png", ".jpg", ".jpeg", ".gif",
                                             ".bmp", ".svg", ".ico",  ".webp"};

std::string Ending(std::string_view path) {
    const auto name = path.substr(path.find_last_of('/') + 1);
    const auto dot = name.find_last_of('.');
    std::string ending(dot == std::string_view::npos || dot == 0 ? "" : name.substr(dot));
    for (char& letter : ending) letter = LowerAscii(letter);
    return ending;
}

// A bare name belongs to an icon that came with the program; a name of the icon theme has no ending.
IconSource OwnIcon(const frmMain& Main, const std::string& icon) {
    const std::string path = ResolvedPath(Main, icon);
    if (path.find('/') != std::string::npos) return {path, {}, IsImageName(path)};
    const std::string beside = FileBeside(Main, path);
    if (!beside.empty()) return {beside, {}, IsImageName(beside)};
    return {{}, Ending(path).empty() ? path : std::string(), false};
}

// All addresses of a scheme share the icon of the program that opens them, and one look-up.
std::string SchemeOf(const std::string& address) {
    const auto end = address.find("://");
    return end == std::string::npos ? "https://" : address.substr(0, end + 3);
}

} // namespace

bool IsImageName(std::string_view path) {
    const std::string ending = Ending(path);
    return std::find(std::begin(ImageEndings), std::end(ImageEndings), ending) != std::end(ImageEndings);
}

IconSource GetIconSource(const frmMain& Main, int Index, bool UseCustom) {
    const clsShortcut& record = Main.Link(Index);
    if (UseCustom && !record.Icon.empty()) return OwnIcon(Main, record.Icon);
    if (record.ShortcutType == TypeUrl) return {SchemeOf(record.Path), {}, false};
    if (record.Command) return {{}, "utilities-terminal", false};
    const std::string path = ResolvedPath(Main, record.Path);
    return {path, {}, IsImageName(path)};
}

std::string_view GenericSymbol(const clsShortcut& record) {
    if (record.ShortcutType == TypeUrl) return "generic-link";
    const std::string ending = Ending(record.Path);
    if (record.Command || ending == ".desktop" || ending == ".exe" || ending == ".appimage")
        return "generic-program";
    if (!ending.empty()) return "generic-file";
    return record.Path.find("/bin/") != std::string::npos ? "generic-program" : "generic-folder";
}

} // namespace quill
