#include "shortcuts/folder_items.h"

#include "shortcuts/drag_fixture.h"

#include "platform/questions.h"

namespace quill {
namespace {

struct FolderItems : test::DragFixture {
    static constexpr const char* Question =
        "Yes: Create a new container with some of the items in the folder 'Music'?\n"
        "No: Just add a shortcut to the folder. \n\n"
        "* Disable this notification from the Settings dialog.";
    static constexpr const char* NotAll = "Not all items were added.\n\n"
                                          "- You can manually add any additional items using Drag & Drop.\n"
                                          "- Resize the container to arrange the new shortcuts within.";

    void Fill(int count, const std::string& folder = "/home/user/Music") {
        computer.Files.PutFolder(folder);
        for (int at = 1; at <= count; ++at)
            computer.Files.Put(folder + "/song " + std::to_string(at) + ".ogg", "x");
    }
    DropAnswer Drop(std::vector<std::string> paths, Point at = {1000, 1000}) {
        DragData data;
        data.Files = std::move(paths);
        return LetGo(data, OnBack, at);
    }
    std::string CaptionsIn(Parent in) {
        std::string all;
        EachShortcutIn(Main, in, [&](int link) { all += Main.Link(link).FullCaption + "\n"; });
        return all;
    }
};

TEST_F(FolderItems, AFolderThatIsDroppedAloneBecomesAContainerWhenThatIsWanted) {
    Fill(3);
    computer.Questions.Answer(AnswerYes);
    EXPECT_EQ(Drop({"/home/user/Music/"}), DropAnswer::Copied);
    EXPECT_EQ(LastBox(), std::string("Container from Folder? 68: ") + Question);
    ASSERT_EQ(LiveContainers(Main), 1);
    EXPECT_EQ(Main.ConView(0).ContainerLabel.Caption, "Music");
    EXPECT_EQ(CaptionsIn(InContainer(0)), "Music\nsong 1.ogg\nsong 2.ogg\nsong 3.ogg\n");
    EXPECT_EQ(Main.Link(0).Path, "/home/user/Music") << "the folder itself is the first";
    EXPECT_EQ(WorkspaceShortcutCount(Main), 0);
    EXPECT_EQ(Main.Group.CurrentContainer, 0);
    EXPECT_FALSE(Main.Con(0).CreationDate.empty());
    EXPECT_EQ(Main.Links.SelectedShortcuts, (std::vector<int>{0, 1, 2, 3}));
    EXPECT_NE(Recovery("0.REC").find("song 3.ogg"), std::string::npos);
}

TEST_F(FolderItems, AnsweredWithNoOrClosedItIsAShortcutToTheFolder) {
    Fill(3);
    for (const int answer : {AnswerNo, AnswerCancel}) {
        computer.Questions.Answer(answer);
        Drop({"/home/user/Music"}, {1000, answer == AnswerNo ? 1000.0F : 3000.0F});
    }
    EXPECT_EQ(LiveContainers(Main), 0);
    EXPECT_EQ(CaptionsIn(OnWorkspace()), "Music\n") << "and the second time it is there already";
}

TEST_F(FolderItems, NothingIsAskedWhereItIsSwitchedOffOrNotOneFolderAlone) {
    Fill(1);
    computer.Files.Put("/home/user/a.txt", "x");
    Drop({"/home/user/a.txt"});
    Drop({"/home/user/Music", "/home/user/a.txt"}, {3000, 1000});
    const int box = New({6000, 1000, 3000, 3000});
    DragData data;
    data.Files = {"/home/user/Music"};
    LetGo(data, OnContainer(box), {400, 900});
    Main.Settings.ContainerFromFolder = false;
    Drop({"/home/user/Music/song 1.ogg"}, {1000, 4000});
    DeleteShortcut(Main, 1);
    EXPECT_EQ(Drop({"/home/user/Music"}, {1000, 5000}), DropAnswer::Copied);
    for (const auto& asked : computer.Questions.Boxes) EXPECT_NE(asked.Flags, 68) << asked.Text;
}

TEST_F(FolderItems, NoServerIsAskedWhetherItIsAFolder) {
    computer.Shell.NetworkPaths = {"/mnt/nas"};
    Fill(1, "/mnt/nas/Music");
    Drop({"/mnt/nas/Music"});
    EXPECT_TRUE(computer.Questions.Boxes.empty());
    EXPECT_EQ(CaptionsIn(OnWorkspace()), "Music\n");
}

TEST_F(FolderItems, TenItemsAreTakenAndItIsToldWhenThereWereMore) {
    Fill(10);
    computer.Questions.AnswerTo("Yes: Create", AnswerYes);
    Drop({"/home/user/Music"});
    EXPECT_EQ(GetContainerShortcutCount(Main, 0), 11) << "the folder and its ten";
    EXPECT_EQ(computer.Questions.Boxes.size(), 1U) << "nothing was left out";
    Fill(11);
    Drop({"/home/user/Music"}, {6000, 1000});
    EXPECT_EQ(GetContainerShortcutCount(Main, 1), 11);
    EXPECT_EQ(LastBox(), std::string("Quillmere 64: ") + NotAll);
    EXPECT_EQ(CaptionsIn(InContainer(1)).find("song 11"), std::string::npos);
}

TEST_F(FolderItems, NamesStandAsAPersonCountsAndHiddenOnesComeLast) {
    for (const char* name : {"b 10", "b 9", ".hidden", "A", "folder"})
        computer.Files.Put("/home/user/x/" + std::string(name), "x");
    const int box = New({1000, 1000, 4000, 4000});
    EXPECT_TRUE(AddFolderItems(Main, "/home/user/x/", box, 10));
    EXPECT_EQ(CaptionsIn(InContainer(box)), "x\nA\nb 9\nb 10\nfolder\n.hidden\n");
    const int small = New({6000, 1000, 4000, 4000});
    EXPECT_FALSE(AddFolderItems(Main, "/home/user/x", small, 3));
    EXPECT_EQ(CaptionsIn(InContainer(small)), "x\nA\nb 9\nb 10\n");
}

TEST_F(FolderItems, EachStandsInACellOfItsOwn) {
    Fill(10);
    const int box = New({1000, 1000, 3000, 3000});
    AddFolderItems(Main, "/home/user/Music", box, 10);
    const auto links = LinksIn(InContainer(box));
    for (const int one : links)
        for (const int other : links)
            EXPECT_TRUE(one == other || !LabelPlace(Main, one).Intersects(LabelPlace(Main, other)))
                << Where(one) << " " << Where(other);
}

TEST_F(FolderItems, AFolderThatCantBeListedAddsItselfAlone) {
    Fill(2);
    computer.Files.MakeUnreadable("/home/user/Music");
    const int box = New({1000, 1000, 3000, 3000});
    EXPECT_FALSE(AddFolderItems(Main, "/home/user/Music", box, 10));
    EXPECT_EQ(CaptionsIn(InContainer(box)), "Music\n");
}

TEST_F(FolderItems, WhereNoContainerCanBeMadeTheFolderIsAShortcut) {
    Fill(2);
    New({6000, 1000, 3000, 3000});
    Main.Settings.MaxContainers = 1;
    computer.Questions.AnswerTo("Yes: Create", AnswerYes);
    computer.Questions.AnswerTo("maximum", AnswerOk);
    Drop({"/home/user/Music"});
    EXPECT_EQ(LiveContainers(Main), 1);
    EXPECT_EQ(CaptionsIn(OnWorkspace()), "Music\n");
}

TEST_F(FolderItems, WhenTheProgramEndsOverTheQuestionNothingIsMade) {
    Fill(2);
    computer.Questions.Answer(AnswerYes);
    computer.Questions.OnBox = [&](const fake::Box&) { Main.IsExiting = true; };
    Drop({"/home/user/Music"});
    EXPECT_EQ(LiveContainers(Main), 0);
    EXPECT_EQ(WorkspaceShortcutCount(Main), 0);
}

TEST_F(FolderItems, TheContainerStandsWholeInsideTheWorkspace) {
    Fill(2);
    computer.Questions.Answer(AnswerYes);
    Drop({"/home/user/Music"}, {11800, 8800});
    EXPECT_LE(Box(0).Right(), Main.View.picBack.Place.Width);
    EXPECT_LE(Box(0).Bottom(), Main.View.picBack.Place.Height);
}

TEST_F(FolderItems, LinksInItAreFollowedAndItsStrangeNamesAreText) {
    computer.Files.Put("/home/user/x/site.url", "[InternetShortcut]\nURL=https://a.example/");
    computer.Files.Put("/home/user/x/two\nlines", "x");
    computer.Files.Put("/home/user/x/\xFF\xFE", "x");
    const int box = New({1000, 1000, 4000, 4000});
    AddFolderItems(Main, "/home/user/x", box, 10);
    EXPECT_EQ(CaptionsIn(InContainer(box)), "x\nsite\ntwo lines\nÿþ\n");
    EXPECT_EQ(Main.Link(3).Path, "/home/user/x/\xFF\xFE") << "the path is what it is";
}

} // namespace
} // namespace quill
