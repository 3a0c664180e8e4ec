#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The status item in the panel that the environment variable ZEPHRINE_HOST names: it shows the
figures there, a click opens the dashboard beside it, it outlives the panel, and it ends with the
program."""
import os
import signal
import statistics
import time
import unittest

import heavy_hosts
import hosts
from bus import Bus
from desktop import wait_until
from figures import RAM, Figures
from namespaces import NOBODY_MAY_MOUNT, may_mount
from program import (PROGRAM, DesktopTestCase, changed_area, click, dashboard, strip,
                     wait_for_item)
from reading import can_be_read
from shown import agrees, shown_item, tells

NAME = os.environ["ZEPHRINE_HOST"]
HOST = (hosts.BY_NAME | heavy_hosts.BY_NAME)[NAME]
# One for each form of the item: wide, square, a strip of our own, one line, and a label.
READ = ("xfce", "lxqt", "none", "waybar", "gnome")


class Panel(DesktopTestCase):
    def shown(self, desktop, empty):
        return shown_item(desktop, empty, HOST.look, HOST.area)

    def wait_for_item(self, desktop, empty):
        """What it shows, as soon as one item is there, and no more."""
        return wait_until(lambda: self.shown(desktop, empty), 20, "the item on the screen")

    def started(self, desktop, command=(PROGRAM,)):
        """(the panel, the panel without the item, the program, the box of the item)"""
        panel = HOST.start(desktop)
        empty = desktop.settled_picture(HOST.area)
        program = desktop.start(*command)
        box = self.wait_for_item(desktop, empty).box
        self.assertEqual(strip(desktop, program) is None, panel is not None)
        return panel, empty, program, box

    def test_it_shows_what_it_says(self):
        with self.desktop(window_manager=HOST.window_manager) as desktop, \
                Bus(desktop.bus_address) as bus:
            _, empty, program, _ = self.started(desktop)
            item = wait_for_item(bus, program)
            wait_until(lambda: agrees(self.shown(desktop, empty), HOST.look, item.text()), 20,
                       "the figures that it says on the screen")

    @unittest.skipUnless(may_mount(), NOBODY_MAY_MOUNT)
    def test_it_shows_the_figures_of_the_kernel(self):
        with self.desktop(window_manager=HOST.window_manager) as desktop, \
                Figures(desktop.folder) as figures:
            _, empty, _, box = self.started(desktop, figures.command(PROGRAM))
            for figures.cpu in (4, 100, 47):
                wait_until(lambda: (shown := self.shown(desktop, empty))
                           and tells(shown, HOST.look, figures.cpu, RAM), 20,
                           f"{figures.cpu} and {RAM} % on the screen")
            if NAME in READ:
                with self.subTest("and a person can read them"):
                    box = changed_area(desktop, empty, HOST.area)
                    self.assertTrue(can_be_read(desktop.picture(box), figures.cpu, RAM))

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
                panel = HOST.start(desktop)
                back_at = time.monotonic()
                self.wait_for_item(desktop, empty)
                waited.append(time.monotonic() - back_at)
                wait_until(lambda: not strip(desktop, program), 5, "the end of the strip")
                descriptors.append(len(os.listdir(f"/proc/{program.pid}/fd")))
            self.assertLessEqual(descriptors[-1], descriptors[0])
            print(f"the item was back after {statistics.median(waited):.1f} s in the median")

    def test_it_goes_with_the_program(self):
        with self.desktop(window_manager=HOST.window_manager) as desktop:
            _, empty, program, _ = self.started(desktop)
            program.send_signal(signal.SIGTERM)
            self.assertEqual(program.wait(timeout=60), 0)
            wait_until(lambda: not changed_area(desktop, empty, HOST.area), 10, "the item's end")


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
