// The Keyboard Launcher's box open on a workspace, put there without a key.
#pragma once

#include "containers/layout.h"
#include "core/element_walk.h"
#include "keyboard/jump_to.h"
#include "keyboard/jump_to_measures.h"
#include "shortcuts/at_work.h"

namespace quill {

struct OpenBox : AtWork {
    OpenBox() {
        SizeWorkspace(12035, 9030);
        Main.View.Visible = true;
        Box().lblJumpToLink = "Keyboard Launcher";
        Box().lblJumpToTip = "Open shortcuts, folders and URLs";
        ShowBox();
    }
    void SizeWorkspace(float width, float height) {
        Main.View.Window = {6000, 3000, width, height};
        ResizeForm(Main);
    }
    void ShowBox() {
        Box().Visible = true;
        Box().Place = PlaceOfJumpTo(Main);
    }
    void ShowTips() {
        Main.Keys.TipShown = true;
        ShowBox();
    }
    void DropDown(int lines) {
        auto& field = Box().cboSearch;
        field.List.clear();
        for (int line = 0; line < lines; ++line) field.List.push_back({"line " + std::to_string(line), line});
        field.DroppedDown = true;
        ++field.ListRevision;
    }
    JumpToView& Box() { return Main.Keys.PicJumpToLink; }
    Rect PartAt(ElementKind part) { return PlaceOfJumpToPart(Main, part); }
    Size Back() { return {Main.View.picBack.Place.Width, Main.View.picBack.Place.Height}; }
};

inline bool Within(const Rect& inner, const Rect& outer) {
    return inner.Left >= outer.Left && inner.Top >= outer.Top && inner.Right() <= outer.Right() &&
           inner.Bottom() <= outer.Bottom();
}

} // namespace quill
