#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: make_binaries.py FOLDER [compiled]   Mach-O files, each named for its form or fault.

With "compiled" only the files that LLVM's compiler and linker make, not those written here.
"""

import struct
import subprocess
import sys
from pathlib import Path

from macho_builder import BUNDLE, DSYM, DYLIB, MachO, command, fat

LAMP = """
__attribute__((objc_root_class)) @interface Lamp { void *isa; }
+ (id)alloc;
- (void)lightAt:(int)level;
@end
__attribute__((objc_root_class)) @interface NSUserDefaults { void *isa; }
+ (id)standardUserDefaults;
@end
extern int stat(const char *, void *);
@implementation Lamp
+ (id)alloc { return 0; }
- (void)lightAt:(int)level { id defaults = [NSUserDefaults standardUserDefaults]; (void)defaults; stat("x", 0); }
@end
int main(int count, char **words) { [[Lamp alloc] lightAt:count]; return 0; }
"""
STUB = """--- !tapi-tbd
tbd-version: 4
targets: [ arm64-ios, x86_64-ios-simulator, arm64-tvos, arm64-macos ]
install-name: '/usr/lib/libSystem.B.dylib'
current-version: 1319.100.3
exports:
  - targets: [ arm64-ios, x86_64-ios-simulator, arm64-tvos, arm64-macos ]
    symbols: [ _stat, dyld_stub_binder, _objc_msgSend, __objc_empty_cache, _objc_retain, _objc_release, _objc_alloc,
               _objc_storeStrong, _objc_retainAutoreleasedReturnValue ]
    objc-classes: [ NSUserDefaults ]
