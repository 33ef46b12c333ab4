#include "qt/dock/native_window.h"

#include "qt/dock/x11.h"

#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QRegion>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <array>
#include <optional>
#include <vector>
#include <xcb/xcb.h>

namespace quill::qt {
namespace {

constexpr std::uint32_t StateRemove = 0, StateAdd = 1;
constexpr std::uint32_t SourcePager = 2;
constexpr int firstLook = 200, lastLook = 6400; // milliseconds after it was shown
constexpr std::string_view ClockProperty = "_QUILLMERE_CLOCK";

// How a window manager lets a dock be a window that is not on top.
enum class Habit {
    ChangesType,     // it hears of a changed type; a dock with the state "below" lies under everything
    BelowIsOrdinary, // a dock with the state "below" is in the layer of ordinary windows
    StaysOnTop       // neither, and the state "below" would also end the free placing
};

struct Manager {
    std::string_view Name; // what its name begins with
    Habit Way;
};

// All others change the type.
constexpr std::array<Manager, 3> Managers = {
    {{"Openbox", Habit::BelowIsOrdinary}, {"KWin", Habit::BelowIsOrdinary}, {"IceWM", Habit::StaysOnTop}}};

// Bottom is said by the state "below"; whether it means that is the window manager's habit.
enum class Layer { Ordinary, Top, Bottom };

x11::WindowId Id(const QWidget& widget) {
    return x11::IsPresent() ? static_cast<x11::WindowId>(widget.internalWinId()) : 0;
}

void SetState(x11::WindowId window, std::string_view state, bool wanted) {
    const std::uint32_t action = wanted ? StateAdd : StateRemove;
    x11::TellWindowManager(window, "_NET_WM_STATE", {action, x11::Atom(state), 0, SourcePager});
}

using Numbers = std::vector<std::uint32_t>;

// With several monitors the toolkit does not know the panels, but the window manager's work area does.
QRegion WithoutPanels(const QRegion& screens, const Numbers& area) {
    if (QGuiApplication::screens().size() < 2 || area.size() < 4) return screens;
    const double scale = qApp->devicePixelRatio();
    const auto units = [scale](std::uint32_t pixels) { return static_cast<int>(pixels / scale); };
    return screens & QRect(units(area[0]), units(area[1]), units(area[2]), units(area[3]));
}

bool ReachesBeyondTheScreens(const QRect& place, const Numbers& area) {
    QRegion screens;
    for (const QScreen* screen : QGuiApplication::screens()) screens += screen->availableGeometry();
    return !(QRegion(place) - WithoutPanels(screens, area)).isEmpty();
}

Habit PresentHabit() {
    const std::string name = x11::WindowManagerName();
    for (const Manager& known : Managers)
        if (name.starts_with(known.Name)) return known.Way;
    return Habit::ChangesType;
}

// A request for the keyboard needs the server's present time, or it counts as an old one. The server tells it
// with the notice of a changed property; then the request is sent and this object ends.
class FocusRequest final : public QObject, public QAbstractNativeEventFilter {
public:
    FocusRequest(QWidget& widget, x11::WindowId target)
        : QObject(&widget), window_(Id(widget)), target_(target), clock_(x11::Atom(ClockProperty)) {
        qApp->installNativeEventFilter(this);
        x11::TouchProperty(window_, ClockProperty);
    }

    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override {
        const auto* event = static_cast<const xcb_generic_event_t*>(message);
        if ((event->response_type & 0x7f) != XCB_PROPERTY_NOTIFY) return false;
        const auto* notice = reinterpret_cast<const xcb_property_notify_event_t*>(event);
        if (notice->window == window_ && notice->atom == clock_) Send(notice->time);
        return false;
    }

private:
    void Send(std::uint32_t time) {
        if (sent_) return;
        sent_ = true;
        x11::TellWindowManager(target_, "_NET_ACTIVE_WINDOW", {SourcePager, time, 0});
        deleteLater();
    }

