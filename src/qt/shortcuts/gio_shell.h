// GioShell: the shell port on GIO: the user's own default applications, desktop entries by their rules,
// programs as they are. Nothing that is passed here is read by a command interpreter unless Command is set.
#pragma once

#include "platform/shell.h"
#include "platform/work.h"

namespace quill {

class Catalogue;

class GioShell : public Shell {
public:
    GioShell(Worker& worker, const Catalogue& catalogue) : worker_(worker), catalogue_(catalogue) {}

    Status ShellExecute(const LaunchRequest& request) override;
    Status StartProgram(const std::string& path, const std::vector<std::string>& arguments) override;
    void ShowInFolder(const std::string& path) override;
    Status ShowFileProperties(const std::string& path) override;
    Status MoveToTrash(const std::string& path) override;
    bool PathIsNetworkPath(const std::string& path) const override;
    void PathFileExists(const std::string& path, int timeout, std::function<void(bool)> handler) override;

private:
    Worker& worker_;
    const Catalogue& catalogue_;
};

} // namespace quill
