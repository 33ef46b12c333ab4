"""The Keyboard Launcher as a person uses it: the real program under a window manager, by keys and mouse. What Enter
does is read from what was started, what the box shows from the tree that assistive technology is told."""

import os
import shutil
import subprocess
import unittest

from harness import ACCESSIBILITY_BUS, DesktopTest, until
import workspace_files as files

try:
    from test_accessibility import Atspi, Element, GLib
except ImportError:
    Atspi = None

DESCRIPTION = "object:property-change:accessible-description"
NAME = "object:property-change:accessible-name"
WORDS = ("harbour", "lighthouse", "reed bank", "mill 42", "grove")


class Launcher(DesktopTest):
    desktop_options = {"accessible": True}

    def setUp(self):
        super().setUp()
        if not Atspi or not os.path.exists(ACCESSIBILITY_BUS):
            self.skipTest("the library of assistive technology is missing")
        self.folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere")
        for name in ("DBUS_SESSION_BUS_ADDRESS", "DISPLAY"):
            os.environ[name] = self.desktop.env[name]
        os.environ.pop("AT_SPI_BUS_ADDRESS", None)
        Atspi.init()
        self.heard = []
        self.listener = Atspi.EventListener.new(self._hear)

    def _hear(self, event):
        try:
            self.heard.append((event.type, event.source.get_role_name(), event.source.get_name(),
                               event.source.get_description()))
        except GLib.Error:
            pass  # it is gone already

    # The person's words

    def program(self, name):
        """A program that leaves a mark; its path and the mark's."""
        path, mark = os.path.join(self.desktop.home, name), os.path.join(self.desktop.home, name + ".started")
        files.write(path, "#!/bin/sh\nprintf '%%s|' \"$@\" > '%s.new'\nmv '%s.new' '%s'\n" % (mark, mark, mark))
        os.chmod(path, 0o755)
        return path, mark

    def open(self, *captions, scale=1, extra="", **settings):
        """A workspace with a shortcut for each caption; returns what each leaves when it is started."""
        marks, links = [], ""
        for number, caption in enumerate(captions):
            path, mark = self.program("program%d" % number)
            links += files.link(caption, path, y=300 + 400 * number)
            marks.append(mark)
        container = [files.container("Work", x=300, y=300, w=3000, h=3000, links=links)]
        files.put(self.folder, files.settings(extra=files.lines("[KBLauncherTips]", 0) + extra, **settings), container)
        self.app = self.desktop.start("quillmere", ["--nosplash"], env={"QT_SCALE_FACTOR": str(scale)})
        self.window = self.app.wait_window(title="Quillmere")
        self.desktop.request_focus(self.window)
        until(lambda: self.desktop.has_keyboard(self.window), "the workspace has the keyboard")
        self.root = until(self._find_program, "the program is in the tree")
        return marks

    def _find_program(self):
        while GLib.MainContext.default().iteration(False):
            pass
        for program in Element(Atspi.get_desktop(0)).children():
            try:
                if program.node.get_process_id() == self.app.process.pid:
                    return program
            except GLib.Error:
                pass
        return None

    def _seek(self, role, name=None):
        try:
            for element in self.root.walk():
                if element.role == role and (name is None or element.name == name):
                    return element
        except GLib.Error:
            pass  # it changed under our eyes
        return None

    def box(self):
        """The launcher's box, None while it is closed."""
        found = self._seek("grouping", "Keyboard Launcher") or self._seek("panel", "Keyboard Launcher")
        return found if found and "showing" in found.states() else None

    def field(self):
        box = self.box()
        for element in box.walk() if box else ():
            if element.role == "text":
                return element
        return None

    def wait_box(self):
        until(self.field, "the box is open")

    def wait_closed(self):
        until(lambda: self.box() is None, "the box is closed")

    def typed(self):
        field = self.field()
        return field.text() if field else None

    def wait_typed(self, text):
        until(lambda: self.typed() == text, "the field holds %r, not %r" % (text, self.typed()))

    def says(self):
        """What the box says that Enter would do."""
        field = self.field()
        return field.node.get_description() if field else ""

    def wait_says(self, *parts):
        until(lambda: all(part in self.says() for part in parts), "the box says %r, not %r" % (parts, self.says()))

    def wait_started(self, mark, parameters=""):
        until(lambda: os.path.exists(mark), "the program has run")
        self.assertEqual(files.read(mark).rstrip("|"), parameters)

    def burst(self, text, *keys):
        """All keys of a text at once, with no moment between them, and what follows."""
        after = ["key", "--delay", "0", *keys] if keys else []
        typing = ["xdotool", "type", "--delay", "0", "--args", "1", text]
        subprocess.run(typing + after, env=self.desktop.env, check=True)

    def set_layout(self, *names):
        """What the keys of the keyboard stand for."""
        subprocess.run(["setxkbmap", *names], env=self.desktop.env, check=True)
        self.desktop.settle()

    def press_part(self, name):
        until(lambda: self._seek("push button", name) or self._seek("button", name), name + " is in the box")
        element = self._seek("push button", name) or self._seek("button", name)
        self.desktop.click(*element.middle())

    def list_rows(self):
        found = self._seek("list")
        return found.children() if found and "showing" in found.states() else []


