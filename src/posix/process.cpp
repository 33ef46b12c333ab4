#include "posix/process.h"

#include "posix/descriptor.h"
#include "posix/environment.h"
#include "posix/errors.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <sys/wait.h>

namespace quill {

namespace {

enum class Stage { Fork, Directory, Execute, Running };

// What the children say before they are gone. Who has heard no complaint knows that the program runs.
struct Word {
    Stage Where = Stage::Fork;
    int Number = 0; // the error; of Running the program's
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

[[noreturn]] void Say(int pipe, Stage stage, int number) {
    const Word word{stage, number};
    const auto told = ::write(pipe, &word, sizeof word);
    ::_exit(told == sizeof word ? 0 : 1);
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
        Say(pipe, Stage::Directory, errno);
    ::execve(prepared.Program.c_str(), prepared.Arguments.data(), prepared.Environment.data());
    Say(pipe, Stage::Execute, errno);
}

// The child ends at once, so that the program has no parent and leaves nothing to be collected.
[[noreturn]] void RunChild(const Prepared& prepared, int pipe) {
    ::setsid();
    const pid_t grandchild = ::fork();
    if (grandchild == -1) Say(pipe, Stage::Fork, errno);
    if (grandchild == 0) RunProgram(prepared, pipe);
    Say(pipe, Stage::Running, grandchild);
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

Failure FailureOf(const Word& complaint, const std::string& directory) {
    Failure failure = FailureOfErrno(complaint.Number);
    if (complaint.Where == Stage::Directory) failure.Text = directory + ": " + failure.Text;
    return failure;
}

// Until both children are silent: the one is gone, and the other is the program, or gone too.
Result<int> Hear(int pipe, const std::string& directory) {
    int number = 0;
    std::optional<Failure> failure;
    Word word;
    while (Repeat([&] { return ::read(pipe, &word, sizeof word); }) == sizeof word) {
        if (word.Where == Stage::Running)
            number = word.Number;
        else
            failure = FailureOf(word, directory);
    }
    if (failure) return *failure;
    return number;
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

Result<int> StartDetached(const ProcessStart& start) {
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
    const auto heard = Hear(reading.Get(), start.Directory);
    Repeat([&] { return ::waitpid(child, nullptr, 0); });
    return heard;
}

} // namespace quill
