"""The properties of a container on the real program: by keyboard alone, with what they change seen on the workspace
behind the dialog, and read back from what was saved."""

import os
import struct
import unittest
import zlib

from harness import until
import test_menus as menus
import workspace_files as files

GREEN = (0, 0x80, 0)  # as pixels have it
ALPHA_BACK = (0, 0x07, 0x29)


def png(path, color, side=32):
    """A picture of one colour."""
    def part(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))
    rows = (b"\0" + bytes(color) * side) * side
    head = struct.pack(">IIBBBBB", side, side, 8, 2, 0, 0, 0)
    with open(path, "wb") as file:
        file.write(b"\x89PNG\r\n\x1a\n" + part(b"IHDR", head) + part(b"IDAT", zlib.compress(rows)) + part(b"IEND", b""))


class ConProperties(menus.MenuCase):
    def open_dialog(self, **kept):
        self.keep_two(extra=files.lines("[GradientContainers]", 0) + kept.pop("extra", ""), **kept)
        self.open()
        self.desktop.click(*self.title_of(menus.ALPHA))
        self.desktop.key("alt+Return")
        self.dialog = self.await_dialog("Container Properties")
        until(lambda: self.desktop.has_keyboard(self.dialog), "the dialog has the keyboard")
        self.ground = self.at(menus.ALPHA[0] + 200, menus.ALPHA[1] + 2800)

    def color_behind(self):
        return tuple(self.desktop.pixel(*self.ground))

    def await_color(self, color):
        until(lambda: self.color_behind() == color, "the container is %s: %s" % (color, self.color_behind()))

    def scheme(self, name, *rows):
        folder = os.path.join(self.folder, "Skin", "Colors")
        os.makedirs(folder, exist_ok=True)
        files.write(os.path.join(folder, name + ".qmc"), files.lines("[1.01]", *rows))

    def pick(self, letter, html):
        """Opens a colour button and types a colour."""
        self.desktop.key("alt+" + letter)
        self.await_windows(3, "the colour dialog shows")
        self.desktop.key("alt+h", "ctrl+a")
        self.desktop.type(html)
        self.desktop.key("Return")
        self.await_windows(2, "the colour dialog is gone")

    def test_the_name_is_changed_by_keys_and_saved(self):
        self.open_dialog()
        self.desktop.key("ctrl+a")
        self.desktop.type("Gamma")
        self.desktop.key("Return")
        self.await_container("Gamma", "[Name]", "Gamma")
        until(lambda: self.desktop.has_keyboard(self.window), "the workspace has the keyboard again")

    def test_an_empty_name_keeps_the_dialog(self):
        self.open_dialog()
        self.desktop.key("ctrl+a", "Delete", "Return")
        self.app.settle()
        self.assertIn(self.dialog, self.app.all_windows())
        self.desktop.type("Gamma")
        self.desktop.key("Return")
        self.await_container("Gamma", "[Name]", "Gamma")

    def test_escape_changes_nothing(self):
        self.open_dialog()
        self.desktop.key("ctrl+a")
        self.desktop.type("Gamma")
        self.desktop.key("Escape")
        self.await_windows(1, "the dialog is gone")
        self.desktop.key("F8")
        self.await_alpha("[Name]", "Alpha", "con")

    def test_a_picked_color_shows_behind_the_dialog_and_is_saved(self):
        self.open_dialog()
        self.await_color(ALPHA_BACK)
        self.pick("b", "#008000")
        self.await_color(GREEN)
        self.desktop.key("Return")
        self.await_alpha("[Backcolor]", 0x008000)

    def test_a_picked_color_goes_again_by_escape(self):
        self.open_dialog()
        self.pick("b", "#008000")
        self.await_color(GREEN)
        self.desktop.key("Escape")
        self.await_windows(1, "the dialog is gone")
        self.await_color(ALPHA_BACK)
        self.desktop.key("F8")
        self.await_alpha("[Backcolor]", 0x290700, "con")

    def test_a_scheme_is_chosen_from_the_list_by_keys(self):
        self.scheme("AAA Green", "[ContainerFor]", 0x008000, "[ContainerLabel]", 0xFFFFFF)
        self.open_dialog()
        self.desktop.key("alt+c", "Down")
        self.await_windows(3, "the list is open")
        self.desktop.key("Home", "Down", "Down", "Return")  # over the line between
        self.await_color(GREEN)
        self.desktop.key("Return")
        self.await_alpha("[Backcolor]", 0x008000)

    def test_colors_from_an_icon_that_was_just_selected(self):
        picture = os.path.join(self.desktop.home, "green")
        png(picture + ".png", GREEN)
        self.open_dialog()
        self.desktop.key("alt+s")
        self.await_windows(3, "the file dialog shows")
        self.desktop.type(picture + ".png")
        self.desktop.key("Return")
        self.await_windows(2, "the file dialog is gone")
        self.desktop.key("alt+c", "Down")
        self.await_windows(3, "the list is open")
        self.desktop.key("Home", "Down", "Return")
        self.await_color(GREEN)
        self.desktop.key("Return")
        self.await_alpha("[Icon]", picture + ".png")
        self.await_alpha("[Backcolor]", 0x008000)

    def test_escape_leaves_the_innermost_dialog_only(self):
        self.open_dialog()
        self.desktop.key("alt+b")
        self.await_windows(3, "the colour dialog shows")
        self.desktop.key("Escape")
        self.await_windows(2, "the colour dialog is gone")
        until(lambda: self.desktop.has_keyboard(self.dialog), "the properties have the keyboard again")
        self.desktop.key("alt+s")
        self.await_windows(3, "the file dialog shows")
        self.desktop.key("Escape")
        self.await_windows(2, "the file dialog is gone")
        self.desktop.key("Escape")
        self.await_windows(1, "the properties are gone")

    def test_the_other_fields_by_tab_and_space(self):
        self.open_dialog()
        self.desktop.key("Tab", "Tab", "Tab")  # the icon's button, the size, the spacing
        self.desktop.key("ctrl+a")
        self.desktop.type("20")
        self.desktop.key("Tab", "space", "Tab", "space", "Return")
        self.await_alpha("[LineSpacing]", 300)
        self.await_alpha("[Spacebar Flip]", 1)
        self.await_alpha("[HideToolbar]", 1)

    def test_several_take_the_color_and_keep_their_names(self):
        self.keep_two(extra=files.lines("[GradientContainers]", 0))
        self.open()
        self.select(menus.ALPHA, menus.BETA)
        self.desktop.key("alt+Return")
        self.await_dialog("2 Containers Selected")
        self.pick("b", "#008000")
        self.desktop.key("Return")
        self.await_alpha("[Backcolor]", 0x008000)
        self.await_beta("[Backcolor]", 0x008000)
        self.await_beta("[Name]", "Beta")

    def test_a_session_that_ends_over_dialogs_saves_the_former_colors(self):
        self.open_dialog()
        self.pick("b", "#008000")
        self.await_color(GREEN)
        self.desktop.key("alt+o")
        self.await_windows(3, "the colour dialog shows")
        self.assertEqual(self.app.terminate(), 0)
        self.assertEqual(files.value(self.container("Alpha", "con"), "[Backcolor]"), str(0x290700))

    def test_the_dialog_stays_above_a_workspace_that_is_clicked(self):
        self.open_dialog()
        self.desktop.click(*self.at(10500, 7200))
        until(lambda: self.desktop.is_above(self.dialog, self.window), "the dialog lies above")
        until(lambda: self.desktop.has_keyboard(self.dialog), "and has the keyboard")


if __name__ == "__main__":
    unittest.main()
