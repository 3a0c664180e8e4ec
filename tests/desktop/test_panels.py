#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The status item in the panel that the environment variable ZEPHRINE_HOST names: it can be read
there, a click opens the dashboard beside it, it outlives the panel, and it ends with the program.
"""
import os
import signal
import statistics
import time
import unittest

import heavy_hosts
import hosts
from desktop import wait_until
from load import cpu_load, memory_percent
from program import DesktopTestCase, changed_area, click, dashboard, start, strip
from reading import figures, readings, shows, with_margin

HOST = (hosts.BY_NAME | heavy_hosts.BY_NAME)[os.environ["ZEPHRINE_HOST"]]


class Panel(DesktopTestCase):
    def shown(self, desktop, empty):
        """The box on the screen where the item is, or None."""
        return changed_area(desktop, empty, HOST.area)

    def read(self, desktop, empty):
        box = self.shown(desktop, empty)
        return figures(desktop.picture(with_margin(box))) if box else []

    def wait_for_item(self, desktop, empty):
        """The item's box, as soon as one item can be read, and no more."""
        wait_until(lambda: len(self.read(desktop, empty)) == 2, 20, "the item on the screen")
        return self.shown(desktop, empty)

    def started(self, desktop):
        """(the panel, the panel without the item, the program, the box of the item)"""
        panel = HOST.start(desktop)
        time.sleep(1)  # it answers on the bus before it has drawn itself
        empty = desktop.settled_picture(HOST.area)
        program = start(desktop)
        box = self.wait_for_item(desktop, empty)
        self.assertEqual(strip(desktop, program) is None, panel is not None)
        return panel, empty, program, box

    def test_its_figures_can_be_read_and_are_right(self):
        with self.desktop(window_manager=HOST.window_manager) as desktop:
            _, empty, _, _ = self.started(desktop)

            def both_are_right():
                box = self.shown(desktop, empty)
                used = round(memory_percent())
                return box and any(
                    len(read) == 2 and shows_any(read[0], range(98, 101))
                    and shows_any(read[1], range(used - 1, used + 2))
                    for read in readings(desktop.picture(with_margin(box))))

            with cpu_load(100):
                wait_until(both_are_right, 30, "a full load and the memory in use on the screen")

    def test_a_click_opens_the_dashboard_beside_it(self):
        with self.desktop(window_manager=HOST.window_manager) as desktop:
            _, _, program, item = self.started(desktop)
            for _ in range(HOST.clicks):
                click(desktop, ((item[0] + item[2]) // 2, (item[1] + item[3]) // 2))
            # Some compositors show a window before they put it where it belongs.
            wait_until(lambda: is_beside(dashboard(desktop, program), item), 5,
                       f"the dashboard beside {item}")

    def test_it_outlives_the_panel_ten_times(self):
        with self.desktop(window_manager=HOST.window_manager) as desktop:
            panel, empty, program, _ = self.started(desktop)
            if panel is None:
                self.skipTest("there is no panel that could end")
            descriptors, waited = [], []
            for _ in range(10):
                panel.kill()
                panel.wait()
                panel = (HOST.restart or HOST.start)(desktop)
                back_at = time.monotonic()
                self.wait_for_item(desktop, empty)
                waited.append(time.monotonic() - back_at)
                wait_until(lambda: not strip(desktop, program), 5, "the end of the strip")
                descriptors.append(len(os.listdir(f"/proc/{program.pid}/fd")))
            self.assertLessEqual(descriptors[-1], descriptors[0])
            # Mostly, since a machine may stop for a while.
            self.assertLess(statistics.median(waited), 3)

    def test_it_goes_with_the_program(self):
        with self.desktop(window_manager=HOST.window_manager) as desktop:
            _, empty, program, _ = self.started(desktop)
            program.send_signal(signal.SIGTERM)
            self.assertEqual(program.wait(timeout=5), 0)
            wait_until(lambda: not self.shown(desktop, empty), 10, "the item's end")


def shows_any(text, numbers):
    return any(shows(text, number) for number in numbers)


def is_beside(window, item):
    """Whether the window is below or above the item, and all of it is on the screen."""
    if not window:
        return False
    _, x, y, width, height = window
    left, top, right, bottom = item
    # Some window managers put a window a little lower than it asks for.
    return (x < right and left < x + width + 24 and min(abs(y - bottom), abs(top - y - height)) < 40
            and x >= 0 and x + width <= 1000 and y >= 0 and y + height <= 760)


if __name__ == "__main__":
    unittest.main(verbosity=2)
