# SPDX-License-Identifier: MIT
"""The strip that stands in for the status item where no panel shows items, as a user finds it."""
import contextlib
import sys

import full_screen
import processes
from bus import Bus
from desktop import wait_until
from processes import GIGABYTE
from program import strip, wait_for_text


def wait_for_strip(desktop, process):
    return wait_until(lambda: strip(desktop, process), 10, "the strip")


def wait_for_strip_at(desktop, process, left, top):
    """The strip, once it is within two pixels of that place."""
    def strip_there():
        found = strip(desktop, process)
        return found and abs(found[1] - left) <= 2 and abs(found[2] - top) <= 2 and found

    return wait_until(strip_there, 10, f"the strip at {left}, {top}")


def middle(window):
    _, x, y, width, height = window
    return x + width // 2, y + height // 2


def drag(desktop, process, start_point, end_point):
    """Step by step, since sway tells the strip no more of the pointer once that is no longer on
    it."""
    steps = 30
    desktop.use_input("mousemove", *map(str, start_point))
    desktop.use_input("mousedown", "1")
    for step in range(1, steps + 1):
        point = [a + (b - a) * step // steps for a, b in zip(start_point, end_point)]
        desktop.use_input("mousemove", *map(str, point))
        wait_until(lambda: is_in(strip(desktop, process), point), 10, f"the strip at {point}")
    desktop.use_input("mouseup", "1")


def is_in(window, point):
    """Whether a point is well within a window."""
    _, x, y, width, height = window
    return x + 5 < point[0] < x + width - 5 and y + 5 < point[1] < y + height - 5


def is_seen(desktop, window):
    """Whether the picture of the strip is on the screen: it has text and a dot."""
    _, x, y, width, height = window
    return len(desktop.picture((x, y, x + width, y + height)).getcolors(10000)) > 3


@contextlib.contextmanager
def film(desktop):
    """A window over the whole screen, all of one colour."""
    process = desktop.start(sys.executable, full_screen.__file__)
    yield
    process.kill()
    process.wait()


def covers(desktop, window):
    """Whether a film is where the strip would be, and nothing of the strip."""
    _, x, y, width, height = window
    colours = desktop.picture((x, y, x + width, y + height)).getcolors(10000)
    return [colour for _, colour in colours] == [full_screen.GREEN]


def wait_for_other_figures(desktop, process):
    """Until the item would be drawn anew: those of the processors may stay as they are."""
    with Bus(desktop.bus_address) as bus:
        item = bus.item_of(process.pid)
        before = wait_for_text(item)[2]
        with processes.holding(GIGABYTE):
            wait_until(lambda: (text := item.text()) and text[2] != before, 20, "other figures")
