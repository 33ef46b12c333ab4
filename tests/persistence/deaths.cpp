#include "persistence/deaths.h"

#include <gtest/gtest.h>

#include <set>

namespace quill::test {
namespace {

using fake::Computer;
using fake::SettingsFolder;

constexpr const char* strays[] = {"Containers/shopping.con.txt",
                                  "Containers/notes.con",
                                  "Containers/03.con",
                                  "Containers/5.con.aside",
                                  "KB_History.txt",
                                  "Skin/My colours.qmc",
                                  "Quillmere.ini.mine",
                                  "Saving.txt"};

std::string StrayPath(const char* name) {
    return SettingsFolder + "/" + name;
}

void Boot(Computer& computer, const fake::Tree& tree) {
    computer.Files.Restore(tree);
    computer.Files.Recount();
}

// False: it died.
bool Survives(Computer& computer, const std::function<void()>& act) {
    try {
        act();
    } catch (const fake::ProcessDied&) {
        computer.EndProcess();
        computer.Files.Revive();
        return false;
    }
    computer.Files.Revive();
    return true;
}

std::string LookAt(const Scene& scene, const fake::Tree& tree) {
    Computer computer;
    Boot(computer, tree);
    auto has = scene.Look(computer);
    ExpectStrays(computer);
    EXPECT_EQ(computer.Session.Err, "");
    return has;
}

// The start after a death dies as well, at each of its operations: the one after it has the same.
void DieInTheNextStart(const Scene& scene, const fake::Tree& tree, const std::string& has) {
    bool survived = false;
    for (int step = 0; !survived; ++step) {
        Computer computer;
        Boot(computer, tree);
        computer.Files.DieAfter(step);
        survived = Survives(computer, [&] { scene.Look(computer); });
        ASSERT_EQ(LookAt(scene, computer.Files.Snapshot()), has) << "the next start died after step " << step;
    }
}

struct Whole {
    fake::Tree Before;
    std::string Older, Newer;
    int Steps = 0;
};

Whole RunWhole(const Scene& scene) {
    Whole whole;
    Computer computer;
    scene.Stage(computer);
    PutStrays(computer);
    whole.Before = computer.Files.Snapshot();
    whole.Older = LookAt(scene, whole.Before);
    Boot(computer, whole.Before);
    scene.Change(computer);
    whole.Steps = computer.Files.Steps();
    whole.Newer = LookAt(scene, computer.Files.Snapshot());
    return whole;
}

} // namespace

void PutStrays(Computer& computer) {
    for (const auto* name : strays) computer.Files.Put(StrayPath(name), std::string("mine: ") + name);
}

void ExpectStrays(const Computer& computer) {
    for (const auto* name : strays)
        EXPECT_EQ(computer.Files.Get(StrayPath(name)), std::string("mine: ") + name);
}

void DieEverywhere(const Scene& scene, Generations generations) {
    const auto whole = RunWhole(scene);
    ASSERT_GT(whole.Steps, 0) << "nothing was written";
    ASSERT_EQ(whole.Older == whole.Newer, generations == Generations::Same);
    bool committed = false;
    std::set<std::string> seen; // many deaths leave the same
    for (int step = 0; step <= whole.Steps; ++step) {
        for (const bool torn : {false, true}) {
            SCOPED_TRACE((torn ? "torn at step " : "died after step ") + std::to_string(step));
            Computer computer;
            Boot(computer, whole.Before);
            if (torn)
                computer.Files.DieTornAt(step);
            else
                computer.Files.DieAfter(step);
            Survives(computer, [&] { scene.Change(computer); });
            if (!seen.insert(computer.Files.Dump(SettingsFolder)).second) continue;
            const auto after = computer.Files.Snapshot();
            const auto has = LookAt(scene, after);
            ASSERT_TRUE(has == whole.Older || has == whole.Newer) << has;
            ASSERT_TRUE(!committed || has == whole.Newer) << "fell back behind the commit point";
            committed = committed || (!torn && has == whole.Newer && generations == Generations::Differ);
            DieInTheNextStart(scene, after, has);
            if (testing::Test::HasFatalFailure()) return;
        }
    }
}

} // namespace quill::test
