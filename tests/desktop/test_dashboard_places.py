#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Where the dashboard opens: beside the item, between the panel and the edges of the monitor."""
import contextlib
import unittest

import hosts
from bus import Bus
from desktop import wait_until
from monitors import split_screen
from program import (DesktopTestCase, changed_box, click, dashboard, start, wait_for_item,
                     wait_for_text)

PANEL = 29  # points across that of Xfce
LXQT_PANEL = 32
GAP = 6  # between the dashboard and what is next to it
WIDTH, HEIGHT = 362, 662  # with an edge of one point around its content


class DashboardPlaces(DesktopTestCase):
    @contextlib.contextmanager
    def opened(self, edge, panel=hosts.xfce, monitors=(), height=760, scales="", **place):
        """The boxes (left, top, right, bottom) of the item and of the dashboard it has opened."""
        width = sum(monitors) or 1000
        with self.desktop(width=width, height=height) as desktop, \
                Bus(desktop.bus_address) as bus:
            split_screen(desktop, monitors, place.get("x", 0), height)
            panel(desktop, edge, **place)
            empty = desktop.settled_picture()
            desktop.environment["QT_SCREEN_SCALE_FACTORS"] = scales
            program = start(desktop)
            wait_for_text(wait_for_item(bus, program))
            item = wait_until(lambda: changed_box(empty, desktop.picture()), 10, "the item")
            click(desktop, ((item[0] + item[2]) // 2, (item[1] + item[3]) // 2))
            _, x, y, across, down = wait_until(lambda: dashboard(desktop, program), 5,
                                               "the dashboard")
            self.assertIn((across, down), [(WIDTH, HEIGHT), (2 * WIDTH, 2 * HEIGHT)])
            yield item, (x, y, x + across, y + down)

    def test_it_hangs_centred_below_an_item_at_the_top(self):
        with self.opened("top", centred=True) as (item, box):
            self.assertAlmostEqual(box[0] + box[2], item[0] + item[2], delta=4)
            self.assertEqual(box[1], PANEL + GAP)

    def test_it_stays_inside_the_screen_at_the_end_of_a_panel(self):
        with self.opened("top") as (_, box):
            self.assertEqual((box[1], box[2]), (PANEL + GAP, 1000 - GAP))

    def test_it_stands_above_an_item_at_the_bottom(self):
        with self.opened("bottom", centred=True) as (item, box):
            self.assertAlmostEqual(box[0] + box[2], item[0] + item[2], delta=4)
            self.assertEqual(box[3], 760 - PANEL - GAP)

    def test_it_stands_right_of_an_item_at_the_left(self):
        with self.opened("left") as (_, box):
            self.assertEqual((box[0], box[3]), (PANEL + GAP, 760 - GAP))

    def test_it_stands_left_of_an_item_at_the_right(self):
        with self.opened("right", centred=True) as (item, box):
            self.assertEqual(box[2], 1000 - PANEL - GAP)
            self.assertAlmostEqual(box[1] + box[3], item[1] + item[3], delta=4)

    def test_it_stays_on_the_left_one_of_two_monitors(self):
        with self.opened("top", monitors=(700, 700)) as (_, box):
            self.assertEqual((box[1], box[2]), (PANEL + GAP, 700 - GAP))

    def test_it_stays_on_the_right_one_of_two_monitors(self):
        for edge, corner in {"top": (1400 - GAP - WIDTH, PANEL + GAP),
                             "bottom": (1400 - GAP - WIDTH, 760 - PANEL - GAP - HEIGHT),
                             "left": (700 + PANEL + GAP, 760 - GAP - HEIGHT)}.items():
            with self.subTest(edge), \
                    self.opened(edge, monitors=(700, 700), x=900) as (_, box):
                self.assertEqual(box[:2], corner)

    def test_it_stands_beside_a_panel_of_lxqt_at_the_left(self):
        with self.opened("left", hosts.lxqt) as (_, box):
            self.assertEqual((box[0], box[3]), (LXQT_PANEL + GAP, 760 - GAP))

    def test_it_stands_beside_a_panel_of_lxqt_at_the_right_of_two_monitors(self):
        with self.opened("right", hosts.lxqt, monitors=(700, 700), monitor=1) as (_, box):
            self.assertEqual((box[2], box[3]), (1400 - LXQT_PANEL - GAP, 760 - GAP))

    def test_it_stays_on_the_denser_one_of_two_monitors(self):
        for edge, top in {"top": PANEL + 1 + 2 * GAP,  # 14.5 of its own points are 15
                          "bottom": 1500 - PANEL - 1 - 2 * GAP - 2 * HEIGHT}.items():
            with self.subTest(edge), \
                    self.opened(edge, monitors=(1000, 1000), x=1500, height=1500,
                                scales="monitor-0=1;monitor-1=2") as (_, box):
                self.assertEqual(box, (2000 - 2 * (GAP + WIDTH), top, 2000 - 2 * GAP,
                                       top + 2 * HEIGHT))


if __name__ == "__main__":
    unittest.main(verbosity=2)
