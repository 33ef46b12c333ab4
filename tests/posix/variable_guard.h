// A variable of the environment, set for one test.
#pragma once

#include "posix/environment.h"

#include <optional>

namespace quill {

class VariableGuard {
public:
    // Null unsets it.
    VariableGuard(const char* name, const char* value) : name_(name) {
        if (std::getenv(name) != nullptr) before_ = Variable(name);
        Set(value);
    }
    ~VariableGuard() { Set(before_ ? before_->c_str() : nullptr); }
    VariableGuard(const VariableGuard&) = delete;
    VariableGuard& operator=(const VariableGuard&) = delete;

private:
    void Set(const char* value) const {
        if (value != nullptr)
            ::setenv(name_, value, 1);
        else
            ::unsetenv(name_);
    }
    const char* name_;
    std::optional<std::string> before_;
};

} // namespace quill
