#include "qt/core/keys.h"

#include "qt/core/convert.h"

#include <QKeyEvent>

#include <algorithm>

namespace quill {
namespace {

struct KeyRow {
    int Key;
    int Code;
};

// Keys whose number is not that of their letter.
constexpr KeyRow rows[] = {
    {Qt::Key_Backspace, 8},
    {Qt::Key_Tab, KeyTab},
    {Qt::Key_Backtab, KeyTab},
    {Qt::Key_Return, KeyReturn},
    {Qt::Key_Enter, KeyReturn},
    {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20},
    {Qt::Key_Escape, KeyEscape},
    {Qt::Key_Space, KeySpace},
    {Qt::Key_PageUp, KeyPageUp},
    {Qt::Key_PageDown, KeyPageDown},
    {Qt::Key_End, KeyEnd},
    {Qt::Key_Home, KeyHome},
    {Qt::Key_Left, KeyLeft},
    {Qt::Key_Up, KeyUp},
    {Qt::Key_Right, KeyRight},
    {Qt::Key_Down, KeyDown},
    {Qt::Key_Print, 44},
    {Qt::Key_Insert, 45},
    {Qt::Key_Delete, KeyDelete},
    {Qt::Key_Menu, KeyMenu},
    {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},
    {Qt::Key_Meta, 91},
    {Qt::Key_NumLock, 144},
    {Qt::Key_ScrollLock, 145},
    {Qt::Key_Semicolon, 186},
    {Qt::Key_Colon, 186},
    {Qt::Key_Equal, 187},
    {Qt::Key_Plus, 187},
    {Qt::Key_Comma, 188},
    {Qt::Key_Minus, 189},
    {Qt::Key_Underscore, 189},
    {Qt::Key_Period, 190},
    {Qt::Key_Slash, 191},
    {Qt::Key_Question, 191},
    {Qt::Key_BracketLeft, 219},
    {Qt::Key_Backslash, 220},
    {Qt::Key_BracketRight, 221},
    {Qt::Key_Apostrophe, 222},
};

bool IsLetterOrDigit(int key) {
    return (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
}

// 0 for a key that the workspace has no number for.
int CodeOf(int key) {
    if (IsLetterOrDigit(key)) return key;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return KeyF1 + key - Qt::Key_F1;
    const auto found = std::ranges::find(rows, key, &KeyRow::Key);
    return found == std::end(rows) ? 0 : found->Code;
}

} // namespace

KeyEvent KeyOf(const QKeyEvent& event, TypingInto where) {
    const auto held = event.modifiers();
    KeyEvent key;
    key.Code = CodeOf(event.key());
    key.Shift = held.testFlag(Qt::ShiftModifier);
    key.Ctrl = held.testFlag(Qt::ControlModifier);
    key.Alt = held.testFlag(Qt::AltModifier);
    key.Text = Bytes(event.text());
    key.InTextField = where == TypingInto::TextField;
    return key;
}

} // namespace quill
