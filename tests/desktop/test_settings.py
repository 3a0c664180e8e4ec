#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The settings window under a real panel: each choice is stored and seen in the item at once."""
import contextlib
import dataclasses
import time
import unittest

import accessibility
import hosts
import settings
from bus import Bus
from desktop import wait_until
from figures import RAM, RAM_IN_GIGABYTES, Figures, is_seen_at_once
from namespaces import NOBODY_MAY_MOUNT, may_mount
from pictures import GIGABYTES, PERCENTS
from program import (PROGRAM, DesktopTestCase, click, dashboard, press_keys, press_keys_in, start,
                     strip, wait_for_item, wait_for_text)
from shown import shown_item, shown_percent

PANEL = (0, 0, 1000, 28)
ROWS = ("RAM display", "Panel text", "Refresh interval")
WHEEL_UP, WHEEL_DOWN = 4, 5


class SettingsTestCase(DesktopTestCase):
    @contextlib.contextmanager
    def opened(self, interval=None):
        """The window is open."""
        with self.desktop() as self.desk:
            with self.opened_by(PROGRAM):
                if interval:
                    self.choose("Refresh interval", interval)
                yield

    @contextlib.contextmanager
    def opened_with_figures(self, interval):
        """The same, and the program shows those of `figures`."""
        with self.desktop() as self.desk, Figures(self.desk.folder) as self.figures:
            with self.opened_by(*self.figures.command(PROGRAM)):
                self.choose("Refresh interval", interval)
                yield

    @contextlib.contextmanager
    def opened_by(self, *command):
        with Bus(self.desk.bus_address) as self.bus:
            accessibility.enable(self.desk)
            hosts.xfce(self.desk)
            self.empty = self.desk.settled_picture(PANEL)
            self.program = self.desk.start(*command, "--show-settings")
            self.item = wait_for_item(self.bus, self.program)
            wait_for_text(self.item)
            settings.wait_for_window(self.desk, self.program)
            yield

    def close(self):
        window, *_ = settings.wait_for_window(self.desk, self.program)
        press_keys_in(self.desk, window, "alt+F4")
        wait_until(lambda: not settings.window(self.desk, self.program), 10, "its end")
        # Until the window manager has given the keyboard to another window, or to none: it would
        # take it from a dashboard that opens meanwhile, which then closes.
        wait_until(lambda: self.desk.run("xdotool", "getwindowfocus").strip() != window, 10,
                   "the keyboard elsewhere")

    def choose(self, row, item):
        settings.choose(self.desk, self.program, row, item)

    def is_stored(self, key, value):
        return settings.is_stored(self.desk, key, value)

    def changes_of_text(self, most, seconds):
        """How often the item says something new in that time, counted up to `most`."""
        count, last = 0, self.item.text()[0]
        end = time.monotonic() + seconds
        while count < most and time.monotonic() < end:
            time.sleep(0.05)  # between two samples of the measurement
            text = self.item.text()[0]
            count += text != last
            last = text
        return count

    def focused(self):
        return next((e["name"] for e in self.elements()
                     if e["role"] in ("check box", "combo box") and "focused" in e["states"]), None)

    def tab_to(self, name):
        for _ in range(5):
            before = self.focused()
            if before == name:
                return
            press_keys(self.desk, "Tab")
            wait_until(lambda: self.focused() not in (None, before), 5, "another focus")
        self.fail(f"{name} cannot be reached")

    def elements(self):
        return settings.elements(self.desk, self.program)

    def spoken(self, role):
        return {e["name"]: e for e in self.elements() if e["role"] == role}

    def login_line(self):
        return settings.login_line(self.desk, self.program)


