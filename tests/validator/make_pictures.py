#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: make_pictures.py FOLDER   Apple-optimized pictures of 13 x 11 pixels, each named for its form or fault.

Pixel (x, y) has the colors 20x, 20y and 10(x + y) and the alpha 255 - 12x, multiplied where the form says so.
"""

import sys
from pathlib import Path

from pictures import chunk, png

WIDTH, HEIGHT = 13, 11


def straight(x, y):
    return 20 * x, 20 * y, 10 * (x + y), 255 - 12 * x


def multiplied(x, y):
    *colors, alpha = straight(x, y)
    red, green, blue = ((value * alpha + 127) // 255 for value in colors)
    return bytes((blue, green, red, alpha))


def opaque(x, y):
    red, green, blue, _ = straight(x, y)
    return bytes((blue, green, red, 77))


def three(x, y):
    return opaque(x, y)[:3]


def above_alpha(x, y):
    return bytes((255, 255, 255, 100))


def main():
    out = Path(sys.argv[1])

    def write(name, pixel=multiplied, **how):
        data = png(WIDTH, HEIGHT, pixel, **{"apple": 2, **how})
        (out / f"{name}.png").write_bytes(data[: how.get("cut", len(data))])

    write("multiplied")
    write("multiplied interlaced", interlaced=True)
    write("data in many chunks", pieces=40)
    write("other chunks between", before_data=chunk(b"iDOT", bytes(28)) + chunk(b"IDAT", b"") + chunk(b"gAMA", b"1234"))
    write("opaque", opaque, apple=6)
    write("opaque by the lowest number", opaque, apple=5)
    write("opaque interlaced", opaque, apple=6, interlaced=True)
    write("three channels", three, color_type=2, apple=6)
    write("three channels that claim alpha", three, color_type=2, apple=2)
    write("colors above alpha", above_alpha)
    write("plain", apple=None)
    write("data ends early", keep=0.6)
    write("no data", keep=0)
    write("file ends early", cut=90)
    write("grey", says_type=0)
    write("palette", says_type=3)
    write("16 bits", says_depth=16)
    write("no width", says_width=0)
    write("gigantic", says_width=2_000_000_000, says_height=2_000_000_000)
    write("taller than its data", says_height=HEIGHT + 1)
    whole = (out / "multiplied.png").read_bytes()
    at = whole.index(b"IDAT")
    (out / "wrong checksum.png").write_bytes(whole[: at + 10] + bytes([whole[at + 10] ^ 1]) + whole[at + 11 :])
    (out / "chunk longer than the file.png").write_bytes(whole[: at - 4] + b"\x7f\xff\xff\xff" + whole[at:])
    (out / "signature only.png").write_bytes(whole[:8])


if __name__ == "__main__":
    main()
