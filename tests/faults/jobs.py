# SPDX-License-Identifier: MIT
"""One job for each command that writes, and for each job of the window: the user's files before it, and the call."""
import io
import os
import plistlib
import struct
import zipfile
import zlib
from dataclasses import dataclass, field


def png(width, height):
    """A small picture that no encoder shrinks much: every pixel has another color."""
    rows = b"".join(
        b"\0" + b"".join(bytes((x * 7 % 256, y * 11 % 256, (x ^ y) % 256, 255)) for x in range(width)) for y in range(height)
    )

    def chunk(kind, content):
        return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))

    header = struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b"")


def package():
    """An app package with a picture and a localization, and without most of what the check asks for."""
    content = io.BytesIO()
    facts = {"CFBundleName": "An app", "CFBundleIdentifier": "example.lumora.app", "CFBundleShortVersionString": "1.0",
             "MinimumOSVersion": "6.0", "DTPlatformName": "iphoneos", "UIDeviceFamily": [1], "CFBundleIconFiles": ["Icon.png"]}
    with zipfile.ZipFile(content, "w", zipfile.ZIP_DEFLATED) as archive:
        archive.writestr("Payload/An app.app/Info.plist", plistlib.dumps(facts))
        archive.writestr("Payload/An app.app/Icon.png", png(114, 114))
        archive.writestr("Payload/An app.app/en.lproj/Localizable.strings", "")
    return content.getvalue()


@dataclass
class Job:
    name: str
    """The arguments; "{in}" is the folder of sources, "{out}" the user's folder that is written to."""
    arguments: list
    """Files in "{in}" before the call."""
    sources: dict = field(default_factory=dict)
    """Files in "{out}" before the call: the user's own."""
    present: dict = field(default_factory=dict)
    """The kinds of fault that it is tested with; with large pictures all of them would take long."""
    kinds: tuple = ("once", "onwards", "short", "interrupted", "kill")
    """Its exit status when nothing fails: a check that finds something missing ends with 1."""
    status: int = 0
    """Whether it writes into the user's own folder and replaces files; others make a new folder each time."""
    replaces: bool = False
    """Whether it reads what is in the user's folder, so that it does nothing in an empty one."""
    reads_present: bool = False
    program: str = os.environ["LUMORA_PROGRAM"]


MINE = {"mine.txt": b"the user's own"}

LOGO = b'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 9 9"><path d="M0 0h9v9h-9z"/></svg>'

# A project with two icons, one of which is there.
CORDOVA = (b'<widget xmlns="http://www.w3.org/ns/widgets"><icon src="res/icon.png" width="48"/>'
           b'<icon src="res/new/icon.png" width="36"/></widget>')

COMMANDS = [
    Job(
        "icons",
        ["icons", "--example", "--platform", "favicon,web-touch", "--to", "{out}"],
        present=MINE | {"icons/earlier.png": b"an earlier run"},
    ),
    Job("icons of today", ["icons", "{in}/logo.svg", "--platform", "watchos", "--to", "{out}"], sources={"logo.svg": LOGO},
        present=MINE, kinds=("once", "kill")),
    Job("icons into a project", ["icons", "{in}/logo.svg", "--into", "{out}"], sources={"logo.svg": LOGO},
        present=MINE | {"config.xml": CORDOVA, "res/icon.png": png(3, 3)}, replaces=True, reads_present=True),
    Job("iconset and its icon file", ["icons", "--example", "--platform", "mac", "--to", "{out}"], present=MINE, kinds=("once", "kill")),
    Job("icon", ["icon", "{in}/source.png", "--size", "200", "--corners", "ios7", "--to", "{out}"],
        sources={"source.png": png(1024, 1024)}, present=MINE),
    Job(
        "placeholders",
        ["placeholders", "--size", "30x20", "--size", "200x300", "--to", "{out}"],
        present=MINE | {"placeholders/earlier.png": b"an earlier run"},
    ),
    Job(
        "downscale",
        ["downscale", "{in}", "--to", "{out}", "--overwrite"],
        sources={"button@2x.png": png(40, 30), "new-hd.png": png(31, 17)},
        present=MINE | {"button.png": png(3, 3)},
        replaces=True,
    ),
    # A package is read in place; only its icon is written. A locked process could not write the log of calls.
    Job("validate", ["validate", "--no-sandbox", "{in}/An app ü.ipa", "--icon", "{out}/icon.png"], sources={"An app ü.ipa": package()},
        present=MINE, status=1, replaces=True),
]

# The window's jobs. There, failures after the choice of the folder are only logged. So the process is killed, and some calls
# fail, but its exit status is not checked.
WINDOW = {"program": os.environ["LUMORA_PANE_JOBS"], "kinds": ("once in the window", "kill")}
WINDOW_JOBS = [
    Job("icons in the window", ["icons", "{out}"], present=MINE | {"icons/earlier.png": b"an earlier run"}, **WINDOW),
    Job("placeholders in the window", ["placeholders", "{out}"], present=MINE, **WINDOW),
    Job("downscale in the window", ["downscale", "{out}", "{in}/button@2x.png", "{in}/new-hd.png"],
        sources={"button@2x.png": png(40, 30), "new-hd.png": png(31, 17)},
        present=MINE | {"button.png": png(3, 3)}, replaces=True, **WINDOW),
    Job("validate in the window", ["validate", "{in}/An app ü.ipa"], sources={"An app ü.ipa": package()}, **WINDOW),
]
