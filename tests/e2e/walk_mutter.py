# SPDX-License-Identifier: MIT
"""The window under mutter, with mouse and keys: popovers at their anchors, a drag by the bar, a resize at the edge, zoom, full
screen, and a whole job."""

import sys
import tempfile
from pathlib import Path

from desktop import wait_for
from mutter_desktop import MutterDesktop


def opens_help(desktop, lumora):
    """The compositor scales a window up when it appears; until it is done, a click goes to another place."""
    lumora.button("Help on this tool").click()
    try:
        return wait_for("help", lambda: lumora.shows("Report a bug"), 3)
    except AssertionError:
        desktop.key("Escape")
        return False


def popovers(desktop, lumora):
    wait_for("help", lambda: opens_help(desktop, lumora))
    desktop.key("Escape")
    lumora.wait_gone("Report a bug")
    desktop.key("ctrl+4")
    lumora.find("color chooser", "Color well, opens the color picker").click()
    wheel = lumora.find("dial", "Color wheel")
    # The picker is where it reports to be, or the presses would not pick these colors.
    lumora.find("slider", "Brightness").node.queryValue().currentValue = 100
    x, y, width, height = wheel.box
    for part, hue in ((0.9, "Hue 0°"), (0.1, "Hue 180°")):
        desktop.click(x + round(width * part), y + height // 2)
        wait_for(hue, lambda hue=hue: wheel.node.description.startswith(hue))
    desktop.key("Escape")
    lumora.wait_gone("Color wheel")


def is_tool(lumora, index):
    """Clicks on the sidebar's item, and returns whether the item is where it was expected."""
    item = lumora.controls("page tab")[index]
    item.click()
    try:
        return wait_for("the tool", lambda: item.has_state("selected"), 3)
    except AssertionError:
        return False


def moves(desktop, lumora):
    # The way is longer than an item of the sidebar is wide.
    travel = (80, 40)
    before = desktop.offset

    def is_dragged():
        desktop.offset = before
        x, y, width, _ = next(lumora.walk()).box
        desktop.drag(lumora, (x + width // 3, y + 20), travel)
        desktop.offset = tuple(place + by for place, by in zip(before, travel))
        return is_tool(lumora, 4)

    wait_for("the window to be dragged", is_dragged)


def sizes(desktop, lumora):
    window = next(lumora.walk())

    def size():
        return window.box_as_told[2:]

    first = size()

    def is_resized():
        x, y, width, height = window.box
        desktop.drag(lumora, (x + width - 2, y + height // 2), (-60, 0) if size()[0] > 900 else (60, 0))
        return size() != first

    wait_for("the window to be wider", is_resized)
    resized = size()
    before = desktop.offset
    for change, back in ((lambda: lumora.button("Zoom window").click(), lambda: lumora.button("Zoom window").click()),
                         (lambda: desktop.key("F11"), lambda: desktop.key("F11"))):
        change()
        wait_for("the window to fill the screen", lambda: size() == (1400, 1000))
        desktop.offset = (0, 0)
        assert is_tool(lumora, 1), "the sidebar of the large window"
        back()
        wait_for("its old size", lambda: size() == resized)
        desktop.offset = before
        assert is_tool(lumora, 2), "the sidebar at its old place"


def job(desktop, lumora, out):
    desktop.key("ctrl+1")
    lumora.find("check box", "Favicon").click()
    lumora.button("Generate", 0).click()
    lumora.choose_in_dialog(out)
    lumora.wait_shown(f"5 icons in {out.name}/icons")
    assert len(list((out / "icons").rglob("*.*"))) == 5


def main(program):
    with tempfile.TemporaryDirectory(prefix="lumora-mutter-") as out, MutterDesktop(program, size="1400x1000") as desktop:
        lumora = desktop.start()
        popovers(desktop, lumora)
        moves(desktop, lumora)
        sizes(desktop, lumora)
        job(desktop, lumora, Path(out))
        lumora.button("Close window").click()
        assert lumora.process.wait(60) == 0


if __name__ == "__main__":
    main(sys.argv[1])
