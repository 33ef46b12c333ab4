#!/usr/bin/python3
"""How soon the Keyboard Launcher is there and answers: from a key on the workspace until its box shows, and from a key in
the box until the preview shows; beside a launcher of another hand over a list of the same names.

    tools/measure_launcher.py --bin FOLDER [--runs N] CONFIGURATION

FOLDER holds quillmere; CONFIGURATION is what XDG_CONFIG_HOME is to be, with the largest workspace. Needs a DISPLAY with a
window manager, a session bus and nothing else going on. tools/bench calls it.

A picture is there when the server tells of drawing and the pixels that matter differ from those before: the name line
for the box, the lines below the typed text for the other launcher. Each launcher is timed by the same loop. The other one
is started for each opening, as people use it, and reads the names from a file; the workspace's box is part of a program
that runs. The times hold the way of the key through the server as well.
"""

import argparse
import ctypes
import glob
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

import measure_edge
import measure_start

ESCAPE, CONTROL, ALL = 0xFF1B, 0xFFE3, ord("a")
RAW_RECTANGLES, Z_PIXMAP = 0, 2
QUIET = 0.15  # seconds without drawing until the next key
PATIENCE = 10.0
CAPTION_TAG = "[LinkLabel]"
LETTERS = "lfprs"  # names of the workspace begin with each of them, so that every key changes what is shown
# Pixels of the box: its size, and its name line less what lies beside it.
BOX = (420, 144)
NAME_LINE = (60, 16, 280, 32)


class Eye:
    """Tells when pixels of a part of a window change."""

    def __init__(self, screen, window):
        self.screen, self.window = screen, window
        self.server = measure_start.Server()
        server = self.server
        self.damage = server.extension.XDamageCreate(server.display, ctypes.c_ulong(window), RAW_RECTANGLES)
        server.drain()

    def close(self):
        self.server.extension.XDamageDestroy(self.server.display, ctypes.c_ulong(self.damage))
        self.server.x.XCloseDisplay(self.server.display)

    def pixels(self, part):
        server, (left, top, width, height) = self.server, part
        found = server.x.XGetImage(server.display, ctypes.c_ulong(self.window), left, top, width, height,
                                   ctypes.c_ulong(0xFFFFFF), Z_PIXMAP)
        if not found:
            return b""
        image = measure_start.Image.from_address(found)
        content = ctypes.string_at(image.data, image.bytes_per_line * image.height)
        server.x.XDestroyImage(ctypes.c_void_p(found))
        return content

    def settle(self):
        """Waits until nothing was drawn for a while; a blinking caret does not count for ever."""
        end = time.perf_counter() + 1.0
        while time.perf_counter() < end:
            if not any(event.type == self.server.damage_event
                       for _, event in self.server.events(time.perf_counter() + QUIET)):
                return

    def after(self, act, part, what):
        """Seconds from the act until the part has changed."""
        self.settle()
        before = self.pixels(part)
        self.server.drain()
        begun = time.perf_counter()
        act()
        for moment, event in self.server.events(begun + PATIENCE):
            if event.type == self.server.damage_event and self.pixels(part) != before:
                return moment - begun
        raise SystemExit("measure_launcher: waited in vain: " + what)


# The workspace

def name_line(screen, window):
    _, _, width, height = screen.place(window)
    left, top, wide, high = NAME_LINE
    return (width - BOX[0]) // 2 + left, (height - BOX[1]) // 2 + top, wide, high


def measure_workspace(screen, workspace, runs):
    measure_edge.until(workspace.is_out, "the workspace has the keyboard")
    eye = Eye(screen, workspace.window)
    part = name_line(screen, workspace.window)
    opening, keys = [], []
    for number in range(runs):
        letter = LETTERS[number % len(LETTERS)]
        opening.append(eye.after(lambda key=letter: screen.chord(ord(key)), part, "the box opens"))
        for other in LETTERS:
            if other == letter:
                continue
            screen.chord(CONTROL, ALL)
            keys.append(eye.after(lambda key=other: screen.chord(ord(key)), part, "the preview follows a key"))
        eye.settle()
        screen.chord(ESCAPE)  # empties the text
        eye.after(lambda: screen.chord(ESCAPE), part, "the box closes")
    eye.close()
    return opening, keys


# The other launcher

def names_of(configuration):
    """The captions of all shortcuts, as the files of the workspace hold them."""
    names = []
    files = glob.glob(configuration + "/Quillmere/Containers/*.con") + [configuration + "/Quillmere/Quillmere.ini"]
    for path in sorted(files):
        with open(path, encoding="utf-8", errors="replace") as text:
            lines = text.read().splitlines()
        names += [lines[at + 1] for at, line in enumerate(lines[:-1]) if line == CAPTION_TAG]
    return names


class Other:
    """One start of the other launcher over the names."""

    def __init__(self, server, path, home):
        server.drain()
        self.begun = time.perf_counter()
        self.process = subprocess.Popen(["rofi", "-dmenu", "-i", "-no-config", "-input", path],
                                        env={**os.environ, "HOME": home, "XDG_CACHE_HOME": home, "XDG_RUNTIME_DIR": home},
                                        stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        found = server.first_picture("rofi", self.begun + PATIENCE)
        if not found:
            self.end()
            raise SystemExit("measure_launcher: the other launcher showed nothing")
        self.opened, self.window = found[0] - self.begun, found[1]

    def end(self):
        self.process.terminate()
        self.process.wait()


def measure_other(screen, configuration, runs):
    home = tempfile.mkdtemp()
    opening, keys = [], []
    try:
        path, names = home + "/names", names_of(configuration)
        with open(path, "w", encoding="utf-8") as out:
            out.write("\n".join(names) + "\n")
        for number in range(runs):
            server = measure_start.Server()
            other = Other(server, path, home)
            try:
                opening.append(other.opened)
                _, _, width, height = screen.place(other.window)
                eye = Eye(screen, other.window)
                # Below the line that is typed into, whose own letter shows in any case.
                part = (0, height // 4, width, height - height // 4)
                letter = LETTERS[number % len(LETTERS)]
                keys.append(eye.after(lambda key=letter: screen.chord(ord(key)), part, "the list follows a key"))
                eye.close()
            finally:
                other.end()
                server.x.XCloseDisplay(server.display)
    finally:
        shutil.rmtree(home, ignore_errors=True)
    return opening, keys, len(names)


def tell(what, values, target=""):
    print("%-44s %8.1f ms %8.1f ms   %s" % (what, 1000 * statistics.median(values), 1000 * max(values), target))


def main():
    reader = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    reader.add_argument("--bin", required=True)
    reader.add_argument("--runs", type=int, default=30)
    reader.add_argument("configuration")
    wanted = reader.parse_args()
    screen = measure_edge.Screen()
    screen.rest()
    workspace = measure_edge.Workspace(screen, os.path.abspath(wanted.bin), wanted.configuration)
    try:
        opening, keys = measure_workspace(screen, workspace, wanted.runs)
    finally:
        workspace.end()
    print("%-44s %11s %11s   target" % ("", "median", "worst"))
    tell("box: key until its name line shows", opening, "at most 30 ms")
    tell("box: key until the preview shows", keys, "at most 16.7 ms, one frame")
    if not shutil.which("rofi"):
        print("rofi is not installed")
        return 0
    opening, keys, count = measure_other(screen, wanted.configuration, wanted.runs)
    tell("rofi, %d names: start until it shows" % count, opening)
    tell("rofi: key until the list shows", keys)
    return 0


if __name__ == "__main__":
    sys.exit(main())
