# SPDX-License-Identifier: MIT
"""Panels that show status items, one function each: it starts the panel on a desktop, waits until
the panel accepts items, and returns the panel's process."""
from bus import Bus
from desktop import wait_until

XFCE_PANEL = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="dark-mode" type="bool" value="false"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="28"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/>
        <value type="int" value="2"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="separator">
      <property name="expand" type="bool" value="true"/>
      <property name="style" type="uint" value="0"/>
    </property>
    <property name="plugin-2" type="string" value="systray"/>
  </property>
</channel>
"""

LXQT_PANEL = """panels=panel1

[panel1]
position=Bottom
width=100
width-percent=true
background-color=#e8e8e8
opacity=100
plugins=spacer, statusnotifier

[spacer]
expandable=true
type=spacer

[statusnotifier]
type=statusnotifier
"""


def xfce(desktop):
    """The panel of Xfce across the top of the screen, with nothing but its tray at the right."""
    folder = desktop.config / "xfce4/xfconf/xfce-perchannel-xml"
    if not folder.exists():
        folder.mkdir(parents=True)
        (folder / "xfce4-panel.xml").write_text(XFCE_PANEL, encoding="utf-8")
    panel = desktop.start("xfce4-panel", "--disable-wm-check")
    wait_for_watcher(desktop)
    return panel


def set_xfce_panel_dark(desktop, dark):
    desktop.run("xfconf-query", "--channel", "xfce4-panel", "--property", "/panels/dark-mode",
                "--set", "true" if dark else "false")


def lxqt(desktop):
    """The panel of LXQt at the bottom of the screen."""
    folder = desktop.config / "lxqt"
    folder.mkdir(exist_ok=True)
    (folder / "panel.conf").write_text(LXQT_PANEL, encoding="utf-8")
    panel = desktop.start("lxqt-panel", environment={"QT_QPA_PLATFORM": "xcb"})
    wait_for_watcher(desktop)
    return panel


def mate(desktop):
    """The panels of MATE; the upper one has the tray, which takes items only where told to."""
    desktop.environment["GSETTINGS_BACKEND"] = "keyfile"
    desktop.run("gsettings", "set", "org.mate.panel", "enable-sni-support", "true")
    panel = desktop.start("mate-panel")
    wait_for_watcher(desktop)
    return panel


def wait_for_watcher(desktop):
    with Bus(desktop.bus_address) as bus:
        wait_until(lambda: bus.owner("org.kde.StatusNotifierWatcher"), 20, "a status item host")
