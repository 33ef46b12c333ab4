#include "containers/con_properties.h"

#include "appearance/colors.h"
#include "containers/commands.h"
#include "containers/selection.h"
#include "containers/workspace_fixture.h"
#include "core/start.h"

namespace quill {
namespace {

struct ConProperties : test::WorkspaceFixture {
    int First = New({1500, 1500, 3000, 3000}, "Work");

    void SetUp() override {
        Main.Group.CurrentContainer = First;
        computer.Questions.AnswerTo("Match each", AnswerYes);
    }
    void TearDown() override { EXPECT_EQ(computer.Dialogs.Unexpected, 0); }

    // The person works on the dialog and leaves it by Cancel, or by OK at the end of the scene.
    void Open(const std::function<bool(frmConProperties&)>& scene) {
        computer.Dialogs.OnConProperties = scene;
        mnuConProperties_Click(Main);
    }
    static bool Ok(frmConProperties& dialog) {
        EXPECT_EQ(dialog.OKButton_Click(), "");
        return true;
    }
    int Feed() {
        const int index = New({6000, 1500, 3000, 3000}, "News");
        Main.Con(index).RSS = true;
        Main.Con(index).RSSListIndex = 0;
        Main.FeedViews.resize(1);
        Main.FeedViews[0].GroupIndex = index;
        return index;
    }
    ContainerView& View(int index) { return Main.ConView(index); }
    void Picture(const std::string& path) {
        computer.Files.Put(path, "picture");
        computer.Images.Sizes[path] = {960, 960};
    }
    void Scheme(const std::string& name, const std::string& lines) {
        computer.Files.Put(Main.SettingsFolder + "/Skin/Colors/" + name + ".qmc", "[1.01]\r\n" + lines);
    }
};

TEST_F(ConProperties, AnotherNameIsTakenAndSaved) {
    Open([&](frmConProperties& dialog) {
        EXPECT_EQ(dialog.txtContainerName, "Work");
        dialog.txtContainerName = "  Desk ";
        return Ok(dialog);
    });
    EXPECT_EQ(View(First).ContainerLabel.Caption, "Desk");
    EXPECT_NE(Recovery("0.REC").find("[Name]\r\nDesk\r\n"), std::string::npos);
}

TEST_F(ConProperties, WithoutANameTheDialogStaysAndSaysWhy) {
    Open([&](frmConProperties& dialog) {
        dialog.txtContainerName = " \t";
        EXPECT_EQ(dialog.OKButton_Click(), "Please enter a name for the container.");
        EXPECT_EQ(View(First).ContainerLabel.Caption, "Work");
        dialog.txtContainerName = "Desk";
        return Ok(dialog);
    });
    EXPECT_EQ(View(First).ContainerLabel.Caption, "Desk");
}

struct SpacingRow {
    const char* Text;
    int Twips;
    const char* Why;
};

TEST_F(ConProperties, TheSpacingIsPixelsWithinItsBounds) {
    for (const SpacingRow& row : {
             SpacingRow{"20", 300, "a number"},
             SpacingRow{"3", 45, "the least"},
             SpacingRow{"2", 155, "below the least"},
             SpacingRow{"30", 450, "the most offered"},
             SpacingRow{"31", 155, "above the most"},
             SpacingRow{"99999999999", 155, "far above"},
             SpacingRow{"12,5", 188, "a fraction"},
         }) {
        Main.Con(First).LineSpacing = 200;
        Open([&](frmConProperties& dialog) {
            dialog.txtSpacing = row.Text;
            return Ok(dialog);
        });
        EXPECT_EQ(Main.Con(First).LineSpacing, row.Twips) << row.Why;
    }
}

TEST_F(ConProperties, ASpacingThatNobodyChangedStaysToTheTwip) {
    Main.Con(First).LineSpacing = 157;
    Open([&](frmConProperties& dialog) {
        EXPECT_EQ(dialog.txtSpacing, "10");
        return Ok(dialog);
    });
    EXPECT_EQ(Main.Con(First).LineSpacing, 157);
}

TEST_F(ConProperties, ASpacingThatIsNoNumberChangesNothing) {
    Main.Con(First).LineSpacing = 200;
    Open([&](frmConProperties& dialog) {
        dialog.txtSpacing = "wide";
        return Ok(dialog);
    });
    EXPECT_EQ(Main.Con(First).LineSpacing, 200);
}

TEST_F(ConProperties, AnotherSpacingLaysTheShortcutsAndCanBeUndone) {
    NewLink(InContainer(First), {700, 300});
    NewLink(InContainer(First), {700, 2000});
    const auto before = Main.LinkView(1).lblShortcut.Place;
    Open([&](frmConProperties& dialog) {
        dialog.txtSpacing = "20";
        return Ok(dialog);
    });
    EXPECT_NE(Main.LinkView(1).lblShortcut.Place.Top, before.Top);
    EXPECT_EQ(Main.Group.UndoStack.size(), 1U);
}

TEST_F(ConProperties, FlipAndToolbarAreTaken) {
    Open([&](frmConProperties& dialog) {
        dialog.chkSpacebarFlip = dialog.chkHideToolbar = true;
        return Ok(dialog);
    });
    EXPECT_TRUE(Main.Con(First).SpacebarFlip);
    EXPECT_TRUE(Main.Con(First).HideToolbar);
    EXPECT_FALSE(View(First).lblFoldUnfold.Visible);
}

struct SizeRow {
    int Width, Height, Step;
    const char* Why;
};

TEST_F(ConProperties, TheStepOfTheTileIsToldByItsWidth) {
    for (const SizeRow& row : {
             SizeRow{700, 950, 0, "normal"},
             SizeRow{650, 870, 1, "small"},
             SizeRow{410, 650, 2, "tiny"},
             SizeRow{410, 999, 2, "the width alone tells it"},
             SizeRow{800, 900, 0, "anything else"},
         }) {
        Main.Con(First).SetShrinkSize(row.Width, row.Height);
        EXPECT_EQ(frmConProperties(Main).cboShrinkSize, row.Step) << row.Why;
    }
}

TEST_F(ConProperties, AnotherStepResizesTheTileItself) {
    const int tile = NewTile(6000, 3000);
    Main.Group.CurrentContainer = tile;
    Open([&](frmConProperties& dialog) {
        dialog.cboShrinkSize = 2;
        return Ok(dialog);
    });
    EXPECT_EQ(Main.Con(tile).ShrinkSize(), (TileSize{410, 650}));
    EXPECT_EQ(Box(tile).Width, 410);
    EXPECT_EQ(Box(tile).Height, 650);
    EXPECT_TRUE(IsShrunk(Main, tile));
}

TEST_F(ConProperties, ATileOfASizeOfItsOwnKeepsItWhenNoStepIsChosen) {
    Main.Con(First).SetShrinkSize(800, 900);
    Open([&](frmConProperties& dialog) { return Ok(dialog); });
    EXPECT_EQ(Main.Con(First).ShrinkSize(), (TileSize{800, 900}));
}

// ---- colours

TEST_F(ConProperties, APickedColorShowsAtOnce) {
    computer.Dialogs.Colors = {0x112233, 0x445566, 0x778899, 0xAABBCC};
    Main.Marks.Take();
    Open([&](frmConProperties& dialog) {
        dialog.PickColor(PickedColor::Back);
        EXPECT_EQ(View(First).FrameBackColor, 0x112233);
        EXPECT_EQ(View(First).ContainerBackColor, ContrastColor(0x112233)) << "the border goes along";
        EXPECT_EQ(dialog.picBackColor, 0x112233);
        EXPECT_FALSE(Main.Marks.Pending().Containers.empty());
        dialog.PickColor(PickedColor::Fore);
        EXPECT_EQ(View(First).ContainerLabel.ForeColor, 0x445566);
        dialog.PickColor(PickedColor::BackText);
        EXPECT_EQ(View(First).ContainerNote.BackColor, 0x778899);
        dialog.PickColor(PickedColor::ForeText);
        EXPECT_EQ(View(First).ContainerNote.ForeColor, 0xAABBCC);
        return Ok(dialog);
    });
    EXPECT_EQ(View(First).FrameBackColor, 0x112233);
    EXPECT_NE(Recovery("0.REC").find("[Backcolor]\r\n1122867\r\n[Forecolor]\r\n4478310\r\n"),
              std::string::npos);
}

TEST_F(ConProperties, CancelPutsEveryColorAndTheIconBack) {
    AddShrinkIcon(Main, "note.ico", First);
    const auto before = View(First);
    Picture("/home/me/ship.png");
    computer.Dialogs.Colors = {0x112233, 0x445566, 0x778899, 0xAABBCC};
    computer.Dialogs.Files = {"/home/me/ship.png"};
    Open([&](frmConProperties& dialog) {
        for (const auto which :
             {PickedColor::Back, PickedColor::Fore, PickedColor::BackText, PickedColor::ForeText})
            dialog.PickColor(which);
        dialog.PicJumpToIcon_Click();
        EXPECT_EQ(View(First).IconFile, "/home/me/ship.png") << "the icon shows at once";
        dialog.CancelButton_Click();
        return false;
    });
    EXPECT_EQ(View(First).FrameBackColor, before.FrameBackColor);
    EXPECT_EQ(View(First).ContainerBackColor, before.ContainerBackColor);
    EXPECT_EQ(View(First).ContainerLabel.ForeColor, before.ContainerLabel.ForeColor);
    EXPECT_EQ(View(First).FrameForeColor, before.FrameForeColor);
    EXPECT_EQ(View(First).ContainerNote.BackColor, before.ContainerNote.BackColor);
    EXPECT_EQ(View(First).ContainerNote.ForeColor, before.ContainerNote.ForeColor);
    EXPECT_EQ(Main.Con(First).ShrinkPath, "note.ico");
}

TEST_F(ConProperties, ADialogThatIsClosedInAnyOtherWayIsCancelled) {
    const auto before = View(First).FrameBackColor;
    computer.Dialogs.Colors = {0x112233};
    Open([&](frmConProperties& dialog) {
        dialog.PickColor(PickedColor::Back);
        return false;
    });
    EXPECT_EQ(View(First).FrameBackColor, before);
    EXPECT_EQ(Recovery("0.REC"), "(none)") << "nothing was saved";
}

TEST_F(ConProperties, AColorThatIsNotChosenChangesNothing) {
    computer.Dialogs.Colors = {std::nullopt};
    const auto before = View(First).FrameBackColor;
    Open([&](frmConProperties& dialog) {
        dialog.PickColor(PickedColor::Back);
        EXPECT_EQ(computer.Dialogs.ColorsAsked.back(), before) << "it opens with the present colour";
        return Ok(dialog);
    });
    EXPECT_EQ(View(First).FrameBackColor, before);
}

TEST_F(ConProperties, CaptionsSayWhatTheColorsAreOf) {
    const int feed = Feed();
    const frmConProperties note(Main);
    EXPECT_EQ(note.CaptionOf(PickedColor::ForeText), "Note Foreground");
    EXPECT_EQ(note.CaptionOf(PickedColor::BackText), "Note Background");
    EXPECT_EQ(note.TextColorsCaption(), "Note Colors");
    Main.Group.CurrentContainer = feed;
    const frmConProperties news(Main);
    EXPECT_EQ(news.CaptionOf(PickedColor::ForeText), "RSS Foreground");
    EXPECT_EQ(news.CaptionOf(PickedColor::BackText), "RSS Background");
    EXPECT_EQ(news.TextColorsCaption(), "RSS Colors");
}

TEST_F(ConProperties, TheTextColorsOfAFeedAreThoseOfItsList) {
    const int feed = Feed();
    Main.Group.CurrentContainer = feed;
    computer.Dialogs.Colors = {0x010203, 0x040506};
    Open([&](frmConProperties& dialog) {
        dialog.PickColor(PickedColor::BackText);
        dialog.PickColor(PickedColor::ForeText);
        return Ok(dialog);
    });
    EXPECT_EQ(Main.Feed(feed).FeedBackColor, 0x010203);
    EXPECT_EQ(Main.Feed(feed).FeedForeColor, 0x040506);
}

TEST_F(ConProperties, AReminderIsWrittenInTheColorsOfItsContainer) {
    Main.Con(First).SetReminder(true, 2030, 1, 1, 9, 0, "then");
    computer.Dialogs.Colors = {0x112233, 0x445566};
    Open([&](frmConProperties& dialog) {
        EXPECT_FALSE(dialog.HasTextColors());
        dialog.PickColor(PickedColor::Back);
        dialog.PickColor(PickedColor::Fore);
        return Ok(dialog);
    });
    EXPECT_EQ(View(First).ContainerNote.BackColor, 0x112233);
    EXPECT_EQ(View(First).ContainerNote.ForeColor, 0x445566);
}

// ---- the list of colours

TEST_F(ConProperties, TheListHoldsTheDefaultsTheIconAndEachScheme) {
    Scheme("Sea", "");
    Scheme("Amber", "");
    EXPECT_EQ(frmConProperties(Main).ColorEntries(),
              (std::vector<std::string>{"Reset to Default", "Colors from Icon", "---", "Amber", "Sea"}));
    New({6000, 1500, 3000, 3000});
    SelectContainer(Main, 0);
    SelectContainer(Main, 1);
    EXPECT_EQ(frmConProperties(Main).ColorEntries()[1], "Colors from Icons");
}

TEST_F(ConProperties, TheDefaultsAreThoseOfTheSettings) {
    SetColors(Main, First, 0x999999);
    Main.Settings.ContainerFor = 0x101010;
    Main.Settings.ContainerLabel = 0x202020;
    Main.Settings.ContainerTextBack = 0x303030;
    Main.Settings.ContainerTextFor = 0x404040;
    frmConProperties dialog(Main);
    dialog.CboColors_Click(0);
    EXPECT_EQ(View(First).FrameBackColor, 0x101010);
    EXPECT_EQ(View(First).FrameForeColor, 0x202020);
    EXPECT_EQ(View(First).ContainerNote.BackColor, 0x303030);
    EXPECT_EQ(View(First).ContainerNote.ForeColor, 0x404040);
}

TEST_F(ConProperties, ASchemeGivesWhatItHolds) {
    Scheme("Sea", "[ContainerFor]\r\n66\r\n[ContainerTextFor]\r\n77\r\n");
    const auto ink = View(First).FrameForeColor;
    frmConProperties dialog(Main);
    dialog.CboColors_Click(3);
    EXPECT_EQ(dialog.picBackColor, 66);
    EXPECT_EQ(dialog.picForeText, 77);
    EXPECT_EQ(dialog.picFore, ink) << "it says nothing of this one";
}

TEST_F(ConProperties, TheLineBetweenAndAVanishedSchemeChangeNothing) {
    Scheme("Sea", "[ContainerFor]\r\n66\r\n");
    const auto before = View(First).FrameBackColor;
    frmConProperties dialog(Main);
    dialog.CboColors_Click(2);
    dialog.CboColors_Click(-1);
    dialog.CboColors_Click(99);
    (void)computer.Files.Remove(Main.SettingsFolder + "/Skin/Colors/Sea.qmc");
    dialog.CboColors_Click(3);
    EXPECT_EQ(View(First).FrameBackColor, before);
}

TEST_F(ConProperties, ColorsFromTheIconAreItsMeanWithoutWhiteAndTheContrastOfThat) {
    View(First).IconFile = "/icons/ship.png";
    computer.Images.Pixels["/icons/ship.png"] = {2, 1, {0xFFFFFF, Rgb(40, 80, 120)}};
    frmConProperties dialog(Main);
    dialog.CboColors_Click(1);
    EXPECT_EQ(dialog.picBackColor, Rgb(40, 80, 120));
    EXPECT_EQ(dialog.picFore, ContrastColor(Rgb(40, 80, 120)));
}

TEST_F(ConProperties, AnIconThatCannotBeReadChangesNoColor) {
    const auto before = View(First).FrameBackColor;
    frmConProperties dialog(Main);
    dialog.CboColors_Click(1);
    EXPECT_EQ(dialog.picBackColor, before);
}

TEST_F(ConProperties, AWhiteIconGivesWhite) {
    View(First).IconFile = "/icons/snow.png";
    computer.Images.Pixels["/icons/snow.png"] = {1, 1, {0xFFFFFF}};
    frmConProperties dialog(Main);
    dialog.CboColors_Click(1);
    EXPECT_EQ(dialog.picBackColor, 0xFFFFFF);
}

// ---- the icon

TEST_F(ConProperties, TheFileDialogForTheIconSaysWhatItIsFor) {
    computer.Dialogs.Files = {std::nullopt};
    frmConProperties dialog(Main);
    dialog.PicJumpToIcon_Click();
    EXPECT_EQ(computer.Dialogs.FileQuestions.back().Title, "Select Container Icon");
    EXPECT_EQ(computer.Dialogs.FileQuestions.back().FilterCaption, "All Files (*.*)");
}

TEST_F(ConProperties, AnAcceptedIconIsSaved) {
    Picture("/home/me/ship.png");
    computer.Dialogs.Files = {"/home/me/ship.png"};
    Open([&](frmConProperties& dialog) {
        dialog.PicJumpToIcon_Click();
        return Ok(dialog);
    });
    EXPECT_NE(Recovery("0.REC").find("[Icon]\r\n/home/me/ship.png\r\n"), std::string::npos);
}

// ---- several

struct SeveralContainers : ConProperties {
    int Second = New({6000, 1500, 3000, 3000}, "Play");
    void SetUp() override {
        ConProperties::SetUp();
        SelectContainer(Main, First);
        SelectContainer(Main, Second);
        SetColors(Main, First, 0x111111);
        SetColors(Main, Second, 0x222222);
        Main.Group.CurrentContainer = Second;
    }
};

TEST_F(SeveralContainers, TheTitleCountsThemAndNoNameIsAskedFor) {
    Open([&](frmConProperties& dialog) {
        EXPECT_EQ(dialog.Title(), "2 Containers Selected");
        EXPECT_TRUE(dialog.IsForSeveral());
        EXPECT_EQ(dialog.picBackColor, 0x222222) << "the one that was pressed shows its colours";
        dialog.txtContainerName.clear();
        return Ok(dialog);
    });
    EXPECT_EQ(View(First).ContainerLabel.Caption, "Work");
    EXPECT_EQ(View(Second).ContainerLabel.Caption, "Play");
}

TEST_F(SeveralContainers, APickedColorGoesToEachAndTheOthersStayTheirOwn) {
    computer.Dialogs.Colors = {0x445566};
    Open([&](frmConProperties& dialog) {
        dialog.PickColor(PickedColor::Fore);
        return Ok(dialog);
    });
    EXPECT_EQ(View(First).FrameForeColor, 0x445566);
    EXPECT_EQ(View(Second).FrameForeColor, 0x445566);
    EXPECT_EQ(View(First).FrameBackColor, 0x111111);
    EXPECT_EQ(View(Second).FrameBackColor, 0x222222);
}

TEST_F(SeveralContainers, ColorsFromIconsGiveEachItsOwn) {
    View(First).IconFile = "/icons/a";
    View(Second).IconFile = "/icons/b";
    computer.Images.Pixels["/icons/a"] = {1, 1, {Rgb(1, 2, 3)}};
    computer.Images.Pixels["/icons/b"] = {1, 1, {Rgb(4, 5, 6)}};
    frmConProperties dialog(Main);
    dialog.CboColors_Click(1);
    EXPECT_EQ(computer.Questions.Boxes.back().Text, "Match each selected container color with its icon?");
    EXPECT_EQ(computer.Questions.Boxes.back().Title, "Set Colors");
    EXPECT_EQ(View(First).FrameBackColor, Rgb(1, 2, 3));
    EXPECT_EQ(View(Second).FrameBackColor, Rgb(4, 5, 6));
}

TEST_F(SeveralContainers, NoToTheQuestionLeavesAllColors) {
    computer.Questions = fake::FakeQuestions();
    computer.Questions.Answer(AnswerNo);
    computer.Images.Pixels[View(First).IconFile] = {1, 1, {Rgb(1, 2, 3)}};
    frmConProperties dialog(Main);
    dialog.CboColors_Click(1);
    EXPECT_EQ(View(First).FrameBackColor, 0x111111);
}

TEST_F(SeveralContainers, CancelGivesEachItsOwnBack) {
    computer.Dialogs.Colors = {0x445566};
    Open([&](frmConProperties& dialog) {
        dialog.PickColor(PickedColor::Back);
        return false;
    });
    EXPECT_EQ(View(First).FrameBackColor, 0x111111);
    EXPECT_EQ(View(Second).FrameBackColor, 0x222222);
}

TEST_F(SeveralContainers, OneThatDiesMeanwhileIsLeftOut) {
    computer.Dialogs.Colors = {0x445566};
    Open([&](frmConProperties& dialog) {
        DeleteContainer(Main, Second, false);
        dialog.PickColor(PickedColor::Back);
        return Ok(dialog);
    });
    EXPECT_EQ(View(First).FrameBackColor, 0x445566);
    EXPECT_FALSE(IsLive(Main.Containers, Second));
}

TEST_F(ConProperties, AContainerThatDiesBehindItsDialogIsNotBroughtBack) {
    Open([&](frmConProperties& dialog) {
        DeleteContainer(Main, First, false);
        dialog.txtContainerName = "Ghost";
        return Ok(dialog);
    });
    EXPECT_FALSE(IsLive(Main.Containers, First));
}

// The exit saves what was there before the dialog, not what it tried out.
TEST_F(ConProperties, AProgramToldToEndBehindTheDialogSavesTheFormerColors) {
    const auto before = View(First).FrameBackColor;
    computer.Dialogs.Colors = {0x112233};
    Open([&](frmConProperties& dialog) {
        dialog.PickColor(PickedColor::Back);
        SessionEnd(Main);
        return false;
    });
    EXPECT_EQ(View(First).FrameBackColor, before);
}

} // namespace
} // namespace quill
