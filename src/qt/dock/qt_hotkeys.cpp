#include "qt/dock/qt_hotkeys.h"

#include "core/frmMain.h"
#include "core/handlers.h"
#include "core/tr.h"
#include "qt/dock/key_grab.h"
#include "qt/dock/portal_shortcuts.h"

#include <QElapsedTimer>

namespace quill {
namespace {

constexpr qint64 onePress = 250; // milliseconds within which both ways tell of the same press

} // namespace

class QtHotkeys::Keys {
public:
    Keys(const Attachment& attached, const DisplayHolder& display)
        : attached_(attached), display_(display),
          grab_({[this] { return PressedHere(); }, [this] { return Window(); }}),
          portal_([this] { PressedElsewhere(); }) {}

    Status Hold(int modifiers, int key) {
        const Status held = grab_.Hold(modifiers, key);
        if (!qt::PortalShortcuts::AreNeeded()) return held;
        portal_.Wish(modifiers, key, Tr(*attached_.Main, "Bring the workspace out or put it away"));
        return {};
    }

    void GiveUp() {
        grab_.GiveUp();
        portal_.GiveUp();
    }

private:
    // Whether the workspace comes out by it, and is about to get the keyboard.
    bool PressedHere() {
        if (!attached_.Alive() || attached_.Main->Dock.JustUsedHotKey) return false;
        since_.start();
        Hotkey_Pressed(*attached_.Main);
        return attached_.Alive() && attached_.Main->View.Visible && attached_.Main->Dock.DockPosition == 0;
    }

    void PressedElsewhere() {
        const bool told = since_.isValid() && since_.elapsed() < onePress;
        if (attached_.Alive() && !told) Hotkey_Pressed(*attached_.Main);
    }

    std::uint32_t Window() const {
        return static_cast<std::uint32_t>(display_.Get().Stage.Main().internalWinId());
    }

    const Attachment& attached_;
    const DisplayHolder& display_;
    qt::KeyGrab grab_;
    qt::PortalShortcuts portal_;
    QElapsedTimer since_; // the last press that came from the X server
};

QtHotkeys::QtHotkeys(const Attachment& attached, const DisplayHolder& display)
    : attached_(attached), display_(display) {}
QtHotkeys::~QtHotkeys() = default;

Status QtHotkeys::RegisterHotKey(int modifiers, int key) {
    if (!attached_.Alive() || !display_.It) return {};
    if (!keys_) keys_ = std::make_unique<Keys>(attached_, display_);
    return keys_->Hold(modifiers, key);
}

void QtHotkeys::UnregisterHotKey() {
    if (keys_) keys_->GiveUp();
}

} // namespace quill
