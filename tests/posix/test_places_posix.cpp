#include "posix/places_posix.h"
#include "posix/temp_folder.h"
#include "posix/variable_guard.h"

#include <fstream>
#include <gtest/gtest.h>

namespace quill {
namespace {

class PlacesTest : public testing::Test {
protected:
    void Write(const std::string& name, const std::string& text) const {
        std::filesystem::create_directories(std::filesystem::path(folder.At(name)).parent_path());
        std::ofstream(folder.At(name)) << text;
    }
    void Make(const std::string& name) const { std::filesystem::create_directories(folder.At(name)); }
    PlacesSources Sources() const {
        PlacesSources sources;
        sources.Executable = folder.At("prefix/bin/quillmere");
        sources.Home = folder.At("home");
        sources.SystemApplications = folder.At("usr/applications");
        sources.MountTable = folder.At("mountinfo");
        sources.SysFolder = folder.At("sys");
        return sources;
    }
    TempFolder folder;
};

TEST_F(PlacesTest, TheProgramsFolderIsWhereTheExecutableStands) {
    EXPECT_EQ(PlacesPosix(Sources()).ProgramFolder(), folder.At("prefix/bin"));
    auto sources = Sources();
    sources.Executable = "/quillmere";
    EXPECT_EQ(PlacesPosix(sources).ProgramFolder(), "/");
}

TEST_F(PlacesTest, InAnImageFileItIsTheFolderOfTheImage) {
    auto sources = Sources();
    sources.AppImage = "/media/stick/Quillmere.AppImage";
    const PlacesPosix places(sources);
    EXPECT_EQ(places.ProgramFolder(), "/media/stick");
    EXPECT_EQ(places.DataFolder(), folder.At("prefix/share/quillmere"));
}

TEST_F(PlacesTest, DataStandBesideTheProgramOrInItsPrefixOrWhereItWasInstalled) {
    auto sources = Sources();
    EXPECT_EQ(PlacesPosix(sources).DataFolder(), folder.At("prefix/share/quillmere"));
    sources.InstalledData = "/usr/local/share/quillmere";
    EXPECT_EQ(PlacesPosix(sources).DataFolder(), "/usr/local/share/quillmere");
    Write("prefix/share/quillmere/emptyicon.ico", "");
    EXPECT_EQ(PlacesPosix(sources).DataFolder(), folder.At("prefix/share/quillmere"));
    Write("prefix/bin/emptyicon.ico", "");
    EXPECT_EQ(PlacesPosix(sources).DataFolder(), folder.At("prefix/bin"));
}

TEST_F(PlacesTest, TheConfigurationFolderCountsOnlyWhenItIsAbsolute) {
    const std::pair<const char*, std::string> rows[] = {
        {"", folder.At("home/.config")},
        {"relative", folder.At("home/.config")},
        {"/etc/mine/", "/etc/mine"},
    };
    for (const auto& [value, expected] : rows) {
        auto sources = Sources();
        sources.ConfigHome = value;
        EXPECT_EQ(PlacesPosix(sources).Folder(SpecialFolder::Configuration), expected) << value;
    }
    auto homeless = Sources();
    homeless.Home = "";
    EXPECT_EQ(PlacesPosix(homeless).Folder(SpecialFolder::Configuration), "");
    EXPECT_EQ(PlacesPosix(homeless).Folder(SpecialFolder::Pictures), "");
}

TEST_F(PlacesTest, ApplicationsAreTheUsersOwnWhereThereAreAny) {
    const PlacesPosix places(Sources());
    EXPECT_EQ(places.Folder(SpecialFolder::Applications), folder.At("usr/applications"));
    Make("home/.local/share/applications");
    EXPECT_EQ(places.Folder(SpecialFolder::Applications), folder.At("home/.local/share/applications"));
    auto sources = Sources();
    sources.DataHome = folder.At("data");
    Make("data/applications");
    EXPECT_EQ(PlacesPosix(sources).Folder(SpecialFolder::Applications), folder.At("data/applications"));
}

TEST_F(PlacesTest, TheUsersFoldersHaveTheirUsualNamesWhenNothingIsTold) {
    const PlacesPosix places(Sources());
    EXPECT_EQ(places.Folder(SpecialFolder::Home), folder.At("home"));
    EXPECT_EQ(places.Folder(SpecialFolder::Pictures), folder.At("home/Pictures"));
    EXPECT_EQ(places.Folder(SpecialFolder::Documents), folder.At("home/Documents"));
    EXPECT_EQ(places.Folder(SpecialFolder::Desktop), folder.At("home/Desktop"));
}

TEST_F(PlacesTest, TheUsersFoldersAreWhereTheListSays) {
    Write("home/.config/user-dirs.dirs", "# written by a tool\n"
                                         "XDG_DESKTOP_DIR=\"$HOME/\"\n"
                                         "XDG_PICTURES_DIR=\"$HOME/\"\n"
                                         "XDG_DOCUMENTS_DIR=\"/data/My \\\"Papers\\\"/\"\n");
    const PlacesPosix places(Sources());
    EXPECT_EQ(places.Folder(SpecialFolder::Desktop), folder.At("home"));
    EXPECT_EQ(places.Folder(SpecialFolder::Pictures), "") << "switched off";
    EXPECT_EQ(places.Folder(SpecialFolder::Documents), "/data/My \"Papers\"");
}

TEST(UserFolders, LinesAreReadAsTheListWritesThem) {
    struct Row {
        const char* Text;
        const char* Folder;
    };
    const Row rows[] = {
        {"XDG_PICTURES_DIR=\"$HOME/Bilder\"\n", "/home/me/Bilder"},
        {"  XDG_PICTURES_DIR = \"$HOME/Bilder\"  \r\n", "/home/me/Bilder"},
        {"XDG_PICTURES_DIR=\"/mnt/photos\"", "/mnt/photos"},
        {"XDG_PICTURES_DIR=\"/a\"\nXDG_PICTURES_DIR=\"/b\"\n", "/b"},
        {"#XDG_PICTURES_DIR=\"/a\"\n", ""},
        {"XDG_PICTURES_DIR=/unquoted\n", ""},
        {"XDG_PICTURES_DIR=\"relative\"\n", ""},
        {"XDG_PICTURES_DIR=\"$HOMEWORK\"\n", ""},
        {"XDG_PICTURES_DIR=\"/unclosed", "/unclosed"},
        {"XDG_PICTURES_DIR", ""},
        {"XDG_MUSIC_DIR=\"/music\"\n", ""},
        {"", ""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(UserFolderNamed(row.Text, "XDG_PICTURES_DIR", "/home/me"), row.Folder) << row.Text;
}

// ---- drives

constexpr const char* Table = "22 1 8:2 / / rw,relatime shared:1 - ext4 /dev/sda2 rw\n"
                              "30 22 8:17 / /media/My\\040Stick rw shared:2 master:3 - vfat /dev/sdb1 rw\n"
                              "31 22 8:33 / /media/My\\040Stick/deep rw - ext4 /dev/sdc1 rw\n"
                              "32 22 0:44 /@home /home rw - btrfs /dev/sdd1 rw\n"
                              "33 22 253:0 / /media/locked rw - ext4 /dev/mapper/locked rw\n"
                              "broken line\n";

TEST_F(PlacesTest, TheMountPointIsTheDeepestThatHoldsThePath) {
    Write("mountinfo", Table);
    const PlacesPosix places(Sources());
    const std::pair<const char*, const char*> rows[] = {
        {"/", "/"},
        {"/etc/fstab", "/"},
        {"/media/My Stick", "/media/My Stick"},
        {"/media/My Stick/a/b", "/media/My Stick"},
        {"/media/My Stick/deep/a", "/media/My Stick/deep"},
        {"/media/My Stick/deeper", "/media/My Stick"},
        {"/media/My Sticky/a", "/"},
        {"/home/me", "/home"},
    };
    for (const auto& [path, mount] : rows) EXPECT_EQ(places.MountPoint(path), mount) << path;
}

TEST_F(PlacesTest, WithoutATableEverythingLiesInTheRoot) {
    const PlacesPosix places(Sources());
    EXPECT_EQ(places.MountPoint("/media/stick/a"), "/");
    EXPECT_EQ(places.KindOfDrive("/media/stick/a"), DriveKind::Fixed);
}

TEST_F(PlacesTest, AStickIsRemovableAndADiskIsNot) {
    namespace fs = std::filesystem;
    Write("mountinfo", Table);
    Write("sys/devices/pci0/ata1/block/sda/removable", "0\n");
    Make("sys/devices/pci0/ata1/block/sda/sda2");
    Write("sys/devices/pci0/card/block/sdb/removable", "1\n");
    Make("sys/devices/pci0/card/block/sdb/sdb1");
    Write("sys/devices/pci0/usb1/1-2/block/sdd/removable", "0\n");
    Make("sys/devices/pci0/usb1/1-2/block/sdd/sdd1");
    Make("sys/devices/virtual/block/dm-0/slaves");
    Make("sys/dev/block");
    Make("sys/class/block");
    fs::create_symlink("../../devices/pci0/ata1/block/sda/sda2", folder.At("sys/dev/block/8:2"));
    fs::create_symlink("../../devices/pci0/card/block/sdb/sdb1", folder.At("sys/dev/block/8:17"));
    fs::create_symlink("../../devices/pci0/usb1/1-2/block/sdd/sdd1", folder.At("sys/class/block/sdd1"));
    fs::create_symlink("../../devices/virtual/block/dm-0", folder.At("sys/dev/block/253:0"));
    fs::create_symlink("../../../../pci0/card/block/sdb/sdb1",
                       folder.At("sys/devices/virtual/block/dm-0/slaves/sdb1"));
    const PlacesPosix places(Sources());
    EXPECT_EQ(places.KindOfDrive("/etc"), DriveKind::Fixed);
    EXPECT_EQ(places.KindOfDrive("/media/My Stick/a"), DriveKind::Removable);
    EXPECT_EQ(places.KindOfDrive("/home/me"), DriveKind::Removable) << "known by the name of its device";
    EXPECT_EQ(places.KindOfDrive("/media/locked/a"), DriveKind::Removable) << "an encrypted stick";
    EXPECT_EQ(places.KindOfDrive("/media/My Stick/deep/a"), DriveKind::Fixed) << "a device that nobody knows";
}

TEST_F(PlacesTest, TheKernelsOwnTableIsUnderstood) {
    auto sources = PlacesSourcesOfSystem();
    EXPECT_EQ(sources.MountTable, "/proc/self/mountinfo");
    const PlacesPosix places(sources);
    EXPECT_EQ(places.MountPoint("/proc/self"), "/proc");
    EXPECT_EQ(places.MountPoint("/"), "/");
}

TEST(PlacesOfSystem, AnImageFileCountsOnlyWhenThisProgramCameOutOfIt) {
    const auto executable = std::filesystem::read_symlink("/proc/self/exe");
    const VariableGuard image("APPIMAGE", "/media/stick/Other.AppImage");
    {
        const VariableGuard mount("APPDIR", "/tmp/.mount_other");
        EXPECT_EQ(PlacesSourcesOfSystem().AppImage, "");
        EXPECT_EQ(PlacesSourcesOfSystem().Executable, executable);
        EXPECT_EQ(ExecutableFolder(), executable.parent_path());
    }
    const VariableGuard mount("APPDIR", executable.parent_path().c_str());
    EXPECT_EQ(PlacesSourcesOfSystem().AppImage, "/media/stick/Other.AppImage");
}

TEST(PlacesOfSystem, ARelativeHomeIsNoHome) {
    const VariableGuard home("HOME", "relative");
    const auto sources = PlacesSourcesOfSystem();
    EXPECT_TRUE(sources.Home.empty() || sources.Home.starts_with('/'));
    EXPECT_FALSE(PlacesPosix(sources).SystemRelease().empty());
}

} // namespace
} // namespace quill
