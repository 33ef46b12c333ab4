"""What the mouse and the keys do to containers as a whole: tiles open and close, containers fold, change places and
go, on the real program; the outcome is seen on the screen and read from what was saved."""

import glob
import os

from harness import DesktopTest, until
import workspace_files as files

EDGE_X, EDGE_Y = 20, 15  # twips: where picBack begins in the window
TITLE = 145  # twips: the middle of a container's title row
ONE, TWO = (2400, 1800), (7200, 1800)  # where the two tiles of most tests stand
EMPTY = (10800, 7200)  # nothing lies here


class Containers(DesktopTest):
    def setUp(self):
        super().setUp()
        self.folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere")

    # The person's words

    def open(self, *containers, **keys):
        """The settings are the program's own, but for the keys. No tip lies over what is looked at, and an open
        container has one colour, which nothing has that moves over the workspace."""
        keys = {"ShowTips": 0, "GradientContainers": 0, **keys}
        rows = [row for key, value in keys.items() for row in ("[%s]" % key, value)]
        files.put(self.folder, files.settings(extra=files.lines(*rows)), containers)
        self.app = self.desktop.start("quillmere", ["--nosplash"])
        self.window = self.app.wait_window(title="Quillmere")
        self.desktop.move_to(*self.at(*EMPTY))
        self.desktop.settle()

    def open_tiles(self, **keys):
        self.open(files.container("One", x=ONE[0], y=ONE[1], shrink=1),
                  files.container("Two", x=TWO[0], y=TWO[1], shrink=1), **keys)
        self.closed = {tile: self.desktop.pixel(*self.below(tile)) for tile in (ONE, TWO)}

    def at(self, x, y):
        """A place of the workspace in twips, as a pixel of the screen."""
        left, top, _, _ = self.desktop.geometry(self.window)
        return (left + int((EDGE_X + x) // 15), top + int((EDGE_Y + y) // 15))

    def corner(self, tile):
        return self.at(tile[0] + 100, tile[1] + 100)

    def icon(self, tile):
        return self.at(tile[0] + 350, tile[1] + 600)

    def below(self, tile):
        """Below the tile, inside the open container."""
        return self.at(tile[0] + 350, tile[1] + 2000)

    def title(self, place):
        return self.at(place[0] + 900, place[1] + TITLE)

    def point_at(self, place):
        self.desktop.move_to(*place)
        self.desktop.settle()

    def is_open(self, tile):
        return self.desktop.pixel(*self.below(tile)) != self.closed[tile]

    def await_open(self, tile):
        """And at rest: the effect is over when the container's own frame is what is seen."""
        inside = self.at(tile[0] + 350, tile[1] + 2600)
        until(lambda: self.is_open(tile) and self.desktop.pixel(*inside) == self.desktop.pixel(*self.below(tile)),
              "the tile is open")
        self.desktop.settle()

    def await_closed(self, tile):
        until(lambda: not self.is_open(tile), "it is a tile again")
        self.desktop.settle()

    def saved(self, name, ending):
        """The text of the container with this name among the saved files; files are in the order of stacking."""
        texts = [files.read(path) for path in glob.glob(os.path.join(self.folder, "Containers", "*" + ending))]
        return next((text for text in texts if files.value(text, "[Name]") == name), "")

    def await_saved(self, name, ending=".REC", **tags):
        wanted = {"[%s]" % tag: str(value) for tag, value in tags.items()}
        until(lambda: all(files.value(self.saved(name, ending), tag) == value for tag, value in wanted.items()),
              "%s is saved with %s: %s" % (name, wanted, self.saved(name, ending)))

    def save(self):
        self.desktop.key("F8")

    def select(self, *places):
        """By Ctrl and a click on each title."""
        self.desktop._xdotool("keydown", "ctrl")
        for place in places:
            self.desktop.click(*self.title(place))
        self.desktop._xdotool("keyup", "ctrl")

    def menu(self, place, key):
        before = len(self.app.all_windows())
        self.desktop.click(*place, button=3)
        until(lambda: len(self.app.all_windows()) > before, "the menu shows")
        self.app.settle()
        self.desktop.key(key)

    # Tiles

    def test_a_click_opens_a_tile_and_the_mouse_closes_it_by_leaving(self):
        self.open_tiles()
        self.desktop.click(*self.icon(ONE))
        self.await_open(ONE)
        self.save()
        self.await_saved("One", ".con", Shrink=0, W=3000, H=3000)
        self.point_at(self.below(ONE))
        self.assertTrue(self.is_open(ONE))
        self.point_at(self.at(*EMPTY))
        self.await_closed(ONE)
        self.save()
        self.await_saved("One", ".con", Shrink=1, X=ONE[0], Y=ONE[1])

    def test_the_mouse_in_a_corner_opens_a_tile_and_over_the_rest_of_it_does_not(self):
        self.open_tiles()
        self.point_at(self.icon(ONE))
        self.point_at(self.corner(TWO))
        self.await_open(TWO)
        self.assertFalse(self.is_open(ONE))
        self.point_at(self.at(*EMPTY))
        self.await_closed(TWO)
        # The same again: what has closed behind the mouse opens as before.
        self.point_at(self.corner(TWO))
        self.await_open(TWO)

    def test_a_mouse_that_passes_over_a_corner_opens_nothing(self):
        self.open_tiles()
        self.desktop.move_to(*self.corner(ONE))
        self.desktop.move_to(*self.icon(ONE))
        self.desktop.move_to(*self.at(*EMPTY))
        self.point_at(self.corner(TWO))
        self.await_open(TWO)
        self.assertFalse(self.is_open(ONE))

    def test_the_mouse_over_another_container_closes_what_is_open(self):
        self.open_tiles()
        self.desktop.click(*self.icon(ONE))
        self.await_open(ONE)
        self.point_at(self.icon(TWO))
        self.await_closed(ONE)

    def test_a_quick_second_tile_takes_the_place_of_the_first(self):
        self.open_tiles()
        self.desktop.move_to(*self.icon(ONE))
        for tile in (ONE, TWO):
            self.desktop.move_to(*self.icon(tile))
            self.desktop.press()
            self.desktop.settle()  # or the window manager, which sees the press first, takes it for a drag
            self.desktop.release()
        self.await_open(TWO)
        self.await_closed(ONE)
        self.save()
        self.await_saved("One", ".con", Shrink=1, X=ONE[0], Y=ONE[1])
        self.await_saved("Two", ".con", Shrink=0)

    def test_the_corner_of_an_open_container_makes_it_a_tile_that_does_not_open_under_the_mouse(self):
        self.open(files.container("One", x=ONE[0], y=ONE[1]))
        open_colour = self.desktop.pixel(*self.below(ONE))
        self.desktop.click(*self.corner(ONE))
        self.await_saved("One", Shrink=1)
        until(lambda: self.desktop.pixel(*self.below(ONE)) != open_colour, "it is a tile")
        self.closed = {ONE: self.desktop.pixel(*self.below(ONE))}
        self.point_at(self.at(ONE[0] + 150, ONE[1] + 130))  # still in the corner
        self.save()
        self.await_saved("One", ".con", Shrink=1)
        self.point_at(self.at(*EMPTY))
        self.point_at(self.corner(ONE))
        self.await_open(ONE)

    def test_a_double_click_on_an_empty_place_shrinks_it(self):
        self.open(files.container("One", x=ONE[0], y=ONE[1]))
        self.desktop.double_click(*self.below(ONE))
        self.await_saved("One", Shrink=1, X=ONE[0], Y=ONE[1], W=3000, H=3000)

    def test_kept_expanded_by_its_menu_it_stays_open(self):
        self.open_tiles()
        self.desktop.click(*self.icon(ONE))
        self.await_open(ONE)
        left = ONE[0] + 350 - 1500  # centred on its tile
        self.menu(self.title((left, ONE[1])), "k")
        self.await_saved("One", Shrink=0, X=left)
        self.point_at(self.at(*EMPTY))
        self.point_at(self.corner(TWO))
        self.await_open(TWO)
        self.assertTrue(self.is_open(ONE))
        self.desktop.double_click(*self.below(ONE))
        self.await_saved("One", Shrink=1)

    def test_an_end_in_the_middle_of_the_effect_saves_the_tile(self):
        self.open_tiles()
        self.desktop.move_to(*self.icon(ONE))
        self.desktop.press()
        self.desktop.release()
        self.app.terminate()
        self.await_saved("One", ".con", Shrink=1, X=ONE[0], Y=ONE[1])

    def test_an_opened_note_takes_the_keyboard_where_that_is_wanted(self):
        self.open(files.container("One", x=ONE[0], y=ONE[1], shrink=1, note="before ", note_on=1), GrabFocus=1)
        self.closed = {ONE: self.desktop.pixel(*self.below(ONE))}
        self.desktop.click(*self.icon(ONE))
        self.await_open(ONE)
        self.desktop.type("after")
        until(lambda: "after" in self.saved("One", ".REC"), "it is typed: " + self.saved("One", ".REC"))

    def test_a_note_that_is_typed_into_stays_open_when_the_mouse_drifts_off(self):
        self.open(files.container("One", x=ONE[0], y=ONE[1], shrink=1, note="before ", note_on=1), GrabFocus=1)
        self.closed = {ONE: self.desktop.pixel(*self.below(ONE))}
        self.desktop.click(*self.icon(ONE))
        self.await_open(ONE)
        self.desktop.type("still ")
        self.point_at(self.at(*EMPTY))
        self.desktop.type("here")
        until(lambda: "still here" in self.saved("One", ".REC"), "all is typed: " + self.saved("One", ".REC"))

    def test_a_shortcut_that_is_carried_over_a_tile_opens_it_and_is_dropped_inside(self):
        source = (6600, 1800)
        self.open(files.container("One", x=ONE[0], y=ONE[1], shrink=1),
                  files.container("Source", x=source[0], y=source[1], links=files.link("Letter", "/nowhere", x=400)))
        self.closed = {ONE: self.desktop.pixel(*self.below(ONE))}
        start, end = self.at(source[0] + 650, source[1] + 700), self.icon(ONE)
        self.desktop.move_to(*start)
        self.desktop.press()
        self.desktop.settle()
        for step in range(1, 9):
            self.desktop.move_to(*(a + (b - a) * step // 8 for a, b in zip(start, end)))
            self.desktop.settle()
        until(lambda: self.is_open(ONE), "the tile has opened under what is carried")
        self.desktop.settle()
        self.desktop.move_to(end[0] + 5, end[1] + 20)
        self.desktop.settle()
        self.desktop.release()
        until(lambda: "Letter" in self.saved("One", ".REC"), "it lies there: " + self.saved("One", ".REC"))
        self.assertNotIn("Letter", self.saved("Source", ".REC"))
        self.point_at(self.at(*EMPTY))
        self.await_closed(ONE)

    # Folding

    def test_a_double_click_on_the_title_folds_and_unfolds(self):
        self.open(files.container("One", x=ONE[0], y=ONE[1]))
        self.desktop.double_click(*self.title(ONE))
        self.await_saved("One", Folded=1)
        self.desktop.double_click(*self.title(ONE))
        self.await_saved("One", Folded=0)
        self.desktop.click(*self.at(*EMPTY))  # what was unfolded for the moment folds
        self.save()
        self.await_saved("One", ".con", Folded=1, H=3000)

    def test_unfolding_another_one_folds_the_first(self):
        self.open(files.container("One", x=ONE[0], y=ONE[1], folded=1),
                  files.container("Two", x=TWO[0], y=TWO[1], folded=1))
        self.desktop.double_click(*self.title(ONE))
        self.await_saved("One", Folded=0)
        self.desktop.double_click(*self.title(TWO))
        self.await_saved("Two", Folded=0)
        self.await_saved("One", Folded=1)

    # Several at once

    def test_two_selected_containers_change_places(self):
        self.open(files.container("One", x=ONE[0], y=ONE[1]), files.container("Two", x=TWO[0], y=TWO[1], h=2400))
        self.select(ONE, TWO)
        self.menu(self.title(TWO), "w")
        self.await_saved("One", X=TWO[0], Y=TWO[1], H=3000)
        self.await_saved("Two", X=ONE[0], Y=ONE[1], H=2400)
        self.desktop.key("ctrl+z")
        self.await_saved("One", X=ONE[0], Y=ONE[1])
        self.await_saved("Two", X=TWO[0], Y=TWO[1])

    def test_selected_containers_take_the_size_of_the_one_with_the_menu(self):
        self.open(files.container("One", x=ONE[0], y=ONE[1]),
                  files.container("Two", x=TWO[0], y=TWO[1], w=2400, h=2100))
        self.select(ONE, TWO)
        self.desktop.key("alt+m")
        self.answer_yes()
        self.await_saved("One", X=ONE[0], W=2400, H=2100)

    def answer_yes(self):
        until(lambda: len(self.app.all_windows()) > 1, "the question shows")
        self.app.settle()
        self.desktop.key("alt+y")
        until(lambda: len(self.app.all_windows()) == 1, "the question is gone")
        self.app.settle()

    def test_selected_containers_are_removed_together(self):
        third = (2400, 5400)
        self.open(files.container("One", x=ONE[0], y=ONE[1]), files.container("Two", x=TWO[0], y=TWO[1]),
                  files.container("Three", x=third[0], y=third[1], h=1500))
        self.select(ONE, third)
        self.menu(self.title(third), "r")
        self.answer_yes()
        self.await_saved("Two", X=TWO[0])
        until(lambda: not self.saved("One", ".REC") and not self.saved("Three", ".REC"), "the two are gone")

    # By the keyboard

    def test_space_flips_through_the_tiles(self):
        self.open_tiles(SpacebarFlip=0)
        self.desktop.click(*self.at(*EMPTY))
        self.desktop.key("space")
        self.await_open(ONE)
        self.desktop.key("space")
        self.await_open(TWO)
        self.await_closed(ONE)
        self.desktop.key("shift+space")
        self.await_open(ONE)
        self.await_closed(TWO)
        left, top, _, _ = self.desktop.geometry(self.window)
        self.assertLess(self.desktop.x.mouse()[0] - left, 8, "the mouse was put into the corner")
        self.desktop.key("Escape")
        self.await_closed(ONE)
