# SPDX-License-Identifier: MIT
"""Telling what an item shows, by comparing the screen with the program's own pictures."""
import dataclasses
import functools

from PIL import Image, ImageChops, ImageFilter

import pictures
from pictures import Content


@dataclasses.dataclass(frozen=True)
class Shown(Content):
    """What was found on the screen, and the box of the whole picture there."""
    box: tuple = None


def distance(one, other, mask=None):
    """How unlike two pictures of one size are where they are most unlike, from 0 to 255: the mean
    over three by three pixels, since digits differ in more than one. It never is more than the sum
    of their distances to a third one: where that is within the tolerance of one of them, it is not
    of the other. A mask leaves out the pixels where it is 0."""
    apart = ImageChops.difference(one, other)
    if mask:
        apart = Image.composite(apart, Image.new("RGB", apart.size), mask)
    return max(most for _, most in apart.filter(ImageFilter.BoxBlur(1)).getextrema())


def mean_difference(one, other):
    apart = ImageChops.difference(one, other).convert("L").convert("F")
    return apart.resize((1, 1), Image.Resampling.BOX).getpixel((0, 0))


def find(picture, box, look, rams=pictures.PERCENTS):
    """What the item shows where it is all that stands in this box of a picture of the screen; None
    where that is not the item, or not all of it. `rams` are the texts that it may have for the
    memory."""
    return _find(picture.mode, picture.size, picture.tobytes(), box, look, rams)


@functools.lru_cache(maxsize=1)  # while tests wait for a change, there often is none
def _find(mode, size, pixels, box, look, rams):
    picture = Image.frombytes(mode, size, pixels)
    surface = pictures.commonest_colour(picture.crop(box))
    box = inner_box(box, look)
    inside = picture.crop(box)
    if 0 in inside.size:
        return None
    ink = ImageChops.difference(inside, Image.new("RGB", inside.size, surface)).getbbox()
    if not ink:
        return None
    usual = pictures.on_panel(look, surface, Content(ram=rams[0]), rams)
    boxes = [(left, top, left + usual.width, top + usual.height)
             for left in range(box[0] + ink[2] - usual.width, box[0] + ink[0] + 1)
             for top in range(box[1] + ink[3] - usual.height, box[1] + ink[1] + 1)]
    fixed = pictures.fixed_part(look, surface, rams)
    found = (read(picture, place, surface, look, rams) for place in boxes
             if distance(usual, picture.crop(place), fixed) <= look.tolerance)
    return next((shown for apart, shown in found if apart <= look.tolerance), None)


def inner_box(box, look):
    """The part of the box that has nothing but the picture."""
    left, top, right, bottom = box
    across, down = look.frame
    if look.has_label:
        right = min(right, left + look.size)
    return left + across, top + down, right - across, bottom - down


def read(picture, box, surface, look, rams):
    """How far the likeliest content is from what is in the box, and that content: each part of it
    has a place of its own, so that one can be looked for after the other."""
    seen = picture.crop(box)
    content = Content(ram=rams[0])
    choice = pictures.stencils(look, pictures.is_dark(surface), rams)
    for part in ("cpu", "ram", "pressure"):
        candidates = [dataclasses.replace(content, **{part: value})
                      for value in choice.values(part)]
        content = min(candidates, key=lambda candidate: mean_difference(
            pictures.on_panel(look, surface, candidate, rams), seen))
    apart = distance(pictures.on_panel(look, surface, content, rams), seen)
    return apart, Shown(content.cpu, content.ram, content.pressure, box)
