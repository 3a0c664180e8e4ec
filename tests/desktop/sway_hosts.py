# SPDX-License-Identifier: MIT
"""Bars of sway, a compositor of Wayland, whose only monitor is a window that covers the whole
screen of the private desktop."""
import os

from desktop import wait_until
from host import Host
from hosts import filled, wait_for_watcher
from pictures import Look, commonest_colour

BACKGROUND = (0x30, 0x50, 0x70)
TOP = (0, 0, 1000, 20)

# sway's own bar is as high as its font: at the usual size, an item has no room for figures.
SETTINGS = """xwayland force
output * mode 1000x760 bg #305070 solid_color
bar bar-0 {
    position top
    font pango:DejaVu Sans Mono 14
    swaybar_command /bin/true
}
exec @admit@ && echo $DISPLAY $WAYLAND_DISPLAY $SWAYSOCK >@report@
"""

# Its own style, and the size that it gives icons unless told.
WAYBAR_SETTINGS = '{"position": "top", "height": 30, "modules-right": ["tray"]}'

# sway refuses to be root. As nobody, but with a way into the folders of the desktop.
AS_NOBODY = ("setpriv", "--reuid=65534", "--regid=65534", "--clear-groups",
             "--inh-caps=+dac_override", "--ambient-caps=+dac_override")


def waybar(desktop):
    ensure_sway(desktop)
    folder = desktop.config / "waybar"
    folder.mkdir(exist_ok=True)
    (folder / "config").write_text(WAYBAR_SETTINGS, encoding="utf-8")
    return start_bar(desktop, "waybar")


def swaybar(desktop):
    ensure_sway(desktop)
    return start_bar(desktop, "swaybar", "--bar_id=bar-0")


def start_bar(desktop, *command):
    """The bar, once it accepts items and is drawn."""
    bar = desktop.start(*command)
    wait_for_watcher(desktop)
    wait_until(lambda: commonest_colour(desktop.picture(TOP)) != BACKGROUND, 20, "the bar")
    return bar


def ensure_sway(desktop):
    """From now on, programs start in the session of sway: under Wayland, or on the X server that
    sway brings for the others."""
    report = desktop.config / "sway-report"
    if report.exists():
        return
    is_root = os.geteuid() == 0
    settings = desktop.config / "sway"
    settings.write_text(
        filled(SETTINGS, admit="xhost +si:localuser:root" if is_root else "true", report=report),
        encoding="utf-8")
    desktop.start(*(AS_NOBODY if is_root else ()), "sway", "-c", str(settings),
                  environment={"WLR_BACKENDS": "x11", "WLR_RENDERER": "pixman"})
    told = wait_until(lambda: report.exists() and report.read_text(encoding="utf-8").split(), 20,
                      "sway")
    names = ("DISPLAY", "WAYLAND_DISPLAY", "SWAYSOCK")
    desktop.environment |= dict(zip(names, told, strict=True))
    desktop.environment |= {"XDG_SESSION_TYPE": "wayland", "XDG_CURRENT_DESKTOP": "sway"}


BY_NAME = {
    "waybar": Host(waybar, (500, 0, 1000, 30), Look("line", height=16, is_width_whole=True),
                   window_manager=False),
    "swaybar": Host(swaybar, (500, 0, 1000, 28), Look("square", 24), window_manager=False),
}
