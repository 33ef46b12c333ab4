// Descriptor: owns one file descriptor, and the calls on it that must be repeated after a signal.
#pragma once

#include <cerrno>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace quill {

class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int fd) : fd_(fd) {}
    Descriptor(Descriptor&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(fd_, other.fd_);
        return *this;
    }
    ~Descriptor() { Close(); }

    int Get() const { return fd_; } // -1: none
    explicit operator bool() const { return fd_ != -1; }
    // 0, or -1 with errno. The descriptor is gone in either case.
    int Close() { return fd_ == -1 ? 0 : ::close(std::exchange(fd_, -1)); }

private:
    int fd_ = -1;
};

template <class Call> auto Repeat(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) result = call();
    return result;
}

// All of the bytes; false with errno.
inline bool WriteAll(int fd, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto written = Repeat([&] { return ::write(fd, bytes.data(), bytes.size()); });
        if (written == -1) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

} // namespace quill