class Starting(Launcher):
    def test_three_letters_and_enter_start_a_program(self):
        started = self.open("Harbour map", "Lighthouse")
        self.desktop.type("lig")
        self.wait_says("Lighthouse")
        self.desktop.key("Return")
        self.wait_started(started[1])
        self.wait_closed()
        self.assertFalse(os.path.exists(started[0]))

    def test_go_starts_what_the_box_shows(self):
        started = self.open("Harbour map")
        self.desktop.type("har")
        self.wait_says("Harbour map")
        self.press_part("Go")
        self.wait_started(started[0])

    def test_tab_completes_the_name_for_parameters(self):
        started = self.open("Lighthouse")
        self.desktop.type("li")
        self.wait_says("Lighthouse")
        self.desktop.key("Tab")
        self.wait_typed("Lighthouse ")
        self.desktop.type("one 'two three'")
        self.desktop.key("Return")
        self.wait_started(started[0], "one|two three")

    def test_a_name_with_letters_beyond_the_first_plane_is_completed_to_its_end(self):
        self.open("\U0001F30A\U0001F30A Sea")
        self.desktop.type("sea")
        self.wait_says("Sea")
        self.desktop.key("Tab", "x")
        self.wait_typed("\U0001F30A\U0001F30A Sea x")
        self.desktop.key("Home", "Right", "y")
        self.wait_typed("\U0001F30Ay\U0001F30A Sea x")

    @unittest.skipUnless(shutil.which("setxkbmap"), "the layout can't be changed")
    def test_letters_of_other_layouts_open_and_find(self):
        started = self.open("Übersicht", "Ωκεανός")
        self.set_layout("de")
        self.desktop.key("udiaeresis")
        self.wait_typed("ü")
        self.wait_says("Übersicht")
        self.desktop.key("Escape", "Escape")
        self.wait_closed()
        self.set_layout("gr")
        self.desktop.type("ωκε")
        self.wait_says("Ωκεανός")
        self.desktop.key("Return")
        self.wait_started(started[1])

    def test_a_capital_typed_to_open_finds_as_a_small_letter(self):
        self.open("Lighthouse")
        self.desktop.type("Li")
        self.wait_says("Lighthouse")


