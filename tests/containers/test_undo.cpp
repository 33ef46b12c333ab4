#include "containers/undo.h"
#include "containers/workspace_fixture.h"

#include "appearance/colors.h"
#include "containers/selection.h"

#include <algorithm>
#include <map>
#include <random>

namespace quill {
namespace {

struct Undo : test::WorkspaceFixture {
    // As a gesture does it: the place before, then the move.
    void MoveBox(int index, float left, float top) {
        const auto before = PlaceNow(Main, MovedKind::Container, index);
        Box(index).Left = left;
        Box(index).Top = top;
        Main.Con(index).SetSize({.X = left, .Y = top});
        PushMove(Main, {before});
    }
    void MoveLink(int link, Parent to, Point at) {
        const auto before = PlaceNow(Main, MovedKind::Shortcut, link);
        if (MoveShortcutTo(Main, link, to, at)) PushMove(Main, {before});
    }
    int NewPicture(Parent in, const Rect& place) {
        bool ok = false;
        computer.Files.Put("/p.png", "x");
        computer.Images.Sizes["/p.png"] = {100, 100};
        AddPicture(Main, "/p.png", in, place, ok);
        EXPECT_TRUE(ok);
        return Main.NextPictureIndex - 1;
    }
    std::string LinkPlace(int link) {
        const auto& view = Main.LinkView(link);
        const auto parent = view.In.Kind == ParentKind::picBack ? "back" : std::to_string(view.In.Index);
        return parent + " " + fake::Words(Point{view.lblShortcut.Place.Left, view.lblShortcut.Place.Top});
    }
    std::string BoxPlace(int index) { return fake::Words(Point{Box(index).Left, Box(index).Top}); }
    void Fill(Parent in, int count) {
        for (int n = 0; n < count; ++n) NewLink(in, {300, 400});
    }
    std::string Depths() {
        return std::to_string(Main.Group.UndoStack.size()) + "/" +
               std::to_string(Main.Group.RedoStack.size());
    }
};

TEST_F(Undo, WithNothingToUndoEverythingStaysAsItIs) {
    const int box = New({600, 700, 3000, 3000});
    const int link = NewLink(OnWorkspace(), {2000, 1000});
    for (const bool undo : {true, false}) UndoMove(Main, undo);
    mnuUndoRedo_Click(Main, 0);
    mnuUndoRedo_Click(Main, 1);
    EXPECT_EQ(BoxPlace(box), "600,700");
    EXPECT_EQ(LinkPlace(link), "back 2000,1000");
    EXPECT_EQ(Depths(), "0/0");
    EXPECT_FALSE(computer.Files.Exists(fake::SettingsFolder + "/Containers")) << "nothing is saved";
}

TEST_F(Undo, AContainerGoesBackAndForth) {
    const int box = New({600, 700, 3000, 3000});
    MoveBox(box, 4000, 5000);
    mnuUndoRedo_Click(Main, 0);
    EXPECT_EQ(BoxPlace(box), "600,700");
    EXPECT_EQ(Main.Con(box).StoredSize().X, 600) << "and belongs there";
    mnuUndoRedo_Click(Main, 1);
    EXPECT_EQ(BoxPlace(box), "4000,5000");
    mnuUndoRedo_Click(Main, 1);
    EXPECT_EQ(BoxPlace(box), "4000,5000");
    mnuUndoRedo_Click(Main, 0);
    EXPECT_EQ(BoxPlace(box), "600,700");
}

TEST_F(Undo, AShortcutReturnsToItsFormerParent) {
    const int box = New({600, 700, 3000, 3000});
    const int link = NewLink(InContainer(box), {400, 500});
    MoveLink(link, OnWorkspace(), {8000, 2000});
    EXPECT_EQ(LinkPlace(link), "back 8000,2000");
    UndoMove(Main, true);
    EXPECT_EQ(LinkPlace(link), "0 400,500");
    UndoMove(Main, false);
    EXPECT_EQ(LinkPlace(link), "back 8000,2000");
}

TEST_F(Undo, APictureReturnsToItsFormerParent) {
    const int box = New({600, 700, 3000, 3000});
    const int picture = NewPicture(OnWorkspace(), {5000, 1000, 900, 900});
    const auto before = PlaceNow(Main, MovedKind::Picture, picture);
    ASSERT_TRUE(MovePictureTo(Main, picture, InContainer(box), {200, 300}));
    PushMove(Main, {before});
    UndoMove(Main, true);
    EXPECT_EQ(Main.PicView(picture).In, OnWorkspace());
    EXPECT_EQ(fake::Words(Main.PicView(picture).PicContainer), "5000,1000 900x900");
    UndoMove(Main, false);
    EXPECT_EQ(Main.PicView(picture).In, InContainer(box));
}

TEST_F(Undo, WhatOneGestureMovedGoesBackTogether) {
    const int one = New({600, 700, 3000, 3000}), two = New({4000, 700, 3000, 3000});
    MoveStep step{PlaceNow(Main, MovedKind::Container, one), PlaceNow(Main, MovedKind::Container, two)};
    Box(one).Left = 700;
    Box(two).Left = 4100;
    PushMove(Main, step);
    UndoMove(Main, true);
    EXPECT_EQ(BoxPlace(one) + " " + BoxPlace(two), "600,700 4000,700");
    UndoMove(Main, false);
    EXPECT_EQ(BoxPlace(one) + " " + BoxPlace(two), "700,700 4100,700");
}

TEST_F(Undo, TheIconGoesWithItsLabel) {
    const int box = New({600, 700, 3000, 3000});
    const int link = NewLink(InContainer(box), {400, 500});
    MoveLink(link, OnWorkspace(), {8000, 2000});
    EXPECT_EQ(Main.LinkView(link).picShortcut, IconPlace(Main, link));
    UndoMove(Main, true);
    EXPECT_EQ(Main.LinkView(link).picShortcut, IconPlace(Main, link));
}

TEST_F(Undo, AMovedShortcutTakesTheColourOfWhereItLies) {
    const int box = New({600, 700, 3000, 3000});
    SetLabelColors(Main, box, Rgb(10, 200, 30));
    Main.View.ForeColor = Rgb(1, 2, 3);
    const int link = NewLink(OnWorkspace(), {8000, 2000});
    MoveLink(link, InContainer(box), {400, 500});
    EXPECT_EQ(Main.LinkView(link).lblShortcut.ForeColor, Rgb(10, 200, 30));
    SetSelection(Main, link, true);
    UndoMove(Main, true);
    EXPECT_TRUE(Main.Link(link).Selected) << "the selection stays";
    SetSelection(Main, link, false);
    EXPECT_EQ(Main.LinkView(link).lblShortcut.ForeColor, Rgb(1, 2, 3));
}

TEST_F(Undo, AShortcutThatATagViewHidesIsSeenAgainWhereItGoesBack) {
    const int box = New({600, 700, 3000, 3000});
    const int link = NewLink(OnWorkspace(), {8000, 2000});
    MoveLink(link, InContainer(box), {400, 500});
    Main.Link(link).TagHidden = true;
    Main.LinkView(link).Visible = false;
    UndoMove(Main, true);
    EXPECT_TRUE(Main.LinkView(link).Visible);
    EXPECT_FALSE(Main.Link(link).TagHidden);
}

TEST_F(Undo, TheDepthIsAHundredAndTheOldestIsLost) {
    const int box = New({0, 700, 3000, 3000});
    for (int n = 1; n <= 101; ++n) MoveBox(box, static_cast<float>(n), 700);
    EXPECT_EQ(Depths(), "100/0");
    for (int n = 0; n < 150; ++n) UndoMove(Main, true);
    EXPECT_EQ(BoxPlace(box), "1,700");
    EXPECT_EQ(Depths(), "0/100");
    for (int n = 0; n < 150; ++n) UndoMove(Main, false);
    EXPECT_EQ(BoxPlace(box), "101,700");
    EXPECT_EQ(Depths(), "100/0");
}

TEST_F(Undo, AMoveAfterAnUndoLeavesNothingToRedo) {
    const int box = New({600, 700, 3000, 3000});
    MoveBox(box, 4000, 5000);
    UndoMove(Main, true);
    MoveBox(box, 1000, 1000);
    UndoMove(Main, false);
    EXPECT_EQ(BoxPlace(box), "1000,1000");
}

TEST_F(Undo, AnEmptyStepIsNoStep) {
    const int box = New({600, 700, 3000, 3000});
    MoveBox(box, 4000, 5000);
    UndoMove(Main, true);
    PushMove(Main, {});
    EXPECT_EQ(Depths(), "0/1");
}

TEST_F(Undo, AfterClearingNeitherUndoNorRedoActs) {
    const int box = New({600, 700, 3000, 3000});
    MoveBox(box, 4000, 5000);
    MoveBox(box, 4100, 5000);
    UndoMove(Main, true);
    mnuClearUndoRedoBuffer_Click(Main);
    mnuUndoRedo_Click(Main, 0);
    mnuUndoRedo_Click(Main, 1);
    EXPECT_EQ(BoxPlace(box), "4000,5000");
    EXPECT_EQ(Depths(), "0/0");
}

TEST_F(Undo, AContainerThatDiedStaysDead) {
    const int box = New({600, 700, 3000, 3000});
    MoveBox(box, 4000, 5000);
    DeleteContainer(Main, box, false);
    UndoMove(Main, true);
    EXPECT_FALSE(IsLive(Main.Containers, box));
    EXPECT_EQ(Depths(), "0/0") << "the record is dropped";
}

TEST_F(Undo, AContainerThatIsHiddenIsLeftAlone) {
    const int box = New({600, 700, 3000, 3000});
    MoveBox(box, 4000, 5000);
    Main.ConView(box).Container.Visible = false;
    UndoMove(Main, true);
    EXPECT_EQ(BoxPlace(box), "4000,5000");
}

TEST_F(Undo, AShortcutThatDiedStaysDead) {
    const int link = NewLink(OnWorkspace(), {8000, 2000});
    MoveLink(link, OnWorkspace(), {100, 600});
    DeleteShortcut(Main, link);
    UndoMove(Main, true);
    EXPECT_FALSE(IsLive(Main.Shortcuts, link));
    EXPECT_FALSE(Main.LinkView(link).Visible);
}

TEST_F(Undo, OfSeveralThatWereMovedTheLivingGoBack) {
    const int one = New({600, 700, 3000, 3000}), two = New({4000, 700, 3000, 3000});
    MoveStep step{PlaceNow(Main, MovedKind::Container, one), PlaceNow(Main, MovedKind::Container, two)};
    Box(one).Left = 700;
    Box(two).Left = 4100;
    PushMove(Main, step);
    DeleteContainer(Main, one, false);
    UndoMove(Main, true);
    EXPECT_EQ(BoxPlace(two), "4000,700");
    UndoMove(Main, false);
    EXPECT_EQ(BoxPlace(two), "4100,700");
}

TEST_F(Undo, IntoAParentThatDiedTheShortcutStaysAndTheRecordIsDropped) {
    const int box = New({600, 700, 3000, 3000});
    const int link = NewLink(InContainer(box), {400, 500});
    MoveLink(link, OnWorkspace(), {8000, 2000});
    DeleteContainer(Main, box, false);
    UndoMove(Main, true);
    EXPECT_EQ(LinkPlace(link), "back 8000,2000");
    EXPECT_EQ(Depths(), "0/0");
}

TEST_F(Undo, IntoAParentThatIsFullByNowTheShortcutStays) {
    const int box = New({600, 700, 3000, 3000});
    const int link = NewLink(InContainer(box), {400, 500});
    MoveLink(link, OnWorkspace(), {8000, 2000});
    Fill(InContainer(box), MaxShortcutsInContainer);
    UndoMove(Main, true);
    EXPECT_EQ(LinkPlace(link), "back 8000,2000");
    EXPECT_EQ(Depths(), "0/0");
}

TEST_F(Undo, IntoOneThatTakesNothingByNowTheShortcutStays) {
    const int box = New({600, 700, 3000, 3000});
    const int link = NewLink(InContainer(box), {400, 500});
    MoveLink(link, OnWorkspace(), {8000, 2000});
    Main.Con(box).Encrypted = true;
    UndoMove(Main, true);
    EXPECT_EQ(LinkPlace(link), "back 8000,2000");
}

TEST_F(Undo, AContainerTakes250AndTheWorkspace350) {
    const int box = New({600, 700, 3000, 3000}), other = New({4000, 700, 3000, 3000});
    Fill(InContainer(box), MaxShortcutsInContainer - 1);
    const int last = NewLink(InContainer(other), {400, 500}), over = NewLink(InContainer(other), {400, 900});
    EXPECT_TRUE(MoveShortcutTo(Main, last, InContainer(box), {100, 200}));
    EXPECT_FALSE(MoveShortcutTo(Main, over, InContainer(box), {100, 200}));
    EXPECT_EQ(LinkPlace(over), "1 400,900");
    EXPECT_TRUE(MoveShortcutTo(Main, last, InContainer(box), {300, 200})) << "within it is no new one";
    Fill(OnWorkspace(), MaxShortcutsOnWorkspace - 1);
    EXPECT_TRUE(MoveShortcutTo(Main, over, OnWorkspace(), {100, 700}));
    EXPECT_FALSE(MoveShortcutTo(Main, last, OnWorkspace(), {100, 700}));
}

TEST_F(Undo, NothingIsMovedIntoFeedsRemindersAndEncryptedNotes) {
    const int link = NewLink(OnWorkspace(), {8000, 2000});
    const int picture = NewPicture(OnWorkspace(), {5000, 1000, 900, 900});
    const int feed = New({600, 700, 3000, 3000}), reminder = New({600, 700, 3000, 3000});
    const int secret = New({600, 700, 3000, 3000});
    Main.Con(feed).RSS = true;
    Main.Con(reminder).SetReminder(true, 2030, 1, 1, 10, 0, "then");
    Main.Con(secret).Encrypted = true;
    for (const int box : {feed, reminder, secret, 77, -1}) {
        EXPECT_FALSE(MoveShortcutTo(Main, link, InContainer(box), {100, 100})) << box;
        EXPECT_FALSE(MovePictureTo(Main, picture, InContainer(box), {100, 100})) << box;
    }
    EXPECT_EQ(LinkPlace(link), "back 8000,2000");
    EXPECT_FALSE(MoveShortcutTo(Main, 99, OnWorkspace(), {}));
    EXPECT_FALSE(MovePictureTo(Main, -1, OnWorkspace(), {}));
}

TEST_F(Undo, OneThatIsOpenForTheMomentGoesBackWithItsTile) {
    const int tile = NewTile(5000, 2000);
    const auto before = PlaceNow(Main, MovedKind::Container, tile);
    Box(tile).Left += 600;
    Main.Con(tile).SetSize({.X = 5600, .Y = 2000});
    PushMove(Main, {before});
    ExpandShrinkContainer(Main, tile, false);
    const float open = Box(tile).Left;
    UndoMove(Main, true);
    EXPECT_EQ(Box(tile).Left, open - 600);
    Wait(100);
    ShrinkBackContainer(Main, false);
    EXPECT_EQ(BoxPlace(tile), "5000,2000");
}

TEST_F(Undo, WhatWouldGoBackBeyondTheEdgeIsKeptInside) {
    const int box = New({11000, 7000, 900, 900});
    MoveBox(box, 600, 700);
    Main.View.Window = {0, 0, 8035, 6030};
    ResizeForm(Main);
    UndoMove(Main, true);
    EXPECT_LT(Box(box).Right(), 8000);
    EXPECT_LT(Box(box).Bottom(), 6000);
    EXPECT_EQ(Main.Con(box).StoredSize().X, Box(box).Left);
}

TEST_F(Undo, WhatWasTakenBackIsSaved) {
    const int box = New({600, 700, 3000, 3000});
    MoveBox(box, 4000, 5000);
    UndoMove(Main, true);
    EXPECT_NE(Recovery("0.REC").find("[X]\r\n600\r\n[Y]\r\n700\r\n"), std::string::npos) << Recovery("0.REC");
}

// ---- any order of moves, undos, redos and deletions, against a model of four plain lists

struct Model {
    struct Place {
        int Parent = -1; // of a shortcut
        float Left = 0, Top = 0;
        bool operator==(const Place&) const = default;
    };
    using Key = std::pair<char, int>; // 'c' container, 's' shortcut
    using Step = std::vector<std::pair<Key, Place>>;

