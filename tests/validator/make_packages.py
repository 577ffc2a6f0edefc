#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: make_packages.py FOLDER   App packages, each named for its special content or fault."""

import plistlib
import struct
import subprocess
import sys
import tempfile
import zipfile
from pathlib import Path

from make_profiles import Signer, profile
from pictures import apple_of_size, header_only, plain_of_size

PHONE_ICONS = (57, 114, 60, 120, 29, 58, 40, 80, 512, 1024)
BLUE_GREEN_RED = b"\0\0\xff\xff", b"\0\xff\0\xff"
# The smallest JPEG header with a size of 512 x 512, without any data.
JPEG_HEADER = bytes.fromhex("ffd8ffe000104a46494600010100000100010000ffc0000b080200020001011100ffd9")


def info(**changes):
    content = {"CFBundleDisplayName": "Demo", "CFBundleVersion": "1.2.3", "CFBundleIdentifier": "com.example.app",
               "MinimumOSVersion": "7.0", "UIDeviceFamily": [1],
               "CFBundleURLTypes": [{"CFBundleURLSchemes": ["fb123"]}, {"CFBundleURLSchemes": ["other"]}],
               "FacebookAppID": "123"}
    content.update(changes)
    return {key: value for key, value in content.items() if value is not None}


def bundle(files=None, *, plist=None, form=plistlib.FMT_BINARY, name="Demo.app"):
    """A bundle's files by their path in the archive."""
    made = {f"Payload/{name}/{path}": data for path, data in (files or {}).items()}
    if plist is not None:
        made[f"Payload/{name}/Info.plist"] = plistlib.dumps(plist, fmt=form)
    return made


def claiming(entries):
    """An empty archive whose directory's end claims this number of entries."""
    # At the very start of the file, readers would not search for the end.
    start = b"junk"
    return (start + struct.pack("<4sQHHIIQQQQ", b"PK\6\6", 44, 45, 45, 0, 0, entries, entries, 0, len(start))
            + struct.pack("<4sIQI", b"PK\6\7", 0, len(start), 1)
            + struct.pack("<4sHHHHIIH", b"PK\5\6", 0, 0, 0xFFFF, 0xFFFF, 0, 0xFFFFFFFF, 0))


