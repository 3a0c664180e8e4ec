#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The item's text stands out from the panel, dark or light, whatever the applications look like;
also when the panel comes back in another colour while the program runs."""
import time
import unittest

import hosts
from desktop import wait_until
from program import DesktopTestCase, changed_box, start

DARK, LIGHT = "#222222", "#e8e8e8"
LEAST_CONTRAST = 4.5  # for text, by https://www.w3.org/TR/WCAG21/#contrast-minimum
FEW = 20  # pixels, which might be due to chance


def xfce(desktop, colour):
    panel = hosts.xfce(desktop)
    hosts.set_xfce_panel_dark(desktop, colour == DARK)
    return panel


def mate(desktop, colour):
    panel = hosts.mate(desktop)
    for setting, value in (("type", "color"), ("color", colour)):
        desktop.run("gsettings", "set", "org.mate.panel.toplevel.background:"
                    "/org/mate/panel/toplevels/top/background/", setting, value)
    return panel


def trayer(desktop, colour):
    return hosts.trayer(desktop, "--transparent", "true", "--alpha", "0",
                        "--tint", "0x" + colour.removeprefix("#"))


PANELS = {"xfce": xfce, "lxqt": lambda desktop, colour: hosts.lxqt(desktop, colour=colour),
          "mate": mate, "trayer": trayer, "tint2": hosts.tint2}


class PanelAppearance(DesktopTestCase):
    def test_the_text_stands_out_from_dark_and_light_panels(self):
        for name, start_panel in PANELS.items():
            with self.subTest(name), self.desktop() as desktop:
                desktop.run("xsetroot", "-solid", "#4a6178")  # so that no panel is no dark panel
                area = hosts.BY_NAME[name].area
                empty, program = {}, None
                for colour in (DARK, LIGHT, DARK):
                    panel = start_panel(desktop, colour)
                    if colour not in empty:
                        time.sleep(1)  # it answers on the bus before it has drawn itself
                        empty[colour] = desktop.settled_picture(area)
                    if len(empty) == 2:
                        program = program or start(desktop)
                        wait_until(lambda: stands_out(desktop.picture(area), empty[colour],
                                                      colour == DARK),
                                   10, f"text to be told from {colour}")
                    panel.kill()
                    panel.wait()


def stands_out(picture, empty, is_dark):
    """Whether there is text on the panel that was empty, and can be told from what it stands on.
    The dot beside it is no grey, and does not count."""
    box = changed_box(empty, picture)
    if not box:
        return False
    colours = picture.crop(box).getcolors(100000)
    surface = max(colours)[1]
    legible = sum(count for count, colour in colours if max(colour) - min(colour) < 40
                  and contrast(colour, surface) >= LEAST_CONTRAST)
    return (luminance(surface) < 0.18) == is_dark and legible > FEW


def contrast(one, other):
    brighter, darker = sorted((luminance(one), luminance(other)), reverse=True)
    return (brighter + 0.05) / (darker + 0.05)


def luminance(colour):
    """https://www.w3.org/TR/WCAG21/#dfn-relative-luminance"""
    red, green, blue = (part / 255 / 12.92 if part <= 10 else ((part / 255 + 0.055) / 1.055) ** 2.4
                        for part in colour)
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


if __name__ == "__main__":
    unittest.main(verbosity=2)
