"""A desktop of its own for every test: an X server without a screen, a window manager, a home folder,
and the programs under test started on it. The tests read as what a person does and sees:

    with Desktop() as desktop:
        app = desktop.start("quillmere")
        window = app.wait_window(title="Quillmere")
        desktop.click(*desktop.middle(window))
        until(lambda: desktop.active_window() == window, "the workspace is the active window")

Nothing waits by the clock: `until` polls a condition with a generous deadline, and `settle` returns
when the window manager and the programs have worked off everything sent to them, so that "nothing
happened" can be told as well. Everything started here is ended by `close`, also after a failure.
"""

import ctypes
import functools
import os
import re
import select
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

from xdisplay import XDisplay

PROJECT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
PATIENCE = float(os.environ.get("QUILLMERE_TEST_PATIENCE", "15"))  # seconds until a wait is a failure
BROKEN_BUS = "unix:path=/nonexistent/bus"
WINDOW_MANAGERS = {
    "openbox": ["openbox", "--sm-disable"],
    "xfwm4": ["xfwm4", "--compositor=off"],
    "kwin": ["kwin_x11"],
    "mutter": ["mutter", "--x11", "--sm-disable"],
    "icewm": ["icewm"],
    "metacity": ["metacity", "--sm-disable"],
}
ACCESSIBILITY_BUS = "/usr/libexec/at-spi-bus-launcher"
NEEDS_BUS = {"kwin", "mutter", "xfwm4"}


class Waited(AssertionError):
    """Something did not happen in time."""


def until(condition, what, patience=None):
    """Polls until the condition gives something true, and returns that."""
    deadline = time.monotonic() + (patience or PATIENCE)
    while True:
        found = condition()
        if found:
            return found
        if time.monotonic() > deadline:
            raise Waited("waited in vain: " + what)
        time.sleep(0.01)


def build_folder():
    """The folder that holds bin/. QUILLMERE_BUILD names it, absolute or below the project."""
    return os.path.join(PROJECT, os.environ.get("QUILLMERE_BUILD", "build"))


def has_window_manager(name):
    return shutil.which(WINDOW_MANAGERS[name][0]) is not None


def _die_with_parent():
    ctypes.CDLL(None).prctl(1, signal.SIGKILL)


def _spawn(args, env, **streams):
    return subprocess.Popen(args, env=env, start_new_session=True, preexec_fn=_die_with_parent, **streams)


def _end(process):
    """Ends a process and all that it started, kindly first."""
    for sign in (signal.SIGTERM, signal.SIGKILL):
        try:
            os.killpg(process.pid, sign)
        except ProcessLookupError:
            pass
        try:
            process.wait(timeout=5)
        except subprocess.TimeoutExpired:
            continue
    for stream in (process.stdin, process.stdout):
        if stream:
            stream.close()


