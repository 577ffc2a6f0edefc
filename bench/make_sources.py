#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes the sources of the icon comparison, 1024 x 1024, opaque, the same on every machine:

photo.png    light and shade of every scale with the noise of a camera's sensor
drawing.png  a modern icon: flat shapes with smooth edges and soft shadows over a gradient
plain.png    the same shapes in one color each on a background of one color, without soft parts

usage: make_sources.py FOLDER"""
import math
import random
import struct
import sys
import zlib
from pathlib import Path

EDGE = 1024


def write_png(path, rows):
    def chunk(kind, content):
        body = kind + content
        return struct.pack(">I", len(content)) + body + struct.pack(">I", zlib.crc32(body))

    pixels = b"".join(b"\0" + row for row in rows)
    path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", EDGE, EDGE, 8, 2, 0, 0, 0))
                     + chunk(b"IDAT", zlib.compress(pixels, 6)) + chunk(b"IEND", b""))


def photo():
    """Waves of every length with amplitudes as in nature (one over the frequency). The noise is that of a daylight
    picture: 2.5 levels in brightness, 1 in each color."""
    noise = random.Random(1)
    waves = []
    for octave in range(1, 8):
        frequency = 2 ** octave * math.pi / EDGE
        for _ in range(3):
            angle = noise.uniform(0, 2 * math.pi)
            waves.append((frequency * math.cos(angle), frequency * math.sin(angle), noise.uniform(0, 6.28),
                          90 / 2 ** octave))
    tables = [([math.sin(fx * x + phase) * size for x in range(EDGE)],
               [math.cos(fx * x + phase) * size for x in range(EDGE)], fy) for fx, fy, phase, size in waves]
    for y in range(EDGE):
        parts = [(sines, cosines, math.cos(fy * y), math.sin(fy * y)) for sines, cosines, fy in tables]
        light = [128.0] * EDGE
        for sines, cosines, c, s in parts:
            light = [value + a * c + b * s for value, a, b in zip(light, sines, cosines)]
        row = bytearray()
        for x, value in enumerate(light):
            value += noise.gauss(0, 2.5)
            for shift in (18 * x / EDGE, 6.0, -20 * y / EDGE):
                row.append(min(255, max(0, round(value + shift + noise.gauss(0, 1)))))
        yield bytes(row)


PALETTE = [(52, 152, 219), (41, 128, 185), (231, 76, 60), (241, 196, 15), (46, 204, 113), (155, 89, 182),
           (52, 73, 94), (230, 126, 34)]


def mixed(over, under, share):
    return tuple(round(b + (a - b) * share) for a, b in zip(over, under))


def shapes(ground, soft):
    place = random.Random(2)
    discs = [(place.uniform(100, 924), place.uniform(100, 924), place.uniform(30, 180), PALETTE[i % 8])
             for i in range(24)]
    for y in range(EDGE):
        row = [ground(x, y) for x in range(EDGE)]
        for cx, cy, radius, color in discs:
            reach = radius + (24 if soft else 1)
            dy = y + 0.5 - cy
            if abs(dy) > reach:
                continue
            half = math.sqrt(reach ** 2 - dy * dy)
            for x in range(max(0, int(cx - half)), min(EDGE, int(cx + half) + 1)):
                distance = math.hypot(x + 0.5 - cx, dy)
                cover = min(1.0, max(0.0, radius + 0.5 - distance))
                if soft and cover < 1:
                    row[x] = mixed((0, 0, 0), row[x], 0.35 * min(1.0, (reach - distance) / 24) ** 2)
                if cover > 0:
                    row[x] = mixed(color, row[x], cover)
        yield b"".join(bytes(pixel) for pixel in row)


def drawing():
    top, bottom = (26, 188, 156), (44, 62, 80)
    return shapes(lambda x, y: mixed(bottom, top, (0.3 * x + y) / (1.3 * EDGE)), soft=True)


def plain():
    return shapes(lambda x, y: (236, 240, 241), soft=False)


if __name__ == "__main__":
    folder = Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for source in (photo, drawing, plain):
        write_png(folder / f"{source.__name__}.png", source())
