// What the keyboard costs on a large workspace: the logic of a key in the Keyboard Launcher up to the decided
// preview, the evaluator, and what other programs drop, over real files and with no screen. Called with the
// configuration folder of the workspace (the folder that holds Quillmere/); the files in it are changed, so
// it must be a copy.
#include "containers/layout.h"
#include "core/frmMain.h"
#include "core/objects.h"
#include "core/start.h"
#include "fake/computer.h"
#include "keyboard/evaluator.h"
#include "keyboard/jump_to.h"
#include "persistence/save.h"
#include "persistence/settings_file.h"
#include "posix/files_posix.h"
#include "shortcuts/create.h"
#include "shortcuts/drags.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quill {
namespace {

constexpr int Rounds = 31;
constexpr int DropRounds = 11;
constexpr int DroppedFiles = 250;

// A workspace on the disk, opened by a process that has no display.
class Desk {
public:
    explicit Desk(const std::string& configuration) {
        computer_.Places.Folders[SpecialFolder::Configuration] = configuration;
        main_ = std::make_unique<frmMain>(computer_.MakePlatform(files_));
        main_->Start.NoSplash = true;
        SettleSettingsFolder(*main_);
        LoadSettings(*main_);
        PostLoad(*main_);
    }

    frmMain& Main() { return *main_; }
    void FinishJobs() { computer_.Worker.RunAll(); }
    std::string LastQuestion() const { return computer_.Questions.LastBox(); }

private:
    fake::Computer computer_;
    FilesPosix files_;
    std::unique_ptr<frmMain> main_;
};

// ---- measuring

// Of this thread's work, so that what else the machine does is not counted; or of the clock, where the disk
// is waited for.
enum class Clock { Work, Wall };

double Now(Clock clock) {
    timespec now{};
    clock_gettime(clock == Clock::Work ? CLOCK_THREAD_CPUTIME_ID : CLOCK_MONOTONIC, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

class Times {
public:
    explicit Times(Clock clock = Clock::Work) : clock_(clock) {}

    void Take(const std::function<void()>& run) {
        const double start = Now(clock_);
        run();
        times_.push_back(Now(clock_) - start);
    }
    void Print(const char* what, const char* target) {
        std::sort(times_.begin(), times_.end());
        std::printf("%-58s %9.3f ms %9.3f ms   %s\n", what, times_[times_.size() / 2], times_.back(), target);
    }

private:
    Clock clock_;
    std::vector<double> times_; // milliseconds
};

// ---- the Keyboard Launcher

constexpr const char* KeyTarget = "at most 2 ms";

struct TypedRow {
    const char* What;
    std::vector<std::string> Texts;
};

// Texts that are typed letter by letter, so that their beginnings are measured too.
std::vector<TypedRow> TypedRows() {
    return {
        {"key to preview: names of the workspace",
         {"letter 3.txt 1", "program 5 123", "song 7.mp3 77", "folder 0 0"}},
        {"key to preview: parts of names", {"gram 5", "etter", ".pdf", "ong 3.mp3 9"}},
        {"key to preview: commands, paths, addresses", {"r 15 tea", "=2+3*4", "/usr/share/", "example.org"}},
        {"key to preview: what no name holds", {"zzzzzzzzzz", "report and then some more", "eeeeeeee"}},
    };
}

void TypeAll(frmMain& Main, const std::string& text, Times& times) {
    for (std::size_t length = 1; length <= text.size(); ++length) {
        const std::string typed = text.substr(0, length);
        times.Take([&] { cboSearch_Change(Main, typed, static_cast<int>(length)); });
        if (!IsJumpToOpen(Main)) ShowPicJumpTo(Main, {}, true, false); // it was the name of a tile
    }
}

void MeasureTyping(frmMain& Main) {
    ShowPicJumpTo(Main, {}, true, false);
    for (const auto& row : TypedRows()) {
        Times times;
        for (int round = 0; round < Rounds; ++round) {
            for (const auto& text : row.Texts) TypeAll(Main, text, times);
        }
        times.Print(row.What, KeyTarget);
    }
    ClosePicJumpTo(Main);
}

// Texts that make the search look at everything, each as one key.
std::vector<std::string> WorstTexts() {
    std::string repeated;
    while (repeated.size() < 254) repeated += "letter ";
    return {"e", " ", "z", repeated, std::string(4096, 'e'), std::string(4096, 'e') + "/", "Ж", "r"};
}

void MeasureWorst(frmMain& Main) {
    ShowPicJumpTo(Main, {}, true, false);
    Times times, renamed, lists;
    const auto type = [&](const std::string& text) { cboSearch_Change(Main, text, CodePoints(text)); };
    for (int round = 0; round < Rounds; ++round) {
        for (const auto& text : WorstTexts()) times.Take([&] { type(text); });
        for (const auto& text : WorstTexts()) {
            ++Main.Links.CaptionsRevision;
            renamed.Take([&] { type(text); });
        }
        type("e");
        lists.Take([&] { cboSearch_KeyDown(Main, {.Code = KeyDown, .Text = {}}, 1, 0); });
        type("");
    }
    times.Print("key to preview: worst texts", KeyTarget);
    renamed.Print("first key after a caption has changed: worst texts", KeyTarget);
    lists.Print("the list of everything that holds an e", "");
    ClosePicJumpTo(Main);
}

void MeasureOpening(frmMain& Main) {
    Times empty, typed;
    for (int round = 0; round < Rounds; ++round) {
        empty.Take([&] { ShowPicJumpTo(Main, {}, true, false); });
        ClosePicJumpTo(Main);
        typed.Take([&] { ShowPicJumpTo(Main, "l", true, false); });
        ClosePicJumpTo(Main);
    }
    empty.Print("opening the box", "at most 30 ms, with its picture");
    typed.Print("opening the box with a letter", "");
}

// ---- the evaluator

// Written again every time, so that the compiler can't leave the work out.
volatile double evaluated;

void MeasureEvaluator() {
    constexpr const char* Expressions[] = {"1.5+1,5", "2 + 3 * 4", "(2+3)*4",   "10/4/5", "-2^2",
                                           "8/0",     "1,2,3",     "2^(3-1)*4", "X2",     "((1+2)*(3+4))/7"};
    constexpr int Times = 20'000;
    const double start = Now(Clock::Work);
    Evaluator evaluator;
    for (int round = 0; round < Times; ++round) {
        for (const char* expression : Expressions) evaluated = evaluator.Evaluate(expression);
    }
    const double seconds = (Now(Clock::Work) - start) / 1e3;
    std::printf("%-58s %12.0f a second\n", "expressions", Times * std::size(Expressions) / seconds);
}

// ---- drops

void Write(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

std::string Made(const std::string& folder, int number) {
    const std::string name = folder + "/dropped " + std::to_string(number);
    const std::string title = "Dropped " + std::to_string(number);
    switch (number % 5) {
    case 0:
        Write(name + ".desktop", "[Desktop Entry]\nType=Application\nName=" + title +
                                     "\nExec=/usr/bin/true %F\nIcon=accessories-calculator\n");
        return name + ".desktop";
    case 1:
        Write(name + ".url",
              "[InternetShortcut]\r\nURL=https://www.example.org/" + std::to_string(number) + "\r\n");
        return name + ".url";
    case 2:
        std::filesystem::create_directories(name);
        return name;
    default:
        Write(name + ".txt", title + "\n");
        return name + ".txt";
    }
}

DragData MadeFiles(const std::string& folder) {
    std::filesystem::create_directories(folder);
    DragData data;
    for (int number = 0; number < DroppedFiles; ++number) data.Files.push_back(Made(folder, number));
    return data;
}

void Empty(frmMain& Main, Parent place) {
    std::vector<int> links;
    EachShortcutIn(Main, place, [&](int link) { links.push_back(link); });
    for (const int link : links) DeleteShortcut(Main, link);
    SaveWorkspace(Main, true, false);
}

int CountIn(const frmMain& Main, Parent place) {
    int count = 0;
    EachShortcutIn(Main, place, [&](int) { ++count; });
    return count;
}

bool MeasureDrop(Desk& desk, const std::string& folder) {
    auto& Main = desk.Main();
    const auto data = MadeFiles(folder);
    const Parent place = InContainer(0);
    Times times(Clock::Wall);
    for (int round = 0; round < DropRounds; ++round) {
        Empty(Main, place);
        times.Take([&] {
            (void)DropFromOutside(Main, place, {600, 600}, data);
            desk.FinishJobs();
        });
        if (const int count = CountIn(Main, place); count != DroppedFiles) {
            std::fprintf(stderr, "the drop made %d shortcuts; asked: %s\n", count,
                         desk.LastQuestion().c_str());
            return false;
        }
    }
    times.Print("a drop of 250 files, resolved, added and saved", "at most 250 ms");
    return true;
}

bool Measure(const std::string& configuration) {
    Desk desk(configuration);
    auto& Main = desk.Main();
    if (Main.NextShortcutIndex == 0) {
        std::fprintf(stderr, "%s/Quillmere holds no shortcuts\n", configuration.c_str());
        return false;
    }
    std::printf("%-58s %12s %12s   %s\n", (std::to_string(Main.NextShortcutIndex) + " shortcuts").c_str(),
                "median", "worst", "target");
    MeasureOpening(Main);
    MeasureTyping(Main);
    MeasureWorst(Main);
    MeasureEvaluator();
    return MeasureDrop(desk, configuration + "/Dropped");
}

} // namespace
} // namespace quill

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "Usage: bench_launcher folder\n");
        return 2;
    }
    return quill::Measure(argv[1]) ? 0 : 1;
}
