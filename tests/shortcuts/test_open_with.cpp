#include "appearance/paint.h"
#include "appearance/tips.h"
#include "fake/canvas.h"
#include "shortcuts/drag_fixture.h"
#include "shortcuts/open_with.h"
#include "shortcuts/properties.h"

namespace quill {
namespace {

struct OpenWith : test::DragFixture {
    OpenWith() {
        computer.Files.Put("/usr/bin/viewer",
                           "\x7f"
                           "ELF",
                           0700);
        computer.Files.Put("/home/user/a.png", "");
        Program = SeenLink(OnWorkspace(), {5000, 1000}, "/usr/bin/viewer");
        Picture = SeenLink(OnWorkspace(), {1000, 1000}, "/home/user/a.png");
        Main.Settings.ConfirmOpenWith = false;
    }
    std::string Started() const {
        std::string all;
        for (const auto& request : computer.Shell.Launches) all += fake::Words(request) + "\n";
        return all;
    }
    Point MiddleOf(ElementKind kind, int link) {
        const Rect place = Find(OnBack, kind, link).Place;
        return {place.Left + place.Width / 2, place.Top + place.Height / 2};
    }
    DropAnswer DropOn(int target, int source, ElementKind kind = ElementKind::lblShortcut) {
        return Carry(source, OnBack, MiddleOf(kind, target));
    }
    // Carries it over the target and does not let go yet.
    template <class Scene> void HoldOver(int target, int source, Scene scene) {
        computer.Drags.OnDrag = [=, this](const DragData& data) {
            DragOver(Main, OnBack, EventAt(OnBack, MiddleOf(ElementKind::lblShortcut, target)), data);
            scene();
            DragLeave(Main, OnBack);
            return DropAnswer::Refused;
        };
        LiftLink(source);
    }
    int Program = -1, Picture = -1;
    static constexpr const char* Opened = "start /usr/bin/viewer [/home/user/a.png] in /usr/bin/\n";
};

TEST_F(OpenWith, AShortcutDroppedOnAProgramIsItsOneArgumentAndStaysWhereItWas) {
    EXPECT_EQ(DropOn(Program, Picture), DropAnswer::Copied);
    EXPECT_EQ(Started(), Opened);
    EXPECT_EQ(Where(Picture), "workspace 1000,1000");
    EXPECT_EQ(Where(Program), "workspace 5000,1000");
}

TEST_F(OpenWith, TheIconIsAsGoodAsTheLabel) {
    DropOn(Program, Picture, ElementKind::picShortcut);
    EXPECT_EQ(Started(), Opened);
}

TEST_F(OpenWith, BesideTheLabelItIsPutDownAsAnywhereElse) {
    const Rect label = LabelPlace(Main, Program);
    Carry(Picture, OnBack, {label.Left + Grip.X, label.Bottom() + 15 + Grip.Y});
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Where(Picture), "workspace 5000," + fake::Words(label.Bottom() + 15));
}

TEST_F(OpenWith, InAContainerToo) {
    const int box = New({4000, 3000, 5000, 4000});
    const int program = SeenLink(InContainer(box), {900, 600}, "/usr/bin/viewer");
    const Point corner = FrameCorner(box);
    Carry(Picture, OnContainer(box), {corner.X + 900 + Grip.X, corner.Y + 600 + Grip.Y});
    EXPECT_EQ(Started(), Opened);
    EXPECT_EQ(Where(program), "container 0 900,600");
    EXPECT_EQ(Where(Picture), "workspace 1000,1000");
}

TEST_F(OpenWith, TheWholeSelectionGoesAlongTheHeldOneFirst) {
    const int other = SeenLink(OnWorkspace(), {1000, 3000}, "/home/user/b.png");
    SetSelection(Main, other, true);
    SetSelection(Main, Picture, true);
    DropOn(Program, Picture);
    EXPECT_EQ(Started(), std::string(Opened) + "start /usr/bin/viewer [/home/user/b.png] in /usr/bin/\n");
}

TEST_F(OpenWith, WhatIsCarriedOpensNothingThatIsCarriedWithIt) {
    SetSelection(Main, Program, true);
    SetSelection(Main, Picture, true);
    DropOn(Program, Picture);
    EXPECT_EQ(Started(), "");
    EXPECT_NE(Where(Picture), "workspace 1000,1000") << "the two have moved";
}

TEST_F(OpenWith, ACommandInTheSelectionIsLeftOut) {
    const int command = SeenLink(OnWorkspace(), {1000, 3000}, "/unused");
    Main.Link(command).Command = true;
    SetSelection(Main, command, true);
    SetSelection(Main, Picture, true);
    DropOn(Program, Picture);
    EXPECT_EQ(Started(), Opened);
}

TEST_F(OpenWith, APathIsOneArgumentWhateverItIsCalled) {
    for (const std::string name :
         {"/home/user/a b.png", "/home/user/-rf \"x\" $HOME `id`", "/home/user/%f%20;\xE2\x80\xAE"}) {
        Main.Link(Picture).Path = name;
        computer.Shell.Launches.clear();
        DropOn(Program, Picture);
        ASSERT_EQ(computer.Shell.Launches.size(), 1U);
        EXPECT_EQ(computer.Shell.Launches[0].Arguments, std::vector<std::string>{name});
        EXPECT_EQ(computer.Shell.Launches[0].Parameters, "");
    }
}

TEST_F(OpenWith, MarkedPathsAreTheTrueOnesAndAnAddressStaysOne) {
    Main.Link(Picture).Path = "@/home/user/a.png";
    Main.Link(Program).Path = "@/usr/bin/viewer";
    DropOn(Program, Picture);
    EXPECT_EQ(Started(), Opened);
    computer.Shell.Launches.clear();
    Main.Link(Picture).Path = "https://a.example/x%20y";
    Main.Link(Picture).ShortcutType = TypeUrl;
    DropOn(Program, Picture);
    EXPECT_EQ(Started(), "start /usr/bin/viewer [https://a.example/x%20y] in /usr/bin/\n");
}

// ---- what opens nothing

struct NoTargetRow {
    const char* Name;
    void (*Change)(clsShortcut& target, clsShortcut& source);
};

class NoTarget : public OpenWith, public testing::WithParamInterface<NoTargetRow> {};

TEST_P(NoTarget, TakesTheDropAsAnyPlaceDoes) {
    computer.Files.PutFolder("/home/user/Letters");
    GetParam().Change(Main.Link(Program), Main.Link(Picture));
    EXPECT_EQ(OpenWithTip(Main, Program, Picture), "");
    HoldOver(Program, Picture, [&] { EXPECT_EQ(Main.Links.OpenWithTarget, -1); });
    DropOn(Program, Picture);
    EXPECT_EQ(Started(), "");
    EXPECT_NE(Where(Picture), "workspace 1000,1000") << "it lies there now";
    OpenShortcutWith(Main, Program, Picture);
    EXPECT_EQ(Started(), "") << "nor does the menu open anything";
}

const NoTargetRow NoTargetRows[] = {
    {"ACommand", [](clsShortcut& target, clsShortcut&) { target.Command = true; }},
    {"ACommandInTheHand", [](clsShortcut&, clsShortcut& source) { source.Command = true; }},
    {"AnAddress", [](clsShortcut& target, clsShortcut&) { target.ShortcutType = TypeUrl; }},
    {"AFolder", [](clsShortcut& target, clsShortcut&) { target.Path = "/home/user/Letters"; }},
    {"ADocument", [](clsShortcut& target, clsShortcut&) { target.Path = "/home/user/a.png"; }},
};

INSTANTIATE_TEST_SUITE_P(Table, NoTarget, testing::ValuesIn(NoTargetRows),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST_F(OpenWith, ADesktopEntryIsAProgram) {
    computer.Files.Put("/usr/share/applications/viewer.desktop", "[Desktop Entry]\n");
    Main.Link(Program).Path = "/usr/share/applications/viewer.desktop";
    DropOn(Program, Picture);
    EXPECT_EQ(
        Started(),
        "start /usr/share/applications/viewer.desktop [/home/user/a.png] in /usr/share/applications/\n");
}

TEST_F(OpenWith, AProgramThatIsGoneIsPassedOverInSilence) {
    computer.Files.Delete("/usr/bin/viewer");
    DropOn(Program, Picture);
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Where(Picture), "workspace 1000,1000");
    EXPECT_EQ(computer.Dialogs.Unexpected, 0);
    EXPECT_TRUE(computer.Questions.Boxes.empty());
}

TEST_F(OpenWith, ADroppedOnItselfIsAMove) {
    CarryCornerTo(Picture, OnBack, {1300, 1030});
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Where(Picture), "workspace 1300,1030");
}

