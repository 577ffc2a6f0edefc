# SPDX-License-Identifier: MIT
"""Writes Mach-O files, command by command, so that a test can make exactly the file it needs."""

import struct
import uuid as uuids

ARCHITECTURES = {
    "armv7": (12, 9),
    "armv7s": (12, 11),
    "arm64": (0x0100000C, 0),
    "arm64e": (0x0100000C, 0x80000002),
    "arm64_32": (0x0200000C, 1),
    "i386": (7, 3),
    "x86_64": (0x01000007, 3),
}
PLATFORMS = {"macos": 1, "ios": 2, "tvos": 3, "watchos": 4, "maccatalyst": 6, "ios-simulator": 7, "visionos": 11}
EXECUTE, DYLIB, BUNDLE, DSYM = 2, 6, 8, 10
PIE = 0x200085
PAGE = 0x4000
LIBRARY = {"needed": 0xC, "weak": 0x80000018, "reexported": 0x8000001F, "lazy": 0x20, "upward": 0x80000023}


def version(text):
    numbers = [int(part) for part in text.split(".")] + [0, 0]
    return numbers[0] << 16 | numbers[1] << 8 | numbers[2]


def padded(data, size):
    return data + bytes(-len(data) % size)


def command(number, content):
    content = padded(content, 8)
    return struct.pack("<II", number, 8 + len(content)) + content


def texts(names):
    return b"".join(name.encode() + b"\0" for name in names)


