#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The status item on the bus, and a real panel that takes it from there: that of LXQt."""
import contextlib
import signal
import time
import unittest
from collections import Counter

import hosts
import settings
from bus import Bus
from desktop import wait_until
from figures import Figures
from namespaces import NOBODY_MAY_MOUNT, may_mount
from program import PROGRAM, DesktopTestCase, wait_for_item, wait_for_text, wait_without_strip

PANEL = (0, 728, 1000, 760)


def start_in_panel(desktop, bus, command=(PROGRAM,)):
    program = desktop.start(*command)
    wait_until(lambda: bus.is_in_panel(program.pid), 10, "the item in the panel")
    return program


class NotifierItem(DesktopTestCase):
    def test_the_item_says_what_it_is(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            hosts.lxqt(desktop)
            empty = desktop.settled_picture(PANEL)
            item = wait_for_item(bus, start_in_panel(desktop, bus))
            wait_until(lambda: desktop.picture(PANEL) != empty, 10, "pixels of the item")
            self.assertEqual(item.get("Category"), "SystemServices")
            self.assertIs(item.get("ItemIsMenu"), False)
            self.assertEqual(item.path, "/StatusNotifierItem")

    @unittest.skipUnless(may_mount(), NOBODY_MAY_MOUNT)
    def test_signals_are_sent_for_changes_only(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus, \
                Figures(desktop.folder) as figures:
            figures.changing = True
            hosts.lxqt(desktop)
            # So seldom that what a signal is about can be read before the next one.
            settings.store(desktop, refreshInterval=2)
            item = wait_for_item(bus, start_in_panel(desktop, bus, figures.command(PROGRAM)))
            wait_for_text(item)
            read = {"NewIcon": lambda: (item.get("IconName"), item.get("IconPixmap")),
                    "NewToolTip": lambda: item.get("ToolTip"),
                    "NewTitle": lambda: item.get("Title")}
            last = {name: value() for name, value in read.items()}
            seen = Counter()
            with contextlib.closing(bus.signals(item, seconds=120)) as signals:
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

    def test_a_new_panel_gets_the_item_at_once(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            panel = hosts.lxqt(desktop)
            program = start_in_panel(desktop, bus)
            gone_at = time.monotonic()
            panel.kill()
            panel.wait()
            wait_until(lambda: not bus.owner("org.kde.StatusNotifierWatcher"), 10,
                       "the end of the panel's tray")
            hosts.lxqt(desktop)
            wait_without_strip(desktop, program, lambda: bus.is_in_panel(program.pid),
                               "the item in the new panel", gone_at)

    def test_sigterm_takes_the_item_away_and_ends_well(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            hosts.lxqt(desktop)
            program = start_in_panel(desktop, bus)
            program.send_signal(signal.SIGTERM)
            wait_until(lambda: not bus.is_in_panel(program.pid), 10, "the item's end")
            self.assertEqual(program.wait(timeout=60), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