    x11::WindowId window_; // of ours, whose property is the clock
    x11::WindowId target_;
    std::uint32_t clock_;
    bool sent_ = false;
};

// What is remembered of one workspace window; a child of the widget.
class WorkspaceWindow final : public QObject, public QAbstractNativeEventFilter {
public:
    explicit WorkspaceWindow(QWidget& widget) : QObject(&widget), widget_(widget) {
        widget.winId(); // the native window must exist before its type can be written
        widget.installEventFilter(this);
        if (auto* handle = widget.windowHandle()) handle->installEventFilter(this);
        connect(qApp, &QGuiApplication::focusWindowChanged, this, &WorkspaceWindow::FocusMoved);
        if (x11::IsPresent()) qApp->installNativeEventFilter(this);
    }

    static WorkspaceWindow* Of(const QWidget& widget) {
        for (QObject* child : widget.children())
            if (auto* found = dynamic_cast<WorkspaceWindow*>(child)) return found;
        return nullptr;
    }

    // Outwards the type that is left alone comes first and the place after it, inwards the other way round.
    void Place(const QRect& place) {
        placed_ = place.topLeft();
        beyond_ = ReachesBeyondTheScreens(place, WorkArea());
        if (beyond_) Apply();
        widget_.setGeometry(place);
        if (beyond_) return;
        Apply();
        if (lifted_) x11::Raise(Id(widget_)); // with the new layer a window may have come below others
        lifted_ = false;
    }

    void SetOnTop(bool wanted) {
        onTop_ = wanted;
        Apply();
        for (const auto& dialog : dialogs_)
            if (dialog) SetState(Id(*dialog), "_NET_WM_STATE_ABOVE", onTop_);
    }

    void SetListed(bool wanted) {
        listed_ = wanted;
        if (told_) TellListed();
    }

    void Call() { called_ = true; }

    void Lift() {
        lifted_ = true;
        Apply();
    }

    void AddDialog(QWidget& dialog) {
        std::erase_if(dialogs_, [](const auto& known) { return !known; });
        dialogs_.emplace_back(&dialog);
    }

    bool IsOnTop() const { return onTop_; }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (object == &widget_ && event->type() == QEvent::Show) Shown();
        if (object == &widget_ && event->type() == QEvent::Hide) told_ = called_ = false;
        if (object == &widget_) return false;
        if (event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove) CheckPlaceOfDrag();
        if (event->type() == QEvent::MouseButtonPress) {
            CheckPlace(static_cast<const QMouseEvent&>(*event));
            Clicked();
        }
        return false;
    }

    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override {
        const auto* event = static_cast<const xcb_generic_event_t*>(message);
        const auto kind = event->response_type & 0x7f;
        if (kind == XCB_FOCUS_IN) GivenKeyboard(reinterpret_cast<const xcb_focus_in_event_t*>(event)->event);
        if (kind == XCB_PROPERTY_NOTIFY)
            PropertyChanged(*reinterpret_cast<const xcb_property_notify_event_t*>(event));
        return false;
    }

private:
    // The window manager forgets a window that is hidden, and reads type and states when it is shown; the
    // states that the toolkit keeps for itself can be told only after that.
    void Shown() {
        beyond_ = ReachesBeyondTheScreens(widget_.geometry(), WorkArea());
        habit_ = PresentHabit();
        WriteType();
        if (listed_)
            x11::WriteAtoms(Id(widget_), "_NET_WM_STATE", {});
        else
            x11::WriteAtoms(Id(widget_), "_NET_WM_STATE",
                            {"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"});
        Soon(&WorkspaceWindow::TellAll);
        if (!watched_) WatchShown(firstLook);
    }

    // A window manager that is just starting may lose the request of a program that starts beside it, as at
    // the start of a session; then it is made again. A busy one may leave the toolkit with a wrong place. One
    // that is hidden meanwhile is left in peace until it is shown again.
    void WatchShown(int milliseconds) {
        watched_ = milliseconds <= lastLook;
        if (watched_)
            QTimer::singleShot(milliseconds, this, [this, milliseconds] {
                if (!widget_.isVisible()) return EndWatch();
                if (!x11::IsTaken(Id(widget_))) ShowAgain();
                x11::TellPlace(Id(widget_));
                WatchShown(2 * milliseconds);
            });
    }