class MachO:
    """One slice. Every attribute may be changed before calling `bytes()`."""

    def __init__(self, architecture="arm64", filetype=EXECUTE, platform="ios", minimum="15.0", sdk="26.0"):
        self.cpu = ARCHITECTURES[architecture]
        self.wide = bool(self.cpu[0] & 0x01000000)
        self.filetype = filetype
        self.flags = PIE if filetype == EXECUTE else 0x85
        self.platform, self.minimum, self.sdk = platform, minimum, sdk
        self.tools = [(3, "1230.1")]
        self.old_version_command = None  # number of an LC_VERSION_MIN_*, instead of LC_BUILD_VERSION
        self.uuid = uuids.UUID("00112233-4455-6677-8899-aabbccddeeff")
        self.libraries = [("/usr/lib/libSystem.B.dylib", "needed")]
        self.identity = None
        self.run_paths = []
        self.locals = []
        self.imports = []
        self.defined = ["__mh_execute_header"] if filetype == EXECUTE else []
        self.classes = []
        self.selectors = []
        self.sections = {}  # more sections of __TEXT: name -> bytes
        self.segments = []  # more segments: (name, address, size, file offset, file size)
        self.encryption = (PAGE, PAGE, 0) if filetype == EXECUTE else None
        self.main = filetype == EXECUTE
        self.more_commands = []
        self.sign = None  # returns the signature, given the bytes before it and its offset
        self.signature_room = 0x8000

    def text_sections(self):
        sections = {"__text": b"\xc0\x03\x5f\xd6" * 4}
        if self.classes:
            sections["__objc_classname"] = texts(self.classes)
        if self.selectors:
            sections["__objc_methname"] = texts(self.selectors)
        return sections | self.sections

    def segment(self, name, address, size, offset, file_size, sections=(), protection=(5, 5)):
        form = "<16sQQQQIIII" if self.wide else "<16sIIIIIIII"
        content = struct.pack(form, name.encode(), address, size, offset, file_size, *protection, len(sections), 0)
        for section, place, length in sections:
            if self.wide:
                content += struct.pack("<16s16sQQIIIIIIII", section.encode(), name.encode(), address + place, length, place,
                                       2, 0, 0, 0, 0, 0, 0)
            else:
                content += struct.pack("<16s16sIIIIIIIII", section.encode(), name.encode(), address + place, length, place,
                                       2, 0, 0, 0, 0, 0)
        return command(0x19 if self.wide else 0x1, content)

    def commands(self, places, text_size, linkedit, symbols, names, signature):
        base = 0x100000000 if self.wide else 0x4000
        parts = []
        if self.filetype == EXECUTE:
            parts.append(self.segment("__PAGEZERO", 0, base, 0, 0, protection=(0, 0)))
        parts.append(self.segment("__TEXT", base, text_size, 0, text_size, places))
        for name, address, size, offset, file_size in self.segments:
            parts.append(self.segment(name, address, size, offset, file_size, protection=(3, 3)))
        offset, size = linkedit
        parts.append(self.segment("__LINKEDIT", base + 0x1000000, -(-size // PAGE) * PAGE, offset, size, protection=(1, 1)))
        symbol_offset, symbol_count = symbols
        parts.append(command(0x2, struct.pack("<IIII", symbol_offset, symbol_count, *names)))
        if self.identity:
            parts.append(command(0xD, struct.pack("<IIII", 24, 0, 0x10000, 0x10000) + self.identity.encode() + b"\0"))
        if self.encryption:
            content = struct.pack("<III", *self.encryption)
            parts.append(command(0x2C, content + bytes(4)) if self.wide else command(0x21, content))
        if self.uuid:
            parts.append(command(0x1B, self.uuid.bytes))
        if self.old_version_command:
            parts.append(command(self.old_version_command, struct.pack("<II", version(self.minimum), version(self.sdk))))
        elif self.platform:
            content = struct.pack("<IIII", PLATFORMS[self.platform], version(self.minimum), version(self.sdk), len(self.tools))
            content += b"".join(struct.pack("<II", tool, version(number)) for tool, number in self.tools)
            parts.append(command(0x32, content))
        if self.main:
            parts.append(command(0x80000028, struct.pack("<QQ", places[0][1], 0)))
        for path, kind in self.libraries:
            content = struct.pack("<IIII", 24, 2, version("1.2.3"), version("1.0")) + path.encode() + b"\0"
            parts.append(command(LIBRARY[kind], content))
        for path in self.run_paths:
            parts.append(command(0x8000001C, struct.pack("<I", 12) + path.encode() + b"\0"))
        parts += self.more_commands
        if signature:
            parts.append(command(0x1D, struct.pack("<II", *signature)))
        return parts

    def bytes(self):
        header_size = 32 if self.wide else 28
        body = b""
        places = []
        # Far enough after any load commands.
        first = PAGE
        for name, content in self.text_sections().items():
            places.append((name, first + len(body), len(content)))
            body = padded(body + content, 16)
        text_size = first + len(padded(body, PAGE))
        pool = b"\0"
        table = b""
        form = "<IBBHQ" if self.wide else "<IBBHI"
        for name in self.locals:
            table += struct.pack(form, len(pool), 0x0E, 1, 0, 0x4000)
            pool += name.encode() + b"\0"
        for name in self.defined:
            table += struct.pack(form, len(pool), 0x0F, 1, 0, 0x4000)
            pool += name.encode() + b"\0"
        for name in self.imports:
            table += struct.pack(form, len(pool), 0x01, 0, 0x100, 0)
            pool += name.encode() + b"\0"
        pool = padded(pool, 16)
        content = table + pool
        room = padded(content, 16)
        signature = (text_size + len(room), self.signature_room) if self.sign else None
        linkedit = (text_size, len(room) + (self.signature_room if self.sign else 0))
        symbols = (text_size, len(self.locals) + len(self.defined) + len(self.imports))
        parts = self.commands(places, text_size, linkedit, symbols, (text_size + len(table), len(pool)), signature)
        commands = b"".join(parts)
        magic = 0xFEEDFACF if self.wide else 0xFEEDFACE
        header = struct.pack("<IIIIIII", magic, *self.cpu, self.filetype, len(parts), len(commands), self.flags)
        header += bytes(header_size - len(header)) + commands
        assert len(header) <= first
        code = header + bytes(first - len(header)) + body
        code += bytes(text_size - len(code)) + room
        if not self.sign:
            return code
        blob = self.sign(code)
        assert len(blob) <= self.signature_room, len(blob)
        return code + blob + bytes(self.signature_room - len(blob))


def fat(*slices, wide=False, align=14):
    """A fat file around whole slices; each is given as (architecture, bytes)."""
    entry = 32 if wide else 20
    head = struct.pack(">II", 0xCAFEBABF if wide else 0xCAFEBABE, len(slices))
    body = b""
    at = -(-(8 + entry * len(slices)) // (1 << align)) << align
    start = at
    for architecture, content in slices:
        cpu = ARCHITECTURES[architecture]
        if wide:
            head += struct.pack(">IIQQII", *cpu, at, len(content), align, 0)
        else:
            head += struct.pack(">IIIII", *cpu, at, len(content), align)
        body += padded(content, 1 << align)
        at = start + len(body)
    return head + bytes(start - len(head)) + body


def patched_bytes(data, offset, value):
    """The data with other bytes at the offset."""
    return data[:offset] + value + data[offset + len(value):]
