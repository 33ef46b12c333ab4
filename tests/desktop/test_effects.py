"""What moves for a moment, and what is told while the mouse rests: on the real program, seen on its screen."""

import os
import subprocess
import unittest

from harness import DesktopTest, until
import workspace_files as files

STAND_IN = os.path.join(os.path.dirname(os.path.abspath(__file__)), "portal_stand_in.py")
SYSTEM_PYTHON = "/usr/bin/python3"  # the one that the bindings of the bus are installed for
EDGE_X, EDGE_Y = 20, 15  # twips: where picBack begins in the window
TILE_X, TILE_Y = 3000, 3000


class Moving(DesktopTest):
    def setUp(self):
        super().setUp()
        self.folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere")

    def open(self, container, env=None, **keys):
        # The settings of the person, and no hovering that would open what the mouse rests on.
        rows = [row for key, value in {"AutoExpand": 0, **keys}.items() for row in ("[%s]" % key.replace("_", " "), value)]
        files.put(self.folder, files.settings(extra=files.lines(*rows)), [container])
        self.app = self.desktop.start("quillmere", ["--nosplash"], env)
        self.window = self.app.wait_window(title="Quillmere")

    def open_tile(self, env=None, **keys):
        self.open(files.container("Work", x=TILE_X, y=TILE_Y, shrink=1), env, **keys)
        self.below = self.at(TILE_X + 350, TILE_Y + 2000)  # where it is covered once it is open
        self.beside = self.at(9000, 7500)
        self.on_icon, rim = self.at(TILE_X + 350, TILE_Y + 475), self.at(TILE_X + 350, TILE_Y + 80)
        until(lambda: self.desktop.pixel(*self.on_icon) != self.desktop.pixel(*rim), "the tile has its icon")
        self.icon = self.desktop.pixel(*self.on_icon)
        self.closed = self.desktop.pixel(*self.below)
        self.opened = None

    def at(self, x, y):
        """A place of the workspace in twips, as a pixel of the screen."""
        left, top, _, _ = self.desktop.geometry(self.window)
        return (left + int((EDGE_X + x) // 15), top + int((EDGE_Y + y) // 15))

    def press_at(self, x, y):
        self.desktop.move_to(x, y)
        self.desktop.press()
        self.desktop.release()

    def colours_on_the_way(self, final):
        """All that is seen below the tile from now on until it is what it stays."""
        seen = set()

        def arrived():
            seen.add(self.desktop.pixel(*self.below))
            return final in seen
        until(arrived, "the container is %s below the tile: %s" % (final, seen))
        return seen - {self.closed, self.opened}

    def learn_open_colour(self):
        self.press_at(*self.at(TILE_X + 350, TILE_Y + 475))
        last = [None, 0]

        def stands():
            pixel = self.desktop.pixel(*self.below)
            last[1] = last[1] + 1 if pixel == last[0] and pixel != self.closed else 0
            last[0] = pixel
            return last[1] > 60  # more than any effect takes
        until(stands, "the container is open and at rest")
        self.opened = last[0]
        self.desktop.settle()
        self.shrink()

    def shrink(self):
        self.press_at(*self.beside)
        seen = self.colours_on_the_way(self.closed)
        until(lambda: self.desktop.pixel(*self.on_icon) == self.icon, "the tile is there again")
        self.desktop.settle()
        return seen

    def expand(self):
        self.press_at(*self.at(TILE_X + 350, TILE_Y + 475))
        seen = self.colours_on_the_way(self.opened)
        self.desktop.settle()
        return seen


class Effects(Moving):
    def test_an_expansion_is_seen_on_its_way(self):
        self.open_tile()
        self.learn_open_colour()
        self.assertTrue(self.expand())

    def test_without_effects_it_is_there_at_once(self):
        self.open_tile(Effect=0)
        self.learn_open_colour()
        self.assertEqual(self.expand(), set())

    def test_in_the_implode_mode_it_is_there_at_once_and_goes_on_its_way(self):
        self.open_tile(EffectMode=2)
        self.learn_open_colour()
        self.assertEqual(self.expand(), set())
        self.assertTrue(self.shrink())

    def test_a_desktop_that_keeps_the_wish_for_less_motion_in_its_file_is_heard(self):
        files.write(os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "kdeglobals"),
                    "[General]\nfont=Sans\n\n[KDE]\nAnimationDurationFactor=0\n")
        self.open_tile(env={"XDG_CURRENT_DESKTOP": "KDE"})
        self.learn_open_colour()
        self.assertEqual(self.expand(), set())


def has_bindings():
    return subprocess.run([SYSTEM_PYTHON, "-c", "from gi.repository import Gio"], check=False,
                          stderr=subprocess.DEVNULL).returncode == 0


@unittest.skipUnless(has_bindings(), "needs python3-gi to answer for the desktop")
class LessMotion(Moving):
    desktop_options = {"bus": True}

    def answer(self, *setting):
        self.portal = self.desktop.start(SYSTEM_PYTHON, [STAND_IN, *setting])
        until(lambda: "ready" in self.portal.stdout, "the desktop answers: " + self.portal.stderr)

    def opens_on_its_way(self):
        on_its_way = self.expand()
        self.shrink()
        return bool(on_its_way)

    def test_who_asked_the_desktop_for_less_gets_no_effect(self):
        self.answer("org.freedesktop.appearance", "reduced-motion", "uint32 1")
        self.open_tile()
        self.learn_open_colour()
        until(lambda: not self.opens_on_its_way(), "the container is there at once")

    def test_who_has_animations_switched_off_gets_no_effect(self):
        self.answer("org.gnome.desktop.interface", "enable-animations", "false")
        self.open_tile()
        self.learn_open_colour()
        until(lambda: not self.opens_on_its_way(), "the container is there at once")

    def test_a_change_of_mind_is_followed(self):
        self.answer("org.freedesktop.appearance", "reduced-motion", "uint32 0")
        self.open_tile()
        self.learn_open_colour()
        self.assertTrue(self.opens_on_its_way())
        self.portal.say("uint32 1")
        until(lambda: not self.opens_on_its_way(), "the container is there at once")


class Tips(Moving):
    TITLE = (900 + 900, 900 + 145)

    def tip(self):
        kind = "_NET_WM_WINDOW_TYPE_TOOLTIP"
        for window in self.app.all_windows():
            if kind in self.desktop.x.atom_list(window, "_NET_WM_WINDOW_TYPE"):
                return window
        return None

    def rest_on_the_title(self):
        self.desktop.move_to(*self.at(*self.TITLE))
        return until(self.tip, "a tip")

    def window_under_the_mouse(self):
        told = subprocess.run(["xdotool", "getmouselocation", "--shell"], env=self.desktop.env, check=True,
                              stdout=subprocess.PIPE).stdout.decode()
        return int(dict(line.split("=") for line in told.split())["WINDOW"])

    def test_a_mouse_that_rests_on_a_title_is_told_and_one_that_goes_on_is_not(self):
        self.open(files.container("Work"))
        self.rest_on_the_title()
        self.desktop.move_to(*self.at(9000, 7500))
        until(lambda: not self.tip(), "the tip has gone")

    def test_a_press_and_a_key_hide_it(self):
        self.open(files.container("Work"))
        self.desktop.request_focus(self.window)
        self.rest_on_the_title()
        self.desktop.press()
        until(lambda: not self.tip(), "the tip has gone at the press")
        self.desktop.release()
        self.desktop.move_to(*self.at(self.TITLE[0] + 60, self.TITLE[1]))
        until(self.tip, "a tip again")
        self.desktop.key("Tab")
        until(lambda: not self.tip(), "the tip has gone at the key")

    def test_it_takes_neither_the_keyboard_nor_the_mouse(self):
        self.open(files.container("Work"))
        self.desktop.request_focus(self.window)
        until(lambda: self.desktop.has_keyboard(self.window), "the workspace has the keyboard")
        tip = self.rest_on_the_title()
        self.assertTrue(self.desktop.has_keyboard(self.window))
        self.desktop.move_to(*self.desktop.middle(tip))
        under = self.window_under_the_mouse()
        self.assertTrue(self.desktop.x.has_ancestor(self.window, under) or under == self.window, hex(under))

    def test_it_lies_above_the_workspace_and_inside_the_screen(self):
        self.open(files.container("Work"))
        tip = self.rest_on_the_title()
        self.assertTrue(self.desktop.is_above(tip, self.window))
        left, top, width, height = self.desktop.geometry(tip)
        self.assertTrue(left >= 0 and top >= 0)
        self.assertTrue(left + width <= self.desktop.size[0] and top + height <= self.desktop.size[1])

    def test_it_is_twice_as_large_at_twice_the_scale(self):
        self.open(files.container("Work"))
        tip = self.rest_on_the_title()
        size = self.desktop.geometry(tip)[2:]
        self.app.terminate()
        self.open(files.container("Work", x=600, y=600), env={"QT_SCALE_FACTOR": "2"})
        left, top, _, _ = self.desktop.geometry(self.window)
        self.desktop.move_to(left + 2 * (600 + 900) // 15, top + 2 * (600 + 160) // 15)
        large = self.desktop.geometry(until(self.tip, "a tip"))[2:]
        for one, two in zip(size, large):
            self.assertAlmostEqual(two / one, 2, delta=0.2)
