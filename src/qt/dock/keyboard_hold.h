// KeyboardHold: keeps what is typed right behind the hotkey. From the press on the keyboard is ours, and keys
// that would still go to another program are turned to the window that is just coming out; until that has the
// keyboard itself, or half a second has passed. It never lasts longer than that and the hotkey's own key.
//
// It is fed with the events of the toolkit's connection to the server.
#pragma once

#include <QTimer>

#include <cstdint>
#include <functional>
#include <set>

struct xcb_connection_t;
struct xcb_key_press_event_t;
struct xcb_focus_in_event_t;

namespace quill::qt {

class KeyboardHold {
public:
    // The server's number of the window that is to have the keys.
    KeyboardHold(xcb_connection_t* server, std::function<std::uint32_t()> receiver);
    ~KeyboardHold();

    // The hotkey has been pressed. Whatever the server has kept back since, comes now.
    void Begin(std::uint32_t time);
    void Follow(); // the window is coming out: keys go to it
    void LetGo();  // it is not
    void HotkeyUp();
    // Turns a key that is nobody's to the window.
    void Take(xcb_key_press_event_t& event, bool isPress);
    void FocusCame(const xcb_focus_in_event_t& event);

private:
    void End();

    xcb_connection_t* server_;
    std::function<std::uint32_t()> receiver_;
    QTimer limit_;
    std::set<std::uint8_t> turned_; // keys whose press went to the window
    bool held_ = false;             // by a grab of ours
    bool keyDown_ = false;          // the hotkey's own; its release belongs to nobody else
    bool following_ = false;
};

} // namespace quill::qt
