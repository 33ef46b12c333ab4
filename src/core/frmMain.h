// frmMain: the workspace. Owns every table, every view and all state; nothing else holds any, so that a test
// can make two workspaces. Routines are free functions that take it first, in the header of their room.
#pragma once

#include "appearance/appearance_state.h"
#include "containers/containers_state.h"
#include "core/core_state.h"
#include "core/marks.h"
#include "core/settings.h"
#include "core/tables.h"
#include "core/views.h"
#include "dock/dock_state.h"
#include "keyboard/keyboard_state.h"
#include "persistence/persistence_state.h"
#include "platform/platform.h"
#include "shortcuts/shortcuts_state.h"
#include "system/system_state.h"

#include <string>
#include <vector>

namespace quill {

inline constexpr const char* ProgramName = "Quillmere";
inline constexpr const char* ProgramVersion = "v5.70b";

struct frmMain {
    // Tables with one dead row each, timers stopped, appearance defaults, IsLoading set.
    explicit frmMain(Platform platform);
    frmMain(const frmMain&) = delete;
    frmMain& operator=(const frmMain&) = delete;

    Platform P;

    std::vector<ContainerEntry> Containers;
    std::vector<ContainerView> ContainerViews; // same rows as Containers
    std::vector<ShortcutEntry> Shortcuts;
    std::vector<ShortcutView> ShortcutViews; // same rows as Shortcuts
    std::vector<PictureEntry> Pictures;
    std::vector<PictureView> PictureViews; // same rows as Pictures
    std::vector<FeedView> FeedViews;       // by clsContainer::RSSListIndex
    std::vector<ZOrderEntry> ZOrderList;   // element 0 is the bottom, the last the top

    std::int32_t NextContainerIndex = 0;
    std::int32_t NextShortcutIndex = 0;
    std::int32_t NextPictureIndex = 0;
    std::int32_t NextRSSIndex = 0;

    SettingsRecord Settings;
    std::string SettingsFolder; // no separator at the end
    bool PortableMode = false;
    bool IsLoading = true; // until PostLoad is through; every save is a no-op meanwhile
    bool IsExiting = false;
    bool g_DontSave = false; // set by the restart that throws changes away

    StartOptions Start;
    WorkspaceView View;
    ContainersState Group; // the containers' room
    ShortcutsState Links;  // the shortcuts' room
    KeyboardState Keys;    // the Keyboard Launcher
    DockState Dock;
    SystemState System;
    LooksState Looks;
    PersistenceState Store;
    quill::Marks Marks;

    clsContainer& Con(int index) { return Containers[static_cast<std::size_t>(index)].Object; }
    const clsContainer& Con(int index) const { return Containers[static_cast<std::size_t>(index)].Object; }
    ContainerView& ConView(int index) { return ContainerViews[static_cast<std::size_t>(index)]; }
    const ContainerView& ConView(int index) const { return ContainerViews[static_cast<std::size_t>(index)]; }
    clsShortcut& Link(int index) { return Shortcuts[static_cast<std::size_t>(index)].Object; }
    const clsShortcut& Link(int index) const { return Shortcuts[static_cast<std::size_t>(index)].Object; }
    ShortcutView& LinkView(int index) { return ShortcutViews[static_cast<std::size_t>(index)]; }
    const ShortcutView& LinkView(int index) const { return ShortcutViews[static_cast<std::size_t>(index)]; }
    clsPicture& Pic(int index) { return Pictures[static_cast<std::size_t>(index)].Object; }
    const clsPicture& Pic(int index) const { return Pictures[static_cast<std::size_t>(index)].Object; }
    PictureView& PicView(int index) { return PictureViews[static_cast<std::size_t>(index)]; }
    const PictureView& PicView(int index) const { return PictureViews[static_cast<std::size_t>(index)]; }
    FeedView& Feed(int index) { return FeedViews[static_cast<std::size_t>(Con(index).RSSListIndex)]; }
    const FeedView& Feed(int index) const {
        return FeedViews[static_cast<std::size_t>(Con(index).RSSListIndex)];
    }
};

} // namespace quill
