"""Order and size on the real program: containers resized by their mark and by keys, shortcuts sorted, spaced and
enlarged, containers brought in line; by mouse and keys, and read back from what was saved."""

import os

from harness import DesktopTest, until
import workspace_files as files

EDGE_X, EDGE_Y, TITLE = 20, 15, 145  # twips: where picBack begins in the window; the middle of a title row
MARK_X, MARK_Y = 210, 225  # twips: the middle of the resize mark from the corner
RECOVERY = "Quillmere.REC"


class Arrange(DesktopTest):
    def setUp(self):
        super().setUp()
        self.folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere")

    # The person's words

    def open(self, containers=(), links="", env=None):
        extra = files.lines("[ShowTips]", 0)
        files.put(self.folder, files.settings(extra=extra, links=links), containers)
        self.app = self.desktop.start("quillmere", ["--nosplash"], env)
        self.window = self.app.wait_window(title="Quillmere")
        self.desktop.settle()

    def at(self, x, y):
        """A place of the workspace in twips, as a pixel of the screen."""
        left, top, _, _ = self.desktop.geometry(self.window)
        return (left + int((EDGE_X + x) // 15), top + int((EDGE_Y + y) // 15))

    def mark(self, right, bottom):
        return self.at(right - MARK_X, bottom - MARK_Y)

    def saved(self, name):
        path = os.path.join(self.folder, name)
        return files.read(path) if os.path.exists(path) else ""

    def await_size(self, name, width, height):
        def sized():
            text = self.saved(name)
            return (files.value(text, "[W]"), files.value(text, "[H]")) == (str(width), str(height))
        until(sized, "%s is %dx%d: %s" % (name, width, height, self.saved(name)))

    def links(self, name=RECOVERY):
        """(caption, x, y, size) of every shortcut that a file holds, from the top."""
        found = []
        for record in self.saved(name).split("[Link]\r\n")[1:]:
            value = lambda tag: files.value(record, tag)
            found.append((value("[LinkLabel]"), float(value("[LinkX]")), float(value("[LinkY]")), int(value("[Size]"))))
        return sorted(found, key=lambda link: link[2])

    def captions(self):
        return [link[0] for link in self.links()]

    def mixed_links(self):
        places = {"pear": (1500, 2000), "Apple": (4000, 5000), "Item 10": (3000, 1500), "item 9": (6000, 3000)}
        return "".join(files.link(name, "/usr/bin/true", x=x, y=y) for name, (x, y) in places.items())

    def place_of(self, name):
        text = self.saved(name)
        return (files.value(text, "[X]"), files.value(text, "[Y]"))

    def select_containers(self, *titles):
        """By a click on each title with Ctrl held."""
        self.desktop._xdotool("keydown", "ctrl")
        for x, y in titles:
            self.desktop.click(*self.at(x + 900, y + TITLE))
        self.desktop._xdotool("keyup", "ctrl")

    # Sizes

    def test_the_corner_follows_the_hand_that_holds_the_mark(self):
        self.open([files.container("Work")])
        x, y = self.mark(3900, 3900)
        self.desktop.drag((x, y), (x + 100, y + 60))
        self.await_size("Containers/0.REC", 4500, 3900)

    def test_right_and_middle_clicks_on_the_mark_take_the_automatic_steps(self):
        self.open([files.container("Work")])
        self.desktop.click(*self.mark(3900, 3900), button=3)
        self.await_size("Containers/0.REC", 6000, 6000)
        self.desktop.click(*self.mark(6900, 6900), button=2)
        self.await_size("Containers/0.REC", 9000, 9000)

    def test_a_container_of_3000_by_7000_goes_to_9000(self):
        self.open([files.container("Work", h=7000)])
        self.desktop.click(*self.mark(3900, 7900), button=3)
        self.await_size("Containers/0.REC", 9000, 9000)

    def test_escape_while_the_mark_is_held_puts_the_size_back(self):
        self.open([files.container("Work")])
        x, y = self.mark(3900, 3900)
        self.desktop.move_to(x, y)
        self.desktop.press()
        self.desktop.move_to(x + 40, y + 40)
        self.desktop.move_to(x + 80, y + 80)
        self.desktop.settle()
        self.desktop.key("Escape")
        self.desktop.release()
        self.desktop.settle()
        self.desktop.key("F8")
        until(lambda: self.saved("Containers/0.con").count("[START Note]"), "it is saved")
        self.await_size("Containers/0.con", 3000, 3000)

    def test_keys_resize_the_current_container(self):
        self.open([files.container("Work")])
        self.desktop.click(*self.at(900 + 900, 900 + TITLE))
        self.desktop.key("ctrl+shift+Right", "ctrl+shift+Down", "ctrl+shift+Down")
        until(lambda: self.saved("Containers/0.REC"), "it is saved")
        width, height = (float(files.value(self.saved("Containers/0.REC"), tag)) for tag in ("[W]", "[H]"))
        self.assertGreater(width, 3000)
        self.assertEqual(height - 3000, 2 * (width - 3000))

    # Shortcuts

    def test_all_shortcuts_sorted_up_and_down_and_taken_back(self):
        self.open(links=self.mixed_links())
        self.desktop.click(*self.at(9000, 7000))
        self.desktop.key("ctrl+a", "alt+a")
        until(lambda: self.captions() == ["Apple", "item 9", "Item 10", "pear"], "sorted: %s" % self.links())
        self.assertEqual({link[1] for link in self.links()}, {3000})
        self.assertEqual(self.links()[0][2], 1500)
        self.desktop.key("alt+d")
        until(lambda: self.captions() == ["pear", "Item 10", "item 9", "Apple"], "turned round: %s" % self.links())
        self.assertEqual(self.links()[0][2], 1500)
        self.desktop.key("ctrl+z", "ctrl+z")
        until(lambda: ("Apple", 4000, 5000, 10) in self.links(), "as before: %s" % self.links())

    def test_the_spacing_asked_for_lays_the_columns_again(self):
        self.open(links=files.link("upper", "/usr/bin/true", x=2000, y=2000) +
                  files.link("lower", "/usr/bin/true", x=2000, y=5000))
        self.desktop.click(*self.at(9000, 7000))
        self.desktop.key("alt+p")
        until(lambda: len(self.app.all_windows()) > 1, "the question is there")
        self.desktop.key("ctrl+a")
        self.desktop.type("20")
        self.desktop.key("Return")
        until(lambda: files.value(self.saved(RECOVERY), "[LineSpacing]") == "300", "the spacing is kept")
        upper, lower = self.links()
        self.assertEqual(upper[2], 2000)
        self.assertTrue(2000 + 240 + 300 <= lower[2] <= 2000 + 450 + 300, lower)

    def test_a_spacing_that_is_no_number_changes_nothing(self):
        self.open(links=files.link("one", "/usr/bin/true", x=2000, y=2000))
        self.desktop.key("alt+p")
        until(lambda: len(self.app.all_windows()) > 1, "the question is there")
        self.desktop.key("ctrl+a")
        self.desktop.type("wide")
        self.desktop.key("Return")
        until(lambda: len(self.app.all_windows()) == 1, "it is answered")
        self.desktop.key("F8")
        until(lambda: files.value(self.saved("Quillmere.ini"), "[LineSpacing]"), "the workspace is saved")
        self.assertEqual(files.value(self.saved("Quillmere.ini"), "[LineSpacing]"), "155")

    def test_selected_shortcuts_get_larger_and_smaller_letters(self):
        self.open(links=self.mixed_links())
        self.desktop.click(*self.at(9000, 7000))
        self.desktop.key("ctrl+a", "ctrl+plus")
        until(lambda: {link[3] for link in self.links()} == {12}, "larger: %s" % self.links())
        self.desktop.key("ctrl+minus", "ctrl+minus")
        until(lambda: {link[3] for link in self.links()} == {8}, "smaller: %s" % self.links())

    # Containers

    def three_containers(self):
        self.open([files.container("One", x=600, y=1200, w=2000, h=2000),
                   files.container("Two", x=3600, y=2400, w=2000, h=2000),
                   files.container("Three", x=9000, y=3600, w=2000, h=2000)])
        self.select_containers((600, 1200), (3600, 2400), (9000, 3600))

    def test_selected_containers_get_the_top_of_the_current_one(self):
        self.three_containers()
        self.desktop.key("alt+t")
        until(lambda: [self.place_of("Containers/%d.REC" % number)[1] for number in range(3)] == ["3600"] * 3,
              "in line")

    def test_selected_containers_stand_evenly(self):
        self.three_containers()
        self.desktop.key("alt+e")
        until(lambda: ("4800", "2400") in [self.place_of("Containers/%d.REC" % number) for number in range(3)],
              "spaced")

    def test_two_containers_cant_be_spaced_and_a_box_says_how_to_select(self):
        self.open([files.container("One", x=600, y=1200, w=2000, h=2000),
                   files.container("Two", x=3600, y=2400, w=2000, h=2000)])
        self.select_containers((600, 1200), (3600, 2400))
        self.desktop.key("alt+e")
        until(lambda: len(self.app.all_windows()) > 1, "a box says it")
        self.desktop.key("Escape")
        until(lambda: len(self.app.all_windows()) == 1, "the box goes at Escape")
