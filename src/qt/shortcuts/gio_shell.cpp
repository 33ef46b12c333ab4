#include "qt/shortcuts/gio_shell.h"

#include "posix/errors.h"
#include "posix/process.h"
#include "qt/shortcuts/file_manager.h"
#include "qt/shortcuts/file_properties_form.h"
#include "qt/shortcuts/file_trash.h"
#include "qt/shortcuts/launch_target.h"
#include "qt/shortcuts/path_probe.h"
#include "qt/system/remote_paths.h"
#include "shortcuts/uri_list.h"

#include <cerrno>
#include <memory>
#include <optional>
#include <sys/stat.h>

namespace quill {

Status GioShell::ShellExecute(const LaunchRequest& request) {
    return LaunchTarget(request);
}

Status GioShell::StartProgram(const std::string& path, const std::vector<std::string>& arguments) {
    const auto started = StartDetached({path, arguments, {}, {}});
    if (!started) return started.Error();
    return {};
}

// The file manager is asked off the thread, since one that hangs must not hang us.
void GioShell::ShowInFolder(const std::string& path) {
    const auto shown = std::make_shared<bool>(false);
    worker_.Run([shown, path] { *shown = ShowItem(path); },
                [shown, path] {
                    const auto slash = path.rfind('/');
                    LaunchRequest folder;
                    folder.File = slash == std::string::npos || slash == 0 ? "/" : path.substr(0, slash);
                    if (!*shown) (void)LaunchTarget(folder); // with no file manager there is nothing to show
                });
}

// The plain box of ours comes where no file manager answers. A path on a server is not looked at before: it
// may be a dead one.
Status GioShell::ShowFileProperties(const std::string& path) {
    const bool remote = PathIsNetworkPath(path);
    struct stat info {};
    if (!remote && !path.starts_with('/')) return FailureOfErrno(ENOENT);
    if (!remote && lstat(path.c_str(), &info) != 0) return FailureOfErrno(errno);
    const auto facts = std::make_shared<std::optional<FileFacts>>();
    worker_.Run(
        [facts, path] {
            if (!ShowItemProperties(path)) *facts = ReadFileFacts(path);
        },
        [this, facts, path] {
            if (*facts) ShowFilePropertiesForm(catalogue_, path, **facts);
        });
    return {};
}

Status GioShell::MoveToTrash(const std::string& path) {
    return TrashFile(path);
}

bool GioShell::PathIsNetworkPath(const std::string& path) const {
    constexpr std::string_view local = "file://";
    if (path.starts_with(local)) return IsOnRemoteMount(PercentDecoded(path.substr(local.size())));
    return IsRemoteScheme(path) || (path.starts_with('/') && IsOnRemoteMount(path));
}

void GioShell::PathFileExists(const std::string& path, int timeout, std::function<void(bool)> handler) {
    ProbePath(path, timeout, std::move(handler));
}

} // namespace quill