TEST_F(OpenWith, APictureOpensNothing) {
    const int picture = NewPicture(OnWorkspace(), {7000, 5000, 1500, 1500});
    DragData data;
    data.Objects = {{2, picture}};
    EXPECT_EQ(OpenWithAt(Main, OnBack, MiddleOf(ElementKind::lblShortcut, Program), data), -1);
}

TEST_F(OpenWith, AFailureIsToldOnceInThePropertiesOfTheProgram) {
    const int other = SeenLink(OnWorkspace(), {1000, 3000}, "/home/user/b.png");
    SetSelection(Main, other, true);
    SetSelection(Main, Picture, true);
    std::vector<std::string> told;
    computer.Dialogs.OnEditLink = [&](frmEditLink& dialog) {
        told.push_back(dialog.Caption() + " " + dialog.txtPath);
        return false;
    };
    computer.Shell.FailFor("/usr/bin/viewer", {Reason::Denied, "Permission denied"});
    DropOn(Program, Picture);
    EXPECT_EQ(told, std::vector<std::string>{"Error: Permission denied /usr/bin/viewer"});
    EXPECT_EQ(computer.Shell.Launches.size(), 1U);
}

// ---- the question

TEST_F(OpenWith, ItIsAskedAboutInTheseWords) {
    Main.Settings.ConfirmOpenWith = true;
    Main.Link(Program).FullCaption = "The Viewer";
    Main.LinkView(Picture).lblShortcut.Caption = "a %1";
    computer.Questions.Answer(AnswerYes);
    DropOn(Program, Picture);
    EXPECT_EQ(LastBox(), "Open with... 36: Open: a %1 with: The Viewer?\n\n"
                         "Disable this confirmation from the Settings dialog.");
    EXPECT_EQ(Started(), Opened);
}

