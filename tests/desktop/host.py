# SPDX-License-Identifier: MIT
"""What the tests know of a panel."""
import dataclasses
import typing


@dataclasses.dataclass(frozen=True)
class Host:
    start: typing.Callable  # of the desktop; returns the panel's process, or None
    area: tuple  # left, top, right, bottom of where the item may be, and nothing else that moves
    restart: typing.Callable = None  # the same, but returns as soon as the panel accepts items
    clicks: int = 1  # that open the dashboard; where it takes two, the first opens the menu
    window_manager: bool = True  # whether it needs one
