#include "posix/private_folder.h"

#include "posix/errors.h"

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace quill {

// A link is not followed: who could plant one would choose where our socket stands.
Status SettlePrivateFolder(const std::string& folder) {
    if (::mkdir(folder.c_str(), 0700) == 0) return {};
    if (errno != EEXIST) {
        Failure failure = FailureOfErrno(errno);
        failure.Text = folder + ": " + failure.Text;
        return failure;
    }
    struct stat info {};
    const bool isOurs =
        ::lstat(folder.c_str(), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == ::geteuid();
    if (!isOurs) return Failure{Reason::Denied, folder + ": not a folder of this user"};
    if ((info.st_mode & 0077) != 0 && ::chmod(folder.c_str(), 0700) == -1) return FailureOfErrno(errno);
    return {};
}

} // namespace quill
