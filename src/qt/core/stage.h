// Stage: all that is on the screen, the widgets of windows and surfaces. It takes the marks of the logic once
// a turn of the event loop and makes the screen what the tables say; nothing else writes to a widget.
#pragma once

#include "core/shortcut_lists.h"
#include "core/surfaces.h"
#include "platform/windows.h"
#include "qt/core/accessible_desk.h"
#include "qt/core/surface_widget.h"
#include "qt/dock/desktop_watch.h"
#include "qt/dock/main_widget.h"
#include "qt/dock/splash_widget.h"
#include "qt/dock/tip_widget.h"
#include "qt/keyboard/launcher_desk.h"
#include "qt/notes/note_desk.h"

#include <QObject>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quill {

struct MarkSet;

class Stage : public QObject {
public:
    // The icon of the windows is read from the folder, after the first picture.
    Stage(const Attachment& attached, Looks& looks, std::string iconFolder);
    ~Stage() override;

    void Wake();  // arranges for a drain in the next turn
    void Drain(); // now
    MainWidget& Main();
    QWidget& Splash();
    QWidget& Tip();
    SurfaceWidget& Edge(SurfaceKind kind); // the bar or the strip, a window of its own, made on first use
    // Made if need be. Null for a window that this backend does not have.
    QWidget* Window(WindowId window);
    QWidget* Known(WindowId window) const; // null for one that was never used: frmMain, the bar, the strip
    // Where things lay when the marks were last taken: what has changed since is about to be painted anyway.
    const ShortcutLists& Lists();

    std::function<void()> OnFirstPicture; // what had to wait for it; empty: nothing

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void Apply(const MarkSet& set);
    void SyncMarked(const MarkSet& set);
    void SyncAll();
    void SyncContainer(int index);
    SurfaceWidget* Sync(SurfaceId id); // made, placed, shown or hidden; null when there is nothing to show
    SurfaceWidget* Find(SurfaceId id) const;
    SurfaceWidget* Make(SurfaceId id);
    QWidget* ParentOf(SurfaceId id);
    void Clip(SurfaceWidget& picture);
    void Restack();
    void RepaintWorkspace();
    void Update(SurfaceWidget* surface) const;
    void FirstPictureStands();
    std::optional<WindowId> NameOf(qt::x11::WindowId native) const;

    const Attachment& attached_;
    Looks& looks_;
    std::string iconFolder_;
    NoteDesk notes_;
    LauncherDesk launcher_;
    AccessibleDesk accessible_;
    std::unique_ptr<MainWidget> main_;
    std::unique_ptr<SplashWidget> splash_;
    std::unique_ptr<TipWidget> tip_;
    std::vector<std::unique_ptr<SurfaceWidget>> edges_;
    std::map<SurfaceId, SurfaceWidget*> surfaces_; // owned by their parents, or in edges_
    std::optional<ShortcutLists> lists_;           // made for the first surface that is painted
    bool woken_ = false;
    bool restack_ = false;
    bool seen_ = false; // the server has shown the workspace
    DesktopWatch watch_;
};

} // namespace quill
