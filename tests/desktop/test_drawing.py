"""The drawing primitives as they come out of the real canvas: the pixels of a sheet that canvas_probe paints."""

import os
import subprocess
import tempfile
import unittest

from harness import build_folder

GREY, YELLOW, RED, BLUE, BLACK = (128, 128, 128), (255, 255, 0), (255, 0, 0), (0, 0, 255), (0, 0, 0)


class Sheet:
    def __init__(self, scale):
        self.scale = scale
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "sheet.ppm")
            subprocess.run([os.path.join(build_folder(), "bin", "canvas_probe"), path, str(scale)], check=True,
                           env={**os.environ, "QT_QPA_PLATFORM": "offscreen", "XDG_RUNTIME_DIR": folder}, timeout=60)
            with open(path, "rb") as file:
                head, size, depth, self.bytes = file.read().split(b"\n", 3)
        assert (head, depth) == (b"P6", b"255")
        self.width, self.height = (int(part) for part in size.split())

    def pixel(self, x, y):
        """Of the device."""
        at = 3 * (y * self.width + x)
        return tuple(self.bytes[at:at + 3])

    def at(self, x, y):
        """The upper left pixel of the device at a place of the sheet."""
        return self.pixel(int(x * self.scale), int(y * self.scale))

    def inked(self, left, top, right, bottom, ground=GREY):
        """The box around all that is not ground, in places of the sheet; None when there is nothing."""
        scale = self.scale
        found = [(x, y) for y in range(int(top * scale), int(bottom * scale))
                 for x in range(int(left * scale), int(right * scale)) if self.pixel(x, y) != ground]
        if not found:
            return None
        xs, ys = zip(*found)
        return (min(xs) / scale, min(ys) / scale, (max(xs) + 1) / scale, (max(ys) + 1) / scale)