class Desktop:
    """geometry "1280x800"; wm a key of WINDOW_MANAGERS or None for none at all; bus=True gives the
    programs a session bus of their own, otherwise the bus address is one where nobody answers;
    accessible=True one with the bus of assistive technology, and programs that believe somebody listens."""

    def __init__(self, geometry="1280x800", wm="openbox", bus=False, compositor=False, accessible=False):
        self.size = tuple(int(part) for part in geometry.split("x"))
        self.wm = wm
        self._processes = []
        self.apps = []
        self.home = tempfile.mkdtemp(prefix="quillmere-desktop-")
        self.x = None
        try:
            self._start(bus or accessible, compositor)
            if accessible:
                self._start_accessibility()
        except BaseException:
            self.close()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *failure):
        self.close()

    # Coming up and going down

    def _start(self, bus, compositor):
        self.env = self._clean_environment()
        self._start_server()
        self.x = XDisplay(self.env["DISPLAY"])
        address = self._start_bus() if bus or self.wm in NEEDS_BUS else BROKEN_BUS
        self.env["DBUS_SESSION_BUS_ADDRESS"] = address
        if self.wm:
            self._start_window_manager(self.wm)
        if not bus:
            self.env["DBUS_SESSION_BUS_ADDRESS"] = BROKEN_BUS
        if compositor:
            self._start_compositor()

    def _clean_environment(self):
        keep = ("PATH", "LANG", "LC_ALL", "ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS", "LLVM_PROFILE_FILE")
        env = {name: os.environ[name] for name in keep if name in os.environ}
        folders = {"XDG_CONFIG_HOME": ".config", "XDG_DATA_HOME": ".local/share", "XDG_CACHE_HOME": ".cache",
                   "XDG_STATE_HOME": ".local/state", "XDG_RUNTIME_DIR": "run"}
        for name, folder in folders.items():
            env[name] = os.path.join(self.home, folder)
            os.makedirs(env[name], mode=0o700)
        env.setdefault("LANG", "C.UTF-8")
        env.update(HOME=self.home, QT_QPA_PLATFORM="xcb", XDG_SESSION_TYPE="x11", NO_AT_BRIDGE="1")
        return env

    def _start_server(self):
        reading, writing = os.pipe()
        size = "%dx%dx24" % self.size
        args = ["Xvfb", "-displayfd", str(writing), "-screen", "0", size, "-nolisten", "tcp", "-noreset"]
        self._background(args, pass_fds=(writing,))
        os.close(writing)
        with os.fdopen(reading) as pipe:
            ready = select.select([pipe], [], [], PATIENCE)[0]
            number = pipe.readline().strip() if ready else ""
        if not number:
            raise Waited("the X server did not come up: " + self.log_of("Xvfb"))
        self.env["DISPLAY"] = ":" + number

    def _start_bus(self):
        args = ["dbus-daemon", "--session", "--nofork", "--print-address"]
        process = self._background(args, stdout=subprocess.PIPE)
        if not select.select([process.stdout], [], [], PATIENCE)[0]:
            raise Waited("the session bus did not come up: " + self.log_of("dbus-daemon"))
        return process.stdout.readline().decode().strip()

    def _start_accessibility(self):
        """A program that finds the bus of assistive technology late would tell nothing until then."""
        self.env.pop("NO_AT_BRIDGE")
        self.env["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        self._background([ACCESSIBILITY_BUS, "--launch-immediately"])
        until(lambda: self.x.text(self.x.root, "AT_SPI_BUS"),
              "the bus of assistive technology is there: " + self.log_of(ACCESSIBILITY_BUS))

    def _start_window_manager(self, name):
        self.wm = name
        self._background(WINDOW_MANAGERS[name])
        until(self._window_manager_stands, "%s stands: %s" % (self.wm, self.log_of(self.wm)))
        until(self._window_manager_hears, "%s hears messages: %s" % (self.wm, self.log_of(self.wm)))

    def _window_manager_stands(self):
        check = self.x.number(self.x.root, "_NET_SUPPORTING_WM_CHECK")
        return check and self.x.number(check, "_NET_SUPPORTING_WM_CHECK") == check

    def _window_manager_hears(self):
        """It announces itself before it listens, and what is said in between is lost: so ask again."""
        ask, answered = self._question()
        ask()
        try:
            return until(answered, "", patience=0.3)
        except Waited:
            return False

    def _question(self):
        if self.wm == "kwin":
            return self.x.ask_state, self.x.state_answered
        return self.x.ask_frame_extents, self.x.frame_extents_answered

    def start_window_manager(self, name):
        """For a desktop that came up without one."""
        self._start_window_manager(name)
        self.settle()

    def begin_window_manager(self, name):
        """Starts it and does not wait until it listens, as a session starts everything at once."""
        return self._background(WINDOW_MANAGERS[name])

    def _start_compositor(self):
        self._background(["picom", "--backend", "xrender", "--no-vsync", "--no-fading-openclose"])
        selection = self.x.atom("_NET_WM_CM_S0")
        until(lambda: self.x.selection_owner(selection), "the compositor is there: " + self.log_of("picom"))

    def _background(self, args, stdout=subprocess.DEVNULL, pass_fds=()):
        log = open(self._log_path(args[0]), "wb")
        process = _spawn(args, self.env, stdin=subprocess.DEVNULL, stdout=stdout, stderr=log, pass_fds=pass_fds)
        log.close()
        self._processes.append(process)
        return process

    def _log_path(self, program):
        return os.path.join(self.home, os.path.basename(program) + ".log")

    def log_of(self, program):
        """What a program of the desktop wrote to its error stream, to be told with a failure."""
        name = WINDOW_MANAGERS.get(program, [program])[0]
        try:
            with open(self._log_path(name), errors="replace") as log:
                return log.read()[-2000:]
        except OSError:
            return ""

    def close(self):
        if self.x:
            self.x.close()
            self.x = None
        for app in self.apps:
            app.close()
        for process in reversed(self._processes):
            _end(process)
        self.apps, self._processes = [], []
        shutil.rmtree(self.home, ignore_errors=True)

    def start(self, program, args=(), env=None):
        """Starts a program: a bare name stands in bin/ of the build folder, or else in the PATH."""
        built = os.path.join(build_folder(), "bin", program)
        path = built if os.path.exists(built) else program
        app = App(self, [path, *args], {**self.env, **(env or {})})
        self.apps.append(app)
        return app

    # Looking

    def geometry(self, window):
        return self.x.rect(window)

    def middle(self, window):
        x, y, width, height = self.x.rect(window)
        return (x + width // 2, y + height // 2)

    def windows(self):
        """All managed windows, bottom to top as the server shows them: what the window manager announces
        about their order may lag behind."""
        places = {top: place for place, top in enumerate(self.x.children(self.x.root))}
        found = [w for w in self.x.numbers(self.x.root, "_NET_CLIENT_LIST") if not self.x.is_own(w)]
        return sorted(found, key=lambda w: places.get(self.x.top_level(w), -1))

    stacking = windows

    def is_above(self, upper, lower):
        """Windows that nobody manages can be told as well."""
        order = self.x.children(self.x.root)
        return order.index(self.x.top_level(upper)) > order.index(self.x.top_level(lower))

    def active_window(self):
        return self.x.number(self.x.root, "_NET_ACTIVE_WINDOW")

    def has_keyboard(self, window):
        """Whether keys go to this window or to something inside it."""
        return self.x.has_ancestor(self.x.keyboard_window(), window)

    def states(self, window):
        return set(self.x.atom_list(window, "_NET_WM_STATE"))

    def title(self, window):
        return self.x.text(window, "_NET_WM_NAME") or self.x.text(window, "WM_NAME")

    def window_class(self, window):
        """(instance, class) as WM_CLASS tells it."""
        parts = self.x.text(window, "WM_CLASS").split("\0")
        return (parts[0], parts[1]) if len(parts) > 1 else ("", "")

    def pixel(self, x, y):
        return self.x.pixel(x, y)

    def screenshot(self, path):
        os.makedirs(os.path.dirname(os.path.abspath(path)), exist_ok=True)
        subprocess.run(["import", "-window", "root", path], env=self.env, check=False, stderr=subprocess.DEVNULL)

    # Doing

    def move_to(self, x, y):
        self.x.move_mouse(x, y)

    def press(self, button=1):
        self.x.mouse_button(button, True)

    def release(self, button=1):
        self.x.mouse_button(button, False)

    def click(self, x, y, button=1):
        self.move_to(x, y)
        self.press(button)
        self.release(button)
        self.settle()

    def double_click(self, x, y, button=1):
        self.move_to(x, y)
        self.x.double_press(button)
        self.settle()

    def drag(self, start, end, button=1, steps=8):
        """Presses at start, moves in steps as a hand does, lets go at end."""
        self.move_to(*start)
        self.press(button)
        self.settle()
        for step in range(1, steps + 1):
            self.move_to(*(a + (b - a) * step // steps for a, b in zip(start, end)))
            self.settle()
        self.release(button)
        self.settle()

    def wheel(self, x, y, notches):
        """Positive notches turn away from the user, that is upwards."""
        self.move_to(x, y)
        for _ in range(abs(notches)):
            self.press(4 if notches > 0 else 5)
            self.release(4 if notches > 0 else 5)
        self.settle()

    def type(self, text):
        self._xdotool("type", "--delay", "1", "--", text)

    def key(self, *keys):
        """Key names as xdotool has them: "Return", "ctrl+shift+F1"."""
        self._xdotool("key", "--delay", "1", "--", *keys)

    def _xdotool(self, *args):
        subprocess.run(["xdotool", *args], env=self.env, check=True)
        self.settle()

    def request_focus(self, window, source=2):
        """As a pager does it."""
        self.x.message(window, "_NET_ACTIVE_WINDOW", source, 0, 0)
        self.settle()

    def set_monitors(self, *rects):
        """Splits the one screen into monitors, each (x, y, width, height). The first is the primary."""
        for place, rect in enumerate(rects):
            self._plug(place, *rect)
        self.settle()

    def plug_monitor(self, place, rect):
        """Brings back one that was unplugged."""
        self._plug(place, *rect)
        self.settle()

    def _plug(self, place, x, y, width, height):
        size = "%d/%dx%d/%d+%d+%d" % (width, width // 4, height, height // 4, x, y)
        name = ("*" if place == 0 else "") + "MON%d" % place
        output = "screen" if place == 0 else "none"
        subprocess.run(["xrandr", "--setmonitor", name, size, output], env=self.env, check=True)

    def unplug_monitor(self, place):
        """Unplugs a monitor that set_monitors has made; the others stay."""
        subprocess.run(["xrandr", "--delmonitor", "MON%d" % place], env=self.env, check=True)
        self.settle()

    def settle(self):
        """Returns when the window manager and every program have worked off what was sent so far. Twice,
        because what one of them does is news for the other."""
        for _ in range(2):
            self._window_manager_settles()
            for app in self.apps:
                app.settle()
        self._window_manager_settles()

    def _window_manager_settles(self):
        self.x.sync()
        if not self.wm:
            return
        ask, answered = self._question()
        ask()
        until(answered, "%s answers a question: %s" % (self.wm, self.log_of(self.wm)))


class App:
    """A program under test."""

    def __init__(self, desktop, args, env):
        self.desktop = desktop
        self._last_words = None  # both outputs, kept when it is closed
        self._output, self._errors = tempfile.TemporaryFile(), tempfile.TemporaryFile()
        self.process = _spawn(args, env, stdin=subprocess.PIPE, stdout=self._output, stderr=self._errors)

    @property
    def stderr(self):
        """All that it wrote to its error stream so far; stdout likewise."""
        return self._last_words[1] if self._last_words else _text_of(self._errors)

    @property
    def stdout(self):
        return self._last_words[0] if self._last_words else _text_of(self._output)

    def say(self, line):
        """Writes a line to its standard input, for programs made to be driven that way."""
        self.process.stdin.write(line.encode() + b"\n")
        self.process.stdin.flush()

    def running(self):
        return self.process.poll() is None

    def windows(self):
        """Its managed windows, bottom to top."""
        x = self.desktop.x
        return [w for w in self.desktop.windows() if x.number(w, "_NET_WM_PID") == self.process.pid]

    def all_windows(self):
        """Its viewable top-level windows, also those that no window manager manages."""
        x = self.desktop.x
        unmanaged = [w for w in x.children(x.root)
                     if x.number(w, "_NET_WM_PID") == self.process.pid and x.is_viewable(w)]
        return self.windows() + [w for w in unmanaged if w not in self.windows()]

    def find_window(self, title=None, window_class=None):
        """The topmost window whose title and class match the expressions; None if there is none."""
        for window in reversed(self.all_windows()):
            if title is not None and not re.search(title, self.desktop.title(window)):
                continue
            if window_class and not any(re.search(window_class, part) for part in self.desktop.window_class(window)):
                continue
            if self.desktop.x.is_viewable(window):
                return window
        return None

    def wait_window(self, title=None, window_class=None):
        def seek():
            if not self.running():
                raise Waited("the program ended with %s: %s" % (self.process.returncode, self.stderr))
            return self.find_window(title, window_class)
        window = until(seek, "a window %s of the program; its errors: %s" % (title or window_class, self.stderr))
        self.desktop.settle()
        return window

    def wait_no_window(self, title=None, window_class=None):
        until(lambda: self.find_window(title, window_class) is None, "the window %s is gone" % (title or window_class))

    def settle(self):
        """Returns when its event loop has come round; see Desktop.settle. A program that does not answer
        within the deadline is a failure, one that has ended is settled."""
        x = self.desktop.x
        window = next((w for w in self.windows() if "_NET_WM_PING" in x.atom_list(w, "WM_PROTOCOLS")), None)
        if window is None or not self.running():
            return
        ping = x.start_ping(window)
        until(lambda: not self.running() or x.ping_answered(ping), "the program answers a ping; " + self.stderr)

    def terminate(self):
        """Asks it to end, as the end of a session does, and returns its exit code."""
        self.process.terminate()
        return self.wait_exit()

    def close(self):
        """Ends it whatever it does. Its output can still be read."""
        if self.process.stdin.closed:
            return
        _end(self.process)
        self._last_words = self.stdout, self.stderr
        self._output.close()
        self._errors.close()

    def wait_exit(self):
        try:
            return self.process.wait(timeout=PATIENCE)
        except subprocess.TimeoutExpired:
            raise Waited("the program does not end; " + self.stderr) from None


def _text_of(file):
    """Read from the start, at a place of its own: the program's own place in the file must not move."""
    size = os.fstat(file.fileno()).st_size
    return os.pread(file.fileno(), size, 0).decode("utf-8", "replace")


class DesktopTest(unittest.TestCase):
    """Base of the tests: self.desktop is fresh for every test, and a failing test leaves a picture of the
    screen in desktop-failures of the build folder. A subclass sets `desktop_options`."""

    desktop_options = {}

    def __init__(self, method="runTest"):
        super().__init__(method)
        body = getattr(self, method, None)
        if body:
            setattr(self, method, functools.partial(self._run_with_picture, body))

    def setUp(self):
        self.desktop = Desktop(**self.desktop_options)
        self.addCleanup(self.desktop.close)

    def _run_with_picture(self, body):
        try:
            body()
        except unittest.SkipTest:
            raise
        except BaseException:
            self.desktop.screenshot(os.path.join(build_folder(), "desktop-failures", self.id() + ".png"))
            raise
