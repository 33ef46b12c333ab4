"""One connection to an X server, as the tests need it: windows and their properties are read, the
mouse is moved by the XTEST extension, and messages are sent to the window manager.

It knows nothing of programs, of tests or of waiting; that is harness.py. Everything is in root
pixels. A window that vanishes while it is looked at reads as None or as an empty list, never as an
exception, because on a desktop that is an ordinary thing.
"""

import ctypes
import ctypes.util

Window = ctypes.c_ulong
Atom = ctypes.c_ulong
_ZPIXMAP = 2
_ALL_PLANES = ctypes.c_ulong(-1).value
_SUBSTRUCTURE_NOTIFY = 1 << 19
_LISTENED = _SUBSTRUCTURE_NOTIFY | (1 << 17)  # some toolkits answer pings to StructureNotify only
_SUBSTRUCTURE_MASKS = _SUBSTRUCTURE_NOTIFY | (1 << 20)  # the second is SubstructureRedirect
_CLIENT_MESSAGE = 33


class _Attributes(ctypes.Structure):
    _fields_ = [
        ("x", ctypes.c_int), ("y", ctypes.c_int), ("width", ctypes.c_int), ("height", ctypes.c_int),
        ("border_width", ctypes.c_int), ("depth", ctypes.c_int), ("visual", ctypes.c_void_p),
        ("root", Window), ("window_class", ctypes.c_int), ("bit_gravity", ctypes.c_int),
        ("win_gravity", ctypes.c_int), ("backing_store", ctypes.c_int),
        ("backing_planes", ctypes.c_ulong), ("backing_pixel", ctypes.c_ulong),
        ("save_under", ctypes.c_int), ("colormap", ctypes.c_ulong), ("map_installed", ctypes.c_int),
        ("map_state", ctypes.c_int), ("all_event_masks", ctypes.c_long),
        ("your_event_mask", ctypes.c_long), ("do_not_propagate_mask", ctypes.c_long),
        ("override_redirect", ctypes.c_int), ("screen", ctypes.c_void_p),
    ]


class _ClientMessage(ctypes.Structure):
    _fields_ = [
        ("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
        ("display", ctypes.c_void_p), ("window", Window), ("message_type", Atom),
        ("format", ctypes.c_int), ("data", ctypes.c_long * 5), ("pad", ctypes.c_long * 12),
    ]


def _load():
    x11 = ctypes.CDLL("libX11.so.6")
    xtst = ctypes.CDLL("libXtst.so.6")
    x11.XOpenDisplay.restype = ctypes.c_void_p
    x11.XDefaultRootWindow.restype = Window
    x11.XInternAtom.restype = Atom
    x11.XGetAtomName.restype = ctypes.c_void_p
    x11.XGetImage.restype = ctypes.c_void_p
    x11.XGetPixel.restype = ctypes.c_ulong
    x11.XCreateSimpleWindow.restype = Window
    x11.XGetSelectionOwner.restype = Window
    return x11, xtst


_X11, _XTST = _load()
_HANDLER_TYPE = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)
_ignore_errors = _HANDLER_TYPE(lambda display, event: 0)
_X11.XSetErrorHandler(_ignore_errors)


