#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The item in a tray of X11 that is not always there for it."""
import signal
import sys
import unittest

import accessibility
import hosts
import settings
import tray
from desktop import wait_until
from program import DesktopTestCase, item_in_tray, start, strip


class TrayOfX11(DesktopTestCase):
    def test_the_item_is_back_in_a_tray_that_has_put_it_out(self):
        with self.desktop(window_manager=False) as desktop:
            manager = start_tray(desktop)
            program = start(desktop)
            first = wait_for_item_in_tray(desktop)
            for _ in range(3):
                manager.send_signal(signal.SIGUSR1)
                first = wait_for_item_in_tray(desktop, other_than=first)
            wait_until(lambda: not strip(desktop, program), 5, "no strip beside it")

    def test_the_item_moves_on_to_the_next_tray(self):
        with self.desktop(window_manager=False) as desktop:
            manager = start_tray(desktop)
            program = start(desktop)
            first = wait_for_item_in_tray(desktop)
            manager.kill()
            manager.wait()
            start_tray(desktop)
            wait_for_item_in_tray(desktop, other_than=first)
            wait_until(lambda: not strip(desktop, program), 5, "no strip beside it")

    def test_the_item_is_as_long_in_a_tray_as_in_the_strip(self):
        with self.desktop() as desktop:
            accessibility.enable(desktop)
            settings.store(desktop, fontSize=8)
            program = start(desktop, "--show-settings")
            small = wait_until(lambda: strip(desktop, program), 10, "the strip")[3]
            panel = hosts.trayer(desktop)
            wait_until(lambda: width_in_tray(desktop) == small, 10, f"an item of {small} pixels")
            settings.choose(desktop, program, "Panel text", "Large")
            wait_until(lambda: width_in_tray(desktop) > small, 10, "a wider item")
            large = width_in_tray(desktop)
            panel.kill()
            wait_until(lambda: (strip(desktop, program) or [0] * 4)[3] == large, 10,
                       f"a strip of {large} pixels")

    def test_the_strip_takes_over_where_the_tray_puts_the_item_out_again_and_again(self):
        with self.desktop(window_manager=False) as desktop:
            start_tray(desktop, "refusing")
            program = start(desktop)
            wait_until(lambda: strip(desktop, program), 30, "the strip")


def start_tray(desktop, *options):
    return desktop.start(sys.executable, tray.__file__, *options)


def width_in_tray(desktop):
    """0 where no tray has the item."""
    window = item_in_tray(desktop)
    return window[1] if window else 0


def wait_for_item_in_tray(desktop, other_than=None):
    """The id of the window that the tray has taken in."""
    def taken_in():
        window = item_in_tray(desktop)
        return window and window[0] != other_than and window[0]

    return wait_until(taken_in, 10, "the item in the tray")


if __name__ == "__main__":
    unittest.main(verbosity=2)
