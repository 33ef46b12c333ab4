"""The workspace's native window on real window managers: it stands where it is put, takes the keyboard when it is
asked to and only then, keeps its dialogs above it, and is on top or an ordinary window as the user wishes."""

import os
import subprocess
import unittest

from harness import DesktopTest, build_folder, has_window_manager, until

PARKED = {
    "a stub at the left edge": (-395, 200, 400, 300),
    "wholly beyond the left edge": (-400, 200, 400, 300),
    "far beyond the left edge": (-900, 200, 400, 300),
    "a stub at the right edge": (1275, 200, 400, 300),
    "wholly beyond the right edge": (1280, 200, 400, 300),
    "a stub at the top edge": (300, -295, 400, 300),
    "wholly beyond the top edge": (300, -300, 400, 300),
    "a stub at the bottom edge": (300, 795, 400, 300),
    "wholly beyond the bottom edge": (300, 800, 400, 300),
}
THIN = {"left": (0, 167, 3, 166), "beyond the left": (-2, 167, 3, 166), "top": (217, -1, 166, 3),
        "right": (1278, 167, 3, 166), "bottom": (217, 798, 166, 3)}
OUT = (300, 200, 400, 300)
OTHER = (550, 300, 400, 300)
ON_OTHER_ONLY = (900, 550)  # a point where nothing covers the other window
ON_SPACE_ONLY = (320, 220)


