#include "keyboard/typed_key.h"

#include "dock/sliding.h"
#include "keyboard/launcher_fixture.h"

namespace quill {
namespace {

struct TypedKeys : test::LauncherFixture {
    bool Key(int code, const std::string& text, bool shift = false, bool ctrl = false, bool alt = false) {
        KeyEvent key;
        key.Code = code, key.Text = text;
        key.Shift = shift, key.Ctrl = ctrl, key.Alt = alt;
        const bool used = TypedKey(Main(), key);
        desk.Turn();
        return used;
    }
    std::string Opened() { return IsOpen() ? desk.Typed() : "(closed)"; }
};

struct LetterRow {
    const char *Text, *Opens;
};

const LetterRow letters[] = {
    {"a", "a"},
    {"Z", "z"},
    {"ö", "ö"},
    {"Ä", "ä"},
    {"Ω", "ω"},
    {"Ж", "ж"},
    {"ש", "ש"},
    {"あ", "あ"},
    {"東京", "東京"},
    {"ß", "ß"},
    {"=", "="},
    {"0", "0"},
    {"ñ", "ñ"},
    {"한", "한"},
    {"ª", "ª"},
    {"ﾊ", "ﾊ"},
    {"𐐀", "𐐨"},
    {".", "(closed)"},
    {"€", "(closed)"},
    {"´", "(closed)"},
    {"×", "(closed)"},
    {"…", "(closed)"},
    {"\u202E", "(closed)"},
    {"🙂", "(closed)"},
    {"\x1B", "(closed)"},
    {"\x7F", "(closed)"},
    {"-", "(closed)"},
    {" ", "(closed)"},
    {"\xFF", "(closed)"},
    {"\xC3", "(closed)"},
};

TEST_F(TypedKeys, LettersOfEveryAlphabetOpenTheBoxInLowerCase) {
    for (const auto& row : letters) {
        ClosePicJumpTo(Main());
        EXPECT_EQ(Key(0, row.Text), std::string(row.Opens) != "(closed)") << row.Text;
        EXPECT_EQ(Opened(), row.Opens) << row.Text;
    }
}

TEST_F(TypedKeys, TheCaretIsBehindWhatOpenedIt) {
    Key('A', "a");
    EXPECT_EQ(Field().SelStart, 1);
    ClosePicJumpTo(Main());
    Main().Settings.CalcOrSpeedLaunch = false;
    Key('7', "7");
    EXPECT_EQ(Opened(), "=7");
    EXPECT_EQ(Field().SelStart, 2);
}

TEST_F(TypedKeys, AWordTypedInOneGoIsWhole) {
    Link("Firefox");
    desk.Type("firef");
    EXPECT_EQ(Opened(), "firef");
    Enter();
    EXPECT_EQ(Started(), "start /apps/Firefox");
}

TEST_F(TypedKeys, ADigitStartsItsSlotOrOpensTheBox) {
    Main().Link(Link("Firefox")).SpeedLaunch = 4;
    EXPECT_TRUE(Key('4', "4"));
    EXPECT_EQ(Started(), "start /apps/Firefox");
    EXPECT_EQ(Opened(), "(closed)");
    EXPECT_TRUE(Key('5', "5"));
    EXPECT_EQ(Opened(), "5");
}

TEST_F(TypedKeys, WithTheCalculatorOnDigitsASlotNeedsCtrl) {
    Main().Settings.CalcOrSpeedLaunch = false;
    Main().Link(Link("Firefox")).SpeedLaunch = 4;
    Key('4', "4");
    EXPECT_EQ(Opened(), "=4");
    EXPECT_EQ(Started(), "");
    ClosePicJumpTo(Main());
    EXPECT_TRUE(Key('4', "", false, true));
    EXPECT_EQ(Started(), "start /apps/Firefox");
    EXPECT_FALSE(Key('5', "", false, true)) << "an empty slot";
    EXPECT_EQ(Opened(), "(closed)");
    Main().Settings.CalcOrSpeedLaunch = true;
    EXPECT_FALSE(Key('4', "", false, true)) << "there digits do it alone";
}

TEST_F(TypedKeys, AKeyWhoseTextNobodyTellsIsKnownByItsCode) {
    desk.PressKey('Q');
    EXPECT_EQ(Opened(), "q");
}

TEST_F(TypedKeys, ADigitThatNeedsShiftIsADigit) {
    EXPECT_TRUE(Key('1', "1", true));
    EXPECT_EQ(Opened(), "1");
}

TEST_F(TypedKeys, AnExclamationMarkOpensTheHistory) {
    AddToHistory(Main(), "old");
    EXPECT_TRUE(Key('1', "!", true));
    EXPECT_TRUE(Keys().HistoryMode);
    EXPECT_EQ(Lines(), "old");
    ClosePicJumpTo(Main());
    EXPECT_TRUE(Key('1', "", true));
    EXPECT_TRUE(Keys().HistoryMode);
}

TEST_F(TypedKeys, ASlashThatNeedsShiftOpensSpeedLaunch) {
    EXPECT_TRUE(Key('7', "/", true));
    EXPECT_EQ(Opened(), "(closed)");
    EXPECT_TRUE(Main().Links.QuickLaunch.Loaded);
}

TEST_F(TypedKeys, KeysWithCtrlOrAltAndKeysOfAFieldOpenNothing) {
    EXPECT_FALSE(Key('Q', "q", false, true));
    EXPECT_FALSE(Key('Q', "q", false, false, true));
    KeyEvent key;
    key.Code = 'Q', key.Text = "q", key.InTextField = true;
    EXPECT_FALSE(TypedKey(Main(), key));
    EXPECT_EQ(Opened(), "(closed)");
}

TEST_F(TypedKeys, ADockedOrHiddenWorkspaceOpensNothing) {
    DockMe(Main(), edge::Left, false);
    desk.Wait(2000);
    ASSERT_NE(Main().Dock.DockPosition, 0);
    EXPECT_FALSE(Key('Q', "q"));
    EXPECT_EQ(Opened(), "(closed)");
}

TEST_F(TypedKeys, KeysOfTheKeyTableComeFirst) {
    desk.PressKey(KeyDelete);
    desk.PressKey(KeySpace);
    EXPECT_EQ(Opened(), "(closed)");
}

} // namespace
} // namespace quill
