#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""full_screen.py: a window over the whole screen, as a film or a game has it, until it is ended.
_NET_WM_STATE of https://specifications.freedesktop.org/wm-spec/latest/"""
import ctypes

GREEN = (0, 128, 0)
ATOM = 4  # the type of properties that hold atoms
REPLACE = 0  # what a property held before


def colour_number(colour):
    red, green, blue = colour
    return red << 16 | green << 8 | blue


def main():
    x11 = ctypes.CDLL("libX11.so.6")
    x11.XOpenDisplay.restype = ctypes.c_void_p
    display = ctypes.c_void_p(x11.XOpenDisplay(None))

    def atom(name):
        return ctypes.c_ulong(x11.XInternAtom(display, name, False))

    window = x11.XCreateSimpleWindow(display, ctypes.c_ulong(x11.XDefaultRootWindow(display)),
                                     0, 0, 200, 100, 0, 0, colour_number(GREEN))
    state = (ctypes.c_ulong * 1)(atom(b"_NET_WM_STATE_FULLSCREEN").value)
    x11.XChangeProperty(display, ctypes.c_ulong(window), atom(b"_NET_WM_STATE"), ATOM, 32, REPLACE,
                        state, 1)
    x11.XMapWindow(display, ctypes.c_ulong(window))
    event = ctypes.create_string_buffer(192)  # an XEvent, of which nothing is of interest
    while True:
        x11.XNextEvent(display, event)


if __name__ == "__main__":
    main()
