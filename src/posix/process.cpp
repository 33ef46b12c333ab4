#include "posix/process.h"

#include "posix/descriptor.h"
#include "posix/environment.h"
#include "posix/errors.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>

namespace quill {

namespace {

enum class Stage { Fork, Directory, Execute };

// What the child says before it is gone; saying nothing means that the program runs.
struct Complaint {
    Stage Where = Stage::Fork;
    int Error = 0;
};

// Everything that the child needs, made before the fork: between fork and exec nothing may be allocated.
struct Prepared {
    std::string Program, Directory;
    std::vector<std::string> Texts, Variables;
    std::vector<char*> Arguments, Environment;
};

bool NameIs(std::string_view variable, std::string_view name) {
    return variable.starts_with(name) && variable.substr(name.size()).starts_with('=');
}

std::vector<std::string> VariablesOf(const ProcessStart& start) {
    std::vector<std::string> variables;
    for (char** variable = environ; variable != nullptr && *variable != nullptr; ++variable)
        variables.emplace_back(*variable);
    for (const auto& [name, value] : start.Environment) {
        std::erase_if(variables, [&](const std::string& variable) { return NameIs(variable, name); });
        if (!value.empty()) variables.push_back(name + "=" + value);
    }
    return variables;
}

std::vector<char*> PointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (auto& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

void Prepare(const ProcessStart& start, Prepared& prepared) {
    prepared.Directory = start.Directory;
    prepared.Texts = start.Arguments;
    prepared.Texts.insert(prepared.Texts.begin(), start.Program);
    prepared.Variables = VariablesOf(start);
    prepared.Arguments = PointersTo(prepared.Texts);
    prepared.Environment = PointersTo(prepared.Variables);
}

[[noreturn]] void Complain(int pipe, Stage stage) {
    const Complaint complaint{stage, errno};
    const auto told = ::write(pipe, &complaint, sizeof complaint);
    ::_exit(told == sizeof complaint ? 0 : 1);
}

// The program gets no key of the terminal, no file of ours, and signals as if freshly logged in.
void CleanUp() {
    const int nothing = ::open("/dev/null", O_RDWR);
    if (nothing != -1) ::dup2(nothing, STDIN_FILENO);
    ::close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
    for (const int number : {SIGPIPE, SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGCHLD}) ::signal(number, SIG_DFL);
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

[[noreturn]] void RunProgram(const Prepared& prepared, int pipe) {
    CleanUp();
    if (!prepared.Directory.empty() && ::chdir(prepared.Directory.c_str()) == -1)
        Complain(pipe, Stage::Directory);
    ::execve(prepared.Program.c_str(), prepared.Arguments.data(), prepared.Environment.data());
    Complain(pipe, Stage::Execute);
}

// The child ends at once, so that the program has no parent and leaves nothing to be collected.
[[noreturn]] void RunChild(const Prepared& prepared, int pipe) {
    ::setsid();
    const pid_t grandchild = ::fork();
    if (grandchild == -1) Complain(pipe, Stage::Fork);
    if (grandchild == 0) RunProgram(prepared, pipe);
    ::_exit(0);
}

pid_t ForkChild(const Prepared& prepared, int pipe) {
    sigset_t all, before;
    ::sigfillset(&all); // a handler of ours must not run in the child
    ::pthread_sigmask(SIG_SETMASK, &all, &before);
    const pid_t child = ::fork();
    if (child == 0) RunChild(prepared, pipe);
    const int error = errno;
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    errno = error;
    return child;
}

Status StatusOf(const Complaint& complaint, const std::string& directory) {
    Failure failure = FailureOfErrno(complaint.Error);
    if (complaint.Where == Stage::Directory) failure.Text = directory + ": " + failure.Text;
    return failure;
}

bool IsProgram(const std::string& path) {
    struct stat info {};
    return ::stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode) && ::access(path.c_str(), X_OK) == 0;
}

} // namespace

std::string FindProgram(const std::string& name) {
    const auto variable = Variable("PATH");
    std::string_view folders = variable.empty() ? "/usr/local/bin:/usr/bin:/bin" : std::string_view(variable);
    while (!name.empty() && !folders.empty()) {
        const auto end = std::min(folders.find(':'), folders.size());
        const auto path = std::string(folders.substr(0, end)) + "/" + name;
        if (end != 0 && IsProgram(path)) return path;
        folders.remove_prefix(std::min(end + 1, folders.size()));
    }
    return {};
}

Status StartDetached(const ProcessStart& start) {
    Prepared prepared;
    Prepare(start, prepared);
    const bool isPath = start.Program.find('/') != std::string::npos;
    prepared.Program = isPath ? start.Program : FindProgram(start.Program);
    if (prepared.Program.empty()) return FailureOfErrno(ENOENT);

    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) == -1) return FailureOfErrno(errno);
    const Descriptor reading(ends[0]);
    Descriptor writing(ends[1]);
    const pid_t child = ForkChild(prepared, writing.Get());
    if (child == -1) return FailureOfErrno(errno);
    writing.Close();
    Complaint complaint;
    const auto got = Repeat([&] { return ::read(reading.Get(), &complaint, sizeof complaint); });
    Repeat([&] { return ::waitpid(child, nullptr, 0); });
    return got == sizeof complaint ? StatusOf(complaint, start.Directory) : Status();
}

} // namespace quill
