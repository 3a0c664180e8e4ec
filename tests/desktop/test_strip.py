#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The strip that stands in for the status item where no panel shows items."""
import signal
import time
import unittest

import hosts
from desktop import wait_until
from program import DesktopTestCase, dashboard, start, strip
from strips import (covers, drag, film, is_seen, middle, wait_for_other_figures, wait_for_strip,
                    wait_for_strip_at)


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
            drag(desktop, program, (x, y), (x - 300, y + 200))
            moved = wait_for_strip_at(desktop, program, before[1] - 300, before[2] + 200)
            self.assertIsNone(dashboard(desktop, program), "a drag is not a click")

            program.send_signal(signal.SIGTERM)
            self.assertEqual(program.wait(timeout=60), 0)
            again = start(desktop)
            wait_until(lambda: (now := strip(desktop, again)) and now[1:] == moved[1:], 10,
                       "the strip where it was left")

    def test_it_is_hidden_behind_a_window_over_the_whole_screen(self):
        with self.desktop() as desktop:
            program = start(desktop)
            window = wait_for_strip(desktop, program)
            wait_until(lambda: is_seen(desktop, window), 10, "the strip's picture")
            with film(desktop):
                wait_until(lambda: covers(desktop, window), 10, "nothing but the film")
                wait_for_other_figures(desktop, program)
                self.assertTrue(covers(desktop, window))
            wait_until(lambda: is_seen(desktop, window), 10, "the strip's picture after the film")

    def test_it_gives_way_to_a_panel_and_is_back_three_seconds_after_that_has_gone(self):
        with self.desktop() as desktop:
            program = start(desktop)
            for name in ("xfce", "lxqt", "trayer"):
                with self.subTest(name):
                    wait_for_strip(desktop, program)
                    panel = hosts.BY_NAME[name].start(desktop)
                    wait_until(lambda: not strip(desktop, program), 10, "the strip's end")
                    asked_at = time.monotonic()
                    panel.kill()
                    wait_for_strip(desktop, program)
                    # Not before, since a panel that crashes is mostly started again. A busy machine
                    # can only make it later, and Qt's timers are up to 5 % early.
                    self.assertGreater(time.monotonic() - asked_at, 2.8)


if __name__ == "__main__":
    unittest.main(verbosity=2)
