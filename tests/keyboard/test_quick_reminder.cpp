#include "keyboard/quick_reminder.h"

#include "keyboard/launcher_fixture.h"

namespace quill {
namespace {

struct ReminderRow {
    const char* Text; // behind "r "
    const char* Means;
};

const ReminderRow reminders[] = {
    {"15 Be Happy!", "15 Be Happy!"},
    {"  5   tea  ", "5 tea"},
    {"99 x", "99 x"},
    {"15 ", "15 "},
    {"15", "(refused)"},
    {"100 x", "(refused)"},
    {"0 x", "(refused)"},
    {"00 x", "(refused)"},
    {"1.5 x", "(refused)"},
    {"-5 x", "(refused)"},
    {"+5 x", "(refused)"},
    {"x 15", "(refused)"},
    {"", "(refused)"},
    {" ", "(refused)"},
    {"٣ x", "(refused)"},
};

std::string Words(const std::optional<QuickReminder>& read) {
    return read ? std::to_string(read->Minutes) + " " + read->Text : "(refused)";
}

TEST(QuickReminders, MinutesAreOneOrTwoDigitsWithABlankBehind) {
    for (const auto& row : reminders) EXPECT_EQ(Words(ReadQuickReminder(row.Text)), row.Means) << row.Text;
}

struct Reminding : test::LauncherFixture {};

TEST_F(Reminding, BadSyntaxShowsTheUsageAndKeepsTheText) {
    desk.Person().Answer(AnswerOk);
    Run("r 100 x");
    EXPECT_EQ(Boxes(), "To schedule a Quick Reminder use: \n\nr ## reminder\n\nExample: r 15 Be Happy! (64, "
                       "Quillmere)");
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(desk.Typed(), "r 100 x");
    EXPECT_TRUE(desk.Containers().empty()) << "nothing is created";
}

TEST_F(Reminding, MinutesWithoutABlankBehindAreRefused) {
    desk.Person().Answer(AnswerOk);
    Run("r 15");
    EXPECT_TRUE(Boxes().starts_with("To schedule"));
    EXPECT_EQ(desk.Typed(), "r 15");
}

TEST_F(Reminding, AGoodOneSaysThatItCannotBeMadeYetAndKeepsTheText) {
    desk.Person().Answer(AnswerOk);
    Run("R 15 Be Happy!");
    EXPECT_EQ(Boxes(), "Reminders can't be made yet. Nothing was scheduled. (64, Quillmere)");
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(desk.Typed(), "R 15 Be Happy!");
}

} // namespace
} // namespace quill
