// How many frames of the effects reach the screen: the real program's backend on the display that is there,
// its tiles expanded and shrunk with the effect, its containers folded. A frame is missed when the next one
// was stepped before it was painted. Called with the configuration folder of a workspace (the folder that
// holds Quillmere/); nothing in it is changed, because nothing is saved.
#include "containers/fold.h"
#include "containers/shrink.h"
#include "core/frmMain.h"
#include "core/objects.h"
#include "core/start.h"
#include "platform/clock.h"
#include "platform/session.h"
#include "qt/core/surface_widget.h"
#include "qt/qt_platform.h"

#include <QCoreApplication>
#include <QEvent>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <set>
#include <vector>

namespace quill {
namespace {

constexpr int Rounds = 4;
constexpr int QuietTime = 400; // milliseconds without a paint until all icons have come

double Milliseconds(clockid_t clock) {
    timespec now{};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

// Sees what is painted of the surface that the effects are painted on.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(const frmMain& main) : main_(main) { qApp->installEventFilter(this); }

    int Painted = 0;                       // of anything
    std::vector<std::pair<int, int>> Seen; // kind and number of each painted frame of an effect
    std::vector<double> At;                // when

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() != QEvent::Paint) return false;
        ++Painted;
        const auto* surface = dynamic_cast<SurfaceWidget*>(object);
        if (surface == nullptr || surface->Id().Kind != SurfaceKind::Overlay) return false;
        const auto& effect = main_.Looks.frmExplode;
        const std::pair<int, int> frame{static_cast<int>(effect.Running), effect.Frame};
        if (!Seen.empty() && Seen.back() == frame) return false;
        Seen.push_back(frame);
        At.push_back(Milliseconds(CLOCK_MONOTONIC));
        return false;
    }

private:
    const frmMain& main_;
};

struct Figures {
    int Frames = 0, Missed = 0, Late = 0;
    double LongestGap = 0, Work = 0; // milliseconds
};

void Settle(PaintWatch& watch) {
    for (int quiet = 0, seen = watch.Painted; quiet < QuietTime; ++quiet) {
        QCoreApplication::processEvents();
        QThread::msleep(1);
        if (watch.Painted != seen) quiet = 0;
        seen = watch.Painted;
    }
}

// One effect from its first rectangle to its end; the flash behind it is not counted.
void Follow(frmMain& Main, PaintWatch& watch, const std::function<void()>& begin, Figures& figures) {
    Main.Group.JustExpanded = false;
    watch.Seen.clear();
    watch.At.clear();
    const double work = Milliseconds(CLOCK_THREAD_CPUTIME_ID);
    begin();
    const int kind = static_cast<int>(Main.Looks.frmExplode.Running);
    const double period = kind == 0 ? 1000.0 / 50 : 1000.0 / 40;
    while (Main.Looks.frmExplode.Loaded) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    figures.Work += Milliseconds(CLOCK_THREAD_CPUTIME_ID) - work;
    const int frames = kind == 0 ? 12 : 10; // the last one shows the container itself
    figures.Frames += frames;
    int painted = 0;
    for (std::size_t at = 0; at < watch.Seen.size(); ++at) {
        if (watch.Seen[at].first != kind) break;
        ++painted;
        if (at == 0) continue;
        const double gap = watch.At[at] - watch.At[at - 1];
        figures.LongestGap = std::max(figures.LongestGap, gap);
        if (gap > 1.5 * period) ++figures.Late;
    }
    figures.Missed += std::max(0, frames - painted);
    Settle(watch);
}

void Print(const char* what, const Figures& figures) {
    const double frames = std::max(1, figures.Frames);
    std::printf("%-28s %7d %7d %8.2f %7d %10.1f %10.2f\n", what, figures.Frames, figures.Missed,
                100 * figures.Missed / frames, figures.Late, figures.LongestGap, figures.Work / frames);
    std::fflush(stdout);
}

std::vector<int> ContainersThat(const frmMain& Main, bool (*are)(const frmMain&, int), bool wanted) {
    std::vector<int> found;
    for (const auto& row : Live(Main.Containers))
        if (are(Main, row.Index) == wanted) found.push_back(row.Index);
    return found;
}

void Measure(frmMain& Main) {
    PaintWatch watch(Main);
    Settle(watch);
    Main.Settings.Effect = Main.Settings.FoldUnfoldEffect = true;
    Main.Settings.EffectMode = 0;
    const auto tiles = ContainersThat(Main, IsShrunk, true), open = ContainersThat(Main, IsShrunk, false);
    Figures explode, implode, fold;
    for (int round = 0; round < Rounds; ++round) {
        for (const int tile : tiles) {
            const auto change = [&] { ExpandShrinkContainer(Main, tile, true); };
            Follow(Main, watch, change, explode);
            Follow(Main, watch, change, implode);
        }
    }
    for (const int container : open) {
        if (IsFolded(Main, container)) continue;
        Follow(
            Main, watch, [&] { FoldUnfoldContainer(Main, container, true); }, fold);
    }
    std::printf("%-28s %7s %7s %8s %7s %10s %10s\n", "", "frames", "missed", "of 100", "late", "longest ms",
                "work ms");
    Print("explode, 50 a second", explode);
    Print("implode, 40 a second", implode);
    Print("fold, 40 a second", fold);
}

int Run(const char* configuration) {
    qputenv("XDG_CONFIG_HOME", configuration);
    int argc = 0;
    qt::QtPlatform platform(argc, nullptr);
    frmMain workspace(platform.Ports());
    workspace.Start.NoSplash = true;
    SettleSettingsFolder(workspace);
    if (!workspace.P.Session.OpenDisplay()) {
        std::fprintf(stderr, "bench_effects: there is no display to measure on\n");
        return 1;
    }
    workspace.P.Session.Attach(workspace);
    LoadSettings(workspace);
    PostLoad(workspace);
    workspace.g_DontSave = true;
    Measure(workspace);
    workspace.P.Session.Detach();
    return 0;
}

} // namespace
} // namespace quill

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "Usage: bench_effects folder\n");
        return 2;
    }
    return quill::Run(argv[1]);
}
