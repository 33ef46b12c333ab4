// QtWeb: the web port on the toolkit's network access, with the desktop's proxy settings and without cookies.
// What that needs is loaded when something is fetched for the first time.
#pragma once

#include "platform/web.h"
#include "qt/core/attachment.h"
#include "qt/network/network_access.h"

#include <memory>

namespace quill {

class QtWeb : public Web {
public:
    explicit QtWeb(const Attachment& attached) : attached_(attached) {}

    void Fetch(const std::string& address, std::uint64_t limit,
               std::function<void(Result<std::string>)> handler) override;

private:
    using Handler = std::function<void(Result<std::string>)>;
    void FailLater(Handler handler, Failure failure);

    const Attachment& attached_;
    std::unique_ptr<NetworkAccess> network_; // none before the first fetch, and where it can't be loaded
};

} // namespace quill
