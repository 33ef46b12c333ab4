#include "fake/desk.h"

#include "keyboard/jump_to.h"

#include "core/start.h"
#include "fake/words.h"

#include <algorithm>
#include <stdexcept>

namespace quill::fake {

namespace {

constexpr int MostRoundsOfATurn = 100; // a handler that moves the window again and again is a defect
constexpr int ProbesASide = 9;

bool Hits(const frmMain& main, SurfaceId surface, ElementId id, Point at) {
    return ElementAt(main, surface, at) == id;
}

// The middle, or else the first point of a grid at which the element is not covered by another.
std::optional<Point> PressPoint(const frmMain& main, SurfaceId surface, const ElementInfo& element) {
    const auto& place = element.Place;
    const Point middle{place.Left + place.Width / 2, place.Top + place.Height / 2};
    if (Hits(main, surface, element.Id, middle)) return middle;
    for (int row = 1; row < ProbesASide; ++row) {
        for (int column = 1; column < ProbesASide; ++column) {
            const Point at{place.Left + place.Width * static_cast<float>(column) / ProbesASide,
                           place.Top + place.Height * static_cast<float>(row) / ProbesASide};
            if (Hits(main, surface, element.Id, at)) return at;
        }
    }
    return {};
}

Rect Stretched(Rect place, int edges, Point by) {
    enum { Left = 1, Top = 2, Right = 4, Bottom = 8 };
    if ((edges & Left) != 0) place.Left += by.X;
    if ((edges & Top) != 0) place.Top += by.Y;
    if ((edges & (Left | Right)) != 0) place.Width += (edges & Left) != 0 ? -by.X : by.X;
    if ((edges & (Top | Bottom)) != 0) place.Height += (edges & Top) != 0 ? -by.Y : by.Y;
    return place;
}

std::string NameOf(SurfaceId surface) {
    static constexpr const char* Names[] = {"Workspace", "Container", "Picture", "Overlay"};
    const std::string name = Names[static_cast<int>(surface.Kind)];
    return surface.Index == -1 ? name : name + " " + std::to_string(surface.Index);
}

std::string Describe(const ElementInfo& element) {
    std::string text{NameOf(element.Id.Kind)};
    if (element.Id.Index != -1) text += "(" + std::to_string(element.Id.Index) + ")";
    text += " " + Words(element.Place);
    if (!element.Name.empty()) text += " \"" + element.Name + "\"";
    if (element.Selected) text += " selected";
    if (element.Pressed) text += " pressed";
    return text;
}

} // namespace

void Connect(Computer& computer, frmMain* main) {
    if (main == nullptr) {
        computer.Clock.OnTimer = nullptr;
        computer.Clock.OnFrame = nullptr;
        return;
    }
    computer.Clock.OnTimer = [main](TimerId timer) { Timer_Tick(*main, timer); };
    computer.Clock.OnFrame = [main] { Frame_Tick(*main); };
}

Desk::Desk() {
    Computer.Session.OnAttach = [this](frmMain* main) { Connect(Computer, main); };
}

// ---- the process

void Desk::StartWorkspace(const std::vector<std::string>& arguments) {
    Main = std::make_unique<frmMain>(Computer.MakePlatform());
    Main->Start = ReadCommandLine(arguments);
    SettleSettingsFolder(*Main);
    Computer.Session.Attach(*Main);
    LoadSettings(*Main);
    if (Main->Store.Quit) return;
    PostLoad(*Main);
    Turn();
}

int Desk::RunProgram(const std::vector<std::string>& arguments, std::function<void(frmMain&)> scene) {
    Computer.Session.OnRun = [this, scene] {
        if (scene) scene(*Computer.Session.Attached);
    };
    const int status = quill::Main(Computer.MakePlatform(), arguments);
    Computer.EndProcess();
    return status;
}

void Desk::StopWorkspace() {
    Connect(Computer, nullptr);
    Computer.EndProcess();
    Computer.Files.Revive();
    Main.reset();
    telling_ = false;
    pointed_.reset();
}

void Desk::ExitWorkspace() {
    mnuExitApp_Click(*Main);
    UnloadMain(*Main);
    StopWorkspace();
}

void Desk::Turn() {
    auto& windows = Computer.Windows;
    for (int round = 0; round < MostRoundsOfATurn; ++round) {
        Computer.Clock.Advance(0);
        if (!windows.PendingMove && !windows.PendingState) break;
        if (const auto move = std::exchange(windows.PendingMove, {})) Form_Moved(*Main, *move);
        if (const auto state = std::exchange(windows.PendingState, {})) Form_StateChanged(*Main, *state);
    }
    if (telling_) TellCrossings(), TellForeground();
    LastMarks = MarkTurn(Main->Marks).Set;
}

constexpr std::int64_t Step = 5; // milliseconds; the least that a frame or a timer takes is more

void Desk::Wait(std::int64_t milliseconds) {
    for (; telling_ && milliseconds > Step; milliseconds -= Step) Computer.Clock.Advance(Step), Turn();
    Computer.Clock.Advance(milliseconds);
    Turn();
}

// ---- looking

std::optional<Found> Desk::Find(ElementKind kind, int index) const {
    std::optional<Found> found;
    for (const SurfaceId surface : Surfaces(*Main)) {
        if (!SurfaceVisible(*Main, surface)) continue;
        Elements(*Main, surface, [&](const ElementInfo& element) {
            if (element.Id != ElementId{kind, index}) return true;
            found = Found{surface, element, {}, false};
            return false;
        });
        if (found) break;
    }
    if (!found) return found;
    if (const auto at = PressPoint(*Main, found->Surface, found->Element)) {
        const Rect place = OnScreen(found->Surface);
        found->At = *at;
        found->Reachable = TopAt({place.Left + at->X, place.Top + at->Y}) == found->Surface;
    }
    return found;
}

Found Desk::Must(ElementKind kind, int index) const {
    const auto found = Find(kind, index);
    if (found && found->Reachable) return *found;
    throw std::runtime_error(std::string(found ? "covered: " : "not visible: ") + std::string(NameOf(kind)) +
                             "(" + std::to_string(index) + ")\n" + Screen());
}

std::string Desk::Screen() const {
    std::string text;
    for (const SurfaceId surface : Surfaces(*Main)) {
        if (!SurfaceVisible(*Main, surface)) continue;
        text += NameOf(surface) + " " + Words(PlaceOfSurface(*Main, surface)) + "\n";
        Elements(*Main, surface, [&](const ElementInfo& element) {
            text += "  " + Describe(element) + "\n";
            return true;
        });
    }
    return text;
}

Rect Desk::OnScreen(SurfaceId surface) const {
    Rect place = PlaceOfSurface(*Main, surface);
    Point origin;
    if (surface.Kind == SurfaceKind::Workspace) {
        origin = {Main->View.Window.Left, Main->View.Window.Top};
    } else {
        const bool framed = surface.Kind == SurfaceKind::Picture &&
                            Main->PicView(surface.Index).In.Kind == ParentKind::ContainerFrame;
        const SurfaceId above =
            framed ? SurfaceId{SurfaceKind::Container, Main->PicView(surface.Index).In.Index} : SurfaceId{};
        const Rect parent = OnScreen(above);
        origin = {parent.Left, parent.Top};
    }
    place.Left += origin.X;
    place.Top += origin.Y;
    return place;
}

SurfaceId Desk::TopAt(Point screen) const {
    SurfaceId top;
    for (const SurfaceId surface : Surfaces(*Main))
        if (surface.Kind != SurfaceKind::Overlay && SurfaceVisible(*Main, surface) &&
            OnScreen(surface).Contains(screen.X, screen.Y))
            top = surface;
    return top;
}

MouseEvent Desk::EventAt(SurfaceId surface, Point at, MouseButton button) const {
    const Rect place = OnScreen(surface);
    MouseEvent event;
    event.At = at;
    event.Screen = {place.Left + at.X, place.Top + at.Y};
    event.Button = button;
    return event;
}

// ---- the mouse

void Desk::Click(SurfaceId surface, Point at, MouseButton button) {
    const auto event = EventAt(surface, at, button);
    Computer.Windows.Cursor = event.Screen;
    MouseMove(*Main, surface, EventAt(surface, at, MouseButton::None));
    MouseDown(*Main, surface, event);
    MouseUp(*Main, surface, event);
    Turn();
}

void Desk::ClickOn(ElementKind kind, int index, MouseButton button) {
    const Found found = Must(kind, index);
    Click(found.Surface, found.At, button);
}

void Desk::DoubleClickOn(ElementKind kind, int index) {
    const Found found = Must(kind, index);
    const auto event = EventAt(found.Surface, found.At, MouseButton::Left);
    Click(found.Surface, found.At);
    MouseDoubleClick(*Main, found.Surface, event);
    MouseUp(*Main, found.Surface, event);
    Turn();
}

void Desk::PointAt(ElementKind kind, int index) {
    const Found found = Must(kind, index);
    const auto event = EventAt(found.Surface, found.At, MouseButton::None);
    Computer.Windows.Cursor = event.Screen;
    MouseMove(*Main, found.Surface, event);
    Turn();
}

// The surface may move under the mouse meanwhile; where the mouse is on the screen stays true.
void Desk::Drag(ElementKind kind, int index, Point by) {
    const Found found = Must(kind, index);
    const auto start = EventAt(found.Surface, found.At, MouseButton::Left);
    const Rect from = Main->View.Window;
    MouseDown(*Main, found.Surface, start);
    MouseEvent event = start;
    for (const float part : {0.5F, 1.0F}) {
        event.Screen = {start.Screen.X + by.X * part, start.Screen.Y + by.Y * part};
        const Rect place = OnScreen(found.Surface);
        event.At = {event.Screen.X - place.Left, event.Screen.Y - place.Top};
        Computer.Windows.Cursor = event.Screen;
        MouseMove(*Main, found.Surface, event);
    }
    // A window that is carried follows the mouse.
    if (Computer.Windows.Moving) MoveWindow({from.Left + by.X, from.Top + by.Y, from.Width, from.Height});
    FollowWindowManager(by);
    MouseUp(*Main, found.Surface, event);
    Turn();
}

// A press that was handed on moves or sizes the window with the pointer.
void Desk::FollowWindowManager(Point by) {
    auto& windows = Computer.Windows;
    Rect place = windows.Of(MainWindow).Place;
    if (windows.Moving == MainWindow) {
        place.Left += by.X;
        place.Top += by.Y;
    } else if (windows.Resizing == MainWindow) {
        place = Stretched(place, windows.ResizingEdges, by);
    } else {
        return;
    }
    windows.MovedByPerson(place);
}

// ---- the keyboard

void Desk::TypeInNote(int index, const std::string& text) {
    ClickOn(ElementKind::ContainerNote, index);
    ContainerNote_GotFocus(*Main, index);
    KeyEvent key;
    key.Text = text;
    key.InTextField = true;
    ContainerNote_KeyDown(*Main, index, key);
    ContainerNote_Change(*Main, index, Main->ConView(index).ContainerNote.Text + text);
    Turn();
}

void Desk::LeaveNote(int index) {
    ContainerNote_LostFocus(*Main, index);
    Turn();
}

void Desk::PressKey(int code, bool ctrl, bool shift, bool alt) {
    KeyEvent key;
    key.Code = code;
    key.Ctrl = ctrl;
    key.Shift = shift;
    key.Alt = alt;
    if (Main->Keys.PicJumpToLink.Visible)
        KeyInField(key);
    else
        Form_KeyDown(*Main, key);
    Turn();
}

// The field asks the logic first, then does what fields do, and what it can't use goes to the workspace.
void Desk::KeyInField(const KeyEvent& key) {
    const auto& field = Main->Keys.PicJumpToLink.cboSearch;
    if (cboSearch_KeyDown(*Main, key, field.SelStart, field.SelLength)) return;
    if (!key.Text.empty() && !key.Ctrl && !key.Alt) return EditField(key.Text, 0);
    if (key.Code == 8 || key.Code == KeyHome || key.Code == KeyEnd) return EditField({}, key.Code);
    KeyEvent inField = key;
    inField.InTextField = true;
    Form_KeyDown(*Main, inField);
}

void Desk::EditField(const std::string& letter, int code) {
    auto& field = Main->Keys.PicJumpToLink.cboSearch;
    if (code == KeyHome || code == KeyEnd) {
        field.SelStart = code == KeyHome ? 0 : CodePoints(field.Text);
        field.SelLength = 0;
        return;
    }
    std::string text = field.Text;
    int from = field.SelStart, length = field.SelLength;
    if (code == 8 && length == 0 && from > 0) --from, length = 1;
    const auto begin = ByteOfCodePoint(text, from), end = ByteOfCodePoint(text, from + length);
    text.replace(begin, end - begin, letter);
    cboSearch_Change(*Main, text, from + CodePoints(letter));
}

void Desk::TypeLetter(const std::string& letter) {
    KeyEvent key;
    key.Text = letter;
    const bool ascii = letter.size() == 1;
    if (ascii && std::isalnum(static_cast<unsigned char>(letter[0])))
        key.Code = std::toupper(static_cast<unsigned char>(letter[0]));
    if (letter == " ") key.Code = KeySpace;
    if (letter == "=") key.Code = 187;
    if (letter == "/") key.Code = 191;
    key.Shift = letter == "!" || (ascii && std::isupper(static_cast<unsigned char>(letter[0])));
    if (letter == "!") key.Code = '1';
    if (Main->Keys.PicJumpToLink.Visible)
        KeyInField(key);
    else
        Form_KeyDown(*Main, key);
    Turn();
}

void Desk::Type(const std::string& text) {
    for (std::size_t at = 0; at < text.size();) {
        std::size_t end = at + 1;
        while (end < text.size() && (text[end] & 0xC0) == 0x80) ++end;
        TypeLetter(text.substr(at, end - at));
        at = end;
    }
}

void Desk::MoveWindow(const Rect& place) {
    Computer.Windows.MovedByPerson(place);
    Turn();
}

// ---- what a sliding workspace meets

std::optional<WindowId> Desk::WindowAt(Point screen) const {
    const auto& windows = Computer.Windows;
    const bool minimized = Main->View.State == WindowState::Minimized;
    for (auto id = windows.Stack.rbegin(); id != windows.Stack.rend(); ++id)
        if (!(minimized && *id == MainWindow) && windows.Of(*id).Place.Contains(screen.X, screen.Y))
            return *id;
    return {};
}

void Desk::TellCrossings() {
    const auto now = WindowAt(Computer.Windows.Cursor);
    const auto before = std::exchange(pointed_, now);
    if (now == before) return;
    if (before) Form_MouseLeave(*Main, *before);
    if (now) Form_MouseEnter(*Main, *now);
}

void Desk::TellForeground() {
    const auto now = Computer.Windows.Foreground;
    if (std::exchange(foreground_, now) != now) Foreground_Changed(*Main);
}

void Desk::MoveMouse(Point screen, MouseButton held) {
    if (!std::exchange(telling_, true)) {
        pointed_ = WindowAt(Computer.Windows.Cursor);
        foreground_ = Computer.Windows.Foreground;
    }
    Computer.Windows.Cursor = screen;
    TellCrossings();
    const auto window = WindowAt(screen);
    if (window == MiniDockWindow) {
        const auto& bar = Main->Dock.MiniDock.Place;
        MouseEvent event;
        event.At = {screen.X - bar.Left, screen.Y - bar.Top};
        event.Screen = screen, event.Button = held;
        MouseMove(*Main, {SurfaceKind::MiniDock, -1}, event);
    } else if (window == MainWindow) {
        const auto surface = TopAt(screen);
        const Rect place = OnScreen(surface);
        MouseMove(*Main, surface, EventAt(surface, {screen.X - place.Left, screen.Y - place.Top}, held));
    }
    Turn();
}

void Desk::MouseAway() {
    constexpr float inset = 900, nearBottom = 150;
    for (const auto& screen : Computer.Windows.Screens) {
        const Rect& it = screen.Place;
        const float middle = it.Left + it.Width / 2, left = it.Left + inset, right = it.Right() - inset;
        const float top = it.Top + inset, bottom = it.Bottom() - inset;
        for (const Point at : {Point{middle, it.Top + it.Height / 2},
                               {left, top},
                               {right, top},
                               {left, bottom},
                               {right, bottom},
                               {middle, it.Bottom() - nearBottom}})
            if (!WindowAt(at)) return MoveMouse(at);
    }
    throw std::runtime_error("our windows leave no place for the mouse");
}

// The middle of the part that a monitor shows.
void Desk::PointAtBar(Point by) {
    if (!BarShows()) throw std::runtime_error("there is no bar to point at");
    const Rect bar = Computer.Windows.Of(MiniDockWindow).Place;
    for (const auto& screen : Computer.Windows.Screens) {
        const Rect& it = screen.Place;
        if (!it.Intersects(bar)) continue;
        const float left = std::max(bar.Left, it.Left), right = std::min(bar.Right(), it.Right());
        const float top = std::max(bar.Top, it.Top), bottom = std::min(bar.Bottom(), it.Bottom());
        return MoveMouse({(left + right) / 2 + by.X, (top + bottom) / 2 + by.Y});
    }
    throw std::runtime_error("no monitor shows the bar at " + Words(bar));
}

void Desk::PressBar(MouseButton button) {
    PointAtBar();
    const SurfaceId surface{SurfaceKind::MiniDock, -1};
    if (!BarShows()) return; // pointing was enough
    MouseEvent event;
    event.Screen = Computer.Windows.Cursor, event.Button = button;
    MouseDown(*Main, surface, event);
    MouseUp(*Main, surface, event);
    Turn();
}

// The mouse is held by whoever drags: windows hear of the drag alone.
void Desk::DragOverBar() {
    const Rect bar = Computer.Windows.Of(MiniDockWindow).Place;
    telling_ = true;
    Computer.Windows.Cursor = {bar.Left + bar.Width / 2, bar.Top + bar.Height / 2};
    pointed_ = WindowAt(Computer.Windows.Cursor);
    DragEvent event;
    event.Screen = Computer.Windows.Cursor;
    DragOver(*Main, {SurfaceKind::MiniDock, -1}, event, {});
    Turn();
}

void Desk::OtherProgram() {
    telling_ = true;
    Computer.Windows.Foreground.reset();
    Turn();
}

void Desk::PressHotkey() {
    if (!Computer.Hotkeys.Held) throw std::runtime_error("the program holds no hotkey");
    if (!std::exchange(telling_, true)) pointed_ = WindowAt(Computer.Windows.Cursor);
    Hotkey_Pressed(*Main);
    Turn();
}

void Desk::ClickTray(MouseButton button) {
    if (!Computer.Tray.Shown) throw std::runtime_error("there is no icon in the tray");
    PicTray_MouseUp(*Main, button);
    Turn();
}

void Desk::ChooseInTray(const std::string& caption) {
    for (const auto& line : TrayMenu_Lines(*Main)) {
        std::string plain = line.Caption;
        std::erase(plain, '&');
        if (plain != caption || !line.Enabled) continue;
        TrayMenu_Click(*Main, line.Id);
        return Turn();
    }
    throw std::runtime_error("the tray's menu does not offer " + caption);
}

void Desk::ChangeScreens(const std::vector<Monitor>& screens) {
    Computer.Windows.Screens = screens;
    Screen_Changed(*Main);
    Turn();
}

void Desk::Minimize() {
    Computer.Windows.PendingState = WindowState::Minimized;
    if (Computer.Windows.Foreground == MainWindow) Computer.Windows.Foreground.reset();
    Turn();
}

void Desk::CarryWindow(const Rect& place) {
    const Rect from = Main->View.Window;
    Drag(ElementKind::lblCaption, -1, {place.Left - from.Left, place.Top - from.Top});
}

// ---- the tables

std::vector<std::string> Desk::Containers() const {
    std::vector<std::string> names;
    for (const auto& row : Live(Main->Containers))
        names.push_back(Main->ConView(row.Index).ContainerLabel.Caption);
    return names;
}

int Desk::ContainerNamed(const std::string& name) const {
    for (const auto& row : Live(Main->Containers))
        if (Main->ConView(row.Index).ContainerLabel.Caption == name) return row.Index;
    return -1;
}

int Desk::ShortcutNamed(const std::string& caption) const {
    for (const auto& row : Live(Main->Shortcuts))
        if (Main->LinkView(row.Index).lblShortcut.Caption == caption) return row.Index;
    return -1;
}

} // namespace quill::fake
