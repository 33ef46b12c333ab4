#!/usr/bin/python3
"""How long the program takes from its start to its first picture, what memory it then holds, and how soon a second
start is over; beside a window of the bare toolkit that loads the same libraries.

    tools/measure_start.py --bin FOLDER [--runs N] NAME=CONFIGURATION ...

FOLDER holds quillmere and empty_window; CONFIGURATION is what XDG_CONFIG_HOME is to be. Needs a DISPLAY with a window
manager and nothing else going on. tools/bench calls it.

The clock starts just before the process is made. The first picture is there when the server reports that at
least half of the window has been drawn; how much of the final picture it shows is told as well, so that a program
that draws its ground first and itself later gains nothing. Programs take turns, so that whatever the
machine does in between falls on all of them. Each run has folders of its own and is ended without being asked, so
that every run finds the same files.

Beside the time on the clock stands the time that processors worked for the program until then, all threads together:
where the machine has other things to do, that is the figure that still tells something. Memory is counted so that a page
which several programs share is split among them; other programs of the same toolkit make all figures smaller and the
ratios larger, and are told.
"""

import argparse
import ctypes
import glob
import os
import select
import shutil
import signal
import statistics
import sys
import tempfile
import time

SETTLING = 1.0  # seconds after the first picture until memory is read
PATIENCE = 20.0
WINDOW = (1240, 760)  # pixels; what tools/make-workspace gives the workspace

# The X server, through its client libraries. Only what is needed, by the layouts of their published headers.

STRUCTURE_NOTIFY, SUBSTRUCTURE_NOTIFY = 1 << 17, 1 << 19
CREATE_NOTIFY, MAP_NOTIFY, CONFIGURE_NOTIFY = 16, 19, 22
BOUNDING_BOX, Z_PIXMAP = 2, 2


class StructureEvent(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("sent", ctypes.c_int), ("display", ctypes.c_void_p),
                ("receiver", ctypes.c_ulong), ("window", ctypes.c_ulong), ("rest", ctypes.c_long * 19)]


class DamageEvent(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("sent", ctypes.c_int), ("display", ctypes.c_void_p),
                ("drawable", ctypes.c_ulong), ("damage", ctypes.c_ulong), ("level", ctypes.c_int), ("more", ctypes.c_int),
                ("timestamp", ctypes.c_ulong), ("x", ctypes.c_short), ("y", ctypes.c_short), ("width", ctypes.c_ushort),
                ("height", ctypes.c_ushort), ("gx", ctypes.c_short), ("gy", ctypes.c_short),
                ("whole_width", ctypes.c_ushort), ("whole_height", ctypes.c_ushort)]


class AnyEvent(ctypes.Union):
    _fields_ = [("type", ctypes.c_int), ("structure", StructureEvent), ("damage", DamageEvent),
                ("room", ctypes.c_long * 24)]


class ClassHint(ctypes.Structure):
    _fields_ = [("instance", ctypes.c_char_p), ("class_name", ctypes.c_char_p)]


class Image(ctypes.Structure):
    _fields_ = [(name, ctypes.c_int) for name in ("width", "height", "offset", "format")] + \
               [("data", ctypes.c_void_p)] + \
               [(name, ctypes.c_int) for name in ("byte_order", "unit", "bit_order", "pad", "depth", "bytes_per_line")]


