# SPDX-License-Identifier: MIT
"""Processes to be seen in a list: busy ones, large ones, many, and ones with names of ill will."""
import contextlib
import os
import pathlib
import subprocess
import time

GIGABYTE = 2**30
PYTHON = "/usr/bin/python3"
BURN = "while True: pass"
HOLD = "import sys, time; held = bytearray(b'x') * int(sys.argv[1]); time.sleep(3600)"
# The kernel lets a process choose 15 bytes of its own.
RENAME = ("import ctypes, sys\n"
          "ctypes.CDLL(None).prctl(15, ctypes.c_char_p(bytes.fromhex(sys.argv[1])))\n")


@contextlib.contextmanager
def running(*command, executable=None):
    """A process, ended with the block."""
    process = subprocess.Popen(command, executable=executable, stdin=subprocess.DEVNULL)
    try:
        yield process
    finally:
        process.kill()
        process.wait()


def burning():
    """A process that keeps one processor busy."""
    return running(PYTHON, "-S", "-c", BURN)


def holding(size):
    """A process that has written to `size` bytes of memory."""
    return running(PYTHON, "-S", "-c", HOLD, str(size))


def burning_as(name):
    """A busy process that calls itself `name`, of which the kernel keeps 15 bytes."""
    return running(PYTHON, "-S", "-c", RENAME + BURN, name.hex())


def burning_as_program(path, first_word=None):
    """A busy process out of a program file at `path`, whose command line begins with `first_word`
    instead of the path if so wished."""
    if not os.path.lexists(path):
        os.symlink(PYTHON, path)
    return running(first_word or path, "-S", "-c", BURN, executable=path)


@contextlib.contextmanager
def sleeping(count):
    """`count` processes that do nothing, and end when this one ends, however that comes about."""
    forker = subprocess.Popen(
        [PYTHON, "-S", "-c",
         "import os, sys\n"
         "for _ in range(int(sys.argv[1])):\n"
         "    if os.fork() == 0: os._exit(len(os.read(0, 1)))\n"
         "print('ready', flush=True)\n"
         "for _ in range(int(sys.argv[1])): os.wait()\n", str(count)],
        stdin=subprocess.PIPE, stdout=subprocess.PIPE)
    try:
        if forker.stdout.readline() != b"ready\n":
            raise RuntimeError(f"{count} processes are more than this system allows")
        yield
    finally:
        forker.stdin.close()
        forker.stdout.close()
        forker.wait()


def cpu_seconds(pid):
    """The CPU time of all threads of a process (see clock_getcpuclockid(3))."""
    return time.clock_gettime((~pid << 3) | 2)


def own_memory(pid):
    """Bytes that nobody else has as well; 0 for a process that has gone."""
    try:
        resident, shared = pathlib.Path(f"/proc/{pid}/statm").read_text().split()[1:3]
    except OSError:
        return 0
    return (int(resident) - int(shared)) * os.sysconf("SC_PAGESIZE")


def ps(field, pid):
    return subprocess.run(["ps", "-o", field + "=", "-p", str(pid)], check=True, text=True,
                          capture_output=True).stdout.strip()
