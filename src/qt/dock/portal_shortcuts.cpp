#include "qt/dock/portal_shortcuts.h"

#include "platform/hotkeys.h"
#include "qt/core/convert.h"
#include "qt/dock/keyboard_map.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QGuiApplication>
#include <QTimer>
#include <QVariantMap>

namespace quill::qt {

// A shortcut as the portal is told it: the signature (sa{sv}).
struct ShortcutWish {
    QString Id;
    QVariantMap Options;
};
using ShortcutWishes = QList<ShortcutWish>;

} // namespace quill::qt
Q_DECLARE_METATYPE(quill::qt::ShortcutWish)

namespace quill::qt {

QDBusArgument& operator<<(QDBusArgument& out, const ShortcutWish& wish) {
    out.beginStructure();
    out << wish.Id << wish.Options;
    out.endStructure();
    return out;
}
const QDBusArgument& operator>>(const QDBusArgument& in, ShortcutWish& wish) {
    in.beginStructure();
    in >> wish.Id >> wish.Options;
    in.endStructure();
    return in;
}

namespace {

// A line of its own to the bus: the portal takes a program's name only as the first word on one.
constexpr auto lineName = "quillmere-shortcuts";
constexpr auto service = "org.freedesktop.portal.Desktop";
constexpr auto object = "/org/freedesktop/portal/desktop";
constexpr auto shortcuts = "org.freedesktop.portal.GlobalShortcuts";
constexpr auto registry = "org.freedesktop.host.portal.Registry";
constexpr auto request = "org.freedesktop.portal.Request";
constexpr auto session = "org.freedesktop.portal.Session";
constexpr auto shortcutId = "toggle";

struct PrefixOf {
    int Modifier;
    std::string_view Text;
};
constexpr PrefixOf prefixes[] = {
    {ModWin, "LOGO+"}, {ModControl, "CTRL+"}, {ModAlt, "ALT+"}, {ModShift, "SHIFT+"}};

// "LOGO+ALT+s"
QString Trigger(int modifiers, int code) {
    std::string trigger;
    for (const PrefixOf& prefix : prefixes)
        if (modifiers & prefix.Modifier) trigger += prefix.Text;
    return Text(trigger.append(KeyOfCode(code).Name));
}

QDBusMessage CallOf(const QString& path, const char* interface, const char* method) {
    return QDBusMessage::createMethodCall(QLatin1String(service), path, QLatin1String(interface),
                                          QLatin1String(method));
}

} // namespace

// The portal's answers come as signals, of which only that they come needs to be known: where the session is
// follows from the names that were proposed, and a key that was refused is never pressed.
class PortalShortcuts::Binding final : public QObject {
public:
    explicit Binding(const std::function<void()>& pressed)
        : line_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QLatin1String(lineName))),
          comes_(QLatin1String(service), line_, QDBusServiceWatcher::WatchForRegistration) {
        qDBusRegisterMetaType<ShortcutWish>();
        qDBusRegisterMetaType<ShortcutWishes>();
        for (QTimer* word : {&made_, &pressed_}) word->setSingleShot(true);
        connect(&made_, &QTimer::timeout, this, [this] { Bind(); });
        connect(&pressed_, &QTimer::timeout, this, [pressed] { pressed(); });
        connect(&comes_, &QDBusServiceWatcher::serviceRegistered, this, [this] { Begin(); });
        line_.connect(QString(), QLatin1String(object), QLatin1String(shortcuts), QStringLiteral("Activated"),
                      {QString(), QLatin1String(shortcutId)}, QString(), &pressed_, SLOT(start()));
        auto name = CallOf(QLatin1String(object), registry, "Register");
        line_.send(name << QGuiApplication::desktopFileName() << QVariantMap());
    }

    ~Binding() override {
        GiveUp();
        line_ = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus(QLatin1String(lineName));
    }

    void Wish(const QString& trigger, const QString& description) {
        GiveUp();
        wish_ = {
            QLatin1String(shortcutId),
            {{QStringLiteral("description"), description}, {QStringLiteral("preferred_trigger"), trigger}}};
        Begin();
    }

    void GiveUp() {
        if (wish_.Id.isEmpty()) return;
        wish_ = {};
        line_.send(CallOf(PathOf("session"), session, "Close"));
    }

private:
    // Also when a portal comes later, or another one in its place: what was bound has gone with the former.
    void Begin() {
        if (wish_.Id.isEmpty()) return;
        ++sessions_;
        line_.connect(QString(), PathOf("request"), QLatin1String(request), QStringLiteral("Response"),
                      &made_, SLOT(start()));
        auto make = CallOf(QLatin1String(object), shortcuts, "CreateSession");
        line_.send(make << QVariantMap{{QStringLiteral("handle_token"), Token()},
                                       {QStringLiteral("session_handle_token"), Token()}});
    }

    void Bind() {
        if (wish_.Id.isEmpty()) return;
        auto bind = CallOf(QLatin1String(object), shortcuts, "BindShortcuts");
        line_.send(bind << QVariant::fromValue(QDBusObjectPath(PathOf("session")))
                        << QVariant::fromValue(ShortcutWishes{wish_}) << QString()
                        << QVariantMap{{QStringLiteral("handle_token"), Token() + QLatin1String("_bind")}});
    }

    QString Token() const { return QStringLiteral("quillmere_%1").arg(sessions_); }

    QString PathOf(const char* kind) const {
        const QString caller = line_.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
        return QStringLiteral("%1/%2/%3/%4").arg(QLatin1String(object), QLatin1String(kind), caller, Token());
    }

    QDBusConnection line_;
    QDBusServiceWatcher comes_;
    QTimer made_, pressed_; // words of the portal that have come
    ShortcutWish wish_;     // without an id: there is none
    int sessions_ = 0;      // asked for so far
};

PortalShortcuts::PortalShortcuts(std::function<void()> pressed) : pressed_(std::move(pressed)) {}
PortalShortcuts::~PortalShortcuts() = default;

bool PortalShortcuts::AreNeeded() {
    return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           qEnvironmentVariable("XDG_SESSION_TYPE") == QLatin1String("wayland");
}

void PortalShortcuts::Wish(int modifiers, int code, const std::string& description) {
    if (!binding_) binding_ = std::make_unique<Binding>(pressed_);
    binding_->Wish(Trigger(modifiers, code), Text(description));
}

void PortalShortcuts::GiveUp() {
    if (binding_) binding_->GiveUp();
}

} // namespace quill::qt
