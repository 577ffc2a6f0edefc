#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# usage: test_webp_elsewhere.py lumora   WebP files hold the same pixels for ffmpeg, whose decoders share no code with libwebp.
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

LUMORA = sys.argv[1]


def pixels(file):
    """The picture's straight RGBA bytes as ffmpeg decodes them."""
    call = ["ffmpeg", "-v", "error", "-i", str(file), "-f", "rawvideo", "-pix_fmt", "rgba", "-"]
    return subprocess.run(call, stdout=subprocess.PIPE, check=True).stdout


def visible(rgba):
    """The pixels without the color of those that are fully transparent, which no decoder has to keep."""
    return [rgba[at : at + 4] if rgba[at + 3] else b"\0\0\0\0" for at in range(0, len(rgba), 4)]


class WebP(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def placeholders(self, folder, *options):
        sizes = "120x80,33x77,1x1,40x40@2x"
        call = [LUMORA, "placeholders", "--size", sizes, "--text", "Hej {size}", "--out", str(self.folder / folder)]
        subprocess.run([*call, *options], stdout=subprocess.PIPE, check=True)
        return sorted((self.folder / folder).iterdir())

    def test_lossless_pictures_are_those_of_the_png_files(self):
        for ground in ["#336699", "#33669980", "#00000000"]:
            with self.subTest(ground):
                look = ["--foreground", "#ffcc0040", "--background", ground]
                png = self.placeholders(f"png{ground}", *look)
                webp = self.placeholders(f"webp{ground}", *look, "--format", "webp")
                self.assertEqual([file.stem for file in webp], [file.stem for file in png])
                self.assertEqual(len(webp), 4)
                for one, other in zip(png, webp):
                    self.assertTrue(visible(pixels(one)) == visible(pixels(other)), other.name)

    def test_lossy_pictures_differ_little_and_keep_their_opacity(self):
        look = ["--foreground", "white", "--background", "#33669980"]
        png = self.placeholders("png", *look)
        webp = self.placeholders("webp", *look, "--format", "webp", "--quality", "90")
        for one, other in zip(png, webp):
            expected, seen = pixels(one), pixels(other)
            self.assertTrue(expected[3::4] == seen[3::4], other.name)
            apart = [abs(a - b) for a, b in zip(expected, seen)]
            # Loss smears the color of thin strokes; on average a few of 255 levels.
            self.assertLess(sum(apart) / len(apart), 6.0, other.name)

    def test_scaled_pictures_are_those_of_the_png_files(self):
        art = self.folder / "art"
        self.placeholders("art")
        for file in art.iterdir():
            file.rename(art / (file.stem.replace("@2x", "") + "@3x.png"))
        for form in ["png", "webp"]:
            call = [LUMORA, "downscale", str(art), "--layout", "ios", "--from", "3x", "--to-scales", "2x,1x"]
            subprocess.run([*call, "--format", form, "--out", str(self.folder / form)], stdout=subprocess.PIPE, check=True)
        made = sorted((self.folder / "webp").rglob("*.webp"))
        self.assertEqual(len(made), 8)
        for file in made:
            png = (self.folder / "png" / file.relative_to(self.folder / "webp")).with_suffix(".png")
            self.assertTrue(visible(pixels(png)) == visible(pixels(file)), file.name)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
