#include "dock/workspace_lock.h"

#include "appearance/paint.h"
#include "containers/commands.h"
#include "containers/con_properties.h"
#include "containers/dragging.h"
#include "containers/gestures.h"
#include "containers/lock.h"
#include "containers/resize.h"
#include "containers/rubber_band.h"
#include "containers/undo.h"
#include "core/menus.h"
#include "dock/docking.h"
#include "fake/canvas.h"
#include "persistence/save.h"
#include "shortcuts/drag_fixture.h"

namespace quill {
namespace {

constexpr TimerId briefTimer{TimerName::TimerBrieflyUnlock}, markTimer{TimerName::TimeLock};
constexpr int seconds = 10, briefTime = seconds * 1000;

// Three containers, two shortcuts on the workspace, one and another in the first container, and a picture.
struct LockFixture : test::DragFixture {
    int first, second, third, pear, apple, inside, picture;

    LockFixture() {
        Main.Settings.Effect = false;
        first = New({600, 4000, 3000, 3000}, "First");
        second = New({4500, 4300, 2000, 2000}, "Second");
        third = New({8000, 5000, 3000, 3000}, "Third");
        pear = Named(OnWorkspace(), {1000, 1000}, "pear");
        apple = Named(OnWorkspace(), {1000, 2000}, "apple");
        inside = Named(InContainer(first), {400, 400}, "inside");
        Named(InContainer(first), {400, 1400}, "below");
        picture = NewPicture(OnWorkspace(), {6000, 600, 1500, 900});
        Main.Group.CurrentContainer = first;
        Main.Links.CurrentShortcut = pear;
    }
    int Named(Parent in, Point at, const std::string& name) {
        const int link = SeenLink(in, at, "/usr/bin/" + name);
        Main.Link(link).FullCaption = name;
        return link;
    }
    void Lock(int briefly) {
        Main.Settings.QuicklyUnlock = static_cast<std::uint8_t>(briefly);
        mnuLock_Click(Main);
        ASSERT_TRUE(Main.Dock.Locked);
    }
    bool IsBrieflyOpen() { return Main.Dock.BrieflyUnlocked && !Main.Dock.Locked; }
    bool Runs(TimerId timer) { return computer.Clock.IsRunning(timer); }

    // Every place and size.
    std::string Places() {
        std::string words;
        for (const auto& row : Live(Main.Containers)) words += BoxWords(row.Index) + "\n";
        for (const auto& row : Live(Main.Shortcuts))
            words += Where(row.Index) + " " + std::to_string(Main.Link(row.Index).FontSize) + "\n";
        for (const auto& row : Live(Main.Pictures)) words += WhereIsPicture(row.Index) + "\n";
        return words;
    }
    std::string SavedLock() {
        const auto file = computer.Files.Read(fake::SettingsFolder + "/Quillmere.REC", 1 << 20);
        if (!file) return "(none)";
        const std::string key = "[LOCKED]\r\n";
        return file.Value().substr(file.Value().find(key) + key.size(), 1);
    }

