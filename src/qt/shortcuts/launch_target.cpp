#include "qt/shortcuts/launch_target.h"

#include "posix/descriptor.h"
#include "posix/environment.h"
#include "posix/errors.h"
#include "posix/process.h"
#include "qt/shortcuts/applications.h"
#include "qt/shortcuts/started.h"
#include "qt/system/remote_paths.h"
#include "shortcuts/parameters.h"

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>

namespace quill {
namespace {

std::string StartFolder(const LaunchRequest& request) {
    return request.Directory.empty() ? Variable("HOME") : request.Directory;
}

ApplicationStart ApplicationStartOf(const LaunchRequest& request) {
    return {request.Directory, request.Show};
}

// Nothing that the system takes can hold one; what is behind it would be lost without a word.
bool HoldsNul(const LaunchRequest& request) {
    const auto holds = [](const std::string& text) { return text.find('\0') != std::string::npos; };
    return holds(request.File) || holds(request.Parameters) || holds(request.Directory) ||
           std::ranges::any_of(request.Arguments, holds);
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

Result<std::vector<std::string>> ArgumentsOf(const LaunchRequest& request) {
    return request.Arguments.empty() ? SplitParameters(request.Parameters) : request.Arguments;
}

Status Start(const std::string& caption, ProcessStart start, int show) {
    StartNotice notice(caption, start.Program, Feedback::No);
    for (const char* variable : {"DESKTOP_STARTUP_ID", "XDG_ACTIVATION_TOKEN"})
        start.Environment.emplace_back(variable, notice.Token());
    const auto started = StartDetached(start);
    if (!started) return started.Error();
    notice.Runs(started.Value(), show);
    return {};
}

std::string FileName(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

Status RunProgram(const std::string& program, const LaunchRequest& request) {
    auto arguments = ArgumentsOf(request);
    if (!arguments) return arguments.Error();
    return Start(FileName(program), {program, std::move(arguments.Value()), StartFolder(request)},
                 request.Show);
}

// The text is one argument, and no option even if it looks like one.
Status RunCommand(const LaunchRequest& request) {
    return Start(request.Parameters, {"/bin/sh", {"-c", "--", request.Parameters}, StartFolder(request)},
                 request.Show);
}

// A bare name is a program of the system, or else stands in the start folder. Nothing is ever looked for in
// the folder in which we happen to run.
std::string PathOf(const LaunchRequest& request) {
    const std::string& file = request.File;
    if (file.empty() || file.starts_with('/')) return file;
    if (file.find('/') == std::string::npos)
        if (auto program = FindProgram(file); !program.empty()) return program;
    return StartFolder(request) + "/" + file;
}

bool IsEntry(const std::string& path) {
    return path.ends_with(".desktop");
}

// What the system says to whoever wants to run a file as a program; nothing: it may be run.
std::optional<Failure> WhyNoProgram(const std::string& path) {
    struct stat info {};
    if (::stat(path.c_str(), &info) == -1) return FailureOfErrno(errno);
    if (!S_ISREG(info.st_mode) || ::access(path.c_str(), X_OK) == -1) return FailureOfErrno(EACCES);
    return {};
}

// Program and arguments of what is to run with more rights; of an entry those of its command.
Result<std::vector<std::string>> ElevatedCommand(const LaunchRequest& request) {
    if (request.Command) return std::vector<std::string>{"/bin/sh", "-c", "--", request.Parameters};
    const std::string path = PathOf(request);
    std::vector<std::string> command{path};
    if (IsEntry(path)) command = CommandOfEntry(path);
    if (command.empty()) return FailureOfErrno(ENOEXEC);
    if (!command.front().starts_with('/')) command.front() = FindProgram(command.front());
    if (const auto failure = WhyNoProgram(command.front())) return *failure;
    auto arguments = ArgumentsOf(request);
    if (!arguments) return arguments.Error();
    for (auto& argument : arguments.Value()) command.push_back(std::move(argument));
    return command;
}

// The asking itself, and a refusal, is the business of the program that asks. It goes home before it starts
// anything, so a start folder of one's own is entered behind it.
Status RunElevated(const LaunchRequest& request) {
    auto command = ElevatedCommand(request);
    if (!command) return command.Error();
    const auto asker = FindProgram("pkexec");
    if (asker.empty()) return Failure{Reason::NotFound, "pkexec: " + FailureOfErrno(ENOENT).Text};
    auto& words = command.Value();
    const std::string caption = FileName(words.front());
    if (!request.Directory.empty())
        words.insert(words.begin(), {"/usr/bin/env", "--chdir=" + request.Directory});
    return Start(caption, {asker, std::move(words), StartFolder(request)}, request.Show);
}

// Drives of other systems call every file executable; the kernel knows better.
Status RunExecutable(const std::string& path, const LaunchRequest& request) {
    const auto ran = RunProgram(path, request);
    const bool noProgram = !ran && ran.Error().Text == FailureOfErrno(ENOEXEC).Text;
    return noProgram ? OpenDocument(path, ApplicationStartOf(request)) : ran;
}

Status OpenFile(const std::string& path, const LaunchRequest& request) {
    struct stat info {};
    if (::stat(path.c_str(), &info) == -1) return FailureOfErrno(errno);
    const bool regular = S_ISREG(info.st_mode);
    if (regular && IsEntry(path)) return LaunchEntry(path, request.Arguments, ApplicationStartOf(request));
    if (regular && ::access(path.c_str(), X_OK) == 0) return RunExecutable(path, request);
    if (regular && BeginsLikeProgram(path)) return FailureOfErrno(EACCES);
    return OpenDocument(path, ApplicationStartOf(request));
}

} // namespace

Status LaunchTarget(const LaunchRequest& request) {
    if (HoldsNul(request)) return FailureOfErrno(EINVAL);
    if (request.Verb == "runas") return RunElevated(request);
    if (request.Command) return RunCommand(request);
    if (IsAddress(request.File)) return OpenAddress(request.File, ApplicationStartOf(request));
    return OpenFile(PathOf(request), request);
}

} // namespace quill
