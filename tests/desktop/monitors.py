# SPDX-License-Identifier: MIT
"""Several monitors side by side, out of the one that a private desktop has."""


def split_screen(desktop, widths, place=0, height=760):
    """Makes monitors of these widths out of the one that there is. The panel sees only the one that
    has an output, which is therefore the one at the column `place`."""
    left = 0
    for number, width in enumerate(widths):
        output = "screen" if left <= place < left + width else "none"
        desktop.run("xrandr", "--setmonitor", f"monitor-{number}",
                    f"{width}/185x{height}/200+{left}+0", output)
        left += width
