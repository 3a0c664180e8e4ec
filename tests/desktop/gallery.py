#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Pictures of the item in each panel, for docs/desktops.md:
ZEPHRINE=build/release/src/zephrine tests/desktop/gallery.py FOLDER [HOST...]"""
import pathlib
import sys
import time

import heavy_hosts
import hosts
from desktop import Desktop, wait_until
from load import cpu_load
from program import changed_area, start
from reading import figures, with_margin

HOSTS = hosts.BY_NAME | heavy_hosts.BY_NAME
WIDTH, HEIGHT = 240, 32


def shows_figures(desktop, empty, area):
    box = changed_area(desktop, empty, area)
    return box and len(figures(desktop.picture(with_margin(box)))) >= 2


def take(folder, name):
    host = HOSTS[name]
    with Desktop(window_manager=host.window_manager) as desktop:
        host.start(desktop)
        time.sleep(1)
        empty = desktop.settled_picture(host.area)
        start(desktop)
        wait_until(lambda: shows_figures(desktop, empty, host.area), 20, "the item")
        with cpu_load(30):
            time.sleep(4)
            _, top, right, bottom = host.area
            top = max(0, (top + bottom - HEIGHT) // 2)
            right = min(1000, right + 60)
            box = (right - WIDTH, top, right, top + HEIGHT)
            desktop.picture(box).resize((2 * WIDTH, 2 * HEIGHT)).save(folder / f"{name}.png")


if __name__ == "__main__":
    target = pathlib.Path(sys.argv[1])
    target.mkdir(parents=True, exist_ok=True)
    for chosen in sys.argv[2:] or HOSTS:
        take(target, chosen)
