#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: make_signatures.py FOLDER [parts]   Signed Mach-O files, each named for its form or fault, and seals.

With "parts" only the parts of a signature: the signature, its message, its entitlements.
"""

import hashlib
import plistlib
import re
import struct
import sys
from pathlib import Path

from macho_builder import MachO, fat, patched_bytes
from signing import SHA1, SHA256, Identity, Signer, blob, der_entitlements, seal, super_blob

ENTITLEMENTS = {"application-identifier": "TEAM123456.com.example.lamp", "com.apple.developer.team-identifier": "TEAM123456",
                "get-task-allow": False, "keychain-access-groups": ["TEAM123456.com.example.lamp", "TEAM123456.shared"],
                "com.apple.security.application-groups": [], "limits": {"small": -1, "large": 2**40}}


def app(sign):
    made = MachO()
    made.sign = sign
    return made.bytes()


def signature_at(data):
    return data.index(bytes.fromhex("fade0cc0"))


def broken(data, offset, value=b"\xff"):
    return patched_bytes(data, offset, value)


def within(blobs, slot, change):
    return [(place, change(content) if place == slot else content) for place, content in blobs]


def variant(identity, **changes):
    signer = Signer(identity, entitlements=ENTITLEMENTS)
    signer.info = b"<plist/>"
    signer.seal = b"seal"
    for name, value in changes.items():
        setattr(signer, name, value)
    return app(signer)


def seals(out):
    files = {"Lamp": b"binary", "Info.plist": b"info", "PkgInfo": b"APPL????", "lamp.png": b"picture", "a/b.txt": b"text",
             "de.lproj/x.strings": b"worte", ".DS_Store": b"junk"}
    (out / "seal").write_bytes(seal(files, "Lamp", links={"link": "a/b.txt"}))
    (out / "seal in binary form").write_bytes(plistlib.dumps(plistlib.loads(seal(files, "Lamp", links={"link": "a/b.txt"})),
                                                             fmt=plistlib.FMT_BINARY))
    (out / "seal of old").write_bytes(seal(files, "Lamp", newer=False))
    nested = plistlib.loads(seal({"lamp.png": b"picture"}, "Lamp"))
    nested["files2"]["Frameworks/Bulb.framework"] = {"cdhash": b"b" * 20, "requirement": "anchor apple generic"}
    (out / "seal of nested code").write_bytes(plistlib.dumps(nested))
    rows = {f"file-{number}": {"hash2": bytes(32)} for number in range(1000)}
    body = plistlib.dumps({"files": {}, "files2": rows, "rules2": {"^.*": True}})
    end_of_files = b"</dict>\n\t<key>rules2"

    def with_rows(more):
        return body.replace(end_of_files, more + end_of_files)

    (out / "seal of a million rows").write_bytes(with_rows(b"<key>more</key><dict/>" * 1_000_000))
    (out / "seal of a million rows that may be missing").write_bytes(
        with_rows(b"<key>m</key><dict><key>optional</key><true/></dict>" * 1_000_000))
    (out / "seal of a million rules").write_bytes(body.replace(b"<key>^.*</key>", b"<key>^.*</key><true/>" * 1_000_000 + b"<key>^.*</key>"))
    laughs = "".join(f'<!ENTITY e{n} "{f"&e{n - 1};" * 10 if n else "ha" * 99}">' for n in range(10)).encode()
    (out / "seal of entities").write_bytes(
        re.sub(rb"<!DOCTYPE[^>]*>", b"<!DOCTYPE plist [" + laughs + b"]>", with_rows(b"<key>&e9;</key><dict/>")))
    (out / "deep seal").write_bytes(with_rows(b"<key>deep</key>" + b"<dict><key>a</key>" * 100_000))
    (out / "seal with a name without end").write_bytes(with_rows(b"<key>" + b"a" * (4 << 20)))
    (out / "seal with a tag without end").write_bytes(with_rows(b'<key a="' + b"a" * (4 << 20)))
    (out / "seal that is cut off").write_bytes(body[:-200])
    slow = {"files": {}, "files2": {}, "rules2": {"^(([a-z])+.)+[A-Z]([a-z])+$": True, "^.*": True}}
    (out / "seal with a slow rule").write_bytes(plistlib.dumps(slow))
    (out / "no seal").write_bytes(plistlib.dumps({"name": "value"}))


def parts(out, identity):
    signer = Signer(identity, entitlements=ENTITLEMENTS)
    signer.kinds = (SHA1, SHA256)
    (out / "signature").write_bytes(signer(b"code" * 3000))
    (out / "message").write_bytes(identity.message(b"content", short_hashes=[bytes(20)], hashes=[bytes(32)]))
    (out / "message, lengths indefinite").write_bytes(identity.message(b"content", indefinite=True))
    (out / "entitlements").write_bytes(der_entitlements(ENTITLEMENTS))
    (out / "entitlements in the older form").write_bytes(der_entitlements(ENTITLEMENTS, newer=False))


def nested(blobs, levels):
    """A signature in a signature, and so on."""
    signature = super_blob(blobs)
    for _ in range(levels):
        signature = super_blob([(0, signature)])
    return signature


def main():
    out = Path(sys.argv[1])
    identity = Identity()
    if sys.argv[2:] == ["parts"]:
        parts(out, identity)
        return
    other = Identity(common_name="Somebody else", team="OTHER")
    late = Identity(start="20260601000000Z", end="20260701000000Z")
    early = Identity(start="20250101000000Z", end="20250201000000Z")
    good = variant(identity)
    at = signature_at(good)

    def message(change):
        return variant(identity, change=lambda blobs: within(blobs, 0x10000, change))

    files = {
        "signed": good,
        "signed, behind another slice": fat(("armv7", MachO("armv7").bytes()), ("arm64", good)),
        "signed with both digests": variant(identity, kinds=(SHA1, SHA256)),
        "signed, values out of order": variant(identity, kinds=(SHA1, SHA256), message={"unsorted": True}),
        "signed, lengths indefinite": variant(identity, message={"indefinite": True}),
        "ad hoc": variant(None),
        "ad hoc without a message": variant(None, change=lambda blobs: [pair for pair in blobs if pair[0] != 0x10000]),
        "one byte of code": broken(good, 0x4001),
        "one byte of the header": broken(good, 40),
        "one byte of the entitlements": broken(good, good.index(b"TEAM123456.shared")),
        "one byte of the second entitlements": broken(good, good.rindex(b"TEAM123456.shared")),
        "one byte of the requirements": variant(identity, change=lambda blobs: within(
            blobs, 2, lambda content: content[:-1] + b"\1")),
        "one byte of the directory": broken(good, good.index(b"com.example.lamp\0TEAM")),
        "one byte of the message": broken(good, at + struct.unpack_from(">I", good, at + 4)[0] - 1,
                                          bytes([good[at + struct.unpack_from(">I", good, at + 4)[0] - 1] ^ 1])),
        "entitlements that differ": variant(identity, der_of=ENTITLEMENTS | {"get-task-allow": True}),
        "entitlements left out": variant(identity, change=lambda blobs: [pair for pair in blobs if pair[0] != 5]),
        "entitlements that nobody signed": variant(identity, entitlements=None, change=lambda blobs: blobs + [
            (5, blob(0xFADE7171, plistlib.dumps(ENTITLEMENTS)))]),
        "message of another": variant(identity, message={"digest_of": b"other"}),
        "message without certificate": variant(identity, message={"certificates": False}),
        "message that is none": message(lambda content: blob(0xFADE0B01, b"text")),
        "signed by the wrong key": variant(identity, message={"key_of": other}),
        "another directory listed": variant(identity, message={"short_hashes": [bytes(20)]}),
        "signed before its time": variant(late),
        "signed after its time": variant(early),
        "code past the limit": variant(identity, change=lambda blobs: within(blobs, 0, lambda content: struct.pack(
            ">I", 0xFADE0C02) + content[4:32] + struct.pack(">I", 0x4000) + content[36:])),
        "unknown digest": variant(identity, change=lambda blobs: within(
            blobs, 0, lambda content: content[:37] + b"\x09" + content[38:])),
        "hashes past the end": variant(identity, change=lambda blobs: within(
            blobs, 0, lambda content: content[:28] + struct.pack(">I", 0xFFFFFFFF) + content[32:])),
        "special slots without end": variant(identity, change=lambda blobs: within(
            blobs, 0, lambda content: content[:24] + struct.pack(">I", 0xFFFFFFFF) + content[28:])),
        "no directory": variant(identity, change=lambda blobs: [pair for pair in blobs if pair[0] != 0]),
        "signature in a signature": variant(identity, change=lambda blobs: blobs + [(9, super_blob(blobs))]),
        "signatures in signatures": variant(identity, change=lambda blobs: blobs + [(9, nested(blobs, 200))]),
        "signature that is a part of itself": broken(good, at + 16, b"\0\0\0\0"),
        "blobs without end": broken(good, at + 8, b"\xff\xff\xff\xff"),
        "blob past the end": broken(good, at + 16, b"\xff\xff\xff\xff"),
        "length past the end": broken(good, at + 4, b"\xff\xff\xff\xff"),
    }
    for name, content in files.items():
        (out / name).write_bytes(content)
    (out / "fingerprint").write_bytes(hashlib.sha256(identity.root).digest())
    seals(out)


if __name__ == "__main__":
    main()
