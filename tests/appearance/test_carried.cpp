#include "appearance/carried.h"
#include "appearance/paint.h"
#include "containers/workspace_fixture.h"

#include "containers/layout.h"
#include "fake/canvas.h"

namespace quill {
namespace {

struct Carried : test::WorkspaceFixture {
    std::vector<DraggedObject> Links(int count, const std::string& stem = "/usr/bin/thing") {
        std::vector<DraggedObject> objects;
        for (int at = 0; at < count; ++at) {
            const int link = NewLink(OnWorkspace(), {1000, 1000}, stem + std::to_string(at));
            SetNewLinkHeight(Main, link);
            objects.push_back({1, link});
        }
        return objects;
    }
    std::string Painted(const std::vector<DraggedObject>& objects) {
        fake::FakeCanvas canvas;
        PaintCarried(Main, objects, canvas);
        return canvas.Painted();
    }
};

TEST_F(Carried, OneShortcutIsItsIconAndItsCaptionOnASolidPlate) {
    const auto text = Painted(Links(1));
    EXPECT_NE(text.find("thing0"), std::string::npos) << text;
    EXPECT_EQ(text.find("\"1\""), std::string::npos) << "one is not counted: " << text;
}

TEST_F(Carried, IconAndLabelStandToEachOtherAsOnTheSurface) {
    const auto objects = Links(1);
    const Point corner = CarriedCorner(Main, objects);
    const Rect label = LabelPlace(Main, objects[0].Index), icon = IconPlace(Main, objects[0].Index);
    const Point iconCorner{corner.X + icon.Left - label.Left, corner.Y + icon.Top - label.Top};
    EXPECT_NE(Painted(objects).find(fake::Words(iconCorner)), std::string::npos) << Painted(objects);
}

TEST_F(Carried, AFewAreShownAndAllAreCounted) {
    const auto text = Painted(Links(12));
    for (const char* shown : {"thing0", "thing1", "thing2", "thing3", "\"12\""})
        EXPECT_NE(text.find(shown), std::string::npos) << shown;
    EXPECT_EQ(text.find("thing4"), std::string::npos);
}

TEST_F(Carried, ALongCaptionDoesNotMakeThePlateWiderThanTheHandNeeds) {
    EXPECT_LT(CarriedSize(Main, Links(1, "/a/" + std::string(500, 'x'))).Width, 4000);
}

TEST_F(Carried, APictureIsCarriedAsItStands) {
    bool ok = false;
    Main.IsLoading = true;
    AddPicture(Main, "/home/user/cat.png", OnWorkspace(), {100, 1000, 1500, 900}, ok);
    Main.IsLoading = false;
    const std::vector<DraggedObject> objects{{2, 0}};
    EXPECT_EQ(CarriedSize(Main, objects), (Size{1500, 900}));
    EXPECT_EQ(CarriedCorner(Main, objects), Point{});
}

TEST_F(Carried, OfNothingThereIsNoPicture) {
    EXPECT_EQ(CarriedSize(Main, {}), Size{});
    EXPECT_EQ(Painted({}), "");
}

TEST_F(Carried, TheContainerThatWouldTakeItHasTheWidestRim) {
    const int box = New({1000, 1000, 3000, 3000});
    const auto rim = [&] {
        fake::FakeCanvas canvas;
        PaintSurface(Main, OnContainer(box), canvas);
        return canvas.Lines.at(0) + canvas.Lines.at(1);
    };
    const auto plain = rim();
    Main.ConView(box).LabelSelected = true;
    const auto selected = rim();
    Main.Links.Dragged = {box, true, 0};
    EXPECT_NE(rim(), selected);
    EXPECT_NE(rim(), plain);
}

} // namespace
} // namespace quill
