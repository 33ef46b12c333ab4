#include "persistence/format_fixture.h"

#include "containers/lifecycle.h"
#include "core/objects.h"
#include "notes/notes.h"
#include "shortcuts/create.h"

namespace quill {
namespace {

using test::Formats;

// A workspace with something of everything.
struct Full : Formats {
    Full() {
        PutSettings("108\n[RSS Search1]\nrain\n[Recent "
                    "1]\nx\n1\n2\npicBack\n[Picture]\n[PicPath]\n/a.jpg\n[End Picture]\n"
                    "[Link]\n[LinkType]\n2\n[LinkPath]\n/usr/bin/a\n[End Link]\n");
        PutContainer(
            "108\n[Container]\n-1\n[Name]\nReminder\n[START Note]\nbuy\nmilk\n[END "
            "Note]\n[ReminderV2]\n1\n2\n"
            "2026\n3\n4\nsoon\n[ShowTag]\nx\n[Picture]\n[PicX]\n1\n[End Picture]\n[Link]\n[LinkType]\n1\n"
            "[LinkPath]\nhttp://x\n[End Link]\n");
        (void)Load();
    }
};

// However a file was cut off, the program asks once at the most and never falls over.
TEST(FormatTruncation, AContainerFileCutAtAnyByteIsReadOrAskedAboutOnce) {
    Full full;
    const auto whole = ContainerText(full.Main, 0);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        Formats cut;
        cut.PutRaw(whole.substr(0, length));
        cut.Computer.Questions.Answer(AnswerYes);
        ASSERT_TRUE(cut.Load()) << length;
        const auto boxes = cut.Computer.Questions.Boxes.size();
        ASSERT_LE(boxes, 1U) << length;
        ASSERT_EQ(LiveContainers(cut.Main), boxes == 1 ? 0 : 1) << length;
        ASSERT_EQ(cut.Computer.Files.Has(cut.files.Containers[0] + ".damaged"), boxes == 1) << length;
    }
}

TEST(FormatTruncation, ASettingsFileCutAtAnyByteKeepsWhatStandsBefore) {
    Full full;
    const auto whole = SettingsText(full.Main, false);
    int asked = 0;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        Formats cut;
        cut.files.Settings = cut.Path("Quillmere.ini");
        cut.Computer.Files.Put(cut.files.Settings, whole.substr(0, length));
        cut.Computer.Questions.Answer(AnswerYes);
        ASSERT_TRUE(cut.Load()) << length;
        ASSERT_LE(cut.Computer.Questions.Boxes.size(), 1U) << length;
        asked += static_cast<int>(cut.Computer.Questions.Boxes.size());
    }
    EXPECT_GT(asked, 0);
}

TEST(FormatTruncation, ACutInTheMiddleOfARecordOrANoteIsAlwaysTold) {
    Full full;
    const auto whole = ContainerText(full.Main, 0);
    for (const std::string open : {"[START Note]\r\n", "[Link]\r\n", "[Picture]\r\n", "[ReminderV2]\r\n"}) {
        ContainerRecord record;
        const auto at = whole.find(open) + open.size();
        EXPECT_TRUE(ParseContainer(std::string_view(whole).substr(0, at), record)) << open;
    }
}

} // namespace
} // namespace quill
