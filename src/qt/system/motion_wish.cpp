#include "qt/system/motion_wish.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <QVariantMap>

namespace quill {
namespace {

constexpr auto service = "org.freedesktop.portal.Desktop";
constexpr auto object = "/org/freedesktop/portal/desktop";
constexpr auto settings = "org.freedesktop.portal.Settings";
constexpr int settle = 100; // milliseconds; one change of mind is told in several messages

// Each desktop has a word of its own for the wish: its group, its key, and the value that asks for less.
struct Word {
    const char* Group;
    const char* Key;
    double Less;
};
constexpr Word words[] = {
    {"org.freedesktop.appearance", "reduced-motion", 1},
    {"org.gnome.desktop.interface", "enable-animations", 0},
    {"org.kde.kdeglobals.KDE", "AnimationDurationFactor", 0},
};

bool AsksForLess(const QVariant& value, double less) {
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber && number == less;
}

bool AsksForLess(const QMap<QString, QVariantMap>& groups) {
    for (const Word& word : words) {
        const auto group = groups.value(QLatin1String(word.Group));
        if (AsksForLess(group.value(QLatin1String(word.Key)), word.Less)) return true;
    }
    return false;
}

// The same of a desktop that keeps it in a file, for sessions in which nobody answers for it.
bool FileAsksForLess() {
    if (!qEnvironmentVariable("XDG_CURRENT_DESKTOP").contains(QLatin1String("KDE"))) return false;
    const auto place = QStandardPaths::GenericConfigLocation;
    for (const auto& path : QStandardPaths::locateAll(place, QStringLiteral("kdeglobals"))) {
        const QSettings file(path, QSettings::IniFormat);
        const auto value = file.value(QStringLiteral("KDE/AnimationDurationFactor"));
        if (value.isValid()) return AsksForLess(value, 0);
    }
    return false;
}

} // namespace

// Asks the desktop's portal, and again whenever it says that a setting has changed.
class MotionWish::Portal : public QObject {
public:
    Portal() : inFile_(FileAsksForLess()) {
        again_.setSingleShot(true);
        again_.setInterval(settle);
        connect(&again_, &QTimer::timeout, this, [this] { Ask(); });
        QDBusConnection::sessionBus().connect(QString(), QLatin1String(object), QLatin1String(settings),
                                              QStringLiteral("SettingChanged"), &again_, SLOT(start()));
        Ask();
    }

    bool IsForLess() const { return inFile_ || inPortal_; }

private:
    void Ask() {
        auto question = QDBusMessage::createMethodCall(QLatin1String(service), QLatin1String(object),
                                                       QLatin1String(settings), QStringLiteral("ReadAll"));
        QStringList groups;
        for (const Word& word : words) groups << QLatin1String(word.Group);
        question << groups;
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
        inPortal_ = AsksForLess(groups);
    }

    bool inFile_;
    bool inPortal_ = false;
    QTimer again_;
};

MotionWish::MotionWish() = default;
MotionWish::~MotionWish() = default;

void MotionWish::Begin() {
    if (!portal_) portal_ = std::make_unique<Portal>();
}

bool MotionWish::IsForLess() const {
    return portal_ && portal_->IsForLess();
}

} // namespace quill