    std::map<Key, Place> Alive;
    std::vector<Step> Undo, Redo;

    void Push(std::vector<Step>& stack, const Step& step) {
        if (step.empty()) return;
        stack.push_back(step);
        if (stack.size() > 100) stack.erase(stack.begin());
    }
    void Move(const std::vector<std::pair<Key, Place>>& to) {
        Step before;
        for (const auto& [key, place] : to) {
            before.emplace_back(key, Alive.at(key));
            Alive[key] = place;
        }
        Push(Undo, before);
        Redo.clear();
    }
    void TakeBack(std::vector<Step>& from, std::vector<Step>& opposite) {
        if (from.empty()) return;
        const Step step = from.back();
        from.pop_back();
        Step left;
        for (auto record = step.rbegin(); record != step.rend(); ++record) {
            const auto& [key, place] = *record;
            const bool homeless = place.Parent != -1 && !Alive.contains({'c', place.Parent});
            if (!Alive.contains(key) || homeless) continue;
            left.emplace_back(key, Alive[key]);
            Alive[key] = place;
        }
        Push(opposite, left);
    }
    void DeleteContainer(int index) {
        Alive.erase({'c', index});
        std::erase_if(Alive,
                      [&](const auto& row) { return row.first.first == 's' && row.second.Parent == index; });
    }
};

struct UndoWalk : Undo {
    std::mt19937 Random;
    Model Naive;
    std::vector<int> Boxes, Links;

