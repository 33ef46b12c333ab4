"""Paste on the real program: what other programs have copied, in the formats of file managers and as text; the
outcome is read from what was saved."""

import subprocess
import unittest

from harness import until
import test_menus as menus
import workspace_files as files

BOX = (5000, 2000)
COPIED_FILES = "x-special/gnome-copied-files"


class Clipboard(menus.MenuCase):
    def open_empty(self, container="", **settings):
        extra = files.lines("[ShowTips]", 0)
        boxes = [files.container("Box", x=BOX[0], y=BOX[1], w=4000, h=4000, **(container or {}))]
        files.put(self.folder, files.settings(extra=extra, **settings), boxes)
        self.open()
        self.desktop.click(*self.at(2000, 4000))

    def copy(self, text, target="UTF8_STRING"):
        """As another program does, which goes on offering it until somebody else copies."""
        command = ["xclip", "-quiet", "-selection", "clipboard", "-t", target]
        process = subprocess.Popen(command, env=self.desktop.env, stdin=subprocess.PIPE, stderr=subprocess.DEVNULL)
        process.stdin.write(text if isinstance(text, bytes) else text.encode())
        process.stdin.close()
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        until(lambda: target in self.offered(), "%s is offered" % target)

    def offered(self):
        command = ["xclip", "-o", "-selection", "clipboard", "-t", "TARGETS"]
        answer = subprocess.run(command, env=self.desktop.env, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        return answer.stdout.decode().split()

    def paths(self, name):
        rows = self.saved(name).split("\r\n")
        return [rows[place + 1] for place, row in enumerate(rows) if row == "[LinkPath]"]

    def await_paths(self, name, *paths):
        until(lambda: sorted(self.paths(name)) == sorted(paths), "%s holds %s: %s" % (name, paths, self.saved(name)))

    def test_copied_files_become_shortcuts_on_the_workspace(self):
        self.open_empty()
        self.copy("file:///etc/hosts\r\nfile:///tmp/a%20b.txt\r\n", "text/uri-list")
        self.desktop.key("ctrl+v")
        self.await_paths("Quillmere.REC", "/etc/hosts", "/tmp/a b.txt")

    def test_the_form_in_which_file_managers_copy_and_cut_is_read_and_nothing_is_moved(self):
        self.open_empty()
        self.copy("copy\nfile:///etc/hosts", COPIED_FILES)
        self.desktop.key("ctrl+v")
        self.await_paths("Quillmere.REC", "/etc/hosts")
        cut = self.desktop.home + "/cut"
        files.write(cut, "words")
        self.copy("cut\nfile://%s\nfile:///etc/passwd\n" % cut, COPIED_FILES)
        self.desktop.key("ctrl+v")
        self.await_paths("Quillmere.REC", "/etc/hosts", "/etc/passwd", cut)
        self.assertEqual(files.read(cut), "words")

    def test_into_the_container_by_its_own_key(self):
        self.open_empty()
        self.desktop.click(*self.at(BOX[0] + 900, BOX[1] + menus.TITLE))
        self.copy("copy\nfile:///etc/hosts", COPIED_FILES)
        self.desktop.key("ctrl+shift+v")
        until(lambda: "/etc/hosts" in self.saved("Containers/0.REC"), "it is in the container")
        self.assertEqual(self.paths("Quillmere.REC"), [])

    def test_a_name_whose_bytes_are_no_text_is_still_that_file(self):
        self.open_empty()
        self.copy("file:///tmp/%E4%80%FF.txt\r\n", "text/uri-list")
        self.desktop.key("ctrl+v")
        self.await_paths("Quillmere.REC", "file:///tmp/%E4%80%FF.txt")

    def test_a_copied_address_becomes_a_web_shortcut_as_text_and_as_an_address(self):
        self.open_empty()
        self.copy("https://a.example/x?y=1\n")
        self.desktop.key("ctrl+v")
        self.await_paths("Quillmere.REC", "https://a.example/x?y=1")
        self.copy("https://b.example/\r\n", "text/uri-list")
        self.desktop.key("ctrl+v")
        self.await_paths("Quillmere.REC", "https://a.example/x?y=1", "https://b.example/")
        title = "https://c.example/\nIts title".encode("utf-16-le")
        self.copy(title, "text/x-moz-url")
        self.desktop.key("ctrl+v")
        self.await_paths("Quillmere.REC", "https://a.example/x?y=1", "https://b.example/", "https://c.example/")

    def test_a_copied_address_stands_in_the_dialog_that_adds_one(self):
        self.open_empty()
        self.copy("https://www.a.example/x")
        self.desktop.key("ctrl+w")
        self.await_dialog("Add URL")
        self.desktop.key("Return")
        self.await_paths("Quillmere.REC", "https://www.a.example/x")
        self.assertIn("a.example/x", self.saved("Quillmere.REC"))

    def test_a_copied_text_becomes_a_note_of_all_its_letters(self):
        self.open_empty()
        text = "first\nsecond \u00e4\U0001f600\n" + "long " * 40000 + "end"
        self.copy(text)
        self.desktop.key("ctrl+v")
        note = lambda: self.container("Clipboard Text")
        until(lambda: "second \u00e4\U0001f600" in note(), "there is a note")
        self.assertEqual(note().count("long "), 40000)

    def test_markup_alone_is_nothing_to_paste(self):
        self.open_empty()
        self.copy("<a href='https://a.example/'>x</a>", "text/html")
        self.desktop.key("ctrl+v", "F8")
        until(lambda: self.saved("Quillmere.ini"), "it is saved")
        self.assertEqual(self.paths("Quillmere.ini") + self.paths("Quillmere.REC"), [])


if __name__ == "__main__":
    unittest.main()
