# SPDX-License-Identifier: MIT
"""What assistive technology reads of the program's windows, through the client library that screen
readers use: https://gitlab.gnome.org/GNOME/at-spi2-core"""
import json
import pathlib

from jeepney import DBusAddress, Properties

from bus import Bus
from desktop import wait_until

READER = pathlib.Path(__file__).with_name("read_accessible.py")
LISTENER = pathlib.Path(__file__).with_name("hear_accessible.py")


def enable(desktop):
    """From now on programs find a user who has assistive technology at work."""
    del desktop.environment["NO_AT_BRIDGE"]
    status = Properties(DBusAddress("/org/a11y/bus", "org.a11y.Bus", "org.a11y.Status"))
    with Bus(desktop.bus_address) as bus:
        bus.call(status.set("IsEnabled", "b", True))
        wait_until(lambda: bus.call(status.get("IsEnabled")) == (("b", True),), 20,
                   "the accessibility bus")


def windows(desktop, process):
    """The windows that the process shows; none while it is not on the accessibility bus."""
    answer = desktop.run("/usr/bin/python3", "-B", str(READER), str(process.pid))
    application = json.loads(answer) or {"children": []}
    return [window for window in application["children"] if "showing" in window["states"]]


def act(desktop, process, role, name, action):
    """Does an action of an element, as a screen reader's user can. The name is a regular expression
    for all of it."""
    desktop.run("/usr/bin/python3", "-B", str(READER), str(process.pid), role, name, action)


def listen(desktop, process):
    """From now on assistive technology listens to the process. A function that tells whether it has
    heard this line of hear_accessible.py, and after that all of those."""
    log = desktop.logs / LISTENER.name
    desktop.start("/bin/sh", "-c", f"exec /usr/bin/python3 -B {LISTENER} {process.pid} > {log}")
    wait_until(log.exists, 20, "the log")

    def hears(*lines):
        heard = iter(log.read_text(encoding="utf-8").splitlines())
        return all(line in heard for line in lines)

    wait_until(lambda: hears("listening"), 20, "the listener")
    return hears


def dashboard(desktop, process):
    """The elements of the dashboard in reading order; None while no window shows it."""
    for window in windows(desktop, process):
        elements = list(within(window))
        if any(element["name"] == "Top processes" for element in elements):
            return elements
    return None


def within(element):
    """The element and all that are inside it, parents first."""
    yield element
    for child in element["children"]:
        yield from within(child)


def find(elements, role, name):
    return next(e for e in elements if (e["role"], e["name"]) == (role, name))


def rows(elements):
    """The process list: pairs of (name label, value label), top row first."""
    start = elements.index(find(elements, "radio button", "RAM")) + 1
    labels = elements[start:start + 10]
    return list(zip(labels[::2], labels[1::2]))


def middle(element):
    x, y, width, height = element["box"]
    return x + width // 2, y + height // 2
