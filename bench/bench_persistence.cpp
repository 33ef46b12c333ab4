// How long it takes to read and to write a workspace: the real routines over real files, with no screen.
// Called with the name and the configuration folder of each workspace (the folder that holds Quillmere/); the
// files in it are changed, so it must be a copy.
#include "core/frmMain.h"
#include "core/start.h"
#include "fake/computer.h"
#include "persistence/container_file.h"
#include "persistence/save.h"
#include "persistence/settings_file.h"
#include "posix/files_posix.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quill {
namespace {

constexpr int Runs = 31; // the median of these is printed

// A workspace on the disk, opened by a process that has no display.
class Desk {
public:
    explicit Desk(const std::string& configuration) {
        computer_.Places.Folders[SpecialFolder::Configuration] = configuration;
    }

    void Open() {
        main_.reset();
        main_ = std::make_unique<frmMain>(computer_.MakePlatform(files_));
        main_->Start.NoSplash = true;
        SettleSettingsFolder(*main_);
        LoadSettings(*main_);
    }

    frmMain& Main() { return *main_; }

private:
    fake::Computer computer_;
    FilesPosix files_;
    std::unique_ptr<frmMain> main_;
};

struct Times {
    double Median = 0, Best = 0;
};

Times Measured(const std::function<void()>& prepare, const std::function<void()>& run) {
    std::vector<double> times;
    for (int round = 0; round < Runs; ++round) {
        prepare();
        const auto start = std::chrono::steady_clock::now();
        run();
        const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
        times.push_back(time.count());
    }
    std::sort(times.begin(), times.end());
    return {times[Runs / 2], times[0]};
}

void Print(const char* workspace, const char* what, Times times, const char* target) {
    std::printf("%-9s %-48s %9.2f ms %9.2f ms   %s\n", workspace, what, times.Median, times.Best, target);
}

void ChangeOne(frmMain& Main) {
    for (auto& row : Live(Main.Containers)) {
        Main.ConView(row.Index).ContainerNote.Text += "x";
        return;
    }
}

void ChangeAll(frmMain& Main) {
    for (auto& row : Live(Main.Containers)) Main.ConView(row.Index).ContainerNote.Text += "x";
}

std::size_t Compose(const frmMain& Main) {
    const ObjectsByParent objects(Main);
    std::size_t bytes = SettingsText(Main, false, objects).size();
    for (const auto& row : Live(Main.Containers)) bytes += ContainerText(Main, row.Index, objects).size();
    return bytes;
}

// Written again every time, so that the compiler can't leave the work out.
volatile std::size_t composed;

void MeasureSaves(Desk& desk, const char* name, const char* target) {
    auto& Main = desk.Main();
    Print(name, "recovery save after a change in one container",
          Measured([&] { ChangeOne(Main); }, [&] { SaveWorkspace(Main, true, false); }), target);
    Print(name, "recovery save after a change in every container",
          Measured([&] { ChangeAll(Main); }, [&] { SaveWorkspace(Main, true, false); }), target);
    Print(name, "recovery save with nothing changed",
          Measured([] {}, [&] { SaveWorkspace(Main, true, false); }), target);
    Print(name, "committed save after a change in one container",
          Measured([&] { ChangeOne(Main); }, [&] { SaveWorkspace(Main, false, false); }),
          "waits for the disk");
    Print(name, "committed save after a change in every container",
          Measured([&] { ChangeAll(Main); }, [&] { SaveWorkspace(Main, false, false); }),
          "waits for the disk");
}

bool Measure(const char* name, const char* configuration) {
    const bool isLargest = std::strcmp(name, "largest") == 0;
    Desk desk(configuration);
    desk.Open();
    if (desk.Main().NextContainerIndex == 0) {
        std::fprintf(stderr, "%s/Quillmere holds no workspace\n", configuration);
        return false;
    }
    Print(name, "load", Measured([] {}, [&] { desk.Open(); }), isLargest ? "at most 30 ms" : "");
    Print(name, "all texts composed, nothing written",
          Measured([] {}, [&] { composed = Compose(desk.Main()); }), "");
    PostLoad(desk.Main());
    MeasureSaves(desk, name, isLargest ? "at most 16 ms" : "at most 1 ms");
    return true;
}

} // namespace
} // namespace quill

int main(int argc, char** argv) {
    if (argc < 3 || argc % 2 == 0) {
        std::fprintf(stderr, "Usage: bench_persistence name folder [name folder ...]\n");
        return 2;
    }
    std::printf("%-9s %-48s %12s %12s   %s\n", "", "", "median", "best", "target");
    for (int at = 1; at + 1 < argc; at += 2) {
        if (!quill::Measure(argv[at], argv[at + 1])) return 1;
    }
    return 0;
}