    void EndWatch() { watched_ = false; }

    // The toolkit sends only what it has not sent before, so the size is another one for a moment. Whoever
    // did not have the keyboard in mind does not get it by this.
    void ShowAgain() {
        const bool called = called_;
        const QRect place = widget_.geometry();
        widget_.hide();
        widget_.resize(place.width() + 1, place.height());
        widget_.setGeometry(place);
        widget_.show();
        if (called) TakeFocus(widget_);
    }

    void Soon(void (WorkspaceWindow::*action)()) { QTimer::singleShot(0, this, action); }

    void FocusMoved(QWindow* window) {
        if (!window) lifted_ = false;
        Apply();
    }

    // A busy window manager may have left the toolkit with a wrong place, and what is dragged is led by it. A
    // press tells the true one for nothing; what others drag here does not, so there the server is asked
    // until the toolkit has the window where it was put.
    void CheckPlace(const QMouseEvent& press) {
        const QPoint corner = (press.globalPosition() - press.position()).toPoint();
        if (corner != widget_.windowHandle()->position()) x11::TellPlace(Id(widget_));
    }

    void CheckPlaceOfDrag() {
        if (widget_.windowHandle()->position() != placed_) x11::TellPlace(Id(widget_));
    }

    // Some window managers give a dock no keyboard for a click.
    void Clicked() {
        if (Blocker()) return PassToBlocker();
        if (!HasForeground(widget_)) TakeFocus(widget_);
    }

    // The toolkit keeps to itself that a blocked window was given the keyboard, so the server's own word is
    // heard.
    void GivenKeyboard(x11::WindowId window) {
        if (window == Id(widget_) && Blocker()) Soon(&WorkspaceWindow::PassToBlocker);
    }

    // Another window manager has come, or the first one after us, as at the start of a session.
    void PropertyChanged(const xcb_property_notify_event_t& notice) {
        if (notice.window != x11::Root()) return;
        if (notice.atom == x11::Atom("_NET_WORKAREA")) workArea_.reset();
        if (notice.atom == x11::Atom("_NET_SUPPORTING_WM_CHECK")) Soon(&WorkspaceWindow::TellAll);
    }

    // Kept, since a slide places the window fifty times a second.
    const Numbers& WorkArea() {
        if (!workArea_) workArea_ = x11::Numbers(x11::Root(), "_NET_WORKAREA");
        return *workArea_;
    }

    QWidget* Blocker() const {
        QWidget* dialog = QApplication::activeModalWidget();
        return dialog == &widget_ ? nullptr : dialog;
    }

    // The window manager raises and activates a window that is clicked, also when a dialog of ours blocks it.
    void PassToBlocker() {
        QWidget* dialog = Blocker();
        if (!dialog) return;
        x11::Raise(Id(*dialog));
        TakeFocus(*dialog);
    }

    bool IsOrdinaryType() const { return !onTop_ && !beyond_ && habit_ == Habit::ChangesType; }

    Layer WantedLayer() const {
        if (onTop_ || habit_ == Habit::StaysOnTop) return Layer::Top;
        if (habit_ == Habit::BelowIsOrdinary) return Layer::Bottom;
        if (!beyond_) return Layer::Ordinary;
        return lifted_ || QGuiApplication::focusWindow() ? Layer::Top : Layer::Bottom;
    }

    // Says only what has changed: a slide places the window fifty times a second.
    void Apply() {
        if (!told_) return;
        if (ordinary_ != IsOrdinaryType()) WriteType();
        if (standing_ != WantedLayer()) TellLayer();
    }

    void TellAll() {
        if (!widget_.isVisible()) return;
        told_ = true;
        habit_ = PresentHabit();
        WriteType();
        TellLayer();
        TellListed();
    }

