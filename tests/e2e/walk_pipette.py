# SPDX-License-Identifier: MIT
"""Picks colors from the screen: from another program's window, by mouse and by key, and through a desktop's portal."""

import subprocess
import sys
from pathlib import Path

from desktop import WAIT, Desktop, wait_for

WELL = "Color well, opens the color picker"
PIPETTE = "Pick a color from the screen"


def portal_is_there(desktop):
    answer = subprocess.run(
        ["gdbus", "call", "--session", "--dest", "org.freedesktop.DBus", "--object-path", "/", "--method",
         "org.freedesktop.DBus.NameHasOwner", "org.freedesktop.portal.Desktop"],
        env=desktop.environment, capture_output=True, text=True, check=True)
    return "true" in answer.stdout


def main(program, color_window):
    with Desktop(program) as desktop:
        lumora = desktop.start("--tool=color")
        def window_of(color, y):
            window = desktop.run(color_window, color)
            number = wait_for("the window of a color", lambda: desktop._window_of(window))
            desktop.xdotool("windowmove", "--sync", number, 40, y)
            place = dict(line.split("=") for line in desktop.xdotool("getwindowgeometry", "--shell", number).split())
            return int(place["X"]), int(place["Y"])

        field = lumora.find("text", "Color code")
        well = lumora.find("color chooser", WELL)
        blue, red = window_of("#336699", 20), window_of("#c0392b", 400)
        well.click()
        pipette = lumora.button(PIPETTE)

        # Without a portal the pointer itself picks, over every window.
        pipette.click()
        wait_for("the pipette to be at work", lambda: not pipette.has_state("sensitive"))
        desktop.click(blue[0] + 100, blue[1] + 100)
        wait_for("the color of the window", lambda: field.text == "#336699")
        wait_for("the pipette to be let go", lambda: pipette.has_state("sensitive"))

        # Escape cancels; the picker stays open.
        pipette.click()
        wait_for("the pipette to be at work", lambda: not pipette.has_state("sensitive"))
        desktop.xdotool("mousemove", 20, 1180)
        desktop.key("Escape")
        wait_for("the pipette to be let go", lambda: pipette.has_state("sensitive"))
        assert field.text == "#336699", field.text
        lumora.wait_shown("Color wheel")

        # By key: the arrows move the pointer there from outside the window, Return picks. It has the focus again after each
        # pick.
        wait_for("the pipette to have the focus", lambda: pipette.has_state("focused"))
        desktop.key("space")
        wait_for("the pipette to be at work", lambda: not pipette.has_state("sensitive"))
        desktop.xdotool("mousemove", red[0] - 12, red[1] + 50)
        desktop.key("shift+Right", "shift+Right", "Right", "Return")
        wait_for("the color of the other window", lambda: field.text == "#c0392b")
        wait_for("the focus to be back", lambda: pipette.has_state("focused"))

        # A portal on the bus is used instead.
        portal = desktop.run("/usr/bin/python3", str(Path(__file__).parent / "fake_portal.py"), "0.2", "0.4", "1.0")

        wait_for("the portal to be on the bus", lambda: portal_is_there(desktop))
        pipette.press()
        wait_for("the portal's color", lambda: field.text == "#3366ff")
        wait_for("the pipette to be let go", lambda: pipette.has_state("sensitive"))
        portal.terminate()
        portal.wait(WAIT)
        wait_for("the portal to leave the bus", lambda: not portal_is_there(desktop))
        desktop.run("/usr/bin/python3", str(Path(__file__).parent / "fake_portal.py"), "cancel")
        wait_for("the portal to be on the bus", lambda: portal_is_there(desktop))
        pipette.press()
        wait_for("the pipette to be let go", lambda: pipette.has_state("sensitive"))
        assert field.text == "#3366ff", field.text
        assert lumora.close() == 0


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
