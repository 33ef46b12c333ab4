#include "posix/errors.h"

#include <cerrno>
#include <system_error>

namespace quill {

namespace {

Reason ReasonOf(int error) {
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return Reason::NotFound; // a file where a folder should be: the path leads nowhere
    case EEXIST:
        return Reason::Exists;
    case ENOSPC:
    case EDQUOT:
        return Reason::NoSpace;
    case EACCES:
    case EPERM:
    case EROFS:
        return Reason::Denied;
    case EFBIG:
        return Reason::TooLarge;
    default:
        return Reason::Other;
    }
}

} // namespace

Failure FailureOfErrno(int error) {
    return {ReasonOf(error), std::generic_category().message(error)};
}

} // namespace quill
