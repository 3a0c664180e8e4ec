# SPDX-License-Identifier: MIT
"""Dark and light panels: how each is started as one, and how one that runs is turned into the
other, where it can be."""
import dataclasses
import typing

import heavy_hosts
import hosts
import sway_hosts

# Debian has no theme of Cinnamon's with a light panel.
LIGHT_CINNAMON = "#panel { background-color: #e8e8e8; }"


@dataclasses.dataclass(frozen=True)
class Panel:
    start: typing.Callable  # of the desktop and whether dark; returns the panel's process
    turn: typing.Callable = None  # of the same, while the panel runs
    kinds: tuple = (True, False)  # of `dark` that it knows
    is_always_dark: bool = False  # whatever it is told
    width: int = 1000  # pixels, of what the program draws; the panel may write text beside it
    few: int = 20  # pixels, which might be due to chance
    contrast: float = 4.5  # for text, by https://www.w3.org/TR/WCAG21/#contrast-minimum


def told(start, turn, **kind):
    """A panel that is told by a setting, which it may read before it runs or while it does."""
    def turn_and_start(desktop, dark):
        turn(desktop, dark)
        return start(desktop)

    return Panel(turn_and_start, turn, **kind)


def as_it_comes(start, **kind):
    """A bar of which only its own dark style is known."""
    return Panel(lambda desktop, _: start(desktop), kinds=(True,), **kind)


def colour(dark):
    return "#222222" if dark else "#e8e8e8"


def xfce(desktop, dark):
    panel = hosts.xfce(desktop)
    hosts.set_xfce_panel_dark(desktop, dark)
    return panel


def set_in_gsettings(desktop, schema, **values):
    desktop.environment["GSETTINGS_BACKEND"] = "keyfile"
    for key, value in values.items():
        desktop.run("gsettings", "set", schema, key.replace("_", "-"), value)


def turn_mate(desktop, dark):
    set_in_gsettings(desktop, "org.mate.panel.toplevel.background:"
                     "/org/mate/panel/toplevels/top/background/", type="color", color=colour(dark))


def trayer(desktop, dark):
    return hosts.trayer(desktop, "--transparent", "true", "--alpha", "0",
                        "--tint", "0x" + colour(dark).removeprefix("#"))


def turn_gnome(desktop, dark):
    set_in_gsettings(desktop, "org.gnome.desktop.interface",
                     color_scheme="prefer-dark" if dark else "default")


def turn_cinnamon(desktop, dark):
    theme = desktop.folder / "data/themes/light/cinnamon/cinnamon.css"
    theme.parent.mkdir(parents=True, exist_ok=True)
    theme.write_text(LIGHT_CINNAMON, encoding="utf-8")
    set_in_gsettings(desktop, "org.cinnamon.theme", name="cinnamon" if dark else "light")


def turn_plasma(desktop, dark):
    desktop.run("plasma-apply-desktoptheme", "breeze-dark" if dark else "breeze-light",
                environment={"QT_QPA_PLATFORM": "offscreen"})


def turn_budgie(desktop, dark):
    """Its own theme is always dark."""
    set_in_gsettings(desktop, "com.solus-project.budgie-panel", builtin_theme="false",
                     dark_theme=str(dark).lower())


def budgie(desktop, dark):
    """It makes itself dark as it lays itself out, and what is told meanwhile is lost."""
    panel = heavy_hosts.budgie(desktop)
    desktop.settled_picture()
    turn_budgie(desktop, dark)
    return panel


BY_NAME = {
    "xfce": Panel(xfce, hosts.set_xfce_panel_dark),
    "lxqt": Panel(lambda desktop, dark: hosts.lxqt(desktop, colour=colour(dark))),
    "mate": told(hosts.mate, turn_mate),
    "trayer": Panel(trayer),
    "tint2": Panel(lambda desktop, dark: hosts.tint2(desktop, colour(dark))),
    # The program draws two bars there, and what is empty of a bar is a light grey on light panels.
    "gnome": told(heavy_hosts.gnome, turn_gnome, is_always_dark=True, contrast=15, width=12, few=2),
    "cinnamon": told(heavy_hosts.cinnamon, turn_cinnamon),
    "plasma": told(heavy_hosts.plasma, turn_plasma),
    "budgie": Panel(budgie, turn_budgie),
    "i3bar": Panel(lambda desktop, dark: heavy_hosts.i3bar(desktop, colour(dark)),
                   lambda desktop, dark: heavy_hosts.set_i3bar_colour(desktop, colour(dark))),
    # White on the blue of its own style has 4.3 at best, and less where a line is thin.
    "waybar": as_it_comes(sway_hosts.waybar, contrast=3),
    "swaybar": as_it_comes(sway_hosts.swaybar),
}
