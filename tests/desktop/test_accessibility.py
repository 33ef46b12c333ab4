"""The workspace as it is told to those who do not see it: the tree of the real program is read from the bus of
assistive technology, worked by its actions, and listened to."""

import os
import unittest
import warnings

from harness import ACCESSIBILITY_BUS, DesktopTest, until
import workspace_files as files

try:
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
except (ImportError, ValueError):
    Atspi = None

warnings.simplefilter("ignore", DeprecationWarning)  # the newer names are not there on older systems

FOCUSED, NAME, CHILDREN = "object:state-changed:focused", "object:property-change:accessible-name", "object:children-changed"


class Element:
    """One object of the tree; every question goes to the program anew."""

    def __init__(self, node):
        self.node = node

    def children(self):
        self.node.clear_cache()
        found = [self.node.get_child_at_index(place) for place in range(self.node.get_child_count())]
        return [Element(node) for node in found if node]

    def walk(self):
        yield self
        for child in self.children():
            yield from child.walk()

    @property
    def role(self):
        return self.node.get_role_name()

    @property
    def name(self):
        """Of a line of a menu without the key that stands behind it."""
        self.node.clear_cache()
        return self.node.get_name().split("\t")[0]

    def states(self):
        self.node.clear_cache()
        return {state.value_nick for state in self.node.get_state_set().get_states()}

    def actions(self):
        if "Action" not in self.node.get_interfaces():
            return []
        return [Atspi.Action.get_action_name(self.node, place) for place in range(Atspi.Action.get_n_actions(self.node))]

    def do(self, action):
        Atspi.Action.do_action(self.node, self.actions().index(action))

    def take_focus(self):
        Atspi.Component.grab_focus(self.node)

    def extents(self):
        rect = Atspi.Component.get_extents(self.node, Atspi.CoordType.SCREEN)
        return (rect.x, rect.y, rect.width, rect.height)

    def middle(self):
        x, y, width, height = self.extents()
        return (x + width // 2, y + height // 2)

    def at(self, x, y):
        found = Atspi.Component.get_accessible_at_point(self.node, x, y, Atspi.CoordType.SCREEN)
        return Element(found) if found else None

    def text(self):
        return Atspi.Text.get_text(self.node, 0, Atspi.Text.get_character_count(self.node))

    def __repr__(self):
        return "%s '%s'" % (self.role, self.name)


def inside(inner, outer):
    return (inner[0] >= outer[0] and inner[1] >= outer[1] and inner[0] + inner[2] <= outer[0] + outer[2] and
            inner[1] + inner[3] <= outer[1] + outer[3])


@unittest.skipUnless(Atspi and os.path.exists(ACCESSIBILITY_BUS), "the library of assistive technology is missing")
class Accessibility(DesktopTest):
    desktop_options = {"accessible": True}

    def setUp(self):
        super().setUp()
        self.folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere")
        for name in ("DBUS_SESSION_BUS_ADDRESS", "DISPLAY"):
            os.environ[name] = self.desktop.env[name]
        os.environ.pop("AT_SPI_BUS_ADDRESS", None)
        Atspi.init()
        self.heard = []
        self.listener = Atspi.EventListener.new(self._hear)

    def _hear(self, event):
        try:
            self.heard.append((event.type, event.detail1, event.source.get_name(), event.source.get_role_name()))
        except GLib.Error:
            pass  # it is gone already

    def listen(self, *kinds):
        for kind in kinds:
            self.listener.register(kind)

    def hears(self, what, told):
        def heard():
            while GLib.MainContext.default().iteration(False):
                pass
            return [event for event in self.heard if told(*event)]
        return until(heard, "%s is told; heard so far: %s" % (what, self.heard))

    def open(self, containers, scale=1, **settings):
        files.put(self.folder, files.settings(x=300, y=300, w=9000, h=8250, **settings), containers)
        self.app = self.desktop.start("quillmere", ["--nosplash"], env={"QT_SCALE_FACTOR": str(scale)})
        self.window = self.app.wait_window(title="Quillmere")
        self.root = until(self._find_program, "the program is in the tree")
        self.frame = until(lambda: self._child(self.root, "frame", "Quillmere"), "its window is in the tree")

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

    @staticmethod
    def _child(parent, role, name):
        for element in parent.walk():
            if element.role == role and element.name == name:
                return element
        return None

    def find(self, role, name, below=None):
        """Polls, since a program tells what has come a moment later."""
        def found():
            try:
                return self._child(below or self.root, role, name)
            except GLib.Error:
                return None  # it changed under our eyes
        return until(found, "%s '%s' is in the tree: %s" % (role, name, list((below or self.root).walk())))

    def gone(self, role, name, below=None):
        def missing():
            try:
                return not self._child(below or self.root, role, name)
            except GLib.Error:
                return False
        until(missing, "%s '%s' is not in the tree" % (role, name))

    def await_saved(self, name, tag, value):
        def saved():
            path = os.path.join(self.folder, name)
            return os.path.exists(path) and files.value(files.read(path), tag) == value
        until(saved, "%s holds %s %s" % (name, tag, value))

    def has_state(self, element, state, wanted=True):
        until(lambda: (state in element.states()) == wanted, "%s is %s%s" % (element, "" if wanted else "not ", state))

    # The tree

    def test_the_tree_holds_the_workspace_its_containers_and_what_lies_in_them(self):
        self.open([files.container("Work", x=600, y=600, links=files.link("Editor", "/usr/bin/true", x=600)),
                   files.container("Tile", x=600, y=5000, shrink=1)],
                  links=files.link("Alone", "/usr/bin/true", x=6000, y=6000))
        workspace = self.find("panel", "Workspace")
        work = self.find("panel", "Work", workspace)
        self.assertEqual(self.find("list item", "Editor", work).actions()[:2], ["Start", "Show Menu"])
        self.assertEqual(self.find("push button", "Tile").actions()[:2], ["Expand", "Show Menu"])
        self.assertIn("collapsed", self.find("push button", "Tile").states())
        self.assertIn("expanded", self.find("push button", "Fold", work).states())
        self.assertIn("focusable", self.find("list item", "Alone", workspace).states())

    def test_everything_has_a_role_and_a_name(self):
        self.open([files.container("Work", x=600, y=600, note="milk", links=files.link("Far", "/usr/bin/true", y=9000)),
                   files.container("Note", x=4500, y=600, note="bread", note_on=1),
                   files.container("Folded", x=600, y=5000, folded=1),
                   files.container("", x=4500, y=5000, shrink=1)], links=files.link("", "/usr/bin/true", y=7000))
        for element in self.root.walk():
            self.assertTrue(element.name, element)
            self.assertNotIn(element.role, ("unknown", "invalid", "filler"), element)
            self.assertTrue("focusable" not in element.states() or element.actions(), element)

    def test_what_is_scrolled_out_does_not_show_and_comes_by_its_bar(self):
        self.open([files.container("Work", x=600, y=600, links=files.link("Far", "/usr/bin/true", y=9000))])
        far, bar = self.find("list item", "Far"), self.find("scroll bar", "Scroll bar")
        self.assertNotIn("showing", far.states())
        Atspi.Value.set_current_value(bar.node, Atspi.Value.get_maximum_value(bar.node))
        self.has_state(far, "showing")
        self.assertTrue(inside(far.extents(), self.find("panel", "Work").extents()))

    def test_a_painted_note_can_be_read_and_opens_in_a_box_of_its_name(self):
        self.open([files.container("Note", note="milk\r\nbread", note_on=1)])
        note = self.find("text", "Note")
        self.assertEqual(note.text().rstrip("\n"), "milk\nbread")
        self.assertIn("read-only", note.states())
        note.do("Edit")
        until(lambda: "editable" in self.find("text", "Note").states(), "the note is in its box")
        texts = [element for element in self.find("panel", "Note").walk() if element.role == "text"]
        self.assertEqual(len(texts), 1, "it is not told twice")
        self.desktop.type("eggs ")
        self.assertIn("eggs", self.find("text", "Note").text())

    # Places

    def check_places(self, scale):
        self.open([files.container("Work", x=600, y=600, links=files.link("Editor", "/usr/bin/true", x=900))], scale)
        self.assertEqual(self.frame.extents(), self.desktop.geometry(self.window))
        work = self.find("panel", "Work")
        left, top, _, _ = self.desktop.geometry(self.window)
        x, y, width, height = work.extents()
        self.assertEqual((x - left, y - top), (41 * scale, 41 * scale))
        self.assertEqual((width, height), (200 * scale, 200 * scale))
        for element in work.walk():
            self.assertTrue(inside(element.extents(), work.extents()), element)
        for role, name in (("push button", "Fold"), ("list item", "Editor"), ("push button", "Shrink")):
            hit = work.at(*self.find(role, name, work).middle())
            self.assertEqual((hit.role, hit.name), (role, name))
        self.desktop.click(*self.find("push button", "Fold", work).middle())
        self.await_saved("Containers/0.REC", "[Folded]", "1")

    def test_places_are_where_a_hand_would_press(self):
        self.check_places(scale=1)

    def test_places_are_right_at_200_percent(self):
        self.check_places(scale=2)

    # Doing

    def test_a_container_folds_and_unfolds_by_its_action_and_says_so(self):
        self.open([files.container("Work")])
        work = self.find("panel", "Work")
        work.do("Fold")
        self.await_saved("Containers/0.REC", "[Folded]", "1")
        self.has_state(work, "collapsed")
        self.assertIn("Unfold", work.actions())
        self.find("push button", "Unfold", work).do("Unfold")
        self.await_saved("Containers/0.REC", "[Folded]", "0")
        self.has_state(work, "expanded")

    def test_a_tile_expands_and_what_is_in_it_comes_into_the_tree(self):
        self.open([files.container("Work", shrink=1, links=files.link("Editor", "/usr/bin/true"))])
        work = self.find("panel", "Work")
        self.assertEqual([child.role for child in work.children()], ["push button"])
        self.listen(CHILDREN)
        work.do("Expand")
        self.find("list item", "Editor", work)
        self.gone("push button", "Work", work)
        self.hears("that something came", lambda kind, *_: kind.startswith("object:children-changed:add"))
        self.has_state(work, "expanded")

    def test_a_shortcut_starts_by_its_action(self):
        mark = os.path.join(self.desktop.home, "started")
        program = os.path.join(self.desktop.home, "starts")
        files.write(program, "#!/bin/sh\ntouch '%s'\n" % mark)
        os.chmod(program, 0o755)
        self.open([files.container("Work", links=files.link("Starts", program))])
        self.find("list item", "Starts").do("Start")
        until(lambda: os.path.exists(mark), "the program has run")

    def test_a_menu_is_read_line_by_line_and_its_lines_work(self):
        self.open([files.container("Work")])
        self.find("panel", "Work").do("Show Menu")
        fold = self.find("menu item", "Fold")
        self.assertIn("Remove Containers", [element.name for element in self.root.walk() if element.role == "menu item"])
        fold.do("Press")
        self.await_saved("Containers/0.REC", "[Folded]", "1")

    def test_nothing_is_done_behind_an_open_question(self):
        self.open([files.container("Work")])
        work = self.find("panel", "Work")
        work.do("Show Menu")
        self.find("menu item", "Fold")
        work.do("Fold")
        self.app.settle()
        self.desktop.key("Escape")
        self.gone("menu item", "Fold")
        self.assertNotIn("collapsed", work.states())

    # Listening

    def test_the_keyboard_is_told_from_stop_to_stop(self):
        self.open([files.container("Work", links=files.link("Editor", "/usr/bin/true"))])
        list(self.root.walk())
        self.listen(FOCUSED)
        self.desktop.request_focus(self.window)
        stops = [("push button", "Menu"), ("push button", "Fold"), ("list item", "Editor")]
        for role, name in stops:
            for _ in range(12):
                self.desktop.key("Tab")
                element = self.find(role, name)
                if "focused" in element.states():
                    break
            self.assertIn("focused", element.states(), name)
            self.hears("the focus of " + name,
                       lambda kind, on, told, as_role: kind == FOCUSED and on and (as_role, told) == (role, name))

    def test_the_keyboard_can_be_brought_to_an_element(self):
        self.open([files.container("Work", links=files.link("Far", "/usr/bin/true", y=9000))])
        far = self.find("list item", "Far")
        far.take_focus()
        self.has_state(far, "focused")
        self.assertIn("showing", far.states())

    def test_a_question_is_told_with_its_words_and_answered(self):
        self.open([files.container("Work"), files.container("Play", x=4500)])
        self.find("panel", "Work").do("Show Menu")
        self.find("menu item", "Remove Containers").do("Press")
        answer = self.find("push button", "Yes")
        words = [element.name for element in self.root.walk() if element.role == "label" and "Work" in element.name]
        self.assertTrue(words, list(self.root.walk()))
        dialogs = [element for element in self.root.children() if element.role in ("alert", "dialog")]
        self.assertEqual([dialog.name for dialog in dialogs], ["Quillmere"])
        answer.do("Press")
        self.gone("panel", "Work")
        self.find("panel", "Play")

    def test_each_control_of_the_properties_has_a_name_and_the_keyboard_reaches_it(self):
        self.open([files.container("Work", note="words"), files.container("Play", x=4500)])
        self.find("panel", "Work").do("Show Menu")
        self.find("menu item", "Properties").do("Press")
        name = self.find("text", "Name")
        self.assertEqual(name.text(), "Work")
        dialog = next(element for element in self.root.children() if element.role == "dialog")
        controls = [element for element in dialog.walk() if {"focusable", "showing", "enabled"} <= element.states()]
        self.assertGreater(len(controls), 8, controls)
        self.assertEqual([element for element in controls if not element.name and element.role != "dialog"], [])
        self.assertEqual(len(set(map(repr, controls))), len(controls), "each has a name of its own: %s" % controls)
        reached = set()
        for _ in range(2 * len(controls)):
            self.desktop.key("Tab")
            reached |= {repr(element) for element in controls if "focused" in element.states()}
        self.assertGreaterEqual(reached, {repr(element) for element in controls if element.role in ("push button", "check box", "text", "combo box")})

    def test_the_element_is_told_again_when_a_box_has_closed(self):
        self.open([files.container("Work")])
        work = self.find("panel", "Work")
        self.find("push button", "Fold", work).take_focus()
        self.has_state(self.find("push button", "Fold", work), "focused")
        self.desktop.key("ctrl+Delete")
        self.find("push button", "No")
        self.listen(FOCUSED)
        self.desktop.key("Escape")
        self.gone("push button", "No")
        self.hears("the focus", lambda kind, on, name, role: kind == FOCUSED and on and (role, name) == ("push button", "Fold"))

    def test_one_thing_has_the_keyboard(self):
        self.open([files.container("Work")])
        self.desktop.request_focus(self.window)
        self.desktop.key("Tab")
        until(lambda: len([element for element in self.root.walk() if "focused" in element.states()]) == 1,
              "one element is focused")

    def test_a_passing_word_in_the_title_is_told(self):
        self.open([files.container("Work")])
        list(self.root.walk())
        self.listen(NAME)
        self.desktop.request_focus(self.window)
        self.desktop.key("F8")
        self.hears("that it was saved", lambda kind, on, name, role: kind == NAME and role == "label")

    def test_what_is_removed_is_gone_for_those_who_still_hold_it(self):
        self.open([files.container("Work", links=files.link("Editor", "/usr/bin/true"))])
        held = list(self.find("panel", "Work").walk())
        self.find("panel", "Work").do("Show Menu")
        self.find("menu item", "Remove Containers").do("Press")
        self.find("push button", "Yes").do("Press")
        self.gone("panel", "Work")
        for element in held:
            try:
                element.states()
                element.extents()
                element.actions()
            except GLib.Error:
                pass  # as it should be
        self.app.settle()
        self.assertTrue(self.app.running())
        self.assertEqual(self.app.terminate(), 0)


if __name__ == "__main__":
    unittest.main()
