#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: walk_wayland.py LUMORA WINDOWS_PROBE   The windows under a Wayland compositor with a real mouse and keyboard."""
import subprocess
import sys
import unittest
from pathlib import Path

from desktop import WAIT, wait_for
from wayland_desktop import WaylandDesktop

LUMORA, PROBE = (str(Path(name).resolve()) for name in sys.argv[1:3])
sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "widgets" / "window"))
from windows_driver import Probe  # noqa: E402

GREEN, CYAN = (0, 255, 0), (0, 255, 255)
BAR = 60
# The middles of close, minimize and zoom, 24 points apart, from the window's left edge.
CLOSE, MINIMIZE, ZOOM = 68, 92, 116


class ProbeDesktop(WaylandDesktop):
    """A desktop with the windows probe instead of Lumora: magenta content, a cyan anchor, a green popover."""

    def __init__(self, *options):
        super().__init__(LUMORA, size="1200x900")
        self.options = options

    def __enter__(self):
        super().__enter__()
        try:
            self.probe = Probe(self, PROBE, self.environment, *self.options)
            self.probe.wait("the window to be active", lambda state: state["main"])
            self.window = self.resting_window()
        except BaseException:
            self.__exit__()
            raise
        return self

    def start(self, command, environment, **options):
        process = subprocess.Popen(command, env=environment, **options)
        self.processes.append(process)
        return process

    def resting_window(self):
        """The window's box once it is the same twice."""
        wait_for("the window", self.window_box)
        return wait_for("the window to rest", lambda: (box := self.window_box()) == self.window_box() and box)

    def point(self, x, y):
        """A point of the window, from its upper left corner."""
        return self.window[0] + x, self.window[1] + y

    def drag(self, start, travel):
        steps = 8
        self.xdotool("mousemove", *start, "sleep", 0.1, "mousedown", 1)
        for step in range(1, steps + 1):
            self.xdotool("mousemove", *(start[axis] + travel[axis] * step // steps for axis in (0, 1)), "sleep", 0.05)
        self.xdotool("sleep", 0.1, "mouseup", 1)

    def popover_is_on_its_anchor(self):
        anchor, balloon = self.bounds(CYAN), self.bounds(GREEN)
        if not anchor or not balloon:
            return False
        middles = [box[0] + box[2] / 2 for box in (anchor, balloon)]
        return abs(middles[0] - middles[1]) <= 1 and abs(balloon[1] - anchor[1] - anchor[3]) <= 2


class Popover(unittest.TestCase):
    def test_a_click_shows_it_at_its_anchor_and_the_next_one_hides_it(self):
        with ProbeDesktop("animates") as desktop:
            x, y, width, height = wait_for("the anchor", lambda: desktop.bounds(CYAN))
            desktop.click(x + width // 2, y + height // 2)
            desktop.probe.wait("the popover", lambda state: state["popover"])
            wait_for("the popover at its anchor", desktop.popover_is_on_its_anchor)
            # The pointer is over the band around the balloon, through which the click passes.
            desktop.xdotool("click", 1)
            desktop.probe.wait("the popover to go", lambda state: not state["popover"])
            wait_for("the balloon to go", lambda: not desktop.bounds(GREEN))

    def test_a_press_in_the_parent_closes_it(self):
        with ProbeDesktop() as desktop:
            desktop.probe.tell("popover")
            wait_for("the popover at its anchor", desktop.popover_is_on_its_anchor)
            desktop.click(*desktop.point(30, 300))
            desktop.probe.wait("the popover to go", lambda state: not state["popover"])

    def test_a_press_in_it_leaves_it_open(self):
        with ProbeDesktop() as desktop:
            desktop.probe.tell("popover")
            wait_for("the popover at its anchor", desktop.popover_is_on_its_anchor)
            x, y, width, height = desktop.bounds(GREEN)
            desktop.click(x + width // 2, y + height - 20)
            desktop.type("a")
            self.assertTrue(desktop.probe.report()["popover"])

    def test_without_controls_it_leaves_typing_where_it_was(self):
        with ProbeDesktop("typing", "animates") as desktop:
            desktop.type("ab")
            desktop.probe.wait("the text", lambda state: state["field"] == "ab")
            desktop.probe.tell("popover")
            desktop.probe.wait("the popover", lambda state: state["popover"])
            desktop.type("cd")
            state = desktop.probe.wait("the text", lambda state: state["field"] == "abcd")
            self.assertTrue(state["popover"] and state["main"])
            desktop.key("Escape")
            desktop.probe.wait("Escape to close it", lambda state: not state["popover"])
            desktop.type("ef")
            desktop.probe.wait("the text", lambda state: state["field"] == "abcdef")

    def test_its_field_gets_the_keys_and_gives_them_back(self):
        with ProbeDesktop("typing", "field") as desktop:
            desktop.probe.tell("popover")
            desktop.probe.wait("its focus", lambda state: state["focus"] == "popoverField")
            desktop.type("abc")
            state = desktop.probe.wait("the text", lambda state: state["popoverField"] == "abc")
            self.assertEqual(state["field"], "")
            self.assertTrue(state["main"])
            desktop.key("BackSpace")
            desktop.probe.wait("a key that edits", lambda state: state["popoverField"] == "ab")
            desktop.key("Escape")
            desktop.probe.wait("Escape to close it", lambda state: not state["popover"] and state["focus"] == "field")
            desktop.type("de")
            desktop.probe.wait("the text", lambda state: state["field"] == "de")

    def test_it_follows_a_window_that_is_dragged(self):
        with ProbeDesktop("stays") as desktop:
            desktop.probe.tell("popover")
            wait_for("the popover at its anchor", desktop.popover_is_on_its_anchor)
            before = desktop.bounds(CYAN)
            desktop.drag(desktop.point(400, BAR // 2), (80, 30))
            wait_for("the window to move", lambda: desktop.bounds(CYAN) != before)
            wait_for("the popover to follow", desktop.popover_is_on_its_anchor)
            self.assertTrue(desktop.probe.report()["popover"])


    def test_it_is_dragged_away_and_stays_there(self):
        with ProbeDesktop("stays", "movable") as desktop:
            desktop.probe.tell("popover")
            wait_for("the popover at its anchor", desktop.popover_is_on_its_anchor)
            x, y, width, height = desktop.bounds(GREEN)
            desktop.drag((x + width // 2, y + height // 2), (60, 40))
            # The compositor does not move a window's children while the button is down; the popover is shown at the new place
            # again.
            wait_for("the popover where it was dragged", lambda: desktop.bounds(GREEN) == (x + 60, y + 40, width, height))
            self.assertTrue(desktop.probe.report()["popover"])

    def test_it_is_resized_at_its_corner(self):
        with ProbeDesktop("stays", "resizable") as desktop:
            desktop.probe.tell("popover")
            wait_for("the popover at its anchor", desktop.popover_is_on_its_anchor)
            x, y, width, height = desktop.bounds(GREEN)
            # At its lower right, inside of the round corner.
            desktop.drag((x + width - 4, y + height - 25), (40, 30))
            wait_for("the popover in its new size", lambda: desktop.bounds(GREEN) == (x, y, width + 40, height + 30))


class Window(unittest.TestCase):
    def test_it_is_dragged_by_the_whole_of_its_bar(self):
        with ProbeDesktop() as desktop:
            for x, y in ((400, 8), (400, BAR - 5), (250, 30)):  # the last one is a label in the bar
                before = desktop.resting_window()
                # Towards the middle of the screen, wherever the compositor has put the window.
                travel = [40 if before[axis] < (1200 - 600, 900 - 400)[axis] / 2 else -40 for axis in (0, 1)]
                desktop.drag((before[0] + x, before[1] + y), travel)
                moved = (before[0] + travel[0], before[1] + travel[1], *before[2:])
                with self.subTest(at=(x, y)):
                    wait_for(f"the window at {moved}, it is at {desktop.window_box()}",
                             lambda moved=moved: desktop.window_box() == moved, 20)

    def test_a_drag_of_its_content_leaves_it_where_it_is(self):
        with ProbeDesktop() as desktop:
            desktop.drag(desktop.point(60, 250), (60, 40))
            self.assertEqual(desktop.resting_window(), desktop.window)

    def test_it_is_resized_at_edges_and_corners(self):
        with ProbeDesktop() as desktop:
            x, y, width, height = desktop.window
            middle = (width // 2, height // 2)
            grips = {
                "right edge": ((width - 2, middle[1]), (-40, 0), (0, 0, -40, 0)),
                "lower edge": ((middle[0], height - 2), (0, -30), (0, 0, 0, -30)),
                "lower right corner": ((width - 2, height - 2), (-30, -20), (0, 0, -30, -20)),
                "left edge": ((1, middle[1]), (40, 0), (40, 0, -40, 0)),
                "upper edge": ((middle[0], 1), (0, 20), (0, 20, 0, -20)),
                "upper left corner": ((1, 1), (20, 30), (20, 30, -20, -30)),
            }
            for name, (grip, travel, change) in grips.items():
                before = desktop.resting_window()
                # The grips are for the window's first size.
                at = [before[axis] + (grip[axis] if grip[axis] <= middle[axis]
                                      else grip[axis] + before[2 + axis] - desktop.window[2 + axis]) for axis in (0, 1)]
                desktop.drag(at, travel)
                wanted = tuple(value + by for value, by in zip(before, change))
                with self.subTest(name):
                    wait_for(f"{wanted} at the {name}", lambda wanted=wanted: desktop.window_box() == wanted)

    def test_it_is_not_made_smaller_than_its_smallest_size(self):
        with ProbeDesktop() as desktop:
            x, y, width, height = desktop.window
            desktop.drag((x + width - 2, y + height - 2), (-500, -350))
            # 300 × 200 with a bar of standard height; the extra height of the taller bar is added.
            smallest = desktop.resting_window()
            self.assertEqual(smallest[:3], (x, y, 300))
            self.assertTrue(200 <= smallest[3] <= 200 + BAR, smallest)

    def test_zoom_fills_the_screen_and_comes_back(self):
        with ProbeDesktop() as desktop:
            desktop.click(*desktop.point(ZOOM, BAR // 2))
            desktop.probe.wait("the window to be zoomed", lambda state: state["maximized"])
            wait_for("the window to fill the screen", lambda: desktop.window_box() == (0, 0, 1200, 900))
            desktop.click(ZOOM, BAR // 2)
            desktop.probe.wait("its old state", lambda state: not state["maximized"])
            wait_for("its old size", lambda: (desktop.window_box() or ())[2:] == desktop.window[2:])

    def test_the_full_screen_button_fills_the_screen_and_comes_back(self):
        with ProbeDesktop() as desktop:
            right = desktop.window[2]
            desktop.click(*desktop.point(right - 16, BAR // 2))
            desktop.probe.wait("full screen", lambda state: state["fullscreen"])
            wait_for("the window to fill the screen", lambda: desktop.window_box() == (0, 0, 1200, 900))
            desktop.key("F11")
            desktop.probe.wait("its old state", lambda state: not state["fullscreen"])
            wait_for("its old size", lambda: (desktop.window_box() or ())[2:] == desktop.window[2:])

    def test_minimize_hides_it(self):
        with ProbeDesktop() as desktop:
            desktop.click(*desktop.point(MINIMIZE, BAR // 2))
            wait_for("the window to go", lambda: not desktop.window_box())
            self.assertIsNone(desktop.probe.process.poll())

    def test_a_double_click_on_the_bar_hides_it(self):
        with ProbeDesktop() as desktop:
            desktop.xdotool("mousemove", *desktop.point(450, BAR // 2), "click", "--repeat", 2, "--delay", 50, 1)
            wait_for("the window to go", lambda: not desktop.window_box())

    def test_close_ends_it(self):
        with ProbeDesktop() as desktop:
            desktop.click(*desktop.point(CLOSE, BAR // 2))
            self.assertEqual(desktop.probe.process.wait(WAIT), 0)

    def test_its_menu_offers_what_the_lights_do_to_the_keyboard(self):
        with ProbeDesktop() as desktop:
            desktop.key("alt+space")
            wait_for("the menu", lambda: desktop.probe.report()["menu"])
            desktop.key("Down", "Return")
            desktop.probe.wait("the window to be zoomed", lambda state: state["maximized"])

    def test_its_lights_roll_over_together(self):
        def lights(desktop):
            x, y = desktop.point(ZOOM - 10, BAR // 2 - 10)
            return desktop.pixels("-crop", f"20x20+{x}+{y}", "-depth", "8", "rgb:-")

        with ProbeDesktop() as desktop:
            before = lights(desktop)
            desktop.xdotool("mousemove", *desktop.point(CLOSE, BAR // 2))
            wait_for("the zoom light to show its sign too", lambda: lights(desktop) != before)
            desktop.xdotool("mousemove", *desktop.point(300, 200))
            wait_for("it to go out", lambda: lights(desktop) == before)


class Lumora(unittest.TestCase):
    def test_it_is_driven_by_mouse_and_keys(self):
        with WaylandDesktop(LUMORA) as desktop:
            lumora = desktop.start()
            lumora.wait_shown("Lumora | Icons")
            lumora.button("Help on this tool").click()
            lumora.wait_shown("Report a bug")
            desktop.key("Escape")
            lumora.wait_gone("Report a bug")
            tools = lumora.controls("page tab")
            tools[3].click()
            wait_for("the fourth tool", lambda: tools[3].has_state("selected"))
            desktop.key("ctrl+1")
            lumora.wait_shown("Lumora | Icons")
            # After a drag by its header, its controls are still found.
            x, y, width, _ = desktop.window_box()
            desktop.xdotool("mousemove", x + width // 2, y + 20, "mousedown", 1, "mousemove_relative", 15, 15, "sleep", 0.1,
                            "mousemove_relative", 25, 15, "sleep", 0.2, "mouseup", 1)
            wait_for("the window to move", lambda: desktop.window_box()[:2] == (x + 40, y + 30))
            desktop.find_window(lumora)
            tools[4].click()
            wait_for("the fifth tool", lambda: tools[4].has_state("selected"))
            assert lumora.close() == 0


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[3:], warnings="ignore", verbosity=2)
