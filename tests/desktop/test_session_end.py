#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""However a session ends, the program ends with it, and nothing of it remains."""
import contextlib
import signal
import unittest

import hosts
from bus import Bus
from desktop import stays, wait_until
from program import PROGRAM, DesktopTestCase, start, strip, wait_for_item, wait_for_text


class SessionEnd(DesktopTestCase):
    @contextlib.contextmanager
    def running(self):
        with self.desktop() as self.desk, Bus(self.desk.bus_address) as self.bus:
            hosts.xfce(self.desk)
            self.program = start(self.desk, "--show-settings")
            wait_for_text(wait_for_item(self.bus, self.program))
            yield

    def test_each_signal_takes_the_item_away_and_ends_well(self):
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            with self.subTest(number), self.running():
                self.program.send_signal(number)
                wait_until(lambda: not self.bus.item_of(self.program.pid), 10,
                           "the item's end")
                self.assertEqual(self.program.wait(timeout=60), 0)

    def test_an_ignored_signal_is_ignored(self):
        with self.desktop() as desktop:
            program = desktop.start("nohup", "sh", "-c", 'exec "$ZEPHRINE"',
                                    environment={"ZEPHRINE": PROGRAM})
            wait_until(lambda: strip(desktop, program), 10, "the item")
            program.send_signal(signal.SIGHUP)
            stays(lambda: program.poll() is None, 1, "running")

    def test_it_ends_with_the_display(self):
        with self.running():
            self.desk.server.kill()
            self.assertGreaterEqual(self.program.wait(timeout=60), 0, "no crash")
            wait_until(lambda: not self.bus.owner("org.zephrine.Zephrine"), 5, "the name's end")

    def test_it_outlives_the_bus(self):
        with self.desktop() as desktop:
            bus = desktop.start("dbus-daemon", "--session", "--nofork", "--nopidfile",
                                f"--address=unix:path={desktop.folder}/runtime/other-bus")
            wait_until((desktop.folder / "runtime/other-bus").exists, 10, "the bus")
            program = desktop.start(PROGRAM, environment={
                "DBUS_SESSION_BUS_ADDRESS": f"unix:path={desktop.folder}/runtime/other-bus"})
            wait_until(lambda: strip(desktop, program), 10, "the item")
            bus.kill()
            stays(lambda: program.poll() is None, 1, "running")
            program.send_signal(signal.SIGTERM)
            self.assertEqual(program.wait(timeout=60), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
