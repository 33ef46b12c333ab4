#include "persistence/format_fixture.h"

#include "core/objects.h"
#include "persistence/line_reader.h"

namespace quill {
namespace {

using test::Formats;

const std::string Good = "108\n[Container]\n-1\n[Name]\nGood\n";

struct DamageCase {
    const char* What;
    std::string Bytes;
    const char* Told; // how the sentence goes on behind the file's name
};

TEST(Damage, EachKindIsToldWithFileLineTagAndValue) {
    const DamageCase cases[] = {
        {"a bad number", "108\n[Container]\n-1\n[Backcolor]\nblue\n",
         ", line 5: \"blue\" is no value for [Backcolor].\r\n"},
        {"a bad truth value", "108\n[Container]\n-1\n[Folded]\nperhaps\n",
         ", line 5: \"perhaps\" is no value for [Folded].\r\n"},
        {"a bad number in a shortcut", "108\n[Container]\n-1\n[Link]\n[LinkX]\nleft\n[End Link]\n",
         ", line 6: \"left\" is no value for [LinkX].\r\n"},
        {"a bad reminder", "108\n[Container]\n-1\n[ReminderV2]\n1\nx\n",
         ", line 6: \"x\" is no value for [ReminderV2].\r\n"},
        {"a tag without its value", "108\n[Container]\n-1\n[Folded]\n",
         " ends at line 4, in the middle of [Folded].\r\n"},
        {"a note without an end", "108\n[Container]\n-1\n[START Note]\nabc\n",
         " ends at line 5, in the middle of [START Note].\r\n"},
        {"a shortcut without an end", "108\n[Container]\n-1\n[Link]\n[LinkX]\n1\n",
         " ends at line 6, in the middle of [Link].\r\n"},
        {"no head", "108\n[Name]\nx\n", " holds nothing that Quillmere can read.\r\n"},
        {"nothing", "", " holds nothing that Quillmere can read.\r\n"},
        {"zeros of a lost power", "108\n[Container]\n-1\n" + std::string(50, '\0'),
         ", line 4: there are bytes that are no text.\r\n"},
        {"an endless line", "108\n[Container]\n-1\n" + std::string(MaxLineBytes + 1, 'x'),
         ", line 4: the line is longer than 4 MB.\r\n"},
    };
    for (const auto& row : cases) {
        Formats loaded;
        loaded.PutRaw(row.Bytes);
        loaded.Computer.Questions.Answer(AnswerYes);
        EXPECT_TRUE(loaded.Load()) << row.What;
        ASSERT_EQ(loaded.Computer.Questions.Boxes.size(), 1U) << row.What;
        const auto text = loaded.Computer.Questions.LastBox();
        EXPECT_TRUE(text.starts_with(loaded.files.Containers[0] + row.Told)) << row.What << '\n' << text;
        EXPECT_EQ(LiveContainers(loaded.Main), 0) << row.What;
        EXPECT_EQ(loaded.Main.NextShortcutIndex, 0) << row.What;
    }
}

TEST(Damage, OneBoxAsksInWordsThatAPersonCanActOn) {
    Formats loaded;
    loaded.PutContainer("108\n[Container]\n-1\n[X]\nfar\n");
    loaded.Computer.Questions.Answer(AnswerYes);
    ASSERT_TRUE(loaded.Load());
    const auto& box = loaded.Computer.Questions.Boxes.at(0);
    EXPECT_EQ(box.Title, "Quillmere");
    EXPECT_EQ(box.Flags, BoxYesNo | BoxWarning);
    EXPECT_EQ(box.Text, loaded.files.Containers[0] + ", line 5: \"far\" is no value for [X].\r\n\r\nGo on "
                                                     "without it? A copy of the file is kept beside it, "
                                                     "under a name that ends in \".damaged\"; all other "
                                                     "containers are loaded.\r\n\r\n\"No\" ends Quillmere "
                                                     "and changes nothing on the disk.");
}

TEST(Damage, GoingOnKeepsACopyLoadsTheFilesBehindAndSavesAtOnce) {
    Formats loaded;
    loaded.PutContainer(Good);
    loaded.PutContainer("108\n[Container]\n-1\n[X]\nfar\n");
    loaded.PutContainer(Good);
    loaded.Computer.Questions.Answer(AnswerYes);
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(LiveContainers(loaded.Main), 2);
    const auto path = loaded.files.Containers[1];
    EXPECT_EQ(loaded.Computer.Files.Get(path + ".damaged"), loaded.Computer.Files.Get(path));
    EXPECT_TRUE(loaded.Main.Store.SaveAfterLoad);
    EXPECT_FALSE(loaded.Main.g_DontSave);
}

TEST(Damage, AnEarlierCopyIsNeverOverwritten) {
    Formats loaded;
    loaded.PutContainer("108\n[Container]\n-1\n[X]\nfar\n");
    const auto copy = loaded.files.Containers[0] + ".damaged";
    loaded.Computer.Files.Put(copy, "earlier");
    loaded.Computer.Questions.Answer(AnswerYes);
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Computer.Files.Get(copy), "earlier");
    EXPECT_EQ(loaded.Computer.Files.Names(fake::SettingsFolder + "/Containers").size(), 3U);
}

TEST(Damage, EndingChangesNothingOnTheDisk) {
    for (const int answer : {AnswerNo, AnswerCancel}) {
        Formats loaded;
        loaded.PutSettings("108\n[Opacity]\nmuch\n");
        loaded.PutContainer("108\n[Container]\n-1\n[X]\nfar\n");
        const auto before = loaded.Computer.Files.Snapshot();
        loaded.Computer.Questions.Answer(answer);
        EXPECT_FALSE(loaded.Load());
        EXPECT_TRUE(loaded.Main.g_DontSave);
        EXPECT_EQ(loaded.Computer.Files.Snapshot(), before);
        EXPECT_EQ(loaded.Computer.Questions.Boxes.size(), 1U);
    }
}

TEST(Damage, EndingLeavesNoCopyOfAFileInAnotherVersion) {
    Formats loaded;
    loaded.PutSettings("107\n[Link]\n[End Link]\n");
    loaded.PutContainer("107\n[Container]\n-1\n[Link]\n[End Link]\n");
    loaded.PutContainer("108\n[Container]\n-1\n[X]\nfar\n");
    const auto before = loaded.Computer.Files.Snapshot();
    loaded.Computer.Questions.Answer(AnswerNo);
    EXPECT_FALSE(loaded.Load());
    EXPECT_EQ(loaded.Computer.Files.Snapshot(), before);
}

TEST(Damage, ManyDamagedFilesAreAskedAboutOnce) {
    Formats loaded;
    for (int count = 0; count < 8; ++count) loaded.PutContainer("garbage");
    loaded.Computer.Questions.Answer(AnswerYes);
    ASSERT_TRUE(loaded.Load());
    ASSERT_EQ(loaded.Computer.Questions.Boxes.size(), 1U);
    EXPECT_NE(loaded.Computer.Questions.LastBox().find("3 more files are damaged."), std::string::npos);
    EXPECT_TRUE(loaded.Computer.Files.Has(loaded.files.Containers[7] + ".damaged"));
}

TEST(Damage, OfADamagedSettingsFileTheLinesBeforeHold) {
    Formats loaded;
    loaded.PutSettings(
        "108\n[Opacity]\n100\n[Link]\n[LinkType]\n2\n[LinkPath]\n/a\n[End Link]\n[MaxContainers]\nmany\n"
        "[Stretch]\n1\n");
    loaded.PutContainer(Good);
    loaded.Computer.Questions.Answer(AnswerYes);
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Main.Settings.Opacity, 100);
    EXPECT_EQ(loaded.Main.Settings.MaxContainers, 50);
    EXPECT_FALSE(loaded.Main.Settings.Stretch);
    EXPECT_EQ(loaded.Main.NextShortcutIndex, 1);
    EXPECT_EQ(LiveContainers(loaded.Main), 1);
    EXPECT_TRUE(loaded.Computer.Files.Has(loaded.files.Settings + ".damaged"));
    EXPECT_TRUE(loaded.Main.Store.SaveAfterLoad);
    EXPECT_TRUE(loaded.Computer.Questions.LastBox().starts_with(
        loaded.files.Settings +
        ", line 11: \"many\" is no value for [MaxContainers].\r\n\r\nGo on with the settings "));
}

