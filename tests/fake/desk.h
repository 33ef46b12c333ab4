// Desk: a person at the fake computer, in verbs of the field. The verbs are thin: each finds a place on the
// screen, calls the handlers that the window system would call, and lets one turn of the event loop pass.
//
//     Desk desk;
//     desk.Files().Put(desk.Settings("Containers/0.CON"), text);
//     desk.StartWorkspace();
//     desk.ClickOn(ElementKind::lblFoldUnfold, 0);
//
// Places are found by the walk over elements, so a verb fails loudly when what it wants is not visible.
#pragma once

#include "core/frmMain.h"
#include "core/handlers.h"
#include "core/surfaces.h"
#include "fake/computer.h"

#include <functional>
#include <memory>
#include <optional>

namespace quill::fake {

struct Found {
    SurfaceId Surface;
    ElementInfo Element;
    Point At;               // on the surface: where a person would press it
    bool Reachable = false; // a press at At hits this element and no other that covers it
};

struct Desk {
    Desk();

    fake::Computer Computer;
    std::unique_ptr<frmMain> Main;

    FakeFiles& Files() { return Computer.Files; }
    FakeQuestions& Person() { return Computer.Questions; }
    std::string Settings(const std::string& name) const { return SettingsFolder + "/" + name; }

    // The load as the entry routine does it, without the event loop.
    void StartWorkspace(const std::vector<std::string>& arguments = {"--nosplash"});
    // The whole program with its entry routine; the scene is played inside the event loop, Main is null then.
    int RunProgram(const std::vector<std::string>& arguments, std::function<void(frmMain&)> scene = {});
    void StopWorkspace(); // the process ends with nothing saved, as by a kill
    void ExitWorkspace(); // by the menu's exit; the process is gone afterwards
    void Restart() { ExitWorkspace(), StartWorkspace(); }
    void RestartAfterKill() { StopWorkspace(), StartWorkspace(); }

    std::optional<Found> Find(ElementKind kind, int index = -1) const;
    bool Sees(ElementKind kind, int index = -1) const { return Find(kind, index).has_value(); }
    std::string Screen() const; // every visible element, a line each, surface by surface

    void ClickOn(ElementKind kind, int index = -1, MouseButton button = MouseButton::Left);
    void RightClickOn(ElementKind kind, int index = -1) { ClickOn(kind, index, MouseButton::Right); }
    void DoubleClickOn(ElementKind kind, int index = -1);
    void Drag(ElementKind kind, int index, Point by); // press, move by so many twips in two steps, release
    void PointAt(ElementKind kind, int index = -1);   // moves the mouse there
    void Click(SurfaceId surface, Point at, MouseButton button = MouseButton::Left);
    void TypeInNote(int index, const std::string& text); // clicks into it, types at the end, stays in it
    void LeaveNote(int index);
    void PressKey(int code, bool ctrl = false, bool shift = false, bool alt = false);
    // What a person types, letter by letter: into the launcher's field while that is open, else to the
    // workspace. The field is played as the toolkit's: what its keys leave unused edits its text.
    void Type(const std::string& text);
    std::string Typed() const { return Main->Keys.PicJumpToLink.cboSearch.Text; }
    void MoveWindow(const Rect& place); // by the person, as the window manager reports it
    void Wait(std::int64_t milliseconds);
    // ---- pointer, keyboard and screens, as a sliding workspace meets them. The first of these verbs makes
    // the window system tell of the pointer's crossings and of the keyboard's moves too, step by step while
    // time passes.
    void MoveMouse(Point screen, MouseButton held = MouseButton::None); // over whatever of ours is there
    void MouseAway();                                                   // where no window of ours is
    void PointAtBar(Point by = {});                                     // the middle of what shows of it
    void PressBar(MouseButton button = MouseButton::Left);
    void DragOverBar();
    void OtherProgram(); // takes the keyboard
    void LeaveWorkspace() { MouseAway(), OtherProgram(); }
    void PressHotkey(); // throws when the program does not hold it
    void ClickTray(MouseButton button = MouseButton::Left);
    void ChooseInTray(const std::string& caption); // throws when it is not offered or disabled
    void ChangeScreens(const std::vector<Monitor>& screens);
    void Minimize();                     // by the taskbar
    void CarryWindow(const Rect& place); // by its title row, from the press to the release
    bool BarShows() const { return Computer.Windows.IsVisible(MiniDockWindow); }
    bool WorkspaceShows() const { return Computer.Windows.IsVisible(MainWindow); }

    void Turn();       // what is pending reaches the workspace, and its marks are taken
    MarkSet LastMarks; // what the last turn took

    std::vector<std::string> Containers() const;       // names of the live ones in table order
    int ContainerNamed(const std::string& name) const; // -1: none
    int ShortcutNamed(const std::string& caption) const;

private:
    void TypeLetter(const std::string& letter);
    void EditField(const std::string& letter, int code);
    void KeyInField(const KeyEvent& key);
    std::optional<WindowId> WindowAt(Point screen) const;
    void TellCrossings();
    void TellForeground();
    bool telling_ = false; // of crossings and the keyboard
    std::optional<WindowId> pointed_, foreground_;

    SurfaceId TopAt(Point screen) const;
    Rect OnScreen(SurfaceId surface) const;
    void FollowWindowManager(Point by);
    MouseEvent EventAt(SurfaceId surface, Point at, MouseButton button) const;
    Found Must(ElementKind kind, int index) const;
};

// Leads the clock's ticks and frames to the handlers of this workspace; null: to nobody.
void Connect(Computer& computer, frmMain* main);

} // namespace quill::fake
