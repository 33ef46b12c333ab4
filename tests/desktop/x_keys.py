"""Keys of the whole desktop, as another program than the one under test sees them: a connection of its own to the
X server that takes keys and the keyboard, and tells whether it got them."""

import ctypes

from xdisplay import _HANDLER_TYPE, _X11, _XTST, _ignore_errors, Window

ALT, SUPER = 1 << 3, 1 << 6  # Mod1 and Mod4, where they are in every layout of the tests
_ASYNC, _BAD_ACCESS, _SUCCESS = 1, 10, 0


class _Error(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("display", ctypes.c_void_p), ("resource", ctypes.c_ulong),
                ("serial", ctypes.c_ulong), ("code", ctypes.c_ubyte)]


class OtherProgram:
    def __init__(self, display):
        self._handle = ctypes.c_void_p(_X11.XOpenDisplay(display.encode()))
        self._root = Window(_X11.XDefaultRootWindow(self._handle))

    def close(self):
        _X11.XCloseDisplay(self._handle)

    def code_of(self, symbol):
        """The key that gives the symbol now, "s" or "Left"; 0 if none does."""
        _X11.XStringToKeysym.restype = ctypes.c_ulong
        _X11.XKeysymToKeycode.restype = ctypes.c_ubyte
        return _X11.XKeysymToKeycode(self._handle, ctypes.c_ulong(_X11.XStringToKeysym(symbol.encode())))

    def take_key(self, code, modifiers=ALT | SUPER):
        """Whether this program has the key now, and nobody else has."""
        codes = []
        note = _HANDLER_TYPE(lambda _display, event: codes.append(ctypes.cast(event, ctypes.POINTER(_Error))[0].code) or 0)
        _X11.XSync(self._handle, 0)
        _X11.XSetErrorHandler(note)
        _X11.XGrabKey(self._handle, code, modifiers, self._root, 0, _ASYNC, _ASYNC)
        _X11.XSync(self._handle, 0)
        _X11.XSetErrorHandler(_ignore_errors)
        return _BAD_ACCESS not in codes

    def leave_key(self, code, modifiers=ALT | SUPER):
        _X11.XUngrabKey(self._handle, code, modifiers, self._root)
        _X11.XSync(self._handle, 0)

    def is_taken(self, code, modifiers=ALT | SUPER):
        """Whether some other program has the key."""
        if not self.take_key(code, modifiers):
            return True
        self.leave_key(code, modifiers)
        return False

    def keyboard_is_free(self):
        got = _X11.XGrabKeyboard(self._handle, self._root, 0, _ASYNC, _ASYNC, ctypes.c_ulong(0)) == _SUCCESS
        if got:
            _X11.XUngrabKeyboard(self._handle, ctypes.c_ulong(0))
        _X11.XSync(self._handle, 0)
        return got

    def key(self, code, down):
        _XTST.XTestFakeKeyEvent(self._handle, code, int(down), ctypes.c_ulong(0))
        _X11.XSync(self._handle, 0)
