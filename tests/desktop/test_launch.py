"""Starting on the real program: what a started program is given, whose child it is, what it outlives, and where its
window comes to lie. Small scripts write down what they got."""

import os
import signal
import subprocess
import unittest
from urllib.parse import quote

from harness import DesktopTest, build_folder, has_window_manager, until
import workspace_files as files

EDGE_X, EDGE_Y = 20, 15  # twips; where picBack begins in the window
STAND_IN = os.path.join(os.path.dirname(os.path.abspath(__file__)), "systemd_stand_in.py")
# Everything that a started program can tell of its start, NUL between, under its name when it is complete.
TELLS = """#!/bin/sh
printf '%s\\0' "$PWD" "$DESKTOP_STARTUP_ID" "$XDG_ACTIVATION_TOKEN" "$$" "$@" > "$TOLD.part"
mv "$TOLD.part" "$TOLD"
exec sleep 300
"""


class Told:
    def __init__(self, path):
        with open(path, "rb") as file:
            words = file.read().decode("utf-8", "surrogateescape").split("\0")[:-1]
        self.folder, self.startup_id, self.token, number = words[:4]
        self.number, self.arguments = int(number), words[4:]


class Starting(DesktopTest):
    def setUp(self):
        super().setUp()
        self.folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere")
        self.told_path = os.path.join(self.desktop.home, "told")
        self.script = self.put("tells", TELLS)

    # The person's words

    def put(self, name, text, mode=0o755):
        path = os.path.join(self.desktop.home, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        files.write(path, text)
        os.chmod(path, mode)
        return path

    def keep(self, path, *changes, links="", extra="", x=300, **fields):
        """A workspace with one shortcut at a known place; each change is a tag and its value."""
        link = files.link("Thing", path, x=1000, y=1500, **fields)
        for tag, value in changes:
            before = link[link.index("[%s]\r\n" % tag):].split("\r\n")[1]
            link = link.replace("[%s]\r\n%s\r\n" % (tag, before), "[%s]\r\n%s\r\n" % (tag, value))
        rows = files.lines("[Dbl-Click]", 0) + extra
        files.put(self.folder, files.settings(x=x, y=300, w=10500, h=9000, extra=rows, links=link + links))

    def open(self, **env):
        self.app = self.desktop.start("quillmere", ["--nosplash"], env={"TOLD": self.told_path, **env})
        self.window = self.app.wait_window(title="Quillmere")

    def at(self, x, y):
        left, top, _, _ = self.desktop.geometry(self.window)
        return (left + int((EDGE_X + x) // 15), top + int((EDGE_Y + y) // 15))

    def start(self):
        self.desktop.click(*self.at(1150, 1620))

    def told(self):
        until(lambda: os.path.exists(self.told_path), "the program has started; " + self.app.stderr)
        told = Told(self.told_path)
        self.addCleanup(self.end, told.number)
        return told

    def end(self, number):
        try:
            os.kill(number, signal.SIGKILL)
        except ProcessLookupError:
            pass

    def started(self, path, *changes, **settings):
        self.keep(path, *changes, **settings)
        self.open()
        self.start()
        return self.told()

    def window_titled(self, title):
        def seek():
            return next((w for w in self.desktop.windows() if self.desktop.title(w) == title), None)
        window = until(seek, "a window " + title)
        self.addCleanup(self.end_session, os.getsid(self.desktop.x.number(window, "_NET_WM_PID")))
        self.desktop.settle()
        return window

    def end_session(self, number):
        """The script, the program and what fed it."""
        try:
            os.killpg(number, signal.SIGKILL)
        except ProcessLookupError:
            pass


class Launching(Starting):
    # What it is given

    def test_arguments_arrive_as_they_stand_and_no_shell_reads_them(self):
        told = self.started(self.script, ("LinkParam", "-n \"a b\" 'c $HOME `id`' $(id) ; ~ *.txt \\\"q\\\" --"))
        self.assertEqual(told.arguments, ["-n", "a b", "c $HOME `id`", "$(id)", ";", "~", "*.txt", '"q"', "--"])

    def test_it_starts_in_its_start_folder(self):
        place = os.path.join(self.desktop.home, "a place")
        os.mkdir(place)
        self.assertEqual(self.started(self.script, ("StartIn", place)).folder, place)

    def test_without_a_start_folder_it_starts_at_home(self):
        self.assertEqual(self.started(self.script).folder, self.desktop.home)

    def test_it_may_come_to_the_front_by_a_token_that_carries_the_present_time(self):
        told = self.started(self.script)
        self.assertRegex(told.startup_id, r"^quillmere-\d+-\d+_TIME[1-9]\d*$")
        self.assertEqual(told.token, told.startup_id)

    def test_a_path_with_any_name_is_the_program_and_no_option(self):
        names = ["-rf", "two words", "it's \"so\" $HOME `id` %s;&|.sh", "\u202egnp.tixe", "line\nend", "x" * 200]
        for number, name in enumerate(names):
            with self.subTest(name):
                path = self.put("odd/%s" % name, TELLS)
                told_path = os.path.join(self.desktop.home, "told%d" % number)
                stored = "file://" + quote(path) if "\n" in name else path
                self.keep(stored, ("LinkParam", "ok"))
                self.app = self.desktop.start("quillmere", ["--nosplash"], env={"TOLD": told_path})
                self.window = self.app.wait_window(title="Quillmere")
                self.start()
                until(lambda: os.path.exists(told_path), "it has started; " + self.app.stderr)
                told = Told(told_path)
                self.addCleanup(self.end, told.number)
                self.assertEqual(told.arguments, ["ok"])
                self.app.terminate()

    def test_a_command_goes_to_the_shell_as_one_text(self):
        self.keep("", ("LinkParam", "-x 2>/dev/null; \"%s\" $((2+3)) | cat" % self.script), command=1)
        self.open()
        self.start()
        self.assertEqual(self.told().arguments, ["5"])

    def test_the_desktop_hears_of_a_start_and_of_its_end_when_no_window_comes(self):
        path = self.put("soon", "#!/bin/sh\nprintf '%s\\0' . . . $$ > \"$TOLD\"\n")
        self.keep(path)
        self.open()
        ear = self.desktop.start("stdbuf", ["-oL", "xev", "-root", "-event", "property"])
        shout = ["xprop", "-root", "-f", "_SHOUT", "8s", "-set", "_SHOUT", "a"]
        until(lambda: subprocess.run(shout, env=self.desktop.env, check=True) and "_SHOUT" in ear.stdout, "it listens")
        begins = lambda: ear.stdout.count("(_NET_STARTUP_INFO_BEGIN)")
        before = begins()
        self.start()
        until(lambda: begins() == before + 2, "the start and its end: " + ear.stdout[-500:])

    # Whose child it is

    def test_it_outlives_a_workspace_that_is_killed_and_was_never_its_child(self):
        told = self.started(self.script)
        with open("/proc/%d/stat" % told.number) as file:
            parent, group, session = file.read().rsplit(")", 1)[1].split()[1:4]
        self.assertNotEqual(int(parent), self.app.process.pid)
        self.assertNotEqual(os.getsid(self.app.process.pid), int(session))
        children = "/proc/%d/task/%d/children" % (self.app.process.pid, self.app.process.pid)
        with open(children) as file:
            self.assertEqual(file.read(), "", "nothing is left to be collected either")
        open_files = os.listdir("/proc/%d/fd" % told.number)
        self.assertEqual(sorted(open_files), ["0", "1", "2"])
        self.app.process.kill()
        self.app.process.wait()
        os.kill(told.number, 0)

    def test_it_has_a_name_of_its_own_at_the_service_manager(self):
        self.desktop.close()
        self.desktop = type(self.desktop)(bus=True)
        self.addCleanup(self.desktop.close)
        self.folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere")
        self.told_path = os.path.join(self.desktop.home, "told")
        self.script = self.put("my tool-1", TELLS)
        manager = self.desktop.start("/usr/bin/python3", [STAND_IN])
        until(lambda: "ready" in manager.stdout, "the service manager stands: " + manager.stderr)
        told = self.started(self.script)
        wanted = "scope app-quillmere-my\\x20tool\\x2d1-%d.scope fail [%d]" % (told.number, told.number)
        until(lambda: wanted in manager.stdout, "it was named: " + manager.stdout)

    # What it is

    def test_a_document_is_opened_by_the_persons_own_application_in_the_start_folder(self):
        place = os.path.join(self.desktop.home, "place")
        os.mkdir(place)
        apps = ".local/share/applications/"
        self.put(apps + "reader.desktop", "[Desktop Entry]\nType=Application\nName=Reader\nExec=\"%s\" --read %%f\n"
                 % self.script, 0o644)
        self.put(apps + "mimeapps.list", "[Default Applications]\ntext/plain=reader.desktop\n", 0o644)
        document = self.put("-a b $HOME.txt", "words", 0o644)
        told = self.started(document, ("StartIn", place))
        self.assertEqual(told.arguments, ["--read", document])
        self.assertEqual(told.folder, place)
        self.assertIn("_TIME", told.startup_id)
        self.assertEqual(told.token, told.startup_id)

    def test_a_desktop_entry_starts_by_its_own_rules(self):
        entry = self.put("tool.desktop", "[Desktop Entry]\nType=Application\nName=Tool\nPath=/usr\n"
                         "Exec=\"%s\" \"two words\" %%f %%c\n" % self.script, 0o644)
        told = self.started(entry)
        self.assertEqual(told.arguments, ["two words", "Tool"])
        self.assertEqual(told.folder, "/usr")

    def test_a_link_entry_opens_what_it_names(self):
        apps = ".local/share/applications/"
        self.put(apps + "web.desktop", "[Desktop Entry]\nType=Application\nName=Web\nExec=\"%s\" %%u\n"
                 "MimeType=x-scheme-handler/https;\n" % self.script, 0o644)
        self.put(apps + "mimeapps.list", "[Default Applications]\nx-scheme-handler/https=web.desktop\n", 0o644)
        entry = self.put("news.desktop", "[Desktop Entry]\nType=Link\nName=News\nURL=https://a.example/x?y=%20z\n", 0o644)
        self.assertEqual(self.started(entry).arguments, ["https://a.example/x?y=%20z"])

    def test_elevation_asks_by_the_desktops_own_program_and_its_refusal_is_silent(self):
        place = os.path.join(self.desktop.home, "place")
        os.mkdir(place)
        self.put("bin/pkexec", TELLS.replace("exec sleep 300", "exit 126"))
        self.keep(self.script, ("Admin", "-1"), ("LinkParam", "one 'two three'"), ("StartIn", place))
        self.open(PATH=os.path.join(self.desktop.home, "bin") + ":" + self.desktop.env["PATH"])
        self.start()
        told = self.told()
        self.assertEqual(told.arguments, ["/usr/bin/env", "--chdir=" + place, self.script, "one", "two three"])
        self.app.settle()
        self.assertEqual(len(self.app.all_windows()), 1)

    def test_elevation_of_an_entry_is_that_of_its_command(self):
        self.put("bin/pkexec", TELLS.replace("exec sleep 300", "exit 127"))
        entry = self.put("tool.desktop", "[Desktop Entry]\nType=Application\nName=Tool\nExec=\"%s\" --gui %%U\n"
                         % self.script, 0o644)
        self.keep(entry, ("Admin", "-1"))
        self.open(PATH=os.path.join(self.desktop.home, "bin") + ":" + self.desktop.env["PATH"])
        self.start()
        self.assertEqual(self.told().arguments, [self.script, "--gui"])

    # What goes wrong

    def error_of(self, path, *changes):
        self.keep(path, *changes)
        self.open()
        self.start()
        return self.desktop.title(self.app.wait_window(title="^Error: "))

    def test_a_script_without_permission_says_the_systems_words(self):
        path = self.put("script.sh", TELLS, 0o644)
        self.assertEqual(self.error_of(path), "Error: Permission denied")

    def test_what_is_gone_says_the_systems_words(self):
        self.assertEqual(self.error_of("/no/such/thing"), "Error: No such file or directory")

    def test_an_open_quote_starts_nothing(self):
        self.assertEqual(self.error_of(self.script, ("LinkParam", "it's")),
                         "Error: A quote in the parameters is not closed")
        self.assertFalse(os.path.exists(self.told_path))

    # Open with

    def carry(self, start, end):
        self.desktop.move_to(*start)
        self.desktop.press()
        self.app.settle()
        for step in (10, 20):
            self.desktop.move_to(start[0] + step, start[1])
            self.app.settle()
        for away in (3, 1, 0):
            self.desktop.move_to(end[0] - away, end[1])
            self.desktop.settle()

    def test_a_shortcut_dropped_on_another_is_opened_with_it_as_one_argument(self):
        document = self.put("-a 'b' $HOME.txt", "words", 0o644)
        other = files.link("Document", document, x=1000, y=4500)
        self.keep(self.script, links=other, extra=files.lines("[ConfirmOpenWith]", 0))
        self.open()
        before = self.desktop.pixel(*self.at(980, 1560))
        self.carry(self.at(1150, 4620), self.at(1150, 1620))
        tip = until(lambda: len(self.app.all_windows()) > 2, "the tip and what is carried show")
        self.assertTrue(tip)
        self.desktop.release()
        told = self.told()
        self.assertEqual(told.arguments, [document])
        self.assertEqual(told.folder, self.desktop.home)
        until(lambda: len(self.app.all_windows()) == 1, "the tip goes")
        self.assertEqual(self.desktop.pixel(*self.at(980, 1560)), before)

    def test_a_desktop_entry_gets_what_is_dropped_on_it_where_its_rules_say(self):
        document = self.put("a b.txt", "words", 0o644)
        entry = self.put("tool.desktop", "[Desktop Entry]\nType=Application\nName=Tool\nExec=\"%s\" --open %%F --\n"
                         % self.script, 0o644)
        other = files.link("Document", document, x=1000, y=4500)
        self.keep(entry, links=other, extra=files.lines("[ConfirmOpenWith]", 0))
        self.open()
        self.carry(self.at(1150, 4620), self.at(1150, 1620))
        self.desktop.release()
        self.assertEqual(self.told().arguments, ["--open", document, "--"])


class Windows:
    """Where the started program's window comes to lie; a class for each window manager below says where."""

    def setUp(self):
        if not has_window_manager(self.desktop_options["wm"]):
            self.skipTest("not installed")
        super().setUp()

    def keep_probe(self, *changes, **settings):
        """A program behind a script, which has a window as long as it is not told that its input has ended."""
        probe = self.put("probe", "#!/bin/sh\nsleep 300 | '%s' Probe 200 200 300 300\n"
                         % os.path.join(build_folder(), "bin", "drag_probe"))
        self.keep(probe, *changes, **settings)

    def await_front(self, window):
        until(lambda: self.desktop.is_above(window, self.window), "it lies above the workspace")
        until(lambda: self.desktop.active_window() == window, "it has the keyboard")

    def test_its_window_comes_to_the_front_over_the_workspace(self):
        self.keep_probe(x=1500)
        self.open()
        self.start()
        self.await_front(self.window_titled("Probe"))

    def test_so_does_that_of_a_program_that_knows_no_tokens(self):
        self.keep("/usr/bin/xterm", ("LinkParam", "-geometry 40x10+200+200 -T Term -e sleep 300"), x=1500)
        self.open()
        self.start()
        self.await_front(self.window_titled("Term"))

    def test_while_the_workspace_goes_away_at_its_edge_it_comes_to_the_front_too(self):
        self.keep_probe(x=0)
        self.open()
        self.start()
        window = self.window_titled("Probe")
        until(lambda: self.desktop.active_window() == window, "it has the keyboard")
        until(lambda: not self.desktop.x.is_viewable(self.window), "the workspace has gone")
        self.desktop.settle()
        self.assertEqual(self.desktop.active_window(), window)

    def test_in_the_background_the_workspace_stays(self):
        self.keep_probe(x=0)
        self.open()
        place = self.desktop.geometry(self.window)
        self.desktop.click(*self.at(1150, 1620), button=2)
        self.window_titled("Probe")
        self.assertEqual(self.desktop.geometry(self.window), place)
        self.assertTrue(self.desktop.x.is_viewable(self.window))

    def test_it_comes_as_large_as_was_asked_for(self):
        self.keep_probe(("RunIn", 3), x=1500)
        self.open()
        self.start()
        window = self.window_titled("Probe")
        until(lambda: {"_NET_WM_STATE_MAXIMIZED_VERT", "_NET_WM_STATE_MAXIMIZED_HORZ"} <= self.desktop.states(window),
              "it is large")

    def test_it_comes_minimised_when_that_was_asked_for(self):
        self.keep_probe(("RunIn", 2), x=1500)
        self.open()
        self.start()
        window = self.window_titled("Probe")
        until(lambda: not self.desktop.x.is_viewable(window), "it is small")


class OnOpenbox(Windows, Starting):
    desktop_options = {"wm": "openbox"}


class OnXfwm4(Windows, Starting):
    desktop_options = {"wm": "xfwm4"}


if __name__ == "__main__":
    unittest.main()
