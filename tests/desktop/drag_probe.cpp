// Another program to drag from and to. What it offers is told on standard input, one format a line with its
// bytes percent-encoded; a drag begins when its window is pressed and the mouse moves. On standard output it
// tells what is dropped on it and how its own drags end.
//
//   drag_probe TITLE X Y WIDTH HEIGHT
//   data text/uri-list file:///etc/hosts%0D%0A
//   text some%20words
//   clear

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QSocketNotifier>
#include <QWidget>

#include <functional>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <unistd.h>

namespace {

const char* NameOf(Qt::DropAction action) {
    switch (action) {
    case Qt::CopyAction:
        return "copy";
    case Qt::MoveAction:
        return "move";
    case Qt::LinkAction:
        return "link";
    default:
        return "none";
    }
}

class ProbeWindow final : public QWidget {
public:
    ProbeWindow() { setAcceptDrops(true); }
    std::map<std::string, QByteArray> Offered;

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), QColor(160, 90, 0)); }

    void mousePressEvent(QMouseEvent*) override { pressed_ = true; }
    void mouseReleaseEvent(QMouseEvent*) override { pressed_ = false; }
    // It would rather move than copy, as file managers do.
    void mouseMoveEvent(QMouseEvent*) override {
        if (!pressed_) return;
        pressed_ = false;
        auto* drag = new QDrag(this);
        auto* mime = new QMimeData;
        for (const auto& [format, bytes] : Offered) mime->setData(QString::fromStdString(format), bytes);
        drag->setMimeData(mime);
        const auto actions = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
        std::cout << "ended " << NameOf(drag->exec(actions, Qt::MoveAction)) << std::endl;
    }

    void dragEnterEvent(QDragEnterEvent* event) override { event->acceptProposedAction(); }
    void dropEvent(QDropEvent* event) override {
        event->acceptProposedAction();
        for (const QString& format : event->mimeData()->formats())
            std::cout << "dropped " << format.toStdString() << " "
                      << event->mimeData()->data(format).toPercentEncoding("/:").toStdString() << std::endl;
        std::cout << "proposed " << NameOf(event->proposedAction()) << std::endl;
    }

private:
    bool pressed_ = false;
};

QByteArray Decoded(std::istream& words) {
    std::string text;
    words >> text;
    return QByteArray::fromPercentEncoding(QByteArray::fromStdString(text));
}

using Command = std::function<void(ProbeWindow&, std::istream&)>;
const std::map<std::string, Command> Commands = {
    {"data",
     [](ProbeWindow& probe, std::istream& words) {
         std::string format;
         words >> format;
         probe.Offered[format] = Decoded(words);
     }},
    {"text", [](ProbeWindow& probe, std::istream& words) { probe.Offered["text/plain"] = Decoded(words); }},
    {"clear", [](ProbeWindow& probe, std::istream&) { probe.Offered.clear(); }},
};

// Lines are read without a buffer, so that the notifier hears of each.
void Obey(ProbeWindow& probe) {
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
    if (count != 6) return 2;
    ProbeWindow probe;
    probe.setWindowTitle(words[1]);
    probe.setGeometry(std::stoi(words[2]), std::stoi(words[3]), std::stoi(words[4]), std::stoi(words[5]));
    probe.show();
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &probe, [&probe] { Obey(probe); });
    return QApplication::exec();
}
