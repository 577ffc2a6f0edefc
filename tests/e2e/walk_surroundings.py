#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: walk_surroundings.py LUMORA DRAG_SOURCE   The window in unusual surroundings: other scale factors, a dark and
a high-contrast desktop, a system without fonts. The design is always light, so on every desktop it must look as it does on a
plain one, and not use some of the desktop's colors."""
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Missing, wait_for
from window_system import Desktop

PROGRAM, DRAG_SOURCE = (str(Path(name).resolve()) for name in sys.argv[1:3])

# Sidebar and header are filled with the tool's color.
HEADERS = {"icons": (52, 152, 219), "devices": (230, 126, 34)}
WIDTH, HEIGHT = 900, 660
SCALES = (1, 1.25, 1.5, 2)

# The file with a KDE desktop's colors, which Qt reads.
SCHEME = """[Colors:{group}]
BackgroundNormal={background}
BackgroundAlternate={background}
ForegroundNormal={foreground}
ForegroundInactive={foreground}
ForegroundLink={foreground}
"""
DESKTOPS = {"dark": ("35,38,41", "252,252,252"), "high contrast": ("0,0,0", "255,255,0")}

# The system's hinting stays: it moves text by a pixel, and it is the user's choice.
NO_FONTS = """<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig><include ignore_missing="yes">/etc/fonts/conf.d</include></fontconfig>
"""


def photograph(folder, tool, scale=1, scheme=None, fonts=True, like=None):
    """Starts the program with the tool, returns a picture of its window, and ends it. With a picture that
    it must equal, waits until it does, since the window manager sets the focus at any time."""
    with Desktop(PROGRAM, DRAG_SOURCE, size="1920x1400", scale=scale) as desktop:
        variables = {"LC_ALL": "en_GB.UTF-8"}
        home = Path(desktop.environment["HOME"])
        if scheme:
            (home / ".config").mkdir(exist_ok=True)
            background, foreground = scheme
            groups = ("Window", "View", "Button", "Selection", "Tooltip")
            (home / ".config/kdeglobals").write_text(
                "".join(SCHEME.format(group=group, background=background, foreground=foreground) for group in groups))
            variables |= {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true", "KDE_SESSION_VERSION": "5"}
        if not fonts:
            (home / "fonts.conf").write_text(NO_FONTS)
            variables["FONTCONFIG_FILE"] = str(home / "fonts.conf")
        program = desktop.run(PROGRAM, f"--tool={tool}", **variables)

        def window():
            if program.poll() is not None:
                raise Missing(f"the program ended with {program.returncode}: {desktop.log()}")
            return desktop.has_window(program)

        wait_for(f"the window of {tool}", window)
        picture = Path(folder) / f"{tool}.png"

        def photographs():
            """The picture once it is the same three times in a row and the program is idle: everything is painted, and the
            window has the focus or will not get it."""
            alike = []
            while len(alike) < 3 or share(picture, HEADERS[tool]) < 0.02:
                desktop.photograph(program, picture)
                pixels = subprocess.run(["convert", str(picture), "rgb:-"], stdout=subprocess.PIPE, check=True).stdout
                now = pixels, processor_time(program)
                alike = [*alike, now] if not alike or alike[-1] == now else [now]
                if len(alike) > 100:
                    return False
            return like is None or difference(like, picture) == 0

        try:
            wait_for(f"the picture of {tool}", photographs)
        except Missing as error:
            raise Missing(f"{error}; it differs by {difference(like, picture)}" if like else error) from error
        return picture.rename(picture.with_name(f"{tool}-{scale}-{len(list(Path(folder).iterdir()))}.png"))


def processor_time(process):
    """The processor time of all its threads, in ticks."""
    stat = Path(f"/proc/{process.pid}/stat").read_text()
    return sum(map(int, stat.rsplit(")", 1)[1].split()[11:13]))


def share(picture, color):
    """The part of the picture that has exactly this color, 0 to 1."""
    answer = subprocess.run(
        ["convert", picture, "-fill", "black", "+opaque", "rgb(%d,%d,%d)" % color, "-fill", "white", "-opaque", "rgb(%d,%d,%d)" % color,
         "-format", "%[fx:mean]", "info:"], stdout=subprocess.PIPE, text=True, check=True)
    return float(answer.stdout)


def size(picture):
    answer = subprocess.run(["identify", "-format", "%w %h", picture], stdout=subprocess.PIPE, text=True, check=True)
    return tuple(map(int, answer.stdout.split()))


def difference(one, other):
    """The root mean square of the pixels' differences, 0 to 1, with the second picture scaled to the first one's size."""
    fitted = Path(other).with_suffix(".fitted.png")
    width, height = size(one)
    subprocess.run(["convert", other, "-filter", "box", "-resize", f"{width}x{height}!", fitted], check=True)
    answer = subprocess.run(["compare", "-metric", "RMSE", one, fitted, "null:"], stderr=subprocess.PIPE, text=True, check=False)
    return float(re.search(r"\(([\d.e-]+)\)", answer.stderr).group(1))


class Surroundings(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = folder.name
        cls.plain = {tool: photograph(cls.folder, tool) for tool in HEADERS}

    def test_the_window_has_its_smallest_size_at_first(self):
        for picture in self.plain.values():
            self.assertEqual(size(picture), (WIDTH, HEIGHT))

    def test_a_scale_factor_makes_it_larger_and_nothing_else(self):
        for scale in SCALES[1:]:
            with self.subTest(scale):
                picture = photograph(self.folder, "devices", scale=scale)
                self.assertEqual(size(picture), (round(WIDTH * scale), round(HEIGHT * scale)))
                # Text is laid out again, so its edges differ: measured 0.03 to 0.05; a lost or shifted part gives twice that.
                self.assertLess(difference(self.plain["devices"], picture), 0.08)

    def test_the_desktops_colors_change_nothing(self):
        for name, scheme in DESKTOPS.items():
            for tool, plain in self.plain.items():
                with self.subTest(f"{name}, {tool}"):
                    photograph(self.folder, tool, scheme=scheme, like=plain)

    def test_a_system_without_fonts_changes_nothing(self):
        photograph(self.folder, "devices", fonts=False, like=self.plain["devices"])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
