# SPDX-License-Identifier: MIT
"""Reading the figures of a status item off the screen, by optical character recognition: what a
program can read there, a person can."""
import os
import re
import subprocess
import tempfile

from PIL import Image, ImageOps, ImageStat

from ink import closed_up

MAGNIFICATIONS = (5, 6, 4)  # of text of nine points on an ordinary screen
MARGIN = 24
CHARACTERS = "0123456789.% CPURAMGB"


def figures(picture, scale=1):
    """The numbers in a picture of an item, as text, from top to bottom; the units are left out.
    `scale` is that of the screen."""
    return next((read for read in readings(picture, scale) if len(read) == 2), [])


def readings(picture, scale=1):
    """The same as it is read at one magnification after the other: each is mistaken now and then,
    and hardly ever are all of them."""
    text = closed_up(picture, scale)
    return (numbers_in(characters(text, times / scale)) for times in MAGNIFICATIONS)


def shows(text, number):
    """Whether the text that was read may be this whole number. The dot or slash that most fonts of
    fixed width have in a zero makes an 8 or a 6 of it at this size."""
    digits = str(number)
    return len(text) == len(digits) and all(
        read == digit or (digit == "0" and read in "68") for read, digit in zip(text, digits))


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
            check=True, timeout=60, capture_output=True, text=True).stdout


def numbers_in(text):
    """Behind their names, or else the first one in each line."""
    number = r"(\d+(?:\.\d)?)"
    named = re.findall(r"(?:CPU|RAM)\D*" + number, text)
    return named or [found[0] for line in text.splitlines() if (found := re.findall(number, line))]


def with_margin(box, margin=2):
    """A little more than the box: characters are not found at the very edge of a picture."""
    left, top, right, bottom = box
    return max(0, left - margin), max(0, top - margin), right + margin, bottom + margin
