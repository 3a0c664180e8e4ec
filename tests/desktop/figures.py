# SPDX-License-Identifier: MIT
"""Figures of our own making for a program to read: files that stand over /proc/stat and
/proc/meminfo in a mount namespace of its own, where it may have one (namespaces.may_mount)."""
import pathlib
import threading

from desktop import wait_until
from namespaces import NAMESPACE

STEP = 0.1  # s
TICKS_PER_STEP = 1000
MEMINFO = """MemTotal:       16000000 kB
MemFree:         4080000 kB
MemAvailable:    6080000 kB
Active(file):    1000000 kB
Inactive(file):  1000000 kB
Active:          2000000 kB
Inactive:        2000000 kB
"""
RAM = 62  # percent in use
RAM_IN_GIGABYTES = " 9.5G"


class Figures:
    """Use as `with Figures(folder) as figures:`. The processor's figure is `cpu`, in percent, or
    another one in each second while `changing`."""

    def __init__(self, folder):
        self._stat = pathlib.Path(folder) / "stat"
        self._meminfo = pathlib.Path(folder) / "meminfo"
        self._meminfo.write_text(MEMINFO, encoding="ascii")
        self._busy = self._idle = self._steps = 0
        self._write()
        self._end = threading.Event()
        self._writer = threading.Thread(target=self._run)
        self.cpu = 20
        self.changing = False

    def __enter__(self):
        self._writer.start()
        return self

    def __exit__(self, *_):
        self._end.set()
        self._writer.join()

    def command(self, *program):
        """Starts the program so that it reads these."""
        script = ('mount --bind "$1" /proc/stat && mount --bind "$2" /proc/meminfo && shift 2'
                  ' && exec "$@"')
        return [*NAMESPACE, "sh", "-c", script, "sh", str(self._stat), str(self._meminfo),
                *program]

    def _run(self):
        while not self._end.wait(STEP):
            self._steps += 1
            # Up by seven percent each second, and round again.
            changing = 0.1 + self._steps * STEP * 0.07 % 0.7
            share = changing if self.changing else self.cpu / 100
            busy = round(TICKS_PER_STEP * share)
            self._busy += busy
            self._idle += TICKS_PER_STEP - busy
            self._write()

    def _write(self):
        # In one go, and always of one length, so that no reader finds half of it.
        text = f"cpu  {self._busy:015} 0 0 {self._idle:015} 0 0 0 0 0 0\ncpu0 1 0 0 1 0 0 0 0 0 0\n"
        with open(self._stat, "r+b" if self._stat.exists() else "wb", buffering=0) as file:
            file.write(text.encode("ascii"))


def is_seen_at_once(figures, cpu_shown, act):
    """Whether what `act` does is seen before the next refresh. `cpu_shown` is the processors' figure
    on the screen now, in percent, or None; `act` returns the one that is there as soon as what it
    did is seen. A refresh may come in between, so that this tries a few times."""
    for attempt in range(10):
        before, after = 20 + attempt, 60 + attempt
        figures.cpu = before
        wait_until(lambda: cpu_shown() == before, 20, "the figure of a refresh")
        figures.cpu = after  # which the next refresh will show
        if act() == before:
            return True
    return False
