#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: make_archives.py FOLDER [KIND...]   Fills the folder with archives, each named for its maker or its fault.

KINDS: makers, hand (both by default), many (70,000 entries), huge (over 4 GB unpacked), sparse (a file of over 4 GB)."""

import os
import shutil
import struct
import subprocess
import sys
import time
import zipfile
import zlib
from pathlib import Path

from zip_builder import DEFLATED, ENCRYPTED, SIZES_FOLLOW, STORED, SYMBOLIC_LINK, UTF8_NAME, Entry, build

TEXT = b"The quick brown fox jumps over the lazy dog.\n" * 300


def plain_tree(folder):
    """What every maker packs: two folders, an empty file, a file that deflates and one that does not."""
    sub = folder / "dir" / "sub"
    sub.mkdir(parents=True)
    (folder / "empty").write_bytes(b"")
    (sub / "text").write_bytes(TEXT)
    (sub / "Schöne Grüße").write_bytes(b"umlauts")
    (folder / "dir" / "noise").write_bytes(bytes((i * 7919 + (i >> 3) * 31) % 251 for i in range(9000)))
    for path in folder.rglob("*"):
        os.utime(path, (1_400_000_000, 1_400_000_000))


def by_makers(out, tree):
    def run(*command):
        subprocess.run(command, cwd=tree, check=True, stdout=subprocess.DEVNULL)

    run("zip", "-qr", out / "info-zip.zip", ".")
    run("zip", "-qr0", out / "info-zip stored.zip", ".")
    run("zip", "-qr", "-P", "secret", out / "info-zip encrypted.zip", ".")
    run("zip", "-qr", "-fz", out / "info-zip zip64 records.zip", ".")
    run("7zz", "a", "-tzip", "-bso0", "-bsp0", out / "7-zip.zip", ".")
    run("7zz", "a", "-tzip", "-psecret", "-mem=ZipCrypto", "-bso0", "-bsp0", out / "7-zip encrypted.zip", ".")
    run("7zz", "a", "-tzip", "-psecret", "-mem=AES256", "-bso0", "-bsp0", out / "7-zip aes.zip", ".")
    run("7zz", "a", "-tzip", "-mm=BZip2", "-bso0", "-bsp0", out / "7-zip bzip2.zip", ".")
    run("bsdtar", "--format=zip", "-cf", out / "bsdtar.zip", "dir", "empty")
    with zipfile.ZipFile(out / "python.zip", "w", zipfile.ZIP_DEFLATED) as archive:
        for path in sorted(tree.rglob("*")):
            archive.write(path, path.relative_to(tree))
    # Made by jar 17.0.15 (Debian's openjdk-17-jdk-headless), which the test suite does not need: cd tree && LC_ALL=C.UTF-8 jar
    # cf ../java.zip .
    shutil.copyfile(Path(__file__).parent / "data" / "java.zip", out / "java.zip")
    with (out / "info-zip streamed.zip").open("wb") as stream:
        subprocess.run(["zip", "-qr", "-", "."], cwd=tree, check=True, stdout=stream)


def by_layout(out, tree):
    """The tree as archivers on other systems store it."""
    paths = sorted(tree.rglob("*"))

    def date_and_time(path):
        when = time.localtime(path.stat().st_mtime)
        return {"date": (when.tm_year - 1980) << 9 | when.tm_mon << 5 | when.tm_mday,
                "time": when.tm_hour << 11 | when.tm_min << 5 | when.tm_sec // 2}

    def name(path):
        return path.relative_to(tree).as_posix() + ("/" if path.is_dir() else "")

    def write(maker, first, how_folders, how_files):
        entries = [*first, *(Entry(name(path), b"", **how_folders(path), **date_and_time(path)) if path.is_dir() else
                             Entry(name(path), path.read_bytes(), DEFLATED, flags=SIZES_FOLLOW, **how_files(path),
                                   **date_and_time(path)) for path in paths)]
        (out / f"{maker}.zip").write_bytes(build(entries))

    def owner(path):
        """Times in both headers, user and group in the local one; names are in UTF-8 without the flag for it."""
        times = struct.pack("<II", int(path.stat().st_atime), int(path.stat().st_mtime))
        return {"extra": struct.pack("<2sH", b"UX", 8) + times,
                "local_extra": struct.pack("<2sH", b"UX", 12) + times + struct.pack("<HH", 501, 20)}

    write("ditto layout", [], owner, owner)
    mark = struct.pack("<HH", 0xCAFE, 0)
    write("java layout", [Entry("META-INF/", extra=mark, local_extra=mark),
                          Entry("META-INF/MANIFEST.MF", b"Manifest-Version: 1.0\r\n\r\n", DEFLATED, flags=SIZES_FOLLOW)],
          lambda _: {}, lambda _: {})


def text(name, **lies):
    return Entry(name, b"text of the entry", **lies)


def by_hand(out):
    def write(name, entries, **options):
        (out / f"{name}.zip").write_bytes(build(entries, **options))

    good = text("good.txt")
    write("no entries", [])
    write("backslash names", [text(r"dir\sub\file.png")])
    write("backslash folder", [Entry("folder\\")])
    write("parent steps", [text("../outside.txt"), text("a/../../outside.txt"), good])
    write("backslash parent steps", [text(r"..\outside.txt"), good])
    write("absolute", [text("/tmp/lumora-outside.txt"), text(r"\tmp\lumora-outside.txt"), good])
    write("drive letter", [text("C:/outside.txt"), text(r"c:outside.txt"), good])
    write("through a link entry", [Entry("link", b"..", attributes=SYMBOLIC_LINK), text("link/outside.txt"), good])
    write("through a link in the way", [text("link/outside.txt"), text("linked.txt"), good])
    write("empty name", [Entry(b""), good])
    write("folder and file of one name", [text("same/inner.txt"), text("same"), good])
    write("file as folder", [text("same"), text("same/inner.txt"), good])
    write("zero byte in a name", [text(b"cut.txt\0.png")])
    write("name too long", [text("n" * 300), good])
    write("path too long", [text("/".join(["n" * 200] * 12)), good])
    write("too deep", [text("d/" * 101 + "f"), good])
    write("code page 437", [text(b"\x81ber \x9c.txt")])
    write("utf-8 unmarked", [text("über £.txt")])
    write("utf-8 marked", [text("über £.txt", flags=UTF8_NAME)])
    write("junk in front", [good], before=b"#!/bin/sh\nexit\n" * 9)
    write("junk behind", [good], after=b"\0" * 700)
    write("with a comment", [good], comment=b"packed on a Tuesday")
    write("directory's end repeated in the comment", [good], comment=b"PK\5\6" + bytes(18))
    write("no entries behind junk", [], before=b"junk")
    write("data descriptors", [Entry("a", TEXT, DEFLATED, flags=SIZES_FOLLOW), Entry("b", b"b", flags=SIZES_FOLLOW)])
    write("january", [text("january.txt", date=(2001 - 1980) << 9 | 1 << 5 | 5)])
    write("december", [text("december.txt", date=(2001 - 1980) << 9 | 12 << 5 | 31)])
    write("no date", [text("undated.txt", date=0, time=0)])
    write("damaged data", [Entry("bad", TEXT, DEFLATED, packed=b"\xff" * 60), good])
    write("cut data", [Entry("bad", TEXT, DEFLATED, packed=build_cut()), good])
    write("data ends early", [Entry("bad", TEXT, DEFLATED, packed=Entry("", b"four", DEFLATED).packed()), good])
    write("wrong checksum", [text("bad", crc=12345), good])
    write("size too small", [text("short", size=4), good])
    write("size too large", [Entry("long", b"1234", size=4000), good])
    write("unknown method", [text("odd", method=99), good])
    write("local header elsewhere", [text("lost", offset=7), good])
    write("count too low", [good, text("second.txt")], count=1)
    write("directory cut off", [good], end=False)
    write("encrypted mark only", [Entry("sealed", TEXT, DEFLATED, flags=ENCRYPTED), good])
    write("zip64 sizes", [Entry("wide", TEXT, DEFLATED, zip64=True), good])
    write("zip64 offset", [good, Entry("wide", TEXT, DEFLATED, zip64="offset")])
    write("zip64 stored", [Entry("wide", TEXT, STORED, zip64=True), good])
    write("zip64 field too short", [Entry("wide", TEXT, DEFLATED, size=0xFFFFFFFF, packed_size=0xFFFFFFFF,
                                          extra=b"\1\0\4\0abcd"), good])
    write("zip64 behind another field", [Entry("wide", TEXT, DEFLATED, zip64=True, extra=b"UT\5\0\3abcd"), good])
    write("a stored file past the end", [good, Entry("long", b"short", size=2000, packed_size=2000)])
    write("three files", [text("1"), text("folder/2"), text("folder/3")])
    (out / "not an archive.zip").write_bytes(TEXT)
    (out / "nothing.zip").write_bytes(b"")


def build_cut():
    whole = Entry("", TEXT, DEFLATED).packed()
    return whole[: len(whole) // 2]


def many(out):
    with zipfile.ZipFile(out / "70000 entries.zip", "w") as archive:
        for number in range(70_000):
            archive.writestr(zipfile.ZipInfo(f"{number % 100}/{number}"), b"")


def crc_of_zeros(size):
    crc = 0
    zeros = bytes(1 << 24)
    while size:
        crc = zlib.crc32(zeros[: min(size, len(zeros))], crc)
        size -= min(size, len(zeros))
    return crc


def huge(out):
    """Over 4 GB unpacked in a few megabytes, with a second entry after it."""
    compressor = zlib.compressobj(9, zlib.DEFLATED, -15)
    # After a full flush the same bytes are packed in the same way, so one block is packed for all.
    block = compressor.compress(bytes(1 << 20)) + compressor.flush(zlib.Z_FULL_FLUSH)
    packed_size = 4097 * len(block)
    end = compressor.compress(b"end") + compressor.flush()
    packed_size += len(end)
    size = (4097 << 20) + 3
    crc = zlib.crc32(b"end", crc_of_zeros(4097 << 20))
    wide = struct.pack("<HHQQ", 1, 16, size, packed_size)
    local = b"PK\3\4" + struct.pack("<HHHHHIIIHH", 45, 0, DEFLATED, 0, 0x21, crc, 0xFFFFFFFF, 0xFFFFFFFF, 5, 20) + b"zeros" + wide
    data = b"behind the large one"
    second = b"PK\3\4" + struct.pack("<HHHHHIIIHH", 20, 0, 0, 0, 0x21, zlib.crc32(data), len(data), len(data), 6, 0) + b"behind"
    second_at = len(local) + packed_size
    directory = (b"PK\1\2" + struct.pack("<HHHHHHIIIHHHHHII", 45, 45, 0, DEFLATED, 0, 0x21, crc, 0xFFFFFFFF, 0xFFFFFFFF,
                                         5, 20, 0, 0, 0, 0, 0) + b"zeros" + wide
                 + b"PK\1\2" + struct.pack("<HHHHHHIIIHHHHHII", 20, 20, 0, 0, 0, 0x21, zlib.crc32(data), len(data), len(data),
                                           6, 0, 0, 0, 0, 0, second_at) + b"behind")
    at = second_at + len(second) + len(data)
    with (out / "over 4 GB.zip").open("wb") as archive:
        archive.write(local)
        for _ in range(4097):
            archive.write(block)
        archive.write(end + second + data + directory + struct.pack("<4sHHHHIIH", b"PK\5\6", 0, 0, 2, 2, len(directory), at, 0))


def sparse(out):
    """An archive file of over 4 GB that is a hole except for its headers: a stored entry of zeros, then one beyond 4 GB."""
    size = (4 << 30) + 4096
    crc = crc_of_zeros(size)
    wide = struct.pack("<HHQQ", 1, 16, size, size)
    local = b"PK\3\4" + struct.pack("<HHHHHIIIHH", 45, 0, 0, 0, 0x21, crc, 0xFFFFFFFF, 0xFFFFFFFF, 5, 20) + b"zeros"
    second_at = len(local) + 20 + size
    data = b"beyond 4 GB"
    second = b"PK\3\4" + struct.pack("<HHHHHIIIHH", 20, 0, 0, 0, 0x21, zlib.crc32(data), 11, 11, 6, 0) + b"beyond"
    directory = (b"PK\1\2" + struct.pack("<HHHHHHIIIHHHHHII", 45, 45, 0, 0, 0, 0x21, crc, 0xFFFFFFFF, 0xFFFFFFFF,
                                         5, 20, 0, 0, 0, 0, 0) + b"zeros" + wide
                 + b"PK\1\2" + struct.pack("<HHHHHHIIIHHHHHII", 45, 45, 0, 0, 0, 0x21, zlib.crc32(data), 11, 11,
                                           6, 12, 0, 0, 0, 0, 0xFFFFFFFF) + b"beyond"
                 + struct.pack("<HHQ", 1, 8, second_at))
    at = second_at + len(second) + len(data)
    end64 = struct.pack("<4sQHHIIQQQQ", b"PK\6\6", 44, 45, 45, 0, 0, 2, 2, len(directory), at)
    locator = struct.pack("<4sIQI", b"PK\6\7", 0, at + len(directory), 1)
    end = struct.pack("<4sHHHHIIH", b"PK\5\6", 0, 0, 2, 2, len(directory), 0xFFFFFFFF, 0)
    with (out / "sparse over 4 GB.zip").open("wb") as archive:
        archive.write(local + wide)
        archive.seek(second_at)
        archive.write(second + data + directory + end64 + locator + end)


def main():
    out = Path(sys.argv[1]).resolve()
    kinds = sys.argv[2:] or ["makers", "hand"]
    if "makers" in kinds:
        tree = out / "tree"
        plain_tree(tree)
        by_makers(out, tree)
        by_layout(out, tree)
    if "hand" in kinds:
        by_hand(out)
    if "many" in kinds:
        many(out)
    if "huge" in kinds:
        huge(out)
    if "sparse" in kinds:
        sparse(out)


if __name__ == "__main__":
    main()
