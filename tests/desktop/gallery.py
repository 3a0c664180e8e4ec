#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Pictures of the item in each panel, for docs/desktops.md:
ZEPHRINE=build/release/src/zephrine tests/desktop/gallery.py FOLDER [HOST...]"""
import pathlib
import sys

import heavy_hosts
import hosts
from desktop import Desktop, wait_until
from load import cpu_load
from pictures import ABSENT
from program import start
from shown import shown_item

HOSTS = hosts.BY_NAME | heavy_hosts.BY_NAME
WIDTH, HEIGHT = 240, 32


def take(folder, name):
    host = HOSTS[name]
    with Desktop(window_manager=host.window_manager) as desktop:
        host.start(desktop)
        empty = desktop.settled_picture(host.area)
        start(desktop)

        def shown_cpu():
            shown = shown_item(desktop, empty, host.look, host.area)
            return shown and shown.cpu != ABSENT and shown.cpu

        before = wait_until(shown_cpu, 20, "the item with its figures")
        with cpu_load(30):
            wait_until(lambda: shown_cpu() not in (None, before), 20, "figures under a load")
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
