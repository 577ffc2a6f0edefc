# SPDX-License-Identifier: MIT
"""Types a color, copies its code and reads it in another process, picks, detaches the picker by a real drag: with the mouse,
then the same with the keyboard alone, then by the accessibility interface."""

import sys

from desktop import WAIT, wait_for
from window_system import Desktop

WELL = "Color well, opens the color picker"


def drag(desktop, start, travel):
    """Like a hand: presses, moves in several steps, releases."""
    x, y = start
    desktop.xdotool("mousemove", str(x), str(y), "mousedown", "1")
    for step in range(1, 6):
        desktop.xdotool("mousemove", str(x + travel[0] * step // 5), str(y + travel[1] * step // 5), "sleep", "0.05")
    desktop.xdotool("mouseup", "1")


def by_mouse(desktop, lumora, field, on_clipboard):
    # Typed: the seventh digit is removed again, and the code reaches another process.
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

    # A text that is not a color gets a message.
    field.click()
    desktop.key("ctrl+a")
    desktop.type("zz")
    lumora.button("Copy iOS").click()
    lumora.wait_shown("This is no color code")
    on_clipboard("color: #80FF00;")
    desktop.key("Escape")
    lumora.wait_gone("This is no color code")

    # The picker: by key in the wheel, closed by Escape.
    well = lumora.find("color chooser", "Color well, opens the color picker")
    well.click()
    wheel = lumora.find("dial", "Color wheel")
    wheel.focus()
    before = field.text
    desktop.key("Right", "Right", "Right")
    wait_for("the field to follow the wheel", lambda: field.text != before)
    desktop.key("Escape")
    lumora.wait_gone("Color wheel")


def torn_off(desktop, lumora, field):
    # Dragged less than 50 points it returns; dragged further, it is detached and continues at the same place.
    lumora.find("color chooser", WELL).click()
    wheel = lumora.find("dial", "Color wheel")
    x, y, width, _ = wheel.box
    grip = (x + width - 6, y - 16)
    drag(desktop, grip, (0, 49))
    wait_for("the popover to return", lambda: wheel.box[:2] == (x, y))
    drag(desktop, grip, (-30, 40))

    def wheel_at(place):
        return any(wheel.box[:2] == place for wheel in lumora.controls("dial", "Color wheel"))

    wait_for("the picker to go on where it was let go", lambda: wheel_at((x - 30, y + 40)))
    wheel = lumora.find("dial", "Color wheel")

    # It picks for the same well.
    before = field.text
    wx, wy, wwidth, wheight = wheel.box
    desktop.click(wx + wwidth * 3 // 4, wy + wheight // 2)
    wait_for("the field to follow the panel", lambda: field.text != before)
    # Its shortcut closes the panel, not the program.
    desktop.key("ctrl+w")
    lumora.wait_gone("Color wheel")
    assert lumora.process.poll() is None


def by_keyboard(desktop, lumora, field, on_clipboard):
    desktop.xdotool("mousemove", 1590, 1190)
    lumora.activate()
    lumora.tab_to("text", "Color code")
    desktop.key("ctrl+a")
    desktop.type("#102030")
    lumora.tab_to("push button", "Copy rgb")
    desktop.key("space")
    on_clipboard("rgb(16, 32, 48)")

    well = lumora.tab_to("color chooser", WELL)
    desktop.key("space")
    lumora.tab_to("dial", "Color wheel")
    desktop.key("shift+Up", "Left")
    wait_for("the field to follow the wheel", lambda: field.text != "#102030")
    # All modes, by the arrow keys on the strip of tabs.
    lumora.tab_to("page tab list", "Colors")
    desktop.key("Right")
    lumora.tab_to("slider", "Red")
    desktop.key("End")
    wait_for("the field to follow the slider", lambda: field.text.startswith("#ff"))
    lumora.tab_to("page tab list", "Colors")
    desktop.key("Right")
    lumora.tab_to("list", "Colors of the tools")
    before = field.text
    desktop.key("Right")
    wait_for("the field to follow the swatches", lambda: field.text != before)
    desktop.key("Escape")
    lumora.wait_gone("Colors of the tools")
    wait_for("the keyboard to be back at the well", lambda: well.has_state("focused"))


def by_assistive_technology(desktop, lumora, field, on_clipboard):
    field.node.queryEditableText().setTextContents("#AABBCC7")
    wait_for("the seventh digit to go", lambda: field.text == "#AABBCC")
    lumora.button("Copy CSS").press()
    on_clipboard("color: #AABBCC;")
    well = lumora.find("color chooser", WELL)
    well.press()
    # It opens in the last used mode.
    lumora.find("list", "Colors of the tools")
    lumora.find("page tab", "Color wheel").press()
    wheel = lumora.find("dial", "Color wheel")
    wheel.node.queryValue().currentValue = 120
    wait_for("the wheel to tell its hue", lambda: wheel.node.description.startswith("Hue 120°"))
    wait_for("the field to follow the wheel", lambda: field.text == "#aaccaa")
    lumora.find("page tab", "Sliders").press()
    lumora.find("slider", "Red").node.queryValue().currentValue = 17
    wait_for("the field to follow the slider", lambda: field.text == "#11ccaa")
    lumora.find("page tab", "Palette").press()
    colors = lumora.find("list", "Named colors of the web")
    tomato = next(node for node in (colors.node.getChildAtIndex(index) for index in range(colors.node.childCount))
                  if node.name == "tomato, #ff6347")
    tomato.queryAction().doAction(0)
    wait_for("the field to follow the swatch", lambda: field.text == "#ff6347")
    well.press()
    lumora.wait_gone("Palette")


def main(program, clipboard_reader):
    with Desktop(program) as desktop:
        lumora = desktop.start("--tool=color")
        lumora.wait_shown("Lumora | Colors")
        field = lumora.find("text", "Color code")
        assert field.text == "#34485e", field.text

        def on_clipboard(text):
            reader = desktop.run(clipboard_reader, text)
            assert reader.wait(WAIT) == 0, f"the clipboard does not hold {text}"

        by_mouse(desktop, lumora, field, on_clipboard)
        # If windows cannot place themselves, walk_wayland_picker.py tests the detaching.
        if desktop.places_windows:
            torn_off(desktop, lumora, field)
        by_keyboard(desktop, lumora, field, on_clipboard)
        by_assistive_technology(desktop, lumora, field, on_clipboard)

        # The program's own keys work in a floating panel, too.
        lumora.find("color chooser", WELL).click()
        x, y, _, height = lumora.find("page tab", "Recent colors").box
        drag(desktop, (x + 80, y + height // 2), (0, 80))
        wait_for("the panel to float", lambda: [panel for panel in lumora.controls("dialog", "Colors")
                                                if panel.box[3] == 400])
        desktop.key("ctrl+q")
        assert lumora.process.wait(WAIT) == 0


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
