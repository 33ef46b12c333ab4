#include "fake/windows.h"

#include "fake/words.h"

#include <algorithm>
#include <array>

namespace quill::fake {

std::string NameOf(WindowId window) {
    static constexpr std::array Names{"frmMain",    "frmSplash", "frmMiniDock",  "frmMiniToolbar",
                                      "frmExplode", "frmTip",    "frmContainer", "frmContainerLabel"};
    const std::string name = Names.at(static_cast<std::size_t>(window.Name));
    return window.Index == -1 ? name : name + "(" + std::to_string(window.Index) + ")";
}

void FakeWindows::Place(WindowId window, const Rect& place) {
    windows_[window].Place = place;
    if (window == MainWindow) PendingMove = place;
    Log.push_back("place " + NameOf(window) + " " + Words(place));
}

void FakeWindows::Show(WindowId window, Activate activate) {
    windows_[window].Visible = true;
    Raise(window);
    if (activate == Activate::Yes) Foreground = window;
    Log.push_back("show " + NameOf(window) + (activate == Activate::Yes ? " active" : ""));
}

void FakeWindows::Hide(WindowId window) {
    windows_[window].Visible = false;
    std::erase(Stack, window);
    if (Foreground == window) Foreground.reset();
    Log.push_back("hide " + NameOf(window));
}

void FakeWindows::SetState(WindowId window, WindowState state) {
    windows_[window].State = state;
    if (window == MainWindow) PendingState = state;
    static constexpr std::array Names{"normal", "minimized", "maximized"};
    Log.push_back("state " + NameOf(window) + " " + Names.at(static_cast<std::size_t>(state)));
}

void FakeWindows::SetOpacity(WindowId window, int alpha) {
    windows_[window].Opacity = alpha;
    Log.push_back("opacity " + NameOf(window) + " " + std::to_string(alpha));
}

void FakeWindows::SetWindowOnTop(WindowId window, bool topMost) {
    windows_[window].OnTop = topMost;
    if (topMost && windows_[window].Visible) Raise(window);
    Log.push_back((topMost ? "ontop " : "notontop ") + NameOf(window));
}

void FakeWindows::SetTaskbarEntry(WindowId window, bool shown) {
    windows_[window].TaskbarEntry = shown;
    Log.push_back("taskbar " + NameOf(window) + (shown ? " yes" : " no"));
}

void FakeWindows::SetForegroundWindow(WindowId window) {
    Foreground = window;
    if (windows_[window].Visible) Raise(window);
    Log.push_back("foreground " + NameOf(window));
}

void FakeWindows::GiveForegroundBack(WindowId window) {
    if (Foreground == window) Foreground.reset();
    Log.push_back("giveback " + NameOf(window));
}

// As window managers do it, this brings it above a panel of the same layer.
void FakeWindows::RaiseWindow(WindowId window) {
    if (windows_[window].Visible) Raise(window);
    if (windows_[window].OnTop) PanelOnTop = false;
    Log.push_back("raise " + NameOf(window));
}

std::vector<StackedWindow> FakeWindows::Stacking() const {
    std::vector<StackedWindow> windows;
    for (const WindowId window : Stack) windows.insert(windows.begin(), StackedWindow{window, 0});
    if (PanelEdge != 0)
        windows.insert(PanelOnTop ? windows.begin() : windows.end(), StackedWindow{{}, PanelEdge});
    return windows;
}

bool FakeWindows::IsFullScreenAt(Point place) const {
    return FullScreen && FullScreen->Contains(place.X, place.Y);
}

void FakeWindows::BeginMove(WindowId window) {
    Moving = window;
    Log.push_back("beginmove " + NameOf(window));
}

void FakeWindows::BeginResize(WindowId window, int edges) {
    Resizing = window;
    ResizingEdges = edges;
    Log.push_back("beginresize " + NameOf(window) + " " + std::to_string(edges));
}

void FakeWindows::ShowCursor(bool shown) {
    CursorShown = shown;
    Log.push_back(shown ? "show cursor" : "hide cursor");
}

void FakeWindows::SetCursorPos(Point place) {
    Cursor = place;
    Log.push_back("cursor " + Words(place));
}

const FakeWindow& FakeWindows::Of(WindowId window) const {
    static const FakeWindow untouched;
    const auto found = windows_.find(window);
    return found == windows_.end() ? untouched : found->second;
}

void FakeWindows::MovedByPerson(const Rect& place) {
    windows_[MainWindow].Place = place;
    PendingMove = place;
    Moving.reset();
    Resizing.reset();
}

void FakeWindows::EndProcess() {
    windows_.clear();
    Stack.clear();
    Foreground.reset();
    PendingMove.reset();
    PendingState.reset();
    Moving.reset();
    Resizing.reset();
}

// Above its equals: what is on top stays above what is not.
void FakeWindows::Raise(WindowId window) {
    std::erase(Stack, window);
    Stack.push_back(window);
    std::stable_partition(Stack.begin(), Stack.end(), [this](WindowId id) { return !windows_[id].OnTop; });
}

} // namespace quill::fake
