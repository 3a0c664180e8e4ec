#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""hear_accessible.py PID: prints a line for each piece of news that the process has for assistive
technology about what there is, what shows and what it is called: the kind, the role of the element,
and whether that shows. "listening" is its first line."""
import sys

import gi

from read_accessible import role_of

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402  # pylint: disable=wrong-import-position

KINDS = ("object:children-changed", "object:state-changed", "object:property-change")


def described(element):
    try:
        shows = element.get_state_set().contains(Atspi.StateType.SHOWING)
        return f"{role_of(element)} {'showing' if shows else 'hidden'}"
    except GLib.Error:
        return "gone"


def main(pid):
    Atspi.init()

    def hear(event):
        if event.source and event.source.get_process_id() == int(pid):
            print(event.type, described(event.source), flush=True)

    listener = Atspi.EventListener.new(hear)
    for kind in KINDS:
        listener.register(kind)
    print("listening", flush=True)
    Atspi.event_main()


if __name__ == "__main__":
    main(sys.argv[1])
