// A folder on the real disk for one test, gone with it.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace quill {

// Permissions mean nothing to the superuser: while this stands, the process acts as an ordinary user.
class OrdinaryUser {
public:
    OrdinaryUser() {
        if (isRoot_ && ::seteuid(Nobody) != 0) std::abort();
    }
    ~OrdinaryUser() {
        if (isRoot_ && ::seteuid(0) != 0) std::abort();
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    static constexpr uid_t Nobody = 65534;
    bool isRoot_ = ::geteuid() == 0;
};

class TempFolder {
public:
    TempFolder() {
        std::string path = "/tmp/quill-test-XXXXXX";
        if (::mkdtemp(path.data()) == nullptr) std::abort();
        Path = path;
    }
    ~TempFolder() {
        std::error_code ignored;
        namespace fs = std::filesystem;
        for (const auto& entry : fs::recursive_directory_iterator(Path, ignored))
            if (entry.is_directory(ignored) && !entry.is_symlink(ignored))
                ::chmod(entry.path().c_str(), 0700);
        fs::remove_all(Path, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::string At(const std::string& name) const { return Path + "/" + name; }
    std::string Path;
};

} // namespace quill
