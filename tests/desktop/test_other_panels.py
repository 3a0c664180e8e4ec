#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The status item in further panels: each shows it, and shows new figures."""
import unittest

import hosts
from bus import Bus
from desktop import wait_until
from load import cpu_load
from program import DesktopTestCase, start, wait_for_item, wait_for_text


class OtherPanels(DesktopTestCase):
    def assert_shows_the_item(self, host):
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            host(desktop)
            item = wait_for_item(bus, start(desktop))
            wait_for_text(item)
            before = desktop.picture()
            with cpu_load(100):
                wait_until(lambda: int(item.text()[1]) > 97, 20, "a full load in the text")
                wait_until(lambda: desktop.picture() != before, 5, "other pixels")

    def test_lxqt_shows_the_item(self):
        self.assert_shows_the_item(hosts.lxqt)

    def test_mate_shows_the_item(self):
        self.assert_shows_the_item(hosts.mate)


if __name__ == "__main__":
    unittest.main(verbosity=2)
