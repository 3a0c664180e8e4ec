# SPDX-License-Identifier: MIT
"""What the item shows on the screen, and whether that is what the program says of it."""
import dataclasses

import pictures
from comparison import find
from program import changed_box


def shown_item(desktop, empty, look, area=None, rams=pictures.PERCENTS):
    """What the item shows and where on the screen, if one is there, and nothing else has changed in
    the area, or on all of the screen, since the picture `empty` of it; else None."""
    picture = desktop.picture(area)
    box = changed_box(empty, picture)
    found = box and find(picture, box, look, rams)
    left, top, *_ = area or (0, 0)
    return found and dataclasses.replace(found, box=moved(found.box, left, top))


def moved(box, across, down):
    return box[0] + across, box[1] + down, box[2] + across, box[3] + down


def tells(shown, look, cpu=None, ram=None):
    """Whether the item shows these whole numbers of percent, as well as its look can."""
    return all(is_figure(text, number, look.has_bars)
               for text, number in ((shown.cpu, cpu), (shown.ram, ram)) if number is not None)


def is_figure(text, number, is_bar):
    if text == pictures.ABSENT:
        return is_bar and number <= 1
    return abs(int(text.strip(" %")) - number) <= is_bar


def agrees(shown, look, text):
    """Whether the item shows the processors' figure and the pressure that it says, as
    `bus.Item.text` finds them."""
    return bool(shown and text and shown.pressure == text[4]
                and tells(shown, look, cpu=int(text[1])))


def shown_percent(shown):
    """The processors' figure as a number; None without an item, or without a figure in it."""
    return int(shown.cpu.strip(" %")) if shown and shown.cpu != pictures.ABSENT else None
