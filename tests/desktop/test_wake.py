#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Waking up from sleep: the figures are new at once, and none is an average over the sleep."""
import signal
import time
import unittest

import hosts
import mocks
import settings
from bus import Bus
from desktop import stays, wait_until
from load import cpu_load, ticks
from program import DesktopTestCase, start, wait_for_item, wait_for_text

SETTLE = 1.0  # s, in which something that must not happen would have happened


class Wake(DesktopTestCase):
    def test_a_wake_up_makes_a_refresh_without_a_processor_figure_and_then_a_true_one(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus, \
                mocks.Logind(desktop) as logind:
            # So seldom that what comes at once is not the timer's.
            settings.store(desktop, refreshInterval=5)
            hosts.xfce(desktop)
            item = wait_for_item(bus, start(desktop))
            wait_for_text(item)
            with cpu_load(100):
                wait_until(lambda: item.text() and int(item.text()[1]) > 97, 30, "a full load")

            logind.prepare_for_sleep(True)
            stays(item.text, SETTLE, "a figure, since nothing happens before the sleep")

            logind.prepare_for_sleep(False)
            wait_until(lambda: item.text() is None, 4, "a text without a processor figure")
            self.assertRegex("\n".join(item.get("ToolTip")[2:]), "CPU +— ")
            before = ticks()
            text = wait_until(item.text, 10, "a figure")
            after = ticks()
            counted = 100 * (after[0] - before[0]) / (after[1] - before[1])
            self.assertAlmostEqual(int(text[1]), counted, delta=10)

    def test_a_whole_interval_passes_between_a_wake_up_and_the_next_refresh(self):
        for interval in (0.5, 1.0, 5):
            with self.subTest(interval), self.desktop() as desktop, \
                    Bus(desktop.bus_address) as bus, mocks.Logind(desktop) as logind:
                settings.store(desktop, refreshInterval=interval)
                hosts.xfce(desktop)
                program = start(desktop)
                item = wait_for_item(bus, program)
                wait_for_text(item)

                # As after a sleep, one refresh is overdue, and another one soon to come.
                program.send_signal(signal.SIGSTOP)
                time.sleep(1.5 * interval)
                logind.prepare_for_sleep(False)
                begin = time.monotonic()
                program.send_signal(signal.SIGCONT)
                wait_until(lambda: item.text() is None, 4, "a text without a processor figure")
                wait_for_text(item)
                self.assertGreaterEqual(time.monotonic() - begin, interval)

    def test_nobody_else_can_say_that_the_machine_woke_up(self):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus, \
                mocks.Logind(desktop) as logind:
            hosts.xfce(desktop)
            item = wait_for_item(bus, start(desktop))
            wait_for_text(item)
            logind.process.kill()
            logind.process.wait()
            with mocks.Mock(desktop, desktop.environment["DBUS_SYSTEM_BUS_ADDRESS"], "system",
                            ("org.example.stranger", *mocks.LOGIND[1:])) as stranger:
                stranger.emit("PrepareForSleep", "b", ("b", False))
                stays(item.text, SETTLE, "a figure")


if __name__ == "__main__":
    unittest.main(verbosity=2)
