# SPDX-License-Identifier: MIT
"""Pictures of an item made ready for optical character recognition: grey characters in lines that
stand close together. Blanks as wide as those before a figure of one digit are filled with
characters of its own making, and a dot or an edge with others."""
import itertools

from PIL import Image, ImageChops, ImageDraw, ImageStat

COLOURFUL = 24  # how far the parts of a colour are apart, of 255, that is no grey
INK = 60        # how far a character's grey is from its background's at least
# In pixels:
BLANK = 4       # the widest blank in a line
BETWEEN_LINES = 3


def closed_up(picture):
    """The picture in grey, with its lines of characters alone, and narrow blanks within them."""
    grey = without_surroundings(without_colour(picture))
    background = median(grey)
    rows = spans(ink(grey, background).transpose(Image.Transpose.TRANSPOSE))
    lines = [closed_up_line(grey.crop((0, top, grey.width, bottom)), background)
             for top, bottom in rows]
    advances = [line.height + BETWEEN_LINES for line in lines]
    text = Image.new("L", (max((line.width for line in lines), default=1), max(1, sum(advances))),
                     background)
    for line, top in zip(lines, itertools.accumulate(advances, initial=0)):
        text.paste(line, (0, top))
    return text


def closed_up_line(grey, background):
    line = Image.new("L", grey.size, background)
    end, last = 0, None
    for left, right in spans(ink(grey, background)):
        end += min(BLANK, left - last) if last is not None else 0
        line.paste(grey.crop((left, 0, right, grey.height)), (end, 0))
        end, last = end + right - left, right
    return line.crop((0, 0, end, line.height))


def without_colour(picture):
    """The picture in grey. The dot of the memory pressure is background."""
    parts = picture.split()
    most = ImageChops.lighter(ImageChops.lighter(parts[0], parts[1]), parts[2])
    least = ImageChops.darker(ImageChops.darker(parts[0], parts[1]), parts[2])
    apart = ImageChops.subtract(most, least)
    surface = median(apart)  # some panels are colourful
    colourful = apart.point(lambda value: 255 * (value > surface + COLOURFUL))
    grey = picture.convert("L")
    grey.paste(median(grey), mask=colourful)
    return grey


def without_surroundings(grey):
    """What is seen around the round corners of the strip is background."""
    background = median(grey)
    for corner in ((0, 0), (grey.width - 1, 0), (0, grey.height - 1),
                   (grey.width - 1, grey.height - 1)):
        if is_ink(grey.getpixel(corner), background):
            ImageDraw.floodfill(grey, corner, background, thresh=INK)
    return grey


def ink(grey, background):
    return grey.point(lambda value: 255 * is_ink(value, background))


def is_ink(value, background):
    return abs(value - background) >= INK


def spans(mask):
    """The columns from which on there is ink, and up to which, from left to right."""
    inked = [mask.crop((x, 0, x + 1, mask.height)).getbbox() is not None
             for x in range(mask.width)]
    edges = [x for x, (before, here) in enumerate(zip([False] + inked, inked + [False]))
             if before != here]
    return list(zip(edges[::2], edges[1::2]))


def median(grey):
    return ImageStat.Stat(grey).median[0]
