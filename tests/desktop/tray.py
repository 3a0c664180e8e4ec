# SPDX-License-Identifier: MIT
"""tray.py [refusing]: a tray of X11 at the top left of the screen, which puts all windows out on
SIGUSR1, as some panels do while they make themselves anew, and takes them in when they ask again;
`refusing`, it puts them out at once.
https://specifications.freedesktop.org/systemtray-spec"""
import ctypes
import signal
import sys

from x11 import Display

CLIENT_MESSAGE = 33
STRUCTURE_NOTIFY = 1 << 17
ICON = (80, 26)  # pixels


class ClientMessage(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong),
                ("message", ctypes.c_ulong), ("format", ctypes.c_int), ("data", ctypes.c_long * 5),
                ("rest", ctypes.c_long * 24)]  # an XEvent is as large as the largest of them


class Tray:
    def __init__(self):
        self._server = Display()
        self._x11, self._display, self._root = \
            self._server.x11, self._server.pointer, self._server.root
        self._window = self._server.new_window(*ICON, colour=0xe8e8e8)
        self._x11.XMapWindow(self._display, self._window)
        self._icons = []
        self._announce()

    def _announce(self):
        self._server.take_tray(self._window)
        tray = self._server.atom("_NET_SYSTEM_TRAY_S0")
        news = ClientMessage(type=CLIENT_MESSAGE, window=self._root,
                             message=self._server.atom("MANAGER"), format=32,
                             data=(0, tray.value, self._window.value, 0, 0))
        self._x11.XSendEvent(self._display, self._root, False, STRUCTURE_NOTIFY,
                             ctypes.byref(news))

    def put_out(self):
        while self._icons:
            self._x11.XUnmapWindow(self._display, self._icons[-1])
            self._x11.XReparentWindow(self._display, self._icons.pop(), self._root, 0, 0)
        self._x11.XSync(self._display, False)

    def serve(self):
        event = ClientMessage()
        opcode = self._server.atom("_NET_SYSTEM_TRAY_OPCODE").value
        while self._x11.XPending(self._display):
            self._x11.XNextEvent(self._display, ctypes.byref(event))
            if event.type == CLIENT_MESSAGE and event.message == opcode:
                self._take_in(ctypes.c_ulong(event.data[2]))

    def _take_in(self, icon):
        self._icons.append(icon)
        self._x11.XReparentWindow(self._display, icon, self._window, 0, 0)
        self._x11.XResizeWindow(self._display, icon, *ICON)
        self._x11.XMapWindow(self._display, icon)
        self._x11.XSync(self._display, False)


def main():
    signals = {signal.SIGUSR1}
    signal.pthread_sigmask(signal.SIG_BLOCK, signals)
    tray = Tray()
    while True:
        tray.serve()
        if signal.sigtimedwait(signals, 0.02):
            tray.put_out()
        elif "refusing" in sys.argv:
            tray.put_out()


if __name__ == "__main__":
    main()
