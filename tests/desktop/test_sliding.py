"""The sliding workspace on the real program under real window managers: it goes when it is not needed, leaves its bar
at the very edge, and comes back by every way there is."""

import contextlib
import math
import os
import shutil
import subprocess

from harness import ACCESSIBILITY_BUS, Desktop, DesktopTest, has_window_manager, until
import test_accessibility as told
import workspace_files as files

TWIPS = 15
WIDTH, HEIGHT = 4500, 3000  # of the workspace, twips
SCREEN = (1280, 800)
AWAY = (1000, 700)  # over no window at any edge, however the screen is scaled
OTHER = (620, 420, 200, 150)  # another program's window
EDGES = ("left", "top", "right", "bottom")
BAR_COLOUR = (14, 41, 56)
FLASH_COLOUR = tuple(part ^ 0x80 for part in BAR_COLOUR)
BAR_LENGTH, BAR_THICKNESS = 2500, 40
EDGE_X, EDGE_Y = 20, 15  # twips: where picBack begins in the window
BAR, STRIP, SPACE = "^Quillmere Bar$", "^QuillmereMiniToolbar$", "^Quillmere$"


def settings_at(place, rows=()):
    x, y = place
    return files.settings(x=round(x), y=round(y), w=WIDTH, h=HEIGHT, extra=files.lines(*rows))


def screen_in_twips(scale):
    return tuple(side * TWIPS / scale for side in SCREEN)


def place_at(edge, scale=1):
    """Where the workspace stands when it is put against an edge."""
    width, height = screen_in_twips(scale)
    return {"left": (0, 1500), "top": (1500, 0), "right": (width - WIDTH, 1500),
            "bottom": (1500, height - HEIGHT)}[edge]


def in_pixels(left, top, width, height, scale):
    """Edges are rounded to the toolkit's pixels, which are scaled afterwards."""
    corner = [math.floor(twips / TWIPS + 0.5) for twips in (left, top)]
    end = [math.floor(twips / TWIPS + 0.5) for twips in (left + width, top + height)]
    return tuple(round(value * scale) for value in (*corner, end[0] - corner[0], end[1] - corner[1]))


def bar_at(edge, scale=1):
    """In the middle of the workspace's side; how far it reaches over the edge differs from edge to edge."""
    width, height = screen_in_twips(scale)
    left, top = place_at(edge, scale)
    if edge in ("left", "right"):
        across = 0 if edge == "left" else width - 30
        return in_pixels(across, top + HEIGHT / 2 - BAR_LENGTH / 2, BAR_THICKNESS, BAR_LENGTH, scale)
    across = -10 if edge == "top" else height - 30
    return in_pixels(left + WIDTH / 2 - BAR_LENGTH / 2, across, BAR_LENGTH, BAR_THICKNESS, scale)


def out_at(edge, scale=1):
    """Out, it reaches a little over its edge, so that no gap shows."""
    width, height = screen_in_twips(scale)
    left, top = place_at(edge, scale)
    place = {"left": (-200, top), "top": (left, -100), "right": (width - WIDTH + 200, top),
             "bottom": (left, height - HEIGHT + 200)}[edge]
    return in_pixels(*place, WIDTH, HEIGHT, scale)


