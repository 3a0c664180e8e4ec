# SPDX-License-Identifier: MIT
"""The program under test, named by the environment variable ZEPHRINE, and what it shows on a
desktop. ZEPHRINE_EVIDENCE names the folder for the logs and pictures of tests that fail."""
import os
import pathlib
import re
import subprocess
import time
import unittest

from PIL import ImageChops

from desktop import Desktop, wait_until

PROGRAM = os.environ.get("ZEPHRINE", "")
SOON = 1.5  # s, long before the program gives a panel up
X_ERROR = re.compile("X Error|BadWindow")


class DesktopTestCase(unittest.TestCase):
    def desktop(self, **kind):
        folder = os.environ.get("ZEPHRINE_EVIDENCE")
        name = self.id().partition(".")[2]
        return Desktop(evidence=folder and pathlib.Path(folder) / name, **kind)


def start(desktop, *arguments):
    return desktop.start(PROGRAM, *arguments)


def windows(desktop, process):
    """The visible windows of a process: a list of (id, x, y, width, height)."""
    found = search(desktop, "--onlyvisible", "--pid", str(process.pid))
    return [window for window in map(lambda id: geometry(desktop, id), found) if window]


def search(desktop, *conditions):
    """The ids of the windows that meet the conditions of `xdotool search`."""
    def answer():
        found = subprocess.run(["xdotool", "search", *conditions], env=desktop.environment,
                               capture_output=True, text=True, timeout=20)
        # It gives up, and names none, where any window goes while it looks.
        return None if X_ERROR.search(found.stderr) else (found.stdout.split(),)

    return wait_until(answer, 20, "an answer about the windows")[0]


def geometry(desktop, window):
    """None when the window has gone."""
    answer = subprocess.run(["xdotool", "getwindowgeometry", "--shell", window],
                            env=desktop.environment, capture_output=True, text=True, timeout=20)
    values = dict(line.split("=") for line in answer.stdout.split())
    if answer.returncode or "X" not in values:
        return None
    return (window, *(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT")))


def dashboard(desktop, process):
    """The window of the dashboard, by far the largest one; None while there is none."""
    return next((w for w in windows(desktop, process) if w[4] > 600), None)


def strip(desktop, process):
    """The window that stands in for the item where no panel takes it; None where there is none."""
    return next((w for w in windows(desktop, process) if w[4] < 60), None)


def item_in_tray(desktop):
    """(id, width, height) of the item's window in a tray of X11; None where it has none."""
    # It gives up halfway where a window goes while it looks.
    tree = subprocess.run(["xwininfo", "-root", "-tree"], env=desktop.environment,
                          capture_output=True, text=True, timeout=20).stdout
    # Indented by more than the five blanks of those that are in no other window.
    found = re.search(r'^ {6,}(0x[0-9a-f]+) "Zephrine": \("zephrine" "Zephrine"\) +(\d+)x(\d+)',
                      tree, re.MULTILINE)
    return found and (found[1], int(found[2]), int(found[3]))


def click(desktop, place, button=1):
    desktop.use_input("mousemove", *map(str, place))
    desktop.use_input("click", str(button))


def press_keys(desktop, *keys):
    desktop.use_input("key", *keys)


def press_keys_in(desktop, window, *keys):
    """Once the window has the keyboard: before that, they would go astray."""
    wait_until(lambda: desktop.run("xdotool", "getwindowfocus").strip() == window, 10,
               "the keyboard at the window")
    press_keys(desktop, *keys)


def changed_box(before, after):
    """The box of the pixels that differ, or None."""
    return ImageChops.difference(before, after).getbbox()


def changed_area(desktop, before, area):
    """The box on the screen that differs from `before`, a picture of `area`, or None."""
    box = changed_box(before, desktop.picture(area))
    if not box:
        return None
    left, top = area[:2]
    return box[0] + left, box[1] + top, box[2] + left, box[3] + top


def wait_without_strip(desktop, process, condition, what, gone_at=None):
    """For what comes at once rather than after a while: the program's strip, which it shows once
    its item has been missing for three seconds, must not be there before it. Where that is since
    `gone_at` and the panel itself was not back soon, it may have been there."""
    is_late = gone_at is not None and time.monotonic() - gone_at > SOON

    def answer():
        if not is_late and strip(desktop, process):
            raise AssertionError(f"the strip before {what}")
        return condition()

    return wait_until(answer, 20, what)


def wait_for_item(bus, process, timeout=20):
    return wait_until(lambda: bus.item_of(process.pid), timeout, "the item on the bus")


def wait_for_text(item):
    """The description, once it has a CPU figure: that takes two refreshes."""
    return wait_until(item.text, 20, "the item's text with a CPU figure")