TEST(Damage, SettingsBeforeLostBytesHold) {
    Formats loaded;
    loaded.PutSettings("108\n[Opacity]\n100\n[Stretch]\n" + std::string(3, '\0') + "\n");
    loaded.Computer.Questions.Answer(AnswerYes);
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Main.Settings.Opacity, 100);
}

TEST(Damage, AnEmptySettingsFileIsDamaged) {
    Formats loaded;
    loaded.PutSettings("");
    loaded.Computer.Questions.Answer(AnswerYes);
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Computer.Questions.Boxes.size(), 1U);
}

TEST(Damage, AFileThatTheSystemDoesNotGiveIsSetAside) {
    Formats loaded;
    loaded.PutContainer(Good);
    loaded.PutContainer(Good);
    loaded.Computer.Files.MakeUnreadable(loaded.files.Containers[0]);
    loaded.Computer.Questions.Answer(AnswerYes);
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(LiveContainers(loaded.Main), 1);
    EXPECT_TRUE(loaded.Computer.Files.Has(loaded.files.Containers[0] + ".damaged"));
    EXPECT_NE(loaded.Computer.Questions.LastBox().find(" can't be read: "), std::string::npos);
}

TEST(Damage, AHugeFileIsDamage) {
    Formats loaded;
    loaded.PutContainer(Good);
    loaded.Computer.Files.FailReading(loaded.files.Containers[0], Reason::TooLarge);
    loaded.Computer.Questions.Answer(AnswerYes);
    ASSERT_TRUE(loaded.Load());
    EXPECT_TRUE(loaded.Computer.Questions.LastBox().starts_with(loaded.files.Containers[0] +
                                                                " is larger than 256 MB.\r\n"));
    EXPECT_TRUE(loaded.Computer.Files.Has(loaded.files.Containers[0] + ".damaged"));
}