class Settings(SettingsTestCase):
    @unittest.skipUnless(may_mount(), NOBODY_MAY_MOUNT)
    def test_figures_come_at_the_interval_chosen(self):
        with self.opened_with_figures("5 seconds"):
            self.figures.changing = True
            self.assertTrue(self.is_stored("refreshInterval", ("int", "5")))
            self.assertLessEqual(self.changes_of_text(8, seconds=6), 2)
            self.choose("Refresh interval", "0.5 seconds")
            self.assertTrue(self.is_stored("refreshInterval", ("float", "0.5")))
            self.assertEqual(self.changes_of_text(8, seconds=60), 8)
            for item, value in (("1 second", ("float", "1.0")), ("2 seconds", ("int", "2"))):
                self.choose("Refresh interval", item)
                self.assertTrue(self.is_stored("refreshInterval", value))

    def test_nothing_is_stored_before_a_choice(self):
        with self.opened():
            self.assertIsNone(settings.stored(self.desk))

    def test_the_next_start_opens_on_the_choices(self):
        with self.opened("5 seconds"):
            self.choose("RAM display", "Gigabytes")
            self.choose("Panel text", "Large")
            self.program.terminate()
            self.assertEqual(self.program.wait(timeout=60), 0)
            self.program = start(self.desk, "--show-settings")
            settings.wait_for_window(self.desk, self.program)
            chosen = wait_until(lambda: self.spoken("combo box"), 5, "the settings' elements")
            self.assertEqual({name: e["description"] for name, e in chosen.items()},
                             {"RAM display": "Gigabytes", "Panel text": "Large",
                              "Refresh interval": "5 seconds"})

    def test_it_opens_from_the_dashboard_which_then_closes(self):
        with self.opened():
            self.close()
            self.item.activate(0, 0)
            wait_until(lambda: dashboard(self.desk, self.program), 5, "the dashboard")
            accessibility.act(self.desk, self.program, "button", "Settings…", "Press")
            settings.wait_for_window(self.desk, self.program)
            wait_until(lambda: not dashboard(self.desk, self.program), 5, "the dashboard's end")

    def test_there_is_one_window_that_stays_where_the_user_put_it(self):
        with self.opened():
            window, left, top, *size = settings.wait_for_window(self.desk, self.program)
            self.assertEqual(tuple(size), settings.SIZE)
            self.desk.run("xdotool", "windowmove", "--sync", window, str(left - 90), str(top + 70))
            moved = settings.wait_for_window(self.desk, self.program)
            self.close()
            for _ in range(2):
                again = start(self.desk, "--show-settings")
                self.assertEqual(again.wait(timeout=60), 0)
                self.assertEqual(settings.wait_for_window(self.desk, self.program)[1:], moved[1:])
            self.assertEqual(len(settings.titled(self.desk, self.program, settings.TITLE)), 1)

    def test_the_box_registers_the_program_and_unregisters_it(self):
        with self.opened():
            entry = self.desk.config / "autostart/zephrine.desktop"
            self.assertEqual(self.login_line(), "Start manually whenever you need it.")
            settings.tick_login(self.desk, self.program)
            wait_until(entry.exists, 5, "the entry")
            wait_until(lambda: self.login_line() == "Ready when you sign in.", 5, "the line")
            settings.tick_login(self.desk, self.program)
            wait_until(lambda: not entry.exists(), 5, "the entry's end")

    def test_a_switched_off_entry_is_shown_as_needing_approval(self):
        with self.opened():
            settings.tick_login(self.desk, self.program)
            entry = self.desk.config / "autostart/zephrine.desktop"
            wait_until(entry.exists, 5, "the entry")
            entry.write_text("[Desktop Entry]\nHidden=true\n", encoding="utf-8")
            self.assertEqual(start(self.desk, "--show-settings").wait(timeout=60), 0)
            wait_until(lambda: self.login_line() ==
                       "Approve Zephrine in System Settings → Login Items.", 5, "the line")
            box = self.spoken("check box")["Launch Zephrine at login"]
            self.assertIn("checked", box["states"])


