#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The dashboard's process list against ps and the kernel's own clocks."""
import contextlib
import os
import pathlib
import re
import time
import unittest

import accessibility
import hosts
import processes
from desktop import wait_until
from processes import GIGABYTE, own_memory
from program import DesktopTestCase, start

CAPTURE_INTERVAL = 2.0


class ProcessList(DesktopTestCase):
    @contextlib.contextmanager
    def shown(self):
        """A function that reads the rows, and one that sorts them by the figure of this name."""
        with self.desktop() as desktop:
            accessibility.enable(desktop)
            hosts.xfce(desktop)
            program = start(desktop, "--show-dashboard")
            wait_until(lambda: accessibility.dashboard(desktop, program), 10, "the dashboard")

            def read():
                return accessibility.rows(accessibility.dashboard(desktop, program))

            def sort_by(segment):
                accessibility.act(desktop, program, "radio button", segment, "Toggle")

            yield read, sort_by

    def test_a_process_that_burns_a_core_is_listed_with_its_share(self):
        with self.shown() as (read, _), processes.burning() as burner:
            wait_until(lambda: row_of(burner, read()), 20, "the busy process in the list")
            clock = Clock(burner.pid)
            deadline = time.monotonic() + 2.5 * CAPTURE_INTERVAL
            while time.monotonic() < deadline:
                clock.note()
                time.sleep(0.02)  # between two samples of the measurement
            rows = wait_until(lambda: row_of(burner, now := read()) and now, 20,
                              "the busy process still in the list")
            clock.note()
            name, value = row_of(burner, rows)
            shown = float(value["name"].rstrip("%"))
            # The list tells of an interval that ended up to an interval ago.
            shares = clock.shares(CAPTURE_INTERVAL)
            print(f"shown {shown} %, counted {min(shares):.1f} to {max(shares):.1f} %")
            self.assertGreater(shown, min(shares) - 3)
            self.assertLess(shown, max(shares) + 3)
            self.assertEqual(name["name"], processes.ps("comm", burner.pid))
            self.assertLess(rows.index((name, value)), os.cpu_count() + 1, "near the top")

    def test_a_process_that_holds_a_gigabyte_is_listed_with_it(self):
        with processes.holding(GIGABYTE) as holder, self.shown() as (read, sort_by):
            wait_until(lambda: own_memory(holder.pid) > GIGABYTE, 20, "the memory in use")
            sort_by("RAM")
            rows = wait_until(lambda: (row := row_of(holder, now := read()))
                              and row[1]["name"].endswith(" GB") and now,
                              20, "the large process in the list")
            row = row_of(holder, rows)
            shown = float(row[1]["name"].removesuffix(" GB"))
            counted = int(processes.ps("rss", holder.pid)) * 1024 / GIGABYTE
            print(f"shown {shown} GB, counted {counted:.3f} GB")
            self.assertAlmostEqual(shown, counted, delta=0.02 * counted)
            larger = [pid for pid in all_pids() if own_memory(pid) > own_memory(holder.pid)]
            self.assertEqual(rows.index(row), len(larger))

    def test_shares_show_from_the_second_capture_on(self):
        with self.shown() as (read, _):
            figures = re.compile(r"\d+\.\d%")
            wait_until(lambda: all(figures.fullmatch(value["name"]) for _, value in read()), 10,
                       "shares in all rows")


class Clock:
    """A process's CPU time as it grows."""

    def __init__(self, pid):
        self._pid = pid
        self._samples = []

    def note(self):
        self._samples.append((time.monotonic(), processes.cpu_seconds(self._pid)))

    def shares(self, length):
        """In percent of all processors, over each stretch of about `length` seconds."""
        found = []
        for start, used in self._samples:
            later = next((s for s in self._samples if s[0] >= start + length), None)
            if later:
                found.append(100 * (later[1] - used) / (later[0] - start) / os.cpu_count())
        return found


def row_of(process, rows):
    return next((row for row in rows
                 if row[0]["description"].endswith(f" · PID {process.pid}")), None)


def all_pids():
    return [int(entry.name) for entry in pathlib.Path("/proc").glob("[0-9]*")]


if __name__ == "__main__":
    unittest.main(verbosity=2)
