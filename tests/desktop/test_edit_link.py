"""The properties of shortcuts on the real program: opened by a key, filled in by keys alone, and read back from what
was saved; and the properties of a file, by the file manager or by a box of ours."""

import os
import subprocess
import unittest

from harness import until
import test_menus as menus
import workspace_files as files

STAND_IN = os.path.join(os.path.dirname(os.path.abspath(__file__)), "file_manager_stand_in.py")
SYSTEM_PYTHON = "/usr/bin/python3"  # the one that the bindings of the bus are installed for
ROW, FIRST_ROW = 500, 290 + 300 + 120  # twips: the middle of the first shortcut of the container, and the next


def has_bindings():
    return subprocess.run([SYSTEM_PYTHON, "-c", "from gi.repository import Gio"], check=False,
                          stderr=subprocess.DEVNULL).returncode == 0


class EditLinkCase(menus.MenuCase):
    """The person's words; no tests of its own."""

    def open_links(self, *rows, extra="", **kept):
        self.keep_two(extra=files.lines("[ConfirmDelete]", 0) + extra, **kept)
        self.open()
        self.pick(*rows)

    def pick(self, *rows):
        """By Ctrl and a click on each."""
        self.desktop._xdotool("keydown", "ctrl")
        for row in rows:
            self.desktop.click(*self.at(menus.ALPHA[0] + 600, menus.ALPHA[1] + FIRST_ROW + ROW * row))
        self.desktop._xdotool("keyup", "ctrl")

    def dialog_by(self, key, title="Shortcut Properties"):
        self.desktop.key(key)
        self.dialog = self.await_dialog(title)
        until(lambda: self.desktop.has_keyboard(self.dialog), "the dialog has the keyboard")
        self.app.settle()

    def fill(self, letter, text):
        self.desktop.key("alt+" + letter, "ctrl+a")
        self.desktop.type(text)

    def await_links(self, tag, *values):
        until(lambda: self.links(tag) == list(values), "%s is %s: %s" % (tag, values, self.links(tag)))


