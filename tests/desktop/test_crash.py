"""Nothing lost: the real program is killed at every single call with which it changes its settings folder, and
the next real start must have one whole generation, the older or the newer."""

import os
import shutil
import signal
import socket
import subprocess
import unittest

from harness import DesktopTest, build_folder, until
import workspace_files as files

SHIM = os.path.join(build_folder(), "lib", "libdie_at.so")
# What follows a kill is looked at without a screen: the start itself is the real one.
HEADLESS = {"QT_QPA_PLATFORM": "offscreen"}


class Crash(DesktopTest):
    desktop_options = {"wm": None}

    def setUp(self):
        super().setUp()
        self.folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere")

    def old_workspace(self):
        shutil.rmtree(self.folder, ignore_errors=True)
        files.put(self.folder, files.settings(), [
            files.container("First", x=900, links=files.link("Home", "/")),
            files.container("Second", x=4500, note="a note\r\nof two lines", note_on=1),
            files.container("Third", x=8100, shrink=1)])

    def start(self, shim=None, env=None):
        environment = dict(env or {})
        if shim is not None:
            environment.update(LD_PRELOAD=SHIM, QUILLMERE_DIE_FOLDER=self.folder, **shim)
            if "ASAN_OPTIONS" in self.desktop.env:
                environment["ASAN_OPTIONS"] = self.desktop.env["ASAN_OPTIONS"] + ":verify_asan_link_order=0"
        return self.desktop.start("quillmere", ["--nosplash"], environment)

    def is_up(self, app):
        """A call as a second start makes it is answered from the event loop: then the load is over."""
        path = os.path.join(self.desktop.env["XDG_RUNTIME_DIR"], "quillmere", "socket")
        def answered():
            if not app.running():
                return True
            try:
                with socket.socket(socket.AF_UNIX) as call:
                    call.settimeout(5)
                    call.connect(path)
                    call.sendall(b"show \n")
                    return call.recv(1) == b"!"
            except OSError:
                return False
        until(answered, "the workspace is up; " + app.stderr)

    def settled_workspace(self):
        """A real start and a real end: what the person has now, in the form in which it is saved."""
        app = self.start(env=HEADLESS)
        self.is_up(app)
        self.assertTrue(app.running(), "the start after the death failed: " + app.stderr)
        self.assertEqual(app.terminate(), 0, app.stderr)
        return files.tree(self.folder)

    def run_and(self, act, shim):
        app = self.start(shim)
        window = None
        if act is not self.end:
            def seek():
                return app.find_window(title="Quillmere") or not app.running()
            window = until(seek, "the workspace shows")
        self.is_up(app)
        if app.running():
            act(app, window)
        if app.running():
            app.process.kill()
        app.wait_exit()
        return app

    def end(self, app, _):
        app.terminate()

    def fold(self, app, window):
        """Folds the first container by its mark: a change with a recovery save behind it."""
        x, y, _, _ = self.desktop.geometry(window)
        left = x + (20 + 900 + 3000 - 180) // 15
        top = y + (15 + 900 + 145) // 15
        count = self.calls()
        self.desktop.click(left, top)
        until(lambda: not app.running() or self.calls() > count, "the save begins")
        self.is_up(app)  # the save is one turn of the event loop, which answers when it is through

    def calls(self):
        try:
            return len(files.read(self.log).splitlines())
        except OSError:
            return 0

    def enumerate_deaths(self, act, prepare):
        self.log = os.path.join(self.desktop.home, "calls")
        prepare()
        older = self.settled_workspace()
        prepare()
        self.run_and(act, {"QUILLMERE_DIE_LOG": self.log})
        total = self.calls()
        self.assertGreater(total, 3, "the save was not seen")
        newer = self.settled_workspace()
        for number in range(1, total + 1):
            with self.subTest(call=number, of=total):
                prepare()
                os.remove(self.log)
                app = self.run_and(act, {"QUILLMERE_DIE_LOG": self.log, "QUILLMERE_DIE_AT": str(number)})
                self.assertEqual(app.process.returncode, -signal.SIGKILL, "it did not die where it was told to")
                found = self.settled_workspace()
                self.assertTrue(found in (older, newer), self.difference(found, older, newer))

    def difference(self, found, older, newer):
        text = "a mixture of two generations: " + ", ".join(sorted(found))
        for name, content in found.items():
            if content not in (older.get(name), newer.get(name)):
                text += "\n%s is of neither:\n%s" % (name, content[:600])
        return text

    def test_death_at_any_call_of_a_committed_save_leaves_one_whole_generation(self):
        self.enumerate_deaths(self.end, self.old_workspace)

    def test_death_at_any_call_of_a_recovery_save_leaves_one_whole_generation(self):
        self.enumerate_deaths(self.fold, self.old_workspace)

    def test_death_at_any_call_of_the_takeover_leaves_one_whole_generation(self):
        def with_recovery():
            self.old_workspace()
            for number, name in enumerate(("First", "Second", "Third and last")):
                files.write(os.path.join(self.folder, "Containers", "%d.REC" % number), files.container(name, x=900 + 3600 * number))
            files.write(os.path.join(self.folder, "Quillmere.REC"), files.settings(w=12300))
        self.enumerate_deaths(self.end, with_recovery)

    def test_a_full_disk_leaves_the_generation_on_disk_whole_and_says_so(self):
        self.log = os.path.join(self.desktop.home, "calls")
        self.old_workspace()
        before = self.settled_workspace()
        app = self.start({"QUILLMERE_DIE_LOG": self.log, "QUILLMERE_DIE_FULL": "1"})
        window = app.wait_window(title="Quillmere")
        self.is_up(app)
        self.fold(app, window)
        until(lambda: "No space left" in app.stderr, "the failure is told on the error stream")
        self.assertEqual(app.terminate(), 0)
        self.assertEqual(files.tree(self.folder), before)

    def test_a_folder_that_became_read_only_is_left_whole(self):
        if os.geteuid() == 0:
            self.old_workspace() # written by hand, so the exit has something to write
            before = files.tree(self.folder)
            subprocess.run(["mount", "--bind", "-o", "ro", self.folder, self.folder], check=False, capture_output=True)
            done = subprocess.run(["mount", "-o", "remount,ro,bind", self.folder], capture_output=True)
            if done.returncode != 0:
                self.skipTest("no mounts can be made here")
            self.addCleanup(subprocess.run, ["umount", self.folder], capture_output=True)
        else:
            self.old_workspace()
            before = files.tree(self.folder)
            for place, _, _ in os.walk(self.folder):
                os.chmod(place, 0o500)
                self.addCleanup(os.chmod, place, 0o700)
        app = self.start(env=HEADLESS)
        self.is_up(app)
        self.assertEqual(app.terminate(), 0)
        self.assertIn("can't save", app.stderr)
        self.assertEqual(files.tree(self.folder), before)


if __name__ == "__main__":
    unittest.main()
