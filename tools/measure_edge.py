#!/usr/bin/python3
"""What the workspace costs at its edge: how even its slide is, how soon it can be typed into after the hotkey, how often
it wakes and how long it works while it is docked and nobody wants it; beside two other panels that hide at an edge.

    tools/measure_edge.py --bin FOLDER [--idle SECONDS] [--slides N] CONFIGURATION

FOLDER holds quillmere; CONFIGURATION is what XDG_CONFIG_HOME is to be. Needs a DISPLAY with a window manager, a
session bus and nothing else going on. tools/bench calls it.

Frames are what the server tells: each new place of the window, by the clock of this program, which waits for nothing
else. A slide has a frame every 20 ms; one that comes more than 4 ms after it is due, counted from the one before it, is
late. A panel that knows no hotkey is called by the pointer at its edge, the workspace too, so that they compare; a
workspace waits there until the pointer rests, which is part of the time. Wakeups are the times that any thread of the
program went to sleep of its own will and was woken again, as the kernel counts them; its work is the time that
processors ran it. All programs are idle in the same seconds.
"""

import argparse
import ctypes
import glob
import os
import select
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time

FRAME, LATE = 0.020, 0.004  # seconds
PATIENCE = 10.0
STRUCTURE_NOTIFY, SUBSTRUCTURE_NOTIFY = 1 << 17, 1 << 19
UNMAP_NOTIFY, MAP_NOTIFY, CONFIGURE_NOTIFY = 18, 19, 22
SUPER, ALT, UP, LETTER = 0xFFEB, 0xFFE9, 0xFF52, ord("s")


class Structure(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("sent", ctypes.c_int), ("display", ctypes.c_void_p),
                ("receiver", ctypes.c_ulong), ("window", ctypes.c_ulong), ("x", ctypes.c_int), ("y", ctypes.c_int),
                ("width", ctypes.c_int), ("height", ctypes.c_int), ("rest", ctypes.c_long * 16)]


class Event(ctypes.Union):
    _fields_ = [("type", ctypes.c_int), ("structure", Structure), ("room", ctypes.c_long * 24)]


