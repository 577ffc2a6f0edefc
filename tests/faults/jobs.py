# SPDX-License-Identifier: MIT
"""One job for each command that writes: what the user has before it, and the call."""
import struct
import zlib
from dataclasses import dataclass, field


def png(width, height):
    """A small picture that no encoder shrinks to nothing: every pixel another colour."""
    rows = b"".join(
        b"\0" + b"".join(bytes((x * 7 % 256, y * 11 % 256, (x ^ y) % 256, 255)) for x in range(width)) for y in range(height)
    )

    def chunk(kind, content):
        return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))

    header = struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b"")


@dataclass
class Job:
    name: str
    """The arguments; "{in}" is the folder of sources, "{out}" the user's folder that is written to."""
    arguments: list
    """Files in "{in}" before the call."""
    sources: dict = field(default_factory=dict)
    """Files in "{out}" before the call: the user's own."""
    present: dict = field(default_factory=dict)
    """The kinds of fault it is put through; all of them take their time with large pictures."""
    kinds: tuple = ("once", "onwards", "short", "interrupted", "kill")


MINE = {"mine.txt": b"the user's own"}

JOBS = [
    Job(
        "icons",
        ["icons", "--platform", "favicon,web-touch", "--to", "{out}"],
        present=MINE | {"icons/earlier.png": b"an earlier run"},
    ),
    Job("iconset and its icon file", ["icons", "--platform", "mac", "--to", "{out}"], present=MINE, kinds=("once", "kill")),
    Job("icon", ["icon", "{in}/source.png", "--size", "200", "--corners", "ios7", "--to", "{out}"],
        sources={"source.png": png(1024, 1024)}, present=MINE),
    Job(
        "placeholders",
        ["placeholders", "--size", "30x20", "--size", "200x300", "--to", "{out}"],
        present=MINE | {"placeholders/earlier.png": b"an earlier run"},
    ),
]
