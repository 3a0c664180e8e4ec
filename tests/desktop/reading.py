# SPDX-License-Identifier: MIT
"""Reading the figures of a status item off the screen, by optical character recognition: what a
program can read there, a person can."""
import os
import re
import subprocess
import tempfile

from PIL import Image, ImageOps, ImageStat

from ink import closed_up
from pictures import commonest_colour

MAGNIFICATIONS = (5, 6, 4)  # of text of nine points; each is mistaken now and then
MARGIN = 24
CHARACTERS = "0123456789.% CPURAMGB"


def can_be_read(picture, *numbers):
    """Whether these whole numbers, and no others, are read in the picture of an item, from top to
    bottom. They are better without a zero: the dot or slash that most fonts of fixed width have in
    it makes another digit of it at this size."""
    # Characters are not found at the very edge of a picture.
    text = closed_up(ImageOps.expand(picture, 2, fill=commonest_colour(picture)))
    return any(numbers_in(characters(text, times)) == [str(number) for number in numbers]
               for times in MAGNIFICATIONS)


def characters(grey, times):
    """What is read in the picture when it is so many times as large."""
    large = grey.resize((round(grey.width * times), round(grey.height * times)), Image.BICUBIC)
    background = ImageStat.Stat(large).median[0]
    large = ImageOps.expand(large, MARGIN, fill=background)
    if background < 128:
        large = ImageOps.invert(large)
    with tempfile.NamedTemporaryFile(suffix=".png") as file:
        large.save(file.name)
        return subprocess.run(
            ["tesseract", file.name, "-", "--psm", "6",
             "-c", f"tessedit_char_whitelist={CHARACTERS}"],
            env=os.environ | {"OMP_THREAD_LIMIT": "1"},  # several are slower at so little
            check=True, timeout=600, capture_output=True, text=True).stdout


def numbers_in(text):
    """Behind their names, or else the first one in each line."""
    number = r"(\d+(?:\.\d)?)"
    named = re.findall(r"(?:CPU|RAM)\D*" + number, text)
    return named or [found[0] for line in text.splitlines() if (found := re.findall(number, line))]
