#include "containers/selection.h"
#include "containers/workspace_fixture.h"
#include "core/keyboard_focus.h"
#include "core/menus.h"
#include "shortcuts/icon_cache.h"
#include "shortcuts/properties.h"

namespace quill {
namespace {

struct PropertiesCommands : test::WorkspaceFixture {
    PropertiesCommands() {
        Main.View.Visible = true;
        for (int count = 0; count < 3; ++count)
            links.push_back(NewLink(OnWorkspace(), {2000, 1000.0F * static_cast<float>(count + 1)},
                                    "/usr/bin/tool" + std::to_string(count)));
        Main.Links.CurrentShortcut = links[0];
    }
    void TearDown() override {
        EXPECT_EQ(Person().Unexpected, 0)
            << (Person().UnexpectedTexts.empty() ? "" : Person().UnexpectedTexts.front());
        EXPECT_TRUE(Person().AllAnswered());
        EXPECT_EQ(computer.Dialogs.Unexpected, 0);
    }
    fake::FakeQuestions& Person() { return computer.Questions; }
    void Select(const std::vector<int>& some) {
        for (const int link : some) SetSelection(Main, link, true);
    }
    void Style(int link) {
        Main.Link(link).Color = 0x123456;
        Main.Link(link).FontBold = true;
        Main.Link(link).FontSize = 30;
        ApplyShortcutStyle(Main, link);
        SetNewLinkHeight(Main, link);
    }
    std::string StyleOf(int link) {
        const auto& it = Main.Link(link);
        return std::to_string(it.Color) + (it.FontBold ? " bold " : " plain ") + std::to_string(it.FontSize);
    }
    void Pixels(int link, std::vector<Color> colors) {
        const int width = static_cast<int>(colors.size());
        computer.Images.Pixels[Main.Link(link).Path] = {width, 1, std::move(colors)};
    }
    std::string Saved() {
        auto file = computer.Files.Read(std::string(fake::SettingsFolder) + "/Quillmere.REC", 1 << 20);
        return file ? file.Value() : "(none)";
    }
    std::vector<int> links;
};

// ---- reset

TEST_F(PropertiesCommands, ResetAsksAndSetsTheStyleOfEverySelectedOneBack) {
    Main.Settings.FontSize = 11;
    for (const int link : links) Style(link);
    const float tall = Main.LinkView(links[0]).lblShortcut.Place.Height;
    Select({links[0], links[1]});
    Person().Answer(AnswerYes);
    mnuLinkReset_Click(Main);
    EXPECT_EQ(Person().LastBox(), "Reset selected shortcuts style to default values?");
    EXPECT_EQ(StyleOf(links[0]), "-1 plain 11");
    EXPECT_EQ(StyleOf(links[1]), "-1 plain 11");
    EXPECT_EQ(StyleOf(links[2]), "1193046 bold 30") << "it is not selected";
    EXPECT_LT(Main.LinkView(links[0]).lblShortcut.Place.Height, tall) << "the label is measured again";
    UnselectLinks(Main);
    EXPECT_EQ(Main.LinkView(links[0]).lblShortcut.ForeColor, Main.View.ForeColor);
    EXPECT_NE(Saved().find("[Size]\r\n11\r\n"), std::string::npos) << Saved();
}

TEST_F(PropertiesCommands, AResetOneHasTheTextColourOfItsContainer) {
    const int box = New({6000, 1000, 3000, 3000});
    Main.ConView(box).FrameForeColor = 0x010203;
    const int link = NewLink(InContainer(box), {400, 400});
    Style(link);
    Select({link});
    Person().Answer(AnswerYes);
    mnuLinkReset_Click(Main);
    UnselectLinks(Main);
    EXPECT_EQ(Main.LinkView(link).lblShortcut.ForeColor, 0x010203);
}

TEST_F(PropertiesCommands, AFetchedIconGoesAndOneThatAPersonChoseStays) {
    const std::string cached = IconCacheFolder(Main) + "/01234567-89ab-4cde-8f01-23456789abcd.ico";
    ASSERT_TRUE(IsCachedIcon(Main, cached));
    Main.Link(links[0]).Icon = cached;
    Main.Link(links[1]).Icon = "/icons/mine.png";
    Main.LinkView(links[0]).IconDrawn = true;
    Select({links[0], links[1]});
    Person().Answer(AnswerYes);
    mnuLinkReset_Click(Main);
    EXPECT_EQ(Main.Link(links[0]).Icon, "");
    EXPECT_FALSE(Main.LinkView(links[0]).IconDrawn);
    EXPECT_EQ(Main.Link(links[1]).Icon, "/icons/mine.png");
}

TEST_F(PropertiesCommands, AnythingButYesResetsNothing) {
    for (const int answer : {AnswerNo, AnswerCancel}) {
        Style(links[0]);
        Select({links[0]});
        Person().Answer(answer);
        mnuLinkReset_Click(Main);
        EXPECT_EQ(StyleOf(links[0]), "1193046 bold 30");
    }
    EXPECT_EQ(Saved(), "(none)");
}

TEST_F(PropertiesCommands, OnlyWhatLivesAndWasAskedAboutIsReset) {
    for (const int link : links) Style(link);
    Select({links[0], links[1]});
    Person().Answer(AnswerYes);
    Person().OnBox = [&](const auto&) {
        DeleteShortcut(Main, links[0]);
        SetSelection(Main, links[2], true);
    };
    mnuLinkReset_Click(Main);
    EXPECT_EQ(StyleOf(links[1]), "-1 plain 10");
    EXPECT_EQ(StyleOf(links[2]), "1193046 bold 30");
}

TEST_F(PropertiesCommands, WithNoneSelectedNothingIsAsked) {
    mnuLinkReset_Click(Main);
    mnuColorFromIcon_Click(Main);
    EXPECT_TRUE(Person().Boxes.empty());
    EXPECT_EQ(Saved(), "(none)");
}

// ---- the colour of the icon

TEST_F(PropertiesCommands, EachGetsTheMeanOfItsOwnIconWithoutWhite) {
    Pixels(links[0], {Rgb(10, 20, 30), Rgb(30, 40, 50), 0xFFFFFF, -1});
    Pixels(links[1], {Rgb(200, 0, 0)});
    Select(links);
    mnuColorFromIcon_Click(Main);
    EXPECT_EQ(Main.Link(links[0]).Color, Rgb(20, 30, 40));
    EXPECT_EQ(Main.Link(links[1]).Color, Rgb(200, 0, 0));
    EXPECT_EQ(Main.Link(links[2]).Color, -1) << "there is no icon to look at";
    EXPECT_EQ(Main.LinkView(links[1]).lblShortcut.BackColor, Rgb(200, 0, 0)) << "and it is seen";
    EXPECT_NE(Saved().find("[Color]\r\n200\r\n"), std::string::npos) << Saved();
}

TEST_F(PropertiesCommands, AnOwnIconIsTheOneThatCounts) {
    Main.Link(links[0]).Icon = "/icons/own.png";
    computer.Images.Pixels["/icons/own.png"] = {1, 1, {Rgb(1, 2, 3)}};
    Pixels(links[0], {Rgb(200, 0, 0)});
    Select({links[0]});
    mnuColorFromIcon_Click(Main);
    EXPECT_EQ(Main.Link(links[0]).Color, Rgb(1, 2, 3));
}

TEST_F(PropertiesCommands, ALockedWorkspaceKeepsItsStyles) {
    Style(links[0]);
    Pixels(links[0], {Rgb(1, 2, 3)});
    Select({links[0]});
    Main.Dock.Locked = true;
    mnuLinkReset_Click(Main);
    mnuColorFromIcon_Click(Main);
    EXPECT_EQ(StyleOf(links[0]), "1193046 bold 30");
    EXPECT_TRUE(Person().Boxes.empty());
}

// ---- menu and keys

TEST_F(PropertiesCommands, TheMenusLinesOpenTheDialogForTheirShortcut) {
    std::vector<std::string> seen;
    computer.Dialogs.OnEditLink = [&](frmEditLink& dialog) {
        seen.push_back(dialog.Caption() + ": " + dialog.txtLabel);
        return false;
    };
    Main.Links.CurrentShortcut = links[1];
    for (const char* line : {"Propert&ies...", "Clo&ne..."}) {
        Person().ChooseMenu(line);
        PopupMenu(Main, MenuName::Shortcut, {0, 0});
    }
    EXPECT_EQ(seen, (std::vector<std::string>{"Shortcut Properties: tool1", "Clone Shortcut: tool1"}));
}

TEST_F(PropertiesCommands, F2OpensThePropertiesOfASelectedShortcut) {
    int opened = 0;
    computer.Dialogs.OnEditLink = [&](frmEditLink&) { return ++opened, false; };
    Select({links[0]});
    Form_KeyDown(Main, {.Code = KeyF1 + 1});
    EXPECT_EQ(opened, 1);
    Form_KeyDown(Main, {.Code = 'D', .Shift = true, .Ctrl = true});
    EXPECT_EQ(opened, 2);
}

TEST_F(PropertiesCommands, TagsAreListedOnceInTableOrder) {
    Main.Link(links[0]).Tags = "Zoo, art";
    Main.Link(links[1]).Tags = "ART ,, übung";
    Main.Link(links[2]).Tags = "ÜBUNG,zoo,last";
    EXPECT_EQ(ExistingTags(Main), (std::vector<std::string>{"Zoo", "art", "übung", "last"}));
    DeleteShortcut(Main, links[0]);
    EXPECT_EQ(ExistingTags(Main), (std::vector<std::string>{"ART", "übung", "zoo", "last"}));
}

} // namespace
} // namespace quill
