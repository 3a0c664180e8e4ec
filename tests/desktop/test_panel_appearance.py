#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The item's text stands out from the panel that the environment variable ZEPHRINE_HOST names, dark
or light, whatever the applications look like; also when the panel comes back in another colour, or
takes another one, while the program runs."""
import os
import unittest

import heavy_hosts
import hosts
import panel_colours
from desktop import stays, wait_until
from program import DesktopTestCase, changed_box, start

NAME = os.environ["ZEPHRINE_HOST"]
HOST = (hosts.BY_NAME | heavy_hosts.BY_NAME)[NAME]
PANEL = panel_colours.BY_NAME[NAME]


class PanelAppearance(DesktopTestCase):
    def test_the_text_stands_out_from_a_panel_that_comes_back_in_another_colour(self):
        with self.desktop(window_manager=HOST.window_manager) as desktop:
            desktop.run("xsetroot", "-solid", "#4a6178")  # so that no panel is no dark panel
            panels = []

            def start_again(dark):
                if panels:
                    panels[-1].kill()
                    panels[-1].wait()
                panels.append(PANEL.start(desktop, dark))

            watch_the_text(desktop, start_again)

    @unittest.skipUnless(PANEL.turn, "this panel takes its colour when it starts")
    def test_the_text_stands_out_from_a_panel_that_takes_another_colour(self):
        with self.desktop(window_manager=HOST.window_manager) as desktop:
            PANEL.start(desktop, True)
            watch_the_text(desktop, lambda dark: PANEL.turn(desktop, dark))


def watch_the_text(desktop, make_panel):
    """Starts the program once each kind of panel has been seen without it."""
    empty, program = {}, None
    for dark in (*PANEL.kinds, PANEL.kinds[0]):
        make_panel(dark)
        if dark not in empty:
            empty[dark] = desktop.settled_picture(HOST.area)
        if len(empty) == len(PANEL.kinds):
            program = program or start(desktop)
            wait_for_text(desktop, empty[dark], dark or PANEL.is_always_dark)


def wait_for_text(desktop, empty, is_light):
    def is_right():
        return stands_out(desktop.picture(HOST.area), empty, is_light)

    what = f"{'light' if is_light else 'dark'} text on the panel"
    wait_until(is_right, 10, what)
    if PANEL.is_always_dark:
        # The text that was there was right already, and stays so when the program looks again; but
        # while the panel loads other figures, there is none for a moment.
        stays(lambda: wait_until(is_right, 10, what), 4, what)


def stands_out(picture, empty, is_light):
    """Whether there is text on the panel that was empty, light or dark, and can be told from what
    it stands on. The dot beside it is no grey, and does not count."""
    box = changed_box(empty, picture)
    if not box:
        return False
    surface = max(picture.crop(box).getcolors(100000))[1]
    left, top, right, bottom = box
    drawn = picture.crop((left, top, min(right, left + PANEL.width), bottom))
    legible = sum(count for count, colour in drawn.getcolors(100000)
                  if max(colour) - min(colour) < 40
                  and (luminance(colour) > luminance(surface)) == is_light
                  and contrast(colour, surface) >= PANEL.contrast)
    return legible > PANEL.few


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
