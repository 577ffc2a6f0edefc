#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: windows_on_x11.py PROBE   The windows under a real X server with a window manager: their places, and the effects of
mouse and keyboard."""
import os
import subprocess
import sys

from windows_driver import Failure, Probe, Processes, check, run, wait_for


class Desktop:
    """An X server and openbox on it, for the time of the block."""

    def __init__(self, scale=1):
        self.scale = scale

    def __enter__(self):
        self.processes = Processes().__enter__()
        reading, writing = os.pipe()
        # Without -noreset the server drops a client that connects while its only client leaves.
        self.processes.start(["Xvfb", "-noreset", "-displayfd", str(writing), "-screen", "0", "1600x1200x24", "-nolisten", "tcp"],
                             pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as numbers:
            display = ":" + numbers.readline().strip()
        self.environment = dict(os.environ, DISPLAY=display, QT_QPA_PLATFORM="xcb", QT_SCALE_FACTOR=str(self.scale),
                                XDG_RUNTIME_DIR=self.processes.folder, HOME=self.processes.folder)
        self.environment.pop("WAYLAND_DISPLAY", None)
        self.environment.pop("DBUS_SESSION_BUS_ADDRESS", None)
        # A window that is mapped while the window manager starts is lost: it stays unmapped. The manager's start command runs
        # when the start is over; the properties that it sets on the root window come too early.
        ready = os.path.join(self.processes.folder, "managed")
        self.processes.start(["openbox", "--startup", f"touch {ready}"], self.environment, stdout=subprocess.DEVNULL,
                             stderr=subprocess.DEVNULL)
        wait_for("the window manager", lambda: os.path.exists(ready))
        return self

    def __exit__(self, *error):
        self.processes.__exit__(*error)

    def output(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True, text=True, check=True).stdout

    def probe(self, *options):
        probe = Probe(self.processes, program, self.environment, *options)
        probe.wait("the window to be active", lambda state: state["main"])
        # The window manager may still move it to its place.
        wait_for("the window to rest", lambda: probe.report()["window"] == probe.report()["window"])
        return probe

    def mouse(self, *words):
        """xdotool's mouse commands; positions are in points."""
        self.output("xdotool", *[str(round(word * self.scale)) if isinstance(word, (int, float)) else word
                                 for word in words])

    def drag(self, start, end):
        """Presses, moves, and releases. The program must get the press before the pointer is
        elsewhere. A window manager grabs the pointer a moment after the first motion, so the pointer moves to the end once
        more after that."""
        near = [(a + 2 * b) / 3 for a, b in zip(start, end)]
        self.mouse("mousemove", *start, "mousedown", "1", "sleep", "0.3")
        for _ in range(3):
            self.mouse("mousemove", *near, "sleep", "0.2", "mousemove", *end, "sleep", "0.2")

    def pixel(self, x, y):
        position = f"1x1+{round(x * self.scale)}+{round(y * self.scale)}"
        picture = subprocess.run(["import", "-silent", "-window", "root", "-crop", position, "-depth", "8", "rgb:-"],
                                 env=self.environment, capture_output=True, check=True).stdout
        return tuple(picture)


GREEN = (0, 255, 0)
CYAN = (0, 255, 255)


def middle_of(rect):
    return rect[0] + rect[2] / 2, rect[1] + rect[3] / 2


def popover_on_anchor(desktop):
    probe = desktop.probe()
    probe.tell("popover")
    state = probe.wait("the popover", lambda state: state["popover"])
    anchor = state["anchor"]
    x, bottom = anchor[0] + anchor[2] / 2, anchor[1] + anchor[3]
    check(state["tip"] == [x, bottom], f"the tip is at {state['tip']}, not at {x, bottom}")
    wait_for("the arrow on screen", lambda: desktop.pixel(x, bottom + 4) == GREEN)
    wait_for("the anchor above the arrow", lambda: desktop.pixel(x, bottom - 4) == CYAN)
    wait_for("the balloon below the arrow", lambda: desktop.pixel(x, bottom + 60) == GREEN)


def popover_lands_on_its_anchor():
    for scale in (1, 2):
        with Desktop(scale) as desktop:
            popover_on_anchor(desktop)


def popover_follows_a_window_that_is_dragged_by_its_bar():
    with Desktop() as desktop:
        probe = desktop.probe("stays")
        before = probe.report()["window"]
        probe.tell("popover")
        probe.wait("the popover", lambda state: state["popover"])
        x, y = before[0] + 400, before[1] + 30
        # The window manager continues the drag after the first 12 points, and counts from the press.
        desktop.mouse("mousemove", x, y, "mousedown", "1", "mousemove", x + 12, y, "sleep", "0.3", "mousemove", x + 40,
                      y - 20, "sleep", "0.2", "mousemove", x + 72, y - 40, "sleep", "0.2", "mouseup", "1")
        state = probe.wait("the window to move", lambda state: state["window"][:2] == [before[0] + 72, before[1] - 40])
        anchor = state["anchor"]
        state = probe.wait("the popover to follow", lambda state: state["tip"] == [anchor[0] + 20, anchor[1] + 40])
        wait_for("the arrow on screen", lambda: desktop.pixel(anchor[0] + 20, anchor[1] + 44) == GREEN)
        check(state["window"][2:] == before[2:], "dragging changed the window's size")


