#include "qt/system/accent_color.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QTimer>
#include <QVariantMap>

namespace quill {
namespace {

constexpr auto service = "org.freedesktop.portal.Desktop";
constexpr auto object = "/org/freedesktop/portal/desktop";
constexpr auto settings = "org.freedesktop.portal.Settings";
constexpr auto group = "org.freedesktop.appearance";
constexpr auto key = "accent-color";
constexpr int settle = 100; // milliseconds; one change of mind is told in several messages

bool IsPart(double part) {
    return part >= 0 && part <= 1;
}

// Three parts from 0 to 1; anything else says that no colour is chosen.
std::optional<QColor> ColorIn(const QVariant& value) {
    if (value.userType() != qMetaTypeId<QDBusArgument>()) return {};
    const auto parts = value.value<QDBusArgument>();
    if (parts.currentSignature() != QLatin1String("(ddd)")) return {};
    double red = 0, green = 0, blue = 0;
    parts.beginStructure();
    parts >> red >> green >> blue;
    parts.endStructure();
    if (!IsPart(red) || !IsPart(green) || !IsPart(blue)) return {};
    return QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue));
}

} // namespace

// Asks the desktop's portal, and again whenever it says that a setting has changed.
class AccentColor::Portal : public QObject {
public:
    Portal() {
        again_.setSingleShot(true);
        again_.setInterval(settle);
        connect(&again_, &QTimer::timeout, this, [this] { Ask(); });
        QDBusConnection::sessionBus().connect(QString(), QLatin1String(object), QLatin1String(settings),
                                              QStringLiteral("SettingChanged"), {QLatin1String(group)},
                                              QString(), &again_, SLOT(start()));
        Ask();
    }

    std::optional<QColor> Color;

private:
    void Ask() {
        auto question = QDBusMessage::createMethodCall(QLatin1String(service), QLatin1String(object),
                                                       QLatin1String(settings), QStringLiteral("ReadAll"));
        question << QStringList{QLatin1String(group)};
        auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
            Take(answer->reply());
            answer->deleteLater();
        });
    }

    void Take(const QDBusMessage& answer) {
        if (answer.type() != QDBusMessage::ReplyMessage) return;
        if (answer.signature() != QLatin1String("a{sa{sv}}")) return;
        QMap<QString, QVariantMap> groups;
        answer.arguments().constFirst().value<QDBusArgument>() >> groups;
        Color = ColorIn(groups.value(QLatin1String(group)).value(QLatin1String(key)));
    }

    QTimer again_;
};

AccentColor::AccentColor() = default;
AccentColor::~AccentColor() = default;

void AccentColor::Begin() {
    if (!portal_) portal_ = std::make_unique<Portal>();
}

std::optional<QColor> AccentColor::Get() const {
    return portal_ ? portal_->Color : std::nullopt;
}

} // namespace quill
