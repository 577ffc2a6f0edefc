#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: make_pictures.py FOLDER   Small pictures of every format and kind that the picture reader accepts, each named
for what it is. ImageMagick writes them."""

import struct
import subprocess
import sys
from pathlib import Path

SOURCE = ["-size", "23x17", "plasma:red-blue"]
HALF_CLEAR = ["-alpha", "set", "-channel", "A", "-fx", "i/w", "+channel"]

PICTURES = {
    "rgb.png": ["-define", "png:color-type=2"],
    "rgb-16-bits.png": ["-define", "png:color-type=2", "-define", "png:bit-depth=16"],
    "rgba.png": [*HALF_CLEAR, "-define", "png:color-type=6"],
    "rgba-interlaced.png": [*HALF_CLEAR, "-interlace", "PNG", "-define", "png:color-type=6"],
    "palette.png": ["-colors", "9", "-define", "png:color-type=3"],
    "palette-1-bit.png": ["-colors", "2", "-define", "png:color-type=3", "-define", "png:bit-depth=1"],
    "grey-4-bits.png": ["-colorspace", "Gray", "-define", "png:color-type=0", "-define", "png:bit-depth=4"],
    "grey-alpha.png": [*HALF_CLEAR, "-colorspace", "Gray", "-define", "png:color-type=4"],
    "baseline.jpg": ["-quality", "80"],
    "progressive.jpg": ["-interlace", "JPEG", "-quality", "80"],
    "grey.jpg": ["-colorspace", "Gray"],
    "cmyk.jpg": ["-colorspace", "CMYK"],
    "plain.tiff": ["-compress", "None"],
    "lzw.tiff": ["-compress", "LZW"],
    "zip.tiff": [*HALF_CLEAR, "-compress", "Zip"],
    "turned.tiff": ["-orient", "RightTop", "-compress", "None"],
    "lossy.webp": ["-quality", "60"],
    "lossless.webp": [*HALF_CLEAR, "-define", "webp:lossless=true"],
    "24-bits.bmp": ["-type", "TrueColor"],
    "palette.bmp": ["-colors", "9", "-type", "Palette"],
    "plain.gif": [],
}


def icns(member):
    """An icon file with one picture."""
    body = b"ic07" + struct.pack(">I", len(member) + 8) + member
    return b"icns" + struct.pack(">I", len(body) + 8) + body


def main():
    folder = Path(sys.argv[1])
    for name, how in PICTURES.items():
        kind = "bmp3:" if name.endswith(".bmp") else ""
        subprocess.run(["convert", "-seed", "1", *SOURCE, *how, f"{kind}{folder / name}"], check=True)
    (folder / "one-picture.icns").write_bytes(icns((folder / "rgba.png").read_bytes()))


if __name__ == "__main__":
    main()
