# SPDX-License-Identifier: MIT
"""Signs Mach-O files and app bundles as packages are signed, with temporary certificates."""

import base64
import datetime
import hashlib
import plistlib
import struct
import subprocess
import tempfile
from pathlib import Path

DIRECTORY, REQUIREMENTS, ENTITLEMENTS, DER_ENTITLEMENTS, MESSAGE, SIGNATURE = (
    0xFADE0C02, 0xFADE0C01, 0xFADE7171, 0xFADE7172, 0xFADE0B01, 0xFADE0CC0)
HASHES = {1: hashlib.sha1, 2: hashlib.sha256}
SHA1, SHA256 = 1, 2


def tlv(tag, content):
    length = len(content)
    if length < 0x80:
        return bytes([tag, length]) + content
    size = length.to_bytes((length.bit_length() + 7) // 8, "big")
    return bytes([tag, 0x80 | len(size)]) + size + content


def identifier(text):
    numbers = [int(part) for part in text.split(".")]
    encoded = bytes([numbers[0] * 40 + numbers[1]])
    for number in numbers[2:]:
        parts = [number & 0x7F]
        while number := number >> 7:
            parts.append(0x80 | number & 0x7F)
        encoded += bytes(reversed(parts))
    return tlv(0x06, encoded)


def der_value(value, newer=True):
    if isinstance(value, bool):
        return tlv(0x01, b"\xff" if value else b"\0")
    if isinstance(value, int):
        return tlv(0x02, value.to_bytes(value.bit_length() // 8 + 1, "big", signed=True))
    if isinstance(value, str):
        return tlv(0x0C, value.encode())
    if isinstance(value, dict):
        pairs = b"".join(tlv(0x30, tlv(0x0C, key.encode()) + der_value(item, newer)) for key, item in sorted(value.items()))
        return tlv(0xB0 if newer else 0x31, pairs)
    return tlv(0x30, b"".join(der_value(item, newer) for item in value))


def der_entitlements(entitlements, newer=True):
    value = der_value(entitlements, newer)
    return tlv(0x70, tlv(0x02, b"\1") + value) if newer else value


class Identity:
    """A root, and a certificate that it has signed, both made by openssl in a new folder."""

    def __init__(self, common_name="Apple Distribution: Lamp Works (TEAM123456)", team="TEAM123456",
                 start="20250101000000Z", end="20340101000000Z"):
        self.folder = tempfile.TemporaryDirectory()
        home = Path(self.folder.name)
        (home / "ca.conf").write_text(
            "[ca]\ndefault_ca=d\n[d]\ndatabase=index\nserial=serial\nnew_certs_dir=.\ndefault_md=sha256\npolicy=p\n"
            "[p]\ncommonName=supplied\norganizationalUnitName=optional\norganizationName=optional\n"
            "[req]\ndistinguished_name=n\n[n]\n[root]\nbasicConstraints=critical,CA:true\nkeyUsage=keyCertSign\n"
            "[leaf]\nkeyUsage=digitalSignature\n")
        (home / "index").write_text("")
        (home / "serial").write_text("1001\n")

        def run(*words):
            subprocess.run(["openssl", *words], cwd=home, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)

        run("req", "-x509", "-newkey", "rsa:2048", "-nodes", "-keyout", "root.key", "-out", "root.pem", "-days", "9000",
            "-config", "ca.conf", "-extensions", "root", "-subj", "/CN=Lamp Root/O=Lamp Works")
        run("req", "-new", "-newkey", "rsa:2048", "-nodes", "-keyout", "leaf.key", "-out", "leaf.csr", "-config", "ca.conf",
            "-subj", f"/CN={common_name}/OU={team}/O=Lamp Works")
        run("ca", "-batch", "-config", "ca.conf", "-in", "leaf.csr", "-out", "leaf.pem", "-cert", "root.pem", "-keyfile",
            "root.key", "-startdate", start, "-enddate", end, "-extensions", "leaf", "-notext")
        self.modulus = self.key_number("modulus")
        self.parts = [self.key_number(name) for name in ("prime1", "prime2", "exponent1", "exponent2", "coefficient")]
        self.leaf = self.der("leaf.pem")
        self.root = self.der("root.pem")

    def der(self, name):
        lines = (Path(self.folder.name) / name).read_text().split("-----")
        return base64.b64decode(lines[2])

    def sign_bytes(self, data):
        """PKCS #1 with SHA-256. Done here, since a process for each signature would take most of the time."""
        prefix = bytes.fromhex("3031300d060960864801650304020105000420")
        length = (self.modulus.bit_length() + 7) // 8
        digest = prefix + hashlib.sha256(data).digest()
        block = b"\0\1" + b"\xff" * (length - len(digest) - 3) + b"\0" + digest
        number = int.from_bytes(block, "big")
        first, second, exponent1, exponent2, coefficient = self.parts
        one, two = pow(number, exponent1, first), pow(number, exponent2, second)
        return (two + (one - two) * coefficient % first * second).to_bytes(length, "big")

    def key_number(self, name):
        """A number of the key, from openssl's listing."""
        listing = subprocess.run(["openssl", "rsa", "-in", "leaf.key", "-noout", "-text"], cwd=self.folder.name, check=True,
                                 stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True).stdout
        lines = listing[listing.index(name + ":") + len(name) + 1:].splitlines()[1:]
        digits = ""
        for line in lines:
            if not line.startswith("    "):
                break
            digits += line.strip().replace(":", "")
        return int(digits, 16)

    def issuer_and_number(self):
        """The fields of the certificate: version, number, algorithm, issuer."""
        def parts(data):
            found = []
            while data:
                head = 2
                length = data[1]
                if length & 0x80:
                    head = 2 + (length & 0x7F)
                    length = int.from_bytes(data[2:head], "big")
                found.append((data[:head + length], data[head:head + length]))
                data = data[head + length:]
            return found
        body = parts(parts(parts(self.leaf)[0][1])[0][1])
        return tlv(0x30, body[3][0] + body[1][0])

    def message(self, content, short_hashes=(), hashes=(), signing_time="260105134848Z", unsorted=False, indefinite=False,
                certificates=True, detached=True, digest_of=None, attributes=True,
                key_of=None):
        """A CMS message about the content."""
        sha256 = tlv(0x30, identifier("2.16.840.1.101.3.4.2.1") + tlv(0x05, b""))
        signed = [tlv(0x30, identifier("1.2.840.113549.1.9.3") + tlv(0x31, identifier("1.2.840.113549.1.7.1"))),
                  tlv(0x30, identifier("1.2.840.113549.1.9.5") + tlv(0x31, tlv(0x17, signing_time.encode()))),
                  tlv(0x30, identifier("1.2.840.113549.1.9.4") + tlv(0x31, tlv(
                      0x04, hashlib.sha256(content if digest_of is None else digest_of).digest())))]
        if hashes:
            values = [tlv(0x30, identifier("2.16.840.1.101.3.4.2.1") + tlv(0x04, value)) for value in hashes]
            values = sorted(values, reverse=unsorted)
            signed.append(tlv(0x30, identifier("1.2.840.113635.100.9.2") + tlv(0x31, b"".join(values))))
        if short_hashes:
            listing = plistlib.dumps({"cdhashes": list(short_hashes)})
            signed.append(tlv(0x30, identifier("1.2.840.113635.100.9.1") + tlv(0x31, tlv(0x04, listing))))
        # A set's values are sorted by their bytes.
        signed = b"".join(sorted(signed, reverse=unsorted))
        signature = (key_of or self).sign_bytes(tlv(0x31, signed) if attributes else content)
        signer = tlv(0x30, tlv(0x02, b"\1") + self.issuer_and_number() + sha256 + (tlv(0xA0, signed) if attributes else b"")
                     + tlv(0x30, identifier("1.2.840.113549.1.1.1") + tlv(0x05, b"")) + tlv(0x04, signature))
        inner = identifier("1.2.840.113549.1.7.1") + (b"" if detached else tlv(0xA0, tlv(0x04, content)))
        data = (tlv(0x02, b"\1") + tlv(0x31, sha256) + tlv(0x30, inner)
                + (tlv(0xA0, self.leaf + self.root) if certificates else b"") + tlv(0x31, signer))
        end = b"\0\0"
        if indefinite:
            return b"\x30\x80" + identifier("1.2.840.113549.1.7.2") + b"\xa0\x80\x30\x80" + data + end * 3
        return tlv(0x30, identifier("1.2.840.113549.1.7.2") + tlv(0xA0, tlv(0x30, data)))


def blob(magic, content):
    return struct.pack(">II", magic, 8 + len(content)) + content


def code_directory(code, name, team, kind, slots, flags=0, executable_flags=1, version=0x20400):
    digest = HASHES[kind]
    size = digest().digest_size
    pages = [digest(code[at:at + 0x1000]).digest() for at in range(0, len(code), 0x1000)]
    last = max(slots) if slots else 0
    special = b"".join(digest(slots[slot]).digest() if slot in slots else bytes(size) for slot in range(last, 0, -1))
    head_size = 88
    names = name.encode() + b"\0" + (team.encode() + b"\0" if team else b"")
    name_at = head_size
    team_at = name_at + len(name) + 1 if team else 0
    hash_at = head_size + len(names) + len(special)
    content = struct.pack(">IIIIIIIBBBBI", version, flags, hash_at, name_at, last, len(pages), len(code), size, kind, 0, 12, 0)
    content += struct.pack(">IIIQQQQ", 0, team_at, 0, 0, 0, 0x4000, executable_flags)
    assert len(content) + 8 == head_size
    return blob(DIRECTORY, content + names + special + b"".join(pages))


def super_blob(blobs):
    head = struct.pack(">III", SIGNATURE, 12 + 8 * len(blobs) + sum(len(content) for _, content in blobs), len(blobs))
    at = 12 + 8 * len(blobs)
    body = b""
    for slot, content in blobs:
        head += struct.pack(">II", slot, at + len(body))
        body += content
    return head + body


class Signer:
    """Signs code. Every attribute may be changed first."""

    def __init__(self, identity, name="com.example.lamp", entitlements=None):
        self.identity = identity  # None for an ad hoc signature
        self.name = name
        self.team = "TEAM123456" if identity else ""
        self.entitlements = entitlements
        self.der = True
        self.der_of = None  # other entitlements in the second form
        self.kinds = (SHA256,)
        self.info = None  # bytes of the Info.plist
        self.seal = None  # bytes of the CodeResources
        self.message = {}
        self.flags = 0 if identity else 2
        self.change = None  # returns other blobs, given the original ones

    def __call__(self, code):
        requirements = blob(REQUIREMENTS, struct.pack(">I", 0))
        slots = {2: requirements}
        blobs = [(2, requirements)]
        if self.info is not None:
            slots[1] = self.info
        if self.seal is not None:
            slots[3] = self.seal
        if self.entitlements is not None:
            slots[5] = blob(ENTITLEMENTS, plistlib.dumps(self.entitlements))
            blobs.append((5, slots[5]))
            if self.der:
                second = self.entitlements if self.der_of is None else self.der_of
                slots[7] = blob(DER_ENTITLEMENTS, der_entitlements(second))
                blobs.append((7, slots[7]))
        executable_flags = 0x11 if (self.entitlements or {}).get("get-task-allow") else 1
        directories = [code_directory(code, self.name, self.team, kind, slots, self.flags, executable_flags)
                       for kind in self.kinds]
        blobs.insert(0, (0, directories[0]))
        for number, directory in enumerate(directories[1:]):
            blobs.append((0x1000 + number, directory))
        if self.identity:
            whole = [HASHES[kind](directory).digest() for kind, directory in zip(self.kinds, directories)]
            options = {"short_hashes": [value[:20] for value in whole], "hashes": whole} | self.message
            blobs.append((0x10000, blob(MESSAGE, self.identity.message(directories[0], **options))))
        else:
            blobs.append((0x10000, blob(MESSAGE, b"")))
        if self.change:
            blobs = self.change(blobs)
        return super_blob(sorted(blobs, key=lambda pair: pair[0]))


# Older packages have the second rule: it is the same with the weight of the exceptions.
RULES2 = {"^.*": True, "^": {"weight": 20.0}, r".*\.dSYM($|/)": {"weight": 11.0},
          r"^(.*/)?\.DS_Store$": {"omit": True, "weight": 2000.0}, r"^Info\.plist$": {"omit": True, "weight": 20.0},
          r"^PkgInfo$": {"omit": True, "weight": 20.0}, r"^.*\.lproj/": {"optional": True, "weight": 1000.0},
          r"^Base\.lproj/": {"weight": 1010.0}, r"^.*\.lproj/locversion.plist$": {"omit": True, "weight": 1100.0}}
RULES = {"^.*": True, r"^.*\.lproj/": {"optional": True, "weight": 1000.0}, "^version.plist$": True}


def seal(files, executable, links=None, newer=True):
    """The CodeResources of a bundle; `files` maps paths in it to contents."""
    old, new = {}, {}
    for path, content in files.items():
        if path == executable or path.startswith("_CodeSignature/"):
            continue
        optional = ".lproj/" in path and not path.startswith("Base.lproj/")
        first = hashlib.sha1(content).digest()
        old[path] = {"hash": first, "optional": True} if optional else first
        if path not in ("Info.plist", "PkgInfo") and not path.endswith(".DS_Store"):
            new[path] = {"hash": first, "hash2": hashlib.sha256(content).digest()} | ({"optional": True} if optional else {})
    for path, target in (links or {}).items():
        new[path] = {"symlink": target}
    listing = {"files": old, "rules": RULES}
    if newer:
        listing |= {"files2": new, "rules2": RULES2}
    return plistlib.dumps(listing)
