#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Starting the program while it runs: the running one does what is asked for, the other ends."""
import contextlib
import os
import signal
import socket
import subprocess
import unittest

from jeepney import DBusAddress, new_method_call

import settings
from bus import Bus
from desktop import wait_until
from program import PROGRAM, DesktopTestCase, dashboard, start, strip

INSPECTION = "Zephrine Dashboard"


def start_again(desktop, *options, **environment):
    """Starts the program once more, and returns its exit status when it ends by itself."""
    return desktop.start(PROGRAM, *options, environment=environment).wait(timeout=60)


def wait_for_strip(desktop, process):
    return wait_until(lambda: strip(desktop, process), 10, "the item")


class SingleInstance(DesktopTestCase):
    """With `bus` False, the session has no bus, and the instances meet in the runtime folder."""
    bus = True

    @contextlib.contextmanager
    def running(self, *options):
        with self.desktop() as desktop:
            if not self.bus:
                runtime = desktop.folder / "runtime-without-bus"
                runtime.mkdir(mode=0o700)
                desktop.environment |= {"XDG_RUNTIME_DIR": str(runtime),
                                        "DBUS_SESSION_BUS_ADDRESS": ""}
            first = start(desktop, *options)
            wait_for_strip(desktop, first)
            yield desktop, first

    def test_a_second_start_opens_the_dashboard(self):
        with self.running() as (desktop, first):
            self.assertIsNone(dashboard(desktop, first))
            self.assertEqual(start_again(desktop), 0)
            wait_until(lambda: dashboard(desktop, first), 5, "the dashboard")
            self.assertEqual(start_again(desktop, "--show-dashboard", "--unknown"), 0)
            self.assertIsNone(first.poll())
            self.assertTrue(dashboard(desktop, first), "it stays open")

    def test_a_second_start_opens_the_settings_when_asked_to(self):
        with self.running() as (desktop, first):
            for _ in range(2):
                self.assertEqual(start_again(desktop, "--show-settings"), 0)
                settings.wait_for_window(desktop, first)
            self.assertEqual(len(settings.titled(desktop, first, settings.TITLE)), 1)
            self.assertIsNone(dashboard(desktop, first))

    def test_a_second_start_opens_the_inspection_window_when_asked_to(self):
        with self.running() as (desktop, first):
            for _ in range(2):
                self.assertEqual(start_again(desktop, "--inspect"), 0)
                wait_until(lambda: len(settings.titled(desktop, first, INSPECTION,
                                                       "--onlyvisible")) == 1, 5,
                           "one inspection window")

    def test_a_second_start_registers_for_login_when_asked_to(self):
        with self.running() as (desktop, first):
            self.assertEqual(start_again(desktop, "--enable-login", "--show-settings"), 0)
            settings.wait_for_window(desktop, first)
            entry = desktop.config / "autostart/zephrine.desktop"
            self.assertIn(os.path.realpath(PROGRAM), entry.read_text(encoding="utf-8"))

    def test_of_many_that_start_at_once_one_remains(self):
        with self.running() as (desktop, first):
            first.kill()
            first.wait()
            started = [start(desktop) for _ in range(6)]
            wait_until(lambda: sum(p.poll() is None for p in started) == 1, 60, "one left")
            self.assertEqual(sorted(p.poll() for p in started if p.poll() is not None), [0] * 5)
            left = next(p for p in started if p.poll() is None)
            wait_until(lambda: dashboard(desktop, left), 5, "the dashboard that they asked for")

    def test_one_that_crashed_does_not_block_the_next(self):
        with self.running() as (desktop, first):
            for number in (signal.SIGKILL, signal.SIGTERM):
                first.send_signal(number)
                first.wait(timeout=60)
                first = start(desktop)
                wait_for_strip(desktop, first)
                self.assertEqual(start_again(desktop), 0)
                wait_until(lambda: dashboard(desktop, first), 5, "the dashboard")

    def test_sessions_on_other_displays_are_left_alone(self):
        with self.running() as (desktop, first), self.desktop() as other:
            elsewhere = desktop.start(PROGRAM, environment={"DISPLAY": other.display})
            wait_for_strip(other, elsewhere)
            self.assertIsNone(dashboard(desktop, first))
            self.assertEqual(start_again(desktop, DISPLAY=other.display + ".0"), 0)
            wait_until(lambda: dashboard(other, elsewhere), 5, "the dashboard on that display")
            self.assertIsNone(dashboard(desktop, first))
            self.assertEqual(start_again(desktop, "--show-settings"), 0)
            settings.wait_for_window(desktop, first)

    def test_a_second_start_makes_no_window_and_measures_nothing(self):
        with self.running() as (desktop, first):
            trace = desktop.folder / "trace"
            result = subprocess.run(
                ["strace", "-f", "-qq", "-e", "trace=connect,openat", "-o", trace, PROGRAM],
                env=desktop.environment | {"ASAN_OPTIONS": "detect_leaks=0"}, timeout=20,
                capture_output=True, text=True)
            self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))
            calls = trace.read_text(encoding="utf-8", errors="replace")
            display = f"X11-unix/X{desktop.display[1:]}"
            self.assertEqual(calls.count(display), 1, "only to see whether there is a display")
            self.assertNotIn("/proc/stat", calls)
            self.assertNotIn("libqxcb", calls)
            wait_until(lambda: dashboard(desktop, first), 5, "the dashboard")


class SingleInstanceWithoutBus(SingleInstance):
    bus = False

    def test_noise_at_the_socket_is_ignored(self):
        with self.running() as (desktop, first):
            [path] = (desktop.folder / "runtime-without-bus/zephrine").glob("*.socket")
            self.assertEqual(path.stat().st_mode & 0o777, 0o600)
            for noise in (b"", b"\0" * 200, b"\xff" * 100_000, b"open --quit", b"--show-settings"):
                with socket.socket(socket.AF_UNIX, socket.SOCK_SEQPACKET) as client:
                    client.connect(str(path))
                    client.send(noise)
            self.assertEqual(start_again(desktop, "--show-settings"), 0)
            settings.wait_for_window(desktop, first)


class OnTheBus(DesktopTestCase):
    def test_the_desktop_can_open_it_by_its_name(self):
        application = DBusAddress("/org/zephrine/Zephrine", "org.zephrine.Zephrine",
                                  "org.freedesktop.Application")
        with self.desktop() as desktop, Bus(desktop.bus_address) as bus:
            first = start(desktop)
            wait_for_strip(desktop, first)
            self.assertEqual(bus.pid("org.zephrine.Zephrine"), first.pid)
            bus.call(new_method_call(application, "Activate", "a{sv}", ({},)))
            wait_until(lambda: dashboard(desktop, first), 5, "the dashboard")
            bus.call(new_method_call(application, "ActivateAction", "sava{sv}",
                                     ("show-settings", [], {})))
            settings.wait_for_window(desktop, first)


if __name__ == "__main__":
    unittest.main(verbosity=2)