def window_is_resized_at_its_lower_right_corner():
    with Desktop() as desktop:
        probe = desktop.probe()
        x, y, width, height = probe.report()["window"]
        right, bottom = x + width - 1, y + height - 1
        desktop.drag((right, bottom), (right + 50, bottom + 30))
        probe.wait("the window to grow", lambda state: state["window"] == [x, y, width + 50, height + 30])
        desktop.mouse("mouseup", "1")


def window_is_resized_at_its_left_edge():
    with Desktop() as desktop:
        probe = desktop.probe()
        x, y, width, height = probe.report()["window"]
        desktop.drag((x + 1, y + 200), (x + 41, y + 200))
        probe.wait("the window to shrink", lambda state: state["window"] == [x + 40, y, width - 40, height])
        desktop.mouse("mouseup", "1")


def window_is_resized_at_its_other_corners():
    with Desktop() as desktop:
        probe = desktop.probe()
        for at_left, at_top in ((True, True), (False, True), (True, False)):
            x, y, width, height = probe.report()["window"]
            corner = (x + 1 if at_left else x + width - 2, y + 1 if at_top else y + height - 2)
            # Larger to every side.
            end = (corner[0] + (-40 if at_left else 40), corner[1] + (-30 if at_top else 30))
            desktop.drag(corner, end)
            desktop.mouse("mouseup", "1")
            expected = [x - 40 if at_left else x, y - 30 if at_top else y, width + 40, height + 30]
            probe.wait(f"the window to grow to {expected}", lambda state: state["window"] == expected)


def window_comes_back_when_its_screen_goes():
    with Desktop() as desktop:
        desktop.output("xrandr", "--setmonitor", "left", "800/200x1200/300+0+0", "screen")
        desktop.output("xrandr", "--setmonitor", "right", "800/200x1200/300+800+0", "none")
        probe = desktop.probe()
        x, y, width, height = probe.report()["window"]
        desktop.mouse("mousemove", x + 400, y + 30, "mousedown", "1", "mousemove", x + 412, y + 30, "sleep", "0.3",
                      "mousemove", x + 800, y + 30, "sleep", "0.2", "mousemove", x + 1200, y + 30, "sleep", "0.2",
                      "mouseup", "1")
        probe.wait("the window to be on the right screen", lambda state: state["window"][0] >= 800)
        desktop.output("xrandr", "--delmonitor", "right")
        state = probe.wait("the window to come to the left screen",
                           lambda state: state["window"][0] + state["window"][2] <= 800)
        check(state["window"][0] >= 0 and state["window"][2:] == [width, height], f"it is at {state['window']}")


def text_is_dragged_out_of_a_text_field_and_into_one():
    with Desktop() as desktop:
        probe = desktop.probe()
        x, y, _, _ = probe.report()["window"]
        # The content begins below the bar of 60; the text begins 4 points inside its field.
        source, field, target = [(x + 45, y + 60 + top + 15) for top in (70, 20, 120)]
        for end, name in ((field, "field"), (target, "target")):
            desktop.mouse("mousemove", *source, "click", "--repeat", "2", "--delay", "50", "1", "sleep", "0.5")
            desktop.drag(source, end)
            desktop.mouse("mouseup", "1")
            probe.wait("the text at its new place", lambda state: state[name] == "dragged")


