"""The desktop's accent colour on the bar at the edge: asked for over the session bus, and followed."""

import os
import subprocess
import unittest

from harness import DesktopTest, until
import workspace_files as files

STAND_IN = os.path.join(os.path.dirname(os.path.abspath(__file__)), "portal_stand_in.py")
SYSTEM_PYTHON = "/usr/bin/python3"  # the one that the bindings of the bus are installed for
HOTKEY = "super+alt+s"
OWN, RED, GREEN = (14, 41, 56), (255, 0, 51), (0, 204, 0)


def has_bindings():
    return subprocess.run([SYSTEM_PYTHON, "-c", "from gi.repository import Gio"], check=False,
                          stderr=subprocess.DEVNULL).returncode == 0


@unittest.skipUnless(has_bindings(), "needs python3-gi to answer for the desktop")
class Accent(DesktopTest):
    desktop_options = {"bus": True}

    def answer(self, value):
        self.portal = self.desktop.start(SYSTEM_PYTHON, [STAND_IN, "org.freedesktop.appearance", "accent-color", value])
        until(lambda: "ready" in self.portal.stdout, "the portal answers: " + self.portal.stderr)

    def open(self, wanted=1):
        rows = files.lines("[Accent Color]", wanted, "[Mini Dock Flash]", 0, "[Animate]", 0)
        folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere")
        files.put(folder, files.settings(x=1280 * 15 - 6000, y=3000, w=6000, h=4500, extra=rows))
        self.other = self.desktop.start("xterm", ["-geometry", "40x10+20+20"])
        self.beneath = self.other.wait_window()
        self.app = self.desktop.start("quillmere", ["--nosplash"])
        self.window = self.app.wait_window(title="^Quillmere$")
        self.app.settle()

    def await_asked(self, times=1):
        until(lambda: self.portal.stdout.count("asked") >= times, "the desktop is asked: " + self.portal.stdout)
        self.app.settle()

    def dock(self):
        self.desktop.request_focus(self.window)
        until(lambda: self.desktop.has_keyboard(self.window), "the workspace has the keyboard")
        self.desktop.key(HOTKEY)
        until(lambda: not self.desktop.x.is_viewable(self.window), "the workspace is away")

    def await_bar(self, colour):
        bar = self.app.wait_window(title="^Quillmere Bar$")
        until(lambda: self.desktop.pixel(*self.desktop.middle(bar)) == colour,
              "the bar has the colour %s: %s" % (colour, self.desktop.pixel(*self.desktop.middle(bar))))

    def call(self):
        self.desktop.key(HOTKEY)
        until(lambda: self.desktop.x.is_viewable(self.window), "the workspace is out")
        self.app.wait_no_window(title="^Quillmere Bar$")

    def test_the_bar_has_it_and_follows_a_change_of_mind(self):
        self.answer("(1.0, 0.0, 0.2)")
        self.open()
        self.await_asked(2)  # for less motion as well
        self.dock()
        self.await_bar(RED)
        self.call()
        self.portal.say("(0.0, 0.8, 0.0)")
        self.await_asked(4)
        self.dock()
        self.await_bar(GREEN)

    def test_where_it_is_not_wanted_the_bar_has_its_own(self):
        self.answer("(1.0, 0.0, 0.2)")
        self.open(wanted=0)
        self.await_asked(2)
        self.dock()
        self.await_bar(OWN)

    def test_a_desktop_without_one_gives_the_colour_of_what_is_selected(self):
        self.answer("(-1.0, -1.0, -1.0)")
        self.open()
        self.await_asked(2)
        self.dock()
        bar = self.app.wait_window(title="^Quillmere Bar$")
        until(lambda: self.desktop.pixel(*self.desktop.middle(bar)) not in (OWN, (0, 0, 0)), "the bar shows a colour")
