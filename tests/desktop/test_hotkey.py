"""The key that calls the workspace from anywhere: pressed on a real X server while another program has the keyboard,
and what is typed right behind it."""

import os
import subprocess
import time
import unittest

from harness import ACCESSIBILITY_BUS, DesktopTest, has_window_manager, until
import test_accessibility as assistive
import workspace_files as files
from x_keys import ALT, SUPER, OtherProgram

HERE = os.path.dirname(os.path.abspath(__file__))
SYSTEM_PYTHON = "/usr/bin/python3"  # the one that the bindings of the bus are installed for
HOTKEY = "super+alt+s"
FLOATING = {"x": 6000, "y": 3000, "w": 6000, "h": 4500}


class Calling(DesktopTest):
    """The person's words; no tests of its own."""

    def setUp(self):
        super().setUp()
        self.folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere")
        self.other = OtherProgram(self.desktop.env["DISPLAY"])
        self.addCleanup(self.other.close)

    def open(self, containers=(), env=None, place=None, **keys):
        rows = [row for key, value in keys.items() for row in ("[%s]" % key, value)]
        files.put(self.folder, files.settings(extra=files.lines(*rows), **(place or FLOATING)), containers)
        self.app = self.desktop.start("quillmere", ["--nosplash"], env)
        self.window = self.app.wait_window(title="^Quillmere$")

    def await_key(self, symbol="s", modifiers=ALT | SUPER):
        until(lambda: self.other.is_taken(self.other.code_of(symbol), modifiers), "the program has the key")

    def open_other(self):
        """Another program that has the keyboard."""
        self.terminal = self.desktop.start("xterm")
        self.beneath = self.terminal.wait_window()
        self.go_to_other()

    def go_to_other(self):
        self.desktop.request_focus(self.beneath)
        until(lambda: self.desktop.has_keyboard(self.beneath), "the other program has the keyboard")

    def is_out(self):
        return self.desktop.x.is_viewable(self.window) and self.desktop.has_keyboard(self.window)

    def is_away(self):
        return not self.desktop.x.is_viewable(self.window)

    def await_out(self):
        until(self.is_out, "the workspace is out and has the keyboard")

    def await_away(self):
        until(self.is_away, "the workspace is away")

    def call_and_put_away(self):
        self.desktop.key(HOTKEY)
        self.await_out()
        self.desktop.key(HOTKEY)
        self.await_away()

    def containers(self):
        folder = os.path.join(self.folder, "Containers")
        return [name for name in os.listdir(folder) if name.endswith(".REC")]

    def burst(self, *words):
        """One program types all of it, as fast as the server takes it."""
        subprocess.run(["xdotool", *words], env=self.desktop.env, check=True)


