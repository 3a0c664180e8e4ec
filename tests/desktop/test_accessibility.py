#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The dashboard for those who cannot see it, or have no mouse: what a screen reader is told, and
what the keyboard does."""
import contextlib
import re
import unittest

import accessibility
import hosts
import processes
import settings
from accessibility import find
from bus import TEXT, Bus
from desktop import wait_until
from processes import GIGABYTE
from program import (DesktopTestCase, dashboard, geometry, item_in_tray, press_keys, start, strip,
                     wait_for_item, wait_for_text)

PERCENT = r"\d+%|—"
ELEMENTS = [
    ("image", ""),
    ("label", "Zephrine"), ("label", "Your computer, at a glance\\."),
    ("label", "CPU"), ("label", PERCENT),
    ("label", "RAM"), ("label", PERCENT),
    ("label", "GPU"), ("label", PERCENT),
    ("label", "Total capacity"), ("label", r"\d+\.\d / \d+ GB"),
    ("label", "Driver-reported usage|Not available here"),
    ("label", "●  Memory pressure: (Normal|Elevated|High|Unavailable)"),
    ("label", "LAST 5 MINUTES"), ("label", "100%"),
    ("image", "CPU, memory and GPU usage history for the last five minutes"),
    ("label", "5 min ago"), ("label", "Now"),
    ("label", "Top processes"),
    ("panel", "Sort top processes"), ("radio button", "CPU"), ("radio button", "RAM"),
    *[("label", ".+"), ("label", r"\d+\.\d%")] * 5,
    ("label", "Accessible processes · CPU share of total capacity"),
    ("separator", ""),
    ("button", "Settings…"), ("button", "Quit"),
    ("label", "Updates every 1s · Everything stays on your computer"),
]


class AccessibilityTestCase(DesktopTestCase):
    @contextlib.contextmanager
    def opened(self, *options, **preferences):
        with self.desktop() as self.desk, Bus(self.desk.bus_address) as bus:
            accessibility.enable(self.desk)
            hosts.xfce(self.desk)
            if preferences:
                settings.store(self.desk, **preferences)
            self.program = start(self.desk, *options)
            item = wait_for_item(bus, self.program)
            wait_for_text(item)
            if not options:
                item.activate(0, 0)
            wait_until(lambda: dashboard(self.desk, self.program), 5, "the dashboard")
            yield

    def elements(self):
        return accessibility.dashboard(self.desk, self.program)

    def window(self, name):
        return next((window for window in accessibility.windows(self.desk, self.program)
                     if window["name"] == name), None)


class ScreenReader(AccessibilityTestCase):
    def test_every_element_is_told_in_reading_order(self):
        with self.opened():
            wait_until(lambda: "%" in accessibility.rows(self.elements())[0][1]["name"], 10,
                       "shares in the list")
            told = [e for e in self.elements()[1:] if e["role"] != "filler"]
            for (role, name), element in zip(ELEMENTS, told, strict=True):
                self.assertEqual(element["role"], role, element["name"])
                self.assertRegex(element["name"], f"^({name})$")
                self.assertIn("showing", element["states"], element["name"])

    def test_the_graph_says_its_figures_as_the_labels_show_them(self):
        with self.opened(refreshInterval=5):
            # Once more where a refresh came between reading the labels and the graph.
            wait_until(self.graph_agrees_with_labels, 20, "the figures of the labels")

    def graph_agrees_with_labels(self):
        elements = self.elements()
        cpu, ram, gpu = (elements[elements.index(find(elements, "label", name)) + 1]["name"]
                         for name in ("CPU", "RAM", "GPU"))
        graph = next(e for e in elements if e["role"] == "image" and e["name"])
        return re.fullmatch(re.escape(f"CPU {cpu}, RAM {ram}, GPU {gpu}. ")
                            + r"[1-9]\d* recent samples\.", graph["description"])

    def test_rows_tell_the_process_number_as_well(self):
        with self.opened():
            rows = wait_until(lambda: (rows := accessibility.rows(self.elements()))
                              and rows[0][0]["name"] != "Measuring…" and rows, 10, "processes")
            for name, _ in rows:
                self.assertRegex(name["description"],
                                 "^" + re.escape(name["name"]) + r" · PID \d+$")

    def test_the_segments_are_choices_and_not_check_boxes(self):
        with self.opened():
            elements = self.elements()
            self.assertNotIn("check box", [element["role"] for element in elements])
            segments = [e for e in elements if e["role"] == "radio button"]
            self.assertEqual(["checked" in e["states"] for e in segments], [True, False])
            accessibility.act(self.desk, self.program, "radio button", "RAM", "Toggle")
            wait_until(lambda: accessibility.rows(self.elements())[0][1]["name"].endswith("B"), 5,
                       "a list by memory")
            segments = [e for e in self.elements() if e["role"] == "radio button"]
            self.assertEqual(["checked" in e["states"] for e in segments], [False, True])

    def test_windows_are_told_as_windows(self):
        with self.opened():
            accessibility.act(self.desk, self.program, "button", "Settings…", "Press")
            window = wait_until(lambda: self.window("Zephrine Settings"), 5, "the settings")
            self.assertIn(window["role"], ("window", "frame"))
        with self.opened():
            self.assertEqual(self.window("Zephrine")["role"], "dialog")


class ItemInATray(DesktopTestCase):
    """The window in a tray of X11 is none that Qt knows."""

    def spoken(self):
        """The one thing to press that stands in no window, or None."""
        found = [e for e in accessibility.windows(self.desk, self.program)
                 if e["role"] == "button"]
        self.assertLessEqual(len(found), 1)
        return found[0] if found else None

    def wait_for_item_at(self, place):
        """The item, once it is spoken of as where `place`, a function, has its window."""
        def item_there():
            window, item = place(), self.spoken()
            return window and item and tuple(item["box"]) == tuple(window[1:]) and item

        return wait_until(item_there, 20, "the spoken item")

    def place_in_tray(self):
        window = item_in_tray(self.desk)
        return window and geometry(self.desk, window[0])

    def test_it_is_a_button_called_by_its_figures_wherever_it_stands(self):
        with self.desktop() as self.desk:
            accessibility.enable(self.desk)
            tray = hosts.trayer(self.desk)
            self.program = start(self.desk)
            for _ in range(2):
                self.wait_for_item_at(self.place_in_tray)
                wait_until(lambda: TEXT.fullmatch(self.spoken()["name"]), 20, "its figures")
                tray.kill()
                tray.wait()
                self.wait_for_item_at(lambda: strip(self.desk, self.program))
                tray = hosts.trayer(self.desk)

    def test_its_figures_are_kept_true(self):
        with self.desktop() as self.desk, Bus(self.desk.bus_address) as bus:
            accessibility.enable(self.desk)
            hosts.trayer(self.desk)
            self.program = start(self.desk)
            item = wait_for_item(bus, self.program)
            wait_for_text(item)
            before = self.wait_for_item_at(self.place_in_tray)["name"]
            with processes.holding(GIGABYTE):
                wait_until(lambda: self.spoken()["name"] != before, 20, "other figures")
                wait_until(lambda: self.spoken()["name"] == item.get("IconAccessibleDesc"), 20,
                           "the figures that panels are told")

    def test_a_screen_reader_is_told_of_its_coming_its_new_figures_and_its_going(self):
        with self.desktop() as self.desk:
            accessibility.enable(self.desk)
            self.program = start(self.desk)
            wait_until(lambda: strip(self.desk, self.program), 20, "the strip")
            hears = accessibility.listen(self.desk, self.program)
            news = ["object:children-changed:add application showing"]
            tray = hosts.trayer(self.desk)
            wait_until(lambda: hears(*news), 20, "its coming")
            news.append("object:property-change:accessible-name button showing")
            with processes.holding(GIGABYTE):
                wait_until(lambda: hears(*news), 20, "its new figures")
            news.append("object:children-changed:remove application showing")
            tray.kill()
            wait_until(lambda: hears(*news), 20, "its going")

    def test_it_can_be_pressed(self):
        with self.desktop() as self.desk:
            accessibility.enable(self.desk)
            hosts.trayer(self.desk)
            self.program = start(self.desk, "--show-settings")
            self.wait_for_item_at(self.place_in_tray)
            accessibility.act(self.desk, self.program, "button", "CPU .*", "Press")
            _, left, top, width, _ = wait_until(lambda: dashboard(self.desk, self.program), 10,
                                                "the dashboard")
            _, item_left, _, item_width, item_height = self.place_in_tray()
            self.assertLess(left, item_left + item_width)
            self.assertLess(item_left, left + width)
            self.assertLess(top, item_height + 40)

    def test_a_screen_reader_that_comes_later_finds_it(self):
        with self.desktop() as self.desk:
            hosts.trayer(self.desk)
            self.program = start(self.desk)
            wait_until(self.place_in_tray, 20, "the item in the tray")
            accessibility.enable(self.desk)
            self.wait_for_item_at(self.place_in_tray)


class Keyboard(AccessibilityTestCase):
    def focused(self):
        return next((e["name"] for e in self.elements() or [] if "focused" in e["states"]), None)

    def move_to(self, name):
        """Presses Tab until the element has the focus; the names of those on the way."""
        passed = []
        while self.focused() != name:
            passed.append(self.focused())
            self.assertLess(len(passed), 5, f"{passed} and no {name}")
            press_keys(self.desk, "Tab")
            wait_until(lambda: self.focused() not in (None, passed[-1]), 5, "another focus")
        return passed

    def wait_for_list_by(self, unit):
        wait_until(lambda: accessibility.rows(self.elements())[0][1]["name"].endswith(unit), 10,
                   f"figures in {unit}")

    def test_tab_goes_through_the_controls_in_reading_order(self):
        with self.opened():
            wait_until(lambda: self.focused() == "CPU", 5, "the focus at the first control")
            self.assertEqual(self.move_to("Quit"), ["CPU", "Settings…"])
            self.assertEqual(self.move_to("CPU"), ["Quit"])
            press_keys(self.desk, "shift+Tab")
            wait_until(lambda: self.focused() == "Quit", 5, "the focus one back")

    def test_arrows_choose_a_segment(self):
        with self.opened():
            wait_until(lambda: self.focused() == "CPU", 5, "the focus at the first control")
            press_keys(self.desk, "Right")
            self.wait_for_list_by("B")
            press_keys(self.desk, "Left")
            self.wait_for_list_by("%")

    def test_space_chooses_the_segment_with_the_focus(self):
        with self.opened():
            accessibility.act(self.desk, self.program, "radio button", "RAM", "SetFocus")
            wait_until(lambda: self.focused() == "RAM", 5, "the focus at the second segment")
            press_keys(self.desk, "space")
            self.wait_for_list_by("B")

    def test_enter_and_space_press_buttons(self):
        for key in ("Return", "space"):
            with self.subTest(key), self.opened():
                self.move_to("Settings…")
                press_keys(self.desk, key)
                wait_until(lambda: self.window("Zephrine Settings"), 5, "the settings")
        for key in ("KP_Enter", "space"):
            with self.subTest(key), self.opened():
                self.move_to("Quit")
                press_keys(self.desk, key)
                self.assertEqual(self.program.wait(timeout=60), 0)

    def test_the_focus_shows_once_the_keyboard_is_used(self):
        with self.opened():
            wait_until(lambda: self.focused() == "CPU", 5, "the focus at the first control")
            x, y, width, height = find(self.elements(), "button", "Settings…")["box"]
            box = (x, y, x + width, y + height)
            before = self.desk.picture(box)
            self.move_to("Settings…")
            wait_until(lambda: self.desk.picture(box) != before, 5, "a ring around the button")


if __name__ == "__main__":
    unittest.main(verbosity=2)
