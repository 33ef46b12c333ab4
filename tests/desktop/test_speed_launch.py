"""Speed Launch on the real program: digits on the workspace, and the window of the nine slots by keyboard, by mouse and
as assistive technology knows it. What is started are small programs that leave a mark."""

import os
import unittest

from harness import DesktopTest, has_window_manager, until
import test_accessibility as assistive
import workspace_files as files

TITLE = "Quillmere Speed Launch"
RIM, ROW = 6, 34  # pixels: the rim of the window, and the height of a row


def slot(caption, path, digit, y):
    return files.link(caption, path, x=600, y=y).replace(files.lines("[SpeedLaunch]", 0),
                                                        files.lines("[SpeedLaunch]", digit))


class SpeedLaunchCase(DesktopTest):
    """The person's words; no tests of its own."""

    def setUp(self):
        super().setUp()
        self.folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere")
        self.programs = os.path.join(self.desktop.home, "programs")
        os.makedirs(self.programs)

    def program(self, name):
        """A program that leaves a mark of its name, and nothing else."""
        path = os.path.join(self.programs, name)
        files.write(path, "#!/bin/sh\necho started >> '%s.mark'\n" % path)
        os.chmod(path, 0o755)
        return path

    def started(self, name):
        path = os.path.join(self.programs, name + ".mark")
        return files.read(path).count("started") if os.path.exists(path) else 0

    def await_start(self, name):
        until(lambda: self.started(name), "%s is started" % name)

    def keep_slots(self, extra="", **settings):
        links = slot("Editor", self.program("editor"), 1, 900) + slot("Mail", self.program("mail"), 3, 1500)
        extra = files.lines("[Animate]", 0, "[ShowTips]", 0) + extra
        files.put(self.folder, files.settings(extra=extra, links=links, **settings))

    def open(self, **options):
        self.app = self.desktop.start("quillmere", ["--nosplash"], **options)
        self.window = self.app.wait_window(title="Quillmere")
        self.desktop.request_focus(self.window)
        until(lambda: self.desktop.has_keyboard(self.window), "the workspace has the keyboard")

    def call(self):
        """The window by its key, once it has the keyboard."""
        self.desktop.key("slash")
        self.slots = self.app.wait_window(title=TITLE)
        until(lambda: self.desktop.has_keyboard(self.slots), "the window has the keyboard")
        self.app.settle()

    def await_closed(self):
        self.app.wait_no_window(title=TITLE)
        self.app.settle()

    def row(self, digit, scale=1):
        left, top, width, _ = self.desktop.geometry(self.slots)
        return (left + width // 2, top + int(scale * (RIM + ROW * digit - ROW / 2)))


class SpeedLaunch(SpeedLaunchCase):
    def test_a_digit_on_the_workspace_starts_its_slot(self):
        self.keep_slots()
        self.open()
        self.desktop.key("3")
        self.await_start("mail")
        self.assertEqual(self.started("editor"), 0)

    def test_the_slash_opens_the_window_above_the_workspace_and_over_its_middle(self):
        self.keep_slots()
        self.open()
        self.call()
        self.assertTrue(self.desktop.is_above(self.slots, self.window))
        x, y = self.desktop.middle(self.slots)
        middle = self.desktop.middle(self.window)
        self.assertLessEqual(abs(x - middle[0]) + abs(y - middle[1]), 4)
        self.assertEqual(self.desktop.geometry(self.slots)[2:], (332, 318))

    def test_a_digit_in_the_window_starts_its_slot_and_closes_it(self):
        self.keep_slots()
        self.open()
        self.call()
        self.desktop.key("3")
        self.await_start("mail")
        self.await_closed()
        self.assertEqual(self.started("editor"), 0)

    def test_by_arrows_and_enter(self):
        self.keep_slots()
        self.open()
        self.call()
        self.desktop.key("Down", "Down", "Down", "Return")
        self.await_start("mail")
        self.await_closed()
        self.desktop.request_focus(self.window)  # what was started has no window that would have it
        self.call()
        self.desktop.key("Down", "Up", "Down", "Return")  # up from the first is the last, and down from there the first
        self.await_start("editor")

    def test_a_click_starts_its_row(self):
        self.keep_slots()
        self.open()
        self.call()
        self.desktop.click(*self.row(3))
        self.await_start("mail")
        self.await_closed()

    def test_the_row_under_the_pointer_is_seen(self):
        self.keep_slots()
        self.open()
        self.call()
        x, y = self.row(5)
        spot = (x + 140, y)
        plain = self.desktop.pixel(*spot)
        self.desktop.move_to(x, y)
        until(lambda: self.desktop.pixel(*spot) != plain, "the row is marked")
        self.desktop.key("Up")
        until(lambda: self.desktop.pixel(*spot) == plain, "the keys go on from there")

    def test_any_other_key_closes_it_and_the_workspace_has_the_keyboard(self):
        self.keep_slots()
        self.open()
        for key in ("Escape", "x", "slash", "0"):
            self.call()
            self.desktop.key(key)
            self.await_closed()
            until(lambda: self.desktop.has_keyboard(self.window), "the workspace has the keyboard again")
        self.assertEqual(self.started("editor") + self.started("mail"), 0)

    def test_a_click_elsewhere_closes_it(self):
        self.keep_slots()
        self.open()
        self.call()
        left, top, width, height = self.desktop.geometry(self.window)
        self.desktop.click(left + width - 40, top + height - 40)
        self.await_closed()
        self.assertIn(self.window, self.app.all_windows())

    def test_it_goes_when_it_is_told_to_close(self):
        self.keep_slots()
        self.open()
        self.call()
        x = self.desktop.x
        x._send(self.slots, 0, self.slots, "WM_PROTOCOLS", (x.atom("WM_DELETE_WINDOW"), 0))  # as a pager says it
        self.await_closed()
        self.assertIn(self.window, self.app.all_windows())

    def test_keys_of_one_burst_all_arrive(self):
        self.keep_slots()
        self.open()
        for _ in range(5):
            before = self.started("mail")
            self.desktop._xdotool("key", "--delay", "0", "--", "slash", "3")
            until(lambda: self.started("mail") == before + 1, "the digit was for the window that just opens")
            self.await_closed()
            self.desktop.request_focus(self.window)
            until(lambda: self.desktop.has_keyboard(self.window), "the workspace has the keyboard")

    def test_a_workspace_at_the_edge_goes_and_the_window_stays_with_the_keyboard(self):
        self.keep_slots(x=0)
        self.open()
        self.call()
        until(lambda: self.window not in self.app.windows(), "the workspace is away")
        self.app.settle()
        self.assertTrue(self.desktop.has_keyboard(self.slots))
        self.desktop.key("1")
        self.await_start("editor")
        self.await_closed()

    def test_a_workspace_that_slides_away_leaves_it_too(self):
        self.keep_slots(x=0, extra=files.lines("[Animate]", 1))
        self.open()
        self.call()
        until(lambda: self.window not in self.app.windows(), "the workspace is away")
        self.assertTrue(self.desktop.has_keyboard(self.slots))
        self.desktop.key("Escape")
        self.await_closed()

    def test_without_on_top_it_comes_in_front_all_the_same(self):
        self.keep_slots(extra=files.lines("[OnTop]", 0))
        self.open()
        self.call()
        self.assertTrue(self.desktop.is_above(self.slots, self.window))
        self.desktop.key("3")
        self.await_start("mail")

    def test_at_twice_the_scale_it_is_twice_the_size_and_its_rows_are_hit(self):
        self.keep_slots(w=9000, h=6000, x=0, y=0)
        self.open(env={"QT_SCALE_FACTOR": "2"})
        self.call()
        self.assertEqual(self.desktop.geometry(self.slots)[2:], (664, 636))
        self.desktop.click(*self.row(3, scale=2))
        self.await_start("mail")


class OtherDesktops(SpeedLaunchCase):
    """What the window needs of a window manager: it lies above, has the keyboard and goes."""

    def check(self):
        self.keep_slots()
        self.open()
        self.call()
        until(lambda: self.desktop.is_above(self.slots, self.window), "it lies above the workspace")
        self.desktop.key("Escape")
        self.await_closed()
        until(lambda: self.desktop.has_keyboard(self.window), "the workspace has the keyboard again")
        self.call()
        self.desktop.key("3")
        self.await_start("mail")


@unittest.skipUnless(has_window_manager("xfwm4"), "xfwm4 is not installed")
class SpeedLaunchOnXfwm4(OtherDesktops):
    desktop_options = {"wm": "xfwm4"}

    def test_it_is_above_and_has_the_keyboard(self):
        self.check()


@unittest.skipUnless(has_window_manager("mutter"), "mutter is not installed")
class SpeedLaunchOnMutter(OtherDesktops):
    desktop_options = {"wm": "mutter"}

    def test_it_is_above_and_has_the_keyboard(self):
        self.check()


@unittest.skipUnless(has_window_manager("kwin"), "kwin is not installed")
class SpeedLaunchOnKwin(OtherDesktops):
    desktop_options = {"wm": "kwin"}

    def test_it_is_above_and_has_the_keyboard(self):
        self.check()


class SpokenSlots(assistive.Accessibility, SpeedLaunchCase):
    """What those hear who do not see it; the tests of the base are not of it."""

    def open_slots(self):
        self.keep_slots()
        SpeedLaunchCase.open(self)
        self.root = until(self._find_program, "the program is in the tree")
        self.call()

    def rows(self):
        frame = self.find("list item", "1 Editor")
        return [child for child in assistive.Element(frame.node.get_parent()).children() if child.role == "list item"]

    def test_nine_rows_have_their_number_and_their_name(self):
        self.open_slots()
        self.assertEqual([row.name for row in self.rows()],
                         ["1 Editor", "2 - empty -", "3 Mail"] + ["%d - empty -" % digit for digit in range(4, 10)])

    def test_the_selected_row_is_told(self):
        self.open_slots()
        self.rows()
        self.listen(assistive.FOCUSED)
        self.desktop.key("Down", "Down", "Down")
        self.hears("the row that is selected", lambda kind, on, name, role: name == "3 Mail" and on)
        self.has_state(self.find("list item", "3 Mail"), "selected")

    def test_a_row_is_started_by_its_action(self):
        self.open_slots()
        self.find("list item", "3 Mail").do("Start")
        self.await_start("mail")
        self.await_closed()


def load_tests(loader, _standard, _pattern):
    """The classes of this file, without the tests that their bases bring."""
    suite = unittest.TestSuite()
    for case in (SpeedLaunch, SpeedLaunchOnXfwm4, SpeedLaunchOnMutter, SpeedLaunchOnKwin):
        suite.addTest(loader.loadTestsFromTestCase(case))
    for name in sorted(name for name in vars(SpokenSlots) if name.startswith("test_")):
        suite.addTest(SpokenSlots(name))
    return suite


if __name__ == "__main__":
    unittest.main()
