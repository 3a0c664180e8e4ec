# SPDX-License-Identifier: MIT
"""Putting the processors under a load, and comparing what an item says with the kernel's count."""
import contextlib
import os
import subprocess
import time


@contextlib.contextmanager
def cpu_load(percent):
    """Keeps every processor that there is for us busy for `percent` of the time."""
    if percent == 0:
        yield
        return
    load = subprocess.Popen(["stress-ng", "--quiet", "--cpu", str(len(os.sched_getaffinity(0))),
                             "--cpu-load", str(percent)])
    try:
        yield
    finally:
        load.terminate()
        load.wait()


def ticks():
    """(busy, all) ticks since boot, as in proc(5): waiting for a disk is not being busy, and time
    as a guest is part of the user time already."""
    with open("/proc/stat", encoding="ascii") as stat:
        counters = [int(word) for word in stat.readline().split()[1:9]]
    idle, iowait = counters[3:5]
    return sum(counters) - idle - iowait, sum(counters)


def compare(item, seconds, interval=1.0):
    """(what the item said, what /proc/stat says) in percent, averaged over the same time. A figure
    that is shown from one refresh to the next tells of the interval before it, so the kernel's
    count is taken one interval earlier."""
    samples = []
    end = time.monotonic() + seconds + 4.5 * interval
    while (now := time.monotonic()) < end:
        if text := item.text():
            samples.append((now, float(text[1]), ticks()))
        time.sleep(0.05)  # between two samples of the measurement

    # From here on the figures tell of the present load only.
    start = next(i for i, sample in enumerate(samples)
                 if sample[0] > samples[0][0] + 2.5 * interval)
    changes = [i for i in range(start + 1, len(samples))
               if samples[i][1] != samples[i - 1][1]
               and samples[i][0] > samples[start][0] + interval]
    first, last = changes[:1] + changes[-1:] if changes else (start, len(samples) - 1)
    if samples[last][0] - samples[first][0] < seconds / 2:
        first, last = start, len(samples) - 1
    shown = sum(samples[i][1] * (samples[i + 1][0] - samples[i][0]) for i in range(first, last))
    shown /= samples[last][0] - samples[first][0]

    def ticks_at(moment):
        return min(samples, key=lambda sample: abs(sample[0] - moment))[2]

    before, after = ticks_at(samples[first][0] - interval), ticks_at(samples[last][0] - interval)
    return shown, 100 * (after[0] - before[0]) / (after[1] - before[1])


def memory():
    """Bytes of memory (in use, in all), as free(1) counts them."""
    with open("/proc/meminfo", encoding="ascii") as meminfo:
        total, _, available = (int(next(meminfo).split()[1]) * 1024 for _ in range(3))
    return total - available, total


def memory_percent():
    used, total = memory()
    return 100 * used / total
