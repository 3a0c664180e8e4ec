#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A process whose command line the kernel cannot tell, because somebody holds its memory lock: it
stops neither the list of processes nor the end of the program."""
import contextlib
import os
import signal
import unittest

import accessibility
import processes
from desktop import wait_until
from program import PROGRAM, DesktopTestCase

HANGING_READ = os.environ.get("ZEPHRINE_HANGING_READ", "")
NAME = b"hanging-process"  # as long as the kernel keeps names: the rest is in the command line
SIGN = "waits for ever"


class StuckProcess(DesktopTestCase):
    @contextlib.contextmanager
    def captured(self):
        """The desktop, the program at the moment when a capture got stuck, and the process."""
        with self.desktop() as desktop, processes.burning_as(NAME) as process:
            accessibility.enable(desktop)
            wait_until(lambda: processes.ps("comm", process.pid) == NAME.decode(), 10, "its name")
            options = f"{os.environ.get('ASAN_OPTIONS', '')}:verify_asan_link_order=0"
            program = desktop.start(PROGRAM, "--show-dashboard", environment={
                "LD_PRELOAD": HANGING_READ, "ASAN_OPTIONS": options,
                "ZEPHRINE_HANGS_AT": f"{process.pid}/cmdline"})
            log = desktop.logs / "zephrine.log"
            wait_until(lambda: SIGN in log.read_text(encoding="utf-8"), 20, "a capture that hangs")
            yield desktop, program, process
            self.assertEqual(log.read_text(encoding="utf-8").count(SIGN), 1, "one try is enough")

    def test_the_program_ends_while_a_capture_hangs(self):
        for number in (signal.SIGTERM, signal.SIGINT):
            with self.subTest(number), self.captured() as (_, program, _):
                program.send_signal(number)
                self.assertEqual(program.wait(timeout=5), 0)

    def test_the_quit_button_ends_the_program_while_a_capture_hangs(self):
        with self.captured() as (desktop, program, _):
            wait_until(lambda: accessibility.dashboard(desktop, program), 20, "the dashboard")
            accessibility.act(desktop, program, "button", "Quit", "Press")
            self.assertEqual(program.wait(timeout=5), 0)

    def test_the_list_goes_on_without_the_capture_that_hangs(self):
        with self.captured() as (desktop, program, process):
            def row():
                dashboard = accessibility.dashboard(desktop, program)
                return dashboard and next((name for name, value in accessibility.rows(dashboard)
                                           if name["description"].endswith(f" · PID {process.pid}")
                                           and value["name"].endswith("%")), None)

            self.assertEqual(wait_until(row, 30, "the process with a share")["name"],
                             NAME.decode())
            program.send_signal(signal.SIGTERM)
            self.assertEqual(program.wait(timeout=5), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
