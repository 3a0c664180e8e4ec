# SPDX-License-Identifier: MIT
"""What the tests know of a panel."""
import dataclasses
import typing

from pictures import Look


@dataclasses.dataclass(frozen=True)
class Host:
    start: typing.Callable  # of the desktop; returns the panel's process, or None
    area: tuple  # left, top, right, bottom of where the item may be, and nothing else that moves
    look: Look  # of the item there
    clicks: int = 1  # that open the dashboard; where it takes two, the first opens the menu
    window_manager: bool = True  # whether it needs one
