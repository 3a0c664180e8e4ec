#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""measure_hosts.py PROGRAM HOST...: what the item costs in each of these panels, at one refresh a
second: while its figures change with every refresh, and while they stay. Prints the CPU time that
the program, the panel and the X server take for each second, what the latter two took before the
program was there (in parentheses), and what the program says on the bus. Nothing is judged:
figures of a busy machine mean little.

    tests/desktop/measure_hosts.py build/release/src/zephrine xfce lxqt mate trayer none
"""
import collections
import contextlib
import os
import sys
import time

import heavy_hosts
import hosts
import processes
import settings
from bus import Bus
from bus_monitor import BusMonitor
from desktop import Desktop, process_table
from figures import Figures
from program import wait_for_item, wait_for_text

HOSTS = hosts.BY_NAME | heavy_hosts.BY_NAME
SECONDS = float(os.environ.get("SECONDS_EACH", "60"))
START = 15  # s, until a panel has nothing more to do
SETTLE = 4  # s


def main(program, *names):
    print("                       program      panel          X server       on the bus, a second")
    for name in names:
        measure_host(program, name)


def measure_host(program, name):
    host = HOSTS[name]
    with Desktop(window_manager=host.window_manager) as desktop:
        settings.store(desktop, refreshInterval=1)
        before = descendants(os.getpid())
        host.start(desktop)
        time.sleep(START)  # some go on for a while after they have drawn all there is to see
        panel = descendants(os.getpid()) - before
        idle = costs(SECONDS / 4, {"panel": panel, "server": {desktop.server.pid}})
        with Figures(desktop.folder) as figures:
            process = desktop.start(*figures.command(program))
            with Bus(desktop.bus_address) as bus:
                wait_for_text(wait_for_item(bus, process))
            groups = {"program": {process.pid}, "panel": panel, "server": {desktop.server.pid}}
            for figures.changing in (True, False):
                with BusMonitor(desktop.bus_address, process.pid) as monitor:
                    time.sleep(SETTLE)  # until the last figures of the other kind are over
                    monitor.sent()
                    spent = costs(SECONDS, groups)
                    kind = "changing" if figures.changing else "steady"
                    print(line(name, kind, spent, idle, monitor.sent()), flush=True)


def line(name, kind, spent, idle, messages):
    """`spent` and `idle` are in ms a second."""
    cells = [f"{name:10}{kind:10}{spent['program']:6.2f} ms/s"]
    cells += [f"{spent[who]:6.2f} ({idle[who]:.2f})" for who in ("panel", "server")]
    cells.append(f"{len(messages) / SECONDS:.2f} messages, "
                 f"{sum(size for _, size in messages) / SECONDS:.0f} bytes")
    kinds = collections.Counter(member for member, _ in messages)
    cells.append(", ".join(f"{count} {member}" for member, count in kinds.most_common()))
    return "   ".join(cells)


def costs(seconds, groups):
    """The CPU time of all threads of each group of processes, in ms a second."""
    before = {who: spent_by(pids) for who, pids in groups.items()}
    start = time.monotonic()
    time.sleep(seconds)  # which is what is measured
    elapsed = time.monotonic() - start
    return {who: 1000 * (spent_by(pids) - before[who]) / elapsed for who, pids in groups.items()}


def spent_by(pids):
    total = 0
    for pid in pids:
        with contextlib.suppress(OSError):  # it has ended
            total += processes.cpu_seconds(pid)
    return total


def descendants(ancestor):
    """The pids of all processes that come from this one."""
    children = collections.defaultdict(set)
    for pid, _, parent, _ in process_table():
        children[parent].add(pid)
    found, left = set(), [ancestor]
    while left:
        new = children[left.pop()] - found
        found |= new
        left += new
    return found


if __name__ == "__main__":
    main(*sys.argv[1:])
