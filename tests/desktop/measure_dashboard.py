#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""measure_dashboard.py PROGRAM [SECONDS]: what the dashboard costs. Shows the program in a panel on
a private desktop and prints the CPU time that it and the X server take for each second, with the
dashboard closed and open, among 400 processes; then how long the program takes to answer a panel,
the dashboard open among 10,000. Nothing is judged: figures of a busy machine mean little.

    tests/desktop/measure_dashboard.py build/release/src/zephrine
"""
import os
import pathlib
import subprocess
import sys
import time

import hosts
import processes
from bus import Bus
from desktop import Desktop, wait_until
from program import dashboard, wait_for_item, wait_for_text

FEW, MANY = 400, 10000
SETTLE = 5  # s, until the first refreshes and captures are over
ASK_EVERY = 0.02  # s


def main(program, seconds="60"):
    for count in (FEW, MANY):
        with Desktop() as desktop, Bus(desktop.bus_address) as bus:
            hosts.xfce(desktop)
            process = desktop.start(program)
            item = wait_for_item(bus, process)
            wait_for_text(item)
            missing = count - len(list(pathlib.Path("/proc").glob("[0-9]*")))
            with processes.sleeping(max(0, missing)):
                alive = subprocess.run(["ps", "-e", "--no-headers"], capture_output=True,
                                       check=True).stdout.count(b"\n")
                print(f"{alive} processes; load average {os.getloadavg()[0]:.2f}")
                measure("closed", desktop, process, item, float(seconds))
                item.activate(0, 0)
                wait_until(lambda: dashboard(desktop, process), 5, "the dashboard")
                measure("open", desktop, process, item, float(seconds))


def measure(state, desktop, process, item, seconds):
    time.sleep(SETTLE)  # what is measured is a state that lasts
    before = [processes.cpu_seconds(p.pid) for p in (process, desktop.server)]
    start = time.monotonic()
    time.sleep(seconds)  # which is what is measured
    elapsed = time.monotonic() - start
    costs = [1000 * (processes.cpu_seconds(p.pid) - b) / elapsed
             for p, b in zip((process, desktop.server), before)]
    waits = answer_times(item, seconds / 2)
    print(f"  {state:7}program {costs[0]:6.2f} ms/s   X server {costs[1]:6.2f} ms/s   "
          f"answers: median {median(waits):.1f} ms, longest {waits[-1]:.1f} ms of {len(waits)}",
          flush=True)


def answer_times(item, seconds):
    """Ascending, ms. The main thread answers: while it is busy with something else, nobody does."""
    waits = []
    end = time.monotonic() + seconds
    while (start := time.monotonic()) < end:
        item.get("Title")
        waits.append(1000 * (time.monotonic() - start))
        time.sleep(ASK_EVERY)
    return sorted(waits)


def median(ascending):
    return ascending[len(ascending) // 2]


if __name__ == "__main__":
    main(*sys.argv[1:])
