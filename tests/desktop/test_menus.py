"""Every line of the menus, chosen once by mouse or by keys on the real program, and its outcome read from what was
saved. The workspace of each test has two open containers, three shortcuts in the first."""

import os
import unittest

from harness import DesktopTest, until
import workspace_files as files

EDGE_X, EDGE_Y = 20, 15  # twips: where picBack begins in the window
TITLE = 145  # twips: the middle of a container's title row
ALPHA, BETA = (900, 900), (5400, 2100)
STRIP = "QuillmereMiniToolbar"


class MenuCase(DesktopTest):
    """The person's words; no tests of its own."""

    def setUp(self):
        super().setUp()
        self.folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere")

    def keep_two(self, alpha=None, beta=None, **settings):
        links = "".join(files.link(name, "/usr/share/%s" % name, x=400, y=300 + 500 * place)
                        for place, name in enumerate(("Zebra", "apple", "Mango")))
        extra = files.lines("[Effect]", 0, "[ShowTips]", 0, "[AutoExpand]", 0) + settings.pop("extra", "")
        files.put(self.folder, files.settings(extra=extra, **settings), [
            files.container("Alpha", x=ALPHA[0], y=ALPHA[1], links=links, **(alpha or {})),
            files.container("Beta", x=BETA[0], y=BETA[1], w=3300, h=2400, **(beta or {}))])

    def open(self):
        self.app = self.desktop.start("quillmere", ["--nosplash"])
        self.window = self.app.wait_window(title="Quillmere")

    def at(self, x, y):
        """A place of the workspace in twips, as a pixel of the screen."""
        left, top, _, _ = self.desktop.geometry(self.window)
        return (left + int((EDGE_X + x) // 15), top + int((EDGE_Y + y) // 15))

    def title_of(self, place):
        return self.at(place[0] + 900, place[1] + TITLE)

    def select(self, *places):
        """By Ctrl and a click on each title."""
        self.desktop._xdotool("keydown", "ctrl")
        for place in places:
            self.desktop.click(*self.title_of(place))
        self.desktop._xdotool("keyup", "ctrl")

    def await_windows(self, count, what):
        """The workspace, menus and dialogs; the strip beside a selection comes and goes by itself."""
        until(lambda: len([w for w in self.app.all_windows() if self.desktop.title(w) != STRIP]) == count, what)
        self.app.settle()

    def menu(self, place, *keys):
        """Opens a menu by a right click, and chooses by letters."""
        self.await_windows(1, "nothing is open")
        self.desktop.click(*place, button=3)
        self.await_windows(2, "the menu shows")
        self.choose(*keys)

    def choose(self, *keys):
        for key in keys:
            self.desktop.key(key)

    def container_menu(self, *keys):
        self.menu(self.title_of(ALPHA), *keys)

    def workspace_menu(self, *keys):
        self.menu(self.at(10500, 7200), *keys)

    def saved(self, name):
        path = os.path.join(self.folder, name)
        return files.read(path) if os.path.exists(path) else ""

    def await_saved(self, name, tag, value):
        until(lambda: files.value(self.saved(name), tag) == str(value),
              "%s holds %s %s: %s" % (name, tag, value, self.saved(name)))

    def container(self, name, kind="REC"):
        """What was saved of the container of this name; its number follows the stacking."""
        folder = os.path.join(self.folder, "Containers")
        texts = [self.saved(os.path.join("Containers", file)) for file in os.listdir(folder) if file.endswith("." + kind)]
        return next((text for text in texts if files.value(text, "[Name]") == name), "")

    def await_container(self, name, tag, value, kind="REC"):
        until(lambda: files.value(self.container(name, kind), tag) == str(value),
              "%s has %s %s: %s" % (name, tag, value, self.container(name, kind)))

    def await_alpha(self, tag, value, kind="REC"):
        self.await_container("Alpha", tag, value, kind)

    def await_beta(self, tag, value, kind="REC"):
        self.await_container("Beta", tag, value, kind)

    def await_gone(self, name):
        until(lambda: self.container("Beta") and not self.container(name), "%s is gone" % name)

    def await_dialog(self, title):
        return self.app.wait_window(title=title)

    def links(self, tag):
        """The values of a tag in the first container, one a shortcut, as saved."""
        rows = self.container("Alpha").split("\r\n")
        return [rows[place + 1] for place, row in enumerate(rows) if row == tag]

    def link_tops(self):
        """Caption -> its place from the top, as saved."""
        return dict(zip(self.links("[LinkLabel]"), map(float, self.links("[LinkY]"))))


class ContainerMenu(MenuCase):
    def test_fold_and_unfold(self):
        self.keep_two()
        self.open()
        self.container_menu("f")
        self.await_alpha("[Folded]", 1)
        self.container_menu("f")
        self.await_alpha("[Folded]", 0)

    def test_shrink_and_expand(self):
        self.keep_two()
        self.open()
        self.container_menu("h")
        self.await_alpha("[Shrink]", 1)
        self.menu(self.at(ALPHA[0] + 350, ALPHA[1] + 475), "x")
        self.await_windows(1, "the menu is gone")
        self.desktop.key("F8")
        self.await_alpha("[Shrink]", 0, "con")

    def test_keep_expanded(self):
        self.keep_two(alpha={"shrink": 1})
        self.open()
        tile = self.at(ALPHA[0] + 350, ALPHA[1] + 475)
        below = self.at(ALPHA[0] + 350, ALPHA[1] + 1500)
        closed = self.desktop.pixel(*below)
        self.desktop.click(*tile)
        until(lambda: self.desktop.pixel(*below) != closed, "it is open")
        self.container_menu("k")
        self.await_windows(1, "the menu is gone")
        self.desktop.click(*self.at(10500, 7200))
        self.desktop.key("F8")
        self.await_alpha("[Shrink]", 0, "con")

    def test_switch(self):
        self.keep_two()
        self.open()
        self.select(ALPHA, BETA)
        self.container_menu("w")
        self.await_alpha("[X]", BETA[0])
        self.await_beta("[X]", ALPHA[0])
        self.await_beta("[Y]", ALPHA[1])

    def test_switch_with_one_says_what_it_needs(self):
        self.keep_two()
        self.open()
        self.container_menu("w")
        self.await_windows(2, "a box says it")
        self.desktop.key("Escape")
        self.await_windows(1, "it goes at Escape")

    def test_match_size(self):
        self.keep_two()
        self.open()
        self.select(ALPHA, BETA)
        self.container_menu("s", "Return")  # two lines have this letter, this is the first
        self.await_windows(2, "the question shows")
        self.desktop.key("alt+y")
        self.await_beta("[W]", 3000)
        self.await_beta("[H]", 3000)

    def test_align_top(self):
        self.keep_two()
        self.open()
        self.select(ALPHA, BETA)
        self.container_menu("a", "t")
        self.await_beta("[Y]", ALPHA[1])
        self.assertEqual(files.value(self.container("Beta"), "[X]"), str(BETA[0]))

    def test_align_left(self):
        self.keep_two()
        self.open()
        self.select(ALPHA, BETA)
        self.container_menu("a", "l")
        self.await_beta("[X]", ALPHA[0])

    def test_space_evenly_with_two_says_what_it_needs(self):
        self.keep_two()
        self.open()
        self.select(ALPHA, BETA)
        self.container_menu("a", "h")
        self.await_windows(2, "a box says it")
        self.desktop.key("Return")
        self.await_windows(1, "it goes at Return")

    def test_line_spacing(self):
        self.keep_two()
        self.open()
        self.container_menu("a", "s")
        self.await_windows(2, "the input shows")
        self.desktop.key("ctrl+a")
        self.desktop.type("20")
        self.desktop.key("Return")
        self.await_alpha("[LineSpacing]", 300)

    def test_snap_to_grid(self):
        self.keep_two()
        self.open()
        self.container_menu("a", "g")
        self.await_windows(1, "the menu is gone")
        self.desktop.key("F8")
        self.await_saved("Quillmere.ini", "[Align]", 1)

    def test_inverted_selection_of_containers_is_what_remove_removes(self):
        self.keep_two()
        self.open()
        self.select(BETA)
        self.container_menu("a", "i")
        self.await_windows(1, "the menu is gone")
        self.container_menu("r")
        self.await_windows(2, "the question shows")
        self.desktop.key("alt+y")
        self.await_gone("Alpha")

    def test_the_note_is_shown(self):
        self.keep_two()
        self.open()
        self.container_menu("n")
        self.await_alpha("[NOTE ON]", 1)

    def test_all_shortcuts_are_selected_and_sorted(self):
        self.keep_two()
        self.open()
        self.container_menu("t", "s")
        self.await_windows(1, "the menu is gone")
        self.workspace_keys_sort()

    def workspace_keys_sort(self):
        self.desktop.key("alt+a")
        def sorted_now():
            tops = self.link_tops()
            return len(tops) == 3 and tops["apple"] < tops["Mango"] < tops["Zebra"]
        until(sorted_now, "they stand in the order of their names: %s" % self.link_tops())

    def test_remove_asks_and_no_keeps_it(self):
        self.keep_two()
        self.open()
        self.container_menu("r")
        self.await_windows(2, "the question shows")
        self.desktop.key("Escape")
        self.await_windows(1, "the question is gone")
        self.container_menu("r")
        self.await_windows(2, "the question shows")
        self.desktop.key("alt+y")
        self.await_gone("Alpha")


class WorkspaceMenu(MenuCase):
    def test_undo_and_redo_of_an_alignment(self):
        self.keep_two()
        self.open()
        self.select(ALPHA, BETA)
        self.container_menu("a", "l")
        self.await_beta("[X]", ALPHA[0])
        self.workspace_menu("u")
        self.await_beta("[X]", BETA[0])
        self.workspace_menu("r")
        self.await_beta("[X]", ALPHA[0])

    def test_clearing_the_history_leaves_nothing_to_undo(self):
        self.keep_two()
        self.open()
        self.select(ALPHA, BETA)
        self.container_menu("a", "l")
        self.await_beta("[X]", ALPHA[0])
        self.workspace_menu("y")
        self.await_windows(1, "the menu is gone")
        self.desktop.key("ctrl+z")
        self.desktop.key("F8")
        self.await_beta("[X]", ALPHA[0], "con")

    def test_text_size_of_what_is_selected(self):
        self.keep_two()
        self.open()
        self.desktop.click(*self.title_of(ALPHA))
        self.desktop.key("ctrl+a")
        self.desktop.key("ctrl+plus")
        until(lambda: self.links("[Size]") == ["12", "12", "12"], "the text has grown")
        self.desktop.key("ctrl+minus", "ctrl+minus")
        until(lambda: self.links("[Size]") == ["8", "8", "8"], "the text has shrunk")
        self.workspace_menu("x", "o")
        self.await_windows(2, "the input shows")
        self.desktop.key("ctrl+a")
        self.desktop.type("20")
        self.desktop.key("Return")
        until(lambda: self.links("[Size]") == ["20", "20", "20"], "the text has this size")

    def test_sorting_downward_by_its_key(self):
        self.keep_two()
        self.open()
        self.desktop.click(*self.title_of(ALPHA))
        self.desktop.key("ctrl+a", "alt+d")
        def sorted_now():
            tops = self.link_tops()
            return len(tops) == 3 and tops["apple"] > tops["Mango"] > tops["Zebra"]
        until(sorted_now, "they stand from Z to A: %s" % self.link_tops())

    def test_lock_on_top_and_position(self):
        self.keep_two()
        self.open()
        for letters, tag, value in (("k", "[LOCKED]", 1), ("vo", "[OnTop]", 0), ("pk", "[PreventWindowMovement]", 1)):
            self.workspace_menu(*letters)
            self.await_windows(1, "the menu is gone")
            self.desktop.key("F8")
            self.await_saved("Quillmere.ini", tag, value)

    def test_the_command_line_help_shows(self):
        self.keep_two()
        self.open()
        self.workspace_menu("ll")
        self.await_windows(2, "the box shows")
        self.desktop.key("Escape")
        self.await_windows(1, "it goes")

    def test_exit_saves(self):
        self.keep_two()
        self.open()
        self.container_menu("f")
        self.await_alpha("[Folded]", 1)
        self.workspace_menu("t")
        self.assertEqual(self.app.wait_exit(), 0)
        self.assertEqual(files.value(self.container("Alpha", "con"), "[Folded]"), "1")


class MenusByKeyboard(MenuCase):
    def tab_to_container(self):
        """Menu, lock, dock, then the first container's title."""
        self.desktop.key("Tab", "Tab", "Tab", "Tab")

    def test_the_menu_key_opens_the_menu_of_the_container_with_the_focus(self):
        self.keep_two()
        self.open()
        self.desktop.request_focus(self.window)
        self.tab_to_container()
        self.desktop.key("Menu")
        self.await_windows(2, "the menu shows")
        self.desktop.key("h")
        self.await_alpha("[Shrink]", 1)

    def test_shift_f10_does_so_too_and_escape_leaves_it(self):
        self.keep_two()
        self.open()
        self.desktop.request_focus(self.window)
        self.tab_to_container()
        self.desktop.key("shift+F10")
        self.await_windows(2, "the menu shows")
        self.desktop.key("Escape")
        self.await_windows(1, "it is gone")
        self.desktop.key("shift+F10")
        self.await_windows(2, "it shows again")
        self.desktop.key("f")
        self.await_alpha("[Folded]", 1)

    def test_arrows_lead_into_a_sub_menu_and_out_of_it(self):
        self.keep_two()
        self.open()
        self.desktop.request_focus(self.window)
        self.desktop.key("Menu")
        self.await_windows(2, "the menu shows")
        self.desktop.key("g")
        self.await_windows(3, "the sub-menu shows")
        self.desktop.key("Left")
        self.await_windows(2, "the sub-menu is closed")
        self.desktop.key("Right", "s")
        self.await_windows(1, "the line was chosen")
        self.desktop.key("F8")
        self.await_saved("Quillmere.ini", "[Align]", 1)

    def test_the_arrows_walk_over_shortcuts_and_the_menu_key_opens_theirs(self):
        self.keep_two()
        self.open()
        self.desktop.click(*self.title_of(ALPHA))
        self.desktop.key("Down", "Down", "Menu")
        self.await_windows(2, "the menu shows")
        self.desktop.key("x", "l")
        until(lambda: self.links("[Size]") == ["10", "12", "10"], "the second has grown")

    def test_a_container_is_folded_and_removed_without_a_mouse(self):
        self.keep_two()
        self.open()
        self.desktop.request_focus(self.window)
        self.tab_to_container()
        self.desktop.key("alt+f")
        self.await_alpha("[Folded]", 1)
        self.desktop.key("alt+f")
        self.await_alpha("[Folded]", 0)
        self.desktop.key("ctrl+Delete")
        self.await_windows(2, "the question shows")
        self.desktop.key("Return")
        self.await_gone("Alpha")


if __name__ == "__main__":
    unittest.main()
