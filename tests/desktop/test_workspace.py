"""The workspace as a person uses it: the real program under a window manager, by mouse and keys, and the outcome
read from what it saved or started."""

import os
import signal
import subprocess
import unittest

from harness import DesktopTest, build_folder, until
import workspace_files as files

TITLE_HEIGHT, EDGE_X, EDGE_Y = 290, 20, 15  # twips: a container's title row; where picBack begins in the window


class Workspace(DesktopTest):
    def setUp(self):
        super().setUp()
        self.folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere")

    # The person's words

    def keep(self, containers=(), **settings):
        files.put(self.folder, files.settings(**settings), containers)

    def open(self, *args, env=None):
        self.app = self.desktop.start("quillmere", ["--nosplash", *args], env)
        self.window = self.app.wait_window(title="Quillmere")
        return self.app

    def at(self, x, y):
        """A place of the workspace in twips, as a pixel of the screen."""
        left, top, _, _ = self.desktop.geometry(self.window)
        return (left + int((EDGE_X + x) // 15), top + int((EDGE_Y + y) // 15))

    def fold_mark(self, x, y, w=3000):
        return self.at(x + w - 180, y + 145)

    def saved(self, name):
        path = os.path.join(self.folder, name)
        return files.read(path) if os.path.exists(path) else ""

    def await_saved(self, name, tag, value):
        until(lambda: files.value(self.saved(name), tag) == value, "%s holds %s %s: %s" % (name, tag, value, self.saved(name)))

    def program_that_leaves_a_mark(self, name="starts"):
        path, mark = os.path.join(self.desktop.home, name), os.path.join(self.desktop.home, name + ".started")
        files.write(path, "#!/bin/sh\nprintf '%%s|' \"$@\" > '%s.new'\nmv '%s.new' '%s'\n" % (mark, mark, mark))
        os.chmod(path, 0o755)
        return path, mark

    def titles(self):
        return [self.desktop.title(window) for window in self.app.all_windows()]

    # Starting things

    def test_a_double_click_on_a_shortcut_starts_it(self):
        program, mark = self.program_that_leaves_a_mark()
        self.keep([files.container("Work", links=files.link("Starts", program, param="one 'two three' $HOME"))])
        self.open()
        self.desktop.double_click(*self.at(900 + 480, 900 + TITLE_HEIGHT + 400))
        until(lambda: os.path.exists(mark), "the program has run")
        self.assertEqual(files.read(mark), "one|two three|$HOME|")

    def test_a_single_click_starts_it_where_that_is_set(self):
        program, mark = self.program_that_leaves_a_mark()
        self.keep([files.container("Work", links=files.link("Starts", program))], extra=files.lines("[Dbl-Click]", 0))
        self.open()
        self.desktop.click(*self.at(900 + 480, 900 + TITLE_HEIGHT + 400))
        until(lambda: os.path.exists(mark), "the program has run")

    def test_a_started_program_outlives_the_workspace(self):
        path, mark = os.path.join(self.desktop.home, "stays"), os.path.join(self.desktop.home, "stays.pid")
        files.write(path, "#!/bin/sh\necho $$ > '%s.new'; mv '%s.new' '%s'\nexec sleep 60\n" % (mark, mark, mark))
        os.chmod(path, 0o755)
        self.keep([files.container("Work", links=files.link("Stays", path))])
        self.open()
        self.desktop.double_click(*self.at(900 + 480, 900 + TITLE_HEIGHT + 400))
        until(lambda: os.path.exists(mark), "the program runs")
        self.assertEqual(self.app.terminate(), 0)
        pid = int(files.read(mark))
        os.kill(pid, 0)
        os.kill(pid, signal.SIGKILL)

    def test_a_failed_start_says_error_and_the_systems_words(self):
        self.keep([files.container("Work", links=files.link("Gone", "/nowhere/at/all"))])
        self.open()
        self.desktop.double_click(*self.at(900 + 480, 900 + TITLE_HEIGHT + 400))
        until(lambda: len(self.app.all_windows()) > 1, "a box says it")
        self.desktop.key("Escape")
        until(lambda: len(self.app.all_windows()) == 1, "the box goes at Escape")
        self.assertTrue(self.app.running())

    def test_the_keyboard_is_back_in_the_workspace_after_a_box(self):
        self.keep([files.container("Work", links=files.link("Gone", "/nowhere/at/all"))])
        other = self.desktop.start("xterm")
        other.wait_window()
        self.open()
        self.desktop.double_click(*self.at(900 + 480, 900 + TITLE_HEIGHT + 400))
        until(lambda: len(self.app.all_windows()) > 1, "a box says it")
        self.desktop.key("Escape")
        until(lambda: self.desktop.has_keyboard(self.window), "the workspace has the keyboard again")

    # Containers

    def test_folding_and_unfolding_by_the_mark_is_saved(self):
        self.keep([files.container("Work")])
        self.open()
        self.desktop.click(*self.fold_mark(900, 900))
        self.await_saved("Containers/0.REC", "[Folded]", "1")
        self.desktop.click(*self.fold_mark(900, 900))
        self.await_saved("Containers/0.REC", "[Folded]", "0")

    def test_a_tile_opens_by_a_click_and_closes_by_one_beside_it(self):
        self.keep([files.container("Work", x=3000, y=3000, shrink=1)])
        self.open()
        below = self.at(3000 + 350, 3000 + 2000)
        closed = self.desktop.pixel(*below)
        self.desktop.click(*self.at(3000 + 350, 3000 + 475))
        until(lambda: self.desktop.pixel(*below) != closed, "the container is open")
        self.desktop.click(*self.at(9000, 7500))
        until(lambda: self.desktop.pixel(*below) == closed, "it is a tile again")

    def test_the_mark_in_its_corner_makes_a_container_a_tile(self):
        self.keep([files.container("Work")])
        self.open()
        self.desktop.click(*self.at(900 + 150, 900 + 135))
        self.await_saved("Containers/0.REC", "[Shrink]", "1")

    # Notes

    def test_a_right_click_into_a_note_pastes_by_menu(self):
        self.keep([files.container("Work")])
        self.open()
        self.desktop.key("ctrl+n")
        self.desktop.type("once ")
        self.desktop.key("ctrl+a", "ctrl+c", "End")
        left, top, _, _ = self.desktop.geometry(self.window)
        place = (left + 600 // 15 + 100, top + 600 // 15 + 60)
        self.desktop.click(*place, button=3)
        until(lambda: len(self.app.all_windows()) > 1, "the note's own menu")
        self.desktop.key("p")
        self.desktop.key("F8")
        until(lambda: "once once" in self.saved("Containers/1.con"), "it is pasted: " + self.saved("Containers/1.con"))

    def test_a_typed_note_is_saved_two_seconds_after_the_last_key(self):
        self.keep([files.container("Note", note="before", note_on=1)])
        self.open()
        self.desktop.click(*self.at(900 + 1500, 900 + TITLE_HEIGHT + 1000))
        self.app.settle()
        self.desktop.key("ctrl+End")
        self.desktop.type(" after")
        until(lambda: "[START Note]\r\nbefore\r\n after\r\n[END Note]" in self.saved("Containers/0.REC"), "the text is saved")

    def test_a_typed_note_survives_a_kill(self):
        self.keep([files.container("Note", note="", note_on=1)])
        self.open()
        self.desktop.click(*self.at(900 + 1500, 900 + TITLE_HEIGHT + 1000))
        self.app.settle()
        self.desktop.type("kept")
        until(lambda: "kept" in self.saved("Containers/0.REC"), "the recovery set has it")
        self.app.process.kill()
        self.app.wait_exit()
        self.open()
        self.assertFalse(os.path.exists(os.path.join(self.folder, "Containers", "0.REC")))
        self.assertIn("kept", self.saved("Containers/0.con"))

    # The window

    def test_the_title_row_moves_the_window_and_the_place_is_kept(self):
        self.keep()
        self.open()
        before = self.desktop.geometry(self.window)
        start = self.at(3000, 150)
        self.desktop.drag(start, (start[0] + 60, start[1] + 40))
        until(lambda: self.desktop.geometry(self.window)[:2] == (before[0] + 60, before[1] + 40), "the window has moved")
        self.app.terminate()
        self.assertEqual(files.value(self.saved("Quillmere.ini"), "[X]"), str((before[0] + 60) * 15))
        self.assertEqual(files.value(self.saved("Quillmere.ini"), "[Y]"), str((before[1] + 40) * 15))

    def test_a_corner_resizes_the_window(self):
        self.keep()
        self.open()
        x, y, w, h = self.desktop.geometry(self.window)
        self.desktop.drag((x + w - 3, y + h - 3), (x + w + 57, y + h + 37))
        until(lambda: self.desktop.geometry(self.window) == (x, y, w + 60, h + 40), "the window has grown")

    def test_a_place_beyond_the_edge_is_kept_to_the_pixel(self):
        self.keep(x=4500, y=-1500)
        self.open()
        until(lambda: self.desktop.geometry(self.window)[:2] == (300, -100), "it stands where it was")

    def test_maximising_fills_the_work_area_and_comes_back(self):
        self.keep()
        self.open()
        before = self.desktop.geometry(self.window)
        self.desktop.double_click(*self.at(3000, 150))
        until(lambda: self.desktop.geometry(self.window)[2] == self.desktop.size[0], "it fills the screen")
        self.desktop.click(*self.at(9000, 7000))
        self.desktop.key("F11")
        until(lambda: self.desktop.geometry(self.window) == before, "it is back")

    # Save, exit, second start

    def test_f8_saves(self):
        self.keep([files.container("Work")])
        self.open()
        self.desktop.click(*self.fold_mark(900, 900))
        self.await_saved("Containers/0.REC", "[Folded]", "1")
        self.desktop.click(*self.at(9000, 7000))
        self.desktop.key("F8")
        self.await_saved("Containers/0.con", "[Folded]", "1")
        until(lambda: not os.path.exists(os.path.join(self.folder, "Containers", "0.REC")), "no recovery set is left")

    def test_the_menu_opens_by_a_right_click_and_saves_by_its_mnemonic(self):
        self.keep([files.container("Work")])
        self.open()
        os.remove(os.path.join(self.folder, "Containers", "0.con"))
        self.desktop.click(*self.at(9000, 7000), button=3)
        until(lambda: len(self.app.all_windows()) > 1, "the menu shows")
        self.desktop.key("s")
        self.await_saved("Containers/0.con", "[Name]", "Work")

    def test_every_end_of_a_session_saves(self):
        for word in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(word=word):
                self.keep([files.container("Work")])
                self.open()
                self.desktop.click(*self.fold_mark(900, 900))
                self.await_saved("Containers/0.REC", "[Folded]", "1")
                self.app.process.send_signal(word)
                self.assertEqual(self.app.wait_exit(), 0)
                self.assertEqual(files.value(self.saved("Containers/0.con"), "[Folded]"), "1")

    def test_a_session_that_ends_over_an_open_menu_and_box_saves(self):
        self.keep([files.container("Work")])
        self.open()
        self.desktop.click(*self.at(9000, 7000), button=3)
        until(lambda: len(self.app.all_windows()) > 1, "the menu shows")
        self.assertEqual(self.app.terminate(), 0)

    def test_a_second_start_brings_the_workspace_out_and_ends(self):
        self.keep()
        self.open()
        other = self.desktop.start("xterm", ["-geometry", "80x24+0+0"])
        other.wait_window(window_class="xterm")
        done = subprocess.run([os.path.join(build_folder(), "bin", "quillmere")], env=self.desktop.env, timeout=30)
        self.assertEqual(done.returncode, 0)
        until(lambda: self.desktop.active_window() == self.window, "the workspace has the focus")
        self.assertTrue(self.app.running())

    def test_backup_beside_a_running_copy_disturbs_nobody(self):
        self.keep([files.container("Work")])
        self.open()
        done = subprocess.run([os.path.join(build_folder(), "bin", "quillmere"), "--backup", "--silent"],
                              env={k: v for k, v in self.desktop.env.items() if k != "DISPLAY"}, timeout=30)
        self.assertEqual(done.returncode, 0)
        listing = subprocess.run(["unzip", "-Z1", os.path.join(self.folder, "Quillmere_Backup.zip")], capture_output=True, text=True)
        self.assertEqual(sorted(listing.stdout.split()), ["0.con", "Quillmere.ini", "Readme_1st.txt"])
        self.assertTrue(self.app.running())

    def test_ignoring_changes_comes_back_with_what_was_saved(self):
        self.keep([files.container("Work")])
        self.open()
        self.desktop.click(*self.fold_mark(900, 900))
        self.await_saved("Containers/0.REC", "[Folded]", "1")
        self.desktop.click(*self.at(9000, 7000), button=3)
        until(lambda: len(self.app.all_windows()) > 1, "the menu shows")
        self.desktop.key("i")
        until(lambda: any(t == "Quillmere" and w != self.window for w, t in zip(self.app.all_windows(), self.titles())), "the question shows")
        self.app.settle()
        self.desktop.key("alt+y")
        self.assertEqual(self.app.wait_exit(), 0)
        x = self.desktop.x
        def again():
            return next((w for w in self.desktop.windows() if self.desktop.title(w) == "Quillmere"), None)
        window = until(again, "the program is back")
        os.kill(x.number(window, "_NET_WM_PID"), signal.SIGTERM)
        self.await_saved("Containers/0.con", "[Folded]", "0")

    # Bad input

    def test_a_damaged_file_is_told_and_set_aside_before_anything_is_written(self):
        self.keep([files.container("Work"), files.container("Other", x="nonsense")])
        app = self.desktop.start("quillmere", ["--nosplash"])
        box = app.wait_window()
        self.assertTrue(os.path.exists(os.path.join(self.folder, "Containers", "1.con.damaged")) or box)
        self.desktop.key("Return")
        until(lambda: any(self.desktop.geometry(w)[2] == 800 for w in app.all_windows()), "the workspace comes up")
        until(lambda: os.path.exists(os.path.join(self.folder, "Containers", "1.con.damaged")), "the damaged file is kept")
        self.assertIn("nonsense", self.saved("Containers/1.con.damaged"))

    def test_a_settings_folder_that_cant_be_made_is_told_in_the_title_and_on_the_error_stream(self):
        config = self.desktop.env["XDG_CONFIG_HOME"]
        files.write(self.folder, "a file stands in the way")
        self.assertTrue(os.path.isfile(self.folder), config)
        self.open()
        self.desktop.key("F8")
        until(lambda: "save" in self.app.stderr, "the failure is told")
        self.assertEqual(self.app.terminate(), 0)
        self.assertTrue(os.path.isfile(self.folder))

    def test_without_a_display_it_says_what_to_do(self):
        env = {k: v for k, v in self.desktop.env.items() if k not in ("DISPLAY", "QT_QPA_PLATFORM")}
        done = subprocess.run([os.path.join(build_folder(), "bin", "quillmere")], env=env, capture_output=True, text=True, timeout=30)
        self.assertEqual(done.returncode, 1)
        self.assertIn("quillmere:", done.stderr)
        self.assertIn("display", done.stderr.lower())


if __name__ == "__main__":
    unittest.main()
