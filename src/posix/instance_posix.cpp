#include "posix/instance_posix.h"

#include "posix/clock_posix.h"
#include "posix/environment.h"
#include "posix/errors.h"
#include "posix/private_folder.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/epoll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace quill {

namespace {

constexpr int RetryMilliseconds = 10;
constexpr std::size_t MostCallers = 8; // that have connected and said nothing yet
constexpr std::size_t LongestWord = 4096;
constexpr char Answer = '!';
constexpr std::pair<Summons, std::string_view> Words[] = {{Summons::Show, "show"},
                                                          {Summons::Toggle, "toggle"}};

struct Address {
    sockaddr_un Name{};
    const sockaddr* Get() const { return reinterpret_cast<const sockaddr*>(&Name); }
};

bool MakeAddress(const std::string& path, Address& address) {
    if (path.size() >= sizeof address.Name.sun_path) return false;
    address.Name.sun_family = AF_UNIX;
    std::memcpy(address.Name.sun_path, path.c_str(), path.size() + 1);
    return true;
}

Failure FailureAt(const std::string& path) {
    Failure failure = FailureOfErrno(errno);
    failure.Text = path + ": " + failure.Text;
    return failure;
}

std::string MessageOf(Summons word, const std::string& token) {
    const auto* row =
        std::find_if(std::begin(Words), std::end(Words), [&](auto& entry) { return entry.first == word; });
    return std::string(row->second) + " " + token + "\n";
}

std::optional<Call> ParseMessage(std::string_view line) {
    const auto blank = line.find(' ');
    const auto* row = std::find_if(std::begin(Words), std::end(Words),
                                   [&](auto& entry) { return entry.second == line.substr(0, blank); });
    if (row == std::end(Words)) return {};
    return Call{row->first, blank == line.npos ? std::string() : std::string(line.substr(blank + 1))};
}

bool IsThisUser(int socket) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return ::getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == ::geteuid();
}

// 1: readable or closed, 0: time is up.
int WaitReadable(int fd, std::int64_t until) {
    pollfd watched{fd, POLLIN, 0};
    return Repeat([&] {
        const auto left = std::max<std::int64_t>(until - MonotonicMilliseconds(), 0);
        return ::poll(&watched, 1, static_cast<int>(left));
    });
}

void Pause() {
    ::poll(nullptr, 0, RetryMilliseconds);
}

std::string FolderOfSystem() {
    const auto runtime = Variable("XDG_RUNTIME_DIR");
    const bool fits = runtime.size() + sizeof "/quillmere/socket" <= sizeof sockaddr_un{}.sun_path;
    if (runtime.starts_with('/') && fits && ::access(runtime.c_str(), W_OK | X_OK) == 0)
        return runtime + "/quillmere";
    return "/tmp/quillmere-" + std::to_string(::geteuid());
}

// One word of printable letters, or nothing.
std::string TokenOfSystem() {
    for (const char* name : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"}) {
        const auto token = Variable(name);
        const bool plain = std::all_of(token.begin(), token.end(), [](char c) { return c > ' ' && c < 127; });
        if (!token.empty() && plain && token.size() < LongestWord / 2) return token;
    }
    return {};
}

Descriptor OpenLock(const std::string& path) {
    return Descriptor(
        Repeat([&] { return ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600); }));
}

bool Lock(const Descriptor& file) {
    return Repeat([&] { return ::flock(file.Get(), LOCK_EX | LOCK_NB); }) == 0;
}

} // namespace

InstanceOptions InstanceOptionsOfSystem() {
    return {FolderOfSystem(), TokenOfSystem()};
}

InstancePosix::~InstancePosix() {
    if (listener_) ::unlink(SocketPath().c_str()); // while the lock is still held
}

Result<Claim> InstancePosix::ClaimOrCall(Summons word) {
    if (auto settled = SettlePrivateFolder(options_.Folder); !settled) return settled.Error();
    const auto until = MonotonicMilliseconds() + options_.AnswerMilliseconds;
    // The first copy may be on its way in, locked and not yet listening, or on its way out: then we try
    // again.
    for (;;) {
        const Outcome outcome = CallFirst(word, until);
        if (outcome == Outcome::Taken) return Claim::Called;
        if (outcome == Outcome::Silent) return Claim::NoAnswer;
        const auto locked = TakeLock();
        if (!locked) return locked.Error();
        if (locked.Value()) break;
        if (MonotonicMilliseconds() >= until) return Claim::NoAnswer;
        Pause();
    }
    if (auto listening = Listen(); !listening) return listening.Error();
    return Claim::First;
}

