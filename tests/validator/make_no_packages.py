#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: make_no_packages.py FOLDER   Files with a package's name that are not packages, each named for its kind."""

import gzip
import io
import os
import sys
import tarfile
import zipfile
from pathlib import Path

from pictures import plain_of_size


def zipped(files):
    buffer = io.BytesIO()
    with zipfile.ZipFile(buffer, "w", zipfile.ZIP_DEFLATED) as archive:
        for path, data in files.items():
            archive.writestr(path, data)
    return buffer.getvalue()


def tarred():
    buffer = io.BytesIO()
    with tarfile.open(fileobj=buffer, mode="w") as archive:
        archive.addfile(tarfile.TarInfo("Payload/Demo.app/Info.plist"))
    return buffer.getvalue()


def main():
    out = Path(sys.argv[1])
    whole = zipped({"Payload/Demo.app/Info.plist": b"x" * 500})
    contents = {
        "an empty file": b"",
        "a text": "Grüße, no package at all\n".encode() * 400,
        "a text cut inside a character": b"a" * 4095 + "ü".encode(),
        "a picture": plain_of_size(16, 16),
        "a photo": b"\xff\xd8\xff\xe0" + bytes(40),
        "a document": b"%PDF-1.7\n" + bytes(40),
        "a gzip": gzip.compress(b"text"),
        "a tar": tarred(),
        "other data": bytes(range(256)) * 20,
        "one zero byte": b"\0",
        "an empty archive": zipped({}),
        "an archive cut off": whole[:-40],
        "an archive's first bytes": whole[:4],
        "an archive without a payload": zipped({f"file {n}.txt": b"" for n in range(7)}),
        "a payload without an app": zipped({"Payload/readme.txt": b"", "Payload/Demo.APP/Info.plist": b""}),
        "an empty payload": zipped({"Payload/": b""}),
        "an app that is a file": zipped({"Payload/Demo.app": b"no folder"}),
        "a payload that is a file": zipped({"Payload": b"no folder"}),
    }
    for name, content in contents.items():
        (out / f"{name}.ipa").write_bytes(content)
    (out / "a folder.ipa").mkdir()
    os.mkfifo(out / "a pipe.ipa")


if __name__ == "__main__":
    main()
