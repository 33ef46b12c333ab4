// Variables of the environment.
#pragma once

#include <cstdlib>
#include <string>

namespace quill {

// Empty when it is not set.
inline std::string Variable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

} // namespace quill
