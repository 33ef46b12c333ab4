#include "qt/shortcuts/file_trash.h"

#include "posix/errors.h"
#include "qt/system/gobject.h"
#include "qt/system/remote_paths.h"

#include <cerrno>

namespace quill {
namespace {

Reason ReasonOf(const GError& error) {
    if (g_error_matches(&error, G_IO_ERROR, G_IO_ERROR_NOT_FOUND)) return Reason::NotFound;
    if (g_error_matches(&error, G_IO_ERROR, G_IO_ERROR_PERMISSION_DENIED)) return Reason::Denied;
    return Reason::Other;
}

} // namespace

Status TrashFile(const std::string& path) {
    if (!path.starts_with('/') || IsOnRemoteMount(path)) return FailureOfErrno(EOPNOTSUPP);
    const OwnedObject<GFile> file(g_file_new_for_path(path.c_str()));
    GlibError error;
    if (g_file_trash(file.get(), nullptr, error.Out())) return {};
    return Failure{error.Get() != nullptr ? ReasonOf(*error.Get()) : Reason::Other, error.Text()};
}

} // namespace quill
