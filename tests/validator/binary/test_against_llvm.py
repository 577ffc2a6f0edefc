# SPDX-License-Identifier: MIT
"""Every fact of a Mach-O file equals that of LLVM's tools, for all files that LLVM's compiler and linker make.

usage by hand: BINARY_FACTS=... test_against_llvm.py FILE...
"""
import json
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TESTS = Path(__file__).resolve().parent.parent
PROGRAM = os.environ["BINARY_FACTS"]
LINKS = {"LC_LOAD_DYLIB": 0, "LC_LOAD_WEAK_DYLIB": 1, "LC_REEXPORT_DYLIB": 2, "LC_LAZY_LOAD_DYLIB": 3, "LC_LOAD_UPWARD_DYLIB": 4}
OLD_PLATFORMS = {"LC_VERSION_MIN_IPHONEOS": "ios", "LC_VERSION_MIN_MACOSX": "macos", "LC_VERSION_MIN_TVOS": "tvos",
                 "LC_VERSION_MIN_WATCHOS": "watchos"}
PLATFORMS = {"iossimulator": "ios-simulator", "tvossimulator": "tvos-simulator", "watchossimulator": "watchos-simulator"}


def output(*words):
    return subprocess.run([str(word) for word in words], stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=True,
                          text=True, errors="replace").stdout


def version(text):
    """As two numbers, and a third if it is not zero."""
    if text == "n/a":
        return "0.0"
    parts = (text.split(".") + ["0", "0"])[:3]
    return ".".join(parts[:2] if parts[2] == "0" else parts)


def blocks(text):
    """Each load command as (pairs of key and value)."""
    found = []
    for part in re.split(r"^(?:Load command \d+|Section)$", text, flags=re.M)[1:]:
        pairs = []
        for line in part.splitlines():
            match = re.match(r"\s*(current version|compatibility version|\S+)\s+(.*)$", line)
            if match:
                pairs.append((match[1], match[2].strip()))
        found.append(pairs)
    return found


def path(text):
    return re.sub(r" \(offset \d+\)$", "", text)


def names(*words):
    return sorted({line.strip() for line in output(*words).splitlines() if line.strip() and not line.endswith(":")})


def llvm_facts(file, architecture):
    chosen = [f"--arch={architecture}"] if architecture else []
    headers = output("llvm-objdump-14", "--macho", "--private-headers", *chosen, file)
    facts = {"targets": [], "libraries": [], "runPaths": [], "segments": [], "identity": ""}
    for pairs in blocks(headers):
        values = dict(pairs)
        kind = values.get("cmd", "")
        if kind.startswith("LC_SEGMENT"):
            facts["segments"].append({
                "name": values.get("segname", ""), "address": f"{int(values['vmaddr'], 16):x}",
                "size": f"{int(values['vmsize'], 16):x}", "offset": values["fileoff"], "bytes": values["filesize"],
                "sections": [],
            })
        elif "sectname" in values:
            align = re.search(r"2\^(\d+)", values["align"])
            facts["segments"][-1]["sections"].append([
                values["segname"].split()[0], values["sectname"], f"{int(values['addr'], 16):x}",
                f"{int(values['size'].split()[0], 16):x}", int(values["offset"].split()[0]), int(align[1]),
            ])
        elif kind in LINKS:
            facts["libraries"].append([LINKS[kind], path(values["name"]), version(values["current version"]),
                                       version(values["compatibility version"])])
        elif kind == "LC_ID_DYLIB":
            facts["identity"] = path(values["name"])
        elif kind == "LC_RPATH":
            facts["runPaths"].append(path(values["path"]))
        elif kind == "LC_UUID":
            facts["uuid"] = values["uuid"]
        elif kind.startswith("LC_ENCRYPTION_INFO"):
            facts["encryption"] = [int(values[key]) for key in ("cryptoff", "cryptsize", "cryptid")]
        elif kind == "LC_CODE_SIGNATURE":
            facts["codeSignature"] = [int(values["dataoff"]), int(values["datasize"].split()[0])]
        elif kind == "LC_BUILD_VERSION":
            tools = [[value, version(following)] for (key, value), (_, following) in zip(pairs, pairs[1:]) if key == "tool"]
            facts["targets"].append({"platform": PLATFORMS.get(values["platform"], values["platform"]),
                                     "minimum": version(values["minos"]), "sdk": version(values["sdk"]), "tools": tools})
        elif kind in OLD_PLATFORMS:
            facts["targets"].append({"platform": OLD_PLATFORMS[kind], "minimum": version(values["version"]),
                                     "sdk": version(values["sdk"]), "tools": []})
    numbers = output("llvm-objdump-14", "--macho", "--private-header", "--non-verbose", *chosen, file).splitlines()[-1].split()
    facts["fileType"] = {1: "object", 2: "execute", 6: "dylib", 8: "bundle", 10: "dsym"}[int(numbers[4])]
    facts["flags"] = f"{int(numbers[7], 16):x}"
    chosen = [f"--arch={architecture}"] if architecture else []
    facts["imported"] = names("llvm-nm-14", "--undefined-only", "--extern-only", "--just-symbol-name", *chosen, file)
    facts["defined"] = names("llvm-nm-14", "--defined-only", "--extern-only", "--just-symbol-name", *chosen, file)
    if facts["fileType"] != "object":
        bound = set()
        for table in ("--bind", "--lazy-bind", "--weak-bind"):
            for line in output("llvm-objdump-14", "--macho", table, *chosen, file).splitlines():
                words = line.split()
                if len(words) >= 5 and words[2].startswith("0x"):
                    bound.add(words[-1] if words[-1] != "(weak_import)" else words[-2])
        facts["bound"] = sorted(bound)
    return facts


def architectures(file):
    return output("llvm-lipo-14", "-archs", file).split()


class AgainstLlvm(unittest.TestCase):
    maxDiff = None
    files = []

    @classmethod
    def setUpClass(cls):
        cls.folder = None
        if cls.files:
            return
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        subprocess.run([sys.executable, "-B", TESTS / "make_binaries.py", cls.folder.name, "compiled"], check=True)
        cls.files = sorted(Path(cls.folder.name).iterdir())

    def test_the_facts_are_the_same(self):
        self.assertGreater(len(self.files), 0)
        for file in self.files:
            slices = json.loads(output(PROGRAM, file))
            known = architectures(file)
            self.assertEqual(len(slices), len(known), file)
            for found, architecture in zip(slices, known):
                with self.subTest(file=str(file), architecture=architecture):
                    self.assertEqual(found.pop("architecture"), architecture)
                    expected = llvm_facts(file, architecture if len(known) > 1 else None)
                    # Bound symbols are imports, too; unnamed entries in the symbol table are skipped.
                    expected["imported"] = sorted(set(expected["imported"]) | set(expected.pop("bound", [])))
                    # LLVM has no plain list of the other names in the tables.
                    for key in ("classes", "selectors"):
                        found.pop(key)
                    self.assertEqual(found.pop("faults"), [])
                    self.assertEqual(found, expected)


if __name__ == "__main__":
    AgainstLlvm.files = [Path(word) for word in sys.argv[1:]]
    unittest.main(argv=sys.argv[:1])
