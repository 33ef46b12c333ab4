"""Drag and drop on the real program: shortcuts carried by the mouse between the workspace and its containers, out to
another program and in from it; the outcome is read from what it saved."""

import os
import unittest
from urllib.parse import quote

from harness import DesktopTest, until
import workspace_files as files

TITLE_HEIGHT, EDGE_X, EDGE_Y = 290, 20, 15  # twips: a container's title row; where picBack begins in the window


class Drags(DesktopTest):
    def setUp(self):
        super().setUp()
        self.folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere")

    # The person's words

    def keep(self, containers=(), **settings):
        settings = {"x": 300, "y": 300, "w": 10500, "h": 9000, **settings}
        files.put(self.folder, files.settings(**settings), containers)

    def open(self):
        self.app = self.desktop.start("quillmere", ["--nosplash"])
        self.window = self.app.wait_window(title="Quillmere")

    def at(self, x, y):
        left, top, _, _ = self.desktop.geometry(self.window)
        return (left + int((EDGE_X + x) // 15), top + int((EDGE_Y + y) // 15))

    def inside(self, box, x, y):
        """A place in the frame of a container that stands at box."""
        return self.at(box[0] + x, box[1] + TITLE_HEIGHT + y)

    def saved(self, name):
        path = os.path.join(self.folder, name)
        return files.read(path) if os.path.exists(path) else ""

    def links(self, name):
        """Caption -> (x, y) of the shortcuts in a saved file."""
        rows = self.saved(name).split("\r\n")
        found = {}
        for begin in (place for place, row in enumerate(rows) if row == "[Link]"):
            link = rows[begin:rows.index("[End Link]", begin)]
            value = lambda tag: link[link.index(tag) + 1]
            found[value("[LinkLabel]")] = (float(value("[LinkX]")), float(value("[LinkY]")))
        return found

    def await_link(self, name, caption):
        until(lambda: caption in self.links(name), "%s is in %s: %s" % (caption, name, self.saved(name)))
        return self.links(name)[caption]

    def assert_near(self, place, x, y):
        self.assertTrue(abs(place[0] - x) <= 15 and abs(place[1] - y) <= 15, "%s is not near %s" % (place, (x, y)))

    def lift(self, place):
        self.desktop.move_to(*place)
        self.desktop.press()
        self.app.settle()
        for step in (10, 20):
            self.desktop.move_to(place[0] + step, place[1])
            self.app.settle()

    def carry_to(self, *places):
        for place in places:
            for away in (3, 1, 0):
                self.desktop.move_to(place[0] - away, place[1])
                self.desktop.settle()

    def carry(self, start, end):
        self.lift(start)
        self.carry_to(end)
        self.desktop.release()
        self.desktop.settle()

    def other_program(self, x=780, y=60, w=300, h=300):
        other = self.desktop.start("drag_probe", ["probe", *map(str, (x, y, w, h))])
        window = other.wait_window(title="probe")
        return other, self.desktop.middle(window)

    def offer(self, other, **formats):
        for command, text in formats.items():
            name = {"uris": "data text/uri-list", "objects": "data application/x-quillmere-objects"}.get(command, command)
            other.say("%s %s" % (name, quote(text)))
        until(lambda: other.stdout.count("done") >= len(formats), "the other program has its data")

    # Inside the program

    def test_a_shortcut_is_carried_into_a_container_and_out_again(self):
        box = (5000, 2000)
        self.keep([files.container("Box", x=box[0], y=box[1], w=4000, h=4000)], links=files.link("Thing", "/bin/true", x=1000, y=1500))
        self.open()
        self.carry(self.at(1150, 1620), self.inside(box, 1150, 1620))
        self.assert_near(self.await_link("Containers/0.REC", "Thing"), 1000, 1500)
        self.assertNotIn("Thing", self.links("Quillmere.REC"))
        self.carry(self.inside(box, 1150, 1620), self.at(2150, 6620))
        self.assert_near(self.await_link("Quillmere.REC", "Thing"), 2000, 6500)
        self.desktop.key("ctrl+z")
        self.assert_near(self.await_link("Containers/0.REC", "Thing"), 1000, 1500)

    def test_what_is_selected_goes_along_and_keeps_its_distance(self):
        box = (5000, 2000)
        links = files.link("One", "/bin/true", x=1000, y=1500) + files.link("Two", "/bin/true", x=1300, y=2500)
        self.keep([files.container("Box", x=box[0], y=box[1], w=4000, h=5000)], links=links)
        self.open()
        self.desktop.drag(self.at(300, 900), self.at(3000, 3500))  # a rubber band around both
        self.carry(self.at(1400, 1620), self.inside(box, 1100, 1120))
        one, two = self.await_link("Containers/0.REC", "One"), self.await_link("Containers/0.REC", "Two")
        self.assert_near(one, 700, 1000)
        self.assertEqual((two[0] - one[0], two[1] - one[1]), (300, 1000))

    def test_escape_lets_everything_stay_where_it_was(self):
        self.keep([files.container("Box", x=5000, y=2000, w=4000, h=4000)], links=files.link("Thing", "/bin/true", x=1000, y=1500))
        self.open()
        self.other_program()  # which has the keyboard until the press
        self.lift(self.at(1150, 1620))
        self.carry_to(self.inside((5000, 2000), 1500, 1500))
        self.desktop.key("Escape")
        self.desktop.release()
        self.desktop.settle()
        self.desktop.key("F8")
        self.assert_near(self.await_link("Quillmere.ini", "Thing"), 1000, 1500)
        self.assertNotIn("Thing", self.links("Containers/0.con"))
        self.assertTrue(self.app.running())

    def test_what_is_let_go_beside_the_window_stays(self):
        self.keep(links=files.link("Thing", "/bin/true", x=1000, y=1500))
        self.open()
        self.carry(self.at(1150, 1620), (1100, 700))
        self.desktop.click(*self.at(2000, 8000))
        self.desktop.key("F8")
        self.assert_near(self.await_link("Quillmere.ini", "Thing"), 1000, 1500)

    def test_a_tile_opens_under_the_drag_and_takes_it(self):
        self.keep([files.container("Box", x=5000, y=2000, w=4000, h=4000, shrink=1)], links=files.link("Thing", "/bin/true", x=1000, y=1500))
        self.open()
        beside = self.at(5000 + 350 + 1500, 2000 + 3500)
        closed = self.desktop.pixel(*beside)
        self.lift(self.at(1150, 1620))
        self.carry_to(self.at(5000 + 350, 2000 + 475))
        until(lambda: self.desktop.pixel(*beside) != closed, "the tile has opened")
        self.carry_to((beside[0] - 30, beside[1] - 20))
        self.desktop.release()
        self.await_link("Containers/0.REC", "Thing")

    def test_a_drop_on_a_tile_that_is_still_closed_goes_into_it(self):
        self.keep([files.container("Box", x=5000, y=2000, w=4000, h=4000, shrink=1)], links=files.link("Thing", "/bin/true", x=1000, y=1500))
        self.open()
        self.carry(self.at(1150, 1620), self.at(5000 + 350, 2000 + 475))
        self.await_link("Containers/0.REC", "Thing")

    def test_a_drag_starts_nothing(self):
        mark = os.path.join(self.desktop.home, "started")
        program = os.path.join(self.desktop.home, "starts")
        files.write(program, "#!/bin/sh\ntouch '%s'\n" % mark)
        os.chmod(program, 0o755)
        self.keep(links=files.link("Thing", program, x=1000, y=1500), extra=files.lines("[Dbl-Click]", 0))
        self.open()
        self.carry(self.at(1150, 1620), self.at(3150, 4620))
        self.assert_near(self.await_link("Quillmere.REC", "Thing"), 3000, 4500)
        self.assertFalse(os.path.exists(mark))
        self.desktop.click(*self.at(3150, 4620))
        until(lambda: os.path.exists(mark), "a click starts it as before")

    def test_a_full_container_says_so_and_the_shortcut_stays(self):
        full = "".join(files.link("L%d" % i, "/bin/true", x=600, y=300 + i) for i in range(250))
        self.keep([files.container("Box", x=5000, y=2000, w=4000, h=4000, links=full)], links=files.link("Thing", "/bin/true", x=1000, y=1500))
        self.open()
        self.carry(self.at(1150, 1620), self.inside((5000, 2000), 2500, 2500))
        until(lambda: len(self.app.all_windows()) > 1, "a box says it")
        self.desktop.key("Return")
        until(lambda: len(self.app.all_windows()) == 1, "the box goes")
        self.carry(self.at(1150, 1620), self.at(2150, 7120))
        self.assert_near(self.await_link("Quillmere.REC", "Thing"), 2000, 7000)

    def test_the_end_of_the_session_ends_a_drag(self):
        self.keep(links=files.link("Thing", "/bin/true", x=1000, y=1500))
        self.open()
        self.lift(self.at(1150, 1620))
        self.carry_to(self.at(4000, 4000))
        self.assertEqual(self.app.terminate(), 0)
        self.desktop.release()
        self.assert_near(self.await_link("Quillmere.ini", "Thing"), 1000, 1500)

    # Out

    def test_for_another_program_a_shortcut_is_its_file(self):
        self.keep(links=files.link("Thing", "/bin/a b\u00e4", x=1000, y=1500))
        self.open()
        other, middle = self.other_program()
        self.carry(self.at(1150, 1620), middle)
        until(lambda: "proposed" in other.stdout, "it is dropped: " + other.stdout)
        self.assertIn("dropped text/uri-list " + quote("file:///bin/a%20b%C3%A4\r\n", safe="/:"), other.stdout)
        self.assertIn("dropped text/plain " + quote("/bin/a b\u00e4", safe="/:"), other.stdout)
        self.assertIn("proposed copy", other.stdout)
        self.desktop.click(*self.at(2000, 8000))
        self.desktop.key("F8")
        self.assert_near(self.await_link("Quillmere.ini", "Thing"), 1000, 1500)

    def test_a_web_shortcut_is_its_address(self):
        self.keep(links=files.link("News", "https://a.example/x?y=1", type=1, x=1000, y=1500))
        self.open()
        other, middle = self.other_program()
        self.carry(self.at(1150, 1620), middle)
        until(lambda: "proposed" in other.stdout, "it is dropped: " + other.stdout)
        self.assertIn("dropped text/uri-list " + quote("https://a.example/x?y=1\r\n", safe="/:"), other.stdout)
        self.assertIn("dropped text/plain " + quote("https://a.example/x?y=1", safe="/:"), other.stdout)

    def test_a_command_is_its_text_and_no_file(self):
        self.keep(links=files.link("Do", "/bin/sh", param="echo 'a b'", command=1, x=1000, y=1500))
        self.open()
        other, middle = self.other_program()
        self.carry(self.at(1150, 1620), middle)
        until(lambda: "proposed" in other.stdout, "it is dropped: " + other.stdout)
        self.assertIn("dropped text/plain " + quote("echo 'a b'", safe="/:"), other.stdout)
        self.assertNotIn("uri-list", other.stdout)

    # In

    def test_files_of_another_program_become_shortcuts_and_it_is_told_of_a_copy(self):
        box = (5000, 2000)
        self.keep([files.container("Box", x=box[0], y=box[1], w=4000, h=4000)])
        self.open()
        other, middle = self.other_program()
        self.offer(other, uris="file:///etc/hosts\r\nfile:///tmp/a%20b.txt\r\nhttps://a.example/\r\n")
        self.carry(middle, self.inside(box, 1500, 900))
        until(lambda: "ended" in other.stdout, "the drag has ended")
        self.assertIn("ended copy", other.stdout)
        self.assert_near(self.await_link("Containers/0.REC", "hosts"), 1500, 900)
        self.assertEqual(set(self.links("Containers/0.REC")), {"hosts", "a b.txt", "https://a.example/"})
        self.carry(middle, self.at(1500, 1500))
        self.assert_near(self.await_link("Quillmere.REC", "hosts"), 1500, 1500)

    def test_a_file_dropped_on_a_note_being_typed_becomes_a_shortcut_and_no_text(self):
        self.keep([files.container("Note", x=5000, y=2000, w=4000, h=4000, note="words", note_on=1)])
        self.open()
        self.desktop.click(*self.inside((5000, 2000), 1500, 900))
        other, middle = self.other_program()
        self.offer(other, uris="file:///etc/hosts\r\n")
        self.carry(middle, self.inside((5000, 2000), 1500, 900))
        self.await_link("Containers/0.REC", "hosts")
        self.assertNotIn("file:", self.saved("Containers/0.REC"))

    def test_a_scrolled_frame_scrolls_on_under_a_drag_that_rests_at_its_edge(self):
        box, far = (5000, 2000), files.link("Far", "/bin/true", x=600, y=9000)
        self.keep([files.container("Box", x=box[0], y=box[1], w=4000, h=4000, links=far)], links=files.link("Thing", "/bin/true", x=1000, y=1500))
        self.open()
        self.lift(self.at(1150, 1620))
        self.carry_to(self.inside(box, 1500, 3600))
        bar = lambda: self.desktop.pixel(*self.inside(box, 3910, 3200))
        before = bar()
        until(lambda: bar() != before, "the thumb has come down")
        self.desktop.release()
        self.assertGreater(self.await_link("Containers/0.REC", "Thing")[1], 5000)

    def test_the_same_files_again_are_told_and_not_added(self):
        self.keep()
        self.open()
        other, middle = self.other_program()
        self.offer(other, uris="file:///etc/hosts\r\n")
        self.carry(middle, self.at(1500, 1500))
        self.await_link("Quillmere.REC", "hosts")
        self.carry(middle, self.at(5500, 1500))
        until(lambda: len(self.app.all_windows()) > 1, "a box says it")
        until(lambda: other.stdout.count("ended copy") == 2, "the other program does not wait for the box")
        self.desktop.key("Return")
        until(lambda: len(self.app.all_windows()) == 1, "the box goes")
        self.desktop.key("F8")
        self.assertEqual(list(self.links("Quillmere.ini")), ["hosts"])

    def test_a_text_becomes_a_note_and_one_that_is_an_address_a_shortcut(self):
        self.keep()
        self.open()
        other, middle = self.other_program()
        self.offer(other, text="only words")
        self.carry(middle, self.at(1500, 1500))
        until(lambda: "only words" in self.saved("Containers/0.REC"), "there is a note: " + other.stdout)
        self.offer(other, text="https://a.example/x")
        self.carry(middle, self.at(6500, 7500))
        self.await_link("Quillmere.REC", "https://a.example/x")

    def test_an_address_comes_in_every_form_in_which_browsers_give_it(self):
        forms = {
            "https://a.example/1": {"text/uri-list": b"https://a.example/1\r\n", "text/plain": b"https://a.example/1"},
            "https://a.example/2": {"text/uri-list": b"https://a.example/2",
                                    "text/x-moz-url": "https://a.example/2\nIts title".encode("utf-16-le")},
            "https://a.example/3": {"_NETSCAPE_URL": b"https://a.example/3\nIts title"},
            "https://a.example/4": {"text/plain": b"https://a.example/4"},
        }
        self.keep()
        self.open()
        other, middle = self.other_program()
        for place, (address, offered) in enumerate(forms.items()):
            other.say("clear")
            for name, data in {**offered, "text/html": b"<a href='https://b.example/'>x</a>"}.items():
                other.say("data %s %s" % (name, quote(data)))
            self.carry(middle, self.at(1500, 1000 + 1500 * place))
            self.await_link("Quillmere.REC", address)
        self.assertEqual(set(self.links("Quillmere.REC")), set(forms))

    def test_a_link_of_the_desktop_moves_into_the_workspace_and_its_file_into_the_trash(self):
        folder = os.path.join(self.desktop.home, "Desktop")
        os.mkdir(folder)
        link, other_file = os.path.join(folder, "News.url"), os.path.join(folder, "letter.txt")
        files.write(link, "[InternetShortcut]\r\nURL=https://a.example/x\r\n")
        files.write(other_file, "words")
        self.keep(extra=files.lines("[ExtractURLs]", 1, "[DeleteDesktopShortcuts]", 1))
        self.open()
        other, middle = self.other_program()
        self.offer(other, uris="file://%s\r\nfile://%s\r\n" % (link, other_file))
        self.carry(middle, self.at(1500, 1500))
        self.await_link("Quillmere.REC", "News")
        until(lambda: not os.path.exists(link), "its file is gone")
        trashed = os.path.join(self.desktop.env["XDG_DATA_HOME"], "Trash", "files", "News.url")
        self.assertIn("https://a.example/x", files.read(trashed))
        self.assertEqual(files.read(other_file), "words")

    def test_markup_alone_is_refused(self):
        self.keep()
        self.open()
        other, middle = self.other_program()
        other.say("data text/html " + quote("<a href='https://a.example/'>x</a>"))
        self.carry(middle, self.at(1500, 1500))
        until(lambda: "ended none" in other.stdout, "it is refused: " + other.stdout)

    def test_nobody_else_can_claim_to_carry_our_objects(self):
        self.keep([files.container("Box", x=5000, y=2000, w=4000, h=4000)], links=files.link("Thing", "/bin/true", x=1000, y=1500))
        self.open()
        other, middle = self.other_program()
        self.offer(other, objects="1 0\n")
        self.carry(middle, self.inside((5000, 2000), 1500, 900))
        until(lambda: "ended none" in other.stdout, "it is refused: " + other.stdout)
        self.assertEqual(self.saved("Containers/0.REC"), "")

    def test_what_a_feed_refuses_does_not_fall_through_to_the_workspace(self):
        feed = files.container("Feed", x=5000, y=2000, w=4000, h=4000)
        feed = feed.replace("[Container]\r\n-1\r\n", "[RSS]\r\nhttps://a.example/feed\r\nFeed\r\n-1\r\n")
        self.keep([feed])
        self.open()
        other, middle = self.other_program()
        self.offer(other, uris="file:///etc/hosts\r\n")
        self.carry(middle, self.inside((5000, 2000), 1500, 900))
        until(lambda: "ended" in other.stdout, "the drag has ended")
        self.desktop.click(*self.at(2000, 8000))
        self.desktop.key("F8")
        until(lambda: self.saved("Quillmere.ini") and "hosts" not in self.saved("Quillmere.ini") and "ended none" in other.stdout,
              "nothing was added: " + other.stdout)


if __name__ == "__main__":
    unittest.main()
