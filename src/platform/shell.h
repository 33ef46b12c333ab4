// Shell: starting programs, documents and addresses, and what the desktop knows about files. Nothing that is
// passed here is ever read by a command interpreter unless Command is set.
#pragma once

#include "platform/result.h"

#include <functional>
#include <string>
#include <vector>

namespace quill {

struct LaunchRequest {
    std::string Verb;       // "open", "runas" or empty for the default
    std::string File;       // file, folder, desktop entry or address; unused when Command is set
    std::string Parameters; // split by quoting rules; with Command the text for the shell, one argument
    std::string Directory;  // start folder, empty: the home folder
    int Show = 1;           // 1 normal, 2 minimised, 3 maximised
    bool Command = false;
    // Passed as they are, instead of Parameters when there are any; a desktop entry takes them as its
    // documents.
    std::vector<std::string> Arguments{};
};

class Shell {
public:
    virtual ~Shell() = default;

    // Returns at once; the started program outlives this one. Refused when the user turned elevation down
    // (nothing is to be said then), else Text is the system's own message.
    virtual Status ShellExecute(const LaunchRequest& request) = 0;
    // Starts a program of ours with arguments as they are (the reloader).
    virtual Status StartProgram(const std::string& path, const std::vector<std::string>& arguments) = 0;
    // Shows a file in the user's file manager, selected where that is possible.
    virtual void ShowInFolder(const std::string& path) = 0;
    // The desktop's own dialog about a file, or a plain one of ours.
    virtual Status ShowFileProperties(const std::string& path) = 0;
    // Into the desktop's trash, never further; Text is the system's own message.
    virtual Status MoveToTrash(const std::string& path) = 0;
    // True for a path under a remote mount and for smb:, sftp: and the like.
    virtual bool PathIsNetworkPath(const std::string& path) const = 0;
    // Asks off the thread, at most timeout milliseconds; the handler runs on the one thread. No answer is
    // "no".
    virtual void PathFileExists(const std::string& path, int timeout, std::function<void(bool)> handler) = 0;
};

} // namespace quill
