// NetworkAccess: fetching over the network. Its implementation is a library of its own, the only one that is
// linked to the toolkit's network part: that brings a dozen libraries along, and most starts fetch nothing.
#pragma once

#include "platform/result.h"

#include <cstdint>
#include <functional>
#include <string>

namespace quill {

class NetworkAccess {
public:
    virtual ~NetworkAccess() = default;

    // What platform/web.h promises. When this is destroyed what is under way is dropped.
    virtual void Fetch(const std::string& address, std::uint64_t limit,
                       std::function<void(Result<std::string>)> handler) = 0;
};

// What the library offers under this name. Its caller deletes what it makes before the toolkit ends.
using MakeNetworkAccess = NetworkAccess* (*)();
inline constexpr const char* MakeNetworkAccessName = "quillmere_network_access";

} // namespace quill
