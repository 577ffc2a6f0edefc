# SPDX-License-Identifier: MIT
"""The color picker under a Wayland compositor, where no window can place or move itself: the popover is at the well, a drag
of less than fifty points keeps it there, a longer one detaches it as a window of its own; a pipette that fails reports it."""

import sys
import time
from pathlib import Path

from desktop import wait_for
from wayland_desktop import WaylandDesktop

WELL = "Color well, opens the color picker"
PIPETTE = "Pick a color from the screen"


def drag(desktop, start, travel, before_release=lambda: None):
    x, y = start
    desktop.xdotool("mousemove", x, y, "sleep", 0.2, "mousedown", 1)
    for step in range(1, 6):
        desktop.xdotool("mousemove", x + travel[0] * step // 5, y + travel[1] * step // 5, "sleep", 0.1)
    # One more step, since the arrow is one step behind.
    desktop.xdotool("mousemove", x + travel[0], y + travel[1] + 1, "sleep", 0.1)
    before_release()
    desktop.xdotool("mouseup", 1)


def main(program):
    with WaylandDesktop(program) as desktop:
        lumora = desktop.start("--tool=color")
        field = lumora.find("text", "Color code")
        well = lumora.find("color chooser", WELL)
        well.click()
        wheel = lumora.find("dial", "Color wheel")

        def click_on_the_wheel(part):
            """Presses at the reported place of the wheel: at this part of its width, in the middle of its height."""
            x, y, width, height = wheel.box
            desktop.click(x + round(width * part), y + height // 2)

        # The controls are where they report to be, or the presses would not pick these colors.
        lumora.find("slider", "Brightness").node.queryValue().currentValue = 100
        click_on_the_wheel(0.9)
        wait_for("red from the wheel's right", lambda: wheel.node.description.startswith("Hue 0°"))
        click_on_the_wheel(0.1)
        wait_for("cyan from the wheel's left", lambda: wheel.node.description.startswith("Hue 180°"))
        x, y, width, height = well.box
        assert 0 < wheel.box[0] - (x + width) < 40, f"the wheel at {wheel.box} is not right of the well at {well.box}"

        # Nothing here can read the screen without a portal.
        lumora.button(PIPETTE).click()
        wait_for("the picker to say so", lambda: [label for label in lumora.controls("label")
                                                  if label.name.startswith("The system did not let Lumora")])
        # With a portal it works.
        portal = desktop.run("/usr/bin/python3", str(Path(__file__).parent / "fake_portal.py"), "0.2", "0.4", "1.0")

        def picked_by_portal():
            lumora.button(PIPETTE).press()
            time.sleep(0.5)
            return field.text == "#3366ff"

        wait_for("the portal's color", picked_by_portal)
        portal.terminate()

        # Released too early, it stays; the wheel is still there.
        x, y, width, _ = wheel.box
        grip = (x + width - 6, y - 16)
        drag(desktop, grip, (0, 45))
        click_on_the_wheel(0.9)
        wait_for("red from the wheel's right", lambda: wheel.node.description.startswith("Hue 0°"))

        # Further away the arrow disappears, although the popover cannot follow; releasing detaches it.
        tip = (wheel.box[0] - 20, well.box[1] + well.box[3] // 2)
        arrow = desktop.pixel(*tip)
        drag(desktop, grip, (-40, 60), lambda: wait_for("the arrow to go", lambda: desktop.pixel(*tip) != arrow))
        wait_for("the picker to float", lambda: [panel for panel in lumora.controls("dialog", "Colors")
                                                 if panel.box_as_told[3] == 400])
        before = field.text
        lumora.find("dial", "Color wheel").node.queryValue().currentValue = 120
        wait_for("the field to follow the floating picker", lambda: field.text != before)
        lumora.terminate()


if __name__ == "__main__":
    main(sys.argv[1])