class Drawing(unittest.TestCase):
    scale = 1

    @classmethod
    def setUpClass(cls):
        cls.sheet = Sheet(cls.scale)

    def test_a_ramp_runs_by_a_hundred_steps_and_reversed_from_below(self):
        self.assertEqual(self.sheet.at(25, 0), BLACK)
        self.assertEqual(self.sheet.at(25, 75), (50, 50, 50))
        self.assertEqual(self.sheet.at(25, 150), (100, 100, 100))
        self.assertEqual(self.sheet.at(25, 151), GREY)
        self.assertEqual(self.sheet.at(145, 150), BLACK)
        self.assertEqual(self.sheet.at(145, 0), (100, 100, 100))

    def test_a_ramp_stops_where_a_channel_passes_white(self):
        self.assertEqual(self.sheet.at(85, 0), (250, 100, 100))
        self.assertEqual(self.sheet.at(85, 5), (255, 105, 105))
        self.assertEqual(self.sheet.inked(60, 0, 110, 160), (60, 0, 110, 6))

    def test_the_dark_ramp_begins_lower(self):
        self.assertEqual(self.sheet.at(205, 49), GREY)
        self.assertEqual(self.sheet.at(205, 50), BLACK)
        self.assertEqual(self.sheet.at(205, 52), (1, 1, 1))
        self.assertEqual(self.sheet.at(205, 300), (125, 125, 125))

    def test_a_border_of_three_is_seen_three_wide(self):
        row = [self.sheet.at(x, 335) for x in range(9, 15)]
        self.assertEqual(row, [GREY, RED, RED, RED, YELLOW, YELLOW])
        self.assertEqual(self.sheet.inked(0, 310, 125, 355), (10, 320, 111, 351))

    def test_a_see_through_ground_is_mixed_once_and_bears_solid_text(self):
        mixed = lambda color: tuple((part + 128) // 2 for part in color)
        near = lambda one, other: all(abs(a - b) <= 2 for a, b in zip(one, other))
        self.assertTrue(near(self.sheet.at(130, 320), GREY), "its corner is round")
        self.assertTrue(near(self.sheet.at(131, 335), mixed(RED)), self.sheet.at(131, 335))
        self.assertTrue(near(self.sheet.at(133, 335), mixed(RED)), "the inner half of the border too")
        self.assertTrue(near(self.sheet.at(220, 340), mixed(YELLOW)), self.sheet.at(220, 340))
        dark = [self.sheet.at(x, y) for x in range(137, 200) for y in range(325, 348)]
        self.assertIn(BLACK, dark)

    def test_one_is_right_and_only_two_centres(self):
        left, right, center = (self.sheet.inked(0, 362 + 30 * row, 250, 388 + 30 * row) for row in range(3))
        self.assertLess(left[0], 16)
        self.assertGreater(right[2], 224)
        self.assertAlmostEqual((center[0] + center[2]) / 2, 120.5, delta=1.5)

    def test_text_is_cut_at_its_rectangle_unless_the_label_follows_it(self):
        self.assertLessEqual(self.sheet.inked(250, 320, 400, 348)[2], 298)
        self.assertGreater(self.sheet.inked(250, 350, 400, 378)[2], 330)

    def test_colors_of_the_desktop_are_looked_up(self):
        self.assertNotIn(self.sheet.at(262, 382), (GREY, BLACK, (15, 0, 0)))

    def test_a_round_window_has_its_frame_inside_and_nothing_in_its_corners(self):
        self.assertEqual(self.sheet.inked(250, 0, 370, 110), (260, 0, 360, 100), "smaller by the frame")
        self.assertEqual(self.sheet.at(260, 0), GREY)
        self.assertNotIn(self.sheet.at(261, 50), (GREY, BLUE), "the frame")
        self.assertEqual(self.sheet.at(264, 50), BLUE)
        self.assertNotEqual(self.sheet.at(263, 50), BLUE)
        self.assertEqual(self.sheet.at(310, 4), BLUE)

    def rows(self, left, top, right, bottom):
        """The pixels of the device in places of the sheet."""
        scale = self.scale
        return [[self.sheet.pixel(x, y) for x in range(left * scale, right * scale)]
                for y in range(top * scale, bottom * scale)]

    def test_the_four_corners_of_a_round_box_are_alike_and_smooth(self):
        box = self.rows(250, 120, 300, 170)
        self.assertEqual(box[0][0], GREY)
        self.assertEqual(box[0][len(box) // 2], BLUE)
        self.assertEqual(box[len(box) // 2][0], BLUE)
        corner = [pixel for row in box[:12 * self.scale] for pixel in row[:12 * self.scale]]
        self.assertGreater(len(set(corner)), 6, "it has steps")
        near = lambda one, other: all(abs(a - b) <= 3 for a, b in zip(one, other))
        for y, row in enumerate(box):
            for x, pixel in enumerate(row):
                for other in (row[-1 - x], box[-1 - y][x]):
                    self.assertTrue(near(pixel, other), "%s and %s at %d, %d" % (pixel, other, x, y))

    def test_what_is_clipped_round_has_the_shape_of_a_round_box(self):
        near = lambda one, other: all(abs(a - b) <= 3 for a, b in zip(one, other))
        box, clipped = self.rows(250, 120, 300, 170), self.rows(310, 120, 360, 170)
        for here, there in zip(box, clipped):
            self.assertTrue(all(map(near, here, there)))
        self.assertEqual(self.sheet.inked(302, 112, 368, 178), (310, 120, 360, 170), "nothing beside it")

    def test_a_see_through_round_box_is_mixed_once_everywhere(self):
        box = self.rows(250, 180, 300, 230)
        inner = [pixel for row in box[14 * self.scale:-14 * self.scale] for pixel in row]
        self.assertEqual(len(set(inner)), 1, set(inner))
        self.assertEqual(set(box[0][14 * self.scale:-14 * self.scale]), set(inner))
        self.assertEqual(box[0][0], GREY)

    def test_a_halo_goes_a_pixel_around_the_letters_and_is_the_same_each_time(self):
        plain, halo, again = (self.rows(312, top, 366, top + 28) for top in (178, 208, 238))
        self.assertEqual(halo, again)
        def inked(rows):
            found = [(x, y) for y, row in enumerate(rows) for x, pixel in enumerate(row) if pixel != GREY]
            xs, ys = zip(*found)
            return min(xs), min(ys), max(xs), max(ys)
        left, top, right, bottom = inked(plain)
        step = self.scale
        self.assertEqual(inked(halo), (left - step, top - step, right + step, bottom + step))
        dark = min(sum(pixel) for row in halo for pixel in row)
        self.assertLess(dark, sum(GREY) / 2)

    def test_turned_text_runs_up_and_down_from_its_corner(self):
        flat = self.sheet.inked(375, 295, 500, 330)
        up = self.sheet.inked(390, 60, 425, 240)
        down = self.sheet.inked(426, 0, 460, 140)
        length, height = flat[2] - flat[0], flat[3] - flat[1]
        self.assertGreaterEqual(up[0], 400, "the top of its letters looks to the left")
        self.assertLess(up[2], 400 + 16)
        self.assertLess(200 - up[3], 3, "it begins at the corner and runs upward")
        self.assertLessEqual(down[2], 440)
        self.assertLess(down[1] - 20, 3)
        for turned in (up, down):
            self.assertAlmostEqual(turned[3] - turned[1], length, delta=3)
            self.assertAlmostEqual(turned[2] - turned[0], height, delta=2)


class DrawingAt200Percent(Drawing):
    scale = 2


if __name__ == "__main__":
    unittest.main()
