#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""screenshot.py PROGRAM PICTURE [ARGUMENT...]: runs the program on a private desktop with a panel,
its dashboard open, and saves a picture of the screen."""
import pathlib
import signal
import sys
import time

import hosts
from bus import Bus
from desktop import Desktop, wait_until
from program import dashboard, wait_for_item

# The process list shows CPU figures from its second capture on, which comes after 2 seconds.
FIGURES_AFTER_S = 5


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
            time.sleep(FIGURES_AFTER_S)
            if process.poll() is not None:
                raise TimeoutError(f"the program ended by itself with status {process.returncode}")
        except TimeoutError as error:
            log = desktop.logs / (pathlib.Path(program).name + ".log")
            sys.exit(f"{error}\n{log.read_text(errors='replace')}".rstrip())
        desktop.picture().save(picture)
    print(f"The picture is {picture}")


if __name__ == "__main__":
    try:
        main(*sys.argv[1:])
    except KeyboardInterrupt:
        sys.exit(130)