@unittest.skipUnless(may_mount(), NOBODY_MAY_MOUNT)
class UnitOfMemory(SettingsTestCase):
    UNITS = {"Percentage": (PERCENTS, f"{RAM:3d}%"), "Gigabytes": (GIGABYTES, RAM_IN_GIGABYTES)}
    unit = "Percentage"

    def test_memory_is_shown_as_chosen_at_once(self):
        with self.opened_with_figures("5 seconds"):
            self.tab_to("RAM display")
            for _ in range(2):  # there and back
                self.assertTrue(is_seen_at_once(self.figures, self.cpu_shown, self.choose_other))
                self.assertTrue(self.is_stored("ramInGB", self.unit == "Gigabytes"))

    def choose_other(self):
        self.unit = next(unit for unit in self.UNITS if unit != self.unit)
        press_keys(self.desk, "Down" if self.unit == "Gigabytes" else "Up")
        return wait_until(self.cpu_shown, 10, f"memory in the panel as {self.unit}")

    def cpu_shown(self):
        """The figure of the processors beside that of the memory in the unit chosen."""
        texts, text = self.UNITS[self.unit]
        shown = shown_item(self.desk, self.empty, hosts.LOOKS["xfce"][1], PANEL, texts)
        return shown_percent(shown) if shown and shown.ram == text else None


class TextSize(DesktopTestCase):
    def test_the_text_has_the_size_chosen(self):
        # In the strip: panels that squeeze every item into a square leave the text no choice.
        with self.desktop() as desktop:
            accessibility.enable(desktop)
            empty = desktop.picture(hosts.TOP)
            program = start(desktop, "--show-settings")
            wait_until(lambda: strip(desktop, program), 10, "the strip")
            for item, value in (("Small", ("float", "8.0")), ("Medium", ("int", "9")),
                                ("Large", ("int", "10"))):
                settings.choose(desktop, program, "Panel text", item)
                self.assertTrue(settings.is_stored(desktop, "fontSize", value))
                look = dataclasses.replace(hosts.LOOKS["none"][1], font_size=int(float(value[1])))
                wait_until(lambda: shown_item(desktop, empty, look, hosts.TOP), 10,
                           f"text of {value[1]} points in the strip")


class KeyboardOnly(SettingsTestCase):
    def test_everything_can_be_chosen(self):
        with self.opened():
            entry = self.desk.config / "autostart/zephrine.desktop"
            self.tab_to("Launch Zephrine at login")
            press_keys(self.desk, "space")
            wait_until(entry.exists, 5, "the entry")

            self.tab_to("RAM display")
            press_keys(self.desk, "Down")
            wait_until(lambda: self.is_stored("ramInGB", True), 5, "gigabytes")

            self.tab_to("Panel text")
            press_keys(self.desk, "space", "Down", "Return")
            wait_until(lambda: self.is_stored("fontSize", ("int", "10")), 5, "large text")

            self.tab_to("Refresh interval")
            press_keys(self.desk, "Up")
            wait_until(lambda: self.is_stored("refreshInterval", ("float", "0.5")), 5, "0.5 s")


class Wheel(SettingsTestCase):
    def turn_wheel(self, row):
        middle = accessibility.middle(self.spoken("combo box")[row])
        for button in (WHEEL_DOWN, WHEEL_DOWN, WHEEL_UP):
            click(self.desk, middle, button)

    def assert_nothing_was_chosen(self):
        """What comes after all that was done before has happened, and no choice has."""
        entry = self.desk.config / "autostart/zephrine.desktop"
        was_there = entry.exists()
        settings.tick_login(self.desk, self.program)
        wait_until(lambda: entry.exists() != was_there, 5, "what a click does")
        self.assertIsNone(settings.stored(self.desk))
        self.assertEqual([e["description"] for e in self.spoken("combo box").values()],
                         ["Percentage", "Medium", "1 second"])

    def test_the_wheel_over_a_button_chooses_nothing(self):
        with self.opened():
            for row in ROWS:
                self.turn_wheel(row)
            self.assert_nothing_was_chosen()

    def test_nor_does_it_over_the_button_with_the_keyboard(self):
        with self.opened():
            for row in ROWS:
                self.tab_to(row)
                self.turn_wheel(row)
            self.assert_nothing_was_chosen()

    def test_keys_stay_where_the_keyboard_is_when_the_wheel_is_turned(self):
        with self.opened():
            self.tab_to("Launch Zephrine at login")
            for row in ROWS:
                self.turn_wheel(row)
                press_keys(self.desk, "Down", "g", "l", "5", "End")
            self.assert_nothing_was_chosen()


if __name__ == "__main__":
    unittest.main(verbosity=2)
