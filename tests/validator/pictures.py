# SPDX-License-Identifier: MIT
"""Writes PNG files from scratch: plain ones, and those that Apple's tools optimize for iOS packages."""

import struct
import zlib

PASSES = ((0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4), (1, 0, 2, 2), (0, 1, 1, 2))


def chunk(name, data):
    return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))


def filtered(rows, bpp):
    """The rows with the five filters in turn."""
    above, out = None, b""
    for number, row in enumerate(rows):
        above = above or bytes(len(row))
        kind = number % 5
        left = lambda i: row[i - bpp] if i >= bpp else 0
        corner = lambda i: above[i - bpp] if i >= bpp else 0

        def prediction(i):
            if kind == 1:
                return left(i)
            if kind == 2:
                return above[i]
            if kind == 3:
                return (left(i) + above[i]) // 2
            if kind == 4:
                estimate = left(i) + above[i] - corner(i)
                return min((abs(estimate - value), order, value)
                           for order, value in enumerate((left(i), above[i], corner(i))))[2]
            return 0

        out += bytes([kind]) + bytes((row[i] - prediction(i)) & 255 for i in range(len(row)))
        above = row
    return out


def png(width, height, pixel, *, color_type=6, interlaced=False, apple=None, pieces=1, before_data=b"", **lies):
    """`pixel(x, y)` gives a pixel's bytes. `apple` is the last byte of the CgBI chunk, None for a plain PNG."""
    bpp = {2: 3, 6: 4}[color_type]
    stream = b""
    for x0, y0, dx, dy in PASSES if interlaced else ((0, 0, 1, 1),):
        rows = [b"".join(pixel(x, y) for x in range(x0, width, dx)) for y in range(y0, height, dy)]
        if rows and rows[0]:
            stream += filtered(rows, bpp)
    packer = zlib.compressobj(6, zlib.DEFLATED, 15 if apple is None else -15)
    data = packer.compress(stream) + packer.flush()
    data = data[: int(len(data) * lies.get("keep", 1))]
    step = -(-len(data) // pieces) or 1
    body = b"\x89PNG\r\n\x1a\n"
    if apple is not None:
        body += chunk(b"CgBI", bytes([0x50, 0, 0x20, apple]))
    body += chunk(b"IHDR", struct.pack(">IIBBBBB", lies.get("says_width", width), lies.get("says_height", height),
                                       lies.get("says_depth", 8), lies.get("says_type", color_type), 0, 0, interlaced))
    body += before_data
    for at in range(0, len(data), step):
        body += chunk(b"IDAT", data[at : at + step])
    return body + chunk(b"IEND", b"")


def plain_of_size(width, height):
    """A picture of one color in a small file, since only its header is read."""
    rows = (b"\0" + b"\x20\x80\xc0\xff" * width) * height
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b""))


def apple_of_size(width, height, bgra=b"\xc0\x80\x20\xff"):
    packer = zlib.compressobj(9, zlib.DEFLATED, -15)
    data = packer.compress((b"\0" + bgra * width) * height) + packer.flush()
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"CgBI", b"\x50\0\x20\2")
            + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)) + chunk(b"IDAT", data)
            + chunk(b"IEND", b""))


def header_only(width, height):
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0))
