#include "shortcuts/drag_fixture.h"

#include "containers/measures.h"
#include "dock/docking.h"

namespace quill {
namespace {

using Drags = test::DragFixture;

// ---- carrying

TEST_F(Drags, AShortcutCarriedIntoAContainerLiesUnderTheHandWhereItWasTaken) {
    const int box = New({4000, 2000, 4000, 4000});
    const int link = SeenLink(OnWorkspace(), {1000, 1000});
    EXPECT_EQ(CarryCornerTo(link, OnContainer(box), {900, 1500}), DropAnswer::Copied);
    EXPECT_EQ(Where(link), "container 0 900,1500");
    EXPECT_EQ(CarryCornerTo(link, OnBack, {1500, 1200}), DropAnswer::Copied);
    EXPECT_EQ(Where(link), "workspace 1500,1200");
}

TEST_F(Drags, TheIconGoesAlongBesideItsLabel) {
    const int box = New({4000, 2000, 4000, 4000});
    const int link = SeenLink(OnWorkspace(), {1000, 1000});
    CarryCornerTo(link, OnContainer(box), {900, 1500});
    EXPECT_EQ(Main.LinkView(link).picShortcut, IconPlace(Main, link));
}

TEST_F(Drags, WhatIsSelectedGoesAlongAndKeepsItsDistanceFromTheHand) {
    const int box = New({4000, 2000, 4000, 5000});
    const int one = SeenLink(OnWorkspace(), {1000, 1000}), two = SeenLink(OnWorkspace(), {1300, 1700});
    const int left = SeenLink(OnWorkspace(), {1000, 4000});
    SetSelection(Main, one, true);
    SetSelection(Main, two, true);
    CarryCornerTo(two, OnContainer(box), {900, 1500});
    EXPECT_EQ(Where(two), "container 0 900,1500");
    EXPECT_EQ(Where(one), "container 0 600,800");
    EXPECT_EQ(Where(left), "workspace 1000,4000");
}

TEST_F(Drags, ASelectionOverSeveralParentsComesTogetherAsItWasSeen) {
    const int from = New({1000, 1000, 3000, 3000}), box = New({5000, 1000, 5000, 6000});
    const int inside = SeenLink(InContainer(from), {500, 400}),
              outside = SeenLink(OnWorkspace(), {1500, 4500});
    SetSelection(Main, inside, true);
    SetSelection(Main, outside, true);
    CarryCornerTo(inside, OnContainer(box), {700, 400});
    EXPECT_EQ(Where(inside), "container 1 700,400");
    // On the workspace the one in the container stood at 1500, 1000 + the title row + 400.
    EXPECT_EQ(Where(outside), "container 1 700," + fake::Words(4500 - measures::ContainerTitle - 1000));
}

TEST_F(Drags, AnUnselectedOneGoesAloneAndBecomesTheSelection) {
    const int box = New({4000, 2000, 4000, 4000});
    const int held = SeenLink(OnWorkspace(), {1000, 1000}), selected = SeenLink(OnWorkspace(), {1000, 2000});
    SetSelection(Main, selected, true);
    CarryCornerTo(held, OnContainer(box), {900, 1500});
    EXPECT_EQ(Where(selected), "workspace 1000,2000");
    EXPECT_EQ(Main.Links.SelectedShortcuts, std::vector<int>{held});
}

TEST_F(Drags, WhatNobodySeesIsNotCarriedAlong) {
    const int tile = NewTile(600, 600), box = New({4000, 2000, 4000, 4000});
    const int hidden = SeenLink(InContainer(tile), {500, 400}), held = SeenLink(OnWorkspace(), {1000, 3000});
    const int filtered = SeenLink(OnWorkspace(), {1000, 4000});
    Main.LinkView(filtered).Visible = false;
    for (const int link : {hidden, held, filtered}) SetSelection(Main, link, true);
    CarryCornerTo(held, OnContainer(box), {900, 1500});
    EXPECT_EQ(computer.Drags.Started.back().Objects.size(), 1U);
    EXPECT_EQ(Where(hidden), "container 0 500,400");
    EXPECT_EQ(Where(filtered), "workspace 1000,4000");
}

TEST_F(Drags, OneDragIsOneStepBack) {
    const int box = New({4000, 2000, 4000, 5000});
    const int one = SeenLink(OnWorkspace(), {1000, 1000}), two = SeenLink(OnWorkspace(), {1300, 1700});
    SetSelection(Main, one, true);
    SetSelection(Main, two, true);
    CarryCornerTo(two, OnContainer(box), {900, 1500});
    ASSERT_EQ(Main.Group.UndoStack.size(), 1U);
    UndoMove(Main, true);
    EXPECT_EQ(Where(one), "workspace 1000,1000");
    EXPECT_EQ(Where(two), "workspace 1300,1700");
    UndoMove(Main, false);
    EXPECT_EQ(Where(two), "container 0 900,1500");
}

TEST_F(Drags, AMoveIsSavedAtOnce) {
    const int box = New({4000, 2000, 4000, 4000});
    const int link = SeenLink(InContainer(box), {500, 400});
    CarryCornerTo(link, OnContainer(box), {900, 1500});
    EXPECT_NE(Recovery("0.REC").find("[LinkX]\r\n900\r\n[LinkY]\r\n1500"), std::string::npos)
        << Recovery("0.REC");
    CarryCornerTo(link, OnBack, {700, 5000});
    EXPECT_EQ(Recovery("0.REC").find("[Link]"), std::string::npos);
    const auto settings = computer.Files.Read(fake::SettingsFolder + "/Quillmere.REC", 1 << 20);
    EXPECT_NE(settings.Value().find("[LinkX]\r\n700\r\n[LinkY]\r\n5000"), std::string::npos);
}

TEST_F(Drags, APictureIsCarriedLikeAShortcut) {
    const int box = New({4000, 2000, 5000, 5000});
    const int picture = NewPicture(OnWorkspace(), {1000, 1000, 1500, 900});
    computer.Drags.OnDrag = [&](const DragData& data) {
        return LetGo(data, OnContainer(box), {FrameCorner(box).X + 900, FrameCorner(box).Y + 1500});
    };
    Lift({SurfaceKind::Picture, picture}, {200, 300});
    EXPECT_EQ(WhereIsPicture(picture), "container 0 700,1200");
    ASSERT_EQ(Main.Group.UndoStack.size(), 1U);
    UndoMove(Main, true);
    EXPECT_EQ(WhereIsPicture(picture), "workspace 1000,1000");
}

TEST_F(Drags, APictureDoesNotTakeTheSelectedShortcutsAlong) {
    const int link = SeenLink(OnWorkspace(), {5000, 1000});
    const int picture = NewPicture(OnWorkspace(), {1000, 1000, 1500, 900});
    SetSelection(Main, link, true);
    Lift({SurfaceKind::Picture, picture}, {200, 300});
    EXPECT_EQ(computer.Drags.Started.back().Objects, (std::vector<DraggedObject>{{2, picture}}));
    EXPECT_TRUE(Main.Link(link).Selected);
}

// ---- a click, or a drag

TEST_F(Drags, AClickMaySlipALittleAndAQuickOneFurther) {
    struct Row {
        std::int64_t Held;
        float By;
        bool Drag;
    };
    for (const Row& row : {Row{300, 60, false}, Row{300, 61, true}, Row{250, 240, false}, Row{250, 241, true},
                           Row{251, 61, true}}) {
        Main.Links.PressTick = computer.Clock.GetTickCount() - row.Held;
        Main.View.PressedAt = {1000, 1000};
        EXPECT_EQ(IsBeyondClick(Main, {1000 + row.By, 1000}), row.Drag) << row.Held << " " << row.By;
        EXPECT_EQ(IsBeyondClick(Main, {1000, 1000 - row.By}), row.Drag) << row.Held << " " << row.By;
    }
}

TEST_F(Drags, ADraggedShortcutStartsNothingOnRelease) {
    Main.Settings.DblClick = false;
    const int link = SeenLink(OnWorkspace(), {1000, 1000});
    CarryCornerTo(link, OnBack, {1100, 1000}); // back to where the release is over it again
    EXPECT_TRUE(computer.Shell.Launches.empty());
}

TEST_F(Drags, TheDragIndexIsMinusOneFromTheStartToTheEndOfTheRelease) {
    const int link = SeenLink(OnWorkspace(), {1000, 1000});
    Main.Links.DragIndex = 7;
    int meanwhile = 0;
    computer.Drags.OnDrag = [&](const DragData&) {
        meanwhile = Main.Links.DragIndex;
        return DropAnswer::Refused;
    };
    LiftLink(link);
    EXPECT_EQ(meanwhile, -1);
    EXPECT_EQ(Main.Links.DragIndex, 7);
}

TEST_F(Drags, AfterADragAClickStartsAsBefore) {
    Main.Settings.DblClick = false;
    const int link = SeenLink(OnWorkspace(), {1000, 1000});
    CarryCornerTo(link, OnBack, {3000, 3000});
    MouseDown(Main, OnBack, MouseAt(OnBack, {3100, 3050}));
    MouseUp(Main, OnBack, MouseAt(OnBack, {3100, 3050}));
    EXPECT_EQ(computer.Shell.Launches.size(), 1U);
}

TEST_F(Drags, NothingDocksWhileSomethingIsInTheHand) {
    const int link = SeenLink(OnWorkspace(), {1000, 1000});
    int meanwhile = 0;
    computer.Drags.OnDrag = [&](const DragData&) {
        meanwhile = Main.Dock.DialogPauses;
        return DropAnswer::Refused;
    };
    LiftLink(link);
    EXPECT_EQ(meanwhile, 1);
    EXPECT_EQ(Main.Dock.DialogPauses, 0);
}

TEST_F(Drags, OnlyTheLeftButtonCarries) {
    const int link = SeenLink(OnWorkspace(), {1000, 1000});
    Main.View.Pressed = {ElementKind::lblShortcut, link};
    for (const auto button : {MouseButton::Middle, MouseButton::Right}) {
        auto event = MouseAt(OnBack, {9000, 3000});
        event.Button = button;
        MouseMove(Main, OnBack, event);
    }
    EXPECT_TRUE(computer.Drags.Started.empty());
}

// ---- where it may lie

TEST_F(Drags, WhatNobodyTakesStaysWhereItIs) {
    const int link = SeenLink(OnWorkspace(), {1000, 1000});
    LiftLink(link);
    EXPECT_EQ(Where(link), "workspace 1000,1000");
    EXPECT_TRUE(Main.Group.UndoStack.empty());
    EXPECT_EQ(computer.Files.Read(fake::SettingsFolder + "/Quillmere.REC", 1 << 20).Ok(), false);
}

TEST_F(Drags, PutDownWhereItWasIsNoMove) {
    const int link = SeenLink(OnWorkspace(), {1000, 1000});
    EXPECT_EQ(CarryCornerTo(link, OnBack, {1000, 1000}), DropAnswer::Copied);
    EXPECT_TRUE(Main.Group.UndoStack.empty());
}

TEST_F(Drags, NothingIsDroppedOnFeedsRemindersAndEncryptedNotes) {
    const int feed = New({1000, 1000, 3000, 3000}), reminder = New({4100, 1000, 3000, 3000});
    const int secret = New({7200, 1000, 3000, 3000});
    Main.Con(feed).RSS = true;
    Main.Con(reminder).SetReminder(true, 2030, 1, 1, 10, 0, "x");
    Main.Con(secret).Encrypted = true;
    const int link = SeenLink(OnWorkspace(), {1000, 6000});
    DragData outside[3];
    outside[0].Files = {"/usr/bin/thing"};
    outside[1].Addresses = {"https://a.example/"};
    outside[2].Text = "https://a.example/";
    for (const int container : {feed, reminder, secret}) {
        EXPECT_EQ(CarryCornerTo(link, OnContainer(container), {900, 900}), DropAnswer::Refused) << container;
        for (const auto& data : outside) {
            EXPECT_EQ(LetGo(data, OnContainer(container), {900, 900}), DropAnswer::Refused) << container;
            EXPECT_EQ(DropFromOutside(Main, InContainer(container), {900, 900}, data), DropAnswer::Refused);
        }
        EXPECT_EQ(GetContainerShortcutCount(Main, container), 0);
    }
    EXPECT_EQ(Where(link), "workspace 1000,6000");
}

TEST_F(Drags, AFolderConnectorTakesNothingInYetAndKeepsItsOwnInOrder) {
    const int connector = New({4000, 1000, 4000, 4000});
    Main.Con(connector).CopyPath = "/home/user/Documents";
    const int link = SeenLink(OnWorkspace(), {1000, 1000});
    const int own = SeenLink(InContainer(connector), {500, 400}, "/home/user/Documents/a.txt");
    EXPECT_EQ(CarryCornerTo(link, OnContainer(connector), {900, 1500}), DropAnswer::Refused);
    EXPECT_EQ(CarryCornerTo(own, OnContainer(connector), {900, 1500}), DropAnswer::Copied);
    EXPECT_EQ(Where(own), "container 0 900,1500");
    DragData files;
    files.Files = {"/usr/bin/thing"};
    EXPECT_EQ(LetGo(files, OnContainer(connector), {900, 900}), DropAnswer::Refused);
}

TEST_F(Drags, WhatIsDroppedOnATileAFoldedContainerOrATitleGoesToTheNextFreeCell) {
    const int tile = NewTile(600, 600), folded = New({4000, 1000, 3000, 3000});
    const int open = New({4000, 4500, 3000, 3000});
    FoldUnfoldContainer(Main, folded, false);
    int row = 0;
    for (const int container : {tile, folded, open}) {
        const int link = SeenLink(OnWorkspace(), {9000, 1000.0F + 500.0F * static_cast<float>(row++)});
        const Point cell = NextFreeCell(Main, InContainer(container));
        EXPECT_EQ(Carry(link, OnContainer(container), {300, 150}), DropAnswer::Copied) << container;
        EXPECT_EQ(Where(link), "container " + std::to_string(container) + " " + fake::Words(cell));
    }
}

TEST_F(Drags, UnderANoteItGoesToTheNextFreeCellToo) {
    const int note = New({4000, 1000, 3000, 3000});
    lblPinNote_Click(Main, note);
    ASSERT_TRUE(Main.ConView(note).ContainerNote.Visible);
    const int link = SeenLink(OnWorkspace(), {1000, 1000});
    const Point cell = NextFreeCell(Main, InContainer(note));
    EXPECT_EQ(CarryCornerTo(link, OnContainer(note), {900, 1500}), DropAnswer::Copied);
    EXPECT_EQ(Where(link), "container 0 " + fake::Words(cell));
}

TEST_F(Drags, InAScrolledFrameItLiesWhereItIsSeen) {
    const int box = New({4000, 1000, 3000, 3290});
    SeenLink(InContainer(box), {500, 6000}, "/usr/bin/other");
    LayScrollBar(Main, box);
    ScrollContainer(Main, box, 2000);
    ASSERT_EQ(Main.ConView(box).ScrollTop, 2000);
    const int link = SeenLink(OnWorkspace(), {1000, 1000});
    EXPECT_EQ(CarryCornerTo(link, OnContainer(box), {900, 2800}), DropAnswer::Copied);
    EXPECT_EQ(Where(link), "container 0 900,2800");
    EXPECT_EQ(CarryCornerTo(link, OnBack, {1000, 1000}), DropAnswer::Copied) << "and out of it again";
    EXPECT_EQ(Where(link), "workspace 1000,1000");
}

TEST_F(Drags, ANegativeLeftEndsAtExactlyAHundred) {
    const int link = SeenLink(OnWorkspace(), {1000, 1000}), box = New({4000, 1000, 4000, 4000});
    CarryCornerTo(link, OnBack, {-20, 3000});
    EXPECT_EQ(Where(link), "workspace 100,3000");
    CarryCornerTo(link, OnContainer(box), {-20, 1000});
    EXPECT_EQ(Where(link), "container 0 100,1000");
}

TEST_F(Drags, EachOfAGroupIsKeptInsideForItself) {
    const int one = SeenLink(OnWorkspace(), {1000, 1000}), two = SeenLink(OnWorkspace(), {3000, 1500});
    SetSelection(Main, one, true);
    SetSelection(Main, two, true);
    CarryCornerTo(two, OnBack, {1500, 4000});
    EXPECT_EQ(Where(two), "workspace 1500,4000");
    EXPECT_EQ(Where(one), "workspace 100,3500");
}

TEST_F(Drags, OnAPictureItLandsInWhatThePictureLiesIn) {
    const int box = New({4000, 1000, 5000, 5000});
    const int picture = NewPicture(InContainer(box), {1000, 1000, 1500, 900});
    const int link = SeenLink(OnWorkspace(), {1000, 1000});
    EXPECT_EQ(Carry(link, {SurfaceKind::Picture, picture}, {300 + Grip.X, 200 + Grip.Y}), DropAnswer::Copied);
    EXPECT_EQ(Where(link), "container 0 1300,1200");
}

TEST_F(Drags, WithAlignItSnapsToTheGrid) {
    Main.Dock.Align = true;
    Main.Settings.LineSpacing = 155;
    const int link = SeenLink(OnWorkspace(), {1000, 1000});
    CarryCornerTo(link, OnBack, {1600, 3160});
    EXPECT_EQ(Where(link), "workspace 1550,3100");
}

// ---- limits

TEST_F(Drags, AContainerThatHoldsTwoHundredAndFiftyTakesNoMore) {
    const int box = New({4000, 1000, 4000, 4000});
    for (int at = 0; at < MaxShortcutsInContainer - 1; ++at) NewLink(InContainer(box), {500, 400});
    const int one = SeenLink(OnWorkspace(), {1000, 1000}), two = SeenLink(OnWorkspace(), {1000, 2000});
    SetSelection(Main, two, true);
    SetSelection(Main, one, true);
    EXPECT_EQ(CarryCornerTo(one, OnContainer(box), {900, 1500}), DropAnswer::Copied);
    EXPECT_EQ(Where(one), "container 0 900,1500");
    EXPECT_EQ(Where(two), "workspace 1000,2000") << "no room for it";
    EXPECT_EQ(LastBox(),
              "Error 48: There's a limit of 250 shortcuts per container (much less is recommended!)");
    UnselectLinks(Main);
    EXPECT_EQ(CarryCornerTo(two, OnContainer(box), {900, 2500}), DropAnswer::Refused);
    EXPECT_EQ(computer.Questions.Boxes.size(), 2U);
    EXPECT_EQ(Main.Group.UndoStack.size(), 1U);
}

TEST_F(Drags, TheWorkspaceTakesThreeHundredAndFifty) {
    const int box = New({4000, 1000, 4000, 4000});
    for (int at = 0; at < MaxShortcutsOnWorkspace; ++at) NewLink(OnWorkspace(), {500, 6000});
    const int link = SeenLink(InContainer(box), {500, 400});
    EXPECT_EQ(CarryCornerTo(link, OnBack, {9000, 1500}), DropAnswer::Refused);
    EXPECT_EQ(LastBox(), "Error 48: There's a limit of 350 shortcuts in the workspace. Please use containers "
                         "instead.");
}

TEST_F(Drags, WithinAFullContainerThingsStillMove) {
    const int box = New({4000, 1000, 4000, 4000});
    for (int at = 0; at < MaxShortcutsInContainer; ++at) NewLink(InContainer(box), {500, 400});
    const int link = LinksIn(InContainer(box)).back();
    SetNewLinkHeight(Main, link);
    EXPECT_EQ(CarryCornerTo(link, OnContainer(box), {900, 1500}), DropAnswer::Copied);
    EXPECT_TRUE(computer.Questions.Boxes.empty());
}

// ---- what a drag may meet while it runs

TEST_F(Drags, AnObjectThatDiesInTheHandIsNotDropped) {
    const int box = New({4000, 1000, 4000, 4000});
    const int held = SeenLink(OnWorkspace(), {1000, 1000}), other = SeenLink(OnWorkspace(), {1000, 2000});
    SetSelection(Main, held, true);
    SetSelection(Main, other, true);
    computer.Drags.OnDrag = [&](const DragData& data) {
        DeleteShortcut(Main, held);
        return DropObjects(Main, InContainer(box), {900, 900}, data);
    };
    LiftLink(held);
    EXPECT_EQ(Where(other), "workspace 1000,2000");
    EXPECT_TRUE(Main.Group.UndoStack.empty());
}

TEST_F(Drags, OneOfAGroupThatDiesLeavesTheOthersInTheHand) {
    const int box = New({4000, 1000, 4000, 4000});
    const int held = SeenLink(OnWorkspace(), {1000, 1000}), other = SeenLink(OnWorkspace(), {1000, 2000});
    SetSelection(Main, held, true);
    SetSelection(Main, other, true);
    computer.Drags.OnDrag = [&](const DragData& data) {
        DeleteShortcut(Main, other);
        return LetGo(data, OnContainer(box), {FrameCorner(box).X + 1000, FrameCorner(box).Y + 1550});
    };
    LiftLink(held);
    EXPECT_EQ(Where(held), "container 0 900,1500");
}

TEST_F(Drags, AContainerThatDiesUnderTheHandTakesNothing) {
    const int box = New({4000, 1000, 4000, 4000});
    const int link = SeenLink(OnWorkspace(), {1000, 1000});
    computer.Drags.OnDrag = [&](const DragData& data) {
        const auto event = EventAt(OnContainer(box), {900, 900});
        DragOver(Main, OnContainer(box), event, data);
        DeleteContainer(Main, box, false);
        return DragDrop(Main, OnContainer(box), event, data);
    };
    LiftLink(link);
    EXPECT_EQ(Where(link), "workspace 1000,1000");
    EXPECT_EQ(Main.Links.Dragged.Over, -1);
}

TEST_F(Drags, WhenTheProgramEndsMeanwhileNothingIsDone) {
    const int link = SeenLink(OnWorkspace(), {1000, 1000});
    computer.Drags.OnDrag = [&](const DragData& data) {
        Main.IsExiting = true;
        return LetGo(data, OnBack, {5000, 5000});
    };
    LiftLink(link);
    EXPECT_EQ(Where(link), "workspace 1000,1000");
    EXPECT_EQ(Main.Dock.DialogPauses, 0);
}

TEST_F(Drags, ASecondDragAfterTheFirstBeginsAfresh) {
    const int link = SeenLink(OnWorkspace(), {1000, 1000});
    CarryCornerTo(link, OnBack, {3000, 3000});
    EXPECT_TRUE(Main.Links.Carried.empty());
    CarryCornerTo(link, OnBack, {5000, 2000});
    EXPECT_EQ(Where(link), "workspace 5000,2000");
}

TEST_F(Drags, ALockedWorkspaceLetsThingsOutButMovesNothing) {
    Main.Dock.Locked = true;
    const int link = SeenLink(OnWorkspace(), {1000, 1000});
    EXPECT_EQ(CarryCornerTo(link, OnBack, {3000, 3000}), DropAnswer::Refused);
    EXPECT_EQ(Where(link), "workspace 1000,1000");
    EXPECT_EQ(computer.Drags.Started.back().Files, std::vector<std::string>{"/usr/bin/thing"});
    const int picture = NewPicture(OnWorkspace(), {1000, 4000, 1500, 900});
    computer.Drags.OnDrag = [&](const DragData& data) { return LetGo(data, OnBack, {5200, 5300}); };
    Lift({SurfaceKind::Picture, picture}, {200, 300});
    EXPECT_EQ(WhereIsPicture(picture), "workspace 1000,4000");
    Main.Settings.LockOnlyShortcuts = true;
    Lift({SurfaceKind::Picture, picture}, {200, 300});
    EXPECT_EQ(WhereIsPicture(picture), "workspace 5000,5000");
}

TEST_F(Drags, WhileATagViewShowsNothingIsDropped) {
    Main.Group.FrameLinkGroup = true;
    const int link = SeenLink(OnWorkspace(), {1000, 1000});
    EXPECT_EQ(CarryCornerTo(link, OnBack, {3000, 3000}), DropAnswer::Refused);
    DragData files;
    files.Files = {"/usr/bin/thing"};
    EXPECT_EQ(LetGo(files, OnBack, {900, 900}), DropAnswer::Refused);
}

// ---- for other programs

TEST_F(Drags, ForOthersItIsTheFileThatItStandsFor) {
    const int file = SeenLink(OnWorkspace(), {1000, 1000}, "/home/user/a b.txt");
    AddURL(Main, OnWorkspace(), "News", "https://a.example/x", {1000, 2000});
    const int url = Main.NextShortcutIndex - 1, command = SeenLink(OnWorkspace(), {1000, 3000}, "/bin/sh");
    Main.Link(command).Command = true;
    Main.Link(command).Parameters = "ls | wc";
    for (const int link : {file, url, command}) SetSelection(Main, link, true);
    LiftLink(file);
    const DragData& data = computer.Drags.Started.back();
    EXPECT_EQ(data.Objects, (std::vector<DraggedObject>{{1, file}, {1, url}, {1, command}}));
    EXPECT_EQ(data.Files, std::vector<std::string>{"/home/user/a b.txt"});
    EXPECT_EQ(data.Addresses, std::vector<std::string>{"https://a.example/x"});
    EXPECT_EQ(data.Text, "/home/user/a b.txt\nhttps://a.example/x\nls | wc");
}

TEST_F(Drags, AMarkedPathIsGivenOutAsTheFileTreeKnowsIt) {
    computer.Places.Mounts["/media/stick"] = DriveKind::Removable;
    computer.Places.Program = "/media/stick/quillmere";
    const int link = SeenLink(OnWorkspace(), {1000, 1000}, "@/docs/a.txt");
    LiftLink(link);
    EXPECT_EQ(computer.Drags.Started.back().Files, std::vector<std::string>{"/media/stick/docs/a.txt"});
}

// ---- what shows and moves meanwhile

struct DragsOver : Drags {
    DragData Files() {
        DragData data;
        data.Files = {"/home/user/a.txt"};
        return data;
    }
    void Over(SurfaceId surface, Point at) { DragOver(Main, surface, EventAt(surface, at), Files()); }
};

TEST_F(DragsOver, TheContainerThatWouldTakeItIsMarkedUntilThePointerLeaves) {
    const int box = New({4000, 1000, 3000, 3000}), feed = New({8000, 1000, 3000, 3000});
    Main.Con(feed).RSS = true;
    Over(OnContainer(box), {1500, 1500});
    EXPECT_TRUE(IsDropTarget(Main, box));
    Over(OnContainer(feed), {1500, 1500});
    EXPECT_FALSE(IsDropTarget(Main, box));
    EXPECT_FALSE(IsDropTarget(Main, feed));
    Over(OnContainer(box), {1500, 1500});
    DragLeave(Main, OnContainer(box));
    EXPECT_FALSE(IsDropTarget(Main, box));
    Over(OnContainer(box), {1500, 1500});
    Over(OnBack, {1000, 6000});
    EXPECT_FALSE(IsDropTarget(Main, box));
}

TEST_F(DragsOver, TheMarkIsPaintedAndTakenAway) {
    const int box = New({4000, 1000, 3000, 3000});
    Main.Marks.Take();
    Over(OnContainer(box), {1500, 1500});
    EXPECT_FALSE(Main.Marks.Take().Containers.empty());
    Over(OnContainer(box), {1600, 1500});
    EXPECT_TRUE(Main.Marks.Take().Containers.empty()) << "nothing is painted for a move that changes nothing";
    DragLeave(Main, OnContainer(box));
    EXPECT_FALSE(Main.Marks.Take().Containers.empty());
}

TEST_F(DragsOver, NearTheEdgesOfAFrameItScrollsUntilThePointerLeavesThem) {
    const int box = New({4000, 1000, 3000, 3290});
    SeenLink(InContainer(box), {500, 6000});
    LayScrollBar(Main, box);
    Over(OnContainer(box), {1500, 3200});
    Wait(ScrollOnDragTick * 2);
    EXPECT_EQ(Main.ConView(box).ScrollTop, 2 * ScrollOnDragStep);
    Over(OnContainer(box), {1500, 1500});
    Wait(1000);
    EXPECT_EQ(Main.ConView(box).ScrollTop, 2 * ScrollOnDragStep);
    Over(OnContainer(box), {1500, 400});
    Wait(1000);
    EXPECT_EQ(Main.ConView(box).ScrollTop, 0);
    DragLeave(Main, OnContainer(box));
    EXPECT_FALSE(computer.Clock.IsRunning({TimerName::TimerScrollOnDrag}));
}

TEST_F(DragsOver, AFrameThatShowsEverythingDoesNotScroll) {
    const int box = New({4000, 1000, 3000, 3290});
    Over(OnContainer(box), {1500, 3200});
    EXPECT_FALSE(computer.Clock.IsRunning({TimerName::TimerScrollOnDrag}));
}

TEST_F(DragsOver, AFrameThatDiesWhileItScrollsIsForgotten) {
    const int box = New({4000, 1000, 3000, 3290});
    SeenLink(InContainer(box), {500, 6000});
    LayScrollBar(Main, box);
    Over(OnContainer(box), {1500, 3200});
    DeleteContainer(Main, box, false);
    Wait(1000);
    EXPECT_FALSE(computer.Clock.IsRunning({TimerName::TimerScrollOnDrag}));
}

TEST_F(DragsOver, ATileOpensUnderAStillDragAndStaysOpenForTheDrop) {
    const int tile = NewTile(3000, 3000);
    const Point at{350, 400};
    computer.Windows.Cursor = EventAt(OnContainer(tile), at).Screen;
    Over(OnContainer(tile), at);
    Wait(600);
    EXPECT_FALSE(IsShrunk(Main, tile));
    const Point inside{1500, 1500};
    Over(OnContainer(tile), inside);
    Wait(1000);
    EXPECT_FALSE(IsShrunk(Main, tile)) << "entering its own frame does not close it";
}

TEST_F(DragsOver, AFoldedContainerUnfoldsUnderAStillDrag) {
    const int box = New({4000, 1000, 3000, 3000});
    FoldUnfoldContainer(Main, box, false);
    const Point at{1000, 150};
    computer.Windows.Cursor = EventAt(OnContainer(box), at).Screen;
    Over(OnContainer(box), at);
    Wait(600);
    EXPECT_FALSE(IsFolded(Main, box));
}

} // namespace
} // namespace quill
