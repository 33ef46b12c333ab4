#include "qt/core/qt_session.h"

#include "core/frmMain.h"
#include "core/handlers.h"
#include "posix/descriptor.h"
#include "posix/instance_posix.h"
#include "qt/appearance/font_list.h"
#include "qt/core/display_check.h"
#include "qt/dock/x11.h"
#include "qt/system/memory.h"

#include <QApplication>
#include <QPalette>
#include <QScreen>
#include <QSessionManager>

#include <cstdlib>

namespace quill {
namespace {

constexpr int screensSettle = 400; // milliseconds without a further change

// The same name as the desktop entry's, so that desktops find window and entry together.
constexpr const char* applicationName = "quillmere";

// The workspace places its windows by itself, which only X lets it do.
void ChoosePlatform() {
    const char* kind = std::getenv("QT_QPA_PLATFORM");
    if (kind == nullptr || std::string_view(kind).starts_with("wayland")) qputenv("QT_QPA_PLATFORM", "xcb");
}

} // namespace

QtSession::QtSession(const SessionParts& parts) : parts_(parts), arguments_(applicationName) {}

QtSession::~QtSession() {
    Detach();
}

Status QtSession::OpenDisplay() {
    if (parts_.Display.It) return {};
    if (auto there = CheckDisplay(); !there) return there;
    UseTwoHeaps();
    FontList fonts; // ready before the first text
    ChoosePlatform();
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QGuiApplication::setDesktopFileName(QString::fromLatin1(applicationName));
    QCoreApplication::setApplicationName(QString::fromLatin1(applicationName));
    parts_.Display.It =
        std::make_unique<Display>(arguments_, parts_.Attached, parts_.Places.DataFolder(), parts_.Worker);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return {};
}

void QtSession::Attach(frmMain& main) {
    auto& stage = parts_.Display.Get().Stage;
    parts_.Attached.Main = &main;
    main.Marks.Wake = [&stage] { stage.Wake(); };
    stage.OnFirstPicture = [this] {
        motion_.Begin();
        accent_.Begin();
    };
    signals_ = std::make_unique<EndSignals>([this] { EndWished(); });
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &stage,
                     [this](QSessionManager&) { EndWished(); });
    parts_.Questions.AllClosed = [this] {
        if (endWished_)
            QMetaObject::invokeMethod(
                &parts_.Display.Get().Stage, [this] { EndNow(); }, Qt::QueuedConnection);
    };
    WatchInstance();
    WatchScreens();
}

void QtSession::Detach() {
    if (parts_.Attached.Main == nullptr) return;
    parts_.Attached.Main->Marks.Wake = nullptr;
    parts_.Attached.Main = nullptr;
    calls_.reset();
    screens_.reset();
    parts_.Questions.AllClosed = nullptr;
}

int QtSession::Run() {
    if (quit_) return code_;
    parts_.Display.Get().Stage.Wake();
    QApplication::exec();
    return code_;
}

void QtSession::Quit(int code) {
    code_ = code;
    quit_ = true;
    parts_.Attached.Ending = true;
    parts_.Questions.CancelAll();
    QCoreApplication::exit(code);
}

void QtSession::ProcessPending() {
    parts_.Display.Get().Stage.Drain();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
}

// A first look at the splash needs the server's word that it is on the screen; what else comes with that word
// finds a workspace that is still loading and is not followed.
void QtSession::ShowSplashNow() {
    auto& splash = parts_.Display.Get().Stage.Splash();
    splash.repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
    qt::x11::Flush();
}

bool QtSession::ReducedMotion() const {
    return motion_.IsForLess();
}

Color QtSession::AccentColor() const {
    const QColor color = accent_.Get().value_or(QGuiApplication::palette().color(QPalette::Highlight));
    return Rgb(color.red(), color.green(), color.blue());
}

void QtSession::PrintOut(const std::string& text) {
    WriteAll(STDOUT_FILENO, text);
}

void QtSession::PrintError(const std::string& text) {
    WriteAll(STDERR_FILENO, text);
}

// Open questions are cancelled first; the end itself begins when the outermost loop is back.
void QtSession::EndWished() {
    endWished_ = true;
    parts_.Attached.Ending = true;
    if (parts_.Questions.Depth() == 0) return EndNow();
    parts_.Questions.CancelAll();
}

void QtSession::EndNow() {
    if (parts_.Attached.Alive()) SessionEnd(*parts_.Attached.Main);
}

void QtSession::WatchInstance() {
    const int fd = parts_.Instance.ListeningFd();
    if (fd == -1) return;
    calls_ = std::make_unique<QSocketNotifier>(fd, QSocketNotifier::Read);
    QObject::connect(calls_.get(), &QSocketNotifier::activated, calls_.get(), [this] { TakeCalls(); });
}

void QtSession::TakeCalls() {
    while (const auto call = parts_.Instance.TakeCall())
        if (parts_.Attached.Alive()) SecondStart(*parts_.Attached.Main, call->Word);
}

void QtSession::WatchScreens() {
    screens_ = std::make_unique<QTimer>();
    screens_->setSingleShot(true);
    screens_->setInterval(screensSettle);
    QTimer* settle = screens_.get();
    QObject::connect(settle, &QTimer::timeout, settle, [this] {
        if (parts_.Attached.Alive()) Screen_Changed(*parts_.Attached.Main);
    });
    const auto again = [settle] { settle->start(); };
    const auto watch = [settle, again](QScreen* screen) {
        QObject::connect(screen, &QScreen::geometryChanged, settle, again);
        QObject::connect(screen, &QScreen::availableGeometryChanged, settle, again);
    };
    for (QScreen* screen : QGuiApplication::screens()) watch(screen);
    QObject::connect(qApp, &QGuiApplication::screenAdded, settle, [watch, again](QScreen* screen) {
        watch(screen);
        again();
    });
    QObject::connect(qApp, &QGuiApplication::screenRemoved, settle, again);
    QObject::connect(qApp, &QGuiApplication::primaryScreenChanged, settle, again);
}

} // namespace quill
