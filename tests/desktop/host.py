# SPDX-License-Identifier: MIT
"""What the tests know of a panel."""
import dataclasses
import typing


@dataclasses.dataclass(frozen=True)
class Host:
    start: typing.Callable  # of the desktop; returns the panel's process, or None
    area: tuple  # left, top, right, bottom of where the item may be, and nothing else that moves
    clicks: int = 1  # that open the dashboard; where it takes two, the first opens the menu
    patience: float = 3  # seconds until the item is back in a panel that was started again
    window_manager: bool = True  # whether it needs one