class Hotkey(Calling):
    def test_it_brings_the_workspace_out_and_puts_it_away_again(self):
        self.open()
        self.open_other()
        self.await_key()
        for _ in range(2):
            self.desktop.key(HOTKEY)
            self.await_out()
            self.desktop.key(HOTKEY)
            self.await_away()
            until(lambda: self.desktop.has_keyboard(self.beneath), "the other program has the keyboard again")

    def test_at_an_edge_it_slides_out_and_back(self):
        self.open(place={"x": 1280 * 15 - 6000, "y": 3000, "w": 6000, "h": 4500})
        self.open_other()
        self.await_key()
        self.desktop.key(HOTKEY)
        self.await_out()
        for made in (5, 10):
            self.desktop.key(HOTKEY)
            self.await_away()
            self.app.wait_window(title="^Quillmere Bar$")
            self.go_to_other()
            self.burst("key", "--delay", "0", HOTKEY, *["ctrl+t"] * 5)
            self.await_out()
            until(lambda count=made: len(self.containers()) == count, "each key behind it has made a container")

    def test_locks_that_are_on_do_not_keep_it_back(self):
        self.open()
        self.open_other()
        self.await_key()
        for lock in ("Num_Lock", "Caps_Lock", "Scroll_Lock"):
            self.desktop.key(lock)
            self.desktop.key(HOTKEY)
            self.await_out()
            self.desktop.key(HOTKEY)
            self.await_away()
            self.go_to_other()

    def test_a_key_that_is_held_down_is_one_press(self):
        subprocess.run(["xset", "r", "rate", "100", "50"], env=self.desktop.env, check=True)
        self.open()
        self.open_other()
        self.await_key()
        self.burst("keydown", "super", "keydown", "alt", "keydown", "s")
        self.await_out()
        end = time.monotonic() + 1  # a hand that stays there for forty repetitions
        seen = set()
        while time.monotonic() < end:
            seen.add(self.desktop.x.is_viewable(self.window))
        self.burst("keyup", "s", "keyup", "alt", "keyup", "super")
        self.desktop.settle()
        self.assertEqual(seen, {True})
        self.assertTrue(self.is_out())
        self.desktop.key(HOTKEY)
        self.await_away()

    def test_the_key_alone_and_with_other_modifiers_is_none(self):
        self.open()
        self.open_other()
        self.await_key()
        for keys in ("alt+s", "super+s", "super+alt+shift+s", "s"):
            self.desktop.key(keys)
            self.desktop.settle()
            self.assertFalse(self.is_out(), keys)

    def test_every_key_of_the_table_is_the_one_that_is_pressed(self):
        for character, symbol in (("J", "i"), ("L", "k"), ("M", "m"), ("7", "7"), ("_", "space"), ("<", "Left"),
                                  ("/", "Up"), (">", "Right"), ("\\", "Down")):
            with self.subTest(character):
                self.open(GlobalHotkeyChar=character, GlobalHotkeyMod=10)
                self.open_other()
                self.await_key(symbol, SUPER | 4)
                self.desktop.key("super+ctrl+" + symbol)
                self.await_out()
                self.app.terminate()
                self.terminal.terminate()

    def test_switched_off_it_leaves_the_key_to_others(self):
        self.open(GlobalHotkey=0)
        self.desktop.settle()
        until(lambda: self.app.running(), "the program runs")
        self.assertFalse(self.other.is_taken(self.other.code_of("s")))

    def test_the_key_is_free_after_the_exit(self):
        self.open()
        self.await_key()
        code = self.other.code_of("s")
        self.assertEqual(self.app.terminate(), 0)
        self.assertTrue(self.other.take_key(code))

    def test_the_other_programs_get_their_keys_when_it_is_away(self):
        self.open()
        self.open_other()
        self.await_key()
        self.desktop.key(HOTKEY)
        self.await_out()
        until(self.other.keyboard_is_free, "nobody holds the keyboard while the workspace is out")
        self.desktop.key(HOTKEY)
        self.await_away()
        until(self.other.keyboard_is_free, "nobody holds the keyboard while the workspace is away")


class Layouts(Calling):
    def layout(self, *words):
        subprocess.run(["setxkbmap", *words], env=self.desktop.env, check=True)

    def test_it_follows_the_layout_while_the_program_runs(self):
        self.open(GlobalHotkeyChar="A")
        self.open_other()
        self.await_key("a")
        before = self.other.code_of("a")
        self.layout("fr")
        until(lambda: not self.other.is_taken(before), "the former key is free")
        self.await_key("a")
        self.assertNotEqual(self.other.code_of("a"), before)
        self.desktop.key("super+alt+a")
        self.await_out()

    def test_the_digits_of_a_layout_that_has_them_with_shift(self):
        self.layout("fr")
        self.open(GlobalHotkeyChar="5")
        self.open_other()
        code = self.other.code_of("5")
        until(lambda: self.other.is_taken(code), "the program has the key")
        self.burst("keydown", "super", "keydown", "alt")
        self.other.key(code, True)
        self.other.key(code, False)
        self.burst("keyup", "alt", "keyup", "super")
        self.await_out()

    def test_a_layout_without_latin_letters_has_it_at_its_usual_place(self):
        usual = self.other.code_of("s")
        self.layout("ru")
        self.assertEqual(OtherProgram(self.desktop.env["DISPLAY"]).code_of("s"), 0)
        self.open()
        self.open_other()
        until(lambda: self.other.is_taken(usual), "the program has the key")

    def test_in_a_second_layout_it_is_there_as_well(self):
        usual = self.other.code_of("s")
        self.layout("ru,us")
        self.open()
        until(lambda: self.other.is_taken(usual), "the program has the key")

    def test_locks_that_other_keys_stand_for_are_found(self):
        subprocess.run(["xmodmap", "-e", "remove mod2 = Num_Lock", "-e", "add mod3 = Num_Lock"], env=self.desktop.env,
                       check=True)
        self.open()
        self.open_other()
        self.await_key()
        self.desktop.key("Num_Lock")
        self.desktop.key(HOTKEY)
        self.await_out()


