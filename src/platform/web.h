// Web: what is fetched from other machines. What comes is data of strangers.
#pragma once

#include "platform/result.h"

#include <cstdint>
#include <functional>
#include <string>

namespace quill {

class Web {
public:
    virtual ~Web() = default;

    // An http or https address; redirects are followed to the same or a safer scheme. The handler runs on the
    // one thread, with the body, or with what went wrong: TooLarge above limit bytes. When the program ends
    // first it never runs.
    virtual void Fetch(const std::string& address, std::uint64_t limit,
                       std::function<void(Result<std::string>)> handler) = 0;
};

} // namespace quill
