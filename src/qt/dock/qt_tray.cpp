#include "qt/dock/qt_tray.h"

#include "core/handlers.h"
#include "qt/core/convert.h"
#include "qt/dock/tray_arrival.h"
#include "qt/dock/tray_menu.h"

#include <QEvent>
#include <QGuiApplication>
#include <QObject>
#include <QPainter>
#include <QPixmap>
#include <QSystemTrayIcon>

#include <optional>

namespace quill {

namespace {

constexpr int side = 32; // pixels

// Where the pictures that belong to the program are missing: a sheet at the edge of a screen.
QIcon PlainIcon() {
    QPixmap picture(side, side);
    picture.fill(QColor(14, 41, 56));
    QPainter painter(&picture);
    painter.fillRect(side / 2, side / 8, side / 2, side * 3 / 4, QColor(225, 253, 255));
    return picture;
}

QIcon PresentIcon() {
    const QIcon icon = QGuiApplication::windowIcon();
    return icon.isNull() ? PlainIcon() : icon;
}

} // namespace

// Shows as soon as there is a tray. The picture is the one of the windows, which is read after the workspace
// is on the screen.
class QtTray::Icon final : public QObject {
public:
    Icon(const Attachment& attached, QWidget& window, QString tip)
        : attached_(attached), window_(window), tip_(std::move(tip)), arrival_([this] { TrayCame(); }) {
        window_.installEventFilter(this);
    }

    void SetTip(const QString& tip) {
        tip_ = tip;
        if (shown_) shown_->Icon.setToolTip(tip);
    }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (object == &window_ && event->type() == QEvent::WindowIconChange && shown_)
            shown_->Icon.setIcon(PresentIcon());
        return false;
    }

private:
    // The menu outlives the icon that shows it.
    struct Shown {
        explicit Shown(const Attachment& attached) : Menu(attached) {}
        TrayMenu Menu;
        QSystemTrayIcon Icon;
    };

    void TrayCame() {
        auto& icon = shown_.emplace(attached_).Icon;
        icon.setIcon(PresentIcon());
        icon.setToolTip(tip_);
        icon.setContextMenu(&shown_->Menu);
        connect(&icon, &QSystemTrayIcon::activated, this, [this](auto how) { Pressed(how); });
        icon.show();
    }

    // The second click of a double one is nothing new. It runs in a turn of its own, as the menu's commands
    // do.
    void Pressed(QSystemTrayIcon::ActivationReason how) {
        if (how != QSystemTrayIcon::Trigger && how != QSystemTrayIcon::MiddleClick) return;
        const auto tell = [this] {
            if (attached_.Alive()) PicTray_MouseUp(*attached_.Main, MouseButton::Left);
        };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    }

    const Attachment& attached_;
    QWidget& window_;
    QString tip_;
    std::optional<Shown> shown_;
    qt::TrayArrival arrival_;
};

QtTray::QtTray(const Attachment& attached, const DisplayHolder& display)
    : attached_(attached), display_(display) {}
QtTray::~QtTray() = default;

void QtTray::ShowTrayIcon(const std::string& tip) {
    if (!display_.It) return;
    if (icon_)
        icon_->SetTip(Text(tip));
    else
        icon_ = std::make_unique<Icon>(attached_, display_.Get().Stage.Main(), Text(tip));
}

void QtTray::ShellTrayRemove() {
    icon_.reset();
}

} // namespace quill
