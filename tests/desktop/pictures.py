# SPDX-License-Identifier: MIT
"""The item's pictures as the program's own code draws them (render_item.cpp), and what panels make
of them."""
import dataclasses
import functools
import math
import os
import subprocess
import tempfile

from PIL import Image, ImageChops

RENDER_ITEM = os.environ.get("ZEPHRINE_RENDER_ITEM", "")
ABSENT = "  — "
# The figures' texts, each at the place of its number; last the one for none, since empty bars mean
# either.
PERCENTS = (*(f"{number:3d}%" for number in range(101)), ABSENT)
GIGABYTES = (*(f"{tenths / 10:4.1f}G" for tenths in range(1000)), ABSENT)
PRESSURES = {"Normal": 1, "Elevated": 2, "High": 4, "Unavailable": 0}  # numbers of the levels


@dataclasses.dataclass(frozen=True)
class Look:
    """How the item looks in a panel; lengths are pixels of the screen unless it says so."""
    form: str = "wide"  # or "line" or "square"
    size: float = 1  # pixels a point where it is wide, or the side where it is square
    scale: float = 1  # the greatest of the scales that the program was started with
    font_size: float = 9  # points
    height: int = None  # to which the panel scales the picture; None where it leaves it alone
    is_width_whole: bool = False  # whether the panel rounds the width down as it scales
    opacity: float = 1  # that the panel gives the picture
    is_multiplied: bool = False  # the panel multiplies the colours by their opacity once more
    frame: tuple = (0, 0)  # across and down on each side: of the program's own, or its corners
    has_label: bool = False  # whether the panel's own text stands to the right of it

    @property
    def has_bars(self):
        """Whether it has bars in place of figures, which tell them to within one percent."""
        return self.form == "square" and self.size < 18

    @property
    def tolerance(self):
        """How far the picture on the screen may be from ours (see comparison.distance): a little
        where nobody has drawn but the program, and more where a panel scales. Less than half of
        what two pictures of different figures are apart, so that none fits a wrong figure."""
        if self.has_bars:
            return 7
        return 13 if self.height else 3


@dataclasses.dataclass(frozen=True)
class Content:
    """What the item shows: the texts of its values, and the word for the pressure."""
    cpu: str = PERCENTS[0]
    ram: str = PERCENTS[0]
    pressure: str = "Normal"


def values_of(part, rams=PERCENTS):
    """All that the part of the content can be."""
    return {"cpu": PERCENTS, "ram": rams, "pressure": tuple(PRESSURES)}[part]


def drawn(look, is_dark, contents):
    """The pictures, with their transparency, in the order of the contents."""
    shade = "dark" if is_dark else "light"
    lines = [f"{look.form}\t{look.size!r}\t{look.font_size}\t{PRESSURES[content.pressure]}\t{shade}"
             f"\t{content.cpu}\t{content.ram}\n" for content in contents]
    with tempfile.TemporaryDirectory() as runtime:
        # With another scale than one, Qt draws all text without hinting.
        environment = os.environ | {"QT_SCALE_FACTOR": str(look.scale), "XDG_RUNTIME_DIR": runtime}
        output = subprocess.run([RENDER_ITEM], input="".join(lines).encode(), env=environment,
                                check=True, timeout=120, stdout=subprocess.PIPE).stdout
    pictures, start = [], 0
    for _ in contents:
        end = output.index(b"\n", start)
        width, height = map(int, output[start:end].split())
        start = end + 1 + 4 * width * height
        pictures.append(Image.frombytes("RGBA", (width, height), output[end + 1:start], "raw",
                                        "ARGB"))
    return pictures


class Stencils:
    """Every picture of one look: parts of them are put together, since each part of the content
    has a place of its own in the picture."""

    def __init__(self, look, is_dark, rams):
        base = Content(ram=rams[0])
        contents = [(part, dataclasses.replace(base, **{part: value}))
                    for part in ("cpu", "ram", "pressure") for value in values_of(part, rams)]
        self._base, *pictures = drawn(look, is_dark, [base, *(c for _, c in contents)])
        self._pieces = {}
        for part in ("cpu", "ram", "pressure"):
            # A line is shorter where it has no figure, and cannot be put together.
            shown = {getattr(content, part): picture
                     for (owner, content), picture in zip(contents, pictures)
                     if owner == part and picture.size == self._base.size}
            place = self._place_of(shown.values())
            self._pieces[part] = {value: (picture.crop(place), place)
                                  for value, picture in shown.items()}

    def _place_of(self, pictures):
        return box_of_all(difference_box(self._base, picture) for picture in pictures)

    def fixed(self):
        """Transparent in the places of all parts, and opaque where every picture is the same."""
        mask = Image.new("RGBA", self._base.size, "white")
        for pieces in self._pieces.values():
            _, place = next(iter(pieces.values()))
            mask.paste((0, 0, 0, 0), place)
        return mask

    def values(self, part):
        return self._pieces[part].keys()

    def picture(self, content):
        picture = self._base.copy()
        for part, pieces in self._pieces.items():
            piece, place = pieces[getattr(content, part)]
            picture.paste(piece, place)
        return picture


def difference_box(one, other):
    """Of the pixels that differ in any channel: Pillow itself may look at the opacity alone."""
    channels = ImageChops.difference(one, other).split()
    return functools.reduce(ImageChops.lighter, channels).getbbox()


def box_of_all(boxes):
    lefts, tops, rights, bottoms = zip(*filter(None, boxes))
    return min(lefts), min(tops), max(rights), max(bottoms)


@functools.lru_cache(maxsize=None)
def stencils(look, is_dark, rams=PERCENTS):
    return Stencils(look, is_dark, rams)


@functools.lru_cache(maxsize=5000)
def on_panel(look, surface, content, rams=PERCENTS):
    """What is seen of the item where the panel's background has the colour `surface`: on a dark one
    the text is white."""
    picture = stencils(look, is_dark(surface), rams).picture(content)
    if look.is_multiplied:
        picture = Image.frombytes("RGBA", picture.size, picture.convert("RGBa").tobytes())
    if look.height:
        picture = scaled(picture, look)
    if look.opacity < 1:
        picture.putalpha(picture.getchannel("A").point(lambda part: round(part * look.opacity)))
    seen = Image.new("RGB", picture.size, surface)
    seen.paste(picture, mask=picture)
    return seen


@functools.lru_cache(maxsize=None)
def fixed_part(look, surface, rams=PERCENTS):
    """A mask of the pixels that are the same whatever the item shows."""
    mask = stencils(look, is_dark(surface), rams).fixed()
    if look.height:
        mask = scaled(mask, look)
    return mask.getchannel("A").point(lambda part: 255 * (part == 255))


def commonest_colour(picture):
    return max(picture.getcolors(picture.width * picture.height))[1]


def is_dark(surface):
    return sum(surface) < 3 * 128


def scaled(picture, look):
    """To the panel's height, which smooths it much as the panels do."""
    factor = picture.height / look.height
    width = picture.width / factor
    if look.is_width_whole:
        size, across = (int(width), look.height), picture.width
    else:  # the last column is partly beyond the picture
        size, across = (math.ceil(width), look.height), math.ceil(width) * factor
    large = Image.new("RGBA", (math.ceil(across), picture.height))
    large.paste(picture)
    smoothing = Image.Resampling.HAMMING if factor > 1 else Image.Resampling.BILINEAR
    return large.convert("RGBa").resize(size, smoothing,
                                        box=(0, 0, across, picture.height)).convert("RGBA")
