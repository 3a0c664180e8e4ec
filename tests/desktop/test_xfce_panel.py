#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The status item in the panel of Xfce: it shows, it tells the truth, it follows the panel."""
import unittest

from PIL import ImageStat

import hosts
from bus import Bus
from desktop import wait_until
from load import memory
from program import (PROGRAM, DesktopTestCase, changed_box, click, dashboard, item_in_tray, start,
                     wait_for_item, wait_for_text, wait_without_strip)
from x11 import Display

PANEL = (0, 0, 1000, 28)
HORIZONTAL, VERTICAL = 0, 1


class XfcePanel(DesktopTestCase):
    def test_the_item_is_wide_and_shown_once(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            hosts.xfce(desktop)
            empty = desktop.settled_picture(PANEL)
            program = start(desktop)
            wait_for_text(wait_for_item(bus, program))
            left, _, right, _ = wait_until(
                lambda: changed_box(empty, desktop.settled_picture(PANEL)), 10, "the item")
            self.assertTrue(50 < right - left < 76, right - left)
            self.assertFalse(bus.is_in_panel(program.pid), "it stands in the panel's tray of X11")

    def test_the_item_is_a_square_while_the_panel_stands_upright(self):
        with self.desktop() as desktop:
            hosts.xfce(desktop, edge="left")
            start(desktop)
            wait_until(lambda: size_in_tray(desktop) == (22, 22), 10, "a square")
            set_mode(desktop, HORIZONTAL)
            wait_until(lambda: (size_in_tray(desktop) or (0, 0))[0] > 50, 10, "the wide item")
            set_mode(desktop, VERTICAL)
            wait_until(lambda: size_in_tray(desktop) == (22, 22), 10, "a square again")

    def test_a_tray_of_x11_that_does_not_answer_leaves_the_item_to_the_panel(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            hosts.xfce(desktop)
            take_the_tray(desktop)
            program = start(desktop)
            wait_until(lambda: bus.is_in_panel(program.pid), 10, "the item in the panel")

    def test_the_panel_has_the_item_in_a_wayland_session(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            hosts.xfce(desktop)
            program = desktop.start(PROGRAM, environment={"WAYLAND_DISPLAY": "wayland-0",
                                                          "QT_QPA_PLATFORM": "xcb"})
            wait_without_strip(desktop, program, lambda: bus.is_in_panel(program.pid),
                               "the item in the panel")

    def test_the_text_gives_memory_in_gigabytes(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            hosts.xfce(desktop)
            item = wait_for_item(bus, start(desktop))

            def text_that_agrees():
                # The memory in use may have changed since the last refresh.
                text, (used, total) = item.text(), memory()
                return text and abs(float(text[2]) - used / 2**30) <= 0.5 and (text, total)

            text, total = wait_until(text_that_agrees, 20, "the memory in use")
            self.assertEqual(text[3], f"{total / 2**30:.0f}")
            self.assertIn(text[4], ("Normal", "Elevated", "High", "Unavailable"))

    def test_the_text_colour_follows_the_panel(self):
        with self.desktop() as desktop:
            hosts.xfce(desktop)
            empty = desktop.settled_picture(PANEL)
            start(desktop)
            wait_until(lambda: changed_box(empty, desktop.picture(PANEL)), 10, "the item")
            wait_until(lambda: text_is_white(desktop) is False, 10, "black text on a light panel")
            hosts.set_xfce_panel_dark(desktop, True)
            wait_until(lambda: text_is_white(desktop) is True, 10, "white text on a dark panel")
            hosts.set_xfce_panel_dark(desktop, False)
            wait_until(lambda: text_is_white(desktop) is False, 10, "black text again")

    def test_a_click_opens_the_dashboard_and_another_one_closes_it(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            hosts.xfce(desktop)
            empty = desktop.settled_picture(PANEL)
            program = start(desktop)
            wait_for_text(wait_for_item(bus, program))
            left, top, right, bottom = wait_until(
                lambda: changed_box(empty, desktop.picture(PANEL)), 5, "pixels of the item")
            click(desktop, ((left + right) // 2, (top + bottom) // 2))
            wait_until(lambda: dashboard(desktop, program), 5, "the dashboard")
            # Clicks that follow closely count as part of the one that closed the dashboard.
            wait_until(lambda: desktop.run("xdotool", "click", "1") is not None
                       and not dashboard(desktop, program), 5, "the dashboard's end")

    def test_a_second_start_opens_the_dashboard_of_the_first(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            hosts.xfce(desktop)
            first = start(desktop)
            wait_for_item(bus, first)
            self.assertIsNone(dashboard(desktop, first))
            self.assertEqual(start(desktop).wait(timeout=60), 0)
            wait_until(lambda: dashboard(desktop, first), 5, "the dashboard")


def set_mode(desktop, mode):
    desktop.run("xfconf-query", "--channel", "xfce4-panel", "--property", "/panels/panel-1/mode",
                "--set", str(mode))


def size_in_tray(desktop):
    """Of the item's window; None where it has none in a tray."""
    window = item_in_tray(desktop)
    return window and window[1:]


def take_the_tray(desktop):
    """Takes the tray of the display from the panel, for as long as the display is there. Waits
    until the panel has it, which comes after the watcher on the bus: else it would take it back."""
    display = Display(desktop.display)
    wait_until(display.tray_owner, 20, "the panel's tray")
    display.take_tray(display.new_window(1, 1))


def text_is_white(desktop):
    """Of text on a panel: None where there is no contrast, as while it is drawn anew."""
    grey = desktop.picture(PANEL).convert("L")
    background = ImageStat.Stat(grey).median[0]
    darkest, brightest = grey.getextrema()
    if brightest - darkest < 128:
        return None
    return brightest - background > background - darkest


if __name__ == "__main__":
    unittest.main(verbosity=2)
