// A workspace on the fake computer, loaded and empty, 12000 by 9000 twips inside, with short verbs to put
// containers and shortcuts on it. No handlers are in between: routines are called as they are.
#pragma once

#include "containers/layout.h"
#include "containers/lifecycle.h"
#include "containers/shrink.h"
#include "core/handlers.h"
#include "core/objects.h"
#include "fake/desk.h"
#include "fake/words.h"
#include "shortcuts/create.h"

#include <gtest/gtest.h>

namespace quill::test {

struct WorkspaceFixture : testing::Test {
    fake::Computer computer;
    frmMain Main{computer.MakePlatform()};

    WorkspaceFixture() {
        fake::Connect(computer, &Main);
        Main.SettingsFolder = fake::SettingsFolder;
        Main.IsLoading = false;
        Main.View.Window = {0, 0, 12035, 9030};
        ResizeForm(Main);
    }
    ~WorkspaceFixture() override { fake::Connect(computer, nullptr); }

    int New(const Rect& place, const std::string& name = "Work") {
        bool ok = false;
        Main.Group.NewContainerPos = {place.Left, place.Top};
        NewGroup(Main, false, ok);
        EXPECT_TRUE(ok);
        const int index = Main.NextContainerIndex - 1;
        Main.ConView(index).ContainerLabel.Caption = name;
        Box(index) = place;
        SetObjectRelativeSize(Main, index);
        return index;
    }
    // A tile at this place that opens to 3000 by 3000.
    int NewTile(float left, float top) {
        const int index = New({left, top, 3000, 3000});
        ExpandShrinkContainer(Main, index, false);
        return index;
    }
    int NewLink(Parent in, Point at, const std::string& path = "/usr/bin/thing") {
        AddFile(Main, path, in, at);
        return Main.NextShortcutIndex - 1;
    }
    Rect& Box(int index) { return Main.ConView(index).Container.Place; }
    std::string BoxWords(int index) { return fake::Words(Box(index)); }
    void Wait(std::int64_t milliseconds) { computer.Clock.Advance(milliseconds); }
    std::string Recovery(const std::string& name) {
        auto file = computer.Files.Read(fake::SettingsFolder + "/Containers/" + name, 1 << 20);
        return file ? file.Value() : "(none)";
    }

    static SurfaceId OnContainer(int index) { return {SurfaceKind::Container, index}; }
    static constexpr SurfaceId OnBack{SurfaceKind::Workspace, -1};

    // Names and indices of what is visible on a surface, in painting order.
    std::string Seen(SurfaceId surface) {
        std::string text;
        Elements(Main, surface, [&](const ElementInfo& info) {
            text += text.empty() ? "" : " ";
            text += NameOf(info.Id.Kind);
            return true;
        });
        return text;
    }
    ElementInfo Find(SurfaceId surface, ElementKind kind, int index) {
        ElementInfo found;
        Elements(Main, surface, [&](const ElementInfo& info) {
            if (info.Id == ElementId{kind, index}) found = info;
            return true;
        });
        return found;
    }
};

} // namespace quill::test
