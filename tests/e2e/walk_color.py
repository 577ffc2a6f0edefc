# SPDX-License-Identifier: MIT
"""Type a colour, copy its code and read it back in another process, pick by key, tear the picker off by a real drag."""

import sys

from desktop import Desktop, wait_for


def drag(desktop, start, travel):
    """As a hand does: pressed, several steps, let go."""
    x, y = start
    desktop.xdotool("mousemove", str(x), str(y), "mousedown", "1")
    for step in range(1, 6):
        desktop.xdotool("mousemove", str(x + travel[0] * step // 5), str(y + travel[1] * step // 5), "sleep", "0.05")
    desktop.xdotool("mouseup", "1")


def main(program, clipboard_reader):
    with Desktop(program) as desktop:
        lumora = desktop.start("--tool=color")
        lumora.wait_shown("Lumora | Colours")
        field = lumora.find("text", "Colour code")
        assert field.text == "#34485e", field.text

        def on_clipboard(text):
            reader = desktop.run(clipboard_reader, text)
            assert reader.wait(20) == 0, f"the clipboard does not hold {text}"

        # Typed: the seventh digit undoes itself, the code reaches another process.
        field.click()
        desktop.key("ctrl+a")
        desktop.type("#80FF001")
        wait_for("the seventh digit to go", lambda: field.text == "#80FF00")
        for button, code in (
            ("Copy iOS", "[UIColor colorWithRed:0.502f green:1.000f blue:0.000f alpha:1.000f]"),
            ("Copy Mac", "[NSColor colorWithCalibratedRed:0.502f green:1.000f blue:0.000f alpha:1.000f]"),
            ("Copy rgb", "rgb(128, 255, 0)"),
            ("Copy CSS", "color: #80FF00;"),
        ):
            lumora.button(button).click()
            lumora.wait_shown("Copied")
            on_clipboard(code)
        lumora.wait_gone("Copied")

        # What is no colour is answered with a message.
        field.click()
        desktop.key("ctrl+a")
        desktop.type("zz")
        lumora.button("Copy iOS").click()
        lumora.wait_shown("This is no colour code")
        on_clipboard("color: #80FF00;")
        desktop.key("Escape")
        lumora.wait_gone("This is no colour code")

        # The picker: by key in the wheel, closed by Escape.
        well = lumora.find("color chooser", "Colour well, opens the colour picker")
        well.click()
        wheel = lumora.find("dial", "Colour wheel")
        wheel.focus()
        before = field.text
        desktop.key("Right", "Right", "Right")
        wait_for("the field to follow the wheel", lambda: field.text != before)
        desktop.key("Escape")
        lumora.wait_gone("Colour wheel")

        # Dragged less than 50 points it returns; further, it comes off and goes on at the same place.
        well.click()
        wheel = lumora.find("dial", "Colour wheel")
        x, y, width, _ = wheel.box
        grip = (x + width - 6, y - 16)
        drag(desktop, grip, (0, 40))
        wait_for("the popover to return", lambda: wheel.box[:2] == (x, y))
        drag(desktop, grip, (-60, 70))
        def wheel_at(place):
            return any(wheel.box[:2] == place for wheel in lumora.controls("dial", "Colour wheel"))

        wait_for("the picker to go on where it was let go", lambda: wheel_at((x - 60, y + 70)))
        wheel = lumora.find("dial", "Colour wheel")

        # It picks for the same well.
        before = field.text
        wx, wy, wwidth, wheight = wheel.box
        desktop.click(wx + wwidth * 3 // 4, wy + wheight // 2)
        wait_for("the field to follow the panel", lambda: field.text != before)
        # The keys are the main window's again once it is clicked.
        field.click()
        assert lumora.close() == 0


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
