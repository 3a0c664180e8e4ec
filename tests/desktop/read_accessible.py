#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""read_accessible.py PID [ROLE NAME ACTION]: prints as JSON what assistive technology is told of
the windows of a process; with a role, a name and an action it does that action of that element
before. A program of its own, because the client library serves one desktop in its life."""
import json
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402  # pylint: disable=wrong-import-position


def role_of(element):
    """What version 2.56 of the library and newer ones call it."""
    role = element.get_role_name()
    return "button" if role == "push button" else role


def described(element):
    """An element and those within it; None for one that has gone while it was read."""
    try:
        states = element.get_state_set()
        children = (element.get_child_at_index(i) for i in range(element.get_child_count()))
        return {"role": role_of(element), "name": element.get_name(),
                "description": element.get_description(), "value": value(element),
                "box": box(element), "actions": actions(element),
                "states": sorted(s.value_nick for s in states.get_states()),
                "children": [d for d in map(described, filter(None, children)) if d]}
    except GLib.Error:
        return None


def value(element):
    text = element.get_text_iface()
    return Atspi.Text.get_text(text, 0, -1) if text else None


def box(element):
    component = element.get_component_iface()
    if not component:
        return None
    place = component.get_extents(Atspi.CoordType.SCREEN)
    return place.x, place.y, place.width, place.height


def actions(element):
    interface = element.get_action_iface()
    return [Atspi.Action.get_action_name(interface, i)
            for i in range(interface.get_n_actions())] if interface else []


def act(element, role, name, action):
    """Whether the element, or one within it, is that one and has done its action."""
    if role_of(element) == role and element.get_name() == name:
        return element.get_action_iface().do_action(actions(element).index(action))
    children = (element.get_child_at_index(i) for i in range(element.get_child_count()))
    return any(act(child, role, name, action) for child in children if child)


def main(pid, *wanted):
    Atspi.init()
    desktop = Atspi.get_desktop(0)
    applications = [desktop.get_child_at_index(i) for i in range(desktop.get_child_count())]
    for application in applications:
        if application and application.get_process_id() == int(pid):
            if wanted and not act(application, *wanted):
                sys.exit(f"no {wanted}")
            json.dump(described(application), sys.stdout)
            return
    print("null")


if __name__ == "__main__":
    main(*sys.argv[1:])