class KeysBehindIt(Calling):
    def test_no_key_typed_right_behind_it_is_lost(self):
        self.open()
        self.open_other()
        self.await_key()
        self.call_and_put_away()
        for made in range(5, 45, 5):
            self.burst("key", "--delay", "0", HOTKEY, *["ctrl+t"] * 5)
            self.await_out()
            until(lambda count=made: len(self.containers()) >= count, "each key has made a container")
            self.assertEqual(len(self.containers()), made)
            self.desktop.key(HOTKEY)
            self.await_away()
            self.go_to_other()

    def test_keys_go_to_a_covered_workspace_that_is_called(self):
        self.open(OnTop=0)
        self.open_other()
        self.await_key()
        self.burst("key", "--delay", "0", HOTKEY, *["ctrl+t"] * 5)
        self.await_out()
        until(lambda: len(self.containers()) == 5, "each key has made a container")

    def test_keys_behind_putting_it_away_hold_nothing_up(self):
        self.open()
        self.open_other()
        self.await_key()
        self.desktop.key(HOTKEY)
        self.await_out()
        self.burst("key", "--delay", "0", HOTKEY, *["ctrl+t"] * 5)
        self.await_away()
        until(self.other.keyboard_is_free, "nobody holds the keyboard")
        self.desktop.key(HOTKEY)
        self.await_out()


@unittest.skipUnless(has_window_manager("xfwm4"), "needs xfwm4")
class KeysBehindItOnXfwm4(KeysBehindIt):
    desktop_options = {"wm": "xfwm4"}


class WithoutWindowManager(Calling):
    desktop_options = {"wm": None}

    def test_a_workspace_that_is_never_given_the_keyboard_does_not_keep_it(self):
        self.desktop.move_to(5, 5)  # without a window manager keys go where the mouse is
        files.put(self.folder, files.settings(**FLOATING))
        self.app = self.desktop.start("quillmere", ["--nosplash"])
        self.await_key()
        self.burst("key", "--delay", "0", HOTKEY, *["ctrl+t"] * 5)
        until(self.other.keyboard_is_free, "nobody holds the keyboard")
        until(lambda: len(self.containers()) == 5, "each key has made a container")


@unittest.skipUnless(assistive.Atspi and os.path.exists(ACCESSIBILITY_BUS), "the library of assistive technology is missing")
class TakenByAnother(Calling):
    desktop_options = {"accessible": True}
    TOLD = "Could not register the Global Hotkey since it is already in use by the system or another application."

    def setUp(self):
        super().setUp()
        for name in ("DBUS_SESSION_BUS_ADDRESS", "DISPLAY"):
            os.environ[name] = self.desktop.env[name]
        os.environ.pop("AT_SPI_BUS_ADDRESS", None)
        assistive.Atspi.init()

    def said(self):
        """All names in the program's windows."""
        screen = assistive.Element(assistive.Atspi.get_desktop(0))
        return [element.name for app in screen.children() if app.name == "quillmere" for element in app.walk()]

    def test_it_is_told_and_the_program_runs_on_without_it(self):
        self.assertTrue(self.other.take_key(self.other.code_of("s")))
        self.open()
        until(lambda: any(self.TOLD in name for name in self.said()), "the box says it")
        self.desktop.key("Return")
        until(lambda: not any(self.TOLD in name for name in self.said()), "the box has gone")
        self.desktop.key("Escape")
        self.app.settle()
        self.assertTrue(self.app.running())

    def test_without_a_settings_file_nothing_is_said(self):
        self.assertTrue(self.other.take_key(self.other.code_of("s")))
        self.app = self.desktop.start("quillmere", ["--nosplash"])
        self.app.wait_window(title="^Quillmere$")
        self.app.settle()
        self.assertFalse(any(self.TOLD in name for name in self.said()))

    def test_a_lock_that_another_program_takes_it_with_is_a_refusal_of_all(self):
        caps = 2
        self.assertTrue(self.other.take_key(self.other.code_of("s"), ALT | SUPER | caps))
        self.open()
        until(lambda: any(self.TOLD in name for name in self.said()), "the box says it")
        self.assertFalse(self.other.is_taken(self.other.code_of("s")))


