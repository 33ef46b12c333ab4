"""The icon in the notification area, of both kinds of area: one on the X server that takes real clicks, and one that
is reached over the session bus. And the desktop's accent colour, which is asked for over the same bus."""

import os
import shutil
import signal
import subprocess
import unittest

from harness import DesktopTest, until
import workspace_files as files

HERE = os.path.dirname(os.path.abspath(__file__))
SYSTEM_PYTHON = "/usr/bin/python3"  # the one that the bindings of the bus are installed for
LINES = "_Show Workspace|_Center Workspace|_Hide Workspace|-|Exi_t"
FLOATING = {"x": 6000, "y": 3000, "w": 6000, "h": 4500}


def has_bindings():
    return subprocess.run([SYSTEM_PYTHON, "-c", "from gi.repository import Gio"], check=False,
                          stderr=subprocess.DEVNULL).returncode == 0


class Tray(DesktopTest):
    """The person's words; no tests of its own."""

    def setUp(self):
        super().setUp()
        self.folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere")

    def open(self, **keys):
        rows = [row for key, value in keys.items() for row in ("[%s]" % key, value)]
        files.put(self.folder, files.settings(extra=files.lines(*rows), **FLOATING))
        self.app = self.desktop.start("quillmere", ["--nosplash"])
        self.window = self.app.wait_window(title="^Quillmere$")

    def is_shown(self):
        return self.desktop.x.is_viewable(self.window)

    def await_shown(self):
        until(self.is_shown, "the workspace is shown")

    def await_hidden(self):
        until(lambda: not self.is_shown(), "the workspace is hidden")

    def await_centered(self):
        width, height = self.desktop.size

        def is_centered():
            x, y, w, h = self.desktop.geometry(self.window)
            return abs(x + w // 2 - width // 2) < 3 and abs(y + h // 2 - height // 2) < 3
        until(is_centered, "the workspace is in the middle: %s" % (self.desktop.geometry(self.window),))


@unittest.skipUnless(shutil.which("trayer"), "needs trayer")
class OnTheServer(Tray):
    clicks = 0

    def start_tray(self):
        self.tray_app = self.desktop.start("trayer", ["--edge", "bottom", "--align", "left", "--widthtype", "pixel",
                                                      "--width", "200", "--height", "32", "--SetPartialStrut", "false"])
        owner = self.desktop.x.atom("_NET_SYSTEM_TRAY_S0")
        until(lambda: self.desktop.x.selection_owner(owner), "the tray is there: " + self.tray_app.stderr)

    def icon(self):
        """The window of the icon; None while there is none."""
        x = self.desktop.x

        def seek(window):
            for child in x.children(window):
                found = child if x.text(child, "WM_CLASS").startswith("quillmere") else seek(child)
                if found and x.is_viewable(found):
                    return found
            return None
        trays = [w for w in x.children(x.root) if x.is_viewable(w) and w != self.desktop.x.top_level(self.window)]
        return next((found for found in map(seek, trays) if found), None)

    def click_icon(self, button=1):
        """Each time at another place of it, or two quick ones would be a double click."""
        x, y = self.desktop.middle(until(self.icon, "the icon is there"))
        self.clicks += 1
        self.desktop.click(x - 4 + self.clicks % 2 * 8, y, button=button)

    def menus(self):
        """Windows that no window manager manages, and no tips."""
        tip, managed = "_NET_WM_WINDOW_TYPE_TOOLTIP", self.app.windows()
        return [w for w in self.app.all_windows()
                if w not in managed and tip not in self.desktop.x.atom_list(w, "_NET_WM_WINDOW_TYPE")]

    def choose(self, letter):
        until(lambda: not self.menus(), "no menu is open")
        self.click_icon(button=3)
        until(self.menus, "the menu shows")
        self.desktop.key(letter)

    def test_a_click_shows_a_hidden_workspace_and_its_menu_works(self):
        self.start_tray()
        self.desktop.start("xterm").wait_window()
        self.open()
        until(self.icon, "the icon is there")
        self.choose("h")
        self.await_hidden()
        self.click_icon()
        self.await_shown()
        until(lambda: self.desktop.has_keyboard(self.window), "it has the keyboard")
        self.choose("c")
        self.await_centered()
        self.choose("h")
        self.await_hidden()
        self.choose("s")
        self.await_shown()
        self.choose("t")
        self.assertEqual(self.app.wait_exit(), 0)

    def test_a_double_click_and_the_middle_button_do_no_more_than_a_click(self):
        self.start_tray()
        self.open()
        self.choose("h")
        self.await_hidden()
        self.desktop.double_click(*self.desktop.middle(self.icon()))
        self.await_shown()
        self.choose("h")
        self.await_hidden()
        self.click_icon(button=2)
        self.await_shown()

    def test_a_tray_that_comes_later_gets_the_icon(self):
        self.open()
        self.app.settle()
        self.start_tray()
        self.click_icon()
        until(lambda: self.desktop.has_keyboard(self.window), "the workspace has the keyboard")

    def test_a_tray_that_is_started_again_gets_the_icon_again(self):
        self.start_tray()
        self.open()
        until(self.icon, "the icon is there")
        self.tray_app.terminate()
        until(lambda: not self.icon(), "the icon has gone with its tray")
        self.assertTrue(self.app.running())
        self.start_tray()
        until(self.icon, "the icon is there again")

    def test_the_program_can_be_told_to_end_while_the_menu_is_open(self):
        self.start_tray()
        self.open()
        self.click_icon(button=3)
        until(self.menus, "the menu shows")
        self.assertEqual(self.app.terminate(), 0)

    def test_switched_off_there_is_none(self):
        self.start_tray()
        self.open(ShowTrayIcon=0)
        self.desktop.settle()
        self.assertIsNone(self.icon())

    def test_it_shows_a_picture(self):
        self.start_tray()
        self.open()
        x, y, width, height = self.desktop.geometry(until(self.icon, "the icon is there"))
        def colours():
            return {self.desktop.pixel(x + dx, y + dy) for dx in range(0, width, 2) for dy in range(0, height, 2)}
        until(lambda: len(colours()) > 5, "the icon has a picture")


class WithoutTray(Tray):
    def test_with_none_and_no_bus_the_program_runs_without_a_word(self):
        self.open()
        self.app.settle()
        self.assertEqual(self.app.terminate(), 0)
        self.assertEqual(self.app.stderr, "")


@unittest.skipUnless(has_bindings(), "needs python3-gi to stand for the desktop")
class OverTheBus(Tray):
    desktop_options = {"bus": True}

    def start_tray(self, *words):
        self.tray = self.desktop.start(SYSTEM_PYTHON, [os.path.join(HERE, "tray_stand_in.py"), *words])
        self.await_said("ready")

    def said(self):
        return self.tray.stdout.splitlines()

    def await_said(self, line, times=1):
        until(lambda: self.said().count(line) >= times, "the tray says '%s': %s %s" % (line, self.tray.stdout, self.tray.stderr))

    def test_the_icon_has_a_picture_a_tip_and_the_menu(self):
        self.start_tray("host")
        self.open()
        self.await_said("item")
        self.tray.say("tip")
        until(lambda: any(line.startswith("tip Quillmere") for line in self.said()), "the tip: " + self.tray.stdout)
        self.tray.say("picture")
        until(lambda: any(line.startswith("picture") for line in self.said()), "the picture")
        self.assertNotIn("picture 0", self.said())
        self.tray.say("lines")
        self.await_said("lines " + LINES)

    def test_its_menu_works_and_tells_what_can_be_done_now(self):
        self.start_tray("host")
        self.open()
        self.await_said("item")
        self.tray.say("choose _Hide Workspace")
        self.await_hidden()
        self.tray.say("lines")
        self.await_said("lines " + LINES.replace("_Hide Workspace", "_Hide Workspace (off)"))
        self.tray.say("choose _Center Workspace")
        self.await_shown()
        self.await_centered()
        self.tray.say("choose _Hide Workspace")
        self.await_hidden()
        self.tray.say("choose _Show Workspace")
        self.await_shown()
        self.tray.say("choose Exi_t")
        self.assertEqual(self.app.wait_exit(), 0)
        self.await_said("gone")

    def test_a_click_and_the_middle_button_show_the_workspace(self):
        self.start_tray("host")
        self.open()
        self.await_said("item")
        for word in ("activate", "middle"):
            self.tray.say("choose _Hide Workspace")
            self.await_hidden()
            self.tray.say(word)
            self.await_shown()

    def test_a_tray_that_comes_later_gets_the_icon(self):
        self.open()
        self.app.settle()
        self.start_tray("host")
        self.await_said("item")

    def test_a_tray_that_is_not_ready_yet_gets_it_when_it_is(self):
        self.start_tray()
        self.open()
        self.await_said("asked IsStatusNotifierHostRegistered")
        self.app.settle()
        self.assertNotIn("item", self.said())
        self.tray.say("host")
        self.await_said("item")

    def test_a_tray_that_is_started_again_gets_the_icon_again(self):
        self.start_tray("host")
        self.open()
        self.await_said("item")
        self.tray.terminate()
        self.start_tray("host")
        self.await_said("item")
        self.tray.say("choose _Hide Workspace")
        self.await_hidden()

    def test_one_that_never_answers_holds_nothing_up(self):
        self.start_tray("host")
        os.kill(self.tray.process.pid, signal.SIGSTOP)
        self.open()
        self.app.settle()
        self.desktop.request_focus(self.window)
        self.desktop.key("ctrl+t")
        until(lambda: os.path.exists(os.path.join(self.folder, "Containers", "0.REC")), "the workspace works")
        self.assertEqual(self.app.terminate(), 0)
        os.kill(self.tray.process.pid, signal.SIGCONT)

    def test_without_one_the_program_runs_without_a_word(self):
        self.open()
        self.app.settle()
        self.assertEqual(self.app.terminate(), 0)
        self.assertEqual(self.app.stderr, "")
