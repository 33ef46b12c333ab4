// Clipboard: what another program, or this one, has copied. Reading asks the owner, which may take a moment.
#pragma once

#include <string>
#include <vector>

namespace quill {

struct ClipboardData {
    std::vector<std::string> Files; // paths
    bool Cut = false;               // they are to be moved
    std::vector<std::string> Addresses;
    std::string Text; // plain
};

class Clipboard {
public:
    virtual ~Clipboard() = default;

    virtual ClipboardData Read() const = 0;
    // Whether there is anything of these kinds, as far as that is known without asking the owner for it.
    virtual bool HasSomething() const = 0;
};

} // namespace quill
