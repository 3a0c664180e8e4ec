# SPDX-License-Identifier: MIT
"""Panels that come with half a desktop, or are one: tried only when they are asked for."""
import subprocess

import sway_hosts
from bus import Bus
from desktop import wait_until
from host import Host
from hosts import filled, wait_for_tray, wait_for_watcher, wait_until_drawn
from pictures import Look, commonest_colour
from program import windows

CINNAMON_WATCHER = "/usr/libexec/xapps/sn-watcher/xapp-sn-watcher"
CINNAMON_APPLETS = """['panel1:left:0:menu@cinnamon.org', 'panel1:right:0:systray@cinnamon.org',
 'panel1:right:1:xapp-status@cinnamon.org']"""

GNOME_BAR = (0, 0, 1000, 30)
BLACK = (0, 0, 0)

# To the left of what the panels show besides.
GNOME_TRAY = (700, 0, 940, 30)
PLASMA_TRAY = (680, 718, 800, 758)

# The extension gives pictures a little less than all of their opacity.
GNOME_LOOK = Look("square", 16, opacity=240 / 255, has_label=True)

# The bar is as high as its font: at the usual size, an item has no room for figures.
I3_SETTINGS = """# i3 config file (v4)
font pango:DejaVu Sans Mono 13
bar {
    id bar-0
    position top
    i3bar_command /bin/true
    colors {
        background @colour@
    }
}
"""


class Together:
    """The processes of a panel that has several, as one; first the one with the windows."""

    def __init__(self, *processes):
        self._processes = processes
        self.pid = processes[0].pid

    def kill(self):
        for process in self._processes:
            process.kill()

    def wait(self):
        for process in self._processes:
            process.wait()


def ensure_system_bus(desktop):
    """Desktops ask it for many services, and wait long where there is none; this one has none to
    offer, and says so at once."""
    place = desktop.folder / "runtime/system"
    desktop.environment["DBUS_SYSTEM_BUS_ADDRESS"] = f"unix:path={place}"
    if not place.exists():
        desktop.start("dbus-daemon", "--session", "--nofork", "--nopidfile",
                      f"--address=unix:path={place}")
        wait_until(place.exists, 10, "a system bus")


def wait_for_name(desktop, name):
    with Bus(desktop.bus_address) as bus:
        wait_until(lambda: bus.owner(name), 30, name)


def gnome(desktop):
    """GNOME, without the overview of all windows that it starts with."""
    shell = start_gnome(desktop)
    wait_until(lambda: desktop.picture(GNOME_BAR).getcolors(1) is None, 30, "the top bar")
    desktop.settled_picture()

    def bar_is_black():
        desktop.run("xdotool", "key", "Escape")
        return commonest_colour(desktop.picture(GNOME_BAR)) == BLACK

    wait_until(bar_is_black, 20, "the end of the overview")
    return shell


def start_gnome(desktop):
    """GNOME with the extension that shows items, which Debian enables for nobody."""
    settings = desktop.environment
    settings["GSETTINGS_BACKEND"] = "keyfile"
    settings["XDG_CURRENT_DESKTOP"] = "GNOME"
    ensure_system_bus(desktop)
    desktop.run("gsettings", "set", "org.gnome.shell", "enabled-extensions",
                "['ubuntu-appindicators@ubuntu.com']")
    desktop.run("gsettings", "set", "org.gnome.shell", "welcome-dialog-last-shown-version", "'99'")
    shell = desktop.start("gnome-shell", "--x11", "--sm-disable")
    wait_for_watcher(desktop)
    return shell


def cinnamon(desktop):
    """Cinnamon's panel at the bottom, with its trays alone, and the watcher beside it that its
    session starts."""
    settings = desktop.environment
    settings["GSETTINGS_BACKEND"] = "keyfile"
    settings["XDG_CURRENT_DESKTOP"] = "X-Cinnamon"
    ensure_system_bus(desktop)
    desktop.run("gsettings", "set", "org.cinnamon", "enabled-applets", CINNAMON_APPLETS)
    shell = desktop.start("cinnamon")
    # As in a session, where the watcher starts last: a picture that comes to Cinnamon while it
    # loads its panel, Cinnamon may never show.
    wait_for_name(desktop, "org.x.StatusIconMonitor.cinnamon_0")
    watcher = desktop.start(CINNAMON_WATCHER)
    wait_for_watcher(desktop)
    return Together(shell, watcher)


def plasma(desktop):
    """Plasma, once it has drawn its panel: a while after it accepts items."""
    panel = start_plasma(desktop)
    wait_until(lambda: any(width > 900 and height < 100
                           for _, _, _, width, height in windows(desktop, panel)), 30, "the panel")
    desktop.settled_picture(PLASMA_TRAY)
    return panel


def start_plasma(desktop):
    """Plasma's usual panel at the bottom. The process that takes the items is not the one that
    shows them."""
    settings = desktop.environment
    settings["XDG_CURRENT_DESKTOP"] = "KDE"
    settings["KDE_FULL_SESSION"] = "true"
    settings["KDE_SESSION_VERSION"] = "5"
    settings["QT_QUICK_BACKEND"] = "software"
    ensure_system_bus(desktop)
    services = desktop.start("kded5")
    shell = desktop.start("plasmashell", "--no-respawn")
    wait_for_watcher(desktop)
    return Together(shell, services)


def budgie(desktop):
    """The panel of Budgie, which has a tray of X11."""
    settings = desktop.environment
    settings["GSETTINGS_BACKEND"] = "keyfile"
    settings["XDG_CURRENT_DESKTOP"] = "Budgie:GNOME"
    ensure_system_bus(desktop)
    panel = desktop.start("budgie-panel")
    wait_for_name(desktop, "org.budgie_desktop.Panel")
    wait_for_tray(desktop)
    wait_until_drawn(desktop, panel)
    return panel


def i3bar(desktop, colour="#000000"):
    """The bar of the window manager i3, whose tray makes every window a square."""
    runs = (desktop.config / "i3").exists()
    set_i3bar_colour(desktop, colour)
    if not runs:
        start_i3(desktop)
    bar = desktop.start("i3bar", "--bar_id=bar-0")
    wait_for_tray(desktop)
    return bar


def set_i3bar_colour(desktop, colour):
    """i3 keeps the settings of its bars, and may run."""
    (desktop.config / "i3").write_text(filled(I3_SETTINGS, colour=colour), encoding="utf-8")
    message_i3(desktop, "reload")


def start_i3(desktop):
    desktop.start("i3", "-c", str(desktop.config / "i3"))
    wait_until(lambda: message_i3(desktop), 20, "i3")


def message_i3(desktop, *message):
    """Whether i3 runs, and obeys."""
    return subprocess.run(["i3-msg", *message], env=desktop.environment, capture_output=True,
                          timeout=20).returncode == 0


BY_NAME = {
    "gnome": Host(gnome, GNOME_TRAY, GNOME_LOOK, clicks=2, window_manager=False),
    "cinnamon": Host(cinnamon, (500, 722, 1000, 758), Look(size=2, height=24),
                     window_manager=False),
    "plasma": Host(plasma, PLASMA_TRAY, Look("square", 22)),
    "budgie": Host(budgie, (700, 726, 890, 758), Look("square", 24)),
    "i3bar": Host(i3bar, (500, 0, 1000, 27), Look("square", 24), window_manager=False),
} | sway_hosts.BY_NAME