...
"""


def compile_all(out):
    source = out / "lamp.m"
    source.write_text(LAMP)
    stub = out / "libSystem.tbd"
    stub.write_text(STUB)

    def run(*words):
        subprocess.run([str(word) for word in words], check=True, cwd=out)

    def compiled(target, name):
        run("clang-14", "-target", target, "-fobjc-arc", "-c", source, "-o", out / name)
        return out / name

    def linked(name, compiled_object, architecture, platform, minimum, sdk, *more):
        run("ld64.lld-14", "-arch", architecture, "-platform_version", platform, minimum, sdk, "-o", out / name,
            compiled_object, stub, *more)

    phone = compiled("arm64-apple-ios15.0", "object arm64")
    simulator = compiled("x86_64-apple-ios15.0-simulator", "object x86_64")
    compiled("armv7-apple-ios9.0", "object armv7")
    compiled("i386-apple-ios9.0-simulator", "object i386")
    compiled("arm64_32-apple-watchos8.0", "object arm64_32")
    linked("app", phone, "arm64", "ios", "15.0", "26.1", "-encryptable", "-rpath", "@executable_path/Frameworks",
           "-adhoc_codesign")
    linked("app for the simulator", simulator, "x86_64", "ios-simulator", "15.0", "26.1.2")
    linked("app for tvos", compiled("arm64-apple-tvos16.0", "object for tvos"), "arm64", "tvos", "16.0", "18.2")
    linked("app for the mac", compiled("arm64-apple-macos13.0", "object for the mac"), "arm64", "macos", "13.0", "15.0",
           "-weak_library", stub)
    linked("library", phone, "arm64", "ios", "13.0", "26.0", "-dylib", "-install_name", "@rpath/Lamp.framework/Lamp",
           "-current_version", "3.4.5", "-compatibility_version", "2.0")
    linked("plug-in", phone, "arm64", "ios", "13.0", "26.0", "-bundle")
    linked("stripped", phone, "arm64", "ios", "13.0", "26.0", "-S", "-dead_strip")
    run("llvm-lipo-14", "-create", out / "app", out / "app for the simulator", "-output", out / "fat app")
    for leftover in (source, stub):
        leftover.unlink()


def whole_app(**changes):
    made = MachO()
    made.libraries += [("/System/Library/Frameworks/UIKit.framework/UIKit", "needed"),
                       ("@rpath/Lamp.framework/Lamp", "weak"), ("/usr/lib/swift/libswiftCore.dylib", "needed")]
    made.run_paths = ["@executable_path/Frameworks"]
    made.imports = ["_stat", "_OBJC_CLASS_$_NSUserDefaults", "_objc_release"]
    made.classes = ["Lamp", "Switch"]
    made.selectors = ["systemUptime", "lightAt:"]
    made.sections = {"__swift5_entry": bytes(4)}
    made.tools = [(1, "17.0"), (2, "6.2"), (3, "1230.1")]
    for name, value in changes.items():
        setattr(made, name, value)
    return made


def chained_fixups(entries, form=1, **lies):
    """The content of an LC_DYLD_CHAINED_FIXUPS that imports the names."""
    pool, table = b"\0", b""
    for name in entries:
        if form == 3:
            table += struct.pack("<QQ", 1 | len(pool) << 32, 0)
        else:
            table += struct.pack("<I", 1 | len(pool) << 9) + bytes(4 if form == 2 else 0)
        pool += name.encode() + b"\0"
    head = 28
    count = lies.get("count", len(entries))
    return struct.pack("<IIIIIII", 0, head, lies.get("table", head), head + len(table), count, form, 0) + table + pool


def bindings(entries):
    opcodes = b"\x11"
    for name in entries:
        opcodes += b"\x40" + name.encode() + b"\0" + b"\x51" + b"\x72\x10" + b"\x90"
    return opcodes + b"\0"


def with_content(number, content, more=b""):
    """An app with a load command that points at its own content."""
    def build(offset):
        if number == 0x80000022:
            load = command(number, struct.pack("<10I", 0, 0, offset, len(content), 0, 0, 0, 0, 0, 0))
        else:
            load = command(number, struct.pack("<II", offset, len(content)))
        return whole_app(more_commands=[load], imports=[]).bytes()
    length = len(build(0))
    return build(length) + content + more


def patched(data, offset, form, value):
    changed = bytearray(data)
    struct.pack_into(form, changed, offset, value)
    return bytes(changed)


def command_at(data, number):
    at = 32
    for _ in range(struct.unpack_from("<I", data, 16)[0]):
        kind, size = struct.unpack_from("<II", data, at)
        if kind == number:
            return at
        at += size
    raise ValueError(number)


def big_endian():
    """A header of the old byte order with one command."""
    uuid = struct.pack(">II", 0x1B, 24) + bytes(range(16))
    return struct.pack(">IIIIIII", 0xFEEDFACE, 18, 0, 2, 1, len(uuid), 0) + uuid


def hostile():
    app = whole_app().bytes()
    size_of_symbols = command_at(app, 0x2)
    first = 32
    many = [("arm64", app)] * 2
    two = fat(*many)
    empty = MachO()
    empty.more_commands = [struct.pack("<II", 0x1234, 8)] * 1500
    repeated = bytes(300) + b"a" * 20_000
    long_names = whole_app(imports=[], defined=[]).bytes()
    table = len(long_names)
    long_names = patched(long_names, command_at(long_names, 0x2) + 8, "<I", table)
    long_names = patched(long_names, command_at(long_names, 0x2) + 12, "<I", 100_000)
    long_names = patched(long_names, command_at(long_names, 0x2) + 16, "<I", table + 1_600_000)
    long_names = patched(long_names, command_at(long_names, 0x2) + 20, "<I", len(repeated))
    long_names += struct.pack("<IBBHQ", 300, 1, 0, 0, 0) * 50_000 + struct.pack("<IBBHQ", 301, 1, 0, 0, 0) * 50_000 + repeated
    return {
        "command of size zero": patched(app, first + 4, "<I", 0),
        "command shorter than its head": patched(app, first + 4, "<I", 4),
        "command longer than the room": patched(app, first + 4, "<I", 0xFFFFFFF8),
        "commands without end": patched(app, 16, "<I", 0xFFFFFFFF),
        "commands past the end": patched(app, 20, "<I", 0xFFFFFFFF),
        "sections without end": patched(app, first + 72 + 64, "<I", 0xFFFFFFFF),
        "tools without end": patched(app, command_at(app, 0x32) + 20, "<I", 0xFFFFFFFF),
        "symbols without end": patched(app, size_of_symbols + 12, "<I", 0xFFFFFFFF),
        "names past the end": patched(app, size_of_symbols + 20, "<I", 0xFFFFFFFF),
        "library named past its command": patched(app, command_at(app, 0xC) + 8, "<I", 0xFFFFFFFF),
        "segment past the end": patched(app, first + 72 + 48, "<Q", 2**63),
        "signature past the end": whole_app(more_commands=[command(0x1D, struct.pack("<II", 0xFFFFFF00, 0xFFFF))]).bytes(),
        "header only": app[:28],
        "cut off": app[:200],
        "slices without end": patched(two, 4, ">I", 30) + bytes(1000),
        "more slices than any file": fat(*[("arm64", MachO().bytes()[:600])] * 40, align=10),
        "slices that overlap": patched(two, 8 + 20 + 8, ">I", struct.unpack_from(">I", two, 16)[0] + 0x4000),
        "slice past the end": patched(two, 8 + 20 + 8, ">I", 0xFFFFF000),
        "slice that is the file itself": patched(two, 16, ">I", 0),
        "slice that is no binary": fat(("arm64", b"text" * 100)),
        "chained imports without end": with_content(0x80000034, chained_fixups(["_a"], count=0xFFFFFFFF)),
        "chained imports past the end": with_content(0x80000034, chained_fixups(["_a"], table=0xFFFFFFF0)),
        "bindings cut off": with_content(0x80000022, b"\x40_stat"),
        "bindings with an endless number": with_content(0x80000022, b"\x20" + b"\xff" * 40),
        "one long name a hundred thousand times": long_names,
    }


def local_symbols():
    """Most symbols are local, as before stripping; of the others, one has a long name, one a name beyond the limit."""
    app = whole_app()
    app.locals = [f"_local{number:06}" + "x" * 60 for number in range(20_000)]
    app.defined += ["_first", "_long" + "y" * 9000, "_beyond" + "z" * 40_000]
    return app.bytes()


def names_among_symbols():
    """The names of the external symbols are said to be where the table has its local ones."""
    app = whole_app()
    app.locals = [f"_{number:06}" for number in range(20_000)]
    whole = app.bytes()
    place = command_at(whole, 0x2)
    symbols, = struct.unpack_from("<I", whole, place + 8)
    return patched(whole, place + 16, "<I", symbols)


def main():
    out = Path(sys.argv[1])
    if sys.argv[2:] == ["compiled"]:
        compile_all(out)
        return
    app = whole_app().bytes()
    old = whole_app(old_version_command=0x25, minimum="7.0", sdk="8.4")
    files = {
        "app": app,
        "fat": fat(("armv7", MachO("armv7", minimum="9.0").bytes()), ("arm64", app)),
        "fat of 64 bits": fat(("arm64", app), ("arm64e", MachO("arm64e").bytes()), wide=True),
        "app of old": old.bytes(),
        "library": MachO(filetype=DYLIB).bytes(),
        "plug-in": MachO(filetype=BUNDLE).bytes(),
        "debug symbols": MachO(filetype=DSYM).bytes(),
        "local symbols": local_symbols(),
        "names among the symbols": names_among_symbols(),
        "enciphered": whole_app(encryption=(0x4000, 0x4000, 1)).bytes(),
        "bindings": with_content(0x80000022, bindings(["_stat", "_OBJC_CLASS_$_NSUserDefaults"])),
        "chained imports": with_content(0x80000034, chained_fixups(["_stat", "_OBJC_CLASS_$_NSUserDefaults"])),
        "chained imports with addends": with_content(0x80000034, chained_fixups(["_stat", "_fstat"], form=2)),
        "chained imports with long addends": with_content(0x80000034, chained_fixups(["_stat", "_fstat"], form=3)),
        "big-endian": big_endian(),
        "java class": struct.pack(">IHH", 0xCAFEBABE, 0, 52) + bytes(100),
        "nothing": b"",
        "text": b"#!/bin/sh\n",
    } | hostile()
    for name, content in files.items():
        (out / name).write_bytes(content)


if __name__ == "__main__":
    main()
