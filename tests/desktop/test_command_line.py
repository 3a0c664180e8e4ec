#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The modes that need no desktop, and the one line that is printed where a desktop is missing."""
import os
import re
import subprocess
import tempfile
import unittest

from program import PROGRAM

DETAILS = re.compile(r"GPU: (\d+%|unavailable); memory pressure: (Normal|Elevated|High|Unavailable)"
                     r"; readable processes: [1-9]\d*")
PASSED = re.compile(r"Checks passed\. Live CPU: \d+\.\d%, RAM: \d+\.\d% \(\d+\.\d / \d+\.\d GB\)")
LOGIN = re.compile(r"Launch at login status: [0-3]")


def run(*arguments, wrapper=(), **environment):
    """Runs the program without display, bus, home or any other variable but these."""
    # The leak checker cannot work under a tracer.
    environment |= {"ASAN_OPTIONS": "detect_leaks=0"} if wrapper else {}
    return subprocess.run([*wrapper, PROGRAM, *arguments], env=environment, capture_output=True,
                          text=True, timeout=60, encoding="utf-8")


class SelfTest(unittest.TestCase):
    def assert_passed(self, result):
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        lines = result.stdout.splitlines()
        self.assertEqual(len(lines), 2, result.stdout)
        self.assertRegex(lines[0], f"^{DETAILS.pattern}$")
        self.assertRegex(lines[1], f"^{PASSED.pattern}$")

    def test_prints_two_lines_without_display_and_bus(self):
        self.assert_passed(run("--self-test"))

    def test_wins_over_the_login_status_and_ignores_other_arguments(self):
        self.assert_passed(run("--login-status", "--unknown", "--show-dashboard", "--self-test"))

    def test_writes_decimal_points_in_every_locale(self):
        self.assert_passed(run("--self-test", LC_ALL="de_DE.UTF-8",
                               LOCPATH=os.environ.get("LOCPATH", "")))

    def test_counts_itself_among_the_readable_processes(self):
        processes = [name for name in os.listdir("/proc") if name.isdigit()]
        counted = int(run("--self-test").stdout.split("processes: ")[1].split()[0])
        self.assertGreater(counted, 1)
        self.assertLess(abs(counted - len(processes)), 20 + len(processes) / 2)


class LoginStatus(unittest.TestCase):
    def test_prints_one_line_and_shows_nothing(self):
        result = run("--login-status", "--show-dashboard")
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.assertRegex(result.stdout, f"^{LOGIN.pattern}\n$")

    def test_is_0_before_anything_was_registered(self):
        with tempfile.TemporaryDirectory() as home:
            result = run("--login-status", HOME=home, XDG_CONFIG_HOME=home + "/config")
            self.assertEqual(result.stdout, "Launch at login status: 0\n")
            self.assertEqual(os.listdir(home), [], "a question must write nothing")


class NoConnections(unittest.TestCase):
    def connections(self, mode):
        with tempfile.NamedTemporaryFile("r") as trace:
            result = run(mode, wrapper=("strace", "-f", "-qq", "-e", "trace=connect", "-o",
                                        trace.name), DISPLAY=":987",
                         DBUS_SESSION_BUS_ADDRESS="unix:path=/nonexistent/bus")
            self.assertEqual(result.returncode, 0, result.stderr)
            return [line for line in trace if "connect(" in line]

    def test_the_self_test_connects_to_nothing(self):
        self.assertEqual(self.connections("--self-test"), [])

    def test_the_login_status_connects_to_nothing(self):
        self.assertEqual(self.connections("--login-status"), [])


class WithoutDisplay(unittest.TestCase):
    def assert_one_line(self, result):
        self.assertEqual((result.returncode, result.stdout), (1, ""))
        self.assertRegex(result.stderr, r"^[^\n]+\n$")

    def test_one_line_says_why_nothing_starts(self):
        self.assert_one_line(run())

    def test_a_display_that_does_not_answer_is_as_good_as_none(self):
        self.assert_one_line(run(DISPLAY=":987"))

    def test_options_are_recognised_as_whole_words_only(self):
        for argument in ("--Self-Test", "--self-test=1", "-self-test", "--self-testing"):
            with self.subTest(argument):
                self.assert_one_line(run(argument))


if __name__ == "__main__":
    unittest.main(verbosity=2)
