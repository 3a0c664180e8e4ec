# SPDX-License-Identifier: MIT
"""Reading the figures of a status item off the screen, by optical character recognition: what a
program can read there, a person can."""
import re
import subprocess
import tempfile

from PIL import Image, ImageOps, ImageStat

MAGNIFICATION = 6  # of text of nine points on an ordinary screen
MARGIN = 24


def figures(picture, scale=1):
    """The numbers in a picture of an item, as text, from top to bottom; the units are left out.
    `scale` is that of the screen."""
    grey = picture.convert("L")
    times = MAGNIFICATION / scale
    large = grey.resize((round(grey.width * times), round(grey.height * times)), Image.LANCZOS)
    background = ImageStat.Stat(large).median[0]
    large = ImageOps.expand(large, MARGIN, fill=background)
    if background < 128:
        large = ImageOps.invert(large)
    with tempfile.NamedTemporaryFile(suffix=".png") as file:
        large.save(file.name)
        text = subprocess.run(["tesseract", file.name, "-", "--psm", "6"], check=True, timeout=60,
                              capture_output=True, text=True).stdout
    named = re.findall(r"(?:CPU|RAM)\D*(\d+(?:\.\d)?)", text)
    # The dot of the memory pressure is taken for all sorts of characters, at the end of a line.
    return named or [number for line in text.splitlines()
            if (number := next(iter(re.findall(r"\d+(?:\.\d)?", line)), None))]


def with_margin(box, margin=2):
    """A little more than the box: characters are not found at the very edge of a picture."""
    left, top, right, bottom = box
    return max(0, left - margin), max(0, top - margin), right + margin, bottom + margin
