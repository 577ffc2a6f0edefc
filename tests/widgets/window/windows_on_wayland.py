#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: windows_on_wayland.py PROBE   The windows under weston without a screen: a popover appears at its anchor there, too.
Weston has no pointer or keyboard that a script can use, so the probe shows the popover on command."""
import glob
import os
import subprocess
import sys

from windows_driver import Probe, Processes, check, run, wait_for

GREEN = (0, 255, 0)
CYAN = (0, 255, 255)


class Compositor:
    """A weston without a screen, for the time of the block."""

    def __enter__(self):
        self.processes = Processes().__enter__()
        folder = self.processes.folder
        self.environment = dict(os.environ, XDG_RUNTIME_DIR=folder, HOME=folder, WAYLAND_DISPLAY="wayland-probe",
                                QT_QPA_PLATFORM="wayland")
        for name in ("DISPLAY", "DBUS_SESSION_BUS_ADDRESS"):
            self.environment.pop(name, None)
        self.processes.start(["weston", "--backend=headless-backend.so", "--use-pixman", "--debug", "--no-config",
                              "--socket=wayland-probe", "--width=1200", "--height=900"], self.environment,
                             stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for("the compositor", lambda: os.path.exists(folder + "/wayland-probe"))
        return self

    def __exit__(self, *error):
        self.processes.__exit__(*error)

    def screenshot(self):
        """The screen's pixels as (width, height, bytes of red, green and blue)."""
        folder = self.processes.folder
        for old in glob.glob(folder + "/wayland-screenshot-*.png"):
            os.remove(old)
        subprocess.run(["weston-screenshooter"], env=self.environment, cwd=folder, check=True, capture_output=True)
        name = wait_for("the picture", lambda: glob.glob(folder + "/wayland-screenshot-*.png"))[0]
        size = subprocess.run(["identify", "-format", "%w %h", name], check=True, capture_output=True, text=True).stdout
        width, height = map(int, size.split())
        pixels = subprocess.run(["convert", name, "-depth", "8", "rgb:-"], check=True, capture_output=True).stdout
        return width, height, pixels


def bounds(picture, color):
    """The rectangle around all pixels of the color: left, top, right, bottom, the last two beyond it; None without one."""
    width, height, pixels = picture
    wanted = bytes(color)
    rows = [pixels[y * width * 3:(y + 1) * width * 3] for y in range(height)]
    found = [(y, [x for x in range(width) if row[3 * x:3 * x + 3] == wanted])
             for y, row in enumerate(rows) if wanted in row]
    found = [(y, columns) for y, columns in found if columns]
    if not found:
        return None
    return (min(columns[0] for _, columns in found), found[0][0], max(columns[-1] for _, columns in found) + 1,
            found[-1][0] + 1)


def popover_lands(command_before, side, *options):
    with Compositor() as compositor:
        probe = Probe(compositor.processes, program, compositor.environment, *options)
        anchor = wait_for("the window", lambda: bounds(compositor.screenshot(), CYAN))
        check((anchor[2] - anchor[0], anchor[3] - anchor[1]) == (40, 40), f"the anchor is at {anchor}")
        if command_before:
            probe.tell(command_before)
        probe.tell("popover")
        balloon = wait_for("the popover", lambda: bounds(compositor.screenshot(), GREEN))
        middle = (anchor[0] + anchor[2]) / 2
        check(abs((balloon[0] + balloon[2]) / 2 - middle) <= 1, f"the balloon {balloon} is beside its anchor {anchor}")
        # 164 by 100 points with the arrow; the outermost pixels of the border and the tip are blended.
        check(abs(balloon[2] - balloon[0] - 162) <= 2, f"the balloon is as wide as {balloon}")
        tip = balloon[1] if side == "below" else balloon[3]
        check(abs(tip - anchor[3]) <= 2, f"the tip is at {tip}, the anchor ends at {anchor[3]}")
        check(abs(balloon[3] - balloon[1] - 99) <= 3, f"the balloon is as high as {balloon}")


def popover_lands_below_its_anchor():
    popover_lands(None, "below")


def popover_lands_above_its_anchor():
    popover_lands("above", "above")


def faded_popover_lands_below_its_anchor():
    popover_lands(None, "below", "animates")


def popover_goes_and_comes_back():
    with Compositor() as compositor:
        probe = Probe(compositor.processes, program, compositor.environment, "animates")
        wait_for("the window", lambda: bounds(compositor.screenshot(), CYAN))
        probe.tell("popover")
        first = wait_for("the popover", lambda: bounds(compositor.screenshot(), GREEN))
        probe.wait("the popover", lambda state: state["popover"])
        probe.tell("popover")
        wait_for("the popover to go", lambda: not bounds(compositor.screenshot(), GREEN))
        probe.wait("the fade-out to end", lambda state: not state["popover"])
        probe.tell("popover")
        wait_for("the popover at its old place", lambda: bounds(compositor.screenshot(), GREEN) == first)


def popover_follows_its_anchor_when_it_moves_in_the_window():
    with Compositor() as compositor:
        probe = Probe(compositor.processes, program, compositor.environment, "stays")
        wait_for("the window", lambda: bounds(compositor.screenshot(), CYAN))
        probe.tell("popover")
        wait_for("the popover", lambda: bounds(compositor.screenshot(), GREEN))
        probe.tell("shift")

        def landed():
            picture = compositor.screenshot()
            anchor, balloon = bounds(picture, CYAN), bounds(picture, GREEN)
            return anchor and balloon and abs((balloon[0] + balloon[2] - anchor[0] - anchor[2]) / 2) <= 1 and \
                abs(balloon[1] - anchor[3]) <= 2

        wait_for("the popover to follow", landed)
        check(probe.report()["popover"], "the popover was closed")


if __name__ == "__main__":
    program = sys.argv[1]
    run([popover_lands_below_its_anchor, popover_lands_above_its_anchor, faded_popover_lands_below_its_anchor,
         popover_goes_and_comes_back, popover_follows_its_anchor_when_it_moves_in_the_window])
