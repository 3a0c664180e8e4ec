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
from figures import Figures, is_seen_at_once
from monitors import split_screen
from namespaces import NOBODY_MAY_MOUNT, may_mount
from pictures import Look
from program import PROGRAM, DesktopTestCase, changed_box, click, dashboard, strip
from shown import shown_item, shown_percent
from strips import drag, middle, wait_for_strip

WIDTH, HEIGHT = 1400, 1500  # of the screen, which has room for a dashboard of twice the size
# How the panels are told of the scale, and the program is in any case. Those of GTK know whole
# numbers only, and the strip needs no panel.
VARIABLES = {"none": None, "lxqt": "QT_SCALE_FACTOR", "xfce": "GDK_SCALE", "mate": "GDK_SCALE"}
SHORT = {"none": (1.25,), "lxqt": (1.5,), "xfce": (2,)}
TWO_SCREENS = {"QT_SCREEN_SCALE_FACTORS": "monitor-0=1;monitor-1=2"}


class Scales(DesktopTestCase):
    def test_the_item_is_sharp_and_the_dashboard_beside_it(self):
        chosen = os.environ.get("ZEPHRINE_HOST")
        for name, scales in {chosen: hosts.LOOKS[chosen]}.items() if chosen else SHORT.items():
            for scale in scales:
                with self.subTest(name, scale=scale), \
                        self.desktop(width=WIDTH, height=HEIGHT) as desktop:
                    self.try_scale(desktop, name, scale)

    def try_scale(self, desktop, name, scale):
        if VARIABLES[name]:
            desktop.environment[VARIABLES[name]] = str(scale)
        desktop.environment["QT_SCALE_FACTOR"] = str(scale)
        hosts.BY_NAME[name].start(desktop)
        empty = desktop.settled_picture()
        program = desktop.start(PROGRAM)
        look = hosts.LOOKS[name][scale]
        left, top, right, bottom = wait_until(lambda: shown_item(desktop, empty, look), 15,
                                              "the item as it is drawn at this scale").box
        self.assertGreater(bottom - top, 20 * scale)

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
            desktop.start(PROGRAM, environment=TWO_SCREENS)
            wait_until(lambda: shown_item(desktop, empty, Look(size=2, scale=2), area), 15,
                       "an item of twice the size, and drawn at it")

    @unittest.skipUnless(may_mount(), NOBODY_MAY_MOUNT)
    def test_the_strip_is_drawn_anew_at_once_on_a_screen_of_another_scale(self):
        with self.desktop(width=WIDTH, height=HEIGHT) as desktop, \
                Figures(desktop.folder) as figures:
            split_screen(desktop, (WIDTH // 2, WIDTH // 2), height=HEIGHT)
            settings.store(desktop, refreshInterval=5)
            empty = desktop.settled_picture()
            program = desktop.start(*figures.command(PROGRAM), environment=TWO_SCREENS)
            small = wait_for_strip(desktop, program)
            places = {1: middle(small), 2: (WIDTH * 3 // 4, HEIGHT // 2)}
            size = 1

            def shown():
                # On both screens without hinting, since one of them has another scale than one.
                frame = hosts.strip_look(size).frame
                return shown_percent(shown_item(desktop, empty, Look(size=size, scale=2,
                                                                     frame=frame)))

            def move_to_the_other_screen():
                nonlocal size
                size = 3 - size
                drag(desktop, program, middle(wait_for_strip(desktop, program)), places[size])
                wait_until(lambda: (now := strip(desktop, program))
                           and now[3:] == (size * small[3], size * small[4]), 10, "its new size")
                # It may be on its way still.
                return wait_until(shown, 10, "all of the strip, as it is drawn at this scale")

            self.assertTrue(is_seen_at_once(figures, shown, move_to_the_other_screen))
            wait_until(lambda: changed_box(empty, desktop.picture())
                       == box_of(strip(desktop, program)), 10, "all of the strip's shape")


def box_of(window):
    _, x, y, width, height = window
    return x, y, x + width, y + height


if __name__ == "__main__":
    unittest.main(verbosity=2)
