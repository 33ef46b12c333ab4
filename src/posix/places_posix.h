// Places by the rules of this system's desktops: what the environment, the user's folder list and the mount
// table say. Needs no toolkit and no display.
#pragma once

#include "platform/places.h"
#include "posix/mounts.h"

namespace quill {

// Where the answers come from; a test names its own.
struct PlacesSources {
    std::string Executable; // real path of the running program
    std::string AppImage;   // the image file that carries the program; empty: none does
    std::string Home;
    std::string ConfigHome;    // $XDG_CONFIG_HOME, counts only when it is absolute
    std::string DataHome;      // $XDG_DATA_HOME, likewise
    std::string InstalledData; // the data folder of the install, known when it was built
    std::string SystemApplications = "/usr/share/applications";
    std::string MountTable = "/proc/self/mountinfo";
    std::string SysFolder = "/sys";
    std::string Language; // as the environment names them, ":" between: "de_DE.UTF-8:en"
};

PlacesSources PlacesSourcesOfSystem();

// Where the running program itself stands, in an image file too.
std::string ExecutableFolder();

class PlacesPosix : public Places {
public:
    explicit PlacesPosix(PlacesSources sources);

    std::string ProgramFolder() const override { return programFolder_; }
    std::string DataFolder() const override { return dataFolder_; }
    std::string Folder(SpecialFolder which) const override;
    std::string MountPoint(const std::string& path) const override { return mounts_.Holding(path).Point; }
    DriveKind KindOfDrive(const std::string& path) const override;
    std::string SystemRelease() const override;
    std::vector<std::string> Languages() const override;

private:
    std::string ConfigurationFolder() const;
    std::string ApplicationsFolder() const;
    std::string UserFolder(SpecialFolder which) const;

    PlacesSources sources_;
    std::string programFolder_, dataFolder_;
    mutable MountTable mounts_; // remembers what it has read
};

// The value of a name in the text of a user-dirs.dirs, "$HOME" filled in; empty when it is not told there.
std::string UserFolderNamed(const std::string& text, const std::string& name, const std::string& home);

} // namespace quill
