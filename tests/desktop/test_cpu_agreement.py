#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The processor figure that is shown, against the kernel's own counters, at three loads."""
import unittest

import hosts
from bus import Bus
from load import compare, cpu_load
from program import DesktopTestCase, start, wait_for_item, wait_for_text


class CPUAgreement(DesktopTestCase):
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


if __name__ == "__main__":
    unittest.main(verbosity=2)
