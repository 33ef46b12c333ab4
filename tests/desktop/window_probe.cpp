// A bare workspace window to drive from outside, so that the native window can be tried on a window manager
// without the rest of the program. It reads commands from standard input, one a line, and tells on standard
// output what reached it. The window moves when it is dragged and is sized when its lower right corner is.
//
//   window_probe workspace|edge|plain|panel TITLE X Y WIDTH HEIGHT
//
// "edge" is a window as the bar and the strip are. "plain" is an ordinary window of another program and
// "panel" one that lies at an edge, for the workspace to live with.

#include "qt/dock/edge_window.h"
#include "qt/dock/native_window.h"
#include "qt/dock/x11.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QSocketNotifier>
#include <QWidget>
#include <functional>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

constexpr int GripSize = 20;

class ProbeWindow final : public QWidget {
public:
    explicit ProbeWindow(QColor colour) : colour_(colour) {}

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), colour_); }

    void keyPressEvent(QKeyEvent* event) override {
        std::cout << "key " << event->text().toStdString() << std::endl;
    }

    void mousePressEvent(QMouseEvent* event) override {
        std::cout << "press" << std::endl;
        from_ = event->globalPosition().toPoint();
        before_ = geometry();
        sizing_ = event->pos().x() >= width() - GripSize && event->pos().y() >= height() - GripSize;
    }

    void mouseMoveEvent(QMouseEvent* event) override {
        const QPoint way = event->globalPosition().toPoint() - from_;
        QRect place = before_;
        sizing_ ? place.setBottomRight(before_.bottomRight() + way) : place.translate(way);
        quill::qt::PlaceAt(*this, place);
    }

private:
    QColor colour_;
    QPoint from_;
    QRect before_;
    bool sizing_ = false;
};

struct Probe {
    explicit Probe(QColor colour) : Window(colour) {}
    ProbeWindow Window;
    QPointer<QDialog> Dialog;
    QMenu Menu;
};

using Command = std::function<void(Probe&, std::istream&)>;

QRect ReadRect(std::istream& words) {
    int x = 0, y = 0, width = 0, height = 0;
    words >> x >> y >> width >> height;
    return {x, y, width, height};
}

bool ReadSwitch(std::istream& words) {
    std::string word;
    words >> word;
    return word == "on";
}

void OpenDialog(Probe& probe, std::istream&) {
    probe.Dialog = new QDialog(&probe.Window);
    probe.Dialog->setWindowTitle("dialog");
    probe.Dialog->setModal(true);
    probe.Dialog->setGeometry(probe.Window.x() + 60, probe.Window.y() + 60, 200, 100);
    quill::qt::PrepareDialogAbove(*probe.Dialog, probe.Window);
    probe.Dialog->show();
}

void OpenMenu(Probe& probe, std::istream&) {
    probe.Menu.setWindowTitle("menu");
    probe.Menu.addAction("One", [] { std::cout << "chosen" << std::endl; });
    probe.Menu.popup(probe.Window.geometry().topLeft() + QPoint(40, 40));
}

// What a panel keeps free: left, right, top, bottom, each along the whole side.
void KeepFree(Probe& probe, std::istream& words) {
    constexpr std::uint32_t far = 0xFFFF;
    std::vector<std::uint32_t> strut(4);
    for (auto& side : strut) words >> side;
    for (int side = 0; side < 4; ++side) strut.insert(strut.end(), {0, far});
    const auto window = static_cast<quill::qt::x11::WindowId>(probe.Window.winId());
    quill::qt::x11::WriteNumbers(window, "_NET_WM_STRUT_PARTIAL", strut);
}

void BecomePanel(QWidget& window) {
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    window.setAttribute(Qt::WA_ShowWithoutActivating);
    window.winId();
    window.setAttribute(Qt::WA_X11NetWmWindowTypeDock);
}

void FillScreen(Probe& probe, std::istream& words) {
    ReadSwitch(words) ? probe.Window.showFullScreen() : probe.Window.showNormal();
}

const std::map<std::string, Command> Commands = {
    {"place", [](Probe& probe, std::istream& words) { quill::qt::PlaceAt(probe.Window, ReadRect(words)); }},
    {"ontop",
     [](Probe& probe, std::istream& words) { quill::qt::SetOnTop(probe.Window, ReadSwitch(words)); }},
    {"listed",
     [](Probe& probe, std::istream& words) { quill::qt::SetTaskbarEntry(probe.Window, ReadSwitch(words)); }},
    {"call",
     [](Probe& probe, std::istream&) {
         probe.Window.show();
         quill::qt::TakeFocus(probe.Window);
     }},
    {"focus", [](Probe& probe, std::istream&) { quill::qt::TakeFocus(probe.Window); }},
    {"raise", [](Probe& probe, std::istream&) { quill::qt::RaiseWindow(probe.Window); }},
    {"hide", [](Probe& probe, std::istream&) { probe.Window.hide(); }},
    {"show", [](Probe& probe, std::istream&) { probe.Window.show(); }},
    {"fade", [](Probe& probe,
                std::istream& words) { quill::qt::SetOpacity(probe.Window, ReadRect(words).x() / 100.0); }},
    {"keepontop", [](Probe& probe, std::istream&) { quill::qt::KeepOnTop(probe.Window); }},
    {"keepfree", KeepFree},
    {"fullscreen", FillScreen},
    {"dialog", OpenDialog},
    {"menu", OpenMenu},
    {"foreground",
     [](Probe& probe, std::istream&) {
         std::cout << (quill::qt::HasForeground(probe.Window) ? "foreground" : "background") << std::endl;
     }},
};

// Lines are read without a buffer, so that the notifier hears of each.
void Obey(Probe& probe) {
    std::string line;
    char letter = 0;
    while (read(STDIN_FILENO, &letter, 1) == 1 && letter != '\n') line += letter;
    if (line.empty()) return QCoreApplication::quit();
    std::istringstream words(line);
    std::string name;
    words >> name;
    Commands.at(name)(probe, words);
    std::cout << "done " << name << std::endl;
}

} // namespace

int main(int count, char** words) {
    QApplication application(count, words);
    if (count != 7) return 2;
    const std::map<std::string, void (*)(QWidget&)> kinds = {{"workspace", &quill::qt::MakeWorkspaceWindow},
                                                             {"edge", &quill::qt::MakeEdgeWindow},
                                                             {"panel", &BecomePanel}};
    const std::string kind = words[1];
    Probe probe(kind == "plain" || kind == "panel" ? QColor(160, 90, 0) : QColor(0, 90, 160));
    probe.Window.setWindowTitle(words[2]);
    if (kinds.contains(kind)) kinds.at(kind)(probe.Window);
    quill::qt::PlaceAt(probe.Window,
                       {std::stoi(words[3]), std::stoi(words[4]), std::stoi(words[5]), std::stoi(words[6])});
    probe.Window.show();
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &probe.Window, [&probe] { Obey(probe); });
    return QApplication::exec();
}
