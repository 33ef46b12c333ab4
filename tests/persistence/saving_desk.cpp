#include "persistence/saving_desk.h"

#include "persistence/names.h"

#include <gtest/gtest.h>

namespace quill::test {
namespace {

using fake::Computer;

void AppendFile(const Computer& computer, const std::string& path, std::string& text) {
    text += path.empty() ? "(none)" : computer.Files.Get(path);
    text += "\n----\n";
}

void ExpectTidy(const Computer& computer) {
    EXPECT_FALSE(computer.Files.Has(At("Quillmere.REC")));
    for (const auto& name : computer.Files.Names(At("Containers"))) {
        EXPECT_FALSE(NumberOf(name, RecoveryExtension)) << name;
        EXPECT_FALSE(NumberOf(name, OldBackupExtension)) << name;
    }
    EXPECT_FALSE(computer.Files.Has(At("Saving")));
    EXPECT_FALSE(computer.Files.Has(At("Saving.part")));
}

} // namespace

std::string At(const std::string& name) {
    return fake::SettingsFolder + "/" + name;
}
std::string Get(const Computer& computer, const std::string& name) {
    return computer.Files.Get(At(name));
}

std::unique_ptr<frmMain> Process(Computer& computer) {
    auto Main = std::make_unique<frmMain>(computer.MakePlatform());
    Main->SettingsFolder = fake::SettingsFolder;
    Main->IsLoading = false;
    return Main;
}

int AddContainer(frmMain& Main, const std::string& name, const std::string& note) {
    const int index = Main.NextContainerIndex++;
    Main.Containers.resize(static_cast<std::size_t>(index) + 1);
    Main.ContainerViews.resize(static_cast<std::size_t>(index) + 1);
    Main.Containers.back().Index = index;
    Main.ConView(index).ContainerLabel.Caption = name;
    Main.ConView(index).ContainerNote.Text = note;
    Main.ZOrderList.push_back({KindContainer, index});
    return index;
}

int AddShortcut(frmMain& Main, Parent parent, const std::string& path) {
    const int index = Main.NextShortcutIndex++;
    Main.Shortcuts.resize(static_cast<std::size_t>(index) + 1);
    Main.ShortcutViews.resize(static_cast<std::size_t>(index) + 1);
    Main.Shortcuts.back().Index = index;
    Main.Link(index).Path = path;
    Main.Link(index).FullCaption = path;
    Main.LinkView(index).In = parent;
    return index;
}

void Note(frmMain& Main, int container, const std::string& text) {
    Main.ConView(container).ContainerNote.Text = text;
}

void Delete(frmMain& Main, int container) {
    Main.Containers[static_cast<std::size_t>(container)] = {};
    std::erase(Main.ZOrderList, ZOrderEntry{KindContainer, container});
}

void Furnish(frmMain& Main, const std::string& mark) {
    for (const char* name : {"Work", "Play", "Rest"}) {
        const bool isFirst = Main.NextContainerIndex == 0;
        const int index = AddContainer(Main, name, isFirst ? mark : "");
        AddShortcut(Main, InContainer(index), std::string("/home/user/") + name);
    }
    AddShortcut(Main, OnWorkspace(), "/home/user");
}

std::string Text(const Computer& computer, const GenerationFiles& files) {
    std::string text;
    AppendFile(computer, files.Settings, text);
    for (const auto& path : files.Containers) AppendFile(computer, path, text);
    return text;
}

std::string Start(Computer& computer) {
    const auto Main = std::make_unique<frmMain>(computer.MakePlatform());
    Main->SettingsFolder = fake::SettingsFolder;
    FinishInterruptedSave(*Main);
    const auto chosen = ChooseGeneration(*Main);
    auto has = Text(computer, chosen);
    TakeOverRecovery(*Main, chosen);
    EXPECT_EQ(Text(computer, ChooseGeneration(*Main)), has);
    EXPECT_EQ(Text(computer, CommittedGeneration(*Main)), has);
    EXPECT_EQ(Main->Store.SaveFailure, "");
    ExpectTidy(computer);
    computer.EndProcess();
    return has;
}

} // namespace quill::test
