# SPDX-License-Identifier: MIT
"""Writes zip archives field by field, so that any field can be false."""

import struct
import zlib

STORED, DEFLATED = 0, 8
UTF8_NAME, SIZES_FOLLOW, ENCRYPTED = 0x800, 0x8, 0x1
OVERFLOWED = 0xFFFFFFFF
# 29 January 2015, 12:34:56
DOS_DATE = (2015 - 1980) << 9 | 1 << 5 | 29
DOS_TIME = 12 << 11 | 34 << 5 | 56 // 2
SYMBOLIC_LINK = 0o120777 << 16


class Entry:
    """One entry. Keywords override the true values of the headers."""

    def __init__(self, name, data=b"", method=STORED, **lies):
        self.name = name if isinstance(name, bytes) else name.encode()
        self.data = data
        self.method = method
        self.lies = lies

    def packed(self):
        if "packed" in self.lies:
            return self.lies["packed"]
        if self.method == DEFLATED:
            packer = zlib.compressobj(9, zlib.DEFLATED, -15)
            return packer.compress(self.data) + packer.flush()
        return self.data

    def says(self, field, truth):
        return self.lies.get(field, truth)


def build(entries, *, before=b"", after=b"", comment=b"", count=None, end=True):
    """The archive's bytes, between `before` and `after`; offsets count from the archive's own start."""
    body, directory = b"", b""
    for entry in entries:
        packed = entry.packed()
        flags = entry.says("flags", 0)
        crc = entry.says("crc", zlib.crc32(entry.data))
        size = entry.says("size", len(entry.data))
        packed_size = entry.says("packed_size", len(packed))
        zip64 = entry.says("zip64", False)
        date, time = entry.says("date", DOS_DATE), entry.says("time", DOS_TIME)
        offset = len(body)
        follow = flags & SIZES_FOLLOW
        method = entry.says("method", entry.method)
        if zip64:
            local_sizes, local_extra = (OVERFLOWED, OVERFLOWED), struct.pack("<HHQQ", 1, 16, size, packed_size)
        else:
            local_sizes, local_extra = (packed_size, size), entry.says("local_extra", b"")
        header = struct.pack("<HHHHHIIIHH", 45 if zip64 else 20, flags, method, time, date,
                             0 if follow else crc, *((0, 0) if follow else local_sizes),
                             len(entry.name), len(local_extra))
        body += b"PK\3\4" + header + entry.says("local_name", entry.name) + local_extra + packed
        if follow:
            body += struct.pack("<4sIQQ" if zip64 else "<4sIII", b"PK\7\x08", crc, packed_size, size)
        extra, sizes, place = entry.says("extra", b""), (packed_size, size), entry.says("offset", offset)
        if zip64:
            wide = struct.pack("<QQ", size, packed_size)
            sizes = (OVERFLOWED, OVERFLOWED)
            if zip64 == "offset":
                wide += struct.pack("<Q", offset)
                place = OVERFLOWED
            extra = struct.pack("<HH", 1, len(wide)) + wide + extra
        directory += b"PK\1\2" + struct.pack(
            "<HHHHHHIIIHHHHHII", 0x31E, 45 if zip64 else 20, flags, method, time, date, crc, *sizes,
            len(entry.name), len(extra), 0, 0, 0, entry.says("attributes", 0), place) + entry.name + extra
    total = len(entries) if count is None else count
    ending = struct.pack("<4sHHHHIIH", b"PK\5\6", 0, 0, total, total, len(directory), len(body), len(comment)) + comment
    return before + body + directory + (ending if end else b"") + after