class Server:
    """Tells when windows of a class are drawn."""

    def __init__(self):
        self.x, self.extension = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXdamage.so.1")
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.x.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x.XGetImage.restype = ctypes.c_void_p
        self.extension.XDamageCreate.restype = ctypes.c_ulong
        handler = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)
        self._ignore = handler(lambda display, error: 0)  # windows go while they are asked about
        self.x.XSetErrorHandler(self._ignore)
        display = self.x.XOpenDisplay(None)
        if not display:
            sys.exit("measure_start: there is no display to measure on")
        self.display = ctypes.c_void_p(display)
        self.root = ctypes.c_ulong(self.x.XDefaultRootWindow(self.display))
        first, error = ctypes.c_int(), ctypes.c_int()
        if not self.extension.XDamageQueryExtension(self.display, ctypes.byref(first), ctypes.byref(error)):
            sys.exit("measure_start: the X server does not report damage")
        self.damage_event = first.value
        self.x.XSelectInput(self.display, self.root, ctypes.c_long(SUBSTRUCTURE_NOTIFY))
        self.drain()

    def drain(self):
        self.x.XSync(self.display, 1)

    def events(self, until):
        """(time, event), as they come, until the time."""
        event, connection = AnyEvent(), self.x.XConnectionNumber(self.display)
        while time.perf_counter() < until:
            if not self.x.XPending(self.display):
                select.select([connection], [], [], min(0.05, max(0, until - time.perf_counter())))
                if not self.x.XPending(self.display):
                    continue
            self.x.XNextEvent(self.display, ctypes.byref(event))
            yield time.perf_counter(), event

    def watch(self, window):
        window = ctypes.c_ulong(window)
        self.x.XSelectInput(self.display, window, ctypes.c_long(STRUCTURE_NOTIFY))
        self.extension.XDamageCreate(self.display, window, BOUNDING_BOX)
        self.x.XFlush(self.display)

    def class_of(self, window):
        hint = ClassHint()
        if not self.x.XGetClassHint(self.display, ctypes.c_ulong(window), ctypes.byref(hint)):
            return ""
        return (hint.instance or b"").decode(errors="replace")

    def first_picture(self, wanted, until):
        """Waits for a window of the class; (time, window), or None."""
        created = set()
        for moment, event in self.events(until):
            if event.type == CREATE_NOTIFY:
                created.add(event.structure.window)
                self.watch(event.structure.window)
            elif event.type == self.damage_event and event.damage.drawable in created:
                seen = event.damage
                whole = seen.whole_width * seen.whole_height
                if whole >= 10000 and 2 * seen.width * seen.height >= whole and self.class_of(seen.drawable) == wanted:
                    return moment, seen.drawable
        return None

    def pixels(self, window):
        found = self.x.XGetImage(self.display, ctypes.c_ulong(window), 0, 0, WINDOW[0], WINDOW[1],
                                 ctypes.c_ulong(0xFFFFFF), Z_PIXMAP)
        if not found:
            return b""
        image = Image.from_address(found)
        content = ctypes.string_at(image.data, image.bytes_per_line * image.height)
        self.x.XDestroyImage(ctypes.c_void_p(found))
        return content


class Candidate:
    def __init__(self, name, window_class, arguments, configuration=None):
        self.name, self.window_class, self.arguments = name, window_class, arguments
        self.configuration = configuration
        self.pictures, self.work, self.memory, self.shown = [], [], [], None


class Run:
    """One process in a world of its own."""

    def __init__(self, arguments, configuration):
        self.folder = tempfile.mkdtemp(prefix="quillmere-bench-")
        settings = os.path.join(self.folder, "config")
        if configuration:
            shutil.copytree(configuration, settings, symlinks=True)
        runtime = os.path.join(self.folder, "run")
        os.mkdir(runtime, 0o700)
        self.environment = {
            "PATH": os.environ["PATH"], "DISPLAY": os.environ["DISPLAY"], "LANG": "C.UTF-8", "HOME": self.folder,
            "XDG_CONFIG_HOME": settings, "XDG_RUNTIME_DIR": runtime, "QT_QPA_PLATFORM": "xcb", "NO_AT_BRIDGE": "1",
            "DBUS_SESSION_BUS_ADDRESS": "unix:path=" + os.path.join(self.folder, "nobody")}
        self.arguments = arguments
        self.process = None

    def start(self):
        self.process = self.spawn(setsid=True)

    def spawn(self, **how):
        quiet = [(os.POSIX_SPAWN_OPEN, number, os.devnull, os.O_RDWR, 0) for number in (0, 1, 2)]
        return os.posix_spawn(self.arguments[0], self.arguments, self.environment, file_actions=quiet, **how)

    def kilobytes(self):
        with open(f"/proc/{self.process}/smaps_rollup", encoding="ascii") as file:
            for line in file:
                if line.startswith("Pss:"):
                    return int(line.split()[1])
        return 0

    def worked(self):
        """Milliseconds of processor time so far."""
        spent = 0
        for name in glob.glob(f"/proc/{self.process}/task/*/schedstat"):
            with open(name, encoding="ascii") as file:
                spent += int(file.read().split()[0])
        return spent / 1e6

    def end(self):
        if self.process:
            os.killpg(self.process, signal.SIGKILL)
            os.waitpid(self.process, 0)
        shutil.rmtree(self.folder, ignore_errors=True)


def alike(one, other):
    """How much of two pictures is the same, in per cent."""
    if not one or len(one) != len(other):
        return 0.0
    left, right = memoryview(one).cast("I"), memoryview(other).cast("I")
    return 100.0 * sum(a == b for a, b in zip(left, right)) / len(left)


