"""What a hand does to containers and shortcuts on the real program: picked by clicks and by the rubber band, carried
about alone and in groups, taken back and done again, and given up in the middle by Escape."""

import os
import subprocess
import unittest

from harness import DesktopTest, until
import workspace_files as files

EDGE_X, EDGE_Y, PIXEL = 20, 15, 15  # twips: where picBack begins in the window; a pixel


class Hands(DesktopTest):
    def setUp(self):
        super().setUp()
        self.folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere")

    # The person's words

    def open(self, *containers, links=""):
        files.put(self.folder, files.settings(w=15000, links=links), containers)
        self.app = self.desktop.start("quillmere", ["--nosplash"])
        self.window = self.app.wait_window(title="Quillmere")
        self.desktop.settle()

    def at(self, x, y):
        left, top, _, _ = self.desktop.geometry(self.window)
        return (left + int((EDGE_X + x) // PIXEL), top + int((EDGE_Y + y) // PIXEL))

    def title(self, x, y):
        return (x + 1050, y + 120)

    def title_start(self, x, y):
        """Far enough from there that a click here and a press there are no double-click."""
        return (x + 450, y + 120)

    def carry(self, start, by):
        self.desktop.drag(self.at(*start), self.at(start[0] + by[0], start[1] + by[1]))

    def hold(self, start, by):
        """Carried there and still in the hand."""
        self.desktop.move_to(*self.at(*start))
        self.desktop.press()
        self.desktop.settle()
        for step in range(1, 5):
            self.desktop.move_to(*self.at(start[0] + by[0] * step // 4, start[1] + by[1] * step // 4))
            self.desktop.settle()

    def ctrl_click(self, x, y):
        self.keys("keydown", "ctrl")
        self.desktop.click(*self.at(x, y))
        self.keys("keyup", "ctrl")

    def keys(self, *words):
        subprocess.run(["xdotool", *words], env=self.desktop.env, check=True)
        self.desktop.settle()

    # What is seen of it

    def saved(self):
        """name -> text of the containers that were saved; the files stand in the order of stacking."""
        folder = os.path.join(self.folder, "Containers")
        texts = [text.decode("utf-8") for name, text in files.tree(folder).items() if name.endswith(".REC")]
        return {files.value(text, "[Name]"): text for text in texts}

    def places(self):
        return {name: tuple(int(files.value(text, tag)) for tag in ("[X]", "[Y]"))
                for name, text in self.saved().items() if files.value(text, "[Y]")}

    def await_places(self, **wanted):
        try:
            until(lambda: self.places() == wanted, "")
        except AssertionError:
            self.fail("wanted %s, saved %s" % (wanted, self.places()))

    def caption_ground(self, x, y):
        """The colour of a place inside the plate behind a selected caption."""
        return self.desktop.pixel(*self.at(x, y))

    # Carrying

    def test_a_container_is_carried_by_its_title(self):
        self.open(files.container("Work", x=900, y=900))
        self.carry(self.title(900, 900), (1500, 750))
        self.await_places(Work=(2400, 1650))

    def test_a_tile_is_carried_and_stays_a_tile(self):
        self.open(files.container("Work", x=900, y=900, shrink=1))
        self.carry((900 + 345, 900 + 480), (3000, 1500))
        self.await_places(Work=(3900, 2400))
        self.assertEqual(files.value(self.saved()["Work"], "[Shrink]"), "1")

    def test_what_was_selected_by_ctrl_clicks_moves_together(self):
        self.open(files.container("Work", x=900, y=900), files.container("Plans", x=4500, y=900),
                  files.container("Tile", x=9000, y=900, shrink=1))
        self.ctrl_click(*self.title_start(900, 900))
        self.ctrl_click(9000 + 345, 900 + 480)
        self.carry(self.title(900, 900), (600, 3000))
        self.await_places(Work=(1500, 3900), Plans=(4500, 900), Tile=(9600, 3900))

    def test_escape_in_the_middle_puts_everything_back(self):
        self.open(files.container("Work", x=900, y=900), files.container("Plans", x=4500, y=900))
        self.ctrl_click(*self.title_start(900, 900))
        self.ctrl_click(*self.title_start(4500, 900))
        empty = self.at(9000, 4500)
        before = self.desktop.pixel(*empty)
        self.hold(self.title(4500, 900), (3900, 3000))
        until(lambda: self.desktop.pixel(*empty) != before, "the container is under the hand")
        self.desktop.key("Escape")
        until(lambda: self.desktop.pixel(*empty) == before, "it is back")
        self.desktop.release()
        self.desktop.settle()
        self.carry(self.title(900, 900), (0, 600))
        self.await_places(Work=(900, 1500), Plans=(4500, 1500))

    def test_one_that_is_carried_over_the_edge_is_kept_inside(self):
        self.open(files.container("Work", x=900, y=900))
        self.carry(self.title(900, 900), (-1500, 300))
        self.await_places(Work=(100, 1200))

    # The rubber band

    def test_what_the_band_touches_moves_together(self):
        self.open(files.container("Work", x=1800, y=900), files.container("Plans", x=5400, y=900),
                  files.container("Away", x=5400, y=4800))
        self.carry((1200, 4500), (4500, -2400))
        self.carry(self.title(1800, 900), (600, 450))
        self.await_places(Work=(2400, 1350), Plans=(6000, 1350), Away=(5400, 4800))

    def test_a_band_that_escape_ends_selects_nothing(self):
        self.open(files.container("Work", x=1800, y=900), files.container("Plans", x=5400, y=900))
        self.hold((1200, 4500), (4500, -2400))
        self.desktop.key("Escape")
        self.desktop.release()
        self.desktop.settle()
        self.carry(self.title(1800, 900), (600, 450))
        self.await_places(Work=(2400, 1350), Plans=(5400, 900))

    def test_a_click_beside_them_ends_the_selection(self):
        self.open(files.container("Work", x=1800, y=900), files.container("Plans", x=5400, y=900))
        self.carry((1200, 4500), (4500, -2400))
        self.desktop.click(*self.at(9000, 6000))
        self.carry(self.title(1800, 900), (600, 450))
        self.await_places(Work=(2400, 1350), Plans=(5400, 900))

    def test_shortcuts_in_the_band_are_selected(self):
        thing = files.link("Thing", "/usr/bin/env", x=1200, y=1200)
        self.open(files.container("Work", x=5400, y=900), links=thing)
        plate = (1200 + 15, 1200 + 60)
        plain = self.caption_ground(*plate)
        self.carry((600, 3000), (1500, -2100))
        until(lambda: self.caption_ground(*plate) != plain, "its caption stands on a plate")
        self.desktop.click(*self.at(9000, 6000))
        until(lambda: self.caption_ground(*plate) == plain, "the plate is gone")

    # Taking back

    def test_moves_are_taken_back_and_done_again_by_keys(self):
        self.open(files.container("Work", x=900, y=900), files.container("Plans", x=4500, y=900))
        self.carry(self.title(900, 900), (600, 3000))
        self.carry(self.title(4500, 900), (3000, 0))
        self.await_places(Work=(1500, 3900), Plans=(7500, 900))
        self.desktop.key("ctrl+z")
        self.await_places(Work=(1500, 3900), Plans=(4500, 900))
        self.desktop.key("ctrl+z")
        self.await_places(Work=(900, 900), Plans=(4500, 900))
        self.desktop.key("ctrl+y", "ctrl+y")
        self.await_places(Work=(1500, 3900), Plans=(7500, 900))

    def test_a_group_is_taken_back_in_one_step(self):
        self.open(files.container("Work", x=900, y=900), files.container("Plans", x=4500, y=900))
        self.ctrl_click(*self.title_start(900, 900))
        self.ctrl_click(*self.title_start(4500, 900))
        self.carry(self.title(4500, 900), (600, 3000))
        self.await_places(Work=(1500, 3900), Plans=(5100, 3900))
        self.desktop.key("ctrl+z")
        self.await_places(Work=(900, 900), Plans=(4500, 900))

    # By keys alone

    def test_a_container_is_selected_and_moved_by_keys(self):
        self.open(files.container("Work", x=900, y=900), files.container("Plans", x=4500, y=900))
        self.desktop.click(*self.at(*self.title(900, 900)))
        self.desktop.key("ctrl+Right", "ctrl+Down")
        self.await_places(Work=(1050, 1050), Plans=(4500, 900))


if __name__ == "__main__":
    unittest.main()
