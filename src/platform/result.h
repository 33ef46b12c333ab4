// Result: the one error idiom of the program. A call that can fail returns a Result that carries either
// the value or the reason; nothing throws across a room. "Missing" is a kind of its own, because a file
// that is not there is a normal case and no failure to report.
#pragma once

#include <optional>
#include <string>
#include <utility>

namespace quill {

enum class Reason {
    None,
    NotFound, // the thing is not there
    Exists,   // a new thing was to be made, and the name is taken
    NoSpace,  // disk full or quota
    Denied,   // read-only, no permission
    Damaged,  // read, but not what it should be
    TooLarge, // over a limit that the caller named
    Refused,  // the user said no
    Other,
};

struct Failure {
    Reason Kind = Reason::Other;
    std::string Text; // the system's own words, for people
};

template <class T> class [[nodiscard]] Result {
public:
    Result(T value) : value_(std::move(value)) {}
    Result(Failure failure) : failure_(std::move(failure)) {}

    bool Ok() const { return value_.has_value(); }
    explicit operator bool() const { return Ok(); }
    T& Value() { return *value_; }
    const T& Value() const { return *value_; }
    const Failure& Error() const { return failure_; }
    bool Missing() const { return !Ok() && failure_.Kind == Reason::NotFound; }

private:
    std::optional<T> value_;
    Failure failure_{Reason::None, {}};
};

template <> class [[nodiscard]] Result<void> {
public:
    Result() = default;
    Result(Failure failure) : ok_(false), failure_(std::move(failure)) {}

    bool Ok() const { return ok_; }
    explicit operator bool() const { return ok_; }
    const Failure& Error() const { return failure_; }
    bool Missing() const { return !ok_ && failure_.Kind == Reason::NotFound; }

private:
    bool ok_ = true;
    Failure failure_{Reason::None, {}};
};

using Status = Result<void>;

} // namespace quill
