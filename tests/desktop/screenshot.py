#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""screenshot.py PROGRAM PICTURE [ARGUMENT...]: runs the program on a private desktop with a panel,
its dashboard open, and saves a picture of the screen."""
import pathlib
import signal
import sys

from PIL import Image

import hosts
from bus import Bus
from desktop import Desktop, wait_until
from pictures import commonest_colour
from program import changed_box, dashboard, wait_for_item

# Of the dashboard's window: where the first process in the list has its share, from the second
# capture of all processes on.
SHARE = (256, 414, 341, 438)
DIGIT = 6  # pixels high, or more; a dash is lower


def main(program, picture, *arguments):
    for number in (signal.SIGTERM, signal.SIGHUP):
        signal.signal(number, lambda *_: sys.exit(1))
    with Desktop() as desktop, Bus(desktop.bus_address) as bus:
        desktop.run("xsetroot", "-solid", "#4a6178")
        hosts.xfce(desktop)
        process = desktop.start(program, "--show-dashboard", *arguments)
        try:
            wait_for_item(bus, process)
            wait_until(lambda: dashboard(desktop, process), 20, "the dashboard")
            wait_until(lambda: process.poll() is not None or shows_share(desktop, process), 20,
                       "figures in the list of processes")
            if process.poll() is not None:
                raise TimeoutError(f"the program ended by itself with status {process.returncode}")
        except TimeoutError as error:
            log = desktop.logs / (pathlib.Path(program).name + ".log")
            sys.exit(f"{error}\n{log.read_text(errors='replace')}".rstrip())
        desktop.picture().save(picture)
    print(f"The picture is {picture}")


def shows_share(desktop, process):
    window = dashboard(desktop, process)
    if not window:
        return False
    _, x, y, _, _ = window
    cell = desktop.picture((x + SHARE[0], y + SHARE[1], x + SHARE[2], y + SHARE[3]))
    ink = changed_box(Image.new("RGB", cell.size, commonest_colour(cell)), cell)
    return ink is not None and ink[3] - ink[1] >= DIGIT


if __name__ == "__main__":
    try:
        main(*sys.argv[1:])
    except KeyboardInterrupt:
        sys.exit(130)
