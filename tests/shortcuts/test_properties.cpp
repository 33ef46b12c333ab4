#include "shortcuts/properties.h"

#include "containers/selection.h"
#include "containers/workspace_fixture.h"
#include "dock/workspace_lock.h"
#include "shortcuts/launch.h"

namespace quill {
namespace {

using Scene = std::function<bool(frmEditLink&)>;

struct Properties : test::WorkspaceFixture {
    Properties() {
        for (const char* name : {"one", "two", "three"})
            links.push_back(Named(OnWorkspace(), name, 1000.0F * static_cast<float>(links.size() + 1)));
        Main.Links.CurrentShortcut = links[0];
    }
    void TearDown() override {
        EXPECT_EQ(Person().Unexpected, 0)
            << (Person().UnexpectedTexts.empty() ? "" : Person().UnexpectedTexts.front());
        EXPECT_TRUE(Person().AllAnswered());
        EXPECT_EQ(computer.Dialogs.Unexpected, 0);
        EXPECT_FALSE(Main.Links.PropertiesOpen);
        EXPECT_EQ(Main.Dock.DialogPauses, 0);
    }
    int Named(Parent in, const std::string& name, float top) {
        const int link = NewLink(in, {2000, top}, "/usr/bin/" + name);
        Main.Link(link).FullCaption = Main.LinkView(link).lblShortcut.Caption = name;
        SetNewLinkHeight(Main, link);
        return link;
    }
    fake::FakeQuestions& Person() { return computer.Questions; }
    void Select(const std::vector<int>& some) {
        UnselectLinks(Main);
        for (const int link : some) SetSelection(Main, link, true);
    }
    void Open(const frmEditLink::Opening& opening, const Scene& scene) {
        computer.Dialogs.OnEditLink = scene;
        ShowShortcutProperties(Main, opening);
        computer.Dialogs.OnEditLink = nullptr;
    }
    void Edit(int link, const Scene& scene) { Open({.Index = link}, scene); }
    static bool Ok(frmEditLink& dialog) {
        EXPECT_EQ(dialog.cmdEditOK_Click(), "");
        return true;
    }
    static bool SaveOpen(frmEditLink& dialog) {
        EXPECT_EQ(dialog.cmdEditSaveOpen_Click(), "");
        return true;
    }
    static Scene Change(const std::function<void(frmEditLink&)>& change) {
        return [change](frmEditLink& dialog) {
            change(dialog);
            return Ok(dialog);
        };
    }
    std::string Started() {
        std::string text;
        for (const auto& request : computer.Shell.Launches) text += fake::Words(request) + "\n";
        return text;
    }
    std::string Saved() {
        auto file = computer.Files.Read(std::string(fake::SettingsFolder) + "/Quillmere.REC", 1 << 20);
        return file ? file.Value() : "(none)";
    }
    // The record in one line, as far as the dialog knows it.
    std::string Words(int link) {
        const auto& it = Main.Link(link);
        std::string text = it.FullCaption + " | " + it.Path + " | " + it.Parameters + " | " + it.StartIn +
                           " | " + std::to_string(it.RunIn) + " | " + it.Icon + " | " + it.Tags + " | " +
                           it.Tip + " |";
        for (const bool flag :
             {it.PromptParameters, it.Admin, it.Confirm, it.Command, it.TagStart, it.FontBold})
            text += flag ? " 1" : " 0";
        return text + " | " + std::to_string(it.SpeedLaunch) + " " + std::to_string(it.FontSize) + " " +
               std::to_string(it.Color);
    }
    // Every field other than it begins.
    static void FillAll(frmEditLink& dialog) {
        dialog.txtLabel = "Editor";
        dialog.txtPath = "/opt/editor";
        dialog.txtParam = "--new 'a b'";
        dialog.txtStartIn = "/home/user";
        dialog.cboRun = 2;
        dialog.txtIcon = "/icons/pen.png";
        dialog.txtTags = "work, Text";
        dialog.txtTip = "the editor";
        dialog.chkPromptForParameters = dialog.chkAdminPriv = dialog.chkConfirm = dialog.chkTagStart = true;
        dialog.cboSpeedLaunch = 4;
        dialog.ChkBold = true;
        dialog.txtSize = "14";
        dialog.PicLinkColor = 0x112233;
    }
    std::vector<int> links;
};

constexpr const char* filled =
    "Editor | /opt/editor | --new 'a b' | /home/user | 3 | /icons/pen.png | work, Text | "
    "the editor | 1 1 1 0 1 1 | 4 14 1122867";

// ---- one shortcut

TEST_F(Properties, TheDialogShowsWhatTheRecordSays) {
    Edit(links[0], Change(&FillAll));
    Edit(links[0], [](frmEditLink& dialog) {
        EXPECT_EQ(dialog.txtLabel, "Editor");
        EXPECT_EQ(dialog.txtPath, "/opt/editor");
        EXPECT_EQ(dialog.txtParam, "--new 'a b'");
        EXPECT_EQ(dialog.txtStartIn, "/home/user");
        EXPECT_EQ(dialog.cboRun, 2);
        EXPECT_EQ(dialog.txtIcon, "/icons/pen.png");
        EXPECT_EQ(dialog.txtTags, "work, Text");
        EXPECT_EQ(dialog.txtTip, "the editor");
        EXPECT_TRUE(dialog.chkPromptForParameters && dialog.chkAdminPriv && dialog.chkConfirm &&
                    dialog.chkTagStart);
        EXPECT_FALSE(dialog.ChkCommand);
        EXPECT_EQ(dialog.cboSpeedLaunch, 4);
        EXPECT_TRUE(dialog.ChkBold);
        EXPECT_EQ(dialog.txtSize, "14");
        EXPECT_EQ(dialog.ShownColor(), 0x112233);
        EXPECT_EQ(dialog.Caption(), "Shortcut Properties");
        EXPECT_EQ(dialog.OkCaption(), "&OK");
        EXPECT_EQ(dialog.lblError(), "");
        EXPECT_FALSE(dialog.IsForSeveral());
        return false;
    });
}

TEST_F(Properties, OkWritesEveryFieldAndSaves) {
    Edit(links[0], Change(&FillAll));
    EXPECT_EQ(Words(links[0]), filled);
    EXPECT_NE(Saved().find("[LinkLabel]\r\nEditor\r\n"), std::string::npos) << Saved();
    EXPECT_NE(Saved().find("[StartIn]\r\n/home/user\r\n"), std::string::npos);
    EXPECT_NE(Saved().find("[SpeedLaunch]\r\n4\r\n"), std::string::npos);
}

TEST_F(Properties, CancelWritesNothing) {
    const auto before = Words(links[0]);
    Edit(links[0], [](frmEditLink& dialog) {
        FillAll(dialog);
        return false;
    });
    EXPECT_EQ(Words(links[0]), before);
    EXPECT_EQ(Saved(), "(none)");
}

TEST_F(Properties, CancelAsksNothingAboutATakenDigitAndTheOtherKeepsIt) {
    Main.Link(links[1]).SpeedLaunch = 4;
    Edit(links[0], [](frmEditLink& dialog) {
        dialog.cboSpeedLaunch = 4;
        return false;
    });
    EXPECT_TRUE(Person().Boxes.empty());
    EXPECT_EQ(Main.Link(links[1]).SpeedLaunch, 4);
    EXPECT_EQ(Main.Link(links[0]).SpeedLaunch, 0);
}

TEST_F(Properties, ANewNameIsSeenMeasuredAndTold) {
    const auto revision = Main.Links.CaptionsRevision;
    Main.Links.Recent = {{"one", links[0]}};
    const float width = Main.LinkView(links[0]).lblShortcut.Place.Width;
    Edit(links[0], Change([](frmEditLink& dialog) { dialog.txtLabel = "  a much longer name "; }));
    const auto& label = Main.LinkView(links[0]).lblShortcut;
    EXPECT_EQ(label.Caption, "a much longer name");
    EXPECT_GT(label.Place.Width, width);
    EXPECT_EQ(Main.LinkView(links[0]).picShortcut, IconPlace(Main, links[0]));
    EXPECT_GT(Main.Links.CaptionsRevision, revision) << "the launcher finds it by its new name";
    EXPECT_EQ(Main.Links.Recent[0].Caption, "a much longer name");
}

TEST_F(Properties, WhatIsNotRenamedIsNotCountedAsACaption) {
    const auto revision = Main.Links.CaptionsRevision;
    Edit(links[0], Change([](frmEditLink& dialog) { dialog.txtTip = "tip"; }));
    EXPECT_EQ(Main.Links.CaptionsRevision, revision);
}

struct NameRow {
    const char* Path;
    int Type;
    const char* Command; // of a command
    const char* Name;
};

TEST_F(Properties, WithoutANameItIsThatOfTheTarget) {
    for (const auto& row : {
             NameRow{"/usr/bin/sample.exe", TypeFile, nullptr, "sample.exe"},
             NameRow{"/home/user/Letter.lnk", TypeFile, nullptr, "Letter"},
             NameRow{"@/tools/paint", TypeFile, nullptr, "paint"},
             NameRow{"https://example.org/page", TypeUrl, nullptr, "https://example.org/page"},
             NameRow{"", TypeFile, "ls | sort", "ls | sort"},
         }) {
        auto& record = Main.Link(links[0]);
        record.FullCaption = "before";
        record.Path = row.Path;
        record.ShortcutType = static_cast<std::int16_t>(row.Type);
        record.Command = row.Command != nullptr;
        record.Parameters = row.Command != nullptr ? row.Command : "";
        Edit(links[0], Change([](frmEditLink& dialog) { dialog.txtLabel = "  "; }));
        const std::string name = row.Name;
        EXPECT_EQ(Main.Link(links[0]).FullCaption, name == "sample.exe" ? "sample" : name) << row.Path;
    }
}

TEST_F(Properties, ANameThatIsGivenUpTogetherWithTheTargetIsThatOfTheNewTarget) {
    Edit(links[0], Change([](frmEditLink& dialog) {
             dialog.txtLabel = "";
             dialog.txtPath = "/opt/other";
         }));
    EXPECT_EQ(Main.Link(links[0]).FullCaption, "other");
}

TEST_F(Properties, WithNothingToNameItByItKeepsItsName) {
    Main.Link(links[0]).Path.clear();
    Edit(links[0], Change([](frmEditLink& dialog) { dialog.txtLabel = ""; }));
    EXPECT_EQ(Main.Link(links[0]).FullCaption, "one");
}

struct SizeRow {
    const char* Text;
    int Size;
};

TEST_F(Properties, AnInvalidFontSizeKeepsTheOldValue) {
    for (const auto& row : {SizeRow{"24", 24}, SizeRow{"12,4", 12}, SizeRow{"1", 1}, SizeRow{"200", 200},
                            SizeRow{"201", 10}, SizeRow{"0", 10}, SizeRow{"-3", 10}, SizeRow{"", 10},
                            SizeRow{"big", 10}, SizeRow{"99999999999999", 10}}) {
        Main.Link(links[0]).FontSize = 10;
        Edit(links[0], Change([&](frmEditLink& dialog) {
                 dialog.txtSize = row.Text;
                 dialog.txtTip = row.Text;
             }));
        EXPECT_EQ(Main.Link(links[0]).FontSize, row.Size) << row.Text;
        EXPECT_EQ(Main.Link(links[0]).Tip, row.Text) << "all else is written";
    }
}

TEST_F(Properties, ALargerFontMakesALargerLabel) {
    const auto before = Main.LinkView(links[0]).lblShortcut.Place;
    Edit(links[0], Change([](frmEditLink& dialog) { dialog.txtSize = "30"; }));
    const auto& label = Main.LinkView(links[0]).lblShortcut;
    EXPECT_EQ(label.FontSize, 30);
    EXPECT_GT(label.Place.Height, before.Height);
}

TEST_F(Properties, ASelectedOneHasAPlateInItsNewColour) {
    Edit(links[0], Change([](frmEditLink& dialog) { dialog.PicLinkColor = 0x00FF00; }));
    EXPECT_EQ(Main.LinkView(links[0]).lblShortcut.BackColor, 0x00FF00);
    UnselectLinks(Main);
    EXPECT_EQ(Main.LinkView(links[0]).lblShortcut.ForeColor, 0x00FF00);
}

struct RunRow {
    int RunIn, Entry;
};

TEST_F(Properties, TheWindowStateIsItsEntryAndOneWithoutAnEntryIsKept) {
    for (const auto& row : {RunRow{1, 0}, RunRow{2, 1}, RunRow{3, 2}, RunRow{7, -1}, RunRow{0, -1}}) {
        Main.Link(links[0]).RunIn = static_cast<std::int16_t>(row.RunIn);
        Edit(links[0], Change([&](frmEditLink& dialog) {
                 EXPECT_EQ(dialog.cboRun, row.Entry);
                 dialog.txtTip = "x";
             }));
        EXPECT_EQ(Main.Link(links[0]).RunIn, row.RunIn);
    }
}

TEST_F(Properties, ANewTargetOrIconIsDrawnAnewAndAnythingElseIsNot) {
    const auto redrawn = [&](const std::function<void(frmEditLink&)>& change) {
        Main.LinkView(links[0]).IconDrawn = true;
        Edit(links[0], Change(change));
        return !Main.LinkView(links[0]).IconDrawn;
    };
    EXPECT_TRUE(redrawn([](frmEditLink& dialog) { dialog.txtPath = "/opt/a"; }));
    EXPECT_TRUE(redrawn([](frmEditLink& dialog) { dialog.txtIcon = "/opt/a.png"; }));
    EXPECT_FALSE(redrawn([](frmEditLink& dialog) { dialog.txtTip = "x"; }));
}

TEST_F(Properties, TheDriveMarkerInThePathIsKept) {
    Main.Link(links[0]).Path = "@/tools/paint";
    Edit(links[0], Change([](frmEditLink& dialog) {
             EXPECT_EQ(dialog.txtPath, "@/tools/paint");
             EXPECT_NE(dialog.lblRelativePath(), "");
             dialog.txtPath = "@/tools/draw";
             dialog.txtIcon = "@/tools/draw.png";
         }));
    EXPECT_EQ(Main.Link(links[0]).Path, "@/tools/draw");
    EXPECT_EQ(Main.Link(links[0]).Icon, "@/tools/draw.png");
}

TEST_F(Properties, TheMarkerIsExplainedOnlyWhereItMeansSomething) {
    frmEditLink dialog(Main, {.Index = links[0]});
    EXPECT_EQ(dialog.lblRelativePath(), "");
    Main.PortableMode = true;
    EXPECT_NE(dialog.lblRelativePath(), "");
}

struct TypeRow {
    int Before;
    const char* Old;
    const char* New;
    int After;
};

TEST_F(Properties, ATargetThatIsAnAddressNowIsOneAndTheOtherWayRound) {
    for (const auto& row : {
             TypeRow{TypeFile, "/usr/bin/one", "https://example.org/", TypeUrl},
             TypeRow{TypeUrl, "https://example.org/", "/usr/bin/one", TypeFile},
             TypeRow{TypeUrl, "steam://run/1", "steam://run/2", TypeUrl},
             TypeRow{TypeFile, "/usr/bin/one", "/usr/bin/two", TypeFile},
         }) {
        Main.Link(links[0]).ShortcutType = static_cast<std::int16_t>(row.Before);
        Main.Link(links[0]).Path = row.Old;
        Edit(links[0], Change([&](frmEditLink& dialog) { dialog.txtPath = row.New; }));
        EXPECT_EQ(Main.Link(links[0]).ShortcutType, row.After) << row.New;
        EXPECT_EQ(Main.Link(links[0]).Path, row.New);
    }
}

const char* const hostilePaths[] = {
    "/tmp/line\nend",
    "/tmp/blank at the end ",
    "/tmp/\xff\xfe",
    "/tmp/100%25",
    "/tmp/-rf",
    "/tmp/\"quoted\" 'twice'",
    "/tmp/\xe2\x80\xae"
    "gnp.exe",
};

TEST_F(Properties, NoPathIsHarmedByOkWhateverItsNameHolds) {
    for (const std::string path : hostilePaths) {
        auto& record = Main.Link(links[0]);
        record.Path = record.StartIn = record.Icon = path;
        Edit(links[0], Change([](frmEditLink& dialog) { dialog.txtTip += "x"; }));
        EXPECT_EQ(Main.Link(links[0]).Path, path);
        // Touched, what the line shows is read back.
        Edit(links[0], Change([](frmEditLink& dialog) {
                 EXPECT_EQ(dialog.txtPath.find('\n'), std::string::npos);
                 for (const auto field : {LinkField::Path, LinkField::StartIn, LinkField::Icon})
                     dialog.Touch(field);
             }));
        EXPECT_EQ(Main.Link(links[0]).Path, path);
        EXPECT_EQ(Main.Link(links[0]).StartIn, path);
        EXPECT_EQ(Main.Link(links[0]).Icon, path);
    }
}

TEST_F(Properties, ANameWithLineEndsIsOneLine) {
    Edit(links[0], Change([](frmEditLink& dialog) { dialog.txtLabel = "two\r\nlines <b>bold</b>"; }));
    EXPECT_EQ(Main.Link(links[0]).FullCaption, "two  lines <b>bold</b>");
}

// ---- opening

TEST_F(Properties, ItOpensForTheCurrentShortcutAndSelectsIt) {
    Main.Links.CurrentShortcut = links[1];
    Open({}, [&](frmEditLink& dialog) {
        EXPECT_EQ(dialog.txtLabel, "two");
        EXPECT_TRUE(Main.Link(links[1]).Selected);
        EXPECT_EQ(Main.Dock.DialogPauses, 1) << "nothing collapses under it";
        return false;
    });
}

TEST_F(Properties, AShortcutThatIsNotPartOfTheSelectionReplacesIt) {
    Select({links[1], links[2]});
    Edit(links[0], [&](frmEditLink& dialog) {
        EXPECT_FALSE(dialog.IsForSeveral());
        EXPECT_EQ(dialog.txtLabel, "one");
        return false;
    });
    EXPECT_EQ(Main.Links.SelectedShortcuts, std::vector<int>{links[0]});
}

TEST_F(Properties, ASecondOpeningWhileOneIsOpenIsIgnored) {
    int shown = 0;
    Edit(links[0], [&](frmEditLink&) {
        ++shown;
        ShowShortcutProperties(Main, {.Index = links[1], .ErrorText = "gone"});
        return false;
    });
    EXPECT_EQ(shown, 1);
    Edit(links[1], [&](frmEditLink&) {
        ++shown;
        return false;
    });
    EXPECT_EQ(shown, 2) << "afterwards it opens again";
}

TEST_F(Properties, WithoutAShortcutNothingOpens) {
    Main.Links.CurrentShortcut = -1;
    const Scene never = [](frmEditLink&) {
        ADD_FAILURE() << "it opened";
        return false;
    };
    Open({}, never);
    Open({.Index = 4000}, never);
    Main.IsExiting = true;
    Open({.Index = links[0]}, never);
    Main.IsExiting = false;
}

// ---- a failed start

TEST_F(Properties, AfterAFailedStartTheErrorStandsInTheTitleAndInTheDialog) {
    Open({.Index = links[0], .ErrorText = "No such file or directory"}, [](frmEditLink& dialog) {
        EXPECT_EQ(dialog.Caption(), "Error: No such file or directory");
        EXPECT_EQ(dialog.lblError(), "No such file or directory");
        dialog.txtPath = "/opt/here";
        return Ok(dialog);
    });
    EXPECT_EQ(Main.Link(links[0]).Path, "/opt/here");
}

TEST_F(Properties, AfterAFailedStartOnlyThatShortcutIsWrittenAndTheSelectionStays) {
    Select({links[1], links[2]});
    Open({.Index = links[0], .ErrorText = "gone"}, Change([](frmEditLink& dialog) {
             EXPECT_FALSE(dialog.IsForSeveral());
             dialog.txtPath = "/opt/here";
             dialog.ChkBold = dialog.chkApplyStyle = true;
         }));
    EXPECT_EQ(Main.Links.SelectedShortcuts, (std::vector<int>{links[1], links[2]}));
    EXPECT_EQ(Main.Link(links[0]).Path, "/opt/here");
    EXPECT_TRUE(Main.Link(links[0]).FontBold);
    EXPECT_EQ(Main.Link(links[1]).Path, "/usr/bin/two");
    EXPECT_FALSE(Main.Link(links[1]).FontBold);
}

TEST_F(Properties, AFailedOneAmongSeveralSelectedIsWrittenAlone) {
    Select(links);
    Open({.Index = links[1], .ErrorText = "gone"},
         Change([](frmEditLink& dialog) { dialog.txtTip = "mended"; }));
    EXPECT_EQ(Main.Link(links[1]).Tip, "mended");
    EXPECT_EQ(Main.Link(links[0]).Tip, "");
}

// ---- several

TEST_F(Properties, SeveralShowTheirMarkersAndWhatTheFirstSelectedOneHas) {
    Main.Link(links[1]).Parameters = "-v";
    Main.Link(links[1]).Tags = "work";
    Select({links[1], links[0]});
    Edit(links[0], [](frmEditLink& dialog) {
        EXPECT_TRUE(dialog.IsForSeveral());
        EXPECT_EQ(dialog.txtLabel, "[Multiple Shortcuts]");
        EXPECT_EQ(dialog.txtTags, "[Tags]");
        EXPECT_EQ(dialog.txtPath, "/usr/bin/two");
        EXPECT_EQ(dialog.txtParam, "-v");
        EXPECT_TRUE(dialog.IsMixed(LinkField::Path));
        EXPECT_FALSE(dialog.IsMixed(LinkField::Admin));
        return false;
    });
}

TEST_F(Properties, TagsThatAllOfThemHaveAreShown) {
    for (const int link : links) Main.Link(link).Tags = "work";
    Select(links);
    Edit(links[0], [](frmEditLink& dialog) {
        EXPECT_EQ(dialog.txtTags, "work");
        return false;
    });
}

TEST_F(Properties, SeveralThatAreLeftAloneStayAsTheyAre) {
    Main.Link(links[1]).Tags = "home";
    Main.Link(links[2]).Confirm = true;
    Main.Link(links[2]).RunIn = 3;
    Main.Link(links[1]).SpeedLaunch = 2;
    std::vector<std::string> before;
    for (const int link : links) before.push_back(Words(link));
    Select(links);
    Edit(links[0], [](frmEditLink& dialog) { return Ok(dialog); });
    for (std::size_t at = 0; at < links.size(); ++at) EXPECT_EQ(Words(links[at]), before[at]);
}

TEST_F(Properties, OnlyWhatWasChangedIsWrittenToEachOfSeveral) {
    Main.Link(links[2]).Confirm = true;
    Select(links);
    Edit(links[0], Change([](frmEditLink& dialog) {
             dialog.txtParam = "-x";
             dialog.chkAdminPriv = true;
         }));
    for (const int link : links) {
        EXPECT_EQ(Main.Link(link).Parameters, "-x");
        EXPECT_TRUE(Main.Link(link).Admin);
    }
    EXPECT_EQ(Main.Link(links[1]).Path, "/usr/bin/two");
    EXPECT_FALSE(Main.Link(links[1]).Confirm);
    EXPECT_TRUE(Main.Link(links[2]).Confirm);
}

TEST_F(Properties, TypingANameRenamesAllOfThemToIt) {
    Select(links);
    Edit(links[0], Change([](frmEditLink& dialog) { dialog.txtLabel = "Tool"; }));
    for (const int link : links) EXPECT_EQ(Main.LinkView(link).lblShortcut.Caption, "Tool");
}

TEST_F(Properties, TheMarkersAreNoNameAndNoTags) {
    Main.Link(links[1]).Tags = "home";
    Select(links);
    Edit(links[0], Change([](frmEditLink& dialog) {
             dialog.Touch(LinkField::Label);
             dialog.Touch(LinkField::Tags);
             dialog.txtLabel = " [Multiple Shortcuts] ";
         }));
    EXPECT_EQ(Main.Link(links[0]).FullCaption, "one");
    EXPECT_EQ(Main.Link(links[0]).Tags, "");
    EXPECT_EQ(Main.Link(links[1]).Tags, "home");
}

TEST_F(Properties, AnEmptiedNameOfSeveralIsThatOfEachTarget) {
    for (const int link : links) Main.Link(link).FullCaption = "x";
    Select(links);
    Edit(links[0], Change([](frmEditLink& dialog) { dialog.txtLabel = ""; }));
    EXPECT_EQ(Main.Link(links[0]).FullCaption + Main.Link(links[1]).FullCaption, "onetwo");
}

TEST_F(Properties, ATagThatIsAddedToDifferentOnesJoinsThoseOfEach) {
    Main.Link(links[1]).Tags = "home,garden";
    Select(links);
    Edit(links[0], Change([](frmEditLink& dialog) {
             dialog.cboTags_Click(2);
             EXPECT_EQ(dialog.txtTags, "[Tags],garden");
         }));
    EXPECT_EQ(Main.Link(links[0]).Tags, "garden");
    EXPECT_EQ(Main.Link(links[1]).Tags, "home,garden,garden");
}

TEST_F(Properties, TheDigitGoesToTheFirstAlone) {
    Select({links[1], links[0]});
    Edit(links[0], Change([](frmEditLink& dialog) { dialog.cboSpeedLaunch = 5; }));
    EXPECT_EQ(Main.Link(links[1]).SpeedLaunch, 5);
    EXPECT_EQ(Main.Link(links[0]).SpeedLaunch, 0);
}

TEST_F(Properties, AFieldThatWasTouchedIsWrittenToAllAlthoughTheFirstHasItAlready) {
    Main.Link(links[0]).Confirm = true;
    Select(links);
    Edit(links[0], Change([](frmEditLink& dialog) {
             EXPECT_TRUE(dialog.chkConfirm);
             EXPECT_TRUE(dialog.IsMixed(LinkField::Confirm));
             dialog.Touch(LinkField::Confirm);
         }));
    for (const int link : links) EXPECT_TRUE(Main.Link(link).Confirm);
}

TEST_F(Properties, TheStyleGoesToAllOfThemOnlyWhenThatIsTicked) {
    for (const bool toAll : {false, true}) {
        for (const int link : links) Main.Link(link).FontBold = false;
        Main.Link(links[1]).FontSize = 20;
        Select(links);
        Edit(links[0], Change([&](frmEditLink& dialog) {
                 dialog.ChkBold = true;
                 dialog.chkApplyStyle = toAll;
             }));
        EXPECT_TRUE(Main.Link(links[0]).FontBold);
        EXPECT_EQ(Main.Link(links[1]).FontBold, toAll);
        EXPECT_EQ(Main.Link(links[1]).FontSize, toAll ? 10 : 20);
        EXPECT_EQ(Main.LinkView(links[1]).lblShortcut.FontBold, toAll);
    }
}

TEST_F(Properties, OneThatDiesMeanwhileIsLeftOutAndTheOthersAreWritten) {
    Select(links);
    Edit(links[0], Change([&](frmEditLink& dialog) {
             DeleteShortcut(Main, links[0]);
             DeleteShortcut(Main, links[1]);
             dialog.txtTip = "kept";
         }));
    EXPECT_EQ(Main.Link(links[2]).Tip, "kept");
    EXPECT_EQ(Main.Link(links[2]).FullCaption, "three") << "the marker is still no name";
}

// ---- a command

TEST_F(Properties, ACommandHasNoTargetAndItsFieldHasAnotherName) {
    Edit(links[0], Change([](frmEditLink& dialog) {
             EXPECT_EQ(dialog.ParamCaption(), "Parameters:");
             EXPECT_EQ(dialog.ParamTip(),
                       "Enter any additional program parameters. You can override this field when "
                       "using the keyboard to launch shortcuts.");
             EXPECT_EQ(dialog.ParamFieldTip(), "Additional program parameters");
             dialog.ChkCommand = true;
             dialog.ChkCommand_Click();
             EXPECT_EQ(dialog.txtPath, "");
             EXPECT_EQ(dialog.ParamCaption(), "Command:");
             EXPECT_EQ(dialog.ParamTip(),
                       "Enter a command to start (command prompt). Use && to separate multiple commands.");
             EXPECT_EQ(dialog.ParamFieldTip(), "Enter a command to start (command prompt)");
             dialog.txtParam = "ls | sort";
         }));
    EXPECT_TRUE(Main.Link(links[0]).Command);
    EXPECT_EQ(Main.Link(links[0]).Path, "");
    EXPECT_EQ(Main.Link(links[0]).Parameters, "ls | sort");
    EXPECT_EQ(Main.Link(links[0]).ShortcutType, TypeFile);
}

TEST_F(Properties, ACommandThatIsThoughtBetterOfHasItsTargetAgain) {
    Edit(links[0], Change([](frmEditLink& dialog) {
             for (const bool command : {true, true, false}) {
                 dialog.ChkCommand = command;
                 dialog.ChkCommand_Click();
             }
             EXPECT_EQ(dialog.txtPath, "/usr/bin/one");
         }));
    EXPECT_EQ(Main.Link(links[0]).Path, "/usr/bin/one");
    EXPECT_FALSE(Main.Link(links[0]).Command);
}

TEST_F(Properties, SeveralCommandsKeepTheirTargetsEach) {
    Select(links);
    Edit(links[0], Change([](frmEditLink& dialog) {
             dialog.ChkCommand = true;
             dialog.ChkCommand_Click();
         }));
    for (const int link : links) EXPECT_TRUE(Main.Link(link).Command);
    EXPECT_EQ(Main.Link(links[1]).Path, "/usr/bin/two");
}

TEST_F(Properties, ACommandInTheMakingIsTickedAtOnceAlsoWhenOthersAreSelected) {
    Select({links[0], links[1]});
    Open({.Index = links[0], .Command = true}, Change([](frmEditLink& dialog) {
             EXPECT_TRUE(dialog.ChkCommand);
             EXPECT_EQ(dialog.ParamCaption(), "Command:");
             dialog.txtParam = "true";
         }));
    EXPECT_TRUE(Main.Link(links[0]).Command);
    EXPECT_FALSE(Main.Link(links[1]).Command);
}

TEST_F(Properties, AnAddressThatBecomesACommandIsNoAddressAnyMore) {
    const int link = links[0];
    Main.Link(link).ShortcutType = TypeUrl;
    Main.Link(link).Path = "https://example.org";
    Edit(link, Change([](frmEditLink& dialog) {
             dialog.ChkCommand = true;
             dialog.ChkCommand_Click();
         }));
    EXPECT_EQ(Main.Link(link).ShortcutType, TypeFile);
}

// ---- buttons

TEST_F(Properties, BrowseOpensInTheTargetsFolderAndTakesWhatIsChosen) {
    computer.Dialogs.Files = {"/opt/new\xff", std::nullopt};
    Edit(links[0], Change([](frmEditLink& dialog) {
             dialog.CmdBrowse_Click();
             const auto chosen = dialog.txtPath;
             EXPECT_EQ(chosen, "file:///opt/new%FF");
             dialog.CmdBrowse_Click();
             EXPECT_EQ(dialog.txtPath, chosen) << "a cancelled choice changes nothing";
         }));
    const auto& question = computer.Dialogs.FileQuestions.front();
    EXPECT_EQ(question.Title, "Open");
    EXPECT_EQ(question.FilterCaption, "All Files (*.*)");
    EXPECT_EQ(question.Folder, "/usr/bin");
    EXPECT_EQ(Main.Link(links[0]).Path, "/opt/new\xff");
}

TEST_F(Properties, TheOtherFolderButtonsTakeAnIconAndAStartFolder) {
    computer.Dialogs.Files = {"/icons/a.png"};
    computer.Dialogs.Folders = {"/home/user/work"};
    Edit(links[0], Change([](frmEditLink& dialog) {
             dialog.cmdChooseFileIcon_Click();
             dialog.cmdBrowseStartIn_Click();
         }));
    EXPECT_EQ(computer.Dialogs.FileQuestions[1].Title, "Start in:");
    EXPECT_EQ(Main.Link(links[0]).Icon, "/icons/a.png");
    EXPECT_EQ(Main.Link(links[0]).StartIn, "/home/user/work");
}

TEST_F(Properties, ExistingTagsAreAppendedWithAComma) {
    Main.Link(links[1]).Tags = " work ,Home,,WORK";
    Main.Link(links[2]).Tags = "home, garden";
    Edit(links[0], Change([](frmEditLink& dialog) {
             EXPECT_EQ(dialog.cboTags(),
                       (std::vector<std::string>{"Existing Tags", "work", "Home", "garden"}));
             for (const int entry : {0, 3, 1, -1, 9}) dialog.cboTags_Click(entry);
         }));
    EXPECT_EQ(Main.Link(links[0]).Tags, "garden,work");
}

TEST_F(Properties, TheSwatchAsksForAColourFromWhatIsSeen) {
    computer.Dialogs.Colors = {0xABCDEF, std::nullopt};
    Main.View.ForeColor = 0x445566;
    Edit(links[0], Change([](frmEditLink& dialog) {
             EXPECT_EQ(dialog.ShownColor(), 0x445566);
             dialog.PicLinkColor_Click();
             dialog.PicLinkColor_Click();
         }));
    EXPECT_EQ(computer.Dialogs.ColorsAsked, (std::vector<Color>{0x445566, 0xABCDEF}));
    EXPECT_EQ(Main.Link(links[0]).Color, 0xABCDEF);
}

TEST_F(Properties, AShortcutInAContainerHasTheColourOfItsText) {
    const int box = New({6000, 1000, 3000, 3000});
    Main.ConView(box).FrameForeColor = 0x010203;
    const int link = NewLink(InContainer(box), {400, 400});
    EXPECT_EQ(frmEditLink(Main, {.Index = link}).ShownColor(), 0x010203);
}

TEST_F(Properties, ResetSetsTheStyleBackAfterAYesAndIsWrittenByOk) {
    Main.Settings.FontSize = 11;
    auto& record = Main.Link(links[0]);
    record.FontBold = true;
    record.FontSize = 30;
    record.Color = 0x123456;
    Person().Answer(AnswerNo);
    Person().Answer(AnswerYes);
    Edit(links[0], Change([&](frmEditLink& dialog) {
             dialog.cmdReset_Click();
             EXPECT_TRUE(dialog.ChkBold);
             dialog.cmdReset_Click();
             EXPECT_FALSE(dialog.ChkBold);
             EXPECT_EQ(dialog.txtSize, "11");
             EXPECT_EQ(dialog.PicLinkColor, -1);
             EXPECT_TRUE(Main.Link(links[0]).FontBold) << "not before OK";
         }));
    EXPECT_EQ(Person().LastBox(), "Reset style to default values?");
    EXPECT_EQ(Person().Boxes.back().Title, "Quillmere");
    EXPECT_FALSE(Main.Link(links[0]).FontBold);
    EXPECT_EQ(Main.Link(links[0]).FontSize, 11);
    EXPECT_EQ(Main.Link(links[0]).Color, -1);
}

TEST_F(Properties, ACommandHasNoPropertiesOfAFile) {
    Person().Answer(AnswerOk);
    Edit(links[0], [](frmEditLink& dialog) {
        dialog.ChkCommand = true;
        dialog.ChkCommand_Click();
        dialog.cmdProperties_Click();
        return false;
    });
    EXPECT_EQ(Person().LastBox(),
              "This function does not work with command shortcuts, only with shortcuts to files "
              "and folders.");
    EXPECT_EQ(Person().Boxes.back().Title, "Quillmere");
    EXPECT_TRUE(computer.Shell.PropertiesShown.empty());
}

TEST_F(Properties, TheFilesOwnPropertiesAreThoseOfTheExpandedPathThatIsSeen) {
    computer.Shell.FailNext({Reason::NotFound, "No such file or directory"});
    Person().Answer(AnswerOk);
    Edit(links[0], [](frmEditLink& dialog) {
        dialog.txtPath = "file:///tmp/a%FF";
        dialog.cmdProperties_Click();
        dialog.txtPath = "/tmp/b";
        dialog.cmdProperties_Click();
        return false;
    });
    EXPECT_EQ(computer.Shell.PropertiesShown, (std::vector<std::string>{"/tmp/a\xff", "/tmp/b"}));
    ASSERT_EQ(Person().Boxes.size(), 1U) << "a failure is told, success is not";
    EXPECT_EQ(Person().LastBox(),
              "Failed to display Windows File/Folder Properties for '/tmp/a\xff' (No such file or "
              "directory)");
}

// ---- Speed Launch

TEST_F(Properties, ATakenDigitIsAskedAboutAndAYesTakesItFromTheOther) {
    Main.Link(links[1]).SpeedLaunch = 4;
    Person().Answer(AnswerYes);
    Edit(links[0], Change([](frmEditLink& dialog) { dialog.cboSpeedLaunch = 4; }));
    EXPECT_EQ(Person().LastBox(), "The selected Speed Launch number is already in use by two, replace?");
    EXPECT_EQ(Person().Boxes.back().Flags & BoxYesNo, BoxYesNo);
    EXPECT_EQ(Main.Link(links[0]).SpeedLaunch, 4);
    EXPECT_EQ(Main.Link(links[1]).SpeedLaunch, 0);
}

TEST_F(Properties, ANoKeepsTheOldNumberAndWritesAllElse) {
    Main.Link(links[0]).SpeedLaunch = 2;
    Main.Link(links[1]).SpeedLaunch = 4;
    Person().Answer(AnswerNo);
    Edit(links[0], Change([](frmEditLink& dialog) {
             dialog.cboSpeedLaunch = 4;
             dialog.txtTip = "tip";
         }));
    EXPECT_EQ(Main.Link(links[0]).SpeedLaunch, 2);
    EXPECT_EQ(Main.Link(links[1]).SpeedLaunch, 4);
    EXPECT_EQ(Main.Link(links[0]).Tip, "tip");
}

TEST_F(Properties, ItsOwnDigitAFreeOneAndNoneAreNotAskedAbout) {
    Main.Link(links[0]).SpeedLaunch = 4;
    for (const int digit : {4, 7, 0}) {
        Edit(links[0], Change([&](frmEditLink& dialog) {
                 dialog.cboSpeedLaunch = digit;
                 dialog.Touch(LinkField::SpeedLaunch);
             }));
        EXPECT_EQ(Main.Link(links[0]).SpeedLaunch, digit);
    }
    EXPECT_TRUE(Person().Boxes.empty());
}

TEST_F(Properties, TheEndOfTheProgramDuringTheQuestionWritesNothing) {
    Main.Link(links[1]).SpeedLaunch = 4;
    Person().Answer(AnswerYes);
    Person().OnBox = [&](const auto&) { Main.IsExiting = true; };
    Edit(links[0], [](frmEditLink& dialog) {
        FillAll(dialog);
        dialog.cmdEditSaveOpen_Click();
        return true;
    });
    EXPECT_EQ(Main.Link(links[0]).FullCaption, "one");
    EXPECT_EQ(Main.Link(links[1]).SpeedLaunch, 4);
    EXPECT_EQ(Started(), "");
}

TEST_F(Properties, AShortcutThatIsGoneSaysSoAndTheDialogStays) {
    Edit(links[0], [&](frmEditLink& dialog) {
        DeleteShortcut(Main, links[0]);
        EXPECT_NE(dialog.cmdEditOK_Click(), "");
        EXPECT_EQ(dialog.ShownColor(), -1) << "and what the form asks is answered";
        EXPECT_FALSE(dialog.IsMixed(LinkField::Path));
        return false;
    });
    EXPECT_FALSE(IsLive(Main.Shortcuts, links[0]));
}

// ---- a clone

TEST_F(Properties, ACloneIsANewShortcutWithAllThatTheOtherSaysAndNoDigit) {
    const int box = New({6000, 1000, 3000, 3000});
    const int source = NewLink(InContainer(box), {400, 400}, "https://example.org");
    auto& record = Main.Link(source);
    record.FullCaption = "Site";
    record.ShortcutType = TypeUrl;
    record.Parameters = "-p";
    record.StartIn = "/s";
    record.RunIn = 7;
    record.Tags = "a,b";
    record.Confirm = record.FontBold = true;
    record.Color = 0x10;
    record.SpeedLaunch = 3;
    const auto before = Words(source);
    Main.Links.CurrentShortcut = source;
    computer.Dialogs.OnEditLink = [](frmEditLink& dialog) {
        EXPECT_EQ(dialog.Caption(), "Clone Shortcut");
        EXPECT_EQ(dialog.OkCaption(), "&Clone");
        EXPECT_TRUE(dialog.IsClone());
        EXPECT_EQ(dialog.cboSpeedLaunch, 0);
        return Ok(dialog);
    };
    const int next = Main.NextShortcutIndex;
    mnuCloneShortcut_Click(Main);
    ASSERT_EQ(Main.NextShortcutIndex, next + 1);
    EXPECT_EQ(Words(source), before) << "the other is as it was";
    EXPECT_EQ(Words(next), "Site | https://example.org | -p | /s | 7 |  | a,b |  | 0 0 1 0 0 1 | 0 10 16");
    EXPECT_EQ(Main.Link(next).ShortcutType, TypeUrl);
    EXPECT_EQ(Main.LinkView(next).In, InContainer(box));
    EXPECT_EQ(Main.LinkView(next).lblShortcut.Caption, "Site");
    EXPECT_FALSE(LabelPlace(Main, next).Intersects(LabelPlace(Main, source)));
    EXPECT_EQ(Main.Links.SelectedShortcuts, std::vector<int>{next});
    EXPECT_EQ(Main.Links.CurrentShortcut, next);
    EXPECT_NE(Recovery("0.REC").find("[LinkLabel]\r\nSite\r\n"), std::string::npos);
}

TEST_F(Properties, ACloneOnTheWorkspaceStaysThereAndTakesTheNewValues) {
    Select(links);
    const int next = Main.NextShortcutIndex;
    Open({.Index = links[1], .Clone = true}, Change([](frmEditLink& dialog) {
             EXPECT_EQ(dialog.txtLabel, "two");
             dialog.txtLabel = "Copy";
             dialog.txtParam = "--other";
             dialog.cboSpeedLaunch = 6;
         }));
    EXPECT_EQ(Main.LinkView(next).In, OnWorkspace());
    EXPECT_EQ(Main.Link(next).FullCaption, "Copy");
    EXPECT_EQ(Main.Link(next).Parameters, "--other");
    EXPECT_EQ(Main.Link(next).SpeedLaunch, 6);
    EXPECT_EQ(Main.Link(links[1]).FullCaption, "two");
    EXPECT_EQ(Main.Link(links[0]).Parameters, "");
}

TEST_F(Properties, ACloneAsksForTheDigitOfItsSource) {
    Main.Link(links[0]).SpeedLaunch = 3;
    Person().Answer(AnswerNo);
    const int next = Main.NextShortcutIndex;
    Open({.Index = links[0], .Clone = true}, Change([](frmEditLink& dialog) { dialog.cboSpeedLaunch = 3; }));
    EXPECT_EQ(Person().LastBox(), "The selected Speed Launch number is already in use by one, replace?");
    EXPECT_EQ(Main.Link(next).SpeedLaunch, 0);
    EXPECT_EQ(Main.Link(links[0]).SpeedLaunch, 3);
}

TEST_F(Properties, ACancelledCloneMakesNothing) {
    Select({links[0]});
    const int next = Main.NextShortcutIndex;
    Open({.Index = links[0], .Clone = true}, [](frmEditLink&) { return false; });
    EXPECT_EQ(Main.NextShortcutIndex, next);
    EXPECT_EQ(Saved(), "(none)");
}

TEST_F(Properties, AFullContainerTakesNoClone) {
    const int box = New({6000, 1000, 3000, 3000});
    int source = -1;
    for (int count = 0; count < MaxShortcutsInContainer; ++count)
        source = NewLink(InContainer(box), {400, 400});
    const int next = Main.NextShortcutIndex;
    Open({.Index = source, .Clone = true}, [](frmEditLink& dialog) {
        EXPECT_NE(dialog.cmdEditOK_Click(), "");
        return false;
    });
    EXPECT_EQ(Main.NextShortcutIndex, next);
}

TEST_F(Properties, TheCloneOfOneThatATagViewHidesIsSeen) {
    Main.Link(links[0]).TagHidden = true;
    const int next = Main.NextShortcutIndex;
    Open({.Index = links[0], .Clone = true}, Change([](frmEditLink&) {}));
    EXPECT_FALSE(Main.Link(next).TagHidden);
    EXPECT_TRUE(Main.LinkView(next).Visible);
}

// ---- Save and Open

TEST_F(Properties, SaveAndOpenWritesAndStartsWhatWasWritten) {
    Main.Links.CurrentShortcut = links[2];
    Edit(links[0], [](frmEditLink& dialog) {
        dialog.txtPath = "/opt/mended";
        return SaveOpen(dialog);
    });
    EXPECT_EQ(Started(), "start /opt/mended\n");
    EXPECT_EQ(Main.Link(links[0]).Path, "/opt/mended");
}

TEST_F(Properties, OkAndCancelStartNothing) {
    Edit(links[0], [](frmEditLink& dialog) { return Ok(dialog); });
    Edit(links[0], [](frmEditLink&) { return false; });
    EXPECT_EQ(Started(), "");
}

TEST_F(Properties, SaveAndOpenOfOneThatIsConfirmedStillAsks) {
    Main.Link(links[0]).Confirm = true;
    Person().Answer(AnswerNo);
    Edit(links[0], &SaveOpen);
    EXPECT_EQ(Person().LastBox(), "Start one?");
    EXPECT_EQ(Started(), "");
}

TEST_F(Properties, AStartThatFailsAgainShowsTheDialogAgain) {
    computer.Shell.FailNext({Reason::NotFound, "No such file or directory"});
    std::vector<std::string> captions;
    Edit(links[0], [&](frmEditLink& dialog) {
        captions.push_back(dialog.Caption());
        return captions.size() == 1 && SaveOpen(dialog);
    });
    EXPECT_EQ(captions,
              (std::vector<std::string>{"Shortcut Properties", "Error: No such file or directory"}));
}

// ---- the lock

TEST_F(Properties, ALockedWorkspaceIsNotWrittenToAndTheDialogSaysSo) {
    Main.Dock.Locked = true;
    Main.Link(links[1]).SpeedLaunch = 4;
    const auto before = Words(links[0]);
    Open({.Index = links[0], .ErrorText = "gone"}, [](frmEditLink& dialog) {
        FillAll(dialog);
        EXPECT_NE(dialog.cmdEditOK_Click(), "");
        EXPECT_NE(dialog.cmdEditSaveOpen_Click(), "");
        EXPECT_FALSE(dialog.WantsStart());
        return false;
    });
    EXPECT_EQ(Words(links[0]), before);
    EXPECT_EQ(Main.Link(links[1]).SpeedLaunch, 4);
}

TEST_F(Properties, ALockThatMayBeOpenedBrieflyIsByOkAndNotByTheDialog) {
    Main.Settings.QuicklyUnlock = 11;
    Main.Dock.Locked = true;
    Edit(links[0], [&](frmEditLink& dialog) {
        EXPECT_FALSE(Main.Dock.BrieflyUnlocked);
        dialog.txtTip = "tip";
        return Ok(dialog);
    });
    EXPECT_TRUE(Main.Dock.BrieflyUnlocked);
    EXPECT_EQ(Main.Link(links[0]).Tip, "tip");
}

} // namespace
} // namespace quill
