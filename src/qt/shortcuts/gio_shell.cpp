#include "qt/shortcuts/gio_shell.h"

#include "posix/process.h"
#include "qt/shortcuts/file_manager.h"
#include "qt/shortcuts/launch_target.h"
#include "qt/shortcuts/path_probe.h"
#include "qt/system/remote_paths.h"

#include <memory>

namespace quill {

Status GioShell::ShellExecute(const LaunchRequest& request) {
    return LaunchTarget(request);
}

Status GioShell::StartProgram(const std::string& path, const std::vector<std::string>& arguments) {
    return StartDetached({path, arguments, {}, {}});
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

bool GioShell::PathIsNetworkPath(const std::string& path) const {
    return IsRemoteScheme(path) || (path.starts_with('/') && IsOnRemoteMount(path));
}

void GioShell::PathFileExists(const std::string& path, int timeout, std::function<void(bool)> handler) {
    ProbePath(path, timeout, std::move(handler));
}

} // namespace quill
