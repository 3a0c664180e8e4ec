#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The comparison by which other tests tell the item's figures on the screen: it finds the right
ones, wherever the picture stands, and takes no others for them."""
import dataclasses
import itertools
import unittest

from PIL import Image

import heavy_hosts
import hosts
import pictures
from comparison import distance, find
from pictures import ABSENT, PERCENTS, Content, Look, on_panel

LIGHT, GREY, DARK, BLUE = (232, 232, 232), (85, 85, 85), (34, 34, 34), (41, 128, 185)
# Backgrounds of panels, light and dark, or the one that a panel has, on which differences are less.
SURFACES = {"cinnamon": (GREY, LIGHT), "waybar": (BLUE,)}
HOSTS = hosts.BY_NAME | heavy_hosts.BY_NAME
LOOKS = {(host.look, surface) for name, host in HOSTS.items()
         for surface in SURFACES.get(name, (LIGHT, DARK))}
LOOKS |= {(look, LIGHT) for looks in hosts.LOOKS.values() for look in looks.values()}
LOOKS |= {(Look(font_size=size), LIGHT) for size in (8, 10)}
WITH_BARS = {(look, surface) for look, surface in LOOKS if look.has_bars}
SCREEN = (300, 120)


def on_screen(look, surface, content, corner=(40, 30)):
    """(a screen that shows the item, the box that the item's picture is in)"""
    picture = on_panel(look, surface, content)
    screen = Image.new("RGB", SCREEN, surface)
    screen.paste(picture, corner)
    across, down = look.frame
    return screen, (corner[0] - across, corner[1] - down, corner[0] + picture.width + across,
                    corner[1] + picture.height + down)


class Comparison(unittest.TestCase):
    def test_no_picture_is_within_the_tolerance_of_two_figures(self):
        for look, surface in LOOKS - WITH_BARS:
            for part in ("cpu", "ram", "pressure"):
                with self.subTest(look, surface=surface, part=part):
                    least = least_distance(look, surface, part)
                    self.assertGreater(least, 2 * look.tolerance)

    def test_bars_tell_figures_to_within_one_percent(self):
        for look, surface in WITH_BARS:
            with self.subTest(look, surface=surface):
                for part in ("cpu", "ram"):
                    shown = [on_panel(look, surface, dataclasses.replace(Content(), **{part: text}))
                             for text in PERCENTS[:101]]
                    for one, other in itertools.combinations(range(101), 2):
                        if other - one > 2:
                            self.assertGreater(distance(shown[one], shown[other]),
                                               2 * look.tolerance, f"{part}: {one}, {other}")

    def test_every_figure_is_found(self):
        for look, surface in LOOKS:
            with self.subTest(look, surface=surface):
                for number in (0, 7, 42, 88, 100):
                    content = Content(PERCENTS[number], PERCENTS[100 - number], "Elevated")
                    screen, box = on_screen(look, surface, content)
                    shown = find(screen, box, look)
                    self.assertEqual((shown.cpu, shown.ram, shown.pressure),
                                     (content.cpu, content.ram, content.pressure))

    def test_absent_figures_are_found(self):
        for content in (Content(cpu=ABSENT), Content(ram=ABSENT), Content(ABSENT, ABSENT)):
            for look in (Look(), Look("square", 22), hosts.LOOKS["mate"][1]):
                with self.subTest(look, content=content):
                    shown = find(*on_screen(look, LIGHT, content), look)
                    self.assertEqual((shown.cpu, shown.ram), (content.cpu, content.ram))

    def test_gigabytes_are_found(self):
        look = Look()
        content = Content("100%", " 7.9G")
        screen = Image.new("RGB", SCREEN, LIGHT)
        screen.paste(on_panel(look, LIGHT, content, pictures.GIGABYTES), (7, 9))
        shown = find(screen, (8, 9, 75, 33), look, pictures.GIGABYTES)
        self.assertEqual((shown.cpu, shown.ram, shown.box), (content.cpu, content.ram,
                                                             (7, 9, 75, 33)))

    def test_the_place_is_that_of_the_whole_picture(self):
        content = Content(" 42%", "  7%")
        for look in (Look(), Look("square", 24)):
            picture = on_panel(look, DARK, content)
            for corner in ((0, 0), (1, 7), (300 - picture.width, 120 - picture.height)):
                with self.subTest(look, corner=corner):
                    screen, box = on_screen(look, DARK, content, corner)
                    self.assertEqual(find(screen, box, look).box, box)

    def test_no_item_is_found_where_there_is_more_than_one(self):
        for look, surface in LOOKS - WITH_BARS:
            with self.subTest(look, surface=surface):
                screen, (left, top, right, bottom) = on_screen(look, surface, Content())
                for corner in ((right + 3, top), (left, bottom + 3)):
                    twice = screen.copy()
                    twice.paste(on_panel(look, surface, Content()), corner)
                    width, height = right - left, bottom - top
                    box = (left, top, max(right, corner[0] + width),
                           max(bottom, corner[1] + height))
                    self.assertIsNone(find(twice, box, look))

    def test_no_item_is_found_in_part_of_one_or_in_something_else(self):
        for look, surface in LOOKS - WITH_BARS:
            with self.subTest(look, surface=surface):
                screen, box = on_screen(look, surface, Content("100%", "100%"))
                left, top, right, bottom = box
                bare = Image.new("RGB", SCREEN, surface)
                self.assertIsNone(find(bare, box, look))
                for covered in ((left, (top + bottom) // 2, right, bottom),
                                (right - (right - left) // 4, top, right, bottom)):
                    partly = screen.copy()
                    partly.paste(surface, covered)
                    self.assertIsNone(find(partly, box, look))
                marked = screen.copy()
                across, down = (left + right) // 2, (top + bottom) // 2
                marked.paste((255, 0, 0), (across, down, across + 3, down + 3))
                self.assertIsNone(find(marked, box, look))

    def test_no_item_is_found_in_a_picture_made_larger(self):
        """A blurred one: every scale has a picture of its own."""
        for name, scale in (("xfce", 2), ("mate", 2), ("none", 1.25), ("none", 1.5), ("none", 2)):
            look = hosts.LOOKS[name][scale]
            sharp = on_panel(look, LIGHT, Content())
            plain = on_panel(hosts.LOOKS[name][1], LIGHT, Content())
            for way in (Image.Resampling.NEAREST, Image.Resampling.BILINEAR,
                        Image.Resampling.BICUBIC):
                with self.subTest(name, scale=scale, way=way):
                    screen = Image.new("RGB", SCREEN, LIGHT)
                    screen.paste(plain.resize(sharp.size, way), (40, 30))
                    _, box = on_screen(look, LIGHT, Content())
                    self.assertIsNone(find(screen, box, look))


def least_distance(look, surface, part):
    """Between any two pictures that differ in this part alone."""
    values = pictures.stencils(look, pictures.is_dark(surface)).values(part)
    shown = [on_panel(look, surface, dataclasses.replace(Content(), **{part: value}))
             for value in values]
    left, top, right, bottom = pictures.box_of_all(
        pictures.difference_box(shown[0], other) for other in shown[1:])
    # Each pixel counts for its neighbours, too.
    parts = [picture.crop((left - 1, top - 1, right + 1, bottom + 1)) for picture in shown]
    return min(distance(*pair) for pair in itertools.combinations(parts, 2))


if __name__ == "__main__":
    unittest.main(verbosity=2)
