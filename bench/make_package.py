#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: make_package.py FILE.ipa [NAME]   An app package of 100 MB in 2,000 files, 200 of them pictures; with NAME only
the pictures, called NAME000.png and so on; with a number instead of NAME, the first form with that many MB."""

import plistlib
import random
import struct
import sys
import zipfile
import zlib

FILES = 2000
USUAL_MEGABYTES = 100
PICTURES = 200


def chunk(name, data):
    return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))


def apple_icon(edge):
    """An Apple-optimized picture of soft gradients."""
    rows = b"".join(b"\0" + bytes(v for x in range(edge) for v in (x * 255 // edge, y * 255 // edge, (x ^ y) & 255, 255))
                    for y in range(edge))
    packer = zlib.compressobj(6, zlib.DEFLATED, -15)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"CgBI", b"\x50\0\x20\2")
            + chunk(b"IHDR", struct.pack(">IIBBBBB", edge, edge, 8, 6, 0, 0, 0))
            + chunk(b"IDAT", packer.compress(rows) + packer.flush()) + chunk(b"IEND", b""))


def content(generator, size):
    """Half noise, half text, which compresses like the code, pictures and tables of a real app."""
    noise = generator.randbytes(size // 2)
    line = b"%08d the same words again and again, as in tables of texts\n"
    text = b"".join(line % generator.randrange(10**8) for _ in range(size // 2 // len(line % 0) + 1))
    return noise + text[: size - len(noise)]


def main():
    argument = sys.argv[2] if len(sys.argv) > 2 else str(USUAL_MEGABYTES)
    pictures_only = not argument.isdigit()
    name = argument if pictures_only else "picture"
    part = 0 if pictures_only else (int(argument) << 20) // (FILES - 1 - PICTURES)
    generator = random.Random(1)
    app = "Payload/Bench.app/"
    with zipfile.ZipFile(sys.argv[1], "w", zipfile.ZIP_DEFLATED) as archive:
        archive.writestr(app + "Info.plist", plistlib.dumps(
            {"CFBundleDisplayName": "Bench", "CFBundleIdentifier": "com.example.bench", "CFBundleVersion": "1",
             "MinimumOSVersion": "7.0", "UIDeviceFamily": [1, 2]}, fmt=plistlib.FMT_BINARY))
        picture = apple_icon(144)
        for number in range(PICTURES):
            archive.writestr(f"{app}{name}{number:03}.png", picture)
        for number in range(0 if pictures_only else FILES - 1 - PICTURES):
            archive.writestr(f"{app}part{number % 40:02}/file{number:04}.dat", content(generator, part))


if __name__ == "__main__":
    main()