class Witness:
    """A workspace on a desktop of its own that has every reason to go. When it has gone, a workspace elsewhere has
    had a tick of its heartbeat too, and one that still stands is meant to stand."""

    def __enter__(self):
        self.desktop = Desktop(wm=None)
        try:
            self.desktop.move_to(*AWAY)
            files.put(os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere"), settings_at((0, 1500)))
            self.app = self.desktop.start("quillmere", ["--nosplash"])
            until(lambda: self.app.find_window(SPACE), "the witness is there")
        except BaseException:
            self.desktop.close()
            raise
        return self

    def __exit__(self, *failure):
        self.desktop.close()

    def has_gone(self):
        return self.app.find_window(SPACE) is None


class Sliding(DesktopTest):
    scale = 1

    def setUp(self):
        if not has_window_manager(self.desktop_options.get("wm", "openbox")):
            self.skipTest("not installed")
        super().setUp()
        self.folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere")

    # What a person does

    def keep(self, place, *rows, containers=()):
        files.put(self.folder, settings_at(place_at(place, self.scale) if place in EDGES else place, rows), containers)

    def open(self, env=None):
        self.desktop.move_to(*AWAY)
        self.other = self.desktop.start("window_probe", ["plain", "Other", *map(str, OTHER)])
        self.away = self.other.wait_window("^Other$")
        self.app = self.desktop.start("quillmere", ["--nosplash"], {"QT_SCALE_FACTOR": str(self.scale), **(env or {})})
        self.window = self.app.wait_window(SPACE)
        until(lambda: self.desktop.has_keyboard(self.window), "it starts with the keyboard")

    def look_elsewhere(self):
        self.desktop.move_to(*AWAY)
        self.desktop.request_focus(self.away)
        until(lambda: self.desktop.has_keyboard(self.away), "the other program has the keyboard")

    def open_docked(self, edge, *rows, containers=()):
        self.keep(edge, *rows, containers=containers)
        self.open()
        self.look_elsewhere()
        return self.await_docked()

    @contextlib.contextmanager
    def afterwards_all_ends(self):
        try:
            yield
        finally:
            for app in self.desktop.apps:
                app.close()
            self.desktop.apps.clear()

    def take_keyboard(self):
        self.desktop.request_focus(self.window)
        until(lambda: self.desktop.has_keyboard(self.window), "the workspace has the keyboard")

    def on_bar(self, along=0.5):
        """A point of the bar that is on the screen."""
        left, top, width, height = self.desktop.geometry(self.bar)
        return (min(max(int(left + width * (along if width > height else 0.5)), 0), SCREEN[0] - 1),
                min(max(int(top + height * (along if height > width else 0.5)), 0), SCREEN[1] - 1))

    def at(self, x, y):
        """A place of the workspace in twips, as a pixel of the screen."""
        left, top, _, _ = self.desktop.geometry(self.window)
        return (left + int((EDGE_X + x) // TWIPS), top + int((EDGE_Y + y) // TWIPS))

    def second_start(self, *words):
        again = self.desktop.start("quillmere", words)
        self.assertEqual(again.wait_exit(), 0)
        self.desktop.apps.remove(again)
        again.close()

    # What a person sees

    def is_out(self):
        return self.desktop.x.is_viewable(self.window)

    def await_docked(self):
        until(lambda: not self.is_out(), "the workspace has gone")
        self.bar = self.app.wait_window(BAR)
        return self.bar

    def await_bar_colour(self, *places):
        """It may still flash."""
        for place in places:
            until(lambda: self.desktop.pixel(*place) == BAR_COLOUR,
                  "the bar's colour at %s, which is %s" % (place, self.desktop.pixel(*place)))

    def await_out(self):
        """With the bar gone, the pointer is where it was put."""
        until(self.is_out, "the workspace is out")
        self.app.wait_no_window(BAR)
        self.desktop.settle()

    def stays_out(self):
        with Witness() as witness:
            until(witness.has_gone, "a heartbeat has passed")
        self.desktop.settle()
        return self.is_out() and self.app.find_window(BAR) is None

    def stays_docked_while(self, act):
        """Something goes on for longer than a hover takes."""
        with Witness() as witness:
            while not witness.has_gone():
                act()
                if self.is_out():
                    return False
        return True

    def strip(self):
        return self.app.find_window(STRIP)


class Everywhere(Sliding):
    """Where the window manager has a hand in it."""

    def test_goes_and_leaves_its_bar_at_the_very_edge(self):
        for edge in EDGES:
            with self.subTest(edge=edge), self.afterwards_all_ends():
                self.open_docked(edge)
                self.assertEqual(self.desktop.geometry(self.bar), bar_at(edge, self.scale))
                self.await_bar_colour(self.on_bar())
                self.assertTrue(self.desktop.has_keyboard(self.away), "the other program keeps the keyboard")

    def test_comes_out_by_a_resting_mouse_without_the_keyboard(self):
        for edge in EDGES:
            with self.subTest(edge=edge), self.afterwards_all_ends():
                self.open_docked(edge)
                self.desktop.move_to(*self.on_bar())
                self.await_out()
                self.assertEqual(self.desktop.geometry(self.window), out_at(edge, self.scale))
                self.assertTrue(self.desktop.has_keyboard(self.away), "the other program keeps the keyboard")

    def test_goes_again_when_the_mouse_leaves(self):
        self.open_docked("left")
        self.desktop.move_to(*self.on_bar())
        self.await_out()
        self.desktop.move_to(*AWAY)
        self.await_docked()
        self.assertEqual(self.desktop.geometry(self.bar), bar_at("left", self.scale))

    def test_a_press_on_the_bar_takes_no_keyboard_from_anybody(self):
        self.open_docked("left", "[Undock On Click]", 1)
        self.desktop.click(*self.on_bar(), button=3)
        self.assertFalse(self.is_out())
        self.assertTrue(self.desktop.has_keyboard(self.away))
        self.desktop.click(*self.on_bar())
        self.await_out()
        self.assertTrue(self.desktop.has_keyboard(self.away))

    def test_takes_the_keyboard_when_it_comes_out_if_that_is_set(self):
        self.open_docked("right", "[GrabFocus]", 1)
        self.desktop.move_to(*self.on_bar())
        self.await_out()
        until(lambda: self.desktop.has_keyboard(self.window), "the workspace has the keyboard")

    def test_stays_out_while_it_has_the_keyboard(self):
        self.keep("left")
        self.open()
        self.desktop.move_to(*AWAY)
        self.assertTrue(self.stays_out())
        self.look_elsewhere()
        self.await_docked()

    def test_escape_puts_it_away_and_gives_the_keyboard_back(self):
        self.keep("left")
        self.open()
        self.desktop.key("Escape")
        self.await_docked()
        until(lambda: self.desktop.has_keyboard(self.away), "the other program has the keyboard again")

    def test_puts_nobody_in_front_when_no_other_window_is_there(self):
        self.keep("left")
        self.open()
        self.other.close()
        self.desktop.apps.remove(self.other)
        self.desktop.key("Escape")
        self.await_docked()
        self.assertTrue(self.app.running())

    def test_the_keyboard_goes_to_the_topmost_window_that_is_not_minimised(self):
        self.keep("left")
        self.open()
        under = self.desktop.start("window_probe", ["plain", "Under", "650", "450", "200", "150"])
        below = under.wait_window("^Under$")
        self.desktop.request_focus(self.away)
        self.desktop.x.message(self.away, "WM_CHANGE_STATE", 3)
        until(lambda: not self.desktop.x.is_viewable(self.away) or
              "_NET_WM_STATE_HIDDEN" in self.desktop.states(self.away), "the other window is minimised")
        self.take_keyboard()
        self.desktop.key("Escape")
        self.await_docked()
        until(lambda: self.desktop.has_keyboard(below), "the window that shows has the keyboard")

    def test_toggle_takes_it_out_with_the_keyboard_and_in_again(self):
        self.open_docked("right")
        self.second_start("--toggle")
        self.await_out()
        until(lambda: self.desktop.has_keyboard(self.window), "called, it has the keyboard")
        self.second_start("--toggle")
        self.await_docked()
        until(lambda: self.desktop.has_keyboard(self.away), "the other program has the keyboard again")

    def test_a_panel_that_comes_over_the_bar_does_not_stay_over_it(self):
        self.open_docked("left")
        panel = self.desktop.start("window_probe", ["panel", "Panel", "0", "0", "40", str(SCREEN[1])])
        panel.say("keepfree 40 0 0 0")
        over = panel.wait_window("^Panel$")
        panel.say("raise")
        until(lambda: self.desktop.is_above(self.bar, over), "the bar lies above the panel")
        self.await_bar_colour(self.on_bar())

    def test_the_bar_reaches_no_further_than_it_should(self):
        self.open_docked("left")
        left, top, width, height = self.desktop.geometry(self.bar)
        self.await_bar_colour((0, top), (width - 1, top), (0, top + height - 1), (width - 1, top + height - 1))
        for beside in ((width, top + height // 2), (0, top - 1), (0, top + height)):
            self.assertNotEqual(self.desktop.pixel(*beside), BAR_COLOUR)

    def test_taskbars_and_pagers_do_not_list_the_bar(self):
        self.open_docked("bottom")
        self.assertLessEqual({"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER", "_NET_WM_STATE_ABOVE"},
                             self.desktop.states(self.bar))


class SlidingOnOpenbox(Everywhere):
    desktop_options = {"wm": "openbox"}


class SlidingOnXfwm4(Everywhere):
    desktop_options = {"wm": "xfwm4"}


class SlidingAtTwiceTheScale(Sliding):
    scale = 2

    test_goes_and_leaves_its_bar_at_the_very_edge = Everywhere.test_goes_and_leaves_its_bar_at_the_very_edge
    test_comes_out_by_a_resting_mouse = Everywhere.test_comes_out_by_a_resting_mouse_without_the_keyboard
    test_the_bar_reaches_no_further_than_it_should = Everywhere.test_the_bar_reaches_no_further_than_it_should


class SlidingBetweenTwoScales(Sliding):
    scale = 1.5

    def test_the_bar_is_as_thin_as_it_should_be_and_at_the_edge(self):
        for edge in EDGES:
            with self.subTest(edge=edge), self.afterwards_all_ends():
                self.open_docked(edge)
                for found, wanted in zip(self.desktop.geometry(self.bar), bar_at(edge, self.scale)):
                    self.assertAlmostEqual(found, wanted, delta=1)
                self.await_bar_colour(self.on_bar())


del Everywhere


class SlidingByHand(Sliding):
    # What brings it out

    def test_a_mouse_that_moves_along_the_edge_does_not_bring_it_out(self):
        self.open_docked("left")
        way = [self.on_bar(step / 40) for step in range(2, 39)]
        steps = iter(way * 100000)

        def move():
            self.desktop.move_to(*next(steps))
            self.desktop.move_to(*next(steps))

        self.assertTrue(self.stays_docked_while(move))
        self.desktop.move_to(*self.on_bar())
        self.await_out()

    def test_a_touch_is_enough_where_that_is_set(self):
        self.open_docked("top", "[Undock Immediately]", 1)
        self.desktop.move_to(*self.on_bar())
        self.await_out()

    def test_only_a_click_brings_it_out_where_that_is_set(self):
        self.open_docked("bottom", "[Undock On Click]", 1)
        self.desktop.move_to(*self.on_bar())
        self.assertTrue(self.stays_docked_while(self.app.settle))
        self.desktop.click(*self.on_bar())
        self.await_out()

    def test_a_click_brings_it_out(self):
        self.open_docked("right")
        self.desktop.click(*self.on_bar())
        self.await_out()

    def test_a_drag_over_the_bar_brings_it_out_and_can_be_dropped(self):
        self.open_docked("left")
        source = self.desktop.start("drag_probe", ["probe", *map(str, OTHER)])
        shown = source.wait_window("probe")
        source.say("data text/uri-list file:///bin/true%0D%0A")
        until(lambda: "done" in source.stdout, "the other program has its data")
        start = self.desktop.middle(shown)
        self.desktop.move_to(*start)
        self.desktop.press()
        for step in (10, 20, 30):
            self.desktop.move_to(start[0] - step, start[1])
            self.desktop.settle()
        for along in (0.4, 0.5):
            self.desktop.move_to(*self.on_bar(along))
            self.app.settle()
        self.await_out()
        target = self.at(2200, 1500)
        for away in (3, 1, 0):
            self.desktop.move_to(target[0] - away, target[1])
            self.desktop.settle()
        self.desktop.release()
        saved = os.path.join(self.folder, "Quillmere.REC")
        until(lambda: os.path.exists(saved) and "/bin/true" in files.read(saved), "what was dropped is there")

    def test_the_bar_flashes_after_docking_unless_that_is_off(self):
        for row, colours in ((1, {BAR_COLOUR, FLASH_COLOUR}), (0, {BAR_COLOUR})):
            with self.subTest(flash=row), self.afterwards_all_ends():
                self.keep("left", "[Mini Dock Flash]", row)
                self.open()
                self.look_elsewhere()
                left, top, width, height = bar_at("left")
                seen = set()
                while self.is_out():
                    seen.add(self.desktop.pixel(left, top + height // 2))
                with Witness() as witness:
                    while not witness.has_gone():
                        seen.add(self.desktop.pixel(left, top + height // 2))
                self.assertEqual(seen & {BAR_COLOUR, FLASH_COLOUR}, colours)
                self.await_bar_colour((left, top + height // 2))

    def test_the_pointer_is_brought_to_the_middle_where_that_is_set(self):
        self.open_docked("left", "[Center Mouse]", 1)
        self.desktop.move_to(*self.on_bar())
        self.await_out()
        middle = self.desktop.middle(self.window)
        until(lambda: all(abs(a - b) <= 1 for a, b in zip(self.desktop.x.mouse(), middle)), "the pointer is there")

    # What puts it away

    def test_the_dock_button_puts_it_away_at_once(self):
        self.keep("right")
        self.open()
        width = WIDTH - 2 * EDGE_X
        self.desktop.click(*self.at(width - 250, 170))
        self.await_docked()
        until(lambda: self.desktop.has_keyboard(self.away), "the other program has the keyboard")

    def test_each_arrow_with_alt_puts_it_to_its_edge_where_it_docks(self):
        self.keep((4000, 4000))
        self.open()
        middle = {"left": (0, 6000 - BAR_LENGTH // 2), "right": (19200 - 30, 6000 - BAR_LENGTH // 2),
                  "top": (9600 - BAR_LENGTH // 2, -10), "bottom": (9600 - BAR_LENGTH // 2, 12000 - 30)}
        for edge, key in {"left": "Left", "right": "Right", "top": "Up", "bottom": "Down"}.items():
            self.take_keyboard()
            self.desktop.key("alt+" + key)
            self.look_elsewhere()
            self.await_docked()
            size = (BAR_THICKNESS, BAR_LENGTH) if edge in ("left", "right") else (BAR_LENGTH, BAR_THICKNESS)
            self.assertEqual(self.desktop.geometry(self.bar), in_pixels(*middle[edge], *size, 1), edge)
            self.second_start()
            self.await_out()

    def test_the_slide_goes_outwards_step_by_step(self):
        self.keep("left")
        self.open()
        self.look_elsewhere()
        seen = [self.desktop.geometry(self.window)[0]]
        while self.is_out():
            now = self.desktop.geometry(self.window)[0]
            if now != seen[-1]:
                seen.append(now)
        self.assertEqual(seen, sorted(seen, reverse=True), "it never turns back")
        self.assertGreater(len(seen), 3, "a person sees it go: %s" % seen)

    def test_it_goes_at_once_without_animation(self):
        self.keep("left", "[Animate]", 0)
        self.open()
        self.look_elsewhere()
        seen = {self.desktop.geometry(self.window)[0]}
        while self.is_out():
            seen.add(self.desktop.geometry(self.window)[0])
        parked = in_pixels(50 - WIDTH, 0, WIDTH, HEIGHT, 1)[0]
        self.assertLessEqual(seen, {0, parked})
        self.await_docked()

    def test_it_stands_at_its_new_place_from_the_moment_it_shows(self):
        """The server's own record: between being shown and its first place there is no other."""
        self.open_docked("left")
        record = subprocess.Popen(["xev", "-id", str(self.window), "-event", "structure"], env=self.desktop.env,
                                  stdout=subprocess.PIPE, text=True)
        self.addCleanup(record.stdout.close)
        self.addCleanup(record.kill)
        self.desktop.settle()
        self.desktop.move_to(*self.on_bar())
        self.await_out()
        self.app.terminate()
        places, shown = [], False
        for line in iter(record.stdout.readline, ""):
            shown = shown or line.startswith("MapNotify")
            if shown and line.startswith("ConfigureNotify"):
                places.append(record.stdout.readline().split("window")[1].split(", ", 1)[1].split("),")[0] + ")")
            if line.startswith("DestroyNotify"):
                break
        self.assertTrue(shown)
        self.assertEqual(set(places) - {"(%d,%d)" % out_at("left")[:2]}, set())

    # What leaves it where it is

    def test_a_floating_workspace_stays(self):
        self.keep((3000, 3000))
        self.open()
        self.look_elsewhere()
        self.assertTrue(self.stays_out())

    def test_a_suspended_workspace_stays(self):
        self.keep("left", "[SUSPEND_AUTO_COLLAPSE]", 1)
        self.open()
        self.look_elsewhere()
        self.assertTrue(self.stays_out())
        self.take_keyboard()
        self.desktop.key("ctrl+shift+u")
        self.look_elsewhere()
        self.await_docked()

    def test_a_maximised_workspace_stays_until_it_is_restored(self):
        self.keep("left")
        self.open()
        self.desktop.key("F11")
        until(lambda: self.desktop.geometry(self.window)[2] == SCREEN[0], "it fills the screen")
        self.desktop.request_focus(self.away)
        self.assertTrue(self.stays_out())
        self.take_keyboard()
        self.desktop.key("F11")
        until(lambda: self.desktop.geometry(self.window)[2] == WIDTH // TWIPS, "it has its size again")
        self.look_elsewhere()
        self.await_docked()

    def test_it_stays_while_the_pointer_is_over_it(self):
        self.keep("left")
        self.open()
        self.desktop.move_to(*self.at(2200, 1500))
        self.desktop.request_focus(self.away)
        self.assertTrue(self.stays_out())

    def test_it_stays_when_a_menu_over_it_has_closed_under_a_resting_pointer(self):
        self.keep("left")
        self.open()
        for place in (self.at(2200, 1500), self.at(2200, 900)):
            self.desktop.click(*place, button=3)
            until(lambda: len(self.app.all_windows()) > 1, "the menu is open")
            self.desktop.key("Escape")
            until(lambda: len(self.app.all_windows()) == 1, "the menu is closed")
        self.desktop.request_focus(self.away)
        self.assertTrue(self.stays_out())

    def test_it_goes_when_the_pointer_has_left_it_while_a_menu_was_open(self):
        self.keep("left")
        self.open()
        self.desktop.click(*self.at(2200, 1500), button=3)
        until(lambda: len(self.app.all_windows()) > 1, "the menu is open")
        self.desktop.move_to(*AWAY)
        self.desktop.key("Escape")
        until(lambda: len(self.app.all_windows()) == 1, "the menu is closed")
        self.look_elsewhere()
        self.await_docked()

    def test_a_locked_position_docks_and_comes_out_and_cannot_be_dragged(self):
        self.keep("left", "[PreventWindowMovement]", 1)
        self.open()
        place = self.desktop.geometry(self.window)
        self.desktop.drag(self.at(1000, 170), (500, 500))
        self.assertEqual(self.desktop.geometry(self.window), place)
        self.look_elsewhere()
        self.await_docked()
        self.desktop.move_to(*self.on_bar())
        self.await_out()

    def test_dragged_to_an_edge_it_docks_there(self):
        self.keep((6000, 3000))
        self.open()
        start = self.at(1000, 170)
        self.desktop.drag(start, (start[0] - 410, start[1]))
        until(lambda: self.desktop.geometry(self.window)[0] < 0, "it stands over the left edge")
        self.look_elsewhere()
        self.await_docked()
        self.assertEqual(self.desktop.geometry(self.bar)[0], 0)

    # The rest of the desktop

    def test_no_hover_brings_it_out_over_a_window_that_fills_the_screen(self):
        self.open_docked("left")
        film = self.desktop.start("window_probe", ["plain", "Film", "300", "300", "300", "200"])
        filled = film.wait_window("^Film$")
        film.say("fullscreen on")
        until(lambda: self.desktop.geometry(filled) == (0, 0, *SCREEN), "the film fills the screen")
        self.desktop.request_focus(self.away)  # the bar lies above the film now
        until(lambda: self.desktop.is_above(self.bar, filled), "the bar is above")
        self.desktop.move_to(*self.on_bar())
        self.assertTrue(self.stays_docked_while(self.app.settle))
        self.desktop.click(*self.on_bar())
        self.await_out()

    def test_a_hover_brings_it_out_over_a_window_that_is_only_large(self):
        self.open_docked("left")
        large = self.desktop.start("window_probe", ["plain", "Large", "300", "300", "300", "200"])
        window = large.wait_window("^Large$")
        states = [self.desktop.x.atom("_NET_WM_STATE_MAXIMIZED_" + way) for way in ("VERT", "HORZ")]
        self.desktop.x.message(window, "_NET_WM_STATE", 1, *states, 2)
        until(lambda: self.desktop.geometry(window)[2] == SCREEN[0], "the window is as large as it gets")
        self.desktop.move_to(*self.on_bar())
        self.await_out()

    def test_a_real_panel_at_the_same_edge_does_not_keep_the_bar_covered(self):
        if not shutil.which("tint2"):
            self.skipTest("no panel is installed")
        self.open_docked("bottom")
        panel = self.desktop.start("tint2")
        over = panel.wait_window(window_class="tint2")
        until(lambda: self.desktop.is_above(self.bar, over), "the bar lies above the panel")
        self.desktop.move_to(*self.on_bar())
        self.await_out()

    def test_docked_and_left_alone_it_asks_nothing_of_the_server(self):
        if not shutil.which("strace"):
            self.skipTest("strace is not installed")
        self.open_docked("left")
        panel = self.desktop.start("window_probe", ["panel", "Panel", "0", "700", "1280", "100"])
        panel.wait_window("^Panel$")
        with Witness() as witness:
            until(witness.has_gone, "a heartbeat has passed, with the news of the panel")
        calls = os.path.join(self.desktop.home, "calls")
        watch = subprocess.Popen(["strace", "-f", "-e", "trace=poll,ppoll,writev,sendmsg,sendto", "-o", calls,
                                  "-p", str(self.app.process.pid)], stderr=subprocess.PIPE, text=True)
        self.addCleanup(watch.stderr.close)
        self.addCleanup(watch.kill)
        if "attached" not in watch.stderr.readline():
            self.skipTest("strace may not look")
        with Witness() as witness:
            until(witness.has_gone, "a heartbeat has passed")
        since = files.read(calls)
        self.assertIn("poll(", since)
        for call in ("writev(", "sendmsg(", "sendto("):
            self.assertNotIn(call, since)

    def test_follows_the_monitors_while_it_is_docked(self):
        self.open_docked("right")
        self.desktop.set_monitors((0, 0, 800, 800))
        until(lambda: self.desktop.geometry(self.bar)[0] == 798 and self.desktop.x.is_viewable(self.bar),
              "the bar lies at the new edge")
        self.await_docked()
        left, top, _, height = self.desktop.geometry(self.bar)
        self.desktop.move_to(left, top + height // 2)
        self.await_out()
        self.assertEqual(self.desktop.geometry(self.window)[0], 800 - WIDTH // TWIPS + 13)

    def test_the_left_edge_of_a_second_monitor_is_no_edge(self):
        self.desktop.set_monitors((0, 0, 640, 800), (640, 0, 640, 800))
        self.keep((640 * TWIPS, 3000))
        self.open()
        self.look_elsewhere()
        self.assertTrue(self.stays_out())

    def test_the_bar_is_on_every_desktop(self):
        self.open_docked("left")
        self.desktop.x.message(self.desktop.x.root, "_NET_CURRENT_DESKTOP", 1, 0)
        until(lambda: self.desktop.x.number(self.desktop.x.root, "_NET_CURRENT_DESKTOP") == 1, "another desktop shows")
        self.desktop.settle()
        self.assertTrue(self.desktop.x.is_viewable(self.bar))
        self.desktop.move_to(*self.on_bar())
        self.await_out()

    # Start and end

    def test_hidden_by_its_user_it_starts_without_a_window_until_it_is_called(self):
        self.keep("left", "[Hidden]", 1)
        self.desktop.move_to(*AWAY)
        self.app = self.desktop.start("quillmere", ["--nosplash"])
        with Witness() as witness:
            until(witness.has_gone, "a heartbeat has passed")
        self.assertEqual(self.app.all_windows(), [])
        self.second_start()
        self.window = self.app.wait_window(SPACE)
        until(lambda: self.desktop.has_keyboard(self.window), "called, it has the keyboard")

    def test_hide_takes_window_and_bar_away(self):
        self.keep("left")
        self.open()
        self.desktop.key("ctrl+shift+h")
        until(lambda: not self.app.all_windows(), "nothing of it shows")
        until(lambda: self.desktop.has_keyboard(self.away), "the other program has the keyboard")
        self.second_start("--toggle")
        until(self.is_out, "called, it is back")

    def test_ended_while_docked_it_is_saved_as_out_at_its_edge(self):
        for edge in EDGES:
            with self.subTest(edge=edge), self.afterwards_all_ends():
                self.open_docked(edge)
                self.assertEqual(self.app.terminate(), 0)
                self.assertEqual(self.app.all_windows(), [], "the bar went with it")
                saved = files.read(self.folder, "Quillmere.ini")
                stood = (files.value(saved, "[X]"), files.value(saved, "[Y]"))
                out = in_pixels(*map(float, stood), WIDTH, HEIGHT, 1)
                self.assertEqual(out, out_at(edge))

    # The windows beside it

    def test_the_strip_of_a_selection_takes_no_keyboard_and_closes_when_it_is_told_to(self):
        links = files.link("One", "/bin/true", x=600, y=700) + files.link("Two", "/bin/true", x=600, y=1600)
        files.put(self.folder, settings_at((3000, 3000)) + links)
        self.open()
        self.desktop.drag(self.at(200, 500), self.at(3000, 2700))  # a rubber band around both
        strip = self.app.wait_window(STRIP)
        self.assertTrue(self.desktop.has_keyboard(self.window), "the workspace keeps the keyboard")
        x = self.desktop.x
        x._send(strip, 0, strip, "WM_PROTOCOLS", (x.atom("WM_DELETE_WINDOW"), 0))  # no window manager closes a dock
        until(lambda: self.strip() is None, "the strip is gone")
        self.assertTrue(self.app.running())

    def test_the_title_row_tells_who_has_the_keyboard(self):
        self.keep((3000, 3000))
        self.open()
        title = self.at(2600, 40)
        mine = self.desktop.pixel(*title)
        self.desktop.request_focus(self.away)
        until(lambda: self.desktop.pixel(*title) != mine, "the title is paler")
        self.desktop.request_focus(self.window)
        until(lambda: self.desktop.pixel(*title) == mine, "the title has its colour again")


class SlidingComposited(Sliding):
    desktop_options = {"compositor": True}

    def setUp(self):
        if not shutil.which("picom"):
            self.skipTest("no compositor is installed")
        super().setUp()

    def opacity(self, window):
        return self.desktop.x.numbers(window, "_NET_WM_WINDOW_OPACITY")

    def test_it_fades_while_it_goes_and_is_solid_again_when_it_is_back(self):
        self.keep("left")
        self.open()
        self.look_elsewhere()
        seen = []
        while self.is_out():
            for value in self.opacity(self.window):
                if not seen or seen[-1] != value:
                    seen.append(value)
        self.await_docked()
        while_going = [value for value in seen if value < 0xF0000000]
        self.assertGreater(len(while_going), 2, "it fades: %s" % seen)
        self.assertEqual(while_going, sorted(while_going, reverse=True))
        self.desktop.move_to(*self.on_bar())
        self.await_out()
        until(lambda: self.opacity(self.window) in ([], [0xFFFFFFFF]), "it is solid")

    def test_a_bar_that_is_not_to_be_seen_is_there_all_the_same(self):
        self.open_docked("left", "[VisibleBorderCollapsed]", 0)
        until(lambda: self.desktop.pixel(*self.on_bar()) != BAR_COLOUR, "what lies behind the bar is seen")
        self.desktop.move_to(*self.on_bar())
        self.await_out()


class SlidingAsItIsTold(Sliding):
    """To those who see neither the workspace nor its bar."""

    desktop_options = {"accessible": True}

    def setUp(self):
        if not told.Atspi or not os.path.exists(ACCESSIBILITY_BUS):
            self.skipTest("the library of assistive technology is missing")
        super().setUp()
        for name in ("DBUS_SESSION_BUS_ADDRESS", "DISPLAY"):
            os.environ[name] = self.desktop.env[name]
        os.environ.pop("AT_SPI_BUS_ADDRESS", None)
        told.Atspi.init()

    def find(self, name):
        while told.GLib.MainContext.default().iteration(False):
            pass
        for program in told.Element(told.Atspi.get_desktop(0)).children():
            try:
                if program.node.get_process_id() == self.app.process.pid:
                    return next((element for element in program.walk() if element.name == name), None)
            except told.GLib.Error:
                pass  # it changed under our eyes
        return None

    def test_the_bar_can_be_found_and_asked_to_bring_the_workspace_out(self):
        self.open_docked("left")
        bar = until(lambda: self.find("Quillmere Bar"), "the bar is in the tree")
        until(lambda: bar.extents() == self.desktop.geometry(self.bar),
              "it is told where it lies: %s" % (bar.extents(),))
        self.assertEqual(bar.actions(), ["Bring Out"])
        bar.do("Bring Out")
        self.await_out()

    def test_the_buttons_of_the_strip_can_be_found_and_pressed(self):
        links = files.link("One", "/bin/true", x=600, y=700) + files.link("Two", "/bin/true", x=600, y=1600)
        files.put(self.folder, settings_at((3000, 3000)) + links)
        self.open()
        self.desktop.drag(self.at(200, 500), self.at(3000, 2700))  # a rubber band around both
        strip = self.app.wait_window(STRIP)
        strip_told = until(lambda: self.find("Selected Shortcuts"), "the strip is in the tree")
        buttons = strip_told.children()
        self.assertEqual(len(buttons), 9)
        for button in buttons:
            self.assertTrue(button.name, "no button is without a name")
            self.assertTrue(told.inside(button.extents(), self.desktop.geometry(strip)))
        larger = next(button for button in buttons if button.name == "Larger")
        larger.do(larger.actions()[0])
        self.app.settle()
        self.assertEqual(self.app.terminate(), 0)
        sizes = files.read(self.folder, "Quillmere.ini").split("[Size]\r\n")[1:]
        self.assertTrue(sizes and all(float(size.split("\r\n")[0]) > 10 for size in sizes), "both are larger")


del Sliding
