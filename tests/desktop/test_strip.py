#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The strip that stands in for the status item where no panel shows items."""
import signal
import unittest

import hosts
from bus import Bus
from desktop import wait_until
from program import DesktopTestCase, dashboard, start, strip, wait_for_item


def wait_for_strip(desktop, process):
    return wait_until(lambda: strip(desktop, process), 10, "the strip")


def drag(desktop, start_point, end_point):
    steps = 5
    desktop.run("xdotool", "mousemove", *map(str, start_point))
    desktop.run("xdotool", "mousedown", "1")
    for step in range(1, steps + 1):
        point = [a + (b - a) * step // steps for a, b in zip(start_point, end_point)]
        desktop.run("xdotool", "mousemove", *map(str, point))
    desktop.run("xdotool", "mouseup", "1")


def middle(window):
    _, x, y, width, height = window
    return x + width // 2, y + height // 2


class Strip(DesktopTestCase):
    def test_it_stands_at_the_top_right_and_its_picture_changes(self):
        with self.desktop() as desktop:
            program = start(desktop)
            _, x, y, width, height = wait_for_strip(desktop, program)
            self.assertGreater(x + width, 1000 - 40)
            self.assertLessEqual(x + width, 1000)
            self.assertLess(y, 40)
            box = (x, y, x + width, y + height)
            first = desktop.picture(box)
            wait_until(lambda: desktop.picture(box) != first, 10, "other figures")

    def test_a_click_opens_the_dashboard(self):
        with self.desktop() as desktop:
            program = start(desktop)
            x, y = middle(wait_for_strip(desktop, program))
            desktop.run("xdotool", "mousemove", str(x), str(y))
            desktop.run("xdotool", "click", "1")
            wait_until(lambda: dashboard(desktop, program), 5, "the dashboard")

    def test_a_dashboard_that_was_open_before_it_moves_below_it(self):
        with self.desktop() as desktop:
            program = start(desktop, "--show-dashboard")
            wait_until(lambda: dashboard(desktop, program), 5, "the dashboard")
            _, x, y, width, height = wait_for_strip(desktop, program)

            def is_below():
                window = dashboard(desktop, program)
                if not window:
                    return False
                _, left, top, across, _ = window
                return top >= y + height and left < x and x + width <= left + across + 8

            wait_until(is_below, 5, "the dashboard below the strip")

    def test_a_drag_moves_it_and_the_next_start_finds_it_there(self):
        with self.desktop() as desktop:
            program = start(desktop)
            before = wait_for_strip(desktop, program)
            x, y = middle(before)
            drag(desktop, (x, y), (x - 300, y + 200))
            moved = wait_until(lambda: (now := strip(desktop, program))[1:] != before[1:] and now,
                               5, "another place")
            self.assertAlmostEqual(moved[1], before[1] - 300, delta=2)
            self.assertAlmostEqual(moved[2], before[2] + 200, delta=2)
            self.assertIsNone(dashboard(desktop, program), "a drag is not a click")

            program.send_signal(signal.SIGTERM)
            self.assertEqual(program.wait(timeout=5), 0)
            again = start(desktop)
            wait_until(lambda: (now := strip(desktop, again)) and now[1:] == moved[1:], 10,
                       "the strip where it was left")

    def test_it_gives_way_to_a_panel(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            program = start(desktop)
            wait_for_strip(desktop, program)
            hosts.xfce(desktop)
            wait_for_item(bus, program)
            wait_until(lambda: not strip(desktop, program), 5, "the strip's end")


if __name__ == "__main__":
    unittest.main(verbosity=2)
