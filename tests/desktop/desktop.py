# SPDX-License-Identifier: MIT
"""A private desktop: an X server that nobody sees, a session bus, a window manager, and folders of
its own, so that a run neither sees nor changes anything of the user's. Everything that is started
here, or by what is started here, is gone when the desktop is left, and so are its folders.
"""
import contextlib
import ctypes
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time

from PIL import ImageGrab

PR_SET_PDEATHSIG = 1
PR_SET_CHILD_SUBREAPER = 36
libc = ctypes.CDLL(None, use_errno=True)


# Timeouts are for a machine that does nothing else. They only end what hangs, and where others keep
# the processors busy everything takes longer, by up to this factor.
PATIENCE = 6


def wait_until(condition, timeout, what):
    """The first true answer of `condition`, which is asked again and again for `timeout` s of an
    idle machine."""
    end = time.monotonic() + timeout * PATIENCE
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            raise TimeoutError(f"{what}: not within {timeout * PATIENCE} s")
        time.sleep(0.05)


def stays(condition, seconds, what):
    """Fails unless the condition is true all this time: for what must not happen, of which there
    is no sign to wait for. On a busy machine less is seen in that time, but nothing else."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if not condition():
            raise AssertionError(f"{what}: not any more")
        time.sleep(0.02)


class Desktop:
    """Use as `with Desktop() as desktop:`. With `evidence`, a folder, the logs and a picture of the
    screen are kept there when the block ends with an exception. Some panels bring a window manager
    of their own; for the others it is Openbox."""

    def __init__(self, width=1000, height=760, evidence=None, window_manager=True):
        self._size = f"{width}x{height}x24"
        self._evidence = evidence
        self._has_window_manager = window_manager
        self._exit = contextlib.ExitStack()
        self._started = []

    def __enter__(self):
        with contextlib.ExitStack() as undo:
            # Orphans of our children become our own children, so that none can get away.
            libc.prctl(PR_SET_CHILD_SUBREAPER, 1)
            self._make_folders(undo)
            undo.callback(self._end_all)
            self._start_display(undo)
            self._start_bus(undo)
            if self._has_window_manager:
                self._start_window_manager()
            self._exit = undo.pop_all()
        return self

    def __exit__(self, kind, error, trace):
        try:
            if kind is not None and self._evidence:
                self._keep_evidence()
        finally:
            self._exit.close()

    def _make_folders(self, undo):
        self.folder = pathlib.Path(undo.enter_context(
            tempfile.TemporaryDirectory(prefix="zephrine-", ignore_cleanup_errors=True)))
        self.logs = self.folder / "logs"
        self.config = self.folder / "config"
        places = {"HOME": "home", "XDG_CONFIG_HOME": "config", "XDG_CACHE_HOME": "cache",
                  "XDG_DATA_HOME": "data", "XDG_STATE_HOME": "state", "XDG_RUNTIME_DIR": "runtime"}
        for name in [*places.values(), "logs"]:
            (self.folder / name).mkdir(mode=0o700)
        kept = ("PATH", "LANG", "ASAN_OPTIONS", "LSAN_OPTIONS", "TSAN_OPTIONS", "UBSAN_OPTIONS")
        self.environment = {name: os.environ[name] for name in kept if name in os.environ}
        self.environment |= {name: str(self.folder / place) for name, place in places.items()}
        self.environment |= {"NO_AT_BRIDGE": "1", "XDG_SESSION_TYPE": "x11"}

    def _start_display(self, undo):
        ready, report = os.pipe()
        with os.fdopen(ready) as answer:
            # Without -noreset it begins anew when its only client leaves, and loses the next one.
            self.server = self._spawn("Xvfb", "-displayfd", str(report), "-screen", "0",
                                      self._size, "-nolisten", "tcp", "-noreset",
                                      pass_fds=(report,))
            os.close(report)
            number = answer.readline().strip()
        if not number:
            raise RuntimeError("Xvfb did not start")
        self.display = ":" + number
        self.environment["DISPLAY"] = self.display

    def _start_bus(self, undo):
        self.bus_address = f"unix:path={self.folder}/runtime/bus"
        ready, report = os.pipe()
        with os.fdopen(ready) as answer:
            self._spawn("dbus-daemon", "--session", "--nofork", "--nopidfile",
                        "--address=" + self.bus_address, f"--print-address={report}",
                        pass_fds=(report,))
            os.close(report)
            if not answer.readline():
                raise RuntimeError("dbus-daemon did not start")
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.bus_address

    def _start_window_manager(self):
        # A window that opens while the window manager starts may be overlooked for good.
        self.start("openbox", "--sm-disable")
        wait_until(self._window_manager_runs, 20, "the window manager")

    def _window_manager_runs(self):
        return subprocess.run(["xdotool", "get_num_desktops"], env=self.environment,
                              capture_output=True, timeout=20).returncode == 0

    def start(self, *command, environment=None):
        """Starts a program on this desktop; what it prints goes to a log of its name."""
        return self._spawn(*command, env=self.environment | (environment or {}))

    def run(self, *command, environment=None):
        """What the program prints, once it has ended."""
        return subprocess.run(command, env=self.environment | (environment or {}), check=True,
                              timeout=20, capture_output=True, text=True).stdout

    def use_input(self, *action):
        """Moves the pointer or presses what xdotool's `action` says, on the server that has the
        pointer, though a compositor may have brought another one for programs."""
        self.run("xdotool", *action, environment={"DISPLAY": self.display})

    def _spawn(self, *command, env=None, pass_fds=()):
        log = self.logs / (pathlib.Path(command[0]).name + ".log")
        with open(log, "ab") as output:
            process = subprocess.Popen(
                command, env=env or self.environment, pass_fds=pass_fds, stdin=subprocess.DEVNULL,
                stdout=output, stderr=output, start_new_session=True,
                preexec_fn=lambda: libc.prctl(PR_SET_PDEATHSIG, signal.SIGKILL))
        self._started.append(process)
        return process

    def _end_all(self):
        end_children()
        for process in self._started:
            process.poll()  # so that it knows of its end

    def picture(self, box=None):
        """The screen, or the part (left, top, right, bottom) of it."""
        return ImageGrab.grab(bbox=box, xdisplay=self.display).convert("RGB")

    def settled_picture(self, box=None):
        """The same, once nothing has changed on it for half a second, in which no program here was
        kept waiting for a processor."""
        last, since = None, 0

        def settled():
            nonlocal last, since
            picture = self.picture(box)
            if picture != last or self._is_busy():
                last, since = picture, time.monotonic()
            return time.monotonic() - since > 0.5 and picture

        return wait_until(settled, 20, "a picture that stays")

    def _is_busy(self):
        """Whether anything that was started here works, or would if there were a processor."""
        sessions = {process.pid for process in self._started}  # each began one of its own
        return any(state in "RD" and session in sessions
                   for _, state, _, session in process_table())

    def _keep_evidence(self):
        shutil.rmtree(self._evidence, ignore_errors=True)
        shutil.copytree(self.logs, self._evidence)
        with contextlib.suppress(OSError):
            self.picture().save(pathlib.Path(self._evidence) / "screen.png")


def end_children():
    """Ends every child of this process, those that it inherited included: first politely."""
    for number, patience in ((signal.SIGTERM, 3), (signal.SIGKILL, 5)):
        end = time.monotonic() + patience
        signalled = set()
        while time.monotonic() < end:
            children = living_children()
            if not children:
                return
            for pid in children - signalled:
                with contextlib.suppress(ProcessLookupError):
                    os.kill(pid, number)
            signalled |= children
            time.sleep(0.02)  # until it is asked again who is left


def living_children():
    """Reaps those children that have ended and returns the pids of the others."""
    with contextlib.suppress(ChildProcessError):
        while os.waitpid(-1, os.WNOHANG) != (0, 0):
            pass
    return {pid for pid, _, parent, _ in process_table() if parent == os.getpid()}


def process_table():
    """(pid, state, parent's pid, session) of each process that there is: proc(5)."""
    for entry in pathlib.Path("/proc").glob("[0-9]*/stat"):
        with contextlib.suppress(OSError):
            # The name is in parentheses and may hold anything, so count from the last one.
            fields = entry.read_text(errors="replace").rpartition(")")[2].split()
            yield int(entry.parent.name), fields[0], int(fields[1]), int(fields[3])