TEST_F(OpenWith, SeveralAreAskedAboutTogetherAndOnce) {
    Main.Settings.ConfirmOpenWith = true;
    Main.Link(Program).FullCaption = "The Viewer";
    SetSelection(Main, SeenLink(OnWorkspace(), {1000, 3000}, "/home/user/b.png"), true);
    SetSelection(Main, Picture, true);
    computer.Questions.Answer(AnswerYes);
    DropOn(Program, Picture);
    EXPECT_EQ(LastBox(), "Open with... 36: Open: The Viewer with selected shortcuts?\n\n"
                         "Disable this confirmation from the Settings dialog.");
    EXPECT_EQ(computer.Shell.Launches.size(), 2U);
}

TEST_F(OpenWith, ANoOpensNothingAndMovesNothing) {
    Main.Settings.ConfirmOpenWith = true;
    computer.Questions.Answer(AnswerNo);
    DropOn(Program, Picture);
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Where(Picture), "workspace 1000,1000");
}

TEST_F(OpenWith, WhatDiesWhileItIsAskedIsNotOpened) {
    Main.Settings.ConfirmOpenWith = true;
    for (const int victim : {Program, Picture}) {
        const int program = SeenLink(OnWorkspace(), {5000, 1000}, "/usr/bin/viewer");
        const int picture = SeenLink(OnWorkspace(), {1000, 5000}, "/home/user/a.png");
        const int dies = victim == Program ? program : picture;
        computer.Questions.OnBox = [&](const fake::Box&) { DeleteShortcut(Main, dies); };
        computer.Questions.Answer(AnswerYes);
        DropOnShortcut(Main, program, picture);
        EXPECT_EQ(Started(), "");
    }
}

TEST_F(OpenWith, NothingIsOpenedWhenTheProgramEndsMeanwhile) {
    Main.Settings.ConfirmOpenWith = true;
    computer.Questions.OnBox = [&](const fake::Box&) { Main.IsExiting = true; };
    computer.Questions.Answer(AnswerYes);
    DropOn(Program, Picture);
    EXPECT_EQ(Started(), "");
}

// ---- while it is dragged

TEST_F(OpenWith, OverAProgramTheTipTellsWhatTheDropWouldDoUntilThePointerLeaves) {
    Main.LinkView(Program).lblShortcut.Caption = "Viewer";
    Main.LinkView(Picture).lblShortcut.Caption = "a.png";
    HoldOver(Program, Picture, [&] {
        EXPECT_TRUE(Main.Looks.frmTip.Visible);
        EXPECT_EQ(Main.Looks.frmTip.Text, "Start: Viewer\nWith Parameter:\na.png");
        EXPECT_EQ(Main.Links.OpenWithTarget, Program);
        computer.Clock.Advance(3000);
        EXPECT_TRUE(Main.Looks.frmTip.Visible) << "it stays while the pointer rests there";
    });
    EXPECT_FALSE(Main.Looks.frmTip.Visible);
    EXPECT_EQ(Main.Links.OpenWithTarget, -1);
    EXPECT_EQ(Started(), "");
}

TEST_F(OpenWith, TheTipOfSeveralNamesTheSelection) {
    Main.LinkView(Program).lblShortcut.Caption = "Viewer";
    SetSelection(Main, SeenLink(OnWorkspace(), {1000, 3000}), true);
    SetSelection(Main, Picture, true);
    EXPECT_EQ(OpenWithTip(Main, Program, Picture), "Start: Viewer\nWith Parameter:\n[Selected Shortcuts]");
}

