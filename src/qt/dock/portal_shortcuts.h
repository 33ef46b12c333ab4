// PortalShortcuts: the hotkey where the session gives programs no keys of others. The desktop's portal is
// asked for it and tells when it is pressed; the person may be asked by the desktop, and may choose another
// key there. Nothing here waits: without a portal, or with one that does not answer, there is no such key.
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace quill::qt {

class PortalShortcuts {
public:
    explicit PortalShortcuts(std::function<void()> pressed);
    ~PortalShortcuts();

    // Whether this is a session in which the portal has to be asked.
    static bool AreNeeded();

    // A sum of HotkeyModifiers and a virtual key code, as a wish; the description is what the desktop shows.
    // Takes the place of the wish before.
    void Wish(int modifiers, int code, const std::string& description);
    void GiveUp();

private:
    class Binding;
    std::function<void()> pressed_;
    std::unique_ptr<Binding> binding_;
};

} // namespace quill::qt