InstancePosix::Outcome InstancePosix::CallFirst(Summons word, std::int64_t until) const {
    Address address;
    if (!MakeAddress(SocketPath(), address)) return Outcome::Nobody;
    const Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!socket) return Outcome::Nobody;
    if (Repeat([&] { return ::connect(socket.Get(), address.Get(), sizeof address.Name); }) == -1)
        return errno == EAGAIN ? Outcome::Gone : Outcome::Nobody; // a full queue: nobody takes its callers in
    const auto message = MessageOf(word, options_.ActivationToken);
    const auto sent =
        Repeat([&] { return ::send(socket.Get(), message.data(), message.size(), MSG_NOSIGNAL); });
    if (sent != static_cast<ssize_t>(message.size())) return Outcome::Gone;
    if (WaitReadable(socket.Get(), until) != 1) return Outcome::Silent;
    char answer = 0;
    const auto got = Repeat([&] { return ::recv(socket.Get(), &answer, 1, 0); });
    return got == 1 && answer == Answer ? Outcome::Taken : Outcome::Gone;
}

Result<bool> InstancePosix::TakeLock() {
    if (!lock_) lock_ = OpenLock(LockPath());
    if (!lock_) return FailureAt(LockPath());
    if (Lock(lock_)) return true;
    if (errno == EWOULDBLOCK) return false;
    return FailureAt(LockPath());
}

Status InstancePosix::Listen() {
    Address address;
    if (!MakeAddress(SocketPath(), address)) return FailureOfErrno(ENAMETOOLONG);
    ::unlink(SocketPath().c_str());
    listener_ = Descriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    const bool listens = listener_ && ::bind(listener_.Get(), address.Get(), sizeof address.Name) == 0 &&
                         ::chmod(SocketPath().c_str(), 0600) == 0 &&
                         ::listen(listener_.Get(), MostCallers) == 0;
    return listens ? WatchCallers() : Status(FailureAt(SocketPath()));
}

Status InstancePosix::WatchCallers() {
    events_ = Descriptor(::epoll_create1(EPOLL_CLOEXEC));
    return events_ && Watch(listener_.Get()) ? Status() : Status(FailureOfErrno(errno));
}

bool InstancePosix::Watch(int fd) const {
    epoll_event event{};
    event.events = EPOLLIN;
    event.data.fd = fd;
    return ::epoll_ctl(events_.Get(), EPOLL_CTL_ADD, fd, &event) == 0;
}

std::optional<Call> InstancePosix::TakeCall() {
    if (!events_) return {};
    AcceptCallers();
    for (auto caller = callers_.begin(); caller != callers_.end();) {
        const auto call = Hear(*caller);
        caller = caller->Socket ? std::next(caller) : callers_.erase(caller);
        if (call) return call;
    }
    return {};
}

void InstancePosix::AcceptCallers() {
    for (;;) {
        const auto accept = [&] {
            return ::accept4(listener_.Get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        };
        Descriptor socket(Repeat(accept));
        if (!socket) return;
        if (!IsThisUser(socket.Get()) || !Watch(socket.Get())) continue;
        if (callers_.size() == MostCallers) callers_.erase(callers_.begin());
        callers_.push_back({std::move(socket), {}});
    }
}

// Closes the caller's socket when it has said its word or will never say one.
std::optional<Call> InstancePosix::Hear(Caller& caller) {
    std::array<char, 512> bytes{};
    ssize_t got = 0;
    while ((got = Repeat([&] { return ::recv(caller.Socket.Get(), bytes.data(), bytes.size(), 0); })) > 0) {
        caller.Said.append(bytes.data(), static_cast<std::size_t>(got));
        if (caller.Said.size() > LongestWord) break;
    }
    const auto end = caller.Said.find('\n');
    const bool over = got == 0 || (got == -1 && errno != EAGAIN) || caller.Said.size() > LongestWord;
    if (end == std::string::npos && !over) return {};
    const auto call = end == std::string::npos ? std::nullopt : ParseMessage(caller.Said.substr(0, end));
    if (call) ::send(caller.Socket.Get(), &Answer, 1, MSG_NOSIGNAL);
    caller.Socket.Close();
    return call;
}

bool WaitUntilNoCopyRuns(const InstanceOptions& options, int milliseconds) {
    const auto until = MonotonicMilliseconds() + milliseconds;
    const Descriptor file = OpenLock(options.Folder + "/lock");
    while (file && !Lock(file)) {
        if (MonotonicMilliseconds() >= until) return false;
        Pause();
    }
    return true; // no lock file: nobody can hold it
}

} // namespace quill
