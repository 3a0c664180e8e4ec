#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The item and the dashboard on screens of a higher density: at each scale the item is drawn anew
rather than made larger, and the dashboard opens beside it. In the panel that ZEPHRINE_HOST names,
and at every scale; where none is named, in a few panels at one scale each."""
import math
import os
import unittest

import hosts
import settings
from desktop import wait_until
from monitors import split_screen
from program import PROGRAM, DesktopTestCase, changed_box, click, dashboard, strip
from reading import figures, with_margin
from strips import drag, middle, wait_for_strip

WIDTH, HEIGHT = 1400, 1500  # of the screen, which has room for a dashboard of twice the size
SCALES = (1, 1.25, 1.5, 2)
# How the panels are told of the scale, and the program is in any case. Those of GTK know whole
# numbers only, and the strip needs no panel.
SCALABLE = {"none": (None, SCALES), "lxqt": ("QT_SCALE_FACTOR", SCALES),
            "xfce": ("GDK_SCALE", (1, 2)), "mate": ("GDK_SCALE", (1, 2))}
SHORT = {"none": (1.25,), "lxqt": (1.5,), "xfce": (2,)}
# What was seen of text that was drawn at its size, 0.85 and more, and of text made larger by a
# quarter or by half, 0.78 and less. MATE gives items two pixels less than the panel has.
SHARP = {"none": 0.82, "lxqt": 0.82, "xfce": 0.82, "mate": 0.7}
# Likewise of text made larger by a quarter, pixel for pixel; else no two rows are the same.
REPETITIVE = 0.1


class Scales(DesktopTestCase):
    def test_the_item_is_sharp_and_the_dashboard_beside_it(self):
        chosen = os.environ.get("ZEPHRINE_HOST")
        for name, scales in {chosen: SCALABLE[chosen][1]}.items() if chosen else SHORT.items():
            for scale in scales:
                with self.subTest(name, scale=scale), \
                        self.desktop(width=WIDTH, height=HEIGHT) as desktop:
                    self.try_scale(desktop, name, scale)

    def try_scale(self, desktop, name, scale):
        variable, _ = SCALABLE[name]
        if variable:
            desktop.environment[variable] = str(scale)
        desktop.environment["QT_SCALE_FACTOR"] = str(scale)
        hosts.BY_NAME[name].start(desktop)
        empty = desktop.settled_picture()
        program = desktop.start(PROGRAM)

        def legible_item():
            box = changed_box(empty, desktop.picture())
            return box if box and len(figures(desktop.picture(with_margin(box)), scale)) == 2 \
                else None

        box = wait_until(legible_item, 15, "an item that can be read")
        left, top, right, bottom = box
        self.assertGreater(bottom - top, 13 * scale)
        text = desktop.picture(without_edge(box, scale) if name == "none" else box)
        self.assertGreater(sharpness(text), SHARP[name])
        self.assertLess(repetition(text), REPETITIVE)

        click(desktop, ((left + right) // 2, (top + bottom) // 2))
        _, x, y, width, height = wait_until(lambda: dashboard(desktop, program), 5,
                                            "the dashboard")
        # With an edge of one point around its content.
        self.assertEqual((width, height), (math.ceil(362 * scale), math.ceil(662 * scale)))
        self.assertTrue(0 <= x < right and left < x + width <= WIDTH)
        self.assertTrue(0 <= y and y + height <= HEIGHT)
        self.assertLess(min(abs(y - bottom), abs(top - y - height)), 20 * scale)

    def test_the_item_in_a_tray_has_the_scale_of_the_screen_of_the_tray(self):
        with self.desktop(width=WIDTH, height=HEIGHT) as desktop:
            split_screen(desktop, (WIDTH // 2, WIDTH // 2), height=HEIGHT)
            hosts.trayer(desktop, "--monitor", "1", "--height", "52")
            area = (WIDTH // 2, 0, WIDTH, 60)
            empty = desktop.settled_picture(area)
            desktop.start(PROGRAM, environment={
                "QT_SCREEN_SCALE_FACTORS": "monitor-0=1;monitor-1=2"})

            def sharp_item():
                picture = desktop.picture(area)
                box = changed_box(empty, picture)
                if not box or len(figures(picture.crop(with_margin(box)), 2)) != 2:
                    return False
                text = picture.crop(box)
                return (text.width > 2 * 50 and sharpness(text) > SHARP["none"]
                        and repetition(text) < REPETITIVE)

            wait_until(sharp_item, 15, "an item that is sharp, and twice the size")

    def test_the_strip_is_whole_and_sharp_on_a_screen_of_another_scale(self):
        with self.desktop(width=WIDTH, height=HEIGHT) as desktop:
            split_screen(desktop, (WIDTH // 2, WIDTH // 2), height=HEIGHT)
            # So seldom that what is drawn at once is no refresh.
            settings.store(desktop, refreshInterval=5)
            empty = desktop.settled_picture()
            program = desktop.start(PROGRAM, environment={
                "QT_SCREEN_SCALE_FACTORS": "monitor-0=1;monitor-1=2"})
            small = wait_for_strip(desktop, program)
            wait_until(lambda: sharp_strip(desktop, empty, small, 1), 10, "the strip")
            drag(desktop, middle(small), (WIDTH * 3 // 4, HEIGHT // 2))
            large = wait_until(lambda: (now := strip(desktop, program)) and now[3] > small[3]
                               and now, 10, "a larger strip")
            self.assertEqual(large[3:], (2 * small[3], 2 * small[4]))
            # It may be on its way still.
            wait_until(lambda: (now := strip(desktop, program))
                       and sharp_strip(desktop, empty, now, 2), 4, "all of the strip, sharp")


def sharp_strip(desktop, empty, window, scale):
    _, x, y, width, height = window
    box = (x, y, x + width, y + height)
    text = desktop.picture(without_edge(box, scale))
    return (changed_box(empty, desktop.picture()) == box and sharpness(text) > SHARP["none"]
            and repetition(text) < REPETITIVE)


def without_edge(box, scale):
    """The part of the strip that has nothing but text."""
    across, down = math.ceil(6 * scale), math.ceil(3 * scale)
    return box[0] + across, box[1] + down, box[2] - across, box[3] - down


def sharpness(picture):
    """How steep the steepest steps from one pixel to the next one in its row are, in parts of the
    picture's contrast; a few of them may be due to chance."""
    grey = picture.convert("L")
    pixels, (darkest, brightest) = grey.load(), grey.getextrema()
    steps = sorted(abs(pixels[x, y] - pixels[x + 1, y])
                   for y in range(grey.height) for x in range(grey.width - 1))
    return steps[-6] / (brightest - darkest)


def repetition(picture):
    """How many of the rows with text are just like the one above, in parts of one."""
    grey = picture.convert("L")
    rows = [grey.crop((0, y, grey.width, y + 1)).tobytes() for y in range(grey.height)]
    blank = max(set(rows), key=rows.count)
    pairs = [(one, other) for one, other in zip(rows, rows[1:]) if other != blank]
    return sum(one == other for one, other in pairs) / len(pairs)


if __name__ == "__main__":
    unittest.main(verbosity=2)
