"""A real file manager beside the real program: files are dragged from the one to the other and back, and copied there
and pasted here; the outcome is read from what was saved and from the folders."""

import os
import shutil
import unittest

from harness import until
import test_menus as menus
import workspace_files as files

BOX = (5000, 4000)
WHITE = (255, 255, 255)
WINDOW = (780, 60)  # where the file manager's window stands
SETTINGS = """[config]
bm_open_method=0
confirm_del=0
[ui]
always_show_tabs=0
win_width=400
win_height=400
view_mode=icon
side_pane_mode=hidden;places
show_statusbar=0
"""


@unittest.skipUnless(shutil.which("pcmanfm"), "no file manager is installed")
class FileManager(menus.MenuCase):
    def setUp(self):
        super().setUp()
        self.stuff = os.path.join(self.desktop.home, "stuff")
        self.elsewhere = os.path.join(self.desktop.home, "elsewhere")
        for folder in (self.stuff, self.elsewhere):
            os.mkdir(folder)
        folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "pcmanfm", "default")
        os.makedirs(folder)
        files.write(os.path.join(folder, "pcmanfm.conf"), SETTINGS)

    def open_workspace(self, links=""):
        boxes = [files.container("Box", x=BOX[0], y=BOX[1], w=4000, h=4000)]
        files.put(self.folder, files.settings(x=300, y=300, w=10500, h=9000, links=links,
                                              extra=files.lines("[ShowTips]", 0)), boxes)
        self.open()

    def open_folder(self, *names):
        for name in names:
            files.write(os.path.join(self.stuff, name), "words")
        manager = self.desktop.start("pcmanfm", ["-n", self.stuff])
        self.manager = manager.wait_window(title="stuff")
        self.desktop._xdotool("windowmove", str(self.manager), *map(str, WINDOW))
        until(lambda: self.desktop.geometry(self.manager)[0] in range(WINDOW[0], WINDOW[0] + 40), "it has moved")

    def first_icon(self):
        """The first column of icons begins below the tools."""
        left, top, _, _ = self.desktop.geometry(self.manager)
        def seek():
            for y in range(top + 78, top + 150, 4):
                if all(tuple(self.desktop.pixel(left + 51, y + more)) != WHITE for more in (0, 8, 16)):
                    return (left + 51, y + 8)
            return None
        return until(seek, "the icon shows")

    def free_place(self):
        left, top, width, height = self.desktop.geometry(self.manager)
        return (left + width * 3 // 4, top + height * 3 // 4)

    def carry(self, start, end):
        self.desktop.move_to(*start)
        self.desktop.press()
        self.desktop.settle()
        for step in (12, 24, 36):
            self.desktop.move_to(start[0] + step, start[1] + step // 2)
            self.desktop.settle()
        # The file manager asks what it is, looks at the files, and takes them only at a move after that.
        for away in range(12, -1, -1):
            self.desktop.move_to(end[0] - away, end[1])
            self.desktop.settle()
        self.desktop.release()
        self.desktop.settle()

    def paths(self, name):
        rows = self.saved(name).split("\r\n")
        return [rows[place + 1] for place, row in enumerate(rows) if row == "[LinkPath]"]

    def await_paths(self, name, *paths):
        until(lambda: sorted(self.paths(name)) == sorted(paths), "%s holds %s: %s" % (name, paths, self.saved(name)))

    def test_a_file_dragged_here_becomes_a_shortcut_and_stays_where_it_is(self):
        letter = os.path.join(self.stuff, "letter.txt")
        self.open_workspace()
        self.open_folder("letter.txt")
        self.carry(self.first_icon(), self.at(2000, 2000))
        self.await_paths("Quillmere.REC", letter)
        self.carry(self.first_icon(), self.at(BOX[0] + 1500, BOX[1] + 2000))
        self.await_paths("Containers/0.REC", letter)
        self.assertEqual(files.read(letter), "words")

    def test_a_shortcut_dragged_there_is_a_copy_of_its_file(self):
        source = os.path.join(self.elsewhere, "a 100% \u00e4 #1.txt")
        files.write(source, "its own words")
        self.open_workspace(links=files.link("Thing", source, x=1000, y=1500))
        self.open_folder()
        self.carry(self.at(1150, 1620), self.free_place())
        copy = os.path.join(self.stuff, os.path.basename(source))
        until(lambda: os.path.exists(copy) and files.read(copy), "the copy is there: %s" % os.listdir(self.stuff))
        self.assertEqual(files.read(copy), "its own words")
        self.assertTrue(os.path.exists(source))
        self.desktop.click(*self.at(2000, 8000))
        self.desktop.key("F8")
        self.await_paths("Quillmere.ini", source)

    def test_what_is_copied_there_is_pasted_here(self):
        self.open_workspace()
        self.open_folder("letter.txt")
        self.desktop.click(*self.first_icon())
        self.desktop.key("ctrl+c")
        self.desktop.click(*self.at(BOX[0] + 900, BOX[1] + menus.TITLE))
        self.desktop.key("ctrl+shift+v")
        letter = os.path.join(self.stuff, "letter.txt")
        self.await_paths("Containers/0.REC", letter)
        self.desktop.click(*self.at(2000, 3000))
        self.desktop.key("ctrl+v")
        self.await_paths("Quillmere.REC", letter)

    def test_what_is_cut_there_stays_there_when_it_is_pasted_here(self):
        self.open_workspace()
        self.open_folder("letter.txt")
        self.desktop.click(*self.first_icon())
        self.desktop.key("ctrl+x")
        self.desktop.click(*self.at(2000, 3000))
        self.desktop.key("ctrl+v")
        letter = os.path.join(self.stuff, "letter.txt")
        self.await_paths("Quillmere.REC", letter)
        self.assertEqual(files.read(letter), "words")


if __name__ == "__main__":
    unittest.main()