def main():
    out = Path(sys.argv[1])
    with tempfile.TemporaryDirectory() as folder:
        signer = Signer(folder)
        store = signer.sign(profile("com.example.app"))
        devices = signer.sign(profile("com.example.app", ["0123456789abcdef"]), "-stream")

    icons = {f"AppIcon{edge}.png": apple_of_size(edge, edge) for edge in PHONE_ICONS}
    whole = {**icons, "Default-568h@2x.png": plain_of_size(640, 1136), "en.lproj/x": b"", "fr.lproj/x": b"",
             "embedded.mobileprovision": devices, "Demo": bytes(5000)}

    def write(name, files, order=None):
        with zipfile.ZipFile(out / f"{name}.ipa", "w", zipfile.ZIP_DEFLATED) as archive:
            for path in order or files:
                archive.writestr(path, files[path])

    write("valid", bundle(whole, plist=info()))
    write("valid, packed backwards", bundle(whole, plist=info()), reversed(list(bundle(whole, plist=info()))))
    write("valid, XML list", bundle(whole, plist=info(), form=plistlib.FMT_XML))
    write("valid, with a Mac's own files", {
        "__MACOSX/": b"", "__MACOSX/Payload/._Demo.app": b"\0\5\x16\7", ".DS_Store": b"\0\0\0\1Bud1",
        "Payload/._Demo.app": b"\0\5\x16\7", **bundle({**whole, "._AppIcon57.png": b"\0\5\x16\7"}, plist=info())})
    write("release", bundle({**whole, "embedded.mobileprovision": store}, plist=info()))
    write("no profile", bundle({k: v for k, v in whole.items() if "embedded" not in k}, plist=info()))
    write("plain profile", bundle({**whole, "embedded.mobileprovision": profile("com.example.app")}, plist=info()))
    write("other identifier", bundle(whole, plist=info(CFBundleIdentifier="com.other")))
    write("shorter identifier", bundle(whole, plist=info(CFBundleIdentifier="com.example")))
    write("no localizations", bundle({k: v for k, v in whole.items() if "lproj" not in k}, plist=info()))
    write("no links", bundle(whole, plist=info(CFBundleURLTypes=None, FacebookAppID=None)))
    write("one icon", bundle({**whole, **{f"AppIcon{edge}.png": b"" for edge in PHONE_ICONS[1:]}}, plist=info()))
    write("logo", bundle({"logo.png": plain_of_size(120, 120)}, plist=info()))
    write("icon of 120", bundle({"AppIcon60x60@2x.png": plain_of_size(120, 120)}, plist=info()))
    write("artwork without extension", bundle({"iTunesArtwork": plain_of_size(512, 512), "iTunesArtwork@2x": JPEG_HEADER,
                                               "Icon.jpg": JPEG_HEADER}, plist=info()))
    write("pictures that are none", bundle({"icon.png": b"", "icon2.png": b"\x89PNG\r\n\x1a\n",
                                            "icon3.png": b"text", "._icon.png": b"\0\5\x16\7"}, plist=info()))
    write("gigantic icons", bundle({f"icon{n}.png": header_only(2_000_000_000, 120) for n in range(200)}, plist=info()))
    write("icons by order", bundle({"a-icon.png": header_only(120, 120), "b-icon.png": plain_of_size(64, 64),
                                    "c-icon.png": apple_of_size(114, 114, BLUE_GREEN_RED[0]),
                                    "d-icon.png": apple_of_size(152, 152, BLUE_GREEN_RED[1])}, plist=info()))
    write("iOS 6", bundle(whole, plist=info(MinimumOSVersion="6.1")))
    write("universal", bundle({**{f"icon{e}.png": plain_of_size(e, e) for e in (*PHONE_ICONS, 76, 152)}},
                              plist=info(UIDeviceFamily=[1, 2])))
    write("no launch image", bundle(icons, plist=info()))
    write("landscape launch image", bundle({"default.png": plain_of_size(1136, 640)}, plist=info()))
    write("two apps", {**bundle(plist=info(CFBundleDisplayName="First"), name="A.app"),
                       **bundle(plist=info(CFBundleDisplayName="Last"), name="B.app")},
          ["Payload/B.app/Info.plist", "Payload/A.app/Info.plist"])
    write("no list", bundle(whole))
    write("broken list", {**bundle(whole), "Payload/Demo.app/Info.plist": b"<plist><dict><key>"})
    write("list is a folder", {**bundle(whole), "Payload/Demo.app/Info.plist/x": b""})
    write("wrong types", bundle(whole, plist=info(CFBundleDisplayName=["a"], CFBundleVersion=5, CFBundleIdentifier={},
                                                  MinimumOSVersion=True, UIDeviceFamily="1", CFBundleURLTypes="x",
                                                  FacebookAppID=42)))
    write("long names", bundle(plist=info(CFBundleDisplayName="Name" * 25, CFBundleIdentifier="com.example." + "long" * 30,
                                          CFBundleURLTypes=[{"CFBundleURLSchemes": ["com.example." + "scheme" * 15] * 30}])))
    write("app is a file", {"Payload/Demo.app": b"no folder"})
    write("payload is a file", {"Payload": b"no folder"})
    write("no app", {"Payload/readme.txt": b"", "Demo.app/Info.plist": b""})
    write("app in capitals", bundle(plist=info(), name="Demo.APP"))
    write("leftovers", {**bundle(plist=info()), "Symbols/a.symbols": b"stays"})
    write("steering names", bundle({"\x1b[31m.lproj/x": b""}, plist=info(CFBundleDisplayName="\x1b]0;x\x07 \u202e")))
    damaged = bytearray((out / "valid.ipa").read_bytes())
    at = damaged.index(b"AppIcon1024.png") + 40
    damaged[at : at + 8] = b"\xff" * 8
    (out / "damaged icon.ipa").write_bytes(damaged)
    with tempfile.TemporaryDirectory() as folder:
        app = Path(folder) / "Payload" / "Demo.app"
        app.mkdir(parents=True)
        (app / "Info.plist").write_bytes(plistlib.dumps(info()))
        subprocess.run(["zip", "-qr", "-P", "secret", (out / "encrypted.ipa").resolve(), "Payload"], cwd=folder, check=True)
    (out / "no archive.ipa").write_bytes(b"text")
    (out / "too many entries.ipa").write_bytes(claiming(600_000))
    (out / "cut off.ipa").write_bytes((out / "valid.ipa").read_bytes()[:-200])


if __name__ == "__main__":
    main()