TEST(Damage, AFileThatIsGoneMeanwhileIsNoDamage) {
    Formats loaded;
    loaded.PutContainer(Good);
    loaded.Computer.Files.Delete(loaded.files.Containers[0]);
    EXPECT_TRUE(loaded.Load());
    EXPECT_TRUE(loaded.Computer.Questions.Boxes.empty());
}

TEST(Damage, ALongValueIsShownInPart) {
    Formats loaded;
    loaded.PutContainer("108\n[Container]\n-1\n[X]\n" + std::string(100000, 'x') + "\n");
    loaded.Computer.Questions.Answer(AnswerYes);
    ASSERT_TRUE(loaded.Load());
    EXPECT_LT(loaded.Computer.Questions.LastBox().size(), 1000U);
}

struct Generations : Formats {
    Generations() {
        Computer.Files.Put(Path("Quillmere.ini"), "108\r\n[Opacity]\r\n100\r\n");
        Computer.Files.Put(Path("Containers/0.con"), test::Crlf("108\n[Container]\n-1\n[Name]\nCommitted\n"));
        Computer.Files.Put(Path("Quillmere.REC"), "108\r\n[Opacity]\r\n200\r\n");
        Computer.Files.Put(Path("Containers/0.REC"), test::Crlf("108\n[Container]\n-1\n[Name]\nRecent\n"));
        Computer.Files.Put(Path("Containers/1.REC"), test::Crlf("108\n[Container]\n-1\n[X]\nfar\n"));
        files = ChooseGeneration(Main);
    }
};

TEST(Damage, ADamagedRecoverySetIsLeftOutWhole) {
    Generations start;
    ASSERT_TRUE(start.files.Recovery);
    start.Computer.Questions.Answer(AnswerYes);
    ASSERT_TRUE(start.Load());
    EXPECT_EQ(start.Main.Settings.Opacity, 100);
    ASSERT_EQ(LiveContainers(start.Main), 1);
    EXPECT_EQ(start.View(0).ContainerLabel.Caption, "Committed");
    EXPECT_TRUE(start.Main.Store.SaveAfterLoad);
    EXPECT_EQ(start.Computer.Questions.Boxes.size(), 1U);
}

TEST(Damage, ADamagedRecoverySetIsKeptUnderOtherNames) {
    Generations start;
    start.Computer.Questions.Answer(AnswerYes);
    ASSERT_TRUE(start.Load());
    TakeOverRecovery(start.Main, start.files);
    EXPECT_EQ(start.Computer.Files.Get(start.Path("Containers/0.con")),
              test::Crlf("108\n[Container]\n-1\n[Name]\nCommitted\n"));
    std::string kept;
    for (const auto& name : start.Computer.Files.Names(fake::SettingsFolder + "/Containers"))
        kept += start.Computer.Files.Get(start.Path("Containers/" + name));
    EXPECT_NE(kept.find("Recent"), std::string::npos);
    EXPECT_NE(kept.find("far"), std::string::npos);
    EXPECT_FALSE(ChooseGeneration(start.Main).Recovery);
}

TEST(Damage, EndingAtADamagedRecoverySetChangesNothing) {
    Generations start;
    const auto before = start.Computer.Files.Snapshot();
    start.Computer.Questions.Answer(AnswerNo);
    EXPECT_FALSE(start.Load());
    EXPECT_EQ(start.Computer.Files.Snapshot(), before);
}

TEST(Damage, ASoundRecoverySetIsReadWithoutAQuestion) {
    Generations start;
    start.Computer.Files.Delete(start.Path("Containers/1.REC"));
    start.files = ChooseGeneration(start.Main);
    ASSERT_TRUE(start.Load());
    EXPECT_EQ(start.Main.Settings.Opacity, 200);
    EXPECT_EQ(start.View(0).ContainerLabel.Caption, "Recent");
    EXPECT_TRUE(start.Computer.Questions.Boxes.empty());
}

} // namespace
} // namespace quill
