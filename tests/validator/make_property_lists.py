#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: make_property_lists.py FOLDER   Property lists in every form, each named for its form or fault."""

import datetime
import plistlib
import struct
import sys
from pathlib import Path

VALUE = {"text": "größer", "number": 42, "negative": -7, "real": 1.5, "yes": True, "data": b"\0\1",
         "date": datetime.datetime(2014, 5, 13, 16, 53, 20), "array": ["a", {"inner": "b"}], "empty": {}}


def binary(objects, references=1, root=0, **lies):
    """A binary list of already encoded objects; references are two bytes wide."""
    body, offsets = b"bplist00", []
    for item in objects:
        offsets.append(len(body))
        body += item
    table = b"".join(struct.pack(">I", offset) for offset in offsets)
    return body + table + struct.pack(">6xBBQQQ", 4, 2, lies.get("count", len(objects)), root,
                                      lies.get("table", len(body)))


def array(*references):
    return bytes([0xA0 | len(references)]) + b"".join(struct.pack(">H", reference) for reference in references)


def dictionary(key, value):
    return b"\xd1" + struct.pack(">HH", key, value)


KEY, NULL = b"\x51k", b"\0"


def main():
    out = Path(sys.argv[1])
    xml = plistlib.dumps(VALUE)
    text = xml.decode()
    lists = {
        "xml": xml,
        "binary": plistlib.dumps(VALUE, fmt=plistlib.FMT_BINARY),
        "xml with byte order mark": b"\xef\xbb\xbf" + xml,
        "xml in utf-16": text.replace("UTF-8", "UTF-16").encode("utf-16"),
        "xml in big-endian utf-16": b"\xfe\xff" + text.replace("UTF-8", "UTF-16").encode("utf-16-be"),
        "xml without its end": xml[: len(xml) // 2],
        "an array": plistlib.dumps(["no dictionary"]),
        "a text": plistlib.dumps("no dictionary", fmt=plistlib.FMT_BINARY),
        "nothing": b"",
        "noise": bytes(range(256)) * 8,
        "binary mark only": b"bplist00",
        "binary cut off": plistlib.dumps(VALUE, fmt=plistlib.FMT_BINARY)[:-9],
        "refers to itself": binary([dictionary(1, 0), KEY]),
        "refers in a circle": binary([dictionary(1, 2), KEY, array(3), array(2)]),
        "refers to what is not there": binary([dictionary(1, 9), KEY]),
        "more objects than bytes": binary([dictionary(1, 2), KEY, NULL], count=2**40),
        "table beyond the file": binary([dictionary(1, 2), KEY, NULL], table=2**40),
        "text beyond the file": binary([dictionary(1, 2), KEY, b"\x5f\x12\x7f\xff\xff\xffshort"]),
        "unfolds without end": binary([dictionary(1, 2), KEY] + [array(n + 1, n + 1) for n in range(2, 60)] + [NULL]),
        "one long text many times": binary([dictionary(1, 2), KEY] + [array(n + 1, n + 1, n + 1) for n in range(2, 12)]
                                           + [b"\x5f\x11\x27\x10" + b"x" * 10000]),
        "deep": binary([dictionary(1, 2), KEY] + [array(n + 1) for n in range(2, 60_000)] + [NULL]),
        "deep xml": b"<plist><dict><key>k</key>" + b"<array>" * 100_000 + b"</array>" * 100_000 + b"</dict></plist>",
        "endless xml": b"<plist><dict>" + b"<key>k</key><true/>" * 150_000 + b"</dict></plist>",
        "too long": b"<plist><dict><key>k</key><string>" + b"x" * (4 << 20) + b"</string></dict></plist>",
        "zero in a binary key": binary([dictionary(1, 2), b"\x53a\0b", NULL]),
        "zero in a binary utf-16 key": binary([dictionary(1, 2), b"\x62\0a\0\0", NULL]),
        "zero in an xml key": b"<plist><dict><key>a\0b</key><true/></dict></plist>",
        "zero referred to in an xml key": b"<plist><dict><key>a&#0;b</key><true/></dict></plist>",
        "zero referred to in hexadecimal": b"<plist><dict><key>a&#x00;b</key><true/></dict></plist>",
        "number as a binary key": binary([dictionary(1, 2), b"\x10\1", NULL]),
        "entities": b'<!DOCTYPE plist [<!ENTITY e "eeee">]><plist><dict><key>text</key><string>&e;</string></dict></plist>',
    }
    for name, data in lists.items():
        (out / f"{name}.plist").write_bytes(data)


if __name__ == "__main__":
    main()
