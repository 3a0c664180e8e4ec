#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Light and dark: the item and the windows follow the desktop's choice while they are open."""
import signal
import unittest

from PIL import ImageStat

import hosts
import mocks
import settings
from desktop import wait_until
from figures import Figures, is_seen_at_once
from namespaces import NOBODY_MAY_MOUNT, may_mount
from program import PROGRAM, DesktopTestCase, dashboard, start, strip
from shown import shown_item, shown_percent

NOTHING, DARK, LIGHT = 0, 1, 2


def is_dark(desktop, window):
    """Whether most of a window is dark; the text on it then is light."""
    _, left, top, width, height = window
    picture = desktop.picture((left, top, left + width, top + height)).convert("L")
    return ImageStat.Stat(picture).median[0] < 128


def has_legible_text(desktop, window):
    _, left, top, width, height = window
    low, high = desktop.picture((left, top, left + width, top + height)).convert("L").getextrema()
    return low < 60 and high > 200


def name_theme(desktop, name):
    (desktop.config / "xsettingsd.conf").write_text(f'Net/ThemeName "{name}"\n', encoding="utf-8")


def settings_manager(desktop, theme):
    """What tells applications of their theme, in most desktops on X11."""
    name_theme(desktop, theme)
    return desktop.start("xsettingsd", "--config", str(desktop.config / "xsettingsd.conf"))


class AppearanceTest(DesktopTestCase):
    def assert_all_become(self, desktop, shown, dark):
        for name, find in shown.items():
            wait_until(find, 20, name)
        for name, find in shown.items():
            wait_until(lambda: (window := find()) and is_dark(desktop, window) is dark
                       and has_legible_text(desktop, window), 10,
                       f"{name}, {'dark' if dark else 'light'}, with text to be read")

    def test_everything_follows_while_it_is_on_screen(self):
        with self.desktop() as desktop, mocks.Portal(desktop, LIGHT) as portal:
            program = start(desktop, "--show-settings", "--inspect")
            settings.wait_for_window(desktop, program)
            shown = {"the item": lambda: strip(desktop, program),
                     "the settings": lambda: settings.window(desktop, program),
                     "the dashboard": lambda: dashboard(desktop, program)}
            window, *_ = settings.wait_for_window(desktop, program)
            desktop.run("xdotool", "windowmove", "--sync", window, "5", "200")  # off the dashboard
            self.assert_all_become(desktop, shown, dark=False)
            for scheme in (DARK, LIGHT, DARK, NOTHING):
                portal.prefer(scheme)
                self.assert_all_become(desktop, shown, dark=scheme == DARK)

    @unittest.skipUnless(may_mount(), NOBODY_MAY_MOUNT)
    def test_the_item_follows_at_once(self):
        with self.desktop() as desktop, mocks.Portal(desktop, LIGHT) as portal, \
                Figures(desktop.folder) as figures:
            settings.store(desktop, refreshInterval=5)
            empty = desktop.settled_picture()
            program = desktop.start(*figures.command(PROGRAM))
            wait_until(lambda: strip(desktop, program), 20, "the item")
            scheme = LIGHT

            def cpu_shown():
                window = strip(desktop, program)
                return shown_percent(shown_item(desktop, empty, hosts.LOOKS["none"][1])) \
                    if window and is_dark(desktop, window) is (scheme == DARK) else None

            def prefer_the_other():
                nonlocal scheme
                scheme = DARK if scheme == LIGHT else LIGHT
                portal.prefer(scheme)
                return wait_until(cpu_shown, 10, "the item in the other colours")

            for _ in range(2):  # there and back
                self.assertTrue(is_seen_at_once(figures, cpu_shown, prefer_the_other))

    def test_the_popover_follows_while_it_is_open(self):
        with self.desktop() as desktop, mocks.Portal(desktop, LIGHT) as portal:
            program = start(desktop, "--show-dashboard")
            shown = {"the dashboard": lambda: dashboard(desktop, program)}
            self.assert_all_become(desktop, shown, dark=False)
            portal.prefer(DARK)
            self.assert_all_become(desktop, shown, dark=True)

    def test_a_dark_desktop_is_dark_from_the_start(self):
        with self.desktop() as desktop, mocks.Portal(desktop, DARK) as portal:
            program = start(desktop)
            item = {"the item": lambda: strip(desktop, program)}
            self.assert_all_become(desktop, item, dark=True)
            portal.process.kill()
            self.assertEqual(start(desktop, "--show-settings").wait(timeout=60), 0)
            later = {"the settings": lambda: settings.window(desktop, program)}
            self.assert_all_become(desktop, item | later, dark=True)

    def test_without_a_portal_it_looks_as_other_applications_do(self):
        with self.desktop() as desktop:
            program = start(desktop, "--show-settings")
            shown = {"the item": lambda: strip(desktop, program),
                     "the settings": lambda: settings.window(desktop, program)}
            self.assert_all_become(desktop, shown, dark=False)
            manager = settings_manager(desktop, "Adwaita-dark")
            self.assert_all_become(desktop, shown, dark=True)
            name_theme(desktop, "Adwaita")
            manager.send_signal(signal.SIGHUP)
            self.assert_all_become(desktop, shown, dark=False)
            manager.kill()
            manager.wait()
            settings_manager(desktop, "Greybird-dark")
            self.assert_all_become(desktop, shown, dark=True)

    def test_a_portal_without_a_preference_leaves_it_to_the_theme(self):
        with self.desktop() as desktop, mocks.Portal(desktop, NOTHING) as portal:
            settings_manager(desktop, "Adwaita-dark")
            program = start(desktop)
            item = {"the item": lambda: strip(desktop, program)}
            self.assert_all_become(desktop, item, dark=True)
            portal.prefer(LIGHT)
            self.assert_all_become(desktop, item, dark=False)

    def test_without_a_portal_it_is_light(self):
        with self.desktop() as desktop:
            program = start(desktop)
            self.assert_all_become(desktop, {"the item": lambda: strip(desktop, program)},
                                   dark=False)


if __name__ == "__main__":
    unittest.main(verbosity=2)
