#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The strip in the session that the environment variable ZEPHRINE_HOST names, without a panel that
shows status items: in GNOME without its extension, as most are, and in sway without a bar."""
import os
import unittest

import heavy_hosts
import sway_hosts
from desktop import wait_until
from program import DesktopTestCase, click, dashboard, press_keys, start, strip
from strips import (covers, drag, film, is_seen, middle, wait_for_other_figures,
                    wait_for_strip)


def gnome(desktop):
    heavy_hosts.gnome(desktop)
    desktop.run("gsettings", "set", "org.gnome.shell", "enabled-extensions", "[]")


SESSIONS = {"gnome": gnome, "sway": sway_hosts.ensure_sway}


def seen_strip(desktop, program):
    window = strip(desktop, program)
    if window and is_seen(desktop, window):
        return window
    press_keys(desktop, "Escape")  # GNOME may still show all windows, as it does at its start
    return None


class StripInCompositors(DesktopTestCase):
    def test_it_is_there_and_does_what_it_does_elsewhere(self):
        with self.desktop(window_manager=False) as desktop:
            SESSIONS[os.environ["ZEPHRINE_HOST"]](desktop)
            program = start(desktop)
            window = wait_until(lambda: seen_strip(desktop, program), 20, "the strip's picture")
            with self.subTest("at the top right, and no larger than elsewhere"):
                _, x, y, width, height = window
                self.assertEqual((width, height), (80, 28))
                self.assertTrue(1000 - 40 < x + width <= 1000 and y < 60, window)

            with self.subTest("hidden behind a window over the whole screen"):
                with film(desktop):
                    wait_until(lambda: covers(desktop, window), 10, "nothing but the film")
                    wait_for_other_figures(desktop, program)
                    self.assertTrue(covers(desktop, window))
                wait_until(lambda: is_seen(desktop, window), 10, "the strip after the film")

            with self.subTest("dragged to another place"):
                x, y = middle(window)
                drag(desktop, program, (x, y), (x - 300, y + 200))
                place = (window[1] - 300, window[2] + 200)
                wait_until(lambda: (now := strip(desktop, program)) and now[1:3] == place, 10,
                           "the other place")

            with self.subTest("clicked"):
                window = wait_for_strip(desktop, program)
                _, left, _, width, _ = window
                click(desktop, middle(window))

                def is_beside():
                    opened = dashboard(desktop, program)
                    return opened and (opened[1] + opened[3] < left + 24
                                       or opened[1] > left + width - 24)

                # There is room neither above it nor below.
                wait_until(is_beside, 5, "the dashboard beside the strip")

            with self.subTest("clicked again"):
                click(desktop, middle(wait_for_strip(desktop, program)))
                wait_until(lambda: not dashboard(desktop, program), 5, "the dashboard's end")


if __name__ == "__main__":
    unittest.main(verbosity=2)