class Typing(Launcher):
    def test_no_key_of_a_word_typed_at_once_is_lost_while_the_box_opens(self):
        self.open("Harbour map")
        for turn in range(20):
            word = WORDS[turn % len(WORDS)]
            self.burst(word)
            self.wait_typed(word)
            self.desktop.key("Escape", "Escape")
            self.wait_closed()

    def test_what_is_typed_and_entered_at_once_starts(self):
        started = self.open("Harbour map", "Lighthouse")
        self.burst("light", "Return")
        self.wait_started(started[1])
        self.assertFalse(os.path.exists(started[0]))

    def test_the_editing_keys_are_the_fields(self):
        self.open("Harbour map")
        self.desktop.type("harbor")
        self.desktop.key("BackSpace", "Home", "Delete")
        self.wait_typed("arbo")
        self.desktop.key("ctrl+a", "x")
        self.wait_typed("x")
        self.desktop.key("End", "y", "ctrl+a", "ctrl+x", "ctrl+v", "ctrl+v")
        self.wait_typed("xyxy")

    def test_esc_empties_the_field_and_then_closes_the_box(self):
        self.open("Harbour map")
        self.desktop.type("har")
        self.wait_typed("har")
        self.desktop.key("Escape")
        self.wait_typed("")
        self.desktop.key("Escape")
        self.wait_closed()
        self.desktop.type("m")
        self.wait_typed("m")

    @unittest.skipUnless(shutil.which("setxkbmap"), "the layout can't be changed")
    def test_a_composed_letter_goes_into_the_field(self):
        self.open("Café")
        self.set_layout("us", "intl")
        self.desktop.type("caf")
        self.desktop.key("dead_acute", "e")
        self.wait_typed("café")
        self.wait_says("Café")

    def test_the_cross_closes_and_the_workspace_has_the_keyboard_again(self):
        self.open("Harbour map")
        self.desktop.type("har")
        self.wait_box()
        self.press_part("Close")
        self.wait_closed()
        self.desktop.type("map")
        self.wait_typed("map")

    def test_a_press_on_the_card_leaves_the_keyboard_in_the_field(self):
        self.open("Harbour map")
        self.desktop.type("har")
        self.wait_box()
        x, y, width, _ = self.box().extents()
        self.desktop.click(x + width // 2, y + 5)
        self.desktop.type("b")
        self.wait_typed("harb")

    def test_a_press_beside_the_box_closes_it(self):
        self.open("Harbour map")
        self.desktop.type("har")
        self.wait_box()
        x, y, _, _ = self.box().extents()
        self.desktop.click(x - 20, y - 20)
        self.wait_closed()

    def test_the_box_stays_when_another_window_takes_the_keyboard(self):
        self.open("Harbour map")
        self.desktop.type("har")
        self.wait_box()
        other = self.desktop.start("xterm")
        self.desktop.request_focus(other.wait_window())
        until(lambda: not self.desktop.has_keyboard(self.window), "the other window has the keyboard")
        self.assertEqual(self.typed(), "har")
        self.desktop.request_focus(self.window)
        until(lambda: self.desktop.has_keyboard(self.window), "the workspace has the keyboard")
        self.desktop.type("b")
        self.wait_typed("harb")


class Lists(Launcher):
    CAPTIONS = ("Mill", "Map of the harbour", "Meadow", "Harbour", "Moor")

    def names(self):
        return [row.name for row in self.list_rows()]

    def test_the_arrow_opens_the_list_and_goes_through_it(self):
        started = self.open(*self.CAPTIONS)
        self.desktop.type("m")
        self.desktop.key("Down")
        until(lambda: len(self.names()) == 4, "the list shows what has the letter, not %s" % self.names())
        self.assertNotIn("Harbour", self.names())
        self.desktop.key("Down", "Down")
        self.wait_says(self.names()[1])
        self.wait_typed("Map of the harbour")
        self.desktop.key("Return")
        self.wait_started(started[1])

    def test_the_pointer_highlights_and_a_click_takes_a_row(self):
        self.open(*self.CAPTIONS)
        self.desktop.type("m")
        self.desktop.key("Down")
        rows = until(self.list_rows, "the list is open")
        x, y = rows[2].middle()
        self.desktop.move_to(x - 3, y)
        self.desktop.move_to(x, y)
        until(lambda: "selected" in self.list_rows()[2].states(), "the row under the pointer is highlighted")
        self.desktop.click(x, y)
        self.wait_typed("Meadow")
        self.desktop.type("s")
        self.wait_typed("Meadows")

    def test_folders_are_walked_with_the_arrows(self):
        os.makedirs(os.path.join(self.desktop.home, "walk", "inner", "most"))
        self.open("Harbour map")
        self.desktop.key("ctrl+j")
        self.wait_box()
        self.desktop.type("~/walk")
        self.desktop.key("Right")
        self.wait_says("Down arrow: List folders")
        self.desktop.key("Down")
        until(lambda: any("inner" in name for name in self.names()), "the folders below are listed: %s" % self.names())
        self.desktop.key("Escape", "Escape", "ctrl+j")
        self.wait_typed("")
        self.desktop.type("~/walk")
        self.wait_typed("~/walk")
        self.desktop.key("Left")
        self.wait_typed("~")

    def test_the_history_shows_what_was_typed_newest_first(self):
        started = self.open("Harbour map", extra=files.lines("[KeyboardHistory]", 1))
        for text in ("harbour", "map"):
            self.desktop.type(text)
            self.wait_says("Harbour map")
            self.desktop.key("Return")
            self.wait_closed()
            self.wait_started(started[0])
            os.remove(started[0])
        self.desktop.key("alt+h")
        until(lambda: self.names(), "the history is listed; the box says " + self.says())
        self.wait_says("History")
        written = files.read(self.folder, "KB_History.txt").split("\r\n")
        self.assertEqual(self.names(), [line for line in reversed(written) if line])
        self.desktop.click(*self.list_rows()[0].middle())
        self.wait_typed(written[-2])


class TwiceTheSize(Launcher):
    desktop_options = {"accessible": True, "geometry": "1920x1200"}

    def test_everything_works_in_its_place(self):
        started = self.open("Harbour map", scale=2, x=300, y=300, w=9000, h=8000)
        self.desktop.type("har")
        self.wait_says("Harbour map")
        x, y, width, height = self.box().extents()
        self.assertEqual((width, height), (840, 288))
        self.desktop.click(x + width - 60, y + 150)  # behind the text, in the field
        self.desktop.type("b")
        self.wait_typed("harb")
        self.press_part("Go")
        self.wait_started(started[0])


class Looks(Launcher):
    def test_a_narrow_workspace_holds_the_whole_box(self):
        self.open("Harbour map", x=300, y=300, w=4500, h=6000)
        self.desktop.type("har")
        self.wait_box()
        box, window = self.box().extents(), self.desktop.geometry(self.window)
        self.assertGreaterEqual(box[0], window[0])
        self.assertLessEqual(box[0] + box[2], window[0] + window[2])

    def test_what_is_typed_is_plain_text(self):
        self.open("Harbour map")
        self.desktop.key("ctrl+j")
        self.wait_box()
        self.desktop.type("<b>x</b>")
        self.wait_typed("<b>x</b>")
        self.assertTrue(self.app.running())


class Told(Launcher):
    def hears(self, kind, what, told):
        def heard():
            while GLib.MainContext.default().iteration(False):
                pass
            return [event for event in self.heard if event[0] == kind and told(*event[1:])]
        return until(heard, "%s is told; heard so far: %s" % (what, self.heard))

    def test_the_field_has_a_name_the_keyboard_and_its_text(self):
        self.open("Harbour map")
        self.desktop.type("har")
        self.wait_typed("har")
        field = self.field()
        self.assertEqual(field.name, "Keyboard Launcher")
        self.assertIn("focused", field.states())
        self.assertIn("editable", field.states())

    def test_what_enter_would_do_is_told_when_it_changes(self):
        self.open("Harbour map", "Lighthouse")
        self.desktop.type("h")
        self.wait_says("Harbour map")
        self.listener.register(DESCRIPTION)
        self.listener.register(NAME)
        self.desktop.key("BackSpace", "l")
        self.hears(DESCRIPTION, "the new match of the field", lambda role, name, says: "Lighthouse" in says)

    def test_the_rows_of_the_list_are_told(self):
        self.open("Mill", "Meadow")
        self.desktop.type("m")
        self.desktop.key("Down")
        rows = until(self.list_rows, "the list is open")
        self.assertEqual([row.name for row in rows], ["Mill", "Meadow"])
        self.assertEqual({row.role for row in rows}, {"list item"})

    def test_a_press_by_assistive_technology_closes_the_box(self):
        self.open("Harbour map")
        self.desktop.type("h")
        self.wait_box()
        close = until(lambda: self._seek("push button", "Close") or self._seek("button", "Close"), "the cross is told")
        close.do("Close")
        self.wait_closed()


if __name__ == "__main__":
    unittest.main()
