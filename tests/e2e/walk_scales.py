# SPDX-License-Identifier: MIT
"""At every scale factor a popup points at its button, and the controls are where they report to be."""

import multiprocessing
import subprocess
import sys

from desktop import wait_for
from window_system import Desktop

SCALES = (1, 1.25, 1.5, 2)
HEADER = 60
# The popup's color; nothing else in the header has it.
BORDER_COLOR, BORDER_WIDTH = (52, 73, 94), 5
# Relative to the window's upper edge.
ANCHOR = 50


def first_of(picture, color):
    """The middle of the uppermost row that has pixels of exactly this color: x and y; None without one."""
    told = subprocess.run(["identify", "-format", "%w %h", picture], capture_output=True, text=True, check=True).stdout
    width, height = map(int, told.split())
    pixels = subprocess.run(["convert", picture, "-depth", "8", "rgb:-"], capture_output=True, check=True).stdout
    for y in range(height):
        row = pixels[3 * y * width:3 * (y + 1) * width]
        found = [x for x in range(width) if row[3 * x:3 * x + 3] == bytes(color)]
        if found:
            return (found[0] + found[-1] + 1) / 2, y
    return None


def walk(program, scale):
    with Desktop(program, size="1920x1400", scale=scale) as desktop:
        lumora = desktop.start()
        left, top, width, _ = next(lumora.walk()).box
        header = desktop.folder / "header.png"

        def tip():
            desktop.screenshot(header, f"{width}x{round(HEADER * scale)}+{left}+{top}")
            return first_of(header, BORDER_COLOR)

        assert tip() is None
        button = lumora.button("Help on this tool")
        button.click()
        lumora.wait_shown("Report a bug")
        middle = button.box[0] - left + button.box[2] / 2
        # Half of the border's line is outside the balloon, at the tip up to three quarters.
        top_edge = (ANCHOR - BORDER_WIDTH / 2) * scale
        seen = []

        def at_its_place():
            # A screenshot can come between two frames, when only a part of the popup is on the screen.
            seen[:] = [tip()]
            return seen[0] and abs(seen[0][0] - middle) <= 1.5 * scale and abs(seen[0][1] - top_edge) <= 1.5 * scale

        try:
            wait_for("the popup's arrow", at_its_place)
        except AssertionError as late:
            raise AssertionError(f"at {scale} the arrow ends at {seen[0]}, not at {middle}, {top_edge}") from late
        # By mouse, through the popup's own controls and the window's.
        lumora.controls("page tab")[4].click()
        lumora.wait_gone("Report a bug")
        lumora.wait_shown("Lumora | Devices")
        lumora.find("check box", "GPS").click()
        wait_for("GPS to be asked for", lambda: lumora.find("check box", "GPS").has_state("checked"))
        assert lumora.close() == 0


def main(program):
    for scale in SCALES:
        # A process can only use one accessibility bus.
        process = multiprocessing.get_context("fork").Process(target=walk, args=(program, scale))
        process.start()
        process.join()
        assert process.exitcode == 0, f"at a scale of {scale}"


if __name__ == "__main__":
    main(sys.argv[1])
