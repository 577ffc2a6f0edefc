#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: make_large_package.py FILE.ipa MEGABYTES   A valid app package of that size, stored, whose 1,000 files are holes
on disk: reading it takes as long as for any other, but it uses almost no disk space."""

import plistlib
import struct
import sys
import zlib

FILES = 1000


def header(name, crc, size, offset=None):
    """The local header, or the directory's if there is an offset."""
    common = struct.pack("<HHHHIIIHH", 0, 0, 0, 0x21, crc, size, size, len(name), 0)
    if offset is None:
        return b"PK\3\4" + struct.pack("<H", 20) + common + name
    return b"PK\1\2" + struct.pack("<HH", 20, 20) + common + struct.pack("<HHHII", 0, 0, 0, 0, offset) + name


def main():
    size = (int(sys.argv[2]) << 20) // FILES
    crc = zlib.crc32(bytes(size))
    app = "Payload/Large.app/"
    info = plistlib.dumps({"CFBundleDisplayName": "Large", "CFBundleIdentifier": "com.example.large",
                           "CFBundleVersion": "1", "MinimumOSVersion": "7.0", "UIDeviceFamily": [1]})
    entries = [(app + "Info.plist", zlib.crc32(info), info)]
    entries += [(f"{app}file{number:03}", crc, None) for number in range(FILES)]
    directory = b""
    with open(sys.argv[1], "wb") as archive:
        for name, checksum, data in entries:
            offset = archive.tell()
            length = size if data is None else len(data)
            archive.write(header(name.encode(), checksum, length))
            if data is None:
                archive.seek(size, 1)
            else:
                archive.write(data)
            directory += header(name.encode(), checksum, length, offset)
        end = archive.tell()
        archive.write(directory + struct.pack("<4sHHHHIIH", b"PK\5\6", 0, 0, len(entries), len(entries),
                                              len(directory), end, 0))


if __name__ == "__main__":
    main()
