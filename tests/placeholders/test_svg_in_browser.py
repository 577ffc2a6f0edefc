# SPDX-License-Identifier: MIT
"""usage: test_svg_in_browser.py LUMORA   A placeholder written as SVG is valid XML, and a browser draws it like the PNG."""
import os
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

LUMORA = Path(sys.argv[1]).resolve()

# The size and the look of the pictures.
LOOKS = {
    "plain": ("400x300", []),
    "colored": ("320x200", ["--foreground", "#ffcc00", "--background", "rgb(20 40 90)", "--text", "Grüße <&>\\n{size}"]),
    "narrow": ("60x240", ["--text", "A rather long label"]),
}


def pixels(path, size):
    width, height = size
    raw = subprocess.run(["convert", path, "-background", "white", "-flatten", "-depth", "8", "rgb:-"], check=True,
                         capture_output=True).stdout
    assert len(raw) == width * height * 3, (path, len(raw))
    return raw


class InTheBrowser(unittest.TestCase):
    def test_each_look(self):
        for name, (size, options) in LOOKS.items():
            with self.subTest(name), tempfile.TemporaryDirectory() as folder:
                for kind in ("svg", "png"):
                    subprocess.run([LUMORA, "placeholders", "--size", size, "--format", kind, "--out", folder, *options],
                                   check=True, capture_output=True)
                self.compare(Path(folder), size)

    def compare(self, folder, text):
        size = width, height = tuple(map(int, text.split("x")))
        svg = folder / f"placeholder_{text}.svg"
        root = ElementTree.parse(svg).getroot()
        self.assertEqual((root.get("width"), root.get("height")), (str(width), str(height)))
        # A window cannot be as narrow as some pictures; the page shows them in its corner.
        page = folder / "page.html"
        page.write_text(f'<body style="margin:0"><img src="{svg.name}" style="display:block"></body>')
        window = max(width, 500), max(height, 500)
        shot = folder / "shot.png"
        subprocess.run(["chromium", "--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars",
                        "--force-device-scale-factor=1", f"--user-data-dir={folder / 'profile'}",
                        f"--window-size={window[0]},{window[1]}", f"--screenshot={shot}", page.as_uri()],
                       check=True, capture_output=True, timeout=110, env=os.environ | {"HOME": str(folder), "TMPDIR": str(folder)})
        subprocess.run(["convert", shot, "-crop", f"{width}x{height}+0+0", "+repage", shot], check=True)
        drawn, meant = pixels(shot, size), pixels(folder / f"placeholder_{text}.png", size)
        self.assertEqual(self.strangers(drawn, meant, size), [])
        self.assertEqual(self.strangers(meant, drawn, size), [])

    @staticmethod
    def strangers(one, other, size):
        """The pixels of one that differ from the other's pixels there or next to it, except for the shading of edges."""
        shading = 24
        width, height = size
        found = []
        for y in range(height):
            for x in range(width):
                for channel in range(3):
                    value = one[(y * width + x) * 3 + channel]
                    near = [other[(row * width + column) * 3 + channel]
                            for row in range(max(y - 1, 0), min(y + 2, height))
                            for column in range(max(x - 1, 0), min(x + 2, width))]
                    if not min(near) - shading <= value <= max(near) + shading:
                        found.append((x, y, channel, value))
        return found[:5]


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
