#include "dock/hotkey.h"

#include "appearance/frmSettings.h"
#include "dock/dock_fixture.h"
#include "platform/hotkeys.h"

namespace quill::test {
namespace {

struct Hotkey : DockFixture {
    fake::FakeHotkeys& keys = desk.Computer.Hotkeys;
    int settingsShown = 0;
    bool emphasized = false;

    Hotkey() {
        desk.Computer.Dialogs.OnSettings = [this](frmSettings& dialog) {
            ++settingsShown;
            emphasized = dialog.IsHotkeyEmphasized();
            EXPECT_EQ(dialog.Page(), SettingsPage::FrameKBNavigation);
            EXPECT_TRUE(Dock().JustUsedHotKey);
            return false;
        };
    }
    void StartTaken() {
        keys.Taken.insert({9, 83});
        desk.Person().Answer(AnswerOk);
        StartAt(Left);
    }
};

// ---- the ladder, as it stands

struct LadderRow {
    const char* Characters;
    std::vector<int> Codes;
};

const LadderRow ladder[] = {
    {"ABCDEFGH", {65, 66, 67, 68, 69, 70, 71, 72}},
    {"JKL", {73, 74, 75}}, // the key before each
    {"MNOPQR", {77, 78, 79, 80, 81, 82}},
    {"S", {83}},
    {"TUVWXYZ", {84, 85, 86, 87, 88, 89, 90}},
    {"_></\\", {32, 39, 37, 38, 40}},
    {"0123456789", {48, 49, 50, 51, 52, 53, 54, 55, 56, 57}},
    {"I", {0}},
    {"!?.:;,+-*#@[^`{|}~ \"'$%&()=", std::vector<int>(27, 0)},
};

TEST_F(Hotkey, TheLadderLeadsEveryCharacterToItsKey) {
    for (const auto& row : ladder) {
        const std::string_view characters = row.Characters;
        ASSERT_EQ(characters.size(), row.Codes.size()) << characters;
        for (std::size_t at = 0; at < characters.size(); ++at)
            EXPECT_EQ(HotkeyCode(characters.substr(at, 1)), row.Codes[at]) << characters[at];
    }
}

TEST_F(Hotkey, JKAndLGrabTheKeyBeforeThemAndIGrabsNone) {
    StartAt(Left);
    for (const auto& [character, code] : {std::pair{"J", 'I'}, {"K", 'J'}, {"L", 'K'}}) {
        EXPECT_TRUE(RegisterGlobalHotkey(Main(), character, ModControl));
        EXPECT_EQ(keys.Held, (fake::FakeHotkeys::Key{ModControl, code})) << character;
    }
    EXPECT_FALSE(RegisterGlobalHotkey(Main(), "I", ModControl));
    EXPECT_FALSE(keys.Held);
}

TEST_F(Hotkey, NoCharacterLeadsToTheKeyOfL) {
    for (int code = 1; code < 256; ++code) {
        const char character = static_cast<char>(code);
        EXPECT_NE(HotkeyCode({&character, 1}), 76);
    }
}

TEST_F(Hotkey, ALetterWrittenSmallIsTheSameKey) {
    EXPECT_EQ(HotkeyCode("s"), 83);
    EXPECT_EQ(HotkeyCode("i"), 0);
}

TEST_F(Hotkey, WhatIsNotOneCharacterIsNone) {
    EXPECT_EQ(HotkeyCode(""), 0);
    EXPECT_EQ(HotkeyCode("SS"), 0);
    EXPECT_EQ(HotkeyCode("\xC3\xA4"), 0);
}

// ---- registration

TEST_F(Hotkey, ItIsRegisteredAMomentAfterTheStart) {
    Start(PlaceAt(Left));
    EXPECT_EQ(keys.Held, (fake::FakeHotkeys::Key{ModAlt | ModWin, 'S'}));
    EXPECT_FALSE(Dock().HotkeyRefused);
}

TEST_F(Hotkey, CharacterAndModifiersAreThoseOfTheSettings) {
    Start(PlaceAt(Left), {"[GlobalHotkeyChar]", "_", "[GlobalHotkeyMod]", "6"});
    EXPECT_EQ(keys.Held, (fake::FakeHotkeys::Key{ModControl | ModShift, 32}));
}

TEST_F(Hotkey, SwitchedOffNothingIsAskedOfTheSystem) {
    Start(PlaceAt(Left), {"[GlobalHotkey]", "0"});
    EXPECT_EQ(keys.Asked, 0);
    EXPECT_FALSE(keys.Held);
}

struct RefusedRow {
    const char* Why;
    const char* Character;
    int Modifiers;
};

TEST_F(Hotkey, NoKeyAnUnknownCharacterOrNoModifierIsAFailureAndNeverAGrab) {
    StartAt(Left);
    const int asked = keys.Asked;
    for (const auto& row : {RefusedRow{"no key", "I", ModWin},
                            {"unknown", "!", ModWin},
                            {"empty", "", ModWin},
                            {"no modifier", "S", 0},
                            {"a modifier that is none", "S", 16}}) {
        EXPECT_FALSE(RegisterGlobalHotkey(Main(), row.Character, row.Modifiers)) << row.Why;
        EXPECT_TRUE(Dock().HotkeyRefused) << row.Why;
        EXPECT_FALSE(keys.Held) << row.Why << ": the one before it is given up";
    }
    EXPECT_EQ(keys.Asked, asked) << "the system was not asked";
}

TEST_F(Hotkey, ANewOneTakesThePlaceOfTheOneBefore) {
    StartAt(Left);
    EXPECT_TRUE(RegisterGlobalHotkey(Main(), "A", ModControl));
    EXPECT_EQ(keys.Held, (fake::FakeHotkeys::Key{ModControl, 'A'}));
    keys.Taken.insert({ModControl, 'B'});
    EXPECT_FALSE(RegisterGlobalHotkey(Main(), "B", ModControl));
    EXPECT_FALSE(keys.Held);
    EXPECT_TRUE(RegisterGlobalHotkey(Main(), "A", ModControl));
    EXPECT_FALSE(Dock().HotkeyRefused);
}

TEST_F(Hotkey, OneThatIsTakenIsToldAndLeadsIntoTheSettings) {
    StartTaken();
    ASSERT_EQ(desk.Person().Boxes.size(), 1U);
    const auto& box = desk.Person().Boxes.front();
    EXPECT_EQ(box.Title, "Quillmere");
    EXPECT_EQ(box.Text,
              "Could not register the Global Hotkey since it is already in use by the system or another "
              "application. Press OK and select different key combination in the following dialog.");
    EXPECT_EQ(settingsShown, 1);
    EXPECT_TRUE(emphasized);
}

TEST_F(Hotkey, AFailedRegistrationLeavesTheProgramRunningWithNoHotkey) {
    StartTaken();
    EXPECT_FALSE(keys.Held);
    EXPECT_TRUE(Dock().HotkeyRefused);
    EXPECT_FALSE(Dock().JustUsedHotKey) << "the settings have closed";
    EXPECT_EQ(State(), "out");
    Leave();
    EXPECT_EQ(State(), "docked");
    desk.ClickTray();
    EXPECT_EQ(State(), "out") << "the other ways are there";
}

TEST_F(Hotkey, OnAFirstStartNothingIsToldOfAKeyThatIsTaken) {
    keys.Taken.insert({9, 83});
    desk.StartWorkspace(); // no settings file is there
    desk.Wait(1000);
    EXPECT_TRUE(desk.Person().Boxes.empty());
    EXPECT_EQ(settingsShown, 0);
    EXPECT_TRUE(Dock().HotkeyRefused) << "the settings will say so";
}

TEST_F(Hotkey, NothingDocksWhileTheMessageIsOpen) {
    keys.Taken.insert({9, 83});
    desk.Person().Answer(AnswerOk);
    std::string state;
    desk.Person().OnBox = [&](const fake::Box&) {
        windows.Foreground.reset();
        clock.Advance(5000);
        state = State();
    };
    StartAt(Left);
    EXPECT_EQ(state, "out");
}

TEST_F(Hotkey, AnEndOfTheProgramInsideTheMessageShowsNoSettings) {
    keys.Taken.insert({9, 83});
    desk.Person().Answer(AnswerOk);
    desk.Person().OnBox = [&](const fake::Box&) { Main().IsExiting = true; };
    StartAt(Left);
    EXPECT_EQ(settingsShown, 0);
}

TEST_F(Hotkey, ItIsGivenUpAtTheEnd) {
    StartAt(Left);
    ASSERT_TRUE(keys.Held);
    desk.ExitWorkspace();
    EXPECT_FALSE(keys.Held);
}

TEST_F(Hotkey, WhileTheSettingsAreOpenAPressIsNotForTheWorkspace) {
    StartDocked(Left);
    Dock().JustUsedHotKey = true;
    Hotkey_Pressed(Main());
    EXPECT_EQ(State(), "docked");
    Dock().JustUsedHotKey = false;
    Hotkey_Pressed(Main());
    EXPECT_EQ(State(), "out");
}

TEST_F(Hotkey, DuringTheLoadAndTheEndAPressDoesNothing) {
    StartDocked(Left);
    Main().IsLoading = true;
    Hotkey_Pressed(Main());
    EXPECT_EQ(State(), "docked");
    Main().IsLoading = false;
    Main().IsExiting = true;
    Hotkey_Pressed(Main());
    EXPECT_EQ(State(), "docked");
}

} // namespace
} // namespace quill::test
