// Places: the folders that the system names. All without a separator at the end.
#pragma once

#include <string>
#include <vector>

namespace quill {

enum class SpecialFolder { Home, Pictures, Documents, Desktop, Applications, Configuration };
enum class DriveKind { Fixed, Removable };

class Places {
public:
    virtual ~Places() = default;

    // Where the executable stands; in an image file that carries the program, the folder of that file.
    virtual std::string ProgramFolder() const = 0;
    // Where the icons, sounds and Skin of an installed program stand.
    virtual std::string DataFolder() const = 0;
    // Empty when the system can't say.
    virtual std::string Folder(SpecialFolder which) const = 0;
    // The mount point that holds a path: "/" at least.
    virtual std::string MountPoint(const std::string& path) const = 0;
    virtual DriveKind KindOfDrive(const std::string& path) const = 0;
    // Languages of the person for texts of others, the preferred first: "de_DE", "de".
    virtual std::vector<std::string> Languages() const = 0;
    // The kernel's release, for "Linux 6.1.0".
    virtual std::string SystemRelease() const = 0;
};

} // namespace quill