class WindowKind:
    """The tests; a class for each window manager below says where."""

    def setUp(self):
        if not has_window_manager(self.desktop_options["wm"]):
            self.skipTest("not installed")
        super().setUp()

    # What a person does

    def open_other(self):
        """A window of another program that lies partly over the workspace's place."""
        program = self.desktop.start("window_probe", ["plain", "Other", *map(str, OTHER)])
        window = program.wait_window("^Other$")
        self.desktop.x.message(window, "_NET_ACTIVE_WINDOW", 2, 0, 0)
        until(lambda: self.desktop.active_window() == window, "the other window is active")
        return window

    def open_space(self, place=OUT):
        self.program = self.desktop.start("window_probe", ["workspace", "Space", *map(str, place)])
        self.space = self.program.wait_window("^Space$")
        return self.space

    def say(self, *lines):
        for line in lines:
            self.program.say(line)
            word = line.split()[0]
            self.said = getattr(self, "said", 0) + 1
            until(lambda: self.program.stdout.count("done ") >= self.said, "the probe has done " + word)
        self.desktop.settle()

    def place(self, rect):
        self.say("place %d %d %d %d" % rect)

    def expect_place(self, rect, what):
        until(lambda: self.desktop.geometry(self.space) == rect,
              "%s: wanted %s, stands at %s" % (what, rect, self.desktop.geometry(self.space)), patience=3)
        self.desktop.settle()
        self.assertEqual(self.desktop.geometry(self.space), rect, what)

    def expect_active(self, window, what):
        until(lambda: self.desktop.active_window() == window and self.desktop.has_keyboard(window), what)

    def expect_above(self, upper, lower, what):
        until(lambda: self.desktop.is_above(upper, lower), what)

    # Where it stands

    def test_stands_beyond_every_edge_to_the_pixel(self):
        self.open_space()
        for on_top in ("on", "off"):
            self.say("ontop " + on_top)
            for name, rect in PARKED.items():
                self.place(rect)
                self.expect_place(rect, name + ", on top " + on_top)
                self.place(OUT)
                self.expect_place(OUT, "out again from " + name + ", on top " + on_top)

    def test_slides_across_each_edge_without_being_held_back(self):
        self.open_space()
        for name, way in {"left": (-700, 0), "right": (980, 0), "top": (0, -500), "bottom": (0, 600)}.items():
            for step in range(0, 21):
                rect = (OUT[0] + way[0] * step // 20, OUT[1] + way[1] * step // 20, OUT[2], OUT[3])
                self.place(rect)
                self.expect_place(rect, "slide over the %s edge, step %d" % (name, step))

    def test_is_shown_where_it_is_parked_from_the_start(self):
        self.open_space(PARKED["a stub at the right edge"])
        self.expect_place(PARKED["a stub at the right edge"], "parked on start")

    def test_stands_where_it_was_after_it_was_hidden_and_shown(self):
        rect = PARKED["a stub at the top edge"]
        self.open_space(rect)
        self.say("hide")
        until(lambda: not self.desktop.x.is_viewable(self.space), "it is hidden")
        self.say("show")
        until(lambda: self.desktop.x.is_viewable(self.space), "it is shown again")
        self.expect_place(rect, "hidden and shown")

    def test_covers_the_place_on_the_screen_that_it_is_put_to(self):
        self.open_space(PARKED["a stub at the left edge"])
        until(lambda: self.desktop.pixel(4, 300) == (0, 90, 160), "the last column of the stub is seen")
        self.assertNotEqual(self.desktop.pixel(5, 300), (0, 90, 160), "the stub ends where it should")

    def test_stands_across_the_edge_between_two_monitors_and_beyond_the_outer_ones(self):
        self.desktop.set_monitors((0, 0, 640, 800), (640, 0, 640, 800))
        self.open_space()
        for on_top in ("on", "off"):
            self.say("ontop " + on_top)
            for rect in ((440, 200, 400, 300), (1275, 200, 400, 300), (300, -300, 400, 300), (-400, 200, 400, 300)):
                self.place(rect)
                self.expect_place(rect, "two monitors, on top " + on_top)

    # The keyboard

    def test_takes_no_keyboard_when_it_is_only_shown(self):
        other = self.open_other()
        self.open_space()
        self.expect_active(other, "the other window stays active when the workspace appears")
        self.say("hide", "show")
        self.expect_active(other, "the other window stays active when the workspace appears again")
        self.say("ontop off", "hide", "show")
        self.expect_active(other, "the same without on top")

    def test_takes_no_keyboard_when_it_moves_or_changes_its_layer(self):
        other = self.open_other()
        self.open_space()
        self.say("ontop off", "ontop on", "raise")
        self.place(PARKED["a stub at the left edge"])
        self.place(OUT)
        self.expect_active(other, "the other window stays active while the workspace moves")

    def test_takes_the_keyboard_when_the_program_asks(self):
        for on_top in ("on", "off"):
            with self.subTest(on_top=on_top):
                self.setUpAgain()
                self.open_other()
                space = self.open_space()
                self.say("ontop " + on_top, "focus")
                self.expect_active(space, "the workspace is active on request")
                self.desktop.type("q")
                until(lambda: "key q" in self.program.stdout, "keys arrive in the workspace")
                self.say("foreground")
                self.assertIn("foreground", self.program.stdout)

    def test_takes_the_keyboard_on_request_while_it_stands_beyond_the_edge(self):
        self.open_other()
        space = self.open_space(PARKED["wholly beyond the left edge"])
        self.say("focus")
        self.expect_active(space, "the parked workspace is active on request")

    def test_takes_the_keyboard_when_it_is_shown_and_asks_for_it(self):
        self.open_other()
        space = self.open_space()
        for on_top in ("on", "off"):
            self.say("hide", "ontop " + on_top, "call")
            self.expect_active(space, "shown with a request, it is active, on top " + on_top)

    def test_takes_the_keyboard_by_a_click(self):
        for on_top in ("on", "off"):
            with self.subTest(on_top=on_top):
                self.setUpAgain()
                self.open_other()
                space = self.open_space()
                self.say("ontop " + on_top)
                self.desktop.click(*ON_SPACE_ONLY)
                self.expect_active(space, "the workspace is active after a click")
                self.desktop.type("q")
                until(lambda: "key q" in self.program.stdout, "keys arrive in the workspace")

    def test_leaves_the_keyboard_to_another_window_that_is_clicked(self):
        other = self.open_other()
        space = self.open_space()
        self.say("focus")
        self.expect_active(space, "the workspace is active")
        self.desktop.click(*ON_OTHER_ONLY)
        self.expect_active(other, "the other window is active after a click")
        self.say("foreground")
        self.assertIn("background", self.program.stdout)

    # Above and below

    def test_lies_above_ordinary_windows_while_on_top(self):
        other = self.open_other()
        space = self.open_space()
        self.expect_above(space, other, "the workspace is above when it appears")
        self.desktop.click(*ON_OTHER_ONLY)
        self.expect_active(other, "the other window is active")
        self.expect_above(space, other, "the workspace is still above")

    def test_is_stacked_as_an_ordinary_window_when_not_on_top(self):
        other = self.open_other()
        space = self.open_space()
        self.say("focus", "ontop off")
        for _ in range(2):
            self.desktop.click(*ON_OTHER_ONLY)
            self.expect_above(other, space, "a click brings the other window above")
            self.desktop.click(*ON_SPACE_ONLY)
            self.expect_above(space, other, "a click brings the workspace above")
        self.desktop.click(*ON_OTHER_ONLY)
        self.say("focus")
        self.expect_above(space, other, "a request brings the workspace above")

    def test_changes_between_on_top_and_not_without_vanishing(self):
        other = self.open_other()
        space = self.open_space()
        for _ in range(2):
            self.say("focus", "ontop off")
            self.expect_active(space, "the workspace is active")
            self.desktop.click(*ON_OTHER_ONLY)
            self.expect_above(other, space, "not on top: the other window comes above")
            self.say("ontop on")
            self.expect_above(space, other, "on top: the workspace is above at once")
            self.assertTrue(self.desktop.x.is_viewable(space))
        self.expect_place(OUT, "after all changes")

    def test_is_an_ordinary_window_after_a_slide_when_not_on_top(self):
        other = self.open_other()
        space = self.open_space()
        self.say("ontop off")
        self.place(PARKED["a stub at the left edge"])
        self.say("focus")
        self.place(OUT)
        self.expect_above(space, other, "called out, it comes above")
        self.desktop.click(*ON_OTHER_ONLY)
        self.expect_above(other, space, "a click brings the other window above")

    def test_slides_out_above_the_others_when_it_was_raised_without_the_keyboard(self):
        other = self.open_other()
        space = self.open_space(PARKED["a stub at the left edge"])
        self.say("ontop off", "raise")
        for x in (-300, -100, 0, 300):
            self.place((x, 200, 400, 300))
        self.expect_above(space, other, "it comes out above")
        self.expect_active(other, "the keyboard stays")

    # Dialogs and menus

    def test_keeps_a_dialog_above_it_also_when_the_blocked_workspace_is_clicked(self):
        for on_top in ("on", "off"):
            with self.subTest(on_top=on_top):
                self.setUpAgain()
                space = self.open_space()
                self.say("ontop " + on_top, "focus", "dialog")
                dialog = self.program.wait_window("^dialog$")
                self.expect_above(dialog, space, "the dialog opens above")
                self.expect_active(dialog, "the dialog has the keyboard")
                self.desktop.click(*ON_SPACE_ONLY)
                self.expect_above(dialog, space, "the dialog stays above after a click on the workspace")
                self.expect_active(dialog, "the dialog keeps the keyboard")

    def test_dialog_follows_when_on_top_changes_under_it(self):
        space = self.open_space()
        self.say("focus", "ontop off", "dialog")
        dialog = self.program.wait_window("^dialog$")
        self.say("ontop on")
        self.expect_above(dialog, space, "the dialog is still above")
        until(lambda: "_NET_WM_STATE_ABOVE" in self.desktop.states(dialog), "the dialog is on top too")

    def test_menu_lies_above_and_takes_the_choice(self):
        space = self.open_space()
        self.say("focus")
        self.expect_active(space, "the workspace is active")
        self.say("menu")
        menu = self.program.wait_window("^menu$")
        self.expect_above(menu, space, "the menu is above")
        self.desktop.key("Down", "Return")
        until(lambda: "chosen" in self.program.stdout, "keys arrive in the menu")

    # The thin windows at the edge

    def open_edge(self, place):
        self.program = self.desktop.start("window_probe", ["edge", "Edge", *map(str, place)])
        self.space = self.program.wait_window("^Edge$")
        return self.space

    def test_a_thin_window_lies_at_every_edge_to_the_pixel(self):
        self.open_edge(THIN["left"])
        for _ in range(2):
            for edge, rect in THIN.items():
                self.place(rect)
                self.expect_place(rect, "thin, " + edge)
                self.say("hide")
                until(lambda: not self.desktop.x.is_viewable(self.space), "it is hidden")
                self.say("show")
                until(lambda: self.desktop.x.is_viewable(self.space), "it is shown again")
                self.expect_place(rect, "thin and shown again, " + edge)

    def test_a_thin_window_takes_no_keyboard_by_being_shown_or_pressed(self):
        other = self.open_other()
        edge = self.open_edge((200, 200, 200, 36))
        self.expect_active(other, "the other window stays active when it appears")
        self.desktop.click(300, 218)
        until(lambda: "press" in self.program.stdout, "the press arrives")
        self.say("hide", "show", "keepontop", "raise")
        self.expect_active(other, "the other window stays active")
        self.assertFalse(self.desktop.has_keyboard(edge))

    def test_a_thin_window_lies_above_others_and_has_no_taskbar_entry(self):
        other = self.open_other()
        edge = self.open_edge((600, 320, 100, 36))
        self.expect_above(edge, other, "it is above when it appears")
        self.desktop.click(*ON_OTHER_ONLY)
        self.expect_active(other, "the other window is active")
        self.expect_above(edge, other, "it is still above")
        self.assertLessEqual({"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"}, self.desktop.states(edge))

    # Grips, taskbar, identity

    def test_is_moved_and_sized_by_its_own_grips(self):
        for on_top in ("on", "off"):
            with self.subTest(on_top=on_top):
                self.setUpAgain()
                self.open_space()
                self.say("ontop " + on_top)
                self.desktop.drag((400, 300), (350, 330))
                self.expect_place((250, 230, 400, 300), "moved")
                self.desktop.drag((645, 525), (745, 605))
                self.expect_place((250, 230, 500, 380), "sized")
                self.desktop.drag((300, 300), (0, 300))
                self.expect_place((-50, 230, 500, 380), "moved over the edge")

    def test_has_no_taskbar_entry_unless_it_is_asked_for(self):
        space = self.open_space()
        skip = {"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"}
        until(lambda: skip <= self.desktop.states(space), "no entry")
        self.say("ontop off", "listed on")
        until(lambda: not skip & self.desktop.states(space), "an entry")
        self.say("hide")
        until(lambda: not self.desktop.x.is_viewable(space), "it is hidden")
        self.say("show")
        until(lambda: self.desktop.x.is_viewable(space), "it is shown again")
        self.assertFalse(skip & self.desktop.states(space))
        self.say("listed off")
        until(lambda: skip <= self.desktop.states(space), "no entry again")

    def test_tells_the_state_of_on_top(self):
        space = self.open_space()
        until(lambda: "_NET_WM_STATE_ABOVE" in self.desktop.states(space), "above")
        self.say("ontop off")
        until(lambda: "_NET_WM_STATE_ABOVE" not in self.desktop.states(space), "not above")

    def test_opacity_reaches_the_window(self):
        space = self.open_space()
        self.say("fade 50")
        until(lambda: 0x7F000000 <= self.opacity(space) <= 0x80FFFFFF, "half of the opacity")
        self.say("fade 100")
        until(lambda: self.opacity(space) in (0, 0xFFFFFFFF), "solid")

    def opacity(self, window):
        return self.desktop.x.number(window, "_NET_WM_WINDOW_OPACITY")

    def setUpAgain(self):
        """A fresh pair of programs on the same desktop."""
        for app in self.desktop.apps:
            app.close()
        self.desktop.apps.clear()
        self.said = 0
        self.desktop.settle()


class OnOpenbox(WindowKind, DesktopTest):
    desktop_options = {"wm": "openbox"}


class OnXfwm4(WindowKind, DesktopTest):
    desktop_options = {"wm": "xfwm4"}


class OnKwin(WindowKind, DesktopTest):
    desktop_options = {"wm": "kwin"}


class OnMutter(WindowKind, DesktopTest):
    desktop_options = {"wm": "mutter"}


class OnMetacity(WindowKind, DesktopTest):
    desktop_options = {"wm": "metacity"}


class OnIcewm(WindowKind, DesktopTest):
    """It keeps every dock above the ordinary windows, whatever is asked."""

    desktop_options = {"wm": "icewm"}

    def test_is_stacked_as_an_ordinary_window_when_not_on_top(self):
        self.skipTest("docks always lie above here")

    test_changes_between_on_top_and_not_without_vanishing = test_is_stacked_as_an_ordinary_window_when_not_on_top
    test_tells_the_state_of_on_top = test_is_stacked_as_an_ordinary_window_when_not_on_top
    test_is_an_ordinary_window_after_a_slide_when_not_on_top = test_is_stacked_as_an_ordinary_window_when_not_on_top


class BeforeAnyWindowManager(DesktopTest):
    """A session may start the window manager after the program."""

    desktop_options = {"wm": None}

    def test_is_made_known_to_a_window_manager_that_comes_later(self):
        program = self.desktop.start("window_probe", ["workspace", "Space", *map(str, OUT)])
        space = until(lambda: program.find_window("^Space$"), "the workspace")
        self.desktop.start_window_manager("openbox")
        until(lambda: "_NET_WM_STATE_ABOVE" in self.desktop.states(space), "it is on top")
        self.assertIn("_NET_WM_STATE_SKIP_TASKBAR", self.desktop.states(space))

    def test_is_not_lost_when_it_starts_together_with_the_window_manager(self):
        for _ in range(4):
            manager = self.desktop.begin_window_manager("openbox")
            program = self.desktop.start("window_probe", ["workspace", "Space", *map(str, OUT)])
            space = until(lambda: program.find_window("^Space$"), "the workspace is on the screen")
            until(lambda: self.desktop.geometry(space) == OUT, "it stands where it was put")
            program.close()
            manager.kill()
            manager.wait()


class WithoutServer(unittest.TestCase):
    def test_every_request_is_harmless_without_an_x_server(self):
        requests = ["place -395 200 400 300", "ontop off", "ontop on", "listed on", "focus", "raise", "fade 50",
                    "dialog", "menu", "foreground", "hide", "call"]
        probe = os.path.join(build_folder(), "bin", "window_probe")
        done = subprocess.run([probe, "workspace", "Space", "0", "0", "400", "300"], text=True, timeout=60,
                              env={**os.environ, "QT_QPA_PLATFORM": "offscreen"}, capture_output=True,
                              input="".join(line + "\n" for line in requests))
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(done.stdout.count("done "), len(requests))


if __name__ == "__main__":
    unittest.main()