    int Any(int count) { return static_cast<int>(Random() % static_cast<unsigned>(count)); }
    int AnyOf(const std::vector<int>& list) {
        return list[static_cast<std::size_t>(Any(static_cast<int>(list.size())))];
    }
    Point AnyPlace() { return {static_cast<float>(Any(90)) * 100, static_cast<float>(Any(80)) * 100}; }

    Point AnyPlaceInFrame() { return {static_cast<float>(Any(29)) * 100, static_cast<float>(Any(80)) * 100}; }

    void MakeBox() {
        const auto at = AnyPlace();
        const int index = New({at.X, at.Y, 3000, 3000});
        Boxes.push_back(index);
        Naive.Alive[{'c', index}] = {-1, at.X, at.Y};
    }
    Parent AnyParent() {
        const int box = Boxes.empty() || Any(3) == 0 ? -1 : AnyOf(Boxes);
        return box == -1 ? OnWorkspace() : InContainer(box);
    }
    static int ModelParent(const Parent& in) { return in.Kind == ParentKind::picBack ? -1 : in.Index; }
    void MakeLink() {
        const auto in = AnyParent();
        if (in.Kind == ParentKind::ContainerFrame && !IsLive(Main.Containers, in.Index)) return;
        const auto at = AnyPlaceInFrame();
        const int link = NewLink(in, at);
        Links.push_back(link);
        Naive.Alive[{'s', link}] = {ModelParent(in), at.X, at.Y};
    }
    void MoveSomeBoxes() {
        MoveStep step;
        std::vector<std::pair<Model::Key, Model::Place>> moves;
        for (const int box : Boxes) {
            if (!IsLive(Main.Containers, box) || Any(3) != 0) continue;
            const auto at = AnyPlace();
            step.push_back(PlaceNow(Main, MovedKind::Container, box));
            Box(box).Left = at.X, Box(box).Top = at.Y;
            moves.push_back({{'c', box}, {-1, at.X, at.Y}});
        }
        if (step.empty()) return;
        PushMove(Main, step);
        Naive.Move(moves);
    }
    void MoveSomeLinks() {
        MoveStep step;
        std::vector<std::pair<Model::Key, Model::Place>> moves;
        const auto to = AnyParent();
        for (const int link : Links) {
            if (!IsLive(Main.Shortcuts, link) || Any(4) != 0) continue;
            const auto at = AnyPlaceInFrame();
            const auto before = PlaceNow(Main, MovedKind::Shortcut, link);
            if (!MoveShortcutTo(Main, link, to, at)) continue;
            step.push_back(before);
            moves.push_back({{'s', link}, {ModelParent(to), at.X, at.Y}});
        }
        if (step.empty()) return;
        PushMove(Main, step);
        Naive.Move(moves);
    }
    void DeleteSomething() {
        if (Any(2) == 0 && !Boxes.empty()) {
            const int box = AnyOf(Boxes);
            DeleteContainer(Main, box, false);
            Naive.DeleteContainer(box);
        } else if (!Links.empty()) {
            const int link = AnyOf(Links);
            DeleteShortcut(Main, link);
            Naive.Alive.erase({'s', link});
        }
    }
    void Step() {
        switch (Any(12)) {
        case 0:
            return MakeBox();
        case 1:
            return MakeLink();
        case 2:
            return DeleteSomething();
        case 3:
        case 4:
        case 5:
            return MoveSomeBoxes();
        case 6:
        case 7:
            return MoveSomeLinks();
        case 8:
        case 9:
        case 10:
            UndoMove(Main, true);
            return Naive.TakeBack(Naive.Undo, Naive.Redo);
        default:
            UndoMove(Main, false);
            return Naive.TakeBack(Naive.Redo, Naive.Undo);
        }
    }
    // One line an object: what the tables say, and what the model says.
    std::string Tables() {
        std::string text;
        for (const auto& row : Live(Main.Containers))
            text += "c" + std::to_string(row.Index) + " " + BoxPlace(row.Index) + "\n";
        for (const auto& row : Live(Main.Shortcuts))
            text += "s" + std::to_string(row.Index) + " " + LinkPlace(row.Index) + "\n";
        return text + Depths();
    }
    std::string ModelText() {
        std::string text;
        for (const auto& [key, place] : Naive.Alive) {
            const std::string parent = place.Parent == -1 ? "back" : std::to_string(place.Parent);
            text += key.first + std::to_string(key.second) + " " + (key.first == 's' ? parent + " " : "") +
                    fake::Words(Point{place.Left, place.Top}) + "\n";
        }
        return text + std::to_string(Naive.Undo.size()) + "/" + std::to_string(Naive.Redo.size());
    }
};

TEST_F(UndoWalk, MovesUndosRedosAndDeletionsInAnyOrderAgreeWithAModelOfPlainLists) {
    Main.IsLoading = false;
    Main.g_DontSave = true; // the walk is about the tables
    Main.Settings.MaxContainers = 10000;
    for (unsigned seed = 1; seed <= 12; ++seed) {
        Random.seed(seed);
        for (int step = 0; step < 400; ++step) {
            Step();
            ASSERT_EQ(Tables(), ModelText()) << "seed " << seed << " step " << step;
        }
    }
}

} // namespace
} // namespace quill
