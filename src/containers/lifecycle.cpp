#include "containers/lifecycle.h"

#include "appearance/colors.h"
#include "appearance/effects.h"
#include "containers/full_size.h"
#include "containers/layout.h"
#include "containers/measures.h"
#include "core/objects.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "platform/questions.h"
#include "shortcuts/create.h"

namespace quill {
namespace {

bool LimitReached(const frmMain& Main) {
    return Main.NextContainerIndex != 0 && LiveContainers(Main) >= Main.Settings.MaxContainers;
}

void TellLimit(frmMain& Main) {
    const auto text =
        Tr(Main,
           "There is a maximum of %1 containers in the workspace. You can manually change it in "
           "the .ini file.",
           std::to_string(Main.Settings.MaxContainers));
    const DialogPause pause(Main);
    Main.P.Questions.MsgBox(text, BoxOk | BoxCritical, Tr(Main, "Error"));
    if (Main.IsLoading) Main.Store.Quit = true;
}

// The row may hold what a deleted workspace left; a new container starts from nothing.
int TakeRow(frmMain& Main) {
    const auto index = static_cast<std::size_t>(Main.NextContainerIndex);
    if (Main.Containers.size() <= index) Main.Containers.resize(index + 1);
    if (Main.ContainerViews.size() <= index) Main.ContainerViews.resize(index + 1);
    Main.Containers[index] = {Main.NextContainerIndex, {}};
    Main.ContainerViews[index] = {};
    return Main.NextContainerIndex;
}

void GiveDefaults(frmMain& Main, int Index) {
    const auto& settings = Main.Settings;
    auto& container = Main.Con(Index);
    container.DetachedTransparent = settings.Translucent;
    container.DetachedFadeOut = settings.Animate;
    container.DetachedUndockOnClick = settings.UndockOnClick;
    container.SetShrinkSize(settings.ConShrinkW, settings.ConShrinkH);
}

void GiveNote(const SettingsRecord& settings, NoteView& note) {
    note.Visible = false;
    note.BackColor = settings.ContainerTextBack;
    note.ForeColor = settings.ContainerTextFor;
    note.FontSize = measures::NoteFontSize;
}

void GiveLook(frmMain& Main, int Index) {
    auto& view = Main.ConView(Index);
    GiveNote(Main.Settings, view.ContainerNote);
    view.ContainerLabel.Caption = Tr(Main, "Container");
    view.ContainerLabel.FontSize = static_cast<float>(Main.Settings.FontSize);
    view.FoldTip = Tr(Main, "Fold | Double-Click Container Label");
    view.ContainerIcon.Visible = false;
    view.VScroll.Visible = false;
    view.Container.Place = {Main.Group.NewContainerPos.X, Main.Group.NewContainerPos.Y,
                            measures::NewContainerEdge, measures::NewContainerEdge};
    // The reader shows each container at the end of its file; an unseen one would not be saved.
    view.Container.Visible = !Main.IsLoading;
    SetColors(Main, Index, Main.Settings.ContainerFor);
    SetLabelColors(Main, Index, Main.Settings.ContainerLabel);
}

void DeleteWhatLiesIn(frmMain& Main, int Index) {
    for (auto& row : Live(Main.Shortcuts)) {
        if (Main.LinkView(row.Index).In == InContainer(Index)) DeleteShortcut(Main, row.Index);
    }
    for (auto& row : Live(Main.Pictures)) {
        if (Main.PicView(row.Index).In == InContainer(Index)) DeletePicture(Main, row.Index);
    }
}

void ReleaseFeed(frmMain& Main, int Index) {
    const int row = Main.Con(Index).RSSListIndex;
    if (row < 0 || static_cast<std::size_t>(row) >= Main.FeedViews.size()) return;
    Main.FeedViews[static_cast<std::size_t>(row)] = {};
    Main.FeedViews[static_cast<std::size_t>(row)].Visible = false;
}

void Forget(int& index, int gone) {
    if (index == gone) index = -1;
}

void ForgetContainer(ContainersState& state, int Index) {
    state.ExpandedContainer = -1;
    state.CurrentContainer = -1;
    state.ContainerHasFocus = false;
    for (int* index :
         {&state.ExpandingContainer, &state.LastShrunkBack, &state.AutoFoldContainerIndex,
          &state.FlipPosition, &state.HoverContainer, &state.MouseContainer, &state.DragHoverContainer,
          &state.PressedTile, &state.ResizingContainer, &state.ScrollingContainer}) {
        Forget(*index, Index);
    }
}

} // namespace

void NewGroup(frmMain& Main, bool /*showNow*/, bool& ok) {
    ok = !LimitReached(Main);
    if (!ok) return TellLimit(Main);
    const int index = TakeRow(Main);
    AddToZorderCollection(Main, {KindContainer, index}, false);
    GiveDefaults(Main, index);
    GiveLook(Main, index);
    RememberPlace(Main, index);
    DoRoundGradResizeSym(Main, index, true);
    SetObjectRelativeSize(Main, index);
    ++Main.NextContainerIndex;
}

// Files of the user's stay in any case, also those of a folder that is connected here.
void DeleteContainer(frmMain& Main, int Index, bool /*removeFiles*/) {
    if (!IsLive(Main.Containers, Index)) return;
    if (Main.Looks.frmExplode.Container == Index) EndEffect(Main);
    ForgetContainer(Main.Group, Index);
    Main.ConView(Index).ContainerNote.Text.clear();
    RemoveFromZorder(Main, {KindContainer, Index});
    DeleteWhatLiesIn(Main, Index);
    ReleaseFeed(Main, Index);
    Main.Containers[static_cast<std::size_t>(Index)] = {};
    Main.ConView(Index) = {};
    Main.ConView(Index).Container.Visible = false;
    Main.Marks.Container(Index);
}

} // namespace quill
