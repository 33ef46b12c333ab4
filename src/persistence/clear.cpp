#include "containers/lifecycle.h"
#include "containers/selection.h"
#include "core/objects.h"
#include "persistence/save.h"
#include "shortcuts/create.h"

namespace quill {
namespace {

void EndSelections(frmMain& Main) {
    UnselectLinks(Main);
    Main.Links.CurrentShortcut = -1;
    for (auto& view : Main.ContainerViews) view.LabelSelected = false;
}

void DeleteObjects(frmMain& Main) {
    for (const auto& row : Live(Main.Shortcuts)) DeleteShortcut(Main, row.Index);
    for (const auto& row : Live(Main.Pictures)) DeletePicture(Main, row.Index);
    for (const auto& row : Live(Main.Containers)) DeleteContainer(Main, row.Index, false);
}

// One dead row each, as at the start of the program. The counters go on: an index is never used again.
void CutTables(frmMain& Main) {
    Main.Containers.assign(1, {});
    Main.ContainerViews.assign(1, {});
    Main.Shortcuts.assign(1, {});
    Main.ShortcutViews.assign(1, {});
    Main.Pictures.assign(1, {});
    Main.PictureViews.assign(1, {});
    Main.ZOrderList.clear();
}

} // namespace

void ClearWorkspace(frmMain& Main) {
    EndSelections(Main);
    DeleteObjects(Main);
    CutTables(Main);
    Main.Links.Recent.clear();
    Main.Group = {};
    Main.Marks.Everything();
}

} // namespace quill
