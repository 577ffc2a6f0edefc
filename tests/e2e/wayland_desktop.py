# SPDX-License-Identifier: MIT
"""A desktop of its own for one test, as in desktop.py, under a Wayland compositor: weston fills the X server's screen
with its window and takes the mouse and the keyboard from there.

    with WaylandDesktop(program) as desktop:
        lumora = desktop.start()
        lumora.button("Generate").click()
"""

import statistics
import subprocess

from desktop import Desktop, wait_for


class WaylandDesktop(Desktop):
    """The desktop under a Wayland compositor. No window has a number here, and none knows where it is: after a window
    was moved or resized by hand, `find_window` has to look again before controls are clicked. A whole scale is the
    screen's, as the compositor reports it; this compositor knows no others, so that they are the toolkit's."""

    BACKGROUND = (32, 36, 40)
    # Only a window has such a long row of pixels that differ from the background; a pointer or a popover's edge has not.
    SMALLEST_WINDOW = 250
    # The color of drag_source.
    SOURCE = (255, 0, 255)
    has_links = False
    places_windows = False

    def _start_window_system(self):
        width, height = map(int, self.size.split("x"))
        settings = self.folder / "weston.ini"
        settings.write_text("[shell]\nbackground-color=0xff%02x%02x%02x\npanel-position=none\nlocking=false\n"
                            "animation=none\nstartup-animation=none\nclose-animation=none\nfocus-animation=none\n"
                            # No keyboard comes up on the screen where text is edited.
                            "[input-method]\npath=\n" % self.BACKGROUND)
        screen_scale = round(self.scale) if self.scale == round(self.scale) else 1
        self.run("weston", "--backend=x11-backend.so", "--use-pixman", f"--scale={screen_scale}",
                 f"--width={width // screen_scale}", f"--height={height // screen_scale}",
                 "--idle-time=0", "--socket=lumora", f"--config={settings}")
        self.environment |= {"WAYLAND_DISPLAY": "lumora", "QT_QPA_PLATFORM": "wayland",
                             "QT_SCALE_FACTOR": str(self.scale / screen_scale)}
        wait_for("the compositor", (self.folder / "runtime/lumora").exists)
        window = wait_for("the compositor's window", self._compositor_window)
        # Without a window manager, nothing else gives it the keyboard.
        self.xdotool("windowfocus", window)
        wait_for("the desktop's background", lambda: self.pixel(width // 4, height // 4) == self.BACKGROUND)
        # The compositor follows the pointer's relative moves, and may not know where they began; at the corner the position is
        # certain.
        self.xdotool("mousemove", 0, 0, "sleep", 0.1)
        self.offset = (0, 0)

    def _compositor_window(self):
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--class", "weston"],
                               env=self.environment, capture_output=True, text=True)
        return found.stdout.split()[0] if found.stdout.split() else None

    def pixels(self, *changes):
        """The screen's pixels as bytes, from ImageMagick after the changes."""
        picture = self.folder / "screen.png"
        self.screenshot(picture)
        return subprocess.run(["convert", str(picture), *changes], check=True, capture_output=True).stdout

    def pixel(self, x, y):
        return tuple(self.pixels("-crop", f"1x1+{round(x)}+{round(y)}", "-depth", "8", "rgb:-"))

    def bounds(self, color):
        """x, y, width, height around all pixels of the color; None without one."""
        name = "rgb(%d,%d,%d)" % color
        answer = self.pixels("-fill", "black", "+opaque", name, "-format", "%@", "info:").decode()
        size, x, y = answer.split("+")
        width, height = map(int, size.split("x"))
        # A picture without the color is not trimmed.
        whole = (width, height) == tuple(map(int, self.size.split("x")))
        return None if whole or width * height == 0 else (int(x), int(y), width, height)

    def window_box(self):
        """x, y, width, height of the largest thing on the desktop, in pixels; None on an empty desktop."""
        background = "rgb(%d,%d,%d)" % self.BACKGROUND
        width, height = map(int, self.size.split("x"))
        mask = self.pixels("-fill", "white", "+opaque", background, "-fill", "black", "-opaque", background,
                           "-depth", "8", "gray:-")
        run = b"\xff" * self.SMALLEST_WINDOW
        rows = [mask[y * width:(y + 1) * width] for y in range(height)]
        edges = [(y, row.find(run), row.rfind(run) + len(run)) for y, row in enumerate(rows) if run in row]
        if not edges:
            return None
        # In some rows the pointer covers an edge.
        left, right = (statistics.median_low(edge[side] for edge in edges) for side in (1, 2))
        return left, edges[0][0], right - left, edges[-1][0] + 1 - edges[0][0]

    def has_window(self, process):
        # There is no way to find its owner.
        return bool(self.window_box())

    def find_window(self, lumora):
        box = wait_for("Lumora's window", self.window_box)
        x, y = next(lumora.walk()).box_as_told[:2]
        self.offset = (box[0] - round(x * self.scale), box[1] - round(y * self.scale))
        return None

    def activate(self, lumora):
        # A window has the keyboard from when it is shown until another is shown; the only other way in this compositor is a
        # press. The other window here is a drag's source.
        if self.source:
            self.source.terminate()
            self.source.wait()
            self.source = None
            wait_for("the drag's source to go", self._is_source_gone)

    def photograph(self, _, path):
        # The box of the only window.
        x, y, width, height = self.window_box()
        self.screenshot(path, f"{width}x{height}+{x}+{y}")

    def to_screen(self, x, y, width, height):
        x, y, width, height = super().to_screen(x, y, width, height)
        return x + self.offset[0], y + self.offset[1], width, height

    def _is_source_gone(self):
        return not self.bounds(self.SOURCE)

    def _grip(self, to):
        x, y, width, height = wait_for("the drag's source", lambda: self.bounds(self.SOURCE))
        around = 40  # its title bar and shadow
        covered = x - around < to[0] < x + width + around and y - around < to[1] < y + height + around
        return None if covered else (x + width // 2, y + height // 2)

    def move_window(self, lumora, x, y):
        pass
