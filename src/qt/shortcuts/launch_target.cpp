#include "qt/shortcuts/launch_target.h"

#include "posix/descriptor.h"
#include "posix/errors.h"
#include "posix/process.h"
#include "qt/shortcuts/applications.h"
#include "qt/system/remote_paths.h"
#include "shortcuts/parameters.h"

#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>

namespace quill {
namespace {

std::string StartFolder(const LaunchRequest& request) {
    if (!request.Directory.empty()) return request.Directory;
    const char* home = std::getenv("HOME");
    return home != nullptr ? home : "";
}

// Scripts and binaries: what would run if it were allowed to.
bool BeginsLikeProgram(const std::string& path) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    char head[4] = {};
    const auto got = file ? Repeat([&] { return ::read(file.Get(), head, sizeof head); }) : 0;
    const std::string_view text(head, got > 0 ? static_cast<std::size_t>(got) : 0);
    return text.starts_with("#!") || text == "\x7f"
                                             "ELF";
}

Status Spawn(const std::string& program, std::vector<std::string> before, const LaunchRequest& request) {
    auto parameters = SplitParameters(request.Parameters);
    if (!parameters) return parameters.Error();
    for (auto& word : parameters.Value()) before.push_back(std::move(word));
    return StartDetached({program, std::move(before), StartFolder(request), {}});
}

Status RunCommand(const LaunchRequest& request) {
    return StartDetached({"/bin/sh", {"-c", request.Parameters}, StartFolder(request), {}});
}

// The asking itself, and a refusal, is the business of the program that asks.
Status RunElevated(const LaunchRequest& request) {
    const auto asker = FindProgram("pkexec");
    if (asker.empty()) return Failure{Reason::NotFound, "pkexec: " + FailureOfErrno(ENOENT).Text};
    if (!request.Command) return Spawn(asker, {request.File}, request);
    return StartDetached({asker, {"/bin/sh", "-c", request.Parameters}, StartFolder(request), {}});
}

// Drives of other systems call every file executable; the kernel knows better.
Status RunProgram(const LaunchRequest& request) {
    const auto ran = Spawn(request.File, {}, request);
    const bool noProgram = !ran && ran.Error().Text == FailureOfErrno(ENOEXEC).Text;
    return noProgram ? OpenDocument(request.File, StartFolder(request)) : ran;
}

Status OpenFile(const LaunchRequest& request, const struct stat& info) {
    const bool regular = S_ISREG(info.st_mode);
    if (regular && request.File.ends_with(".desktop")) return LaunchEntry(request.File, StartFolder(request));
    if (regular && ::access(request.File.c_str(), X_OK) == 0) return RunProgram(request);
    if (regular && BeginsLikeProgram(request.File)) return FailureOfErrno(EACCES);
    return OpenDocument(request.File, StartFolder(request));
}

bool IsBareName(const std::string& file) {
    return !file.empty() && file.find('/') == std::string::npos;
}

} // namespace

Status LaunchTarget(const LaunchRequest& request) {
    if (request.Verb == "runas") return RunElevated(request);
    if (request.Command) return RunCommand(request);
    struct stat info {};
    if (::stat(request.File.c_str(), &info) == 0) return OpenFile(request, info);
    const int error = errno;
    if (IsAddress(request.File)) return OpenAddress(request.File, StartFolder(request));
    if (IsBareName(request.File))
        if (const auto program = FindProgram(request.File); !program.empty())
            return Spawn(program, {}, request);
    return FailureOfErrno(error);
}

} // namespace quill
