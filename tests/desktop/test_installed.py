#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The program as a package puts it on a system: it runs from there, and the menu of applications
finds it with its icon and starts it."""
import configparser
import os
import pathlib
import subprocess
import tempfile
import unittest

from desktop import wait_until
from program import DesktopTestCase, search

BUILD = os.environ["ZEPHRINE_BUILD"]


class Installed(DesktopTestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="zephrine-")
        self.addCleanup(folder.cleanup)
        self.prefix = pathlib.Path(folder.name)
        subprocess.run(["cmake", "--install", BUILD, "--prefix", folder.name], check=True,
                       capture_output=True)
        self.entry = self.prefix / "share/applications/zephrine.desktop"

    def test_its_entry_is_valid(self):
        checked = subprocess.run(["desktop-file-validate", self.entry], capture_output=True,
                                 text=True)
        self.assertEqual((checked.returncode, checked.stdout + checked.stderr), (0, ""))

    def test_it_has_an_icon_in_every_size(self):
        icons = self.prefix / "share/icons/hicolor"
        self.assertEqual(sorted(icon.relative_to(icons).as_posix() for icon in icons.rglob("*.*")),
                         sorted([f"{side}x{side}/apps/zephrine.png"
                                 for side in (16, 22, 24, 32, 48, 64, 128, 256)]
                                + ["scalable/apps/zephrine.svg"]))

    def test_the_menu_of_applications_starts_it_and_its_actions(self):
        entry = configparser.ConfigParser(interpolation=None)
        entry.read(self.entry)
        with self.desktop() as desktop:
            desktop.environment["PATH"] = f"{self.prefix}/bin:" + desktop.environment["PATH"]
            desktop.start("gio", "launch", str(self.entry))
            wait_until(lambda: count_windows(desktop) == 1, 10, "the item")
            desktop.run(*entry["Desktop Action dashboard"]["Exec"].split())
            wait_until(lambda: count_windows(desktop) == 2, 5, "the dashboard")
            desktop.run(*entry["Desktop Action settings"]["Exec"].split())
            wait_until(lambda: "Zephrine Settings" in titles(desktop), 5, "the settings")


def count_windows(desktop):
    return len(search(desktop, "--onlyvisible", "--class", "zephrine"))


def titles(desktop):
    return [desktop.run("xdotool", "getwindowname", window).strip()
            for window in search(desktop, "--onlyvisible", "--name", "Zephrine")]


if __name__ == "__main__":
    unittest.main(verbosity=2)
