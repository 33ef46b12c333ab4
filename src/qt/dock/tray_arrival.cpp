#include "qt/dock/tray_arrival.h"

#include "qt/dock/x11.h"

#include <QAbstractNativeEventFilter>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QObject>
#include <QTimer>
#include <qguiapplication_platform.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <utility>

namespace quill::qt {
namespace {

constexpr auto service = "org.kde.StatusNotifierWatcher";
constexpr auto object = "/StatusNotifierWatcher";
constexpr auto properties = "org.freedesktop.DBus.Properties";
constexpr auto hostIsThere = "IsStatusNotifierHostRegistered";
constexpr auto hostComes = "StatusNotifierHostRegistered";
constexpr std::string_view selection = "_NET_SYSTEM_TRAY_S0";

// Whoever holds the selection is the notification area of the X server.
bool ServerHasTray() {
    if (!x11::IsPresent()) return false;
    auto* server = qApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    const auto asked = xcb_get_selection_owner(server, x11::Atom(selection));
    const std::unique_ptr<xcb_get_selection_owner_reply_t, decltype(&std::free)> answer(
        xcb_get_selection_owner_reply(server, asked, nullptr), &std::free);
    return answer && answer->owner != XCB_NONE;
}

} // namespace

class TrayArrival::Watch final : public QObject, public QAbstractNativeEventFilter {
public:
    explicit Watch(std::function<void()> arrived)
        : arrived_(std::move(arrived)), bus_(QDBusConnection::sessionBus()),
          comes_(QLatin1String(service), bus_, QDBusServiceWatcher::WatchForOwnerChange) {
        look_.setSingleShot(true);
        connect(&look_, &QTimer::timeout, this, [this] { Look(); });
        connect(&comes_, &QDBusServiceWatcher::serviceOwnerChanged, &look_, qOverload<>(&QTimer::start));
        bus_.connect(QString(), QLatin1String(object), QLatin1String(service), QLatin1String(hostComes),
                     &look_, SLOT(start()));
        qApp->installNativeEventFilter(this);
        look_.start();
    }

    // A notification area that begins says so to everybody who listens at the root window.
    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override {
        const auto* event = static_cast<const xcb_generic_event_t*>(message);
        if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE) return false;
        const auto* word = reinterpret_cast<const xcb_client_message_event_t*>(event);
        if (word->type == x11::Atom("MANAGER") && word->data.data32[1] == x11::Atom(selection)) look_.start();
        return false;
    }

private:
    void Look() {
        if (!bus_.isConnected()) return Decide(false);
        auto question = QDBusMessage::createMethodCall(QLatin1String(service), QLatin1String(object),
                                                       QLatin1String(properties), QStringLiteral("Get"));
        question.setAutoStartService(false);
        question << QLatin1String(service) << QLatin1String(hostIsThere);
        const int number = ++asked_;
        auto* answer = new QDBusPendingCallWatcher(bus_.asyncCall(question), this);
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, number] {
            if (number == asked_) Take(answer->reply());
            answer->deleteLater();
        });
    }

    // One that does not answer is let alone, for the toolkit would wait for it.
    void Take(const QDBusMessage& answer) {
        if (QDBusError(answer).type() == QDBusError::NoReply) return;
        const QVariant said = answer.arguments().value(0);
        Decide(said.canConvert<QDBusVariant>() && said.value<QDBusVariant>().variant().toBool());
    }

    void Decide(bool hostThere) {
        if (!arrived_ || !(hostThere || ServerHasTray())) return;
        qApp->removeNativeEventFilter(this);
        comes_.disconnect(&look_);
        std::exchange(arrived_, nullptr)();
    }

    std::function<void()> arrived_; // empty once it was called
    QDBusConnection bus_;
    QDBusServiceWatcher comes_;
    QTimer look_; // several words may come at once
    int asked_ = 0;
};

TrayArrival::TrayArrival(std::function<void()> arrived)
    : watch_(std::make_unique<Watch>(std::move(arrived))) {}
TrayArrival::~TrayArrival() = default;

} // namespace quill::qt
