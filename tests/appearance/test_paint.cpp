#include "appearance/paint.h"

#include "appearance/colors.h"
#include "appearance/drawing_primitives.h"
#include "appearance/palette.h"
#include "appearance/wallpaper.h"
#include "containers/fold.h"
#include "containers/gestures.h"
#include "containers/layout.h"
#include "containers/measures.h"
#include "containers/scroll.h"
#include "containers/shrink.h"
#include "core/element_walk.h"
#include "core/shortcut_lists.h"
#include "fake/canvas.h"
#include "fake/words.h"
#include "notes/notes.h"
#include "shortcuts/at_work.h"

namespace quill {
namespace {

struct Painting : AtWork {
    Painting() {
        Main.View.Window = {0, 0, 10035, 7530};
        SetWorkspaceColors(Main, 0x1A1306, 0xFFFFFF);
        Main.Settings.Gradient = false;
        Main.Settings.GradientContainers = false;
        Main.Settings.FontName = "DejaVu Sans";
        ResizeForm(Main);
    }
    fake::FakeCanvas Of(SurfaceId surface, Rect exposed = {0, 0, 1e6F, 1e6F}) {
        fake::FakeCanvas canvas(exposed);
        canvas.Missing = Missing;
        canvas.Solid = Solid;
        PaintSurface(Main, surface, canvas);
        EXPECT_EQ(canvas.Clips, 0) << "a clip that is left cuts all that follows";
        return canvas;
    }
    fake::FakeCanvas Workspace(Rect exposed = {0, 0, 1e6F, 1e6F}) {
        return Of({SurfaceKind::Workspace, -1}, exposed);
    }
    fake::FakeCanvas Box(int index) { return Of({SurfaceKind::Container, index}); }
    int NewBox(const std::string& name) {
        const int index = Container(name);
        SetColors(Main, index, 0x290700);
        SetLabelColors(Main, index, 0xFFFFFF);
        return index;
    }
    std::set<std::string> Missing, Solid;
};

// ------------------------------------------------------------------------------------------- the workspace

TEST_F(Painting, WorkspaceHasItsGroundAndATitleWithCaptionAndButtons) {
    const auto canvas = Workspace();
    EXPECT_EQ(canvas.Lines.front(), "fill 0,0 10000x7500 #06131A");
    EXPECT_EQ(canvas.LinesWith("text \"" + Main.View.Caption).size(), 1U);
    EXPECT_EQ(canvas.LinesWith("symbol menu").size(), 1U);
    EXPECT_EQ(canvas.LinesWith("or unlock").size() + canvas.LinesWith("or lock").size(), 1U)
        << "one of the two, as it is locked or not";
    EXPECT_EQ(canvas.LinesWith("or dock").size(), 1U);
}

TEST_F(Painting, LockButtonComesFromTheSetAndSaysTheState) {
    Computer.Files.Put(Computer.Places.Data + "/Skin/Buttons/Ink/lock.svg", "x");
    InitButtons(Main, "Ink");
    Main.Dock.Locked = true;
    ResizeForm(Main);
    const auto lines = Workspace().LinesWith("button /opt/quillmere/share/Skin/Buttons/Ink/lock.svg");
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_NE(lines[0].find("or lock"), std::string::npos);
}

TEST_F(Painting, GradientFollowsTheSettings) {
    const auto bands = [&] { return Workspace().LinesWith("fill 0,").size(); };
    const auto plain = bands();
    Main.Settings.Gradient = true;
    EXPECT_GT(bands(), plain + 100);
    const auto top = Workspace().Lines[1];
    Main.Settings.GradientDark = true;
    EXPECT_NE(Workspace().Lines[1], top) << "the dark one begins lower";
}

TEST_F(Painting, WallpaperIsAsItIsOrStretched) {
    Computer.Files.Put("/home/user/lake.jpg", "x");
    Computer.Images.Sizes["/home/user/lake.jpg"] = {3000, 2000};
    Main.Settings.Wallpaper = "/home/user/lake.jpg";
    LoadWallpaper(Main);
    EXPECT_EQ(Workspace().LinesWith("picture"),
              std::vector<std::string>{"picture /home/user/lake.jpg 0,0 3000x2000"});
    Main.Settings.Stretch = true;
    EXPECT_EQ(Workspace().LinesWith("picture"),
              std::vector<std::string>{"picture /home/user/lake.jpg 0,0 10000x7500"});
}

TEST_F(Painting, NothingIsPaintedUnderAWallpaperThatHidesAllOfIt) {
    Computer.Files.Put("/home/user/lake.jpg", "x");
    Main.Settings.Wallpaper = "/home/user/lake.jpg";
    Main.Settings.Stretch = true;
    Main.Settings.Gradient = true;
    LoadWallpaper(Main);
    EXPECT_EQ(Workspace().Lines.front(), "fill 0,0 10000x7500 #06131A") << "it may be see-through";
    Solid = {"/home/user/lake.jpg"};
    EXPECT_EQ(Workspace().Lines.front(), "picture /home/user/lake.jpg 0,0 10000x7500");
    Missing = Solid;
    EXPECT_EQ(Workspace().Lines.front(), "fill 0,0 10000x7500 #06131A") << "it is not there yet";
    Missing = {};
    Main.Settings.Stretch = false;
    EXPECT_EQ(Workspace().Lines.front(), "fill 0,0 10000x7500 #06131A") << "it may be smaller";
}

TEST_F(Painting, AWallpaperThatIsNoPictureIsNotShown) {
    Computer.Files.Put("/home/user/lake.jpg", "x");
    Main.Settings.Wallpaper = "/home/user/lake.jpg";
    LoadWallpaper(Main);
    EXPECT_TRUE(Workspace().LinesWith("picture").empty());
}

// ------------------------------------------------------------------------------------------------ shortcuts

TEST_F(Painting, AShortcutIsIconAndCaptionInItsStyle) {
    const int index = File("/home/user/letter.odt");
    Main.Link(index).Color = 0x00FFFF;
    Main.Link(index).FontSize = 14;
    Main.Link(index).FontBold = true;
    const auto canvas = Workspace();
    EXPECT_EQ(canvas.LinesWith("icon /home/user/letter.odt").size(), 1U);
    const auto text = canvas.LinesWith("text \"letter.odt\"");
    ASSERT_EQ(text.size(), 1U);
    EXPECT_NE(text[0].find("#FFFF00 left 14pt bold"), std::string::npos) << text[0];
    EXPECT_TRUE(Main.LinkView(index).IconDrawn);
    EXPECT_TRUE(Main.LinkView(index).LabelMeasured);
}

TEST_F(Painting, IconStandsLeftOfTheLabelAndCentredOnIt) {
    const int index = File("/home/user/letter.odt");
    Workspace();
    const ShortcutView& view = Main.LinkView(index);
    EXPECT_EQ(view.picShortcut.Right() + 10, view.lblShortcut.Place.Left);
    EXPECT_EQ(view.picShortcut.Top + view.picShortcut.Height / 2,
              view.lblShortcut.Place.Top + view.lblShortcut.Place.Height / 2);
    EXPECT_EQ(view.picShortcut.Width, 16 * 15) << "a small font has the small icon";
}

TEST_F(Painting, WhereThereIsNoIconASymbolOfItsKindStands) {
    File("/home/user/letter.odt");
    Missing = {"/home/user/letter.odt"};
    EXPECT_EQ(Workspace().LinesWith("symbol generic-file").size(), 1U);
}

TEST_F(Painting, CommandsAreMarkedWhereThatIsSet) {
    Command("ls");
    EXPECT_EQ(Workspace().LinesWith("symbol command-overlay").size(), 1U);
    Main.Settings.CommandOverlay = false;
    EXPECT_TRUE(Workspace().LinesWith("symbol command-overlay").empty());
}

TEST_F(Painting, ATagViewsHiddenShortcutIsNotPainted) {
    Main.LinkView(File("/home/user/letter.odt")).Visible = false;
    EXPECT_TRUE(Workspace().LinesWith("letter.odt").empty());
}

TEST_F(Painting, WhatHasGoneSinceTheListsWereMadeIsNotPainted) {
    const int box = NewBox("Projects");
    const int deleted = File("/deleted"), moved = File("/moved");
    File("/stays");
    const ShortcutLists lists(Main);
    DeleteShortcut(Main, deleted);
    Main.LinkView(moved).In = InContainer(box);
    const auto painted = [&](SurfaceId surface) {
        fake::FakeCanvas canvas;
        PaintSurface(Main, surface, canvas, lists);
        return canvas.LinesWith("icon ");
    };
    const auto seen = painted({});
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_NE(seen[0].find("/stays"), std::string::npos);
    EXPECT_TRUE(painted({SurfaceKind::Container, box}).empty()) << "it comes with the next lists";
    EXPECT_EQ(Box(box).LinesWith("icon /moved").size(), 1U);
}

TEST_F(Painting, ContainersThatCameAfterTheListsWereMadeArePaintedWithoutShortcuts) {
    const ShortcutLists lists(Main);
    const int box = NewBox("Projects");
    File("/letter", InContainer(box));
    fake::FakeCanvas canvas;
    PaintSurface(Main, {SurfaceKind::Container, box}, canvas, lists);
    EXPECT_EQ(canvas.LinesWith("text \"Projects\"").size(), 1U);
    EXPECT_TRUE(canvas.LinesWith("icon ").empty());
}

TEST_F(Painting, WhatIsNotSeenIsNeitherMeasuredNorAskedFor) {
    Main.LinkView(File("/a")).lblShortcut.Place.Top = 1000;
    Main.LinkView(File("/b")).lblShortcut.Place.Top = 6000;
    const int measured = Computer.Texts.Measured;
    const auto canvas = Workspace({0, 900, 10000, 400});
    EXPECT_EQ(Computer.Texts.Measured, measured + 1);
    EXPECT_EQ(canvas.LinesWith("icon ").size(), 1U);
    EXPECT_FALSE(Main.LinkView(1).LabelMeasured);
    Workspace({0, 900, 10000, 400});
    EXPECT_EQ(Computer.Texts.Measured, measured + 1) << "once is enough";
}

struct Readable : Painting {
    bool HasHalo(float top) {
        const int index = File("/halo");
        Main.LinkView(index).lblShortcut.Place.Top = top;
        const auto lines = Workspace().LinesWith("text \"halo\"");
        DeleteShortcut(Main, index);
        return lines.size() == 1 && lines[0].find("halo", 10) != std::string::npos;
    }
};

TEST_F(Readable, CaptionsGetAHaloWhereTheRampIsTooNearTheirColor) {
    Main.Settings.Gradient = true;
    EXPECT_FALSE(HasHalo(600)) << "white on the dark upper part";
    EXPECT_TRUE(HasHalo(6900)) << "white on the light lower part";
    Main.Settings.Gradient = false;
    EXPECT_FALSE(HasHalo(6900));
}

TEST_F(Readable, CaptionsGetAHaloOnAWallpaper) {
    Computer.Files.Put("/home/user/lake.jpg", "x");
    Main.Settings.Wallpaper = "/home/user/lake.jpg";
    Main.Settings.Stretch = true;
    LoadWallpaper(Main);
    EXPECT_TRUE(HasHalo(600)) << "nobody knows how bright it is there";
    Missing = {"/home/user/lake.jpg"};
    EXPECT_FALSE(HasHalo(600)) << "it is not there yet";
}

// ----------------------------------------------------------------------------------------------- containers

TEST_F(Painting, AContainerIsARoundedBodyWithBorderTitleAndMarks) {
    const int box = NewBox("Projects");
    const auto canvas = Box(box);
    EXPECT_EQ(canvas.Lines[0], "round 0,0 3000x3000 r120 " + fake::ColorWords(ContrastColor(0x290700)));
    EXPECT_EQ(canvas.Lines[1], "clip 15,15 2970x2970 r105");
    EXPECT_EQ(canvas.Lines[2], "fill 0,0 3000x3000 " + fake::ColorWords(0x290700));
    const auto label = canvas.LinesWith("text \"Projects\"");
    ASSERT_EQ(label.size(), 1U);
    EXPECT_NE(label[0].find("white"), std::string::npos);
    EXPECT_NE(label[0].find("elide"), std::string::npos) << "a long name ends in an ellipsis";
    EXPECT_EQ(canvas.LinesWith("symbol fold ").size(), 1U);
    EXPECT_EQ(canvas.LinesWith("symbol pin-note ").size(), 1U);
    EXPECT_EQ(canvas.LinesWith("symbol shrink ").size(), 1U);
    EXPECT_EQ(canvas.LinesWith("symbol resize-grip ").size(), 1U);
}

TEST_F(Painting, AFoldedContainerIsItsTitleRowAlone) {
    const int box = NewBox("Projects");
    File("/a", InContainer(box));
    FoldUnfoldContainer(Main, box, false);
    const auto canvas = Box(box);
    EXPECT_EQ(canvas.LinesWith("symbol unfold ").size(), 1U);
    EXPECT_EQ(canvas.LinesWith("text \"Projects\"").size(), 1U);
    EXPECT_TRUE(canvas.LinesWith("text \"a\"").empty());
    EXPECT_TRUE(canvas.LinesWith("resize-grip").empty());
}

TEST_F(Painting, ATileIsItsIcon) {
    const int box = NewBox("Projects");
    ExpandShrinkContainer(Main, box, false);
    const auto canvas = Box(box);
    EXPECT_EQ(canvas.LinesWith("image ").size(), 1U) << canvas.Painted();
    EXPECT_TRUE(canvas.LinesWith("text").empty());
    EXPECT_TRUE(canvas.LinesWith("symbol fold").empty());
}

TEST_F(Painting, SelectedContainersHaveAWiderRim) {
    const int box = NewBox("Projects");
    Main.ConView(box).LabelSelected = true;
    EXPECT_EQ(Box(box).Lines[0], "round 0,0 3000x3000 r120 white");
    EXPECT_EQ(Box(box).Lines[1], "clip 30,30 2940x2940 r90");
}

TEST_F(Painting, MarksTellOfATagViewAndOfAHiddenNote) {
    const int box = NewBox("Projects");
    EXPECT_TRUE(Box(box).LinesWith("symbol tag").empty());
    EXPECT_TRUE(Box(box).LinesWith("symbol note-mark").empty());
    Main.Con(box).ShowingTag = "work";
    Main.ConView(box).ContainerNote.Text = "Buy tea";
    SetObjectRelativeSize(Main, box);
    EXPECT_EQ(Box(box).LinesWith("symbol tag").size(), 1U);
    EXPECT_EQ(Box(box).LinesWith("symbol note-mark").size(), 1U);
}

TEST_F(Painting, ShortcutsOfAContainerAreClippedToItsFrameAndScrollWithIt) {
    const int box = NewBox("Projects");
    const int index = File("/letter", InContainer(box));
    Main.LinkView(index).lblShortcut.Place.Top = 300;
    const auto place = [&] {
        const auto lines = Box(box).LinesWith("text \"letter\"");
        return lines.empty() ? std::string() : lines[0];
    };
    EXPECT_NE(place().find(" 645,635 "), std::string::npos) << place() << ": 290 title, 300 label, 45 inset";
    Main.ConView(box).ScrollTop = 100;
    EXPECT_NE(place().find(" 645,535 "), std::string::npos) << place();
    EXPECT_EQ(Box(box).LinesWith("clip 0,290 3000x2710").size(), 1U);
}

TEST_F(Painting, TheThumbOfTheScrollBarStandsWhereItIsHeld) {
    const int box = NewBox("Projects");
    Main.LinkView(File("/far below", InContainer(box))).lblShortcut.Place.Top = 9000;
    LayScrollBar(Main, box);
    const auto thumb = [&] {
        const Rect& frame = Main.ConView(box).ContainerFrame.Place;
        return "round " + fake::Words(Shifted(ScrollThumb(Main, box), {frame.Left, frame.Top})) + " ";
    };
    EXPECT_EQ(Box(box).LinesWith(thumb()).size(), 1U) << Box(box).Painted();
    const auto before = thumb();
    ScrollContainer(Main, box, 3000);
    EXPECT_NE(thumb(), before);
    EXPECT_EQ(Box(box).LinesWith(thumb()).size(), 1U) << Box(box).Painted();
}

TEST_F(Painting, TheFramesRampIsUpsideDownBesideASmallTile) {
    Main.Settings.GradientContainers = true;
    const int box = NewBox("Projects");
    const auto first = [&] { return Box(box).LinesWith("fill 0,290 ").front(); };
    const auto down = first();
    SetContainerShrinkSize(Main, box, 650, 870);
    EXPECT_NE(first(), down);
}

TEST_F(Painting, ANoteIsPaintedInItsOwnColorsAndCoversTheShortcuts) {
    const int box = NewBox("Shopping");
    File("/letter", InContainer(box));
    SetNoteText(Main, box, "Tea\r\nMilk");
    lblPinNote_Click(Main, box);
    NoteView& note = Main.ConView(box).ContainerNote;
    note.BackColor = 0xE1FDFF;
    note.ForeColor = 0x102030;
    const auto canvas = Box(box);
    const auto text = canvas.LinesWith("text \"Tea\nMilk\"");
    ASSERT_EQ(text.size(), 1U) << canvas.Painted();
    EXPECT_NE(text[0].find("#302010 left 10pt wordbreak elide"), std::string::npos) << text[0];
    EXPECT_EQ(canvas.LinesWith("#FFFDE1").size(), 1U);
    EXPECT_TRUE(canvas.LinesWith("letter").empty());
}

TEST_F(Painting, ALongNoteCostsWhatIsSeenOfIt) {
    const int box = NewBox("Log");
    std::string text;
    for (int line = 0; line < 2000; ++line) text += "line\r\n";
    SetNoteText(Main, box, text);
    lblPinNote_Click(Main, box);
    std::size_t longest = 0;
    for (const auto& line : Box(box).LinesWith("text \"line")) longest = std::max(longest, line.size());
    EXPECT_GT(longest, 20U);
    EXPECT_LT(longest, 200U) << "a frame of 2700 twips shows some fourteen lines";
}

TEST_F(Painting, ADeadContainerPaintsNothing) {
    const int box = NewBox("Projects");
    DeleteContainer(Main, box, false);
    EXPECT_TRUE(Box(box).Lines.empty());
    EXPECT_TRUE(Box(99).Lines.empty());
}

// What can be hit is what is painted: both come from the same views.
TEST_F(Painting, EveryElementThatCanBeHitIsPaintedWhereItIsHit) {
    const int box = NewBox("Projects");
    File("/letter", InContainer(box));
    Main.LinkView(0).lblShortcut.Place = {700, 400, 0, 0};
    const auto canvas = Box(box);
    const std::map<ElementKind, std::string> symbols{{ElementKind::lblFoldUnfold, "symbol fold "},
                                                     {ElementKind::lblPinNote, "symbol pin-note "},
                                                     {ElementKind::picShortcut, "icon /letter "}};
    std::size_t found = 0;
    WalkElements(Main, {SurfaceKind::Container, box}, [&](const Spot& spot) {
        const auto symbol = symbols.find(spot.Id.Kind);
        if (symbol == symbols.end()) return true;
        EXPECT_EQ(canvas.LinesWith(symbol->second + fake::Words(spot.Place)).size(), 1U)
            << NameOf(spot.Id.Kind) << "\n"
            << canvas.Painted();
        ++found;
        return true;
    });
    EXPECT_EQ(found, symbols.size());
}

TEST_F(Painting, TheFocusIsShownOnceTheKeyboardWasUsed) {
    const int box = NewBox("Projects");
    Main.View.Focus = {ElementKind::lblFoldUnfold, box};
    Main.View.FocusSurface = {SurfaceKind::Container, box};
    const auto without = Box(box).Lines.size();
    Main.View.FocusVisible = true;
    EXPECT_EQ(Box(box).Lines.size(), without + 4) << "four edges around it";
}

TEST_F(Painting, TheFocusOfAShortcutGoesAroundItsIconToo) {
    File("/letter", OnWorkspace());
    Main.LinkView(0).lblShortcut.Place = {2000, 1500, 0, 0};
    (void)Workspace();
    Main.View.Focus = {ElementKind::lblShortcut, 0};
    Main.View.FocusSurface = {};
    const auto without = Workspace().Lines.size();
    Main.View.FocusVisible = true;
    const auto canvas = Workspace();
    ASSERT_EQ(canvas.Lines.size(), without + 4);
    const float left = IconPlace(Main, 0).Left - 60;
    const auto& upper = canvas.Lines[without];
    EXPECT_EQ(upper.substr(0, upper.find(',')), "fill " + std::to_string(static_cast<int>(left)));
}

TEST_F(Painting, TheFocusOfATileIsSeenInsideIt) {
    const int box = NewBox("Projects");
    shapeShrink_Click(Main, box);
    Main.View.Focus = {ElementKind::ContainerIcon, box};
    Main.View.FocusSurface = {SurfaceKind::Container, box};
    const auto without = Box(box).Lines.size();
    Main.View.FocusVisible = true;
    const auto canvas = Box(box);
    ASSERT_EQ(canvas.Lines.size(), without + 4);
    EXPECT_EQ(canvas.Lines[without].substr(0, 9), "fill 0,0 ");
}

// -------------------------------------------------------------------------------------- pictures and splash

TEST_F(Painting, APictureStandsInItsFrameAndAMissingOneNamesItsFile) {
    Computer.Files.Put("/lake.jpg", "x");
    Computer.Images.Sizes["/lake.jpg"] = {3000, 2000};
    bool ok = false;
    AddPicture(Main, "/lake.jpg", OnWorkspace(), {100, 200, 3000, 2000}, ok);
    EXPECT_EQ(Of({SurfaceKind::Picture, 0}).LinesWith("picture"),
              std::vector<std::string>{"picture /lake.jpg 30,30 2940x1940"});
    Main.PicView(0).Missing = true;
    const auto canvas = Of({SurfaceKind::Picture, 0});
    EXPECT_TRUE(canvas.LinesWith("picture /").empty());
    EXPECT_EQ(canvas.LinesWith("symbol picture-missing").size(), 1U);
    EXPECT_EQ(canvas.LinesWith("text \"lake.jpg\"").size(), 1U);
}

TEST_F(Painting, TheSplashNamesTheProgramItsVersionAndWhatItDoes) {
    Main.View.SplashText = "Loading Workspace...";
    fake::FakeCanvas canvas;
    PaintSplash(Main, {5400, 2700}, canvas);
    EXPECT_EQ(canvas.LinesWith("text \"Quillmere\"").size(), 1U);
    EXPECT_EQ(canvas.LinesWith("text \"" + std::string(ProgramVersion)).size(), 1U);
    EXPECT_EQ(canvas.LinesWith("text \"Loading Workspace...\"").size(), 1U);
    EXPECT_EQ(canvas.Clips, 0);
}

TEST_F(Painting, NothingIsPaintedWhileTheProgramExits) {
    Main.IsExiting = true;
    EXPECT_TRUE(Workspace().Lines.empty());
}

} // namespace
} // namespace quill