class EditLink(EditLinkCase):
    def test_a_shortcut_is_edited_by_keys_and_saved(self):
        self.open_links(0)
        self.dialog_by("F2")
        self.desktop.type("Tool")  # the name is selected
        self.fill("g", "/opt/tool")
        self.fill("m", "--say 'a b' %f")
        self.fill("e", "what it is")
        self.fill("f", "14")
        self.desktop.key("alt+l", "5", "alt+c", "Return")
        self.await_windows(1, "the dialog is gone")
        self.await_links("[LinkLabel]", "Tool", "apple", "Mango")
        self.await_links("[LinkPath]", "/opt/tool", "/usr/share/apple", "/usr/share/Mango")
        self.await_links("[LinkParam]", "--say 'a b' %f", "", "")
        self.await_links("[Tip]", "what it is", "", "")
        self.await_links("[Size]", "14", "10", "10")
        self.await_links("[Confirm]", "1", "0", "0")
        self.await_links("[SpeedLaunch]", "5", "0", "0")

    def test_escape_writes_nothing(self):
        self.open_links(0)
        self.dialog_by("F2")
        self.desktop.type("Tool")
        self.desktop.key("alt+l", "5", "Escape")
        self.await_windows(1, "the dialog is gone")
        self.desktop.key("F8")
        until(lambda: self.container("Alpha", "con"), "it is saved")
        self.assertNotIn("Tool", self.container("Alpha", "con"))

    def test_a_command_takes_the_place_of_the_target(self):
        self.open_links(0)
        self.dialog_by("F2")
        self.desktop.key("alt+d")
        self.app.settle()
        self.fill("m", "ls | sort")  # the field is the command now, below the same letter
        self.desktop.key("Return")
        self.await_windows(1, "the dialog is gone")
        self.await_links("[Command]", "1", "0", "0")
        self.await_links("[LinkPath]", "", "/usr/share/apple", "/usr/share/Mango")
        self.await_links("[LinkParam]", "ls | sort", "", "")

    def test_several_keep_what_was_left_alone(self):
        self.open_links(0, 1)
        self.dialog_by("F2")
        self.fill("m", "-v")
        self.desktop.key("alt+a", "Return")
        self.await_windows(1, "the dialog is gone")
        self.await_links("[LinkParam]", "-v", "-v", "")
        self.await_links("[Admin]", "1", "1", "0")
        self.await_links("[LinkLabel]", "Zebra", "apple", "Mango")
        self.await_links("[LinkPath]", "/usr/share/Zebra", "/usr/share/apple", "/usr/share/Mango")

    def test_a_clone_is_made(self):
        self.open_links(0)
        self.dialog_by("ctrl+shift+d", "Clone Shortcut")
        self.desktop.type("Again")
        self.desktop.key("Return")
        self.await_windows(1, "the dialog is gone")
        self.await_links("[LinkLabel]", "Zebra", "apple", "Mango", "Again")

    def test_save_and_open_starts_what_was_mended(self):
        told = os.path.join(self.desktop.home, "told")
        script = os.path.join(self.desktop.home, "tell.sh")
        files.write(script, "#!/bin/sh\necho \"$1\" > '%s'\n" % told)
        os.chmod(script, 0o755)
        self.open_links(0)
        self.dialog_by("F2")
        self.fill("g", script)
        self.fill("m", "'one word'")
        self.desktop.key("alt+s")
        until(lambda: os.path.exists(told) and files.read(told) == "one word\n", "it was started")
        self.await_links("[LinkPath]", script, "/usr/share/apple", "/usr/share/Mango")

    def test_a_failed_start_opens_the_dialog_with_the_error(self):
        self.open_links(0)
        self.desktop.key("alt+r")
        self.dialog = until(lambda: next((window for window in self.app.all_windows()
                                          if self.desktop.title(window).startswith("Error: ")), None),
                            "the dialog tells the error")
        until(lambda: self.desktop.has_keyboard(self.dialog), "the dialog has the keyboard")
        self.desktop.key("ctrl+a")  # the target has the keyboard
        self.desktop.type("/usr/share")
        self.desktop.key("Return")
        self.await_windows(1, "the dialog is gone")
        self.await_links("[LinkPath]", "/usr/share", "/usr/share/apple", "/usr/share/Mango")

    def test_without_a_file_manager_a_plain_box_tells_of_the_file(self):
        self.open_links(0)
        self.dialog_by("F2")
        self.fill("g", "/etc/hostname")
        self.desktop.key("alt+w")
        box = self.await_dialog("File Properties")
        until(lambda: self.desktop.has_keyboard(box), "the box has the keyboard")
        self.desktop.key("Escape")
        self.await_windows(2, "the box is gone, the dialog stays")
        self.desktop.key("Escape")
        self.await_windows(1, "the dialog is gone")


@unittest.skipUnless(has_bindings(), "needs python3-gi to answer for the file manager")
class FileManager(EditLinkCase):
    desktop_options = {"bus": True}

    def test_the_file_manager_is_asked_for_the_properties_of_the_file(self):
        stand_in = subprocess.Popen([SYSTEM_PYTHON, STAND_IN], env=self.desktop.env, stdin=subprocess.DEVNULL,
                                    stdout=subprocess.PIPE, text=True)
        self.addCleanup(stand_in.stdout.close)
        self.addCleanup(stand_in.wait)
        self.addCleanup(stand_in.kill)
        self.assertEqual(stand_in.stdout.readline(), "ready\n")
        self.open_links(0)
        self.dialog_by("F2")
        self.fill("g", "/etc/hostname")
        self.desktop.key("alt+w")
        self.assertEqual(stand_in.stdout.readline(), "ShowItemProperties file:///etc/hostname\n")
        self.app.settle()
        self.await_windows(2, "no box of ours shows")


if __name__ == "__main__":
    unittest.main()
