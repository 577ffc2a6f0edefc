# SPDX-License-Identifier: MIT
"""Reads the functions that an ELF object file or a static library defines, and those that it refers to."""

import struct
from collections.abc import Iterator
from dataclasses import dataclass, field
from pathlib import Path

SHT_SYMTAB, SHT_RELA = 2, 4
STB_GLOBAL, STT_FUNC, STT_SECTION, SHN_UNDEF = 1, 2, 3, 0


@dataclass
class ObjectFile:
    """Mangled names. `aliases` collects the names of one function (a constructor has two)."""

    name: str
    aliases: list[set[str]] = field(default_factory=list)
    # The names that code or data outside the function itself refers to.
    referred: set[str] = field(default_factory=set)


def members(library: Path) -> Iterator[tuple[str, bytes]]:
    """The object files of an ar archive, or the single object file."""
    data = library.read_bytes()
    if not data.startswith(b"!<arch>\n"):
        yield library.name, data
        return
    place, long_names = 8, b""
    while place + 60 <= len(data):
        name, size = data[place : place + 16].rstrip(), int(data[place + 48 : place + 58])
        body = data[place + 60 : place + 60 + size]
        place += 60 + size + size % 2
        if name == b"//":
            long_names = body
        elif name not in (b"/", b"/SYM64/"):
            if name.startswith(b"/"):
                start = int(name[1:])
                name = long_names[start : long_names.index(b"/\n", start)]
            yield name.decode().rstrip("/"), body


def read_object(name: str, data: bytes) -> ObjectFile:
    if data[:6] != b"\x7fELF\x02\x01":
        raise ValueError(f"{name} is no 64-bit little-endian object file")
    table, size, count = struct.unpack_from("<Q", data, 40)[0], *struct.unpack_from("<HH", data, 58)
    sections = [struct.unpack_from("<IIQQQQIIQQ", data, table + number * size) for number in range(count or 0)]
    if not sections:
        return ObjectFile(name)
    if count == 0:
        raise ValueError(f"{name} has more sections than are read here")

    symbols: list[tuple[str, int, int, int, int, int]] = []
    for kind, _, _, offset, length, link, *_ in (section[1:] for section in sections):
        if kind == SHT_SYMTAB:
            texts = sections[link][4]
            for entry in range(offset, offset + length, 24):
                text, info, _, index, value, extent = struct.unpack_from("<IBBHQQ", data, entry)
                end = data.index(b"\0", texts + text)
                symbols.append((data[texts + text : end].decode(), info >> 4, info & 15, index, value, extent))

    found = ObjectFile(name)
    places: dict[tuple[int, int], set[str]] = {}
    extents: dict[str, tuple[int, int, int]] = {}
    for text, binding, kind, index, value, extent in symbols:
        if kind == STT_FUNC and index != SHN_UNDEF:
            extents[text] = (index, value, value + extent)
            if binding == STB_GLOBAL:
                places.setdefault((index, value), set()).add(text)
    found.aliases = list(places.values())

    # The function at a section symbol and an offset: data refers to local functions in this way; calls to them are not needed
    # here.
    for section in sections:
        if section[1] != SHT_RELA:
            continue
        offset, length, target = section[4], section[5], section[7]
        for entry in range(offset, offset + length, 24):
            at, info, _ = struct.unpack_from("<QQq", data, entry)
            text = symbols[info >> 32][0]
            index, start, end = extents.get(text, (-1, 0, 0))
            if text and not (index == target and start <= at < end):
                found.referred.add(text)
    return found


def object_files(paths: list[Path]) -> Iterator[ObjectFile]:
    for path in paths:
        for name, data in members(path):
            yield read_object(f"{path.name}({name})", data)