    void WriteType() {
        ordinary_ = IsOrdinaryType();
        const std::string_view type = ordinary_ ? "_NET_WM_WINDOW_TYPE_NORMAL" : "_NET_WM_WINDOW_TYPE_DOCK";
        x11::WriteAtoms(Id(widget_), "_NET_WM_WINDOW_TYPE", {type});
    }

    void TellLayer() {
        standing_ = WantedLayer();
        SetState(Id(widget_), "_NET_WM_STATE_BELOW", standing_ == Layer::Bottom);
        SetState(Id(widget_), "_NET_WM_STATE_ABOVE", onTop_);
    }

    void TellListed() {
        SetState(Id(widget_), "_NET_WM_STATE_SKIP_TASKBAR", !listed_);
        SetState(Id(widget_), "_NET_WM_STATE_SKIP_PAGER", !listed_);
    }

    QWidget& widget_;
    std::vector<QPointer<QWidget>> dialogs_;
    std::optional<Numbers> workArea_; // of all desktops together, as it was announced last
    Layer standing_ = Layer::Top;     // as last told
    bool ordinary_ = false;           // the type as last written
    QPoint placed_;                   // where it was put last
    bool told_ = false;               // the window manager has the window and knows its states
    bool onTop_ = true;
    bool beyond_ = false; // reaches over the edge of the screens
    bool lifted_ = false; // raised on purpose since it was last at rest
    bool listed_ = false;
    bool called_ = false;  // the keyboard was asked for since it was shown
    bool watched_ = false; // it is being looked after whether the window has reached the screen
    Habit habit_ = Habit::ChangesType;
};

} // namespace

void MakeWorkspaceWindow(QWidget& window) {
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    window.setAttribute(Qt::WA_ShowWithoutActivating);
    if (!WorkspaceWindow::Of(window)) new WorkspaceWindow(window);
}

void PlaceAt(QWidget& window, const QRect& place) {
    if (auto* native = WorkspaceWindow::Of(window))
        native->Place(place);
    else
        window.setGeometry(place);
    x11::Flush();
}

void SetOnTop(QWidget& window, bool onTop) {
    if (auto* native = WorkspaceWindow::Of(window)) native->SetOnTop(onTop);
}

void RaiseWindow(QWidget& window) {
    if (auto* native = WorkspaceWindow::Of(window)) native->Lift();
    if (Id(window))
        x11::Raise(Id(window));
    else
        window.raise();
}

void TakeFocus(QWidget& window) {
    if (auto* native = WorkspaceWindow::Of(window)) native->Lift(), native->Call();
    if (Id(window)) {
        new FocusRequest(window, Id(window));
        return;
    }
    window.raise();
    window.activateWindow();
}

void GiveForegroundTo(std::uint32_t other, QWidget& ours) {
    if (Id(ours) && other) new FocusRequest(ours, other);
}

// Some window managers go on naming a window that was hidden and left nobody else to be active.
bool HasForeground(const QWidget& window) {
    if (!Id(window)) return window.isActiveWindow();
    const auto active = x11::Numbers(x11::Root(), "_NET_ACTIVE_WINDOW");
    return !active.empty() && active.front() == Id(window) && x11::KeyboardWindow() == Id(window);
}

void SetTaskbarEntry(QWidget& window, bool listed) {
    if (auto* native = WorkspaceWindow::Of(window)) native->SetListed(listed);
}

void PrepareDialogAbove(QWidget& dialog, QWidget& workspace) {
    auto* native = WorkspaceWindow::Of(workspace);
    if (!native) return;
    native->AddDialog(dialog);
    if (x11::IsPresent() && native->IsOnTop()) dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
    dialog.winId();
    if (dialog.windowHandle()) dialog.windowHandle()->setTransientParent(workspace.windowHandle());
}

void SetOpacity(QWidget& window, double opacity) {
    window.setWindowOpacity(opacity);
    x11::Flush();
}

} // namespace quill::qt
