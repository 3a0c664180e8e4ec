# SPDX-License-Identifier: MIT
"""The settings window, used the way a user does, with clicks on what a screen reader finds in it:
the desktop needs assistive technology."""
import json

import accessibility
from accessibility import find, middle
from desktop import wait_until
from program import click, geometry, search

TITLE = "Zephrine Settings"
SIZE = (400, 310)


def titled(desktop, process, title, *conditions):
    """The windows of the process that have this title: a list of (id, x, y, width, height)."""
    found = search(desktop, "--all", *conditions, "--pid", str(process.pid),
                   "--name", f"^{title}$")
    return [window for window in map(lambda id: geometry(desktop, id), found) if window]


def window(desktop, process):
    """The settings window while it is on screen, else None."""
    return next(iter(titled(desktop, process, TITLE, "--onlyvisible")), None)


def wait_for_window(desktop, process):
    return wait_until(lambda: window(desktop, process), 10, "the settings window")


def elements(desktop, process):
    """What a screen reader is told of the window, parents first; empty while it is not there."""
    shown = next((w for w in accessibility.windows(desktop, process) if w["name"] == TITLE), None)
    return list(accessibility.within(shown)) if shown else []


def wait_for_element(desktop, process, role, name):
    return wait_until(lambda: next((e for e in elements(desktop, process)
                                    if (e["role"], e["name"]) == (role, name)), None), 10, name)


def choose(desktop, process, row, item):
    """Opens the list of a row and clicks the item."""
    click(desktop, middle(wait_for_element(desktop, process, "combo box", row)))

    def entry():
        button = find(elements(desktop, process), "combo box", row)
        return next((e for e in accessibility.within(button)
                     if e["name"] == item and e is not button and "showing" in e["states"]), None)

    click(desktop, middle(wait_until(entry, 5, f"{item} in the list of {row}")))

    def is_closed():
        return "expanded" not in find(elements(desktop, process), "combo box", row)["states"]

    wait_until(is_closed, 5, f"the end of the list of {row}")


def tick_login(desktop, process):
    click(desktop, middle(wait_for_element(desktop, process, "check box",
                                           "Launch Zephrine at login")))


def login_line(desktop, process):
    """The line under the box."""
    return [e["name"] for e in elements(desktop, process) if e["role"] == "label"][1]


def store(desktop, **preferences):
    """Writes the preferences' file as the program would."""
    (desktop.config / "zephrine").mkdir(mode=0o700)
    (desktop.config / "zephrine/preferences.json").write_text(json.dumps(preferences),
                                                              encoding="utf-8")


def stored(desktop):
    """The text of the preferences' file; None without one."""
    file = desktop.config / "zephrine/preferences.json"
    return file.read_text(encoding="utf-8") if file.exists() else None


def is_stored(desktop, key, value):
    """Whether the file has `value` under `key`; numbers are written ("int", "9")."""
    text = stored(desktop)
    return text is not None and json.loads(
        text, parse_int=lambda word: ("int", word), parse_float=lambda word: ("float", word)
    ).get(key) == value
