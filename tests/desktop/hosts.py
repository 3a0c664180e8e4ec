# SPDX-License-Identifier: MIT
"""Panels that show status items, one function each: it starts the panel on a desktop, waits until
the panel accepts items, and returns the panel's process."""
import math

from bus import Bus
from desktop import wait_until
from host import Host
from pictures import Look, commonest_colour
from program import windows
from x11 import Display

XFCE_PANEL = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="dark-mode" type="bool" value="false"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=@place@;x=@x@;y=0"/>
      <property name="mode" type="uint" value="@mode@"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="28"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/>
        <value type="int" value="2"/>
        <value type="int" value="3"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="separator">
      <property name="expand" type="bool" value="true"/>
      <property name="style" type="uint" value="0"/>
    </property>
    <property name="plugin-2" type="string" value="systray"/>
    <property name="plugin-3" type="string" value="separator">
      <property name="expand" type="bool" value="@centred@"/>
      <property name="style" type="uint" value="0"/>
    </property>
  </property>
</channel>
"""

# Edge of the screen: (the corner at which the panel begins, 1 for a vertical panel).
XFCE_EDGES = {"top": (6, 0), "bottom": (8, 0), "left": (6, 1), "right": (2, 1)}

LXQT_PANEL = """panels=panel1

[panel1]
position=@edge@
desktop=@monitor@
width=100
width-percent=true
background-color=@colour@
opacity=100
plugins=spacer, statusnotifier

[spacer]
expandable=true
type=spacer

[statusnotifier]
type=statusnotifier
"""

# Without a clock, whose width changes when it pleases, and moves what stands beside it.
MATE_PANEL = """[org/mate/panel/general]
enable-sni-support=true
toplevel-id-list=['top']
object-id-list=['menu-bar', 'notification-area']

[org/mate/panel/toplevels/top]
expand=true
orientation='top'
size=24

[org/mate/panel/objects/menu-bar]
object-type='menu-bar'
toplevel-id='top'
position=0
locked=true