def measure(server, candidate, look):
    run = Run(candidate.arguments, candidate.configuration)
    try:
        server.drain()
        begun = time.perf_counter()
        run.start()
        found = server.first_picture(candidate.window_class, begun + PATIENCE)
        if not found:
            sys.exit(f"measure_start: {candidate.name} showed nothing within {PATIENCE:.0f} seconds")
        moment, window = found
        candidate.work.append(run.worked())
        first = server.pixels(window) if look else b""
        time.sleep(SETTLING)
        candidate.pictures.append((moment - begun) * 1000)
        candidate.memory.append(run.kilobytes() / 1024)
        if look:
            candidate.shown = alike(first, server.pixels(window))
    finally:
        run.end()
        time.sleep(0.2)


def second_starts(server, candidate, runs):
    """(time on the clock, time of processors) of starts that find a running copy."""
    run = Run(candidate.arguments, candidate.configuration)
    times = []
    try:
        server.drain()
        run.start()
        if not server.first_picture(candidate.window_class, time.perf_counter() + PATIENCE):
            return []
        time.sleep(SETTLING)
        for _ in range(runs):
            begun = time.perf_counter()
            again = run.spawn()
            handle = os.pidfd_open(again)
            ended = select.select([handle], [], [], PATIENCE)[0]
            taken = time.perf_counter() - begun
            os.close(handle)
            if not ended:
                os.kill(again, signal.SIGKILL)
            _, status, usage = os.wait4(again, 0)
            if status != 0:
                sys.exit("measure_start: a second start failed")
            times.append((taken * 1000, (usage.ru_utime + usage.ru_stime) * 1000))
            time.sleep(0.05)
    finally:
        run.end()
    return times


TARGETS = {"typical": (1.25, 1.3), "largest": (2.0, 2.0)}


def tell(candidates):
    yard = candidates[0]
    picture, work, memory = (statistics.median(figures) for figures in (yard.pictures, yard.work, yard.memory))
    print(f"{'':14}{'first picture':>15}{'range':>16}{'ratio':>7}{'target':>8}{'processors':>12}{'ratio':>7}"
          f"{'memory (PSS)':>14}{'ratio':>7}{'target':>8}{'shown at once':>15}")
    for each in candidates:
        mine, worked, held = (statistics.median(figures) for figures in (each.pictures, each.work, each.memory))
        wanted = TARGETS.get(each.name)
        spread = f"{min(each.pictures):.1f} to {max(each.pictures):.1f}"
        print(f"{each.name:14}{f'{mine:.1f} ms':>15}{spread:>16}{mine / picture:>7.2f}"
              f"{f'{wanted[0]:.2f}' if wanted else '-':>8}{f'{worked:.1f} ms':>12}{worked / work:>7.2f}"
              f"{f'{held:.1f} MB':>14}{held / memory:>7.2f}{f'{wanted[1]:.2f}' if wanted else '-':>8}"
              f"{f'{each.shown:.1f} %':>15}")


def sharers():
    """How many programs of the same toolkit run now."""
    count = 0
    for name in glob.glob("/proc/[0-9]*/maps"):
        try:
            with open(name, encoding="utf-8", errors="replace") as file:
                count += "libQt6Core.so" in file.read()
        except OSError:
            pass  # ended meanwhile, or not ours
    return count


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--bin", required=True)
    parser.add_argument("--runs", type=int, default=11)
    parser.add_argument("workspaces", nargs="+", metavar="NAME=CONFIGURATION")
    wanted = parser.parse_args()
    program = os.path.join(os.path.abspath(wanted.bin), "quillmere")
    empty = os.path.join(os.path.abspath(wanted.bin), "empty_window")
    candidates = [Candidate("empty window", "empty_window", [empty, *map(str, WINDOW)])]
    for entry in wanted.workspaces:
        name, configuration = entry.split("=", 1)
        candidates.append(Candidate(name, "quillmere", [program, "--nosplash"], configuration))
    server, found = Server(), sharers()
    for candidate in candidates:  # once each for the caches, and to see what the first picture shows
        measure(server, candidate, look=True)
        for figures in (candidate.pictures, candidate.work, candidate.memory):
            figures.clear()
    for _ in range(wanted.runs):
        for candidate in candidates:
            measure(server, candidate, look=False)
    tell(candidates)
    times = second_starts(server, candidates[1], 4 * wanted.runs)
    if times:
        walls, works = zip(*times)
        print(f"\nA second start is over after {statistics.median(walls):.1f} ms ({min(walls):.1f} to {max(walls):.1f}), "
              f"{statistics.median(works):.1f} ms of them work; target: at most 15 ms")
    if found:
        print(f"\n{found} other programs of the same toolkit ran beside these and shared its pages, so that the memory "
              "figures are smaller and their ratios larger than of a program alone.")


if __name__ == "__main__":
    main()
