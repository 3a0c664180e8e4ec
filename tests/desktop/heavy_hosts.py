# SPDX-License-Identifier: MIT
"""Panels that come with half a desktop, or are one: tried only when they are asked for."""
import os
import subprocess

from desktop import wait_until
from host import Host
from hosts import wait_for_watcher

# The bar is as high as its font: at the usual size, an item has no room for figures.
I3_SETTINGS = """# i3 config file (v4)
font pango:DejaVu Sans Mono 13
bar {
    id bar-0
    position top
    i3bar_command /bin/true
}
"""


def gnome(desktop):
    """GNOME with the extension that shows items, which Debian enables for nobody."""
    settings = desktop.environment
    settings["GSETTINGS_BACKEND"] = "keyfile"
    settings["XDG_CURRENT_DESKTOP"] = "GNOME"
    settings["DBUS_SYSTEM_BUS_ADDRESS"] = f"unix:path={desktop.folder}/runtime/system"
    if not os.path.exists(desktop.folder / "runtime/system"):
        desktop.start("dbus-daemon", "--session", "--nofork", "--nopidfile",
                      "--address=" + settings["DBUS_SYSTEM_BUS_ADDRESS"])
        wait_until(lambda: os.path.exists(desktop.folder / "runtime/system"), 10, "a system bus")
    desktop.run("gsettings", "set", "org.gnome.shell", "enabled-extensions",
                "['ubuntu-appindicators@ubuntu.com']")
    desktop.run("gsettings", "set", "org.gnome.shell", "welcome-dialog-last-shown-version", "'99'")
    shell = desktop.start("gnome-shell", "--x11", "--sm-disable")
    wait_for_watcher(desktop)
    desktop.settled_picture((700, 0, 940, 30))
    desktop.run("xdotool", "key", "Escape")  # it starts with an overview of all windows
    return shell


def i3bar(desktop):
    """The bar of the window manager i3, whose tray makes every window a square."""
    settings = desktop.config / "i3"
    if not settings.exists():
        settings.write_text(I3_SETTINGS, encoding="utf-8")
        started = [desktop.start("i3", "-c", str(settings))]

        def runs():
            if started[-1].poll() is not None:  # the server has turned its first client away
                started.append(desktop.start("i3", "-c", str(settings)))
            return subprocess.run(["i3-msg"], env=desktop.environment, capture_output=True,
                                  timeout=20).returncode == 0

        wait_until(runs, 20, "i3")
    return desktop.start("i3bar", "--bar_id=bar-0")


BY_NAME = {
    "gnome": Host(gnome, (700, 0, 940, 30), clicks=2, patience=10, window_manager=False),
    "i3bar": Host(i3bar, (500, 0, 1000, 24), window_manager=False),
}