[org/mate/panel/objects/notification-area]
object-type='applet'
applet-iid='NotificationAreaAppletFactory::NotificationArea'
toplevel-id='top'
position=0
relative-to-edge='end'
locked=true
"""

# Without the handle of the tray, which is drawn once there have been items, and moves with them.
MATE_STYLE = """MatePanelAppletFrameDBus > MatePanelAppletFrameDBus {
  background-image: none;
}
"""

TINT2_PANEL = """panel_items = TS
panel_position = top center horizontal
panel_size = 100% 30
systray_icon_size = 24
rounded = 0
background_color = @colour@ 100
panel_background_id = 1
"""


def filled(text, **values):
    """The text with the values where it has their names, as @name@."""
    for name, value in values.items():
        text = text.replace(f"@{name}@", str(value))
    return text


def xfce(desktop, edge="top", centred=False, x=0):
    """The panel of Xfce along a whole edge of the monitor that shows the column `x`, with nothing
    but its tray, at the end or the centre."""
    folder = desktop.config / "xfce4/xfconf/xfce-perchannel-xml"
    if not folder.exists():
        folder.mkdir(parents=True)
        place, mode = XFCE_EDGES[edge]
        (folder / "xfce4-panel.xml").write_text(
            filled(XFCE_PANEL, place=place, mode=mode, x=x, centred=str(centred).lower()),
            encoding="utf-8")
    panel = desktop.start("xfce4-panel", "--disable-wm-check")
    wait_for_watcher(desktop)
    wait_until_drawn(desktop, panel)
    return panel


def set_xfce_panel_dark(desktop, dark):
    """By its background, which is the panel's own. The choice of a dark mode is its theme's."""
    shade = ["--type", "double", "--set", "0.13" if dark else "0.96"]
    for name, value in {"background-rgba": [*shade * 3, "--type", "double", "--set", "1"],
                        "background-style": ["--type", "uint", "--set", "1"]}.items():
        desktop.run("xfconf-query", "--channel", "xfce4-panel", "--property",
                    f"/panels/panel-1/{name}", "--create", *value)


def lxqt(desktop, edge="bottom", colour="#e8e8e8", monitor=0):
    """The panel of LXQt along a whole edge of the monitor of that number."""
    folder = desktop.config / "lxqt"
    folder.mkdir(exist_ok=True)
    text = filled(LXQT_PANEL, edge=edge.capitalize(), colour=colour, monitor=monitor)
    (folder / "panel.conf").write_text(text, encoding="utf-8")
    panel = desktop.start("lxqt-panel", environment={"QT_QPA_PLATFORM": "xcb"})
    wait_for_watcher(desktop)
    wait_until_drawn(desktop, panel)
    return panel


def mate(desktop):
    """The upper panel of MATE, whose tray takes items only where told to."""
    desktop.environment["GSETTINGS_BACKEND"] = "keyfile"
    stored = desktop.config / "glib-2.0/settings/keyfile"
    told = stored.read_text(encoding="utf-8") if stored.exists() else ""
    if "toplevel-id-list" not in told:
        stored.parent.mkdir(parents=True, exist_ok=True)
        stored.write_text(MATE_PANEL + told, encoding="utf-8")
        style = desktop.config / "gtk-3.0/gtk.css"
        style.parent.mkdir(exist_ok=True)
        style.write_text(MATE_STYLE, encoding="utf-8")
    panel = desktop.start("mate-panel")
    wait_for_watcher(desktop)
    wait_until_drawn(desktop, panel)
    return panel


def wait_for_watcher(desktop):
    with Bus(desktop.bus_address) as bus:
        wait_until(lambda: bus.owner("org.kde.StatusNotifierWatcher"), 20, "a status item host")


def wait_for_tray(desktop):
    with Display(desktop.display) as display:
        wait_until(display.tray_owner, 20, "a tray of X11")


def wait_until_drawn(desktop, panel):
    """A panel accepts items, and shows its windows, before it draws on them: until then, the
    desktop is seen in them."""
    def is_drawn():
        picture = desktop.picture()
        bare = commonest_colour(picture)
        return any(picture.crop((left, top, left + width, top + height)).getcolors(1)
                   != [(width * height, bare)]
                   for _, left, top, width, height in windows(desktop, panel))

    wait_until(is_drawn, 20, "a panel that is drawn")


def trayer(desktop, *options):
    """A tray of X11 and nothing else, which leaves windows as wide as they wish to be."""
    panel = desktop.start("trayer", "--edge", "top", "--align", "right", "--widthtype", "request",
                          "--height", "26", *options)
    wait_for_tray(desktop)
    wait_until_drawn(desktop, panel)
    return panel


def tint2(desktop, colour="#222222"):
    """A panel with a tray of X11 that makes every window a square."""
    settings = desktop.config / "tint2rc"
    settings.write_text(filled(TINT2_PANEL, colour=colour), encoding="utf-8")
    panel = desktop.start("tint2", "-c", str(settings))
    wait_for_tray(desktop)
    wait_until_drawn(desktop, panel)
    return panel


def none(_):
    """A bare window manager: there, the item has a strip of its own."""


def strip_look(scale):
    """That of our own strip: its picture has a frame."""
    return Look(size=scale, scale=scale, frame=(math.ceil(6 * scale), math.ceil(3 * scale)))


TOP = (0, 0, 1000, 32)

# At each scale of the screen that the panel can be told of.
LOOKS = {
    # Xfce makes windows no higher than 22 points, of the picture's 24.
    "xfce": {scale: Look(size=scale * 22 / 24, scale=scale) for scale in (1, 2)},
    "lxqt": {scale: Look("square", side, scale=scale)
             for scale, side in {1: 22, 1.25: 28, 1.5: 33, 2: 44}.items()},
    "mate": {scale: Look(size=2, scale=scale, height=25 * scale) for scale in (1, 2)},
    "none": {scale: strip_look(scale) for scale in (1, 1.25, 1.5, 2)},
}

BY_NAME = {
    "xfce": Host(xfce, TOP, LOOKS["xfce"][1]),
    "lxqt": Host(lxqt, (0, 728, 1000, 760), LOOKS["lxqt"][1]),
    "mate": Host(mate, (500, 0, 1000, 27), LOOKS["mate"][1]),
    "trayer": Host(trayer, TOP, Look()),
    "tint2": Host(tint2, TOP, Look("square", 24, is_multiplied=True)),
    "none": Host(none, TOP, LOOKS["none"][1]),
}
