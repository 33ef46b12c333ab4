// DesktopWatch: what the desktop tells of our windows without being asked: that the pointer has come over one
// or has left it, and that the keyboard has gone to another window. It hears the server's own words, since
// the toolkit keeps them to itself while a menu or a dialog is open.
#pragma once

#include "platform/windows.h"
#include "qt/core/attachment.h"
#include "qt/dock/x11.h"

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <functional>
#include <optional>
#include <vector>

namespace quill {

class DesktopWatch final : public QObject, private QAbstractNativeEventFilter {
public:
    // The name of a window whose pointer matters; nothing for all others.
    using Names = std::function<std::optional<WindowId>(qt::x11::WindowId)>;

    DesktopWatch(const Attachment& attached, Names names);

protected:
    bool event(QEvent* event) override;

private:
    struct Crossing {
        WindowId Window;
        bool Over = false;
    };

    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override;
    void Crossed(qt::x11::WindowId window, bool over);
    void ForegroundMoved();
    void TellSoon();
    void Tell();

    const Attachment& attached_;
    Names names_;
    int inputExtension_ = 0; // the server's number for events of the newer kind; 0: it has none
    std::vector<Crossing> crossings_;
    bool foregroundMoved_ = false;
    bool telling_ = false; // a turn is arranged for
};

} // namespace quill