def has_bindings():
    return subprocess.run([SYSTEM_PYTHON, "-c", "from gi.repository import Gio"], check=False,
                          stderr=subprocess.DEVNULL).returncode == 0


@unittest.skipUnless(has_bindings(), "needs python3-gi to answer for the desktop")
class ByThePortal(Calling):
    """A session in which the X server knows only some of the keys."""
    desktop_options = {"bus": True}
    WAYLAND = {"XDG_SESSION_TYPE": "wayland"}

    def portal(self, *kind):
        self.portal_app = self.desktop.start(SYSTEM_PYTHON, [os.path.join(HERE, "shortcuts_stand_in.py"), *kind])
        until(lambda: "ready" in self.portal_app.stdout, "the portal answers: " + self.portal_app.stderr)

    def await_said(self, line):
        until(lambda: line in self.portal_app.stdout.splitlines(),
              "the portal was told '%s': %s" % (line, self.portal_app.stdout))

    def test_the_desktop_is_asked_and_its_word_brings_the_workspace_out(self):
        self.portal()
        self.open(env=self.WAYLAND)
        self.open_other()
        self.await_said("bound toggle LOGO+ALT+s Bring the workspace out or put it away")
        self.portal_app.say("press")
        self.await_out()
        self.portal_app.say("press")
        self.await_away()

    def test_the_key_is_named_as_the_desktop_names_it(self):
        self.portal()
        self.open(env=self.WAYLAND, GlobalHotkeyChar="<", GlobalHotkeyMod=6)
        self.await_said("bound toggle CTRL+SHIFT+Left Bring the workspace out or put it away")

    def test_one_that_comes_later_is_asked(self):
        self.open(env=self.WAYLAND)
        self.open_other()
        self.await_key()
        self.portal()
        self.await_said("bound toggle LOGO+ALT+s Bring the workspace out or put it away")
        self.portal_app.say("press")
        self.await_out()

    def test_one_that_never_answers_holds_nothing_up(self):
        self.portal("mute")
        self.open(env=self.WAYLAND)
        self.await_said("asked")
        self.open_other()
        self.desktop.key(HOTKEY)
        self.await_out()
        self.assertEqual(self.app.terminate(), 0)

    def test_one_that_knows_no_shortcuts_does_no_harm(self):
        self.portal("bare")
        self.open(env=self.WAYLAND)
        self.open_other()
        self.await_key()
        self.desktop.key(HOTKEY)
        self.await_out()

    def test_in_a_session_of_the_x_server_the_desktop_is_not_asked(self):
        self.portal()
        self.open()
        self.await_key()
        self.assertNotIn("asked", self.portal_app.stdout)

    def test_a_key_that_the_x_server_refuses_is_no_refusal_there(self):
        self.portal()
        self.assertTrue(self.other.take_key(self.other.code_of("s")))
        self.open(env=self.WAYLAND)
        self.await_said("bound toggle LOGO+ALT+s Bring the workspace out or put it away")
        self.app.settle()
        self.assertEqual(len(self.app.all_windows()), 1)

    def test_the_session_is_closed_at_the_exit(self):
        self.portal()
        self.open(env=self.WAYLAND)
        self.await_said("bound toggle LOGO+ALT+s Bring the workspace out or put it away")
        self.assertEqual(self.app.terminate(), 0)
        self.await_said("closed")