def shadow_of_a_popover_is_blended_by_a_compositor():
    with Desktop() as desktop:
        magenta = (255, 0, 255)

        def is_bare(below, corner):
            return (below, corner) == (magenta, magenta)

        def is_blended(below, corner):
            return 100 < below[0] < 250 and below[0] == below[2] and below[1] == 0 and corner[1] == 0 and corner[0] > 100

        def wait_below_the_balloon(what, condition):
            probe = desktop.probe()
            probe.tell("popover")
            state = probe.wait("the popover", lambda state: state["popover"])
            left, top, width, height = state["popoverFrame"]
            wait_for("the balloon", lambda: desktop.pixel(left + width / 2, top + height - 10) == GREEN)

            def seen():
                return desktop.pixel(left + width / 2, top + height + 4), desktop.pixel(left + 1, top + height - 2)

            # A compositor owns the screen before it has painted it once.
            try:
                wait_for(what, lambda: condition(*seen()))
            except Failure as failure:
                raise Failure(f"{failure}; last: {seen()}") from None
            probe.process.stdin.close()
            probe.process.wait(10)

        wait_below_the_balloon("a balloon without a shadow, which nobody would blend", is_bare)
        desktop.processes.start(["picom", "--backend", "xrender", "--config", "/dev/null"], desktop.environment,
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for("the compositor", lambda: "picom" in desktop.output("xwininfo", "-root", "-tree"))
        wait_below_the_balloon("the blended shadow", is_blended)


def traffic_lights_work():
    with Desktop() as desktop:
        probe = desktop.probe()
        window = probe.report()["window"]
        # Close, minimize and zoom are 24 points apart, from the left margin of 60 on.
        close, minimize, zoom = [(window[0] + 68 + 24 * i, window[1] + 30) for i in range(3)]
        desktop.mouse("mousemove", *zoom, "click", "1")
        probe.wait("the window to fill the screen", lambda state: state["maximized"] and state["window"][2] == 1600)
        desktop.mouse("mousemove", 68 + 48, 30, "click", "1")
        probe.wait("its old place", lambda state: not state["maximized"] and state["window"] == window)
        probe.tell("fullscreen")
        probe.wait("full screen", lambda state: state["fullscreen"] and state["window"] == [0, 0, 1600, 1200])
        probe.tell("fullscreen")
        probe.wait("its old place", lambda state: not state["fullscreen"] and state["window"] == window)
        desktop.mouse("mousemove", *minimize, "click", "1")
        probe.wait("the window to go", lambda state: state["minimized"])
        identifier = desktop.output("xdotool", "search", "--name", "Lumora windows probe").split()[0]
        desktop.output("xdotool", "windowactivate", identifier)
        probe.wait("the window to come back", lambda state: not state["minimized"] and state["main"])
        desktop.mouse("mousemove", *close, "click", "1")
        check(probe.process.wait(10) == 0, "the probe did not end well")


def double_click_on_the_bar_miniaturises():
    with Desktop() as desktop:
        probe = desktop.probe()
        window = probe.report()["window"]
        desktop.mouse("mousemove", window[0] + 400, window[1] + 30, "click", "--repeat", "2", "--delay", "50", "1")
        probe.wait("the window to go", lambda state: state["minimized"])


def popover_without_controls_leaves_typing_where_it_was():
    with Desktop() as desktop:
        probe = desktop.probe("typing", "animates")
        probe.tell("popover")
        probe.wait("the popover", lambda state: state["popover"])
        desktop.output("xdotool", "type", "abc")
        state = probe.wait("the text", lambda state: state["field"] == "abc")
        check(state["popover"] and state["main"], "typing closed the popover")
        desktop.output("xdotool", "key", "Escape")
        probe.wait("Escape to close the popover", lambda state: not state["popover"])


def popover_with_a_field_gets_the_keyboard_and_gives_it_back():
    with Desktop() as desktop:
        probe = desktop.probe("typing", "field")
        probe.tell("popover")
        probe.wait("its focus", lambda state: state["focus"] == "popoverField")
        desktop.output("xdotool", "type", "abc")
        state = probe.wait("the text", lambda state: state["popoverField"] == "abc")
        check(state["main"], "the window is no longer the main one")
        desktop.output("xdotool", "key", "Escape")
        probe.wait("the focus to return", lambda state: not state["popover"] and state["focus"] == "field")
        desktop.output("xdotool", "type", "de")
        probe.wait("the text", lambda state: state["field"] == "de")


def clicking_the_parent_closes():
    with Desktop() as desktop:
        probe = desktop.probe()
        probe.tell("popover")
        state = probe.wait("the popover", lambda state: state["popover"])
        desktop.mouse("mousemove", state["window"][0] + 30, state["window"][1] + 300, "click", "1")
        probe.wait("the popover to close", lambda state: not state["popover"])


def mouse_goes_through_the_band_around_the_balloon():
    with Desktop() as desktop:
        probe = desktop.probe("animates")
        x, y = middle_of(probe.report()["anchor"])
        # The band around the tip covers the anchor's lower half, but the anchor still gets the second click.
        desktop.mouse("mousemove", x + 10, y + 15, "click", "1")
        state = probe.wait("the popover", lambda state: state["popover"])
        wait_for("the balloon", lambda: desktop.pixel(x, y + 80) == GREEN)
        desktop.mouse("click", "1")
        probe.wait("the second click to close it", lambda state: not state["popover"])
        check(state["tip"] == [x, y + 20], "the popover was beside its anchor")


program = sys.argv[1]
run([popover_lands_on_its_anchor, popover_follows_a_window_that_is_dragged_by_its_bar,
     window_is_resized_at_its_lower_right_corner, window_is_resized_at_its_left_edge,
     window_is_resized_at_its_other_corners, window_comes_back_when_its_screen_goes,
     text_is_dragged_out_of_a_text_field_and_into_one, shadow_of_a_popover_is_blended_by_a_compositor, traffic_lights_work,
     double_click_on_the_bar_miniaturises, popover_without_controls_leaves_typing_where_it_was,
     popover_with_a_field_gets_the_keyboard_and_gives_it_back, clicking_the_parent_closes,
     mouse_goes_through_the_band_around_the_balloon])