class Screen:
    """The X server: where windows of a program are, and hands on mouse and keys."""

    def __init__(self):
        self.x, self.test = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.x.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x.XInternAtom.restype = ctypes.c_ulong
        self.ignore = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(lambda display, error: 0)
        self.x.XSetErrorHandler(self.ignore)
        self.display = ctypes.c_void_p(self.x.XOpenDisplay(None))
        if not self.display:
            raise SystemExit("There is no DISPLAY to measure on.")
        self.root = self.x.XDefaultRootWindow(self.display)
        self.size = tuple(self.x.__getattr__("XDisplay" + side)(self.display, 0) for side in ("Width", "Height"))

    def numbers(self, window, name):
        kind, form = ctypes.c_ulong(), ctypes.c_int()
        count, rest, data = ctypes.c_ulong(), ctypes.c_ulong(), ctypes.c_void_p()
        atom = ctypes.c_ulong(self.x.XInternAtom(self.display, name.encode(), 0))
        self.x.XGetWindowProperty(self.display, ctypes.c_ulong(window), atom, 0, 4096, 0, 0, ctypes.byref(kind),
                                  ctypes.byref(form), ctypes.byref(count), ctypes.byref(rest), ctypes.byref(data))
        values = list((ctypes.c_ulong * count.value).from_address(data.value)) if form.value == 32 and count.value else []
        if data.value:
            self.x.XFree(data)
        return values

    def windows(self, process):
        """The windows of a process that a window manager knows, or has known."""
        return [w for w in self.numbers(self.root, "_NET_CLIENT_LIST") if self.numbers(w, "_NET_WM_PID") == [process]]

    def watch(self, window):
        self.x.XSelectInput(self.display, ctypes.c_ulong(window), ctypes.c_long(STRUCTURE_NOTIFY))
        self.x.XSync(self.display, 0)

    def place(self, window):
        x, y, child, root = ctypes.c_int(), ctypes.c_int(), ctypes.c_ulong(), ctypes.c_ulong()
        width, height, other = ctypes.c_uint(), ctypes.c_uint(), ctypes.c_uint()
        self.x.XGetGeometry(self.display, ctypes.c_ulong(window), ctypes.byref(root), ctypes.byref(x), ctypes.byref(y),
                            ctypes.byref(width), ctypes.byref(height), ctypes.byref(other), ctypes.byref(other))
        self.x.XTranslateCoordinates(self.display, ctypes.c_ulong(window), ctypes.c_ulong(self.root), 0, 0,
                                     ctypes.byref(x), ctypes.byref(y), ctypes.byref(child))
        return x.value, y.value, width.value, height.value

    def keyboard(self):
        window, revert = ctypes.c_ulong(), ctypes.c_int()
        self.x.XGetInputFocus(self.display, ctypes.byref(window), ctypes.byref(revert))
        return window.value

    def point(self, x, y):
        self.test.XTestFakeMotionEvent(self.display, -1, int(x), int(y), 0)
        self.x.XSync(self.display, 0)

    def rest(self):
        """Away from all that is measured."""
        self.point(self.size[0] // 2, self.size[1] - 20)

    def chord(self, *symbols):
        keys = [self.x.XKeysymToKeycode(self.display, ctypes.c_ulong(symbol)) for symbol in symbols]
        for key, down in [(key, 1) for key in keys] + [(key, 0) for key in reversed(keys)]:
            self.test.XTestFakeKeyEvent(self.display, key, down, 0)
        self.x.XSync(self.display, 0)

    def events(self, seconds):
        """(when, event), until nothing came for so long."""
        fd, event = self.x.XConnectionNumber(self.display), Event()
        while True:
            while self.x.XPending(self.display):
                self.x.XNextEvent(self.display, ctypes.byref(event))
                yield time.perf_counter(), event
            if not select.select([fd], [], [], seconds)[0]:
                return

    def drain(self):
        for _ in self.events(0):
            pass


def until(condition, what):
    deadline = time.monotonic() + PATIENCE
    while time.monotonic() < deadline:
        found = condition()
        if found:
            return found
        time.sleep(0.005)
    raise SystemExit("waited in vain: " + what)


# What is measured

class Program:
    def __init__(self, screen, name, arguments, env):
        self.screen, self.name = screen, name
        self.process = subprocess.Popen(arguments, env={**os.environ, **env}, stdin=subprocess.DEVNULL,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True)
        self.pid = until(self._find, name + " runs")

    def _find(self):
        """The program itself, which another one may have started."""
        for path in glob.glob("/proc/[0-9]*/stat"):
            try:
                with open(path) as stat:
                    number, rest = stat.read().split(" (", 1)
            except OSError:
                continue
            comm, rest = rest.rsplit(") ", 1)
            if comm == self.name and int(rest.split()[3]) == self.process.pid:
                return int(number)
        return None

    def end(self):
        os.killpg(self.process.pid, signal.SIGKILL)
        self.process.wait()

    def counts(self):
        """(wakeups, seconds of work) so far, all threads together."""
        wakeups = work = 0
        for task in glob.glob("/proc/%d/task/*" % self.pid):
            try:
                with open(task + "/status") as status:
                    wakeups += next(int(line.split()[1]) for line in status if line.startswith("voluntary"))
                with open(task + "/schedstat") as times:
                    work += int(times.read().split()[0]) / 1e9
            except OSError:
                pass  # the thread has just ended
        return wakeups, work


class Workspace(Program):
    def __init__(self, screen, folder, configuration):
        self.home = tempfile.mkdtemp()
        shutil.copytree(configuration, self.home + "/config")
        os.makedirs(self.home + "/run", mode=0o700)
        env = {"XDG_CONFIG_HOME": self.home + "/config", "HOME": self.home, "XDG_RUNTIME_DIR": self.home + "/run"}
        super().__init__(screen, "quillmere", [folder + "/quillmere", "--nosplash"], env)
        self.window = until(lambda: screen.windows(self.pid), "the workspace shows")[0]
        screen.watch(self.window)
        time.sleep(2)  # tray, hotkey and icons are through
        self.settle()

    def end(self):
        super().end()
        shutil.rmtree(self.home, ignore_errors=True)

    def settle(self):
        for _ in self.screen.events(0.5):
            pass

    def is_out(self):
        return self.window in self.screen.windows(self.pid) and self.screen.keyboard() == self.window

    def hotkey(self):
        self.screen.chord(SUPER, ALT, LETTER)

    def call(self):
        """Seconds from the hotkey until the workspace shows and keys go to it."""
        self.screen.drain()
        begin = time.perf_counter()
        self.hotkey()
        shown = next((at for at, event in self.screen.events(PATIENCE) if event.type == MAP_NOTIFY), None)
        if shown is None:
            raise SystemExit("the hotkey did not bring the workspace out")
        until(lambda: self.screen.keyboard() == self.window, "the workspace has the keyboard")
        return time.perf_counter() - begin

    def slide(self):
        """Seconds between the places of one slide away."""
        self.screen.drain()
        self.hotkey()
        places, last = [], None
        for at, event in self.screen.events(1.0):
            if event.type == UNMAP_NOTIFY:
                break
            where = (event.structure.x, event.structure.y)
            if event.type == CONFIGURE_NOTIFY and where != last:
                places.append(at)
                last = where
        # The parking follows the last frame at once and is none.
        return [later - earlier for earlier, later in zip(places, places[1:-1])]


def panel_settings(folder, name):
    """Two panels of Debian's that hide at the left and the right edge."""
    if name == "tint2":
        path = folder + "/tint2rc"
        with open(path, "w") as out:
            out.write("panel_items = LTC\npanel_position = center left vertical\npanel_size = 60% 48\nautohide = 1\n"
                      "autohide_show_timeout = 0.25\nautohide_hide_timeout = 0.5\nautohide_height = 2\n"
                      "strut_policy = none\ntime1_format = %H:%M\npanel_layer = top\n")
        return ["tint2", "-c", path]
    path = folder + "/xfce4/xfconf/xfce-perchannel-xml"
    os.makedirs(path)
    with open(path + "/xfce4-panel.xml", "w") as out:
        out.write('<?xml version="1.0"?><channel name="xfce4-panel" version="1.0"><property name="panels" type="array">'
                  '<value type="int" value="1"/><property name="panel-1" type="empty">'
                  '<property name="position" type="string" value="p=1;x=0;y=0"/><property name="mode" type="uint" value="1"/>'
                  '<property name="length" type="uint" value="60"/><property name="autohide-behavior" type="uint" value="2"/>'
                  '<property name="size" type="uint" value="48"/><property name="plugin-ids" type="array">'
                  '<value type="int" value="1"/><value type="int" value="2"/></property></property></property>'
                  '<property name="plugins" type="empty"><property name="plugin-1" type="string" value="tasklist"/>'
                  '<property name="plugin-2" type="string" value="clock"/></property></channel>')
    # A bus of its own, whose keeper of settings reads this folder.
    return ["dbus-run-session", "--", "xfce4-panel", "--disable-wm-check"]


class Panel(Program):
    """A panel of another hand."""

    def __init__(self, screen, name, edge):
        self.folder = tempfile.mkdtemp()
        super().__init__(screen, name, panel_settings(self.folder, name), {"XDG_CONFIG_HOME": self.folder})
        self.edge = edge
        until(lambda: screen.windows(self.pid), name + " shows")
        time.sleep(3)

    def end(self):
        super().end()
        shutil.rmtree(self.folder, ignore_errors=True)


def edge_point(screen, edge):
    width, height = screen.size
    return {"left": (0, height // 2), "right": (width - 1, height // 2), "top": (width // 2, 0)}[edge]


def hover(screen, process, edge):
    """Seconds from the pointer's coming to the edge until a window of the program lies deep under it."""
    x, y = edge_point(screen, edge)
    inside = {"left": (12, 0), "right": (-12, 0), "top": (0, 12)}[edge]
    deep = (x + inside[0], y + inside[1])
    begin = time.perf_counter()
    screen.point(x, y)

    def covered():
        for window in screen.windows(process):
            left, top, width, height = screen.place(window)
            if left <= deep[0] < left + width and top <= deep[1] < top + height:
                return True
        return False

    until(covered, "a window comes out at the %s edge" % edge)
    spent = time.perf_counter() - begin
    screen.rest()
    return spent


def idle(programs, seconds):
    """(wakeups a second, percent of one processor) of each."""
    before = [program.counts() for program in programs]
    time.sleep(seconds)
    return [((after[0] - start[0]) / seconds, 100 * (after[1] - start[1]) / seconds)
            for start, after in zip(before, (program.counts() for program in programs))]


def milliseconds(values):
    return "%.1f ms (%.1f to %.1f)" % (1000 * statistics.median(values), 1000 * min(values), 1000 * max(values))


def measure_workspace(screen, workspace, slides):
    if not workspace.is_out():
        workspace.hotkey()
    until(workspace.is_out, "the workspace is out to begin with")
    screen.chord(ALT, UP)  # to the upper edge
    gaps, calls = [], []
    for _ in range(slides):
        workspace.settle()
        gaps += workspace.slide()
        workspace.settle()
        calls.append(workspace.call())
    late = sum(gap > FRAME + LATE for gap in gaps)
    print("slide: %d frames, late by more than 4 ms: %d (%.1f %%; target: under 1 %%), %s apart" %
          (len(gaps), late, 100 * late / max(1, len(gaps)), milliseconds(gaps)))
    print("hotkey until it shows and takes keys: %s (target: at most 50 ms)" % milliseconds(calls))
    workspace.settle()
    workspace.slide()
    workspace.settle()


def main():
    reader = argparse.ArgumentParser()
    reader.add_argument("--bin", required=True)
    reader.add_argument("--idle", type=float, default=60)
    reader.add_argument("--slides", type=int, default=40)
    reader.add_argument("configuration")
    wanted = reader.parse_args()
    screen = Screen()
    screen.rest()
    programs = []
    try:
        programs.append(Workspace(screen, wanted.bin, wanted.configuration))
        measure_workspace(screen, programs[0], wanted.slides)
        for name, edge in (("tint2", "left"), ("xfce4-panel", "right")):
            if shutil.which(name):
                programs.append(Panel(screen, name, edge))
            else:
                print("%s is not installed" % name)
        for program in programs:
            edge = getattr(program, "edge", "top")
            times = []
            for _ in range(7):
                time.sleep(3)
                times.append(hover(screen, program.pid, edge))
            print("%s: pointer at the edge until it is out: %s" % (program.name, milliseconds(times)))
        time.sleep(5)
        for program, (wakeups, work) in zip(programs, idle(programs, wanted.idle)):
            print("%s: hidden and idle for %.0f s: %.2f wakeups a second (target: at most 2), %.3f %% of a processor "
                  "(target: at most 0.1)" % (program.name, wanted.idle, wakeups, work))
    finally:
        for program in programs:
            program.end()
    return 0


if __name__ == "__main__":
    sys.exit(main())
