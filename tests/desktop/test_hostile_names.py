#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Processes that are called something to do harm: in the row, in the tool tip and on the
accessibility bus their names are plain text on one line, and nothing that a name mentions is
opened."""
import contextlib
import tempfile
import unittest

import accessibility
import hosts
import processes
from accessibility import middle
from desktop import wait_until
from program import PROGRAM, DesktopTestCase, dashboard

LONG = "long-" * 51  # 255 bytes, the most that a file's name can have
# Names that processes give themselves (15 bytes at most), and what is shown of them.
CHOSEN = {
    b"<img src='/zz'>": "<img src='/zz'>",
    b"&amp;<b>&lt;</b": "&amp;<b>&lt;</b",
    "gpj\u202eexe\u2066a".encode(): "gpj\ufffdexe\ufffda",
    b"two\nlines\ttab": "two lines tab",
    b"\x1b[31mred\x07": " [31mred ",
    b"bad\xff\xfe\xc3(": "bad\ufffd\ufffd\ufffd(",
}
# Names of program files.
FILES = {
    LONG: LONG,
    "<img src=zz-picture.png>": "<img src=zz-picture.png>",
}


class HostileNames(DesktopTestCase):
    @contextlib.contextmanager
    def shown(self, wrapper=()):
        with self.desktop() as self.desk:
            accessibility.enable(self.desk)
            hosts.xfce(self.desk)
            # The leak checker cannot work under a tracer.
            self.program = self.desk.start(*wrapper, PROGRAM, "--show-dashboard",
                                           environment={"ASAN_OPTIONS": "detect_leaks=0"})
            wait_until(lambda: dashboard(self.desk, self.program), 20, "the dashboard")
            yield

    def row_of(self, process):
        elements = accessibility.dashboard(self.desk, self.program)
        return next((name for name, _ in (accessibility.rows(elements) if elements else ())
                     if f" {process.pid}" in name["description"]), None)

    def assert_shown_as(self, text, process):
        row = wait_until(lambda: self.row_of(process), 30, f"{text!r} in the list")
        self.assertEqual(row["name"], text)
        self.assertEqual(row["description"], f"{text} · PID {process.pid}")

    def test_chosen_names_are_plain_text(self):
        names = list(CHOSEN)
        with self.shown():
            for some in (names[:3], names[3:]):  # as many at once as the list has room for
                with contextlib.ExitStack() as ended:
                    started = [ended.enter_context(processes.burning_as(name))
                               for name in some]
                    for name, process in zip(some, started):
                        with self.subTest(name):
                            self.assert_shown_as(CHOSEN[name], process)

    def test_file_names_are_plain_text(self):
        with self.shown():
            for name, text in FILES.items():
                with self.subTest(name[:30]), \
                        processes.burning_as_program(self.desk.folder / name) as process:
                    self.assert_shown_as(text, process)

    def test_a_first_word_longer_than_any_file_name_is_not_believed(self):
        with self.shown(), processes.burning_as_program(self.desk.folder / ("x" * 20),
                                                        "x" * 1000) as process:
            self.assert_shown_as("x" * 15, process)

    def test_the_tool_tip_shows_markup_as_it_stands_and_opens_nothing(self):
        with tempfile.NamedTemporaryFile("r", errors="replace") as trace, \
                self.shown(("strace", "-D", "-f", "-qq", "-s", "256", "-e", "trace=%file",
                            "-o", trace.name)), \
                processes.burning_as(b"<img src='/zz'>") as process:
            tip = wait_until(lambda: self.tool_tip_of(process), 60, "the tool tip")
            self.assertEqual(tip["name"], f"<img src='/zz'> · PID {process.pid}")
            opened = trace.read()
            self.assertIn("/proc/", opened, "the trace works")
            self.assertNotIn("/zz", opened)

    def tool_tip_of(self, process):
        """Leads the pointer to the row first, wherever in the list that is by now."""
        row = self.row_of(process)
        if not row:
            return None
        # Where the pointer is there already, this is no movement that would put off the tip.
        self.desk.run("xdotool", "mousemove", *map(str, middle(row)))
        return next((window for window in accessibility.windows(self.desk, self.program)
                     if window["role"] == "tool tip"
                     and window["name"].endswith(f" {process.pid}")), None)


if __name__ == "__main__":
    unittest.main(verbosity=2)
