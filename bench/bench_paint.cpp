// How long frames of the real program take: its own backend on the display that is there, its own widgets,
// and what it takes to hand a picture to the server. Called with the configuration folder of a workspace (the
// folder that holds Quillmere/); the files in it are changed, so it must be a copy.
//
// A frame is a change and all that follows of it until the server has the picture. Work is the time that the
// processor worked for it: where the machine has other things to do that is the figure that still tells
// something.
#include "containers/fold.h"
#include "containers/rubber_band.h"
#include "containers/scroll.h"
#include "containers/shrink.h"
#include "core/frmMain.h"
#include "core/handlers.h"
#include "core/objects.h"
#include "core/start.h"
#include "core/surfaces.h"
#include "persistence/save.h"
#include "platform/session.h"
#include "qt/qt_platform.h"

#include <QApplication>
#include <QEvent>
#include <QThread>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

namespace quill {
namespace {

constexpr int Frames = 200;    // of what can be repeated at will
constexpr int QuietTime = 400; // milliseconds without a paint until all icons have come
constexpr double Longest = 16; // milliseconds

struct Frame {
    double Wall = 0, Work = 0; // milliseconds
};

double MillisecondsOf(clockid_t clock) {
    timespec now{};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

// Counts what is painted, so that quiet can be told from busy.
class PaintWatch : public QObject {
public:
    PaintWatch() { qApp->installEventFilter(this); }
    int Painted = 0;

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++Painted;
        return QObject::eventFilter(object, event);
    }
};

void Settle() {
    PaintWatch watch;
    for (int quiet = 0, seen = 0; quiet < QuietTime; ++quiet) {
        QCoreApplication::processEvents();
        QThread::msleep(1);
        if (watch.Painted != seen) quiet = 0;
        seen = watch.Painted;
    }
}

// The toolkit paints a few milliseconds after the last change; here it need not wait.
void PaintNow() {
    QCoreApplication::sendPostedEvents();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        QEvent request(QEvent::UpdateRequest);
        if (window->isVisible()) QCoreApplication::sendEvent(window, &request);
    }
}

Frame Timed(const std::function<void()>& act) {
    const double wall = MillisecondsOf(CLOCK_MONOTONIC), work = MillisecondsOf(CLOCK_THREAD_CPUTIME_ID);
    act();
    PaintNow();
    const Frame frame{MillisecondsOf(CLOCK_MONOTONIC) - wall, MillisecondsOf(CLOCK_THREAD_CPUTIME_ID) - work};
    QCoreApplication::processEvents();
    return frame;
}

double Middle(std::vector<double> values) {
    if (values.empty()) return 0;
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double Smallest(const std::vector<double>& values) {
    return values.empty() ? 0 : *std::min_element(values.begin(), values.end());
}

double Largest(const std::vector<double>& values) {
    return values.empty() ? 0 : *std::max_element(values.begin(), values.end());
}

void Print(const char* what, const std::vector<Frame>& frames) {
    std::vector<double> walls, works;
    for (const auto& frame : frames) {
        walls.push_back(frame.Wall);
        works.push_back(frame.Work);
    }
    const auto late = std::count_if(works.begin(), works.end(), [](double work) { return work > Longest; });
    std::printf("%-50s %6zu %9.2f %9.2f %10.2f %9.2f %9.2f %6ld\n", what, frames.size(), Middle(walls),
                Largest(walls), Smallest(works), Middle(works), Largest(works), static_cast<long>(late));
    std::fflush(stdout);
}

std::vector<Frame> Repeated(int count, const std::function<void(int)>& act) {
    std::vector<Frame> frames;
    for (int at = 0; at < count; ++at) frames.push_back(Timed([&] { act(at); }));
    return frames;
}

std::vector<int> ContainersThat(const frmMain& Main, bool (*are)(const frmMain&, int), bool wanted) {
    std::vector<int> found;
    for (const auto& row : Live(Main.Containers))
        if (are(Main, row.Index) == wanted) found.push_back(row.Index);
    return found;
}

// A left button that is held, and what it was pressed on.
class Hand {
public:
    Hand(frmMain& Main, SurfaceId surface, Point at) : main_(Main), surface_(surface), at_(at) {
        MouseDown(main_, surface_, Event());
    }
    ~Hand() { MouseUp(main_, surface_, Event()); }
    Hand(const Hand&) = delete;
    Hand& operator=(const Hand&) = delete;

    void MoveBy(Point by) {
        at_ = {at_.X + by.X, at_.Y + by.Y};
        MouseMove(main_, surface_, Event());
    }

private:
    MouseEvent Event() const {
        const Rect window = main_.View.Window;
        return {at_, {window.Left + at_.X, window.Top + at_.Y}, MouseButton::Left};
    }

    frmMain& main_;
    SurfaceId surface_;
    Point at_; // where the surface was at the press
};

// To and fro across the workspace, over whatever lies there.
class Route {
public:
    Route(const frmMain& Main, int container)
        : room_(Main.View.picBack.Place), at_(Main.ConView(container).Container.Place) {}
    Point Step() {
        const Point before{at_.Left, at_.Top};
        Turn(at_.Left, at_.Width, room_.Width, across_);
        Turn(at_.Top, at_.Height, room_.Height, down_);
        return {at_.Left - before.X, at_.Top - before.Y};
    }

private:
    static void Turn(float& place, float size, float room, float& step) {
        if (place + step < 0 || place + size + step > room) step = -step;
        place += step;
    }
    Rect room_, at_;
    float across_ = 11 * TwipsPerPixel, down_ = 4 * TwipsPerPixel;
};

Point GripOf(const frmMain& Main, int container) {
    const auto& view = Main.ConView(container);
    if (IsShrunk(Main, container)) return {view.Container.Place.Width / 2, view.Container.Place.Height / 2};
    const Rect& label = view.ContainerLabel.Place;
    return {label.Left + label.Width / 2, label.Top + label.Height / 2};
}

void MeasureDragOf(frmMain& Main, const char* what, const std::vector<int>& among) {
    if (among.empty()) return;
    const int container = among[among.size() / 2];
    const Rect before = Main.ConView(container).Container.Place;
    std::vector<Frame> frames;
    {
        Hand hand(Main, {SurfaceKind::Container, container}, GripOf(Main, container));
        Settle();
        Route route(Main, container);
        frames = Repeated(Frames, [&](int) { hand.MoveBy(route.Step()); });
        if (Main.ConView(container).Container.Place == before) std::printf("it did not move:\n");
    }
    Print(what, frames);
    Main.ConView(container).Container.Place = before;
    Main.Marks.Container(container);
    Settle();
}

void MeasureBand(frmMain& Main) {
    const auto& back = Main.View.picBack.Place;
    Main.Group.frmSelection = {true, true, {0, back.Height / 3}, {0, back.Height / 3, 0, 0}};
    const Point step{back.Width / Frames, back.Height / Frames / 2};
    const auto grow = [&](int at) {
        const float steps = static_cast<float>(at + 1);
        MouseEvent event;
        event.At = {step.X * steps, back.Height / 3 + step.Y * steps};
        event.Button = MouseButton::Left;
        MouseMove(Main, {}, event);
    };
    Print("a rubber band grows over everything", Repeated(Frames, grow));
    UnloadSelection(Main);
    Settle();
}

void MeasureRepaint(frmMain& Main) {
    Print("everything is painted anew", Repeated(Frames / 4, [&](int) { Main.Marks.Everything(); }));
    Print("the workspace's own part", Repeated(Frames / 4, [&](int) { Main.Marks.Workspace(); }));
}

void MeasureDrag(frmMain& Main) {
    MeasureDragOf(Main, "an open container is dragged over everything",
                  ContainersThat(Main, IsShrunk, false));
    MeasureDragOf(Main, "a tile is dragged over everything", ContainersThat(Main, IsShrunk, true));
    MeasureBand(Main);
}

void MeasureOpening(frmMain& Main) {
    std::vector<Frame> first, back, again;
    for (const int tile : ContainersThat(Main, IsShrunk, true)) {
        const auto turn = [&] { ExpandShrinkContainer(Main, tile, false); };
        first.push_back(Timed(turn));
        Settle();
        back.push_back(Timed(turn));
        again.push_back(Timed(turn));
        turn();
        Settle();
    }
    Print("a tile of 250 shortcuts opens, first time", first);
    Print("a tile of 250 shortcuts opens again", again);
    Print("it shrinks back", back);
}

// The first open one of the workspace's containers; -1 for none.
int FirstOpen(const frmMain& Main) {
    for (const int container : ContainersThat(Main, IsShrunk, false))
        if (!IsFolded(Main, container)) return container;
    return -1;
}

void MeasureFolding(frmMain& Main) {
    const int container = FirstOpen(Main);
    if (container == -1) return;
    const auto fold = [&](int) { FoldUnfoldContainer(Main, container, false); };
    Print("a container of 250 shortcuts folds and unfolds", Repeated(Frames / 2, fold));
    Print("the same with its recovery save", Repeated(Frames / 2, [&](int at) {
              fold(at);
              SaveContainers(Main, true);
          }));
    Settle();
}

void MeasureScrolling(frmMain& Main) {
    const int container = FirstOpen(Main);
    if (container == -1) return;
    const auto scroll = [&](int at) { ContainerFrame_MouseWheel(Main, container, at % 80 < 40 ? -1 : 1); };
    Print("a container of 250 shortcuts scrolls, first time", Repeated(40, scroll));
    Settle();
    Print("it scrolls again", Repeated(Frames, scroll));
}

struct Measure {
    const char* Name;
    void (*Run)(frmMain& Main);
};

constexpr Measure measures[] = {{"repaint", MeasureRepaint},
                                {"drag", MeasureDrag},
                                {"fold", MeasureFolding},
                                {"scroll", MeasureScrolling},
                                {"open", MeasureOpening}};

long Kilobytes(const char* file, const char* name) {
    std::ifstream lines(file);
    for (std::string line; std::getline(lines, line);)
        if (line.rfind(name, 0) == 0) return std::stol(line.substr(line.find(':') + 1));
    return 0;
}

void PrintMemory(const char* when) {
    std::printf("%-50s %6.1f MB (%.1f MB of them its own)\n", when,
                static_cast<double>(Kilobytes("/proc/self/smaps_rollup", "Pss:")) / 1024,
                static_cast<double>(Kilobytes("/proc/self/smaps_rollup", "Private_Dirty:")) / 1024);
}

void PrintHead(const frmMain& Main) {
    std::printf("%zu tiles, %zu other containers, window %.0f x %.0f pixels\n\n",
                ContainersThat(Main, IsShrunk, true).size(), ContainersThat(Main, IsShrunk, false).size(),
                static_cast<double>(Main.View.Window.Width / TwipsPerPixel),
                static_cast<double>(Main.View.Window.Height / TwipsPerPixel));
    std::printf("%-50s %6s %9s %9s %10s %9s %9s %6s\n", "milliseconds a frame", "frames", "median", "worst",
                "least work", "median", "worst", "late");
}

int Run(const char* configuration, const std::string& only) {
    qputenv("XDG_CONFIG_HOME", configuration);
    int argc = 0;
    qt::QtPlatform platform(argc, nullptr);
    frmMain workspace(platform.Ports());
    workspace.Start.NoSplash = true;
    SettleSettingsFolder(workspace);
    if (!workspace.P.Session.OpenDisplay()) {
        std::fprintf(stderr, "bench_paint: there is no display to measure on\n");
        return 1;
    }
    workspace.P.Session.Attach(workspace);
    LoadSettings(workspace);
    PostLoad(workspace);
    Settle();
    PrintMemory("memory of the workspace on the screen (PSS)");
    PrintHead(workspace);
    for (const auto& measure : measures)
        if (only.empty() || only == measure.Name) measure.Run(workspace);
    PrintMemory("memory after all of that (PSS)");
    workspace.P.Session.Detach();
    return 0;
}

} // namespace
} // namespace quill

int main(int argc, char** argv) {
    if (argc < 2 || argc > 3) {
        std::fprintf(stderr, "Usage: bench_paint folder [repaint|drag|fold|scroll|open]\n");
        return 2;
    }
    return quill::Run(argv[1], argc == 3 ? argv[2] : "");
}
