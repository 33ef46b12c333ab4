#include "shortcuts/add_commands.h"

#include "shortcuts/drag_fixture.h"
#include "shortcuts/frmInternetShortcut.h"
#include "shortcuts/properties.h"

#include "platform/questions.h"

namespace quill {
namespace {

struct AddCommands : test::DragFixture {
    AddCommands() { Main.Group.NewContainerPos = {2000, 2000}; }
    int Last() { return Main.NextShortcutIndex - 1; }
    void ChooseFile(const std::string& path) { computer.Dialogs.Files.emplace_back(path); }
    void ChooseFolder(const std::string& path) { computer.Dialogs.Folders.emplace_back(path); }
    std::string Asked() {
        if (computer.Dialogs.FileQuestions.empty()) return "(none)";
        const FileQuestion& question = computer.Dialogs.FileQuestions.back();
        return question.Title + " | " + question.FilterCaption;
    }
};

TEST_F(AddCommands, AFileIsChosenAndStandsWhereThePressWas) {
    ChooseFile("/home/user/letter.txt");
    AddFileLink(Main, OnWorkspace());
    EXPECT_EQ(Asked(), "Add File Shortcut | All Files (*.*)");
    EXPECT_EQ(Where(0), "workspace 2000,2000");
    EXPECT_EQ(Main.Link(0).FullCaption, "letter.txt");
    EXPECT_EQ(Main.Links.SelectedShortcuts, std::vector<int>{0});
    EXPECT_EQ(Main.Links.CurrentShortcut, 0);
    const auto settings = computer.Files.Read(fake::SettingsFolder + "/Quillmere.REC", 1 << 20);
    EXPECT_NE(settings.Value().find("letter.txt"), std::string::npos);
}

TEST_F(AddCommands, OneAfterTheOtherNoneLiesOnAnother) {
    for (int at = 0; at < 5; ++at) {
        ChooseFile("/home/user/letter" + std::to_string(at));
        AddFileLink(Main, OnWorkspace());
    }
    for (int one = 0; one < 5; ++one)
        for (int other = 0; other < one; ++other)
            EXPECT_FALSE(LabelPlace(Main, one).Intersects(LabelPlace(Main, other))) << Where(one);
    EXPECT_EQ(Main.Links.SelectedShortcuts, std::vector<int>{4}) << "the last one alone";
}

TEST_F(AddCommands, InAContainerItGoesToTheNextFreeCell) {
    const int box = New({4000, 1000, 4000, 4000});
    const Point cell = NextFreeCell(Main, InContainer(box));
    Main.Group.CurrentContainer = box;
    ChooseFile("/home/user/letter.txt");
    AddFileLink(Main, CurrentContainerFrame(Main));
    EXPECT_EQ(Where(0), "container 0 " + fake::Words(cell));
}

TEST_F(AddCommands, ACancelledDialogAddsNothing) {
    computer.Dialogs.Files.emplace_back(std::nullopt);
    computer.Dialogs.Folders.emplace_back(std::nullopt);
    AddFileLink(Main, OnWorkspace());
    AddFolderLink(Main, OnWorkspace());
    EXPECT_EQ(Main.NextShortcutIndex, 0);
    EXPECT_TRUE(computer.Questions.Boxes.empty());
}

TEST_F(AddCommands, AFolderOnTheWorkspaceMayBecomeAContainer) {
    computer.Files.Put("/home/user/Music/song.ogg", "x");
    ChooseFolder("/home/user/Music/");
    computer.Questions.Answer(AnswerYes);
    AddFolderLink(Main, OnWorkspace());
    EXPECT_EQ(Asked(), "Add Folder Shortcut: | All Files (*.*)");
    EXPECT_EQ(LiveContainers(Main), 1);
    EXPECT_EQ(WorkspaceShortcutCount(Main), 0);
    ChooseFolder("/home/user/Music");
    computer.Questions.Answer(AnswerNo);
    AddFolderLink(Main, OnWorkspace());
    EXPECT_EQ(WorkspaceShortcutCount(Main), 1);
    EXPECT_EQ(Main.Link(Last()).Path, "/home/user/Music");
}

TEST_F(AddCommands, AFolderInAContainerIsAShortcutAndNothingIsAsked) {
    const int box = New({4000, 1000, 4000, 4000});
    computer.Files.PutFolder("/home/user/Music");
    ChooseFolder("/home/user/Music/");
    AddFolderLink(Main, InContainer(box));
    EXPECT_EQ(Main.Link(0).Path, "/home/user/Music");
    EXPECT_TRUE(computer.Questions.Boxes.empty());
}

TEST_F(AddCommands, ALinkFileThatIsChosenIsFollowed) {
    computer.Files.Put("/home/user/site.url", "[InternetShortcut]\nURL=https://a.example/");
    ChooseFile("/home/user/site.url");
    AddFileLink(Main, OnWorkspace());
    EXPECT_EQ(Main.Link(0).Path, "https://a.example/");
    EXPECT_EQ(Main.Link(0).ShortcutType, TypeUrl);
}

TEST_F(AddCommands, OnTheProgramsStickItIsStoredWithItsMark) {
    computer.Places.Mounts["/media/stick"] = DriveKind::Removable;
    computer.Places.Program = "/media/stick/quillmere";
    Main.PortableMode = true;
    ChooseFile("/media/stick/a.txt");
    AddFileLink(Main, OnWorkspace());
    EXPECT_EQ(Main.Link(0).Path, "@/a.txt");
}

TEST_F(AddCommands, ACommandOpensItsPropertiesAtOnce) {
    int shown = -1;
    computer.Dialogs.OnEditLink = [&](frmEditLink& dialog) {
        shown = Last();
        EXPECT_TRUE(dialog.ChkCommand);
        EXPECT_FALSE(dialog.IsClone());
        return false;
    };
    AddCommand(Main, OnWorkspace());
    EXPECT_EQ(shown, 0) << "it is there when its properties show";
    EXPECT_TRUE(Main.Link(0).Command);
    EXPECT_EQ(Main.Link(0).FullCaption, "Command");
    EXPECT_EQ(Main.LinkView(0).lblShortcut.Caption, "Command");
}

TEST_F(AddCommands, AddressesAreAddedByTheirDialogAndSavedWhenItCloses) {
    computer.Dialogs.OnInternetShortcut = [&](frmInternetShortcut& dialog) {
        dialog.txtAddress = "https://a.example/";
        dialog.txtAddress_Change();
        return dialog.OKButton_Click();
    };
    AddWebLink(Main, OnWorkspace());
    ASSERT_EQ(WorkspaceShortcutCount(Main), 1);
    EXPECT_EQ(Main.Link(0).Path, "https://a.example/");
    const auto settings = computer.Files.Read(fake::SettingsFolder + "/Quillmere.REC", 1 << 20);
    EXPECT_NE(settings.Value().find("https://a.example/"), std::string::npos);
}

TEST_F(AddCommands, WhereShortcutsAreNotTakenOrHeldByTheLockNoDialogOpens) {
    const int box = New({4000, 1000, 4000, 4000});
    Main.Con(box).CopyPath = "/home/user/Games";
    EXPECT_FALSE(CanAddTo(Main, InContainer(box)));
    EXPECT_FALSE(CanAddTo(Main, InContainer(box + 7))) << "no such container";
    Main.Dock.Locked = true;
    Main.Settings.QuicklyUnlock = 0;
    EXPECT_FALSE(CanAddTo(Main, OnWorkspace()));
    for (const Parent& to : {OnWorkspace(), InContainer(box), InContainer(-1)}) {
        AddFileLink(Main, to);
        AddFolderLink(Main, to);
        AddWebLink(Main, to);
        AddCommand(Main, to);
    }
    EXPECT_EQ(computer.Dialogs.Unexpected, 0);
    EXPECT_EQ(Main.NextShortcutIndex, 0);
    Main.Dock.Locked = false;
    EXPECT_TRUE(CanAddTo(Main, OnWorkspace()));
}

TEST_F(AddCommands, AContainerAtItsLimitSaysSo) {
    const int box = New({4000, 1000, 4000, 4000});
    for (int at = 0; at < MaxShortcutsInContainer; ++at) NewLink(InContainer(box), {0, 0});
    ChooseFile("/home/user/one more");
    AddFileLink(Main, InContainer(box));
    EXPECT_EQ(GetContainerShortcutCount(Main, box), MaxShortcutsInContainer);
    EXPECT_EQ(LastBox(),
              "Error 48: There's a limit of 250 shortcuts per container (much less is recommended!)");
}

} // namespace
} // namespace quill
