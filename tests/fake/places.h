// The fake computer's folders and drives.
#pragma once

#include "platform/places.h"

#include <map>

namespace quill::fake {

class FakePlaces : public Places {
public:
    std::string ProgramFolder() const override { return Program; }
    std::string DataFolder() const override { return Data; }
    std::string Folder(SpecialFolder which) const override {
        const auto found = Folders.find(which);
        return found == Folders.end() ? std::string() : found->second;
    }
    std::string MountPoint(const std::string& path) const override { return MountOf(path).first; }
    DriveKind KindOfDrive(const std::string& path) const override { return MountOf(path).second; }
    std::string SystemRelease() const override { return Release; }
    std::vector<std::string> Languages() const override { return Spoken; }

    std::string Program = "/opt/quillmere/bin";
    std::string Data = "/opt/quillmere/share";
    std::string Release = "6.1.0";
    std::vector<std::string> Spoken{"en_US", "en"};
    std::map<SpecialFolder, std::string> Folders{
        {SpecialFolder::Home, "/home/user"},
        {SpecialFolder::Pictures, "/home/user/Pictures"},
        {SpecialFolder::Documents, "/home/user/Documents"},
        {SpecialFolder::Desktop, "/home/user/Desktop"},
        {SpecialFolder::Applications, "/usr/share/applications"},
        {SpecialFolder::Configuration, "/home/user/.config"},
    };
    std::map<std::string, DriveKind> Mounts{{"/", DriveKind::Fixed}}; // by mount point

private:
    std::pair<std::string, DriveKind> MountOf(const std::string& path) const {
        std::pair<std::string, DriveKind> best{"/", DriveKind::Fixed};
        for (const auto& [mount, kind] : Mounts) {
            const bool holds = mount == "/" || path == mount || path.starts_with(mount + "/");
            if (holds && mount.size() >= best.first.size()) best = {mount, kind};
        }
        return best;
    }
};

} // namespace quill::fake
