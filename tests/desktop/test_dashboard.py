#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The dashboard under a real panel, with real clicks: what opens it, what closes it, and what its
controls do."""
import contextlib
import re
import time
import unittest

import accessibility
import hosts
import processes
from accessibility import find, middle, rows
from bus import Bus
from desktop import stays, wait_until
from program import (PROGRAM, DesktopTestCase, changed_box, click, dashboard, press_keys,
                     press_keys_in, search, wait_for_item, wait_for_text, windows)

PANEL = (0, 0, 1000, 28)
SETTLE = 1.0  # s, in which something that must not happen would have happened
MINIMISE = 8  # among the functions of Motif's window hints
SHARE = re.compile(r"\d+\.\d%")
CAPTURE = 3  # s that a capture takes under the wrapper: every one begins with reading this file
SLOW_CAPTURE = ("strace", "-D", "-f", "-qq", "-o", "/dev/null", "-P", "/proc/loadavg",
                "-e", "trace=pread64", "-e", f"inject=pread64:delay_enter={CAPTURE}s")


class DashboardTestCase(DesktopTestCase):
    @contextlib.contextmanager
    def running(self, *options, wrapper=()):
        """Sets `desk`, `bus` and `program`: the program under the panel of Xfce."""
        with self.desktop() as self.desk, Bus(self.desk.bus_address) as self.bus:
            accessibility.enable(self.desk)
            hosts.xfce(self.desk)
            self.empty = self.desk.settled_picture(PANEL)
            # The leak checker cannot work under a tracer.
            leaks = {"ASAN_OPTIONS": "detect_leaks=0"} if wrapper else {}
            self.program = self.desk.start(*wrapper, PROGRAM, *options, environment=leaks)
            wait_for_text(wait_for_item(self.bus, self.program, timeout=20))
            yield

    def item(self):
        left, top, right, bottom = wait_until(
            lambda: changed_box(self.empty, self.desk.picture(PANEL)), 5, "pixels of the item")
        return (left + right) // 2, (top + bottom) // 2

    def open(self):
        click(self.desk, self.item())
        self.wait_until_open()

    def wait_until_open(self):
        return wait_until(lambda: dashboard(self.desk, self.program), 5, "the dashboard")

    def wait_until_closed(self):
        wait_until(lambda: not dashboard(self.desk, self.program), 5, "the dashboard's end")

    def elements(self):
        return accessibility.dashboard(self.desk, self.program)

    def rows(self):
        return [(name["description"], value["name"]) for name, value in rows(self.elements())]

    def sort_by(self, segment):
        accessibility.act(self.desk, self.program, "radio button", segment, "Toggle")

    def window_called(self, title):
        return next(iter(search(self.desk, "--onlyvisible", "--name", f"^{title}$")), None)


class OpeningAndClosing(DashboardTestCase):
    def test_it_opens_with_the_figures_of_the_last_refresh(self):
        with self.running():
            self.open()
            texts = [element["name"] for element in self.elements()]
            self.assertRegex(texts[texts.index("CPU") + 1], r"\d+%")
            self.assertRegex(texts[texts.index("Total capacity") + 1], r"\d+\.\d / \d+ GB")

    def test_a_click_on_the_empty_desktop_closes_it(self):
        with self.running():
            self.open()
            click(self.desk, (100, 500))
            self.wait_until_closed()

    def test_a_click_on_another_window_closes_it(self):
        with self.running():
            self.desk.start("xev", "-name", "Other", "-geometry", "200x200+50+300")
            wait_until(lambda: self.window_called("Other"), 5, "the other window")
            self.open()
            click(self.desk, (150, 420))
            self.wait_until_closed()

    def test_a_click_on_the_panel_beside_the_item_closes_it(self):
        with self.running():
            self.open()
            click(self.desk, (300, 14))
            self.wait_until_closed()

    def test_a_click_on_the_item_closes_it_and_does_not_reopen_it(self):
        with self.running():
            self.open()
            click(self.desk, self.item())
            self.wait_until_closed()
            stays(lambda: not dashboard(self.desk, self.program), SETTLE, "closed")
            self.open()

    def test_escape_closes_it(self):
        with self.running():
            self.open()
            press_keys(self.desk, "Escape")
            self.wait_until_closed()

    def test_a_click_inside_leaves_it_open(self):
        with self.running():
            self.open()
            click(self.desk, middle(find(self.elements(), "label", "Top processes")))
            stays(lambda: dashboard(self.desk, self.program), SETTLE, "open")

    def test_opened_and_closed_quickly_it_shows_nothing_of_an_earlier_opening(self):
        with self.running(wrapper=SLOW_CAPTURE), \
                processes.holding(processes.GIGABYTE) as gone:
            wait_until(lambda: processes.own_memory(gone.pid) > processes.GIGABYTE, 20,
                       "the memory in use")
            item = wait_for_item(self.bus, self.program)
            first_is_over = time.monotonic() + CAPTURE + 1
            for _ in range(2):  # each leaves a capture under way, or waiting for the one before
                item.activate(0, 0)
                self.wait_until_open()
                self.sort_by("RAM")
                item.activate(0, 0)
                self.wait_until_closed()
            item.activate(0, 0)
            self.wait_until_open()
            while time.monotonic() < first_is_over:
                self.assertNotIn(f"PID {gone.pid}", str(self.rows()))
            gone.kill()  # seen by the first capture, not by that of this opening
            gone.wait()
            shown = wait_until(lambda: "PID" in str(now := self.rows()) and now, 30, "rows")
            self.assertNotIn(f"PID {gone.pid}", str(shown))
            self.sort_by("CPU")
            wait_until(lambda: all(SHARE.fullmatch(value) for _, value in self.rows()), 30,
                       "shares in the rows")
            self.assertEqual(len(windows(self.desk, self.program)), 1)
            self.assertIsNone(self.program.poll())


class Controls(DashboardTestCase):
    def test_the_list_is_sorted_by_memory_at_a_click(self):
        with self.running():
            self.open()
            click(self.desk, middle(find(self.elements(), "radio button", "RAM")))
            size = re.compile(r"[\d.,]+ (bytes|KB|MB|GB)")
            # At once: with no other capture the list would still say shares.
            wait_until(lambda: all(size.fullmatch(value) for _, value in self.rows()), 5,
                       "sizes in the list")
            click(self.desk, middle(find(self.elements(), "radio button", "CPU")))
            wait_until(lambda: all(SHARE.fullmatch(value) for _, value in self.rows()), 5,
                       "shares in the list")

    def test_settings_open_and_the_dashboard_closes(self):
        with self.running():
            self.open()
            click(self.desk, middle(find(self.elements(), "button", "Settings…")))
            wait_until(lambda: self.window_called("Zephrine Settings"), 5, "the settings")
            self.wait_until_closed()

    def test_quit_ends_the_program_and_takes_the_item_away(self):
        with self.running():
            self.open()
            click(self.desk, middle(find(self.elements(), "button", "Quit")))
            self.assertEqual(self.program.wait(timeout=60), 0)
            self.assertIsNone(self.bus.item_of(self.program.pid))
            wait_until(lambda: not changed_box(self.empty, self.desk.picture(PANEL)), 5,
                       "a panel without the item")


class InspectionWindow(DashboardTestCase):
    TITLE = "Zephrine Dashboard"

    def test_it_is_an_ordinary_window_of_fixed_size(self):
        with self.running("--inspect"):
            window = wait_until(lambda: self.window_called(self.TITLE), 5, "the window")
            hints = self.desk.run("xprop", "-id", window, "WM_NORMAL_HINTS", "_NET_WM_WINDOW_TYPE",
                                  "_NET_WM_ALLOWED_ACTIONS", "_NET_FRAME_EXTENTS",
                                  "_MOTIF_WM_HINTS")
            self.assertIn("program specified minimum size: 360 by 660", hints)
            self.assertIn("program specified maximum size: 360 by 660", hints)
            self.assertIn("_NET_WM_WINDOW_TYPE_NORMAL", hints)
            self.assertIn("_NET_WM_ACTION_CLOSE", hints)
            self.assertNotIn("_NET_WM_ACTION_RESIZE", hints)
            functions = re.search(r"_MOTIF_WM_HINTS\) = 0x\w+, (0x\w+)", hints)
            self.assertFalse(int(functions[1], 16) & MINIMISE, "no button to minimise it")
            frame = re.search(r"_NET_FRAME_EXTENTS\(CARDINAL\) = \d+, \d+, (\d+)", hints)
            self.assertGreater(int(frame[1]), 10, "a title bar")
            self.assertEqual(self.wait_until_open()[3:], (360, 660))

    def test_it_follows_the_process_list_until_it_is_closed(self):
        with self.running("--inspect"):
            wait_until(lambda: all(SHARE.fullmatch(value) for _, value in self.rows()), 10,
                       "shares in the rows")
            press_keys_in(self.desk, self.wait_until_open()[0], "alt+F4")
            self.wait_until_closed()
            wait_for_item(self.bus, self.program)

    def test_the_popover_takes_the_dashboard_over_and_gives_it_back(self):
        with self.running("--inspect"):
            self.wait_until_open()
            click(self.desk, self.item())
            wait_until(lambda: self.window_with_content() == "Zephrine", 5,
                       "the dashboard in the popover")
            press_keys(self.desk, "Escape")
            wait_until(lambda: self.window_with_content() == self.TITLE, 5,
                       "the dashboard back in the window")

    def test_both_options_at_once_stall_the_list_until_the_panel_opens_again(self):
        with self.running("--show-dashboard", "--inspect"):
            wait_until(lambda: self.window_with_content() == self.TITLE, 5, "the dashboard")
            # Two and a half captures, by the clock of the program's own refreshes.
            before = self.samples()
            wait_until(lambda: self.samples() >= before + 5, 20, "five refreshes")
            self.assertEqual(rows(self.elements())[0][0]["name"], "Measuring…")
            click(self.desk, self.item())
            wait_until(lambda: all(SHARE.fullmatch(value) for _, value in self.rows()), 10,
                       "shares in the rows")

    def samples(self):
        """How many the graph shows, one a refresh."""
        graph = next(e for e in self.elements() if e["role"] == "image" and e["name"])
        found = re.search(r"(\d+) recent", graph["description"])
        return int(found[1]) if found else 0

    def window_with_content(self):
        return next((window["name"]
                     for window in accessibility.windows(self.desk, self.program)
                     if any(element["name"] == "Top processes"
                            for element in accessibility.within(window))), None)


if __name__ == "__main__":
    unittest.main(verbosity=2)
