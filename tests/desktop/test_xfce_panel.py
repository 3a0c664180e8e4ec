#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The status item in the panel of Xfce: it shows, it tells the truth, it follows the panel."""
import contextlib
import signal
import unittest
from collections import Counter

import hosts
from bus import Bus
from desktop import wait_until
from load import compare, cpu_load
from program import (DesktopTestCase, changed_box, click, dashboard, start, wait_for_item,
                     wait_for_text)

PANEL = (0, 0, 1000, 28)


class XfcePanel(DesktopTestCase):
    def test_the_item_says_what_it_is(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            hosts.xfce(desktop)
            empty = desktop.picture(PANEL)
            item = wait_for_item(bus, start(desktop))
            wait_until(lambda: desktop.picture(PANEL) != empty, 10, "pixels of the item")
            self.assertEqual(item.get("Category"), "SystemServices")
            self.assertIs(item.get("ItemIsMenu"), False)
            self.assertEqual(item.path, "/StatusNotifierItem")

    def test_the_text_gives_memory_in_gigabytes(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            hosts.xfce(desktop)
            text = wait_for_text(wait_for_item(bus, start(desktop)))
            with open("/proc/meminfo", encoding="ascii") as meminfo:
                total, _, available = (int(next(meminfo).split()[1]) / 2**20 for _ in range(3))
            self.assertEqual(text[3], f"{total:.0f}")
            self.assertAlmostEqual(float(text[2]), total - available, delta=0.5)
            self.assertIn(text[4], ("Normal", "Elevated", "High", "Unavailable"))

    def test_the_processor_figure_agrees_with_the_kernel(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            hosts.xfce(desktop)
            item = wait_for_item(bus, start(desktop))
            wait_for_text(item)
            for percent in (0, 50, 100):
                with self.subTest(load=percent), cpu_load(percent):
                    shown, counted = compare(item, seconds=10)
                    print(f"load {percent} %: shown {shown:.1f}, counted {counted:.1f}")
                    self.assertAlmostEqual(shown, counted, delta=2)

    def test_signals_are_sent_for_changes_only(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            hosts.xfce(desktop)
            item = wait_for_item(bus, start(desktop))
            wait_for_text(item)
            read = {"NewIcon": lambda: (item.get("IconName"), item.get("IconPixmap")),
                    "NewToolTip": lambda: item.get("ToolTip"),
                    "NewTitle": lambda: item.get("Title")}
            last = {name: value() for name, value in read.items()}
            seen = Counter()
            with cpu_load(50), contextlib.closing(bus.signals(item, seconds=30)) as signals:
                for name in signals:
                    self.assertIn(name, read)
                    value = read[name]()
                    self.assertTrue(value != last[name], f"{name} without a change")
                    last[name] = value
                    seen[name] += 1
                    if min(seen["NewIcon"], seen["NewToolTip"]) >= 4:
                        break
            self.assertGreater(seen["NewIcon"], 0)
            self.assertGreater(seen["NewToolTip"], 0)

    def test_the_text_colour_follows_the_panel(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            hosts.xfce(desktop)
            item = wait_for_item(bus, start(desktop))
            wait_until(lambda: text_is_white(item) is False, 10, "black text on a light panel")
            hosts.set_xfce_panel_dark(desktop, True)
            wait_until(lambda: text_is_white(item) is True, 10, "white text on a dark panel")
            hosts.set_xfce_panel_dark(desktop, False)
            wait_until(lambda: text_is_white(item) is False, 10, "black text again")

    def test_a_new_panel_gets_the_item_at_once(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            panel = hosts.xfce(desktop)
            program = start(desktop)
            wait_for_item(bus, program)
            panel.kill()
            panel.wait()
            wait_until(lambda: not bus.owner("org.kde.StatusNotifierWatcher"), 10,
                       "the end of the panel's tray")
            hosts.xfce(desktop)
            wait_for_item(bus, program, timeout=3)

    def test_a_click_opens_the_dashboard_and_another_one_closes_it(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            hosts.xfce(desktop)
            empty = desktop.picture(PANEL)
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
            self.assertEqual(start(desktop).wait(timeout=10), 0)
            wait_until(lambda: dashboard(desktop, first), 5, "the dashboard")

    def test_sigterm_takes_the_item_away_and_ends_well(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            hosts.xfce(desktop)
            program = start(desktop)
            wait_for_item(bus, program)
            program.send_signal(signal.SIGTERM)
            wait_until(lambda: not bus.item_of(program.pid), 2, "the item's end")
            self.assertEqual(program.wait(timeout=5), 0)


def text_is_white(item):
    """Whether more of the picture's opaque, colourless pixels are white than black."""
    picture = item.picture()
    if not picture:
        return None
    data = picture[2]
    white = black = 0
    for i in range(0, len(data), 4):
        alpha, *colour = data[i:i + 4]
        white += alpha > 200 and min(colour) > 220
        black += alpha > 200 and max(colour) < 35
    return white > black if white + black else None


if __name__ == "__main__":
    unittest.main(verbosity=2)
