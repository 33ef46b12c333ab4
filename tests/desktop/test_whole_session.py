"""One session from the start to the exit, as a person lives it: the workspace goes when it is not needed, comes back
by every way there is, follows the monitors, and stands where it was the next time."""

import os

from harness import DesktopTest, until
import workspace_files as files

TWIPS = 15
LEFT, RIGHT = (0, 0, 900, 800), (900, 0, 700, 800)  # the two monitors
WIDTH, HEIGHT = 480, 400  # of the workspace, pixels
BEYOND = 200  # twips that it stands over the right edge when it is out
EDGE_X, EDGE_Y = 20, 15  # twips: where picBack begins in the window


class WholeSession(DesktopTest):
    desktop_options = {"geometry": "1600x800"}

    def start(self):
        self.mark = os.path.join(self.desktop.home, "started")
        program = os.path.join(self.desktop.home, "program")
        files.write(program, "#!/bin/sh\necho started >> '%s'\n" % self.mark)
        os.chmod(program, 0o755)
        self.folder = os.path.join(self.desktop.env["XDG_CONFIG_HOME"], "Quillmere")
        place = {"x": 1600 * TWIPS - WIDTH * TWIPS + BEYOND, "y": 200 * TWIPS, "w": WIDTH * TWIPS, "h": HEIGHT * TWIPS}
        rows = files.lines("[Dbl-Click]", 0, "[ShowTips]", 0)
        files.put(self.folder, files.settings(extra=rows, links=files.link("Program", program, x=600, y=900), **place))
        self.app = self.desktop.start("quillmere", ["--nosplash"])
        self.window = self.app.wait_window(title="^Quillmere$")
        self.other = self.desktop.start("xterm", ["-geometry", "40x10+20+20"])
        self.away = self.other.wait_window(window_class="xterm")

    # What a person does

    def look_elsewhere(self):
        self.desktop.click(200, 120)
        until(lambda: self.desktop.has_keyboard(self.away), "the other program has the keyboard")

    def hover_on_bar(self):
        left, top, width, height = self.desktop.geometry(self.bar())
        self.desktop.move_to(min(left + width // 2, 1599), top + height // 2)

    def hotkey(self):
        self.desktop.key("super+alt+s")

    # What a person sees

    def bar(self):
        return until(lambda: next((w for w in self.app.all_windows() if w != self.window and
                                   min(self.desktop.geometry(w)[2:]) <= 8), None), "the bar shows")

    def await_docked(self, edge):
        """The window is gone, and the bar lies at this x of the screen."""
        until(lambda: not self.desktop.x.is_viewable(self.window), "the workspace is gone")
        bar = self.bar()
        until(lambda: abs(self.desktop.geometry(bar)[0] + self.desktop.geometry(bar)[2] - edge) <= 3,
              "the bar lies at %d; it is at %s" % (edge, self.desktop.geometry(bar)))
        self.desktop.settle()

    def await_out(self, edge):
        place = (edge - WIDTH + BEYOND // TWIPS, 200, WIDTH, HEIGHT)
        until(lambda: self.desktop.x.is_viewable(self.window) and
              all(abs(a - b) <= 1 for a, b in zip(self.desktop.geometry(self.window), place)),
              "the workspace is out at %s; it is at %s" % (place, self.desktop.geometry(self.window)))
        until(lambda: all(w == self.window or min(self.desktop.geometry(w)[2:]) > 8 for w in self.app.all_windows()),
              "the bar is gone")
        self.desktop.settle()

    def test_a_day_with_the_workspace(self):
        self.desktop.set_monitors(LEFT, RIGHT)
        self.start()
        self.look_elsewhere()
        self.await_docked(1600)

        self.hover_on_bar()
        self.await_out(1600)
        self.assertTrue(self.desktop.has_keyboard(self.away), "coming out by the mouse takes no keyboard")

        left, top, _, _ = self.desktop.geometry(self.window)
        self.desktop.click(left + (EDGE_X + 900) // TWIPS, top + (EDGE_Y + 960) // TWIPS)
        until(lambda: os.path.exists(self.mark), "the program is started")
        self.await_docked(1600)

        self.hotkey()
        self.await_out(1600)
        until(lambda: self.desktop.has_keyboard(self.window), "the hotkey gives it the keyboard")
        self.desktop.key("Escape")
        self.await_docked(1600)
        until(lambda: self.desktop.has_keyboard(self.away), "the other program has the keyboard again")

        self.desktop.unplug_monitor(1)
        self.await_docked(900)
        self.desktop.plug_monitor(1, RIGHT)
        self.await_docked(1600)

        self.assertEqual(self.app.terminate(), 0)
        saved = files.read(self.folder, "Quillmere.ini")
        self.assertEqual(files.value(saved, "[X]"), str(1600 * TWIPS - WIDTH * TWIPS + BEYOND))
        self.app = self.desktop.start("quillmere", ["--nosplash"])
        self.window = self.app.wait_window(title="^Quillmere$")
        self.assertAlmostEqual(self.desktop.geometry(self.window)[0], 1600 - WIDTH + BEYOND // TWIPS, delta=1)


class WholeSessionOnXfwm4(WholeSession):
    desktop_options = {"geometry": "1600x800", "wm": "xfwm4"}
