# SPDX-License-Identifier: MIT
"""The little of Xlib that no command offers: who has the tray of a display, and taking it.
https://specifications.freedesktop.org/systemtray-spec"""
import ctypes


class Display:
    """A connection to the display of this name, or else to that of the environment."""

    def __init__(self, name=None):
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        for function in ("XDefaultRootWindow", "XCreateSimpleWindow", "XInternAtom",
                         "XGetSelectionOwner"):
            getattr(self.x11, function).restype = ctypes.c_ulong
        self.pointer = ctypes.c_void_p(self.x11.XOpenDisplay(name and name.encode()))
        if not self.pointer:
            raise RuntimeError(f"no display {name or ''}")
        self.root = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.pointer))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.x11.XCloseDisplay(self.pointer)

    def atom(self, name):
        return ctypes.c_ulong(self.x11.XInternAtom(self.pointer, name.encode(), False))

    def new_window(self, width, height, colour=0):
        return ctypes.c_ulong(self.x11.XCreateSimpleWindow(
            self.pointer, self.root, 0, 0, width, height, 0, 0, colour))

    def tray_owner(self):
        """The window of the panel that has the tray; 0 without one."""
        return self.x11.XGetSelectionOwner(self.pointer, self.atom("_NET_SYSTEM_TRAY_S0"))

    def take_tray(self, window):
        self.x11.XSetSelectionOwner(self.pointer, self.atom("_NET_SYSTEM_TRAY_S0"), window, 0)
        self.x11.XSync(self.pointer, False)
