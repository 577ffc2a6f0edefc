# SPDX-License-Identifier: MIT
"""Finds the text keys that the program's sources and interface files use."""

import re
from collections.abc import Iterator
from dataclasses import dataclass, field
from pathlib import Path

# Comments and raw strings are matched first, so that their content does not count as a literal.
TOKEN = re.compile(
    r"""//[^\n]*|/\*.*?\*/|R"(?P<tag>[^(\s]*)\((?P<raw>.*?)\)(?P=tag)"|"(?P<plain>(?:[^"\\\n]|\\.)*)"|'(?:[^'\\\n]|\\.)+'""",
    re.DOTALL,
)
CALL = re.compile(
    r"\b(?P<function>qtTrId|text)\s*\(\s*(?:(?:QLatin1String|QLatin1StringView|QStringLiteral|QString)\s*[({]\s*)?"
    r'(?:u8?|L)?"(?P<key>(?:[^"\\\n]|\\.)*)"'
)
INTERFACE_ID = re.compile(r'<string\b[^>]*\bid="([^"]*)"')
INTERFACE_TEXT = re.compile(r"<string\b[^>]*>([^<]*)</string>")
KEY_SHAPE = re.compile(r"[A-Z][A-Z0-9]*(?:_[A-Z0-9]+)+")

NOT_THE_PROGRAM = {"tests", "bench", "fuzz", "docs", "build", "node_modules"}

# A literal that looks like a key and begins like this many keys of the table counts as one.
FAMILY_SIZE = 3


@dataclass
class Usage:
    """All literals, and the keys that are certainly used, with the file that uses them."""

    literals: set[str] = field(default_factory=set)
    asked: dict[str, str] = field(default_factory=dict)
    key_shaped: dict[str, str] = field(default_factory=dict)


def string_literals(code: str) -> Iterator[str]:
    for token in TOKEN.finditer(code):
        literal = token["plain"] if token["plain"] is not None else token["raw"]
        if literal is not None:
            yield literal


def without_comments(code: str) -> str:
    return TOKEN.sub(lambda token: " " if token[0].startswith(("//", "/*")) else token[0], code)


def program_files(root: Path) -> Iterator[Path]:
    for entry in sorted(root.iterdir()):
        if entry.name.startswith(".") or entry.name in NOT_THE_PROGRAM or entry.name.startswith("build"):
            continue
        if entry.is_dir():
            yield from program_files(entry)
        elif entry.suffix in (".cpp", ".h", ".ui"):
            yield entry


def usage_of(root: Path) -> Usage:
    usage = Usage()
    for path in program_files(root):
        where = str(path.relative_to(root))
        code = path.read_text("utf-8")
        if path.suffix == ".ui":
            identifiers = INTERFACE_ID.findall(code)
            usage.asked.update(dict.fromkeys(identifiers, where))
            literals = set(identifiers) | set(INTERFACE_TEXT.findall(code))
        else:
            for call in CALL.finditer(without_comments(code)):
                if call["function"] == "qtTrId" or KEY_SHAPE.fullmatch(call["key"]):
                    usage.asked[call["key"]] = where
            literals = set(string_literals(code))
        usage.literals |= literals
        usage.key_shaped.update({text: where for text in literals if KEY_SHAPE.fullmatch(text)})
    return usage


def usage_problems(usage: Usage, keys: set[str]) -> list[str]:
    """Keys that the code uses and the tables lack."""
    beginnings = [key.split("_")[0] for key in keys if "_" in key]
    families = {word for word in beginnings if beginnings.count(word) >= FAMILY_SIZE}
    wanted = dict(usage.asked)
    wanted.update({key: where for key, where in usage.key_shaped.items() if key.split("_")[0] in families})
    return [f"{where}: uses the key \"{key}\", which no table holds"
            for key, where in sorted(wanted.items()) if key not in keys]


def unused_keys(usage: Usage, keys: list[str]) -> list[str]:
    return [key for key in keys if key not in usage.literals]