TEST_F(OpenWith, TheContainerAroundAProgramDoesNotSayThatItWouldTakeIt) {
    const int box = New({4000, 3000, 5000, 4000});
    SeenLink(InContainer(box), {900, 600}, "/usr/bin/viewer");
    const Point corner = FrameCorner(box), label{corner.X + 900 + Grip.X, corner.Y + 600 + Grip.Y};
    computer.Drags.OnDrag = [&](const DragData& data) {
        const Point free{corner.X + 3000, corner.Y + 2500};
        DragOver(Main, OnContainer(box), EventAt(OnContainer(box), free), data);
        EXPECT_TRUE(IsDropTarget(Main, box));
        DragOver(Main, OnContainer(box), EventAt(OnContainer(box), label), data);
        EXPECT_FALSE(IsDropTarget(Main, box));
        DragLeave(Main, OnContainer(box));
        return DropAnswer::Refused;
    };
    LiftLink(Picture);
}

TEST_F(OpenWith, ItsLabelStandsOnAPlateMeanwhileAlsoWhenItHadOneAlready) {
    Main.LinkView(Program).lblShortcut.Caption = "Viewer";
    const auto painted = [&] {
        fake::FakeCanvas canvas({0, 0, 1e6F, 1e6F});
        PaintSurface(Main, OnBack, canvas);
        return canvas.Painted();
    };
    for (const bool selected : {false, true}) {
        SetSelection(Main, Program, selected);
        const std::string before = painted();
        Main.Marks.Take();
        ShowOpenWith(Main, Program, Picture);
        EXPECT_TRUE(Main.Marks.Take().Workspace);
        EXPECT_NE(painted(), before);
        ShowOpenWith(Main, -1, -1);
        EXPECT_TRUE(Main.Marks.Take().Workspace);
        EXPECT_EQ(painted(), before);
    }
}

TEST_F(OpenWith, ADragThatIsCalledOffOverAProgramOpensNothing) {
    computer.Drags.OnDrag = [&](const DragData& data) {
        DragOver(Main, OnBack, EventAt(OnBack, MiddleOf(ElementKind::lblShortcut, Program)), data);
        return DropAnswer::Refused;
    };
    LiftLink(Picture);
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Main.Links.OpenWithTarget, -1);
}

TEST_F(OpenWith, ItStartsWhenTheHandHasLetGoOfEverythingSoThatTheWorkspaceMakesRoom) {
    int carried = -1, dragIndex = 0, pauses = -1;
    computer.Shell.OnLaunch = [&](const LaunchRequest&) {
        carried = static_cast<int>(Main.Links.Carried.size());
        dragIndex = Main.Links.DragIndex, pauses = Main.Dock.DialogPauses;
    };
    DropOn(Program, Picture);
    EXPECT_EQ(carried, 0);
    EXPECT_NE(dragIndex, -1);
    EXPECT_EQ(pauses, 0);
}

TEST_F(OpenWith, ALockedWorkspaceOpensAndMovesNothing) {
    Main.Dock.Locked = true;
    Main.Settings.QuicklyUnlock = 0;
    DropOn(Program, Picture);
    EXPECT_EQ(Started(), Opened);
    EXPECT_EQ(Where(Picture), "workspace 1000,1000");
}

TEST_F(OpenWith, ItIsNoStepOfUndoAndNoRecentStart) {
    DropOn(Program, Picture);
    EXPECT_TRUE(Main.Links.Recent.empty());
    EXPECT_EQ(Main.Group.UndoStack.size(), 0U);
}

// ---- a server that does not answer

TEST_F(OpenWith, AProgramOnAServerIsAskedForOffTheThread) {
    computer.Shell.NetworkPaths.push_back("/mnt/server");
    computer.Shell.SilentPaths.push_back("/mnt/server");
    Main.Link(Program).Path = "/mnt/server/viewer";
    DropOn(Program, Picture);
    EXPECT_EQ(Started(), "");
    computer.Shell.Answer("/mnt/server/viewer", true);
    EXPECT_EQ(Started(), "start /mnt/server/viewer [/home/user/a.png] in /mnt/server/\n");
    EXPECT_FALSE(computer.Windows.Busy);
    computer.Shell.Launches.clear();
    DropOn(Program, Picture);
    computer.Clock.Advance(60'000);
    EXPECT_EQ(Started(), "") << "no answer: it is passed over";
    EXPECT_FALSE(computer.Windows.Busy);
}

} // namespace
} // namespace quill