    // ---- what a person does
    void SelectLinks() {
        for (const int link : {pear, apple}) SetSelection(Main, link, true);
    }
    void SelectBoxes(std::initializer_list<int> boxes) {
        for (const int box : boxes) SelectContainer(Main, box);
    }
    MouseEvent Hand(SurfaceId surface, Point at) { return MouseAt(surface, at); }
    void DragTitle(int box, Point by) {
        const Point grip{700, 120};
        MouseDown(Main, OnContainer(box), Hand(OnContainer(box), grip));
        const auto from = Main.Group.Drag.PressScreen;
        MouseEvent move;
        move.Button = MouseButton::Left;
        move.Screen = {from.X + by.X, from.Y + by.Y};
        MouseMove(Main, OnContainer(box), move);
        MouseUp(Main, OnContainer(box), move);
    }
    void DragMark(int box) {
        const Point mark{Box(box).Width - 100, Box(box).Height - 100};
        MouseDown(Main, OnContainer(box), Hand(OnContainer(box), mark));
        MouseUp(Main, OnContainer(box), Hand(OnContainer(box), {mark.X + 300, mark.Y + 450}));
    }
    void CarryPicture() {
        computer.Drags.OnDrag = [&](const DragData& data) { return LetGo(data, OnBack, {9000, 2000}); };
        Lift({SurfaceKind::Picture, picture}, {200, 300});
    }
    void DropFile() {
        DragData data;
        data.Files = {"/home/user/letter"};
        LetGo(data, OnBack, {3000, 2000});
    }
    void GiveSpacing() {
        frmConProperties dialog(Main);
        dialog.txtSpacing = "27";
        EXPECT_EQ(dialog.OKButton_Click(), "");
    }
};

struct EditRow {
    const char* Name;
    Edit What;
    void (*Do)(LockFixture&);
};
void PrintTo(const EditRow& row, std::ostream* out) {
    *out << row.Name;
}

const EditRow edits[] = {
    {"CarryingAShortcut", Edit::Shortcuts,
     [](LockFixture& it) {
         it.CarryCornerTo(it.pear, it.OnBack, {3000, 2500});
     }},
    {"CarryingAShortcutIntoAContainer", Edit::Shortcuts,
     [](LockFixture& it) {
         it.CarryCornerTo(it.pear, it.OnContainer(it.first), {900, 900});
     }},
    {"DroppingAFileOfAnotherProgram", Edit::Shortcuts, [](LockFixture& it) { it.DropFile(); }},
    {"CarryingAPicture", Edit::Containers, [](LockFixture& it) { it.CarryPicture(); }},
    {"MovingShortcutsByKey", Edit::Shortcuts, [](LockFixture& it) { MoveShortcutsByKey(it.Main, 150, 0); }},
    {"DraggingAContainer", Edit::Containers,
     [](LockFixture& it) {
         it.DragTitle(it.third, {-900, -600});
     }},
    {"MovingAContainerByKey", Edit::Containers,
     [](LockFixture& it) { MoveContainersByKey(it.Main, 150, 0); }},
    {"DraggingTheResizeMark", Edit::Containers, [](LockFixture& it) { it.DragMark(it.first); }},
    {"AutoResize", Edit::Containers, [](LockFixture& it) { AutoResizeContainer(it.Main, it.second); }},
    {"ResizingByKey", Edit::Containers, [](LockFixture& it) { ResizeContainersByKey(it.Main, 150, 0); }},
    {"Sorting", Edit::Shortcuts,
     [](LockFixture& it) {
         it.SelectLinks();
         mnuSortShortcuts_Click(it.Main, 0);
     }},
    {"LargerText", Edit::Shortcuts,
     [](LockFixture& it) {
         it.SelectLinks();
         MakeIconsLarger_Click(it.Main);
     }},
    {"SmallerText", Edit::Shortcuts,
     [](LockFixture& it) {
         it.SelectLinks();
         MakeIconsSmaller_Click(it.Main);
     }},
    {"AnotherSizeOfText", Edit::Shortcuts,
     [](LockFixture& it) {
         it.SelectLinks();
         it.computer.Questions.Type("24");
         MakeIconsSizeDifferent_Click(it.Main);
     }},
    {"LineSpacing", Edit::Shortcuts,
     [](LockFixture& it) {
         it.Main.Group.ContainerHasFocus = true;
         it.computer.Questions.Type("27");
         mnuLineSpacing_Click(it.Main);
     }},
    {"SpacingInTheProperties", Edit::Shortcuts, [](LockFixture& it) { it.GiveSpacing(); }},
    {"Aligning", Edit::Containers,
     [](LockFixture& it) {
         it.SelectBoxes({it.second, it.third});
         mnuAlignContainers_Click(it.Main, 0);
     }},
    {"SpacingEvenly", Edit::Containers,
     [](LockFixture& it) {
         it.SelectBoxes({it.first, it.second, it.third});
         mnuAlignContainers_Click(it.Main, 2);
     }},
    {"Switching", Edit::Containers,
     [](LockFixture& it) {
         it.SelectBoxes({it.first, it.second});
         mnuConSwitchPlaces_Click(it.Main);
     }},
    {"MatchingSizes", Edit::Containers,
     [](LockFixture& it) {
         it.SelectBoxes({it.second});
         it.computer.Questions.Answer(AnswerYes);
         mnuSetContainerSize_Click(it.Main);
     }},
};

struct LockedEdit : LockFixture, testing::WithParamInterface<EditRow> {
    void Do() { GetParam().Do(*this); }
};

TEST_P(LockedEdit, IsDoneWhereNothingIsLocked) {
    const auto before = Places();
    Do();
    EXPECT_NE(Places(), before);
}

TEST_P(LockedEdit, IsRefusedByTheLock) {
    Lock(0);
    const auto before = Places();
    Do();
    EXPECT_EQ(Places(), before);
    EXPECT_TRUE(Main.Dock.Locked);
    EXPECT_FALSE(Main.Dock.BrieflyUnlocked || Runs(briefTimer));
}

TEST_P(LockedEdit, UnlocksBrieflyAndIsDone) {
    Lock(seconds);
    const auto before = Places();
    Do();
    EXPECT_NE(Places(), before);
    EXPECT_TRUE(IsBrieflyOpen());
    EXPECT_EQ(computer.Clock.IntervalOf(briefTimer), briefTime);
    const auto after = Places();
    Wait(briefTime);
    EXPECT_TRUE(Main.Dock.Locked);
    EXPECT_EQ(Places(), after) << "locking takes nothing back";
}

TEST_P(LockedEdit, OfContainersAndPicturesIsFreeWhereOnlyShortcutsAreLocked) {
    Lock(0);
    Main.Settings.LockOnlyShortcuts = true;
    const auto before = Places();
    Do();
    EXPECT_EQ(Places() != before, GetParam().What == Edit::Containers);
    EXPECT_TRUE(Main.Dock.Locked);
}

TEST_P(LockedEdit, ThatIsFreeOpensNoLock) {
    Lock(seconds);
    Main.Settings.LockOnlyShortcuts = true;
    Do();
    EXPECT_EQ(IsBrieflyOpen(), GetParam().What == Edit::Shortcuts);
}

INSTANTIATE_TEST_SUITE_P(Table, LockedEdit, testing::ValuesIn(edits),
                         [](const auto& row) { return std::string(row.param.Name); });

// ---- what opens nothing

struct LockedWorkspace : LockFixture {};

TEST_F(LockedWorkspace, NothingIsTakenBackThatTheLockHolds) {
    const std::string before = Places();
    MoveContainersByKey(Main, 300, 0);
    ASSERT_NE(Places(), before);
    const std::string moved = Places();
    Lock(0);
    mnuUndoRedo_Click(Main, 0);
    EXPECT_EQ(Places(), moved);
    EXPECT_EQ(Main.Group.UndoStack.size(), 1U) << "it can be taken back later";
    mnuLock_Click(Main);
    mnuUndoRedo_Click(Main, 0);
    EXPECT_EQ(Places(), before);
}

TEST_F(LockedWorkspace, AQuestionThatIsCancelledOpensNothing) {
    Lock(seconds);
    SelectLinks();
    SelectBoxes({second});
    computer.Questions.CancelInput();
    MakeIconsSizeDifferent_Click(Main);
    computer.Questions.CancelInput();
    mnuLineSpacing_Click(Main);
    computer.Questions.Answer(AnswerNo);
    mnuSetContainerSize_Click(Main);
    EXPECT_EQ(computer.Questions.Inputs.size(), 2U);
    EXPECT_EQ(computer.Questions.Boxes.size(), 1U);
    EXPECT_TRUE(Main.Dock.Locked);
}

TEST_F(LockedWorkspace, ALockThatStaysAsksNothingThatItWouldRefuse) {
    Lock(0);
    SelectLinks();
    SelectBoxes({second});
    MakeIconsSizeDifferent_Click(Main);
    mnuLineSpacing_Click(Main);
    mnuSetContainerSize_Click(Main);
    EXPECT_TRUE(computer.Questions.Inputs.empty());
    EXPECT_TRUE(computer.Questions.Boxes.empty());
}

TEST_F(LockedWorkspace, ADragThatOnlyPassesOverOpensNothing) {
    Lock(seconds);
    DragData data;
    data.Files = {"/home/user/letter"};
    EXPECT_EQ(DragOver(Main, OnBack, EventAt(OnBack, {3000, 2000}), data), DropAnswer::Copied);
    DragLeave(Main, OnBack);
    EXPECT_TRUE(Main.Dock.Locked);
}

TEST_F(LockedWorkspace, AShortcutThatIsCarriedOutToAnotherProgramOpensNothing) {
    Lock(seconds);
    computer.Drags.OnDrag = [](const DragData&) { return DropAnswer::Copied; };
    LiftLink(pear);
    EXPECT_EQ(computer.Drags.Started.size(), 1U);
    EXPECT_TRUE(Main.Dock.Locked);
}

TEST_F(LockedWorkspace, AClickOnATitleOpensNothing) {
    Lock(seconds);
    DragTitle(third, {});
    EXPECT_TRUE(Main.Dock.Locked);
}

TEST_F(LockedWorkspace, AHeldContainerDoesNotOpenItsTileUnderTheHand) {
    const int tile = NewTile(4500, 600);
    Lock(0);
    DragTitle(tile, {900, 600});
    EXPECT_TRUE(IsShrunk(Main, tile));
    EXPECT_EQ(Main.Group.Drag.Pressed, -1);
    EXPECT_FALSE(Main.Dock.WorkspaceDragging);
}

TEST_F(LockedWorkspace, StartingFoldingAndShrinkingNeedNoUnlocking) {
    Lock(seconds);
    lblFoldUnfold_Click(Main, first);
    shapeShrink_Click(Main, second);
    StartShortcut(Main, pear, false, "", false, false);
    EXPECT_TRUE(Main.Dock.Locked);
}

// ---- menus

struct MenuRow {
    const char* Name;
    Edit What;
};

TEST_F(LockedWorkspace, MenusOfferWhatTheLockWouldOpenForAndNothingElse) {
    const MenuRow rows[] = {
        {"mnuSortShortcuts(0)", Edit::Shortcuts},    {"mnuSortShortcuts(1)", Edit::Shortcuts},
        {"mnuLineSpacing", Edit::Shortcuts},         {"MakeIconsLarger", Edit::Shortcuts},
        {"MakeIconsSmaller", Edit::Shortcuts},       {"MakeIconsSizeDifferent", Edit::Shortcuts},
        {"mnuConSwitchPlaces", Edit::Containers},    {"mnuSetContainerSize", Edit::Containers},
        {"mnuAlignContainers(0)", Edit::Containers}, {"mnuAlignContainers(1)", Edit::Containers},
        {"mnuAlignContainers(2)", Edit::Containers},
    };
    SelectLinks();
    SelectBoxes({first, second, third});
    const auto offered = [&](const MenuRow& row) { return MayRun(Main, *EntryByName(row.Name)); };
    for (const auto& row : rows) EXPECT_TRUE(offered(row)) << row.Name;
    Lock(0);
    for (const auto& row : rows) EXPECT_FALSE(offered(row)) << row.Name;
    Main.Settings.LockOnlyShortcuts = true;
    for (const auto& row : rows) EXPECT_EQ(offered(row), row.What == Edit::Containers) << row.Name;
    Main.Settings.LockOnlyShortcuts = false;
    Main.Settings.QuicklyUnlock = seconds;
    for (const auto& row : rows) EXPECT_TRUE(offered(row)) << row.Name;
    EXPECT_TRUE(Main.Dock.Locked) << "asking opens nothing";
}

// ---- the brief unlock and its end

TEST_F(LockedWorkspace, ItLocksItselfAfterTheTimeOfTheSettingAndTheMarkShowsForAMoment) {
    Lock(seconds);
    BrieflyUnlock(Main);
    Wait(briefTime - 1);
    EXPECT_TRUE(IsBrieflyOpen());
    EXPECT_FALSE(Main.View.ImgLock.Visible);
    Wait(1);
    EXPECT_TRUE(Main.Dock.Locked && !Main.Dock.BrieflyUnlocked);
    EXPECT_TRUE(Main.View.ImgLock.Visible);
    EXPECT_FALSE(Runs(briefTimer));
    Wait(LockMarkTime - 1);
    EXPECT_TRUE(Main.View.ImgLock.Visible);
    Wait(1);
    EXPECT_FALSE(Main.View.ImgLock.Visible || Runs(markTimer));
    EXPECT_TRUE(Main.Dock.Locked);
}

TEST_F(LockedWorkspace, TheSettingIsInSeconds) {
    Lock(0);
    for (const int setting : {1, 11, 20, 255}) {
        Main.Settings.QuicklyUnlock = static_cast<std::uint8_t>(setting);
        BrieflyUnlock(Main);
        EXPECT_EQ(computer.Clock.IntervalOf(briefTimer), setting * 1000);
        Wait(setting * 1000);
        EXPECT_TRUE(Main.Dock.Locked);
    }
}

TEST_F(LockedWorkspace, WithoutTheSettingOrWithoutALockNothingIsUnlocked) {
    Lock(0);
    BrieflyUnlock(Main);
    EXPECT_TRUE(Main.Dock.Locked && !Runs(briefTimer));
    Main.Settings.QuicklyUnlock = seconds;
    mnuLock_Click(Main);
    BrieflyUnlock(Main);
    EXPECT_FALSE(Main.Dock.Locked || Main.Dock.BrieflyUnlocked || Runs(briefTimer));
    Wait(2 * briefTime);
    EXPECT_FALSE(Main.Dock.Locked) << "what was not locked does not lock itself";
}

TEST_F(LockedWorkspace, TheButtonsTellWhetherItIsLockedNow) {
    const auto shows = [&] { return Seen(OnBack); };
    EXPECT_NE(shows().find(" PicUnLockToolbar"), std::string::npos);
    Lock(seconds);
    EXPECT_NE(shows().find(" PicLockToolbar"), std::string::npos);
    BrieflyUnlock(Main);
    EXPECT_NE(shows().find(" PicUnLockToolbar"), std::string::npos);
    EXPECT_EQ(shows().find("ImgLock"), std::string::npos);
    Wait(briefTime);
    EXPECT_NE(shows().find(" PicLockToolbar"), std::string::npos);
    EXPECT_NE(shows().find(" ImgLock "), std::string::npos);
    Wait(LockMarkTime);
    EXPECT_EQ(shows().find("ImgLock"), std::string::npos);
}

TEST_F(LockedWorkspace, AnotherEditWhileItIsOpenDoesNotBeginTheTimeAnew) {
    Lock(seconds);
    MoveContainersByKey(Main, 150, 0);
    Wait(briefTime - 1000);
    MoveContainersByKey(Main, 150, 0);
    Wait(1000);
    EXPECT_TRUE(Main.Dock.Locked);
}

TEST_F(LockedWorkspace, AnEditWhileTheMarkShowsOpensItOnceMore) {
    Lock(seconds);
    BrieflyUnlock(Main);
    Wait(briefTime);
    MoveContainersByKey(Main, 150, 0);
    EXPECT_TRUE(IsBrieflyOpen());
    EXPECT_FALSE(Main.View.ImgLock.Visible || Runs(markTimer));
    Wait(LockMarkTime);
    EXPECT_TRUE(IsBrieflyOpen()) << "the mark's end is not the unlocking's";
}

// ---- it waits for what is in hand

struct BusyRow {
    const char* Name;
    void (*Begin)(LockFixture&);
    void (*End)(LockFixture&);
};

const BusyRow busy[] = {
    {"a held title",
     [](LockFixture& it) {
         BeginContainerDrag(it.Main, it.third, it.Hand(it.OnContainer(it.third), {700, 120}));
     },
     [](LockFixture& it) { CancelContainerDrag(it.Main); }},
    {"a resize mark",
     [](LockFixture& it) {
         ResizeSymbol_MouseDown(it.Main, it.first, it.Hand(it.OnContainer(it.first), {2900, 2900}));
     },
     [](LockFixture& it) { CancelResize(it.Main); }},
    {"a rubber band",
     [](LockFixture& it) {
         picBack_MouseDown(it.Main, it.Hand(it.OnBack, {3000, 600}));
     },
     [](LockFixture& it) { UnloadSelection(it.Main); }},
    {"a dialog", [](LockFixture& it) { ++it.Main.Dock.DialogPauses; },
     [](LockFixture& it) { --it.Main.Dock.DialogPauses; }},
    {"a drag of another program",
     [](LockFixture& it) {
         DragData data;
         data.Files = {"/home/user/letter"};
         DragOver(it.Main, it.OnBack, it.EventAt(it.OnBack, {3000, 2000}), data);
     },
     [](LockFixture& it) { DragLeave(it.Main, it.OnBack); }},
};

TEST_F(LockedWorkspace, LockingWaitsForAHandOrADialog) {
    Lock(seconds);
    for (const auto& row : busy) {
        BrieflyUnlock(Main);
        row.Begin(*this);
        Wait(3 * briefTime);
        EXPECT_TRUE(IsBrieflyOpen()) << row.Name;
        row.End(*this);
        EXPECT_TRUE(IsBrieflyOpen()) << row.Name;
        Wait(BusyHandRecheck);
        EXPECT_TRUE(Main.Dock.Locked) << row.Name;
        EXPECT_TRUE(Main.View.ImgLock.Visible) << row.Name;
    }
}

TEST_F(LockedWorkspace, AContainerThatIsHeldWhenTheTimeIsUpIsPutDownWhereTheHandLetsGo) {
    Lock(seconds);
    MouseDown(Main, OnContainer(third), Hand(OnContainer(third), {700, 120}));
    const auto from = Main.Group.Drag.PressScreen;
    MouseEvent move;
    move.Button = MouseButton::Left;
    move.Screen = {from.X - 900, from.Y - 600};
    MouseMove(Main, OnContainer(third), move);
    Wait(2 * briefTime);
    MouseUp(Main, OnContainer(third), move);
    EXPECT_EQ(BoxWords(third), "7100,4400 3000x3000");
    Wait(BusyHandRecheck);
    EXPECT_TRUE(Main.Dock.Locked);
}

TEST_F(LockedWorkspace, TextSizesThatWereAskedForBeforeTheTimeWasUpAreGiven) {
    Lock(seconds);
    BrieflyUnlock(Main);
    SelectLinks();
    computer.Questions.OnInput = [&](InputQuestion&) { Wait(2 * briefTime); };
    computer.Questions.Type("24");
    MakeIconsSizeDifferent_Click(Main);
    EXPECT_EQ(Main.Link(pear).FontSize, 24);
}

// ---- the command, and what is saved

TEST_F(LockedWorkspace, EveryToggleSaves) {
    EXPECT_EQ(SavedLock(), "(none)");
    mnuLock_Click(Main);
    EXPECT_EQ(SavedLock(), "1");
    mnuLock_Click(Main);
    EXPECT_EQ(SavedLock(), "0");
}

TEST_F(LockedWorkspace, TheCommandDuringABriefUnlockLocksAtOnceAndForGood) {
    Lock(seconds);
    BrieflyUnlock(Main);
    mnuLock_Click(Main);
    EXPECT_TRUE(Main.Dock.Locked);
    EXPECT_FALSE(Main.Dock.BrieflyUnlocked || Runs(briefTimer) || Main.View.ImgLock.Visible);
    EXPECT_EQ(SavedLock(), "1");
    mnuLock_Click(Main);
    Wait(2 * briefTime);
    EXPECT_FALSE(Main.Dock.Locked) << "no timer is left over";
    EXPECT_EQ(SavedLock(), "0");
}

TEST_F(LockedWorkspace, TheCommandWhileTheMarkShowsTakesTheMarkAway) {
    Lock(seconds);
    BrieflyUnlock(Main);
    Wait(briefTime);
    mnuLock_Click(Main);
    EXPECT_FALSE(Main.Dock.Locked || Main.View.ImgLock.Visible || Runs(markTimer));
}

TEST_F(LockedWorkspace, ABriefUnlockChangesNothingOfWhatIsSaved) {
    Lock(seconds);
    MoveContainersByKey(Main, 150, 0); // a recovery save follows the edit
    SaveWorkspace(Main, true, false);
    EXPECT_TRUE(IsBrieflyOpen()) << "a recovery save does not end it";
    EXPECT_EQ(SavedLock(), "1");
}

TEST_F(LockedWorkspace, ASaveByThePersonEndsTheBriefUnlockWithoutTheMark) {
    Lock(seconds);
    BrieflyUnlock(Main);
    mnuSave_Click(Main);
    EXPECT_TRUE(Main.Dock.Locked);
    EXPECT_FALSE(Main.Dock.BrieflyUnlocked || Main.View.ImgLock.Visible || Runs(briefTimer) ||
                 Runs(markTimer));
    const auto file = computer.Files.Read(fake::SettingsFolder + "/Quillmere.ini", 1 << 20);
    EXPECT_NE(file.Value().find("[LOCKED]\r\n1\r\n"), std::string::npos);
}

TEST_F(LockedWorkspace, ASaveThatIsRefusedEndsNothing) {
    Lock(seconds);
    BrieflyUnlock(Main);
    Main.g_DontSave = true;
    SaveWorkspace(Main, false, false);
    EXPECT_TRUE(IsBrieflyOpen());
}

TEST_F(LockedWorkspace, ContainersThatAreSavedForGoodEndItToo) {
    Lock(seconds);
    BrieflyUnlock(Main);
    SaveContainers(Main, false);
    EXPECT_TRUE(Main.Dock.Locked);
}

// ---- the mark

TEST_F(LockedWorkspace, TheMarkStandsClearOfCaptionAndButtons) {
    Lock(seconds);
    const auto wide = Main.View.lblCaption.Place.Width;
    BrieflyUnlock(Main);
    Wait(briefTime);
    const auto& view = Main.View;
    for (const auto* other : {&view.lblCaption, &view.PicMenu, &view.PicLockToolbar, &view.PicDock})
        EXPECT_FALSE(view.ImgLock.Place.Intersects(other->Place)) << fake::Words(other->Place);
    EXPECT_EQ(fake::Words(view.ImgLock.Place), "10670,75 240x240");
    EXPECT_LT(view.lblCaption.Place.Width, wide);
    Wait(LockMarkTime);
    EXPECT_EQ(view.lblCaption.Place.Width, wide);
}

TEST_F(LockedWorkspace, TheMarkIsPaintedLikeTheLockButton) {
    Lock(seconds);
    BrieflyUnlock(Main);
    Wait(briefTime);
    fake::FakeCanvas canvas;
    PaintSurface(Main, OnBack, canvas);
    EXPECT_EQ(canvas.LinesWith("or lock").size(), 2U);
}

TEST_F(LockedWorkspace, TheMarkIsAButtonThatSaysWhatItDoes) {
    Lock(seconds);
    BrieflyUnlock(Main);
    Wait(briefTime);
    const auto mark = Find(OnBack, ElementKind::ImgLock, -1);
    EXPECT_EQ(mark.Role, Role::Button);
    EXPECT_EQ(mark.Name, "Briefly Unlock");
    EXPECT_EQ(mark.Action, "Briefly Unlock");
}

struct LockedDesk : testing::Test {
    fake::Desk desk;
    void SetUp() override {
        desk.Files().Put(
            desk.Settings("Quillmere.ini"),
            "108\r\n[X]\r\n1500\r\n[Y]\r\n1500\r\n[W]\r\n9000\r\n[H]\r\n6000\r\n[LOCKED]\r\n1\r\n"
            "[Quickly Unlock]\r\n10\r\n");
        desk.StartWorkspace();
        EXPECT_TRUE(desk.Main->Dock.Locked);
    }
};

TEST_F(LockedDesk, AClickOnTheMarkUnlocksBrieflyOnceMore) {
    BrieflyUnlock(*desk.Main);
    desk.Wait(briefTime);
    desk.ClickOn(ElementKind::ImgLock);
    EXPECT_TRUE(desk.Main->Dock.BrieflyUnlocked);
    EXPECT_FALSE(desk.Sees(ElementKind::ImgLock));
    desk.Wait(briefTime);
    EXPECT_TRUE(desk.Main->Dock.Locked);
}

TEST_F(LockedDesk, ABrieflyUnlockedWorkspaceThatDiesOrEndsComesBackLocked) {
    BrieflyUnlock(*desk.Main);
    desk.RestartAfterKill();
    EXPECT_TRUE(desk.Main->Dock.Locked);
    BrieflyUnlock(*desk.Main);
    desk.Restart();
    EXPECT_TRUE(desk.Main->Dock.Locked);
    EXPECT_FALSE(desk.Main->Dock.BrieflyUnlocked || desk.Sees(ElementKind::ImgLock));
}

} // namespace
} // namespace quill
