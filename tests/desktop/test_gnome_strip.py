#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The strip on a GNOME without the extension that shows status items, as most are."""
import time
import unittest

import heavy_hosts
from desktop import wait_until
from program import DesktopTestCase, click, dashboard, press_keys, start, strip
from strips import covers, drag, film, is_seen, middle


def seen_strip(desktop, program):
    window = strip(desktop, program)
    if window and is_seen(desktop, window):
        return window
    press_keys(desktop, "Escape")  # GNOME may still show all windows, as it does at its start
    return None


class GnomeStrip(DesktopTestCase):
    def test_it_is_there_and_does_what_it_does_elsewhere(self):
        with self.desktop(window_manager=False) as desktop:
            heavy_hosts.gnome(desktop)
            desktop.run("gsettings", "set", "org.gnome.shell", "enabled-extensions", "[]")
            program = start(desktop)
            window = wait_until(lambda: seen_strip(desktop, program), 20, "the strip's picture")

            with self.subTest("hidden behind a window over the whole screen"):
                with film(desktop):
                    wait_until(lambda: covers(desktop, window), 10, "nothing but the film")
                    time.sleep(3)  # so that the figures change
                    self.assertTrue(covers(desktop, window))
                wait_until(lambda: is_seen(desktop, window), 10, "the strip after the film")

            with self.subTest("dragged to another place"):
                x, y = middle(window)
                drag(desktop, (x, y), (x - 300, y + 200))
                place = (window[1] - 300, window[2] + 200)
                wait_until(lambda: strip(desktop, program)[1:3] == place, 5, "the other place")

            with self.subTest("clicked"):
                click(desktop, middle(strip(desktop, program)))
                wait_until(lambda: dashboard(desktop, program), 5, "the dashboard")


if __name__ == "__main__":
    unittest.main(verbosity=2)