class XDisplay:
    """The connection. `name` is a display name such as ":7"."""

    def __init__(self, name):
        handle = _X11.XOpenDisplay(name.encode())
        if not handle:
            raise OSError("no X server answers on " + name)
        self._handle = ctypes.c_void_p(handle)
        self.root = _X11.XDefaultRootWindow(self._handle)
        self._atoms = {}
        self._own = None
        self._pings, self._pings_answered = 0, set()
        _X11.XSelectInput(self._handle, Window(self.root), ctypes.c_long(_LISTENED))

    def close(self):
        if self._handle:
            _X11.XCloseDisplay(self._handle)
            self._handle = None

    def sync(self):
        """Returns when the server has worked off everything sent over this connection."""
        _X11.XSync(self._handle, 0)

    def atom(self, name):
        if name not in self._atoms:
            self._atoms[name] = _X11.XInternAtom(self._handle, name.encode(), 0)
        return self._atoms[name]

    def atom_name(self, atom):
        text = _X11.XGetAtomName(self._handle, Atom(atom))
        if not text:
            return ""
        name = ctypes.string_at(text).decode()
        _X11.XFree(ctypes.c_void_p(text))
        return name

    # Properties

    def property(self, window, name):
        """The raw value: a list of numbers for formats 16 and 32, bytes for 8, None if absent."""
        kind, form = Atom(), ctypes.c_int()
        count, rest, data = ctypes.c_ulong(), ctypes.c_ulong(), ctypes.c_void_p()
        failed = _X11.XGetWindowProperty(
            self._handle, Window(window), Atom(self.atom(name)), ctypes.c_long(0),
            ctypes.c_long(100000), 0, Atom(0), ctypes.byref(kind), ctypes.byref(form),
            ctypes.byref(count), ctypes.byref(rest), ctypes.byref(data))
        if failed or not data.value:
            return None
        value = None if kind.value == 0 else _decoded(data.value, form.value, count.value)
        _X11.XFree(data)
        return value

    def numbers(self, window, name):
        value = self.property(window, name)
        return value if isinstance(value, list) else []

    def number(self, window, name):
        """The first number of the property, 0 when there is none."""
        return (self.numbers(window, name) or [0])[0]

    def text(self, window, name):
        value = self.property(window, name)
        return value.decode("utf-8", "replace") if isinstance(value, bytes) else ""

    def atom_list(self, window, name):
        return [self.atom_name(atom) for atom in self.numbers(window, name)]

    # Windows

    def attributes(self, window):
        found = _Attributes()
        if not _X11.XGetWindowAttributes(self._handle, Window(window), ctypes.byref(found)):
            return None
        return found

    def is_viewable(self, window):
        found = self.attributes(window)
        return bool(found and found.map_state == 2)

    def rect(self, window):
        """(x, y, width, height) of the window itself, without a frame around it; None if gone."""
        found = self.attributes(window)
        if not found:
            return None
        x, y, child = ctypes.c_int(), ctypes.c_int(), Window()
        _X11.XTranslateCoordinates(self._handle, Window(window), Window(self.root), 0, 0,
                                   ctypes.byref(x), ctypes.byref(y), ctypes.byref(child))
        return (x.value, y.value, found.width, found.height)

    def children(self, window):
        """Bottom to top."""
        root, parent, count = Window(), Window(), ctypes.c_uint()
        items = ctypes.POINTER(Window)()
        if not _X11.XQueryTree(self._handle, Window(window), ctypes.byref(root),
                               ctypes.byref(parent), ctypes.byref(items), ctypes.byref(count)):
            return []
        found = [items[i] for i in range(count.value)]
        if items:
            _X11.XFree(items)
        return found

    def parent(self, window):
        """0 for the root, and for a window that is gone."""
        root, parent, count = Window(), Window(), ctypes.c_uint()
        items = ctypes.POINTER(Window)()
        found = _X11.XQueryTree(self._handle, Window(window), ctypes.byref(root), ctypes.byref(parent),
                                ctypes.byref(items), ctypes.byref(count))
        if found and items:
            _X11.XFree(items)
        return parent.value if found else 0

    def has_ancestor(self, window, ancestor):
        """True for the window itself too."""
        while window and window != ancestor:
            window = self.parent(window)
        return bool(window)

    def top_level(self, window):
        """The child of the root that holds the window: its frame, or itself where it has none."""
        above = self.parent(window)
        while above and above != self.root:
            window, above = above, self.parent(above)
        return window

    def keyboard_window(self):
        """The window that receives keys at this moment, whatever the window manager announces."""
        window, revert = Window(), ctypes.c_int()
        _X11.XGetInputFocus(self._handle, ctypes.byref(window), ctypes.byref(revert))
        return window.value

    # Messages

    def message(self, window, name, *data):
        """Sends a client message about `window` to the root, where the window manager hears it."""
        self._send(self.root, _SUBSTRUCTURE_MASKS, window, name, data)

    def _send(self, receiver, mask, window, name, data):
        event = _ClientMessage(type=_CLIENT_MESSAGE, window=window, message_type=self.atom(name), format=32)
        for place, value in enumerate(data):
            event.data[place] = value
        _X11.XSendEvent(self._handle, Window(receiver), 0, ctypes.c_long(mask), ctypes.byref(event))
        self.sync()

    def start_ping(self, window):
        """Asks the owner of the window whether it is alive; the ticket is for ping_answered. The owner
        answers from its event loop, after everything that reached it before."""
        self._pings += 1
        self._send(window, 0, window, "WM_PROTOCOLS", (self.atom("_NET_WM_PING"), self._pings, window))
        return self._pings

    def ping_answered(self, ticket):
        event = _ClientMessage()
        while _X11.XPending(self._handle):
            _X11.XNextEvent(self._handle, ctypes.byref(event))
            if event.type == _CLIENT_MESSAGE and event.data[0] == self.atom("_NET_WM_PING"):
                self._pings_answered.add(event.data[1])
        return ticket in self._pings_answered

    def selection_owner(self, selection):
        return _X11.XGetSelectionOwner(self._handle, Atom(selection))

    # Asking the window manager whether it has worked off what came before. It works in order, so when the
    # answer stands, everything that any program asked of it earlier is done.

    def ask_frame_extents(self):
        """The lightest question, about a window that is never shown. Not every window manager answers it."""
        if self._own is None:
            self._own = self._create_window()
        _X11.XDeleteProperty(self._handle, Window(self._own), Atom(self.atom("_NET_FRAME_EXTENTS")))
        self.sync()
        self.message(self._own, "_NET_REQUEST_FRAME_EXTENTS")

    def frame_extents_answered(self):
        return self.property(self._own, "_NET_FRAME_EXTENTS") is not None

    def ask_state(self):
        """The other question: a managed window of ours, which stays an icon, changes one of its states."""
        if self._own is None:
            self._own = self._create_window()
            self._set_numbers(self._own, "WM_HINTS", [2, 0, 3, 0, 0, 0, 0, 0, 0])  # starts as an icon
            _X11.XMapWindow(self._handle, Window(self._own))
        state = self.atom("_NET_WM_STATE_SKIP_PAGER")
        self._state_wanted = state not in self.numbers(self._own, "_NET_WM_STATE")
        self.message(self._own, "_NET_WM_STATE", int(self._state_wanted), state, 0, 2)

    def state_answered(self):
        state = self.atom("_NET_WM_STATE_SKIP_PAGER")
        return (state in self.numbers(self._own, "_NET_WM_STATE")) == self._state_wanted

    def is_own(self, window):
        return window == self._own

    def _create_window(self):
        return _X11.XCreateSimpleWindow(self._handle, Window(self.root), 0, 0, 8, 8, 0,
                                        ctypes.c_ulong(0), ctypes.c_ulong(0))

    def _set_numbers(self, window, name, values):
        data = (ctypes.c_long * len(values))(*values)
        _X11.XChangeProperty(self._handle, Window(window), Atom(self.atom(name)), Atom(self.atom(name)), 32, 0,
                             ctypes.byref(data), len(values))

    # Mouse and picture

    def move_mouse(self, x, y):
        _XTST.XTestFakeMotionEvent(self._handle, -1, int(x), int(y), ctypes.c_ulong(0))
        self.sync()

    def mouse_button(self, button, down):
        _XTST.XTestFakeButtonEvent(self._handle, button, int(down), ctypes.c_ulong(0))
        self.sync()

    def double_press(self, button):
        """Two clicks in one go: however busy the machine is, the server gives them nearly one time."""
        for down in (1, 0, 1, 0):
            _XTST.XTestFakeButtonEvent(self._handle, button, down, ctypes.c_ulong(0))
        self.sync()

    def mouse(self):
        root, child, mask = Window(), Window(), ctypes.c_uint()
        x, y, wx, wy = (ctypes.c_int() for _ in range(4))
        _X11.XQueryPointer(self._handle, Window(self.root), ctypes.byref(root), ctypes.byref(child),
                           ctypes.byref(x), ctypes.byref(y), ctypes.byref(wx), ctypes.byref(wy),
                           ctypes.byref(mask))
        return (x.value, y.value)

    def pixel(self, x, y):
        """(red, green, blue) as it stands on the screen; None beyond the screen."""
        image = _X11.XGetImage(self._handle, Window(self.root), int(x), int(y), 1, 1,
                               ctypes.c_ulong(_ALL_PLANES), _ZPIXMAP)
        if not image:
            return None
        value = _X11.XGetPixel(ctypes.c_void_p(image), 0, 0)
        _X11.XDestroyImage(ctypes.c_void_p(image))
        return ((value >> 16) & 255, (value >> 8) & 255, value & 255)


def _decoded(address, form, count):
    if form == 8:
        return ctypes.string_at(address, count)
    item = ctypes.c_ushort if form == 16 else ctypes.c_ulong  # format 32 is a C long in the library
    mask = (1 << form) - 1  # the library extends the sign of 32 bits
    return [value & mask for value in (item * count).from_address(address)]
