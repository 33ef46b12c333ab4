#include "appearance/wallpaper.h"

#include "appearance/skin.h"
#include "platform/files.h"
#include "platform/places.h"
#include "platform/shell.h"
#include "shortcuts/create.h"

namespace quill {

namespace {

std::string WallpaperPath(const frmMain& Main) {
    const std::string& name = Main.Settings.Wallpaper;
    if (name.empty()) return {};
    if (IsOneElement(name) && name.front() != '@') return SkinFile(Main, {"Wallpaper/" + name});
    const std::string path = ResolvedPath(Main, name);
    // A dead server must not hold up the start: what lies there is fetched when it is seen.
    if (Main.P.Shell.PathIsNetworkPath(path)) return path;
    return IsFile(Main, path) ? path : std::string();
}

} // namespace

void LoadWallpaper(frmMain& Main) {
    Main.View.WallpaperFile = WallpaperPath(Main);
    Main.View.WallpaperSize = {};
    Main.Marks.Workspace();
}

void InitButtons(frmMain& Main, const std::string& Set) {
    Main.View.ButtonFiles.clear();
    for (const char* name : {"rss", "lock", "unlock", "dock"}) {
        if (!IsOneElement(Set)) break;
        const std::string base = "Buttons/" + Set + "/" + name;
        // The drawing stays sharp at every scaling; sets made by users have the small picture alone.
        const std::string file = SkinFile(Main, {base + ".svg", base + ".gif"});
        if (!file.empty()) Main.View.ButtonFiles.push_back({name, file});
    }
    Main.Marks.Workspace();
}

std::string ButtonFile(const frmMain& Main, const std::string& name) {
    for (const ButtonImage& image : Main.View.ButtonFiles)
        if (image.Name == name) return image.File;
    return {};
}

std::string FileBeside(const frmMain& Main, const std::string& name) {
    if (!IsOneElement(name)) return {};
    for (const std::string& folder : {Main.P.Places.ProgramFolder(), Main.P.Places.DataFolder()})
        if (!folder.empty() && IsFile(Main, folder + "/" + name)) return folder + "/" + name;
    return {};
}

} // namespace quill
