"""Files that nobody should have to have: the real program tells each one, keeps it, loads what stands behind it,
and destroys nothing."""

import os
import unittest

from harness import DesktopTest, until
import workspace_files as files

MIB = 1024 * 1024


def sparse(path, size):
    with open(path, "wb") as file:
        file.write(b"108\r\n[Container]\r\n-1\r\n")
        file.truncate(size)


def plain(content):
    def make(path):
        with open(path, "wb") as file:
            file.write(content)
    return make


DAMAGED = {
    "a file of 300 MB": lambda path: sparse(path, 300 * MIB),
    "an endless line": plain(b"108\r\n[Container]\r\n-1\r\n[Name]\r\n" + b"x" * (5 * MIB)),
    "binary garbage": plain(bytes(range(256)) * 64),
    "an empty file": plain(b""),
    "a bad number": plain(b"108\r\n[Container]\r\n-1\r\n[X]\r\ntwelve\r\n"),
}


class BadInput(DesktopTest):
    def setUp(self):
        super().setUp()
        self.folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere")

    def path(self, *names):
        return os.path.join(self.folder, *names)

    def workspace(self, app):
        return next((w for w in app.all_windows() if self.desktop.geometry(w)[2:] == (800, 550)), None)

    def go_on(self, app):
        until(lambda: [w for w in app.all_windows() if w != self.workspace(app)], "a box tells it; " + app.stderr)
        app.settle()
        self.desktop.key("Return")
        until(lambda: self.workspace(app) and len(app.all_windows()) == 1, "the workspace is up without the box")

    def test_every_kind_of_damage_is_told_kept_and_passed_over(self):
        for kind, make in DAMAGED.items():
            with self.subTest(kind=kind):
                files.put(self.folder, files.settings(), [files.container("First"), "", files.container("Last", x=4500)])
                make(self.path("Containers", "1.con"))
                size = os.path.getsize(self.path("Containers", "1.con"))
                app = self.desktop.start("quillmere", ["--nosplash"])
                self.go_on(app)
                self.assertEqual(os.path.getsize(self.path("Containers", "1.con.damaged")), size)
                self.assertEqual(app.terminate(), 0)
                names = [files.value(files.read(self.path("Containers", "%d.con" % n)), "[Name]") for n in (0, 1)]
                self.assertEqual(names, ["First", "Last"])
                os.remove(self.path("Containers", "1.con.damaged"))

    def test_damaged_settings_keep_what_stands_before_the_damage(self):
        files.put(self.folder, files.settings(extra=files.lines("[LOCKED]", 1, "[Font Size]", "big")), [files.container("Work")])
        app = self.desktop.start("quillmere", ["--nosplash"])
        self.go_on(app)
        self.assertIn("big", files.read(self.path("Quillmere.ini.damaged")))
        self.assertEqual(app.terminate(), 0)
        self.assertEqual(files.value(files.read(self.path("Quillmere.ini")), "[LOCKED]"), "1")
        self.assertEqual(files.value(files.read(self.path("Containers", "0.con")), "[Name]"), "Work")

    def test_ending_at_the_question_changes_nothing_on_the_disk(self):
        files.put(self.folder, files.settings(), [files.container("Work", x="nonsense")])
        before = files.tree(self.folder)
        app = self.desktop.start("quillmere", ["--nosplash"])
        until(app.all_windows, "a box tells it")
        app.settle()
        self.desktop.key("Escape")
        self.assertEqual(app.wait_exit(), 0)
        self.assertEqual(files.tree(self.folder), before)

    def test_letters_of_another_platform_are_read(self):
        files.put(self.folder, files.settings(), [])
        plain("108\r\n[Container]\r\n-1\r\n[Name]\r\nCafé “Größe”\r\n[X]\r\n 900 \r\n[Y]\r\n900\r\n[NOTE ON]\r\nTrue\r\n"
              .encode("cp1252"))(self.path("Containers", "0.con"))
        app = self.desktop.start("quillmere", ["--nosplash"])
        app.wait_window(title="Quillmere")
        self.assertEqual(app.terminate(), 0)
        self.assertEqual(files.value(files.read(self.path("Containers", "0.con")), "[Name]"), "Café “Größe”")


if __name__ == "__main__":
    unittest.main()
