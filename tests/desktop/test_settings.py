"""The settings on the real program: by keyboard alone, with what they change seen on the desktop and read back from what
was saved."""

import os
import unittest

from harness import until
import test_accessibility as assistive
import test_menus as menus
import workspace_files as files
from x_keys import ALT, SUPER, OtherProgram

TITLE = "Quillmere Settings"


class Settings(menus.MenuCase):
    def open_dialog(self, **kept):
        self.keep_two(**kept)
        self.open()
        self.desktop.request_focus(self.window)
        self.desktop.key("F3")
        self.dialog = self.await_dialog(TITLE)
        until(lambda: self.desktop.has_keyboard(self.dialog), "the dialog has the keyboard")

    def await_closed(self):
        self.app.wait_no_window(title=TITLE)
        self.app.settle()

    def await_setting(self, key, value, file="Quillmere.REC"):
        self.await_saved(file, key, value)

    def recovery(self):
        return os.path.exists(os.path.join(self.folder, "Quillmere.REC"))

    def test_f3_opens_them_above_the_workspace_and_escape_changes_nothing(self):
        self.open_dialog()
        self.assertTrue(self.desktop.is_above(self.dialog, self.window))
        self.desktop.key("alt+t", "alt+k", "Escape")
        self.await_closed()
        until(lambda: self.desktop.has_keyboard(self.window), "the workspace has the keyboard again")
        self.assertFalse(self.recovery(), "nothing was saved")
        self.desktop.key("F8")
        self.await_setting("[ShowTrayIcon]", 1, "Quillmere.ini")
        self.await_setting("[OnTop]", 1, "Quillmere.ini")

    def test_what_is_changed_is_saved_by_apply_while_the_dialog_stays(self):
        self.open_dialog()
        self.desktop.key("alt+t", "alt+p")
        self.await_setting("[ShowTrayIcon]", 0)
        self.assertIn(self.dialog, self.app.all_windows())
        self.desktop.key("alt+t", "Escape")
        self.await_closed()
        self.desktop.key("F8")
        self.await_setting("[ShowTrayIcon]", 0, "Quillmere.ini")

    def test_ok_saves_and_closes(self):
        self.open_dialog()
        self.desktop.key("alt+e", "Return")
        self.await_closed()
        self.await_setting("[Animate]", 0)

    def test_ok_without_a_change_saves_nothing(self):
        self.open_dialog()
        self.desktop.key("Return")
        self.await_closed()
        self.assertFalse(self.recovery())

    def test_opacity_is_seen_on_the_window_at_once(self):
        self.open_dialog()
        opacity = lambda: self.desktop.x.number(self.desktop.x.top_level(self.window), "_NET_WM_WINDOW_OPACITY") or \
            self.desktop.x.number(self.window, "_NET_WM_WINDOW_OPACITY")
        self.assertFalse(opacity() and opacity() < 0xF0000000)
        self.desktop.key("alt+y", "Tab", "ctrl+a")
        self.desktop.type("100")
        self.desktop.key("alt+p")
        self.await_setting("[Translucent]", 1)
        self.await_setting("[Opacity]", 100)
        until(lambda: abs(opacity() - 0xFFFFFFFF * 100 // 255) < 0x2000000, "the window is told as see-through")

    def test_an_opacity_that_is_no_number_stays_as_it_was(self):
        self.open_dialog()
        self.desktop.key("alt+y", "Tab", "ctrl+a")
        self.desktop.type("glass")
        self.desktop.key("Return")
        self.await_closed()
        self.await_setting("[Opacity]", 235)
        self.await_setting("[Translucent]", 1)

    def test_the_dialog_stays_above_a_workspace_that_is_put_on_top(self):
        self.open_dialog(extra=files.lines("[OnTop]", 0))
        self.desktop.key("alt+k", "alt+p")
        self.await_setting("[OnTop]", 1)
        until(lambda: self.desktop.is_above(self.dialog, self.window), "it lies above a workspace that is on top")
        self.desktop.click(*self.at(10500, 7200))
        until(lambda: self.desktop.is_above(self.dialog, self.window), "it lies above a workspace that is clicked")

    def test_ctrl_tab_goes_through_the_pages_and_back(self):
        self.open_dialog()
        self.desktop.key("ctrl+Tab", "alt+f")  # the bar's flash
        self.desktop.key("ctrl+Tab", "alt+a")  # folding by itself
        self.desktop.key("ctrl+Tab", "alt+t")  # tips of shortcuts
        self.desktop.key("ctrl+Tab", "alt+g")  # the hotkey
        self.desktop.key("ctrl+shift+Tab", "ctrl+shift+Tab", "ctrl+shift+Tab", "ctrl+shift+Tab", "alt+t", "Return")
        self.await_closed()
        self.await_setting("[Mini Dock Flash]", 0)
        for key, value in (("[FoldOnClick]", 0), ("[ShortcutTooltips]", 0), ("[GlobalHotkey]", 0), ("[ShowTrayIcon]", 0)):
            self.await_setting(key, value)

    def test_letters_lead_to_the_pages(self):
        self.open_dialog()
        self.desktop.key("alt+v", "space")  # the keyboard is on the first of the page
        self.desktop.key("alt+d", "alt+f", "Return")
        self.await_closed()
        self.await_setting("[GlobalHotkey]", 0)
        self.await_setting("[Mini Dock Flash]", 0)

    def test_lists_and_options_are_chosen_by_the_arrows(self):
        self.open_dialog()
        self.desktop.key("alt+i", "End")  # the title row
        self.desktop.key("alt+d", "alt+l")  # a bar as long as its side
        self.desktop.key("Return")
        self.await_closed()
        self.await_setting("[SystemInfo]", 1)
        self.await_setting("[Mini Dock Size]", 0)

    def test_the_address_of_the_web_search_is_typed_or_taken_from_an_engine(self):
        self.open_dialog()
        self.desktop.key("alt+v", "alt+e", "ctrl+a")
        self.desktop.type("https://search.example.org/?q=%s")
        self.desktop.key("alt+p")
        self.await_setting("[Web Search]", "https://search.example.org/?q=%s")
        self.desktop.key("Tab", "Down", "Down", "Return")  # from "Select..." over the first engine to the second
        self.await_closed()
        self.await_setting("[Web Search]", "https://www.bing.com/search?q=%s")

    def test_what_is_typed_into_the_middle_of_an_address_stays_there(self):
        self.open_dialog(extra=files.lines("[Web Search]", "https://www.bing.com/search?q=%s"))
        self.desktop.key("alt+v", "alt+e", "Home", *["Right"] * 8)
        self.desktop.type("my.")
        self.desktop.key("Return")
        self.await_closed()
        self.await_setting("[Web Search]", "https://my.www.bing.com/search?q=%s")

    def test_the_options_of_the_keyboard_launcher(self):
        self.open_dialog()
        self.desktop.key("alt+v", "alt+k", "alt+t", "alt+w", "alt+s", "alt+l", "alt+l", "Tab", "ctrl+a")
        self.desktop.type("7")
        self.desktop.key("Return")
        self.await_closed()
        for key, value in (("[ShowKBLauncher]", 1), ("[KBLauncherTips]", 0), ("[SearchOnSpace]", 1),
                           ("[CalcOrSpeedLaunch]", 0), ("[KeyboardHistory]", 1), ("[KeyboardHistoryCount]", 7)):
            self.await_setting(key, value)

    def test_the_options_of_what_comes_in_and_is_opened(self):
        self.open_dialog()
        self.desktop.key("alt+h", "alt+o", "alt+e", "alt+l", "alt+c", "Return")
        self.await_closed()
        for key in ("[ConfirmOpenWith]", "[ExtractURLs]", "[DeleteDesktopShortcuts]", "[ContainerFromFolder]"):
            self.await_setting(key, 0)

    def test_another_color_of_the_bar(self):
        self.open_dialog()
        self.desktop.key("alt+d", "alt+o")
        self.await_windows(3, "the colour dialog shows")
        self.desktop.key("alt+h", "ctrl+a")
        self.desktop.type("#008000")
        self.desktop.key("Return")
        self.await_windows(2, "the colour dialog is gone")
        self.desktop.key("Return")
        self.await_closed()
        self.await_setting("[DockingColor]", 0x008000)

    def test_a_new_tile_size_is_given_to_the_tiles_that_there_are(self):
        self.open_dialog()
        self.desktop.key("alt+r", "alt+k", "End", "Return")
        self.await_windows(3, "the question shows")
        self.desktop.key("alt+y")
        self.await_closed()
        self.await_setting("[ConShrinkW]", 410)
        self.await_alpha("[ConShrinkW]", 410)

    def test_another_hotkey_is_taken_at_once(self):
        self.open_dialog()
        other = self.other_program()
        until(lambda: other.is_taken(other.code_of("s"), ALT | SUPER), "the program has its key")
        self.choose_key("q")
        self.desktop.key("Return")
        self.await_closed()
        self.await_setting("[GlobalHotkeyChar]", "Q")
        self.assertTrue(other.is_taken(other.code_of("q"), ALT | SUPER))
        self.assertFalse(other.is_taken(other.code_of("s"), ALT | SUPER), "the former is free")

    def test_a_hotkey_of_another_program_is_refused_and_the_former_works_on(self):
        self.open_dialog()
        other = self.other_program()
        until(lambda: other.is_taken(other.code_of("s"), ALT | SUPER), "the program has its key")
        other.take_key(other.code_of("q"))
        self.choose_key("q")
        self.desktop.key("Return")
        self.await_windows(3, "the refusal is told")
        self.desktop.key("Return")
        self.await_windows(2, "it is read")
        until(lambda: self.desktop.has_keyboard(self.dialog), "the dialog is still there")
        self.assertTrue(other.is_taken(other.code_of("s"), ALT | SUPER), "the former works")
        self.await_setting("[GlobalHotkeyChar]", "S")
        self.desktop.type("w")  # the character is marked, and typing takes its place
        self.desktop.key("Return")
        self.await_closed()
        self.await_setting("[GlobalHotkeyChar]", "W")

    def test_a_start_without_its_hotkey_leads_to_it(self):
        other = self.other_program()
        other.take_key(other.code_of("s"))
        self.keep_two()
        self.open()
        self.await_windows(2, "the refusal is told")
        self.desktop.key("Return")
        self.dialog = self.await_dialog(TITLE)
        until(lambda: self.desktop.has_keyboard(self.dialog), "the dialog has the keyboard")
        self.desktop.type("w")
        self.desktop.key("Return")
        self.await_closed()
        self.await_setting("[GlobalHotkeyChar]", "W")
        self.assertTrue(other.is_taken(other.code_of("w"), ALT | SUPER))

    def other_program(self):
        other = OtherProgram(self.desktop.env["DISPLAY"])
        self.addCleanup(other.close)
        return other

    def choose_key(self, character):
        self.desktop.key("alt+v", "Tab", "Tab", "ctrl+a")  # from the check box over the keys to hold to the key
        self.desktop.type(character)

    def test_a_session_that_ends_over_the_dialog_keeps_what_was_not_applied_as_it_was(self):
        self.open_dialog()
        self.desktop.key("alt+t")
        self.assertEqual(self.app.terminate(), 0)
        self.assertEqual(files.value(self.saved("Quillmere.ini"), "[ShowTrayIcon]"), "1")


class SpokenSettings(assistive.Accessibility):
    """What those hear who do not see the dialog; the tests of the base are not of it."""

    CONTROLS = ("check box", "radio button", "text", "combo box", "push button")

    def open_dialog(self):
        self.open([files.container("Work")])
        self.desktop.request_focus(self.window)
        self.desktop.key("F3")
        self.dialog = self.find("dialog", TITLE)
        self.app.settle()

    def shown(self):
        """What can be used on the page that shows, buttons at the foot included."""
        return [element for element in self.dialog.walk()
                if element.role in self.CONTROLS and {"showing", "focusable", "enabled"} <= element.states()]

    def test_each_control_of_each_page_has_a_name_and_tab_reaches_it(self):
        self.open_dialog()
        for page in range(5):
            controls = self.shown()
            self.assertGreater(len(controls), 3, controls)
            self.assertEqual([element for element in controls if not element.name], [])
            self.assertEqual(len(set(map(repr, controls))), len(controls), "each has a name of its own: %s" % controls)
            # Of options that stand together one is a stop of Tab; the arrows lead to the others.
            wanted = {repr(element) for element in controls
                      if element.role != "radio button" or "checked" in element.states()}
            reached = set()
            for _ in range(len(controls) + 3):
                self.desktop.key("Tab")
                reached |= {repr(element) for element in controls if "focused" in element.states()}
            self.assertGreaterEqual(reached, wanted)
            self.desktop.key("ctrl+Tab")

    def test_each_letter_of_a_page_leads_to_one_control(self):
        self.open_dialog()
        for page in range(5):
            letters = {repr(element): self.letter_of(element) for element in self.shown()}
            given = [letter for letter in letters.values() if letter]
            self.assertEqual(len(set(given)), len(given), letters)
            self.assertEqual([name for name, letter in letters.items() if not letter and name.startswith("check box")], [])
            self.desktop.key("ctrl+Tab")

    @staticmethod
    def letter_of(element):
        binding = assistive.Atspi.Action.get_key_binding(element.node, 0) if element.actions() else ""
        return binding.upper() if binding.startswith("Alt+") else ""

    def test_a_refused_hotkey_has_its_warning_and_the_keyboard(self):
        other = OtherProgram(self.desktop.env["DISPLAY"])
        self.addCleanup(other.close)
        other.take_key(other.code_of("s"))
        self.open([files.container("Work")])
        self.find("push button", "OK").do("Press")
        self.dialog = self.find("dialog", TITLE)
        warning = self.find("label", "Already in use", self.dialog)
        self.has_state(warning, "showing")
        self.has_state(self.find("text", "Key", self.dialog), "focused")
        self.desktop.type("w")
        self.has_state(warning, "showing", False)
        self.desktop.key("BackSpace")
        self.desktop.type("s")
        self.has_state(warning, "showing")

    def test_the_tip_is_told_as_well(self):
        self.open_dialog()
        box = self.find("check box", "Tray Icon", self.dialog)
        self.assertEqual(box.node.get_description(), "Uncheck to hide the system tray icon (next to the clock).")


def load_tests(loader, _standard, _pattern):
    """The classes of this file, without the tests that their bases bring."""
    suite = unittest.TestSuite(loader.loadTestsFromTestCase(Settings))
    for name in sorted(name for name in vars(SpokenSettings) if name.startswith("test_")):
        suite.addTest(SpokenSettings(name))
    return suite


if __name__ == "__main__":
    unittest.main()
