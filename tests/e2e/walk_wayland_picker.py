# SPDX-License-Identifier: MIT
"""The color picker under a Wayland compositor, where no window can place or move itself: the popover lies at the well, a drag
short of fifty points leaves it there, a longer one tears it off into a window of its own; a pipette that cannot work says so."""

import sys
import time
from pathlib import Path

from desktop import wait_for
from wayland_desktop import WaylandDesktop

WELL = "Colour well, opens the colour picker"
PIPETTE = "Pick a colour from the screen"


def drag(desktop, start, travel, before_release=lambda: None):
    x, y = start
    desktop.xdotool("mousemove", x, y, "sleep", 0.2, "mousedown", 1)
    for step in range(1, 6):
        desktop.xdotool("mousemove", x + travel[0] * step // 5, y + travel[1] * step // 5, "sleep", 0.1)
    # One more step, by which the arrow follows.
    desktop.xdotool("mousemove", x + travel[0], y + travel[1] + 1, "sleep", 0.1)
    before_release()
    desktop.xdotool("mouseup", 1)


def main(program):
    with WaylandDesktop(program) as desktop:
        lumora = desktop.start("--tool=color")
        field = lumora.find("text", "Colour code")
        well = lumora.find("color chooser", WELL)
        well.click()
        wheel = lumora.find("dial", "Colour wheel")

        def click_on_the_wheel(part):
            """Presses where the wheel reports to be, this part of its width from its left, in its middle."""
            x, y, width, height = wheel.box
            desktop.click(x + round(width * part), y + height // 2)

        # It is where its controls report to be, or the presses would not pick these colors.
        lumora.find("slider", "Brightness").node.queryValue().currentValue = 100
        click_on_the_wheel(0.9)
        wait_for("red from the wheel's right", lambda: wheel.node.description.startswith("Hue 0°"))
        click_on_the_wheel(0.1)
        wait_for("cyan from the wheel's left", lambda: wheel.node.description.startswith("Hue 180°"))
        x, y, width, height = well.box
        assert 0 < wheel.box[0] - (x + width) < 40, f"the wheel at {wheel.box} is not right of the well at {well.box}"

        # Nothing here can read the screen.
        lumora.button(PIPETTE).click()
        wait_for("the picker to say so", lambda: [label for label in lumora.controls("label")
                                                  if label.name.startswith("The system did not let Lumora")])
        # A portal can.
        portal = desktop.run("/usr/bin/python3", str(Path(__file__).parent / "fake_portal.py"), "0.2", "0.4", "1.0")

        def picked_by_portal():
            lumora.button(PIPETTE).press()
            time.sleep(0.5)
            return field.text == "#3366ff"

        wait_for("the portal's colour", picked_by_portal)
        portal.terminate()

        # Let go too early, it stays; the wheel is still there.
        x, y, width, _ = wheel.box
        grip = (x + width - 6, y - 16)
        drag(desktop, grip, (0, 45))
        click_on_the_wheel(0.9)
        wait_for("red from the wheel's right", lambda: wheel.node.description.startswith("Hue 0°"))

        # Further away the arrow goes, though the popover cannot follow, and letting go tears it off.
        tip = (wheel.box[0] - 20, well.box[1] + well.box[3] // 2)
        seen = {"before": desktop.pixel(*tip)}
        drag(desktop, grip, (-40, 60), lambda: seen.update(away=desktop.pixel(*tip)))
        wait_for("the picker to float", lambda: [panel for panel in lumora.controls("dialog", "Colours")
                                                 if panel.box_as_told[3] == 400])
        assert seen["before"] != seen["away"], f"the arrow is still there: {seen}"
        before = field.text
        lumora.find("dial", "Colour wheel").node.queryValue().currentValue = 120
        wait_for("the field to follow the floating picker", lambda: field.text != before)
        lumora.terminate()


if __name__ == "__main__":
    main(sys.argv[1])
