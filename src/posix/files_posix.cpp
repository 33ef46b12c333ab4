#include "posix/files_posix.h"

#include "posix/descriptor.h"
#include "posix/errors.h"

#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

namespace quill {

namespace {

constexpr std::size_t ChunkSize = 128 * 1024;

Failure LastFailure() {
    return FailureOfErrno(errno);
}

Status StatusOf(int result) {
    return result == -1 ? Status(LastFailure()) : Status();
}

// A name with a zero byte would be cut short by the system and mean another file.
Status Usable(const std::string& path) {
    return path.find('\0') == std::string::npos ? Status() : Status(FailureOfErrno(EINVAL));
}

Descriptor Open(const std::string& path, int flags, mode_t mode = 0) {
    if (!Usable(path)) {
        errno = EINVAL;
        return {};
    }
    return Descriptor(Repeat([&] { return ::open(path.c_str(), flags | O_CLOEXEC, mode); }));
}

bool May(const std::string& path, int how) {
    return ::faccessat(AT_FDCWD, path.c_str(), how, AT_EACCESS) == 0;
}

// A pipe or a device has no content of its own; opening it must not wait for the other end.
Result<struct stat> OpenRegular(const std::string& path, Descriptor& file) {
    file = Open(path, O_RDONLY | O_NONBLOCK | O_NOCTTY);
    struct stat info {};
    if (!file || ::fstat(file.Get(), &info) == -1) return LastFailure();
    if (S_ISDIR(info.st_mode)) return FailureOfErrno(EISDIR);
    if (!S_ISREG(info.st_mode)) return FailureOfErrno(EINVAL);
    return info;
}

// Reads until the end, which may lie elsewhere than the size said. One byte over the limit is enough to tell.
Result<std::string> ReadToEnd(int fd, std::uint64_t size, std::uint64_t limit) {
    std::string bytes;
    std::size_t used = 0;
    bytes.resize(size + 1);
    for (;;) {
        const auto got = Repeat([&] { return ::read(fd, bytes.data() + used, bytes.size() - used); });
        if (got == -1) return LastFailure();
        used += static_cast<std::size_t>(got);
        if (used > limit) return FailureOfErrno(EFBIG);
        if (got == 0) break;
        if (used == bytes.size()) bytes.resize(used + ChunkSize);
    }
    bytes.resize(used);
    return bytes;
}

// The torn rest of a file that could not be finished is of no use to anybody.
Status Abandon(const std::string& path, int error) {
    ::unlink(path.c_str());
    return FailureOfErrno(error);
}

bool CopyAll(int from, int to) {
    const auto buffer = std::make_unique<char[]>(ChunkSize);
    for (;;) {
        const auto got = Repeat([&] { return ::read(from, buffer.get(), ChunkSize); });
        if (got <= 0) return got == 0;
        if (!WriteAll(to, {buffer.get(), static_cast<std::size_t>(got)})) return false;
    }
}

bool IsFolder(const std::string& path) {
    struct stat info {};
    return ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

} // namespace

Result<FileInfo> FilesPosix::Stat(const std::string& path) const {
    struct stat info {};
    if (auto usable = Usable(path); !usable) return usable.Error();
    if (::stat(path.c_str(), &info) == -1) return LastFailure();
    FileInfo result;
    result.IsFolder = S_ISDIR(info.st_mode);
    result.IsRegular = S_ISREG(info.st_mode);
    result.IsExecutable = (info.st_mode & 0111) != 0 && May(path, X_OK);
    result.IsWritable = May(path, W_OK);
    result.Size = result.IsRegular ? static_cast<std::uint64_t>(info.st_size) : 0;
    result.Modified = info.st_mtim.tv_sec;
    return result;
}

Result<std::string> FilesPosix::Read(const std::string& path, std::uint64_t limit) const {
    Descriptor file;
    const auto info = OpenRegular(path, file);
    if (!info) return info.Error();
    const auto size = static_cast<std::uint64_t>(info.Value().st_size);
    if (size > limit) return FailureOfErrno(EFBIG);
    return ReadToEnd(file.Get(), size, limit);
}

Result<std::vector<std::string>> FilesPosix::List(const std::string& folder) const {
    if (auto usable = Usable(folder); !usable) return usable.Error();
    const std::unique_ptr<DIR, int (*)(DIR*)> open(::opendir(folder.c_str()), &::closedir);
    if (!open) return LastFailure();
    std::vector<std::string> names;
    for (;;) {
        errno = 0; // the only way to tell the end from a failure
        const dirent* entry = ::readdir(open.get());
        if (entry == nullptr) break;
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") names.emplace_back(name);
    }
    return errno == 0 ? Result(std::move(names)) : Result<std::vector<std::string>>(LastFailure());
}

Status FilesPosix::Create(const std::string& path, std::string_view bytes) {
    Descriptor file = Open(path, O_WRONLY | O_CREAT | O_EXCL, 0600);
    if (!file) return LastFailure();
    if (!WriteAll(file.Get(), bytes) || file.Close() == -1) return Abandon(path, errno);
    return {};
}

Status FilesPosix::Rename(const std::string& from, const std::string& to) {
    if (auto usable = Usable(from + to); !usable) return usable;
    return StatusOf(::rename(from.c_str(), to.c_str()));
}

Status FilesPosix::Remove(const std::string& path) {
    if (auto usable = Usable(path); !usable) return usable;
    return StatusOf(::unlink(path.c_str()));
}

Status FilesPosix::MakeFolder(const std::string& path) {
    if (auto usable = Usable(path); !usable) return usable;
    if (::mkdir(path.c_str(), 0700) == 0) return {};
    const int error = errno;
    if (IsFolder(path)) return {};
    const auto slash = path.find_last_of('/');
    if (error != ENOENT || slash == std::string::npos || slash == 0) return FailureOfErrno(error);
    if (auto above = MakeFolder(path.substr(0, slash)); !above) return above;
    return ::mkdir(path.c_str(), 0700) == 0 || IsFolder(path) ? Status() : Status(LastFailure());
}

Status FilesPosix::RemoveFolder(const std::string& path) {
    if (auto usable = Usable(path); !usable) return usable;
    return StatusOf(::rmdir(path.c_str()));
}

Status FilesPosix::Sync(const std::string& path) {
    const Descriptor file = Open(path, O_RDONLY | O_NONBLOCK | O_NOCTTY);
    if (!file) return LastFailure();
    return StatusOf(Repeat([&] { return ::fsync(file.Get()); }));
}

Status FilesPosix::Copy(const std::string& from, const std::string& to) {
    Descriptor source;
    const auto info = OpenRegular(from, source);
    if (!info) return info.Error();
    Descriptor target = Open(to, O_WRONLY | O_CREAT | O_EXCL, info.Value().st_mode & 0777);
    if (!target) return LastFailure();
    if (!CopyAll(source.Get(), target.Get()) || target.Close() == -1) return Abandon(to, errno);
    return {};
}

} // namespace quill
