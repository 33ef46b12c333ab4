// A workspace on the fake computer, ready to be worked on, and verbs for shortcuts on it.
#pragma once

#include "containers/lifecycle.h"
#include "core/frmMain.h"
#include "core/handlers.h"
#include "fake/computer.h"
#include "shortcuts/create.h"
#include "shortcuts/launch.h"

#include <gtest/gtest.h>

namespace quill {

struct AtWork : testing::Test {
    AtWork() {
        Main.SettingsFolder = fake::SettingsFolder;
        Computer.Files.PutFolder(fake::SettingsFolder);
        Main.IsLoading = false;
        Main.Settings.DblClick = false;
    }
    void TearDown() override {
        EXPECT_EQ(Computer.Questions.Unexpected, 0)
            << (Computer.Questions.UnexpectedTexts.empty() ? "" : Computer.Questions.UnexpectedTexts.front());
    }

    int File(const std::string& path, Parent in = OnWorkspace()) {
        AddFile(Main, path, in, {600, 900});
        return Main.NextShortcutIndex - 1;
    }
    int Url(const std::string& address, const std::string& label = "") {
        AddURL(Main, OnWorkspace(), label, address, {600, 900});
        return Main.NextShortcutIndex - 1;
    }
    int Command(const std::string& text) {
        const int index = File("/unused");
        Main.Link(index).Command = true;
        Main.Link(index).Parameters = text;
        return index;
    }
    int Container(const std::string& name) {
        bool ok = false;
        NewGroup(Main, true, ok);
        Main.ConView(Main.NextContainerIndex - 1).ContainerLabel.Caption = name;
        return Main.NextContainerIndex - 1;
    }
    void Start(int index) { StartShortcut(Main, index, false, "", false, false); }
    std::string Started() {
        std::string all;
        for (const auto& request : Computer.Shell.Launches) all += fake::Words(request) + "\n";
        return all;
    }
    std::string Recent() const {
        std::string all;
        for (const auto& item : Main.Links.Recent) all += (all.empty() ? "" : ", ") + item.Caption;
        return all;
    }
    fake::FakeQuestions& Person() { return Computer.Questions; }

    fake::Computer Computer;
    frmMain Main{Computer.MakePlatform()};
};

} // namespace quill
