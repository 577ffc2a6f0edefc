# SPDX-License-Identifier: MIT
"""Mutants as data: one small fault in one file each, and the tests that should fail because of it.

A table (FOLDER.toml) holds for each mutant
    fault        what goes wrong, in words; different for each mutant
    file         the file's path from the root of the tree
    original     text that is in the file exactly once
    replacement  the text that replaces it
    tests        the names of the tests that should see it, as a regular expression for the whole name
"""

import re
import tomllib
from dataclasses import dataclass
from pathlib import Path

PLACE = Path(__file__).resolve().parent
FEWEST = 100
FOLDERS = {
    "foundation", "pictures", "icons", "placeholders", "resizer", "color", "devices", "validator", "widgets", "tool", "app", "cli"
}


@dataclass(frozen=True)
class Mutant:
    fault: str
    file: str
    original: str
    replacement: str
    tests: str

    def apply(self, text: str) -> str:
        return text.replace(self.original, self.replacement)


def read_tables(place: Path = PLACE) -> list[Mutant]:
    found: list[Mutant] = []
    for table in sorted(place.glob("*.toml")):
        found += [Mutant(**row) for row in tomllib.loads(table.read_text("utf-8"))["mutant"]]
    return found


def problems(mutants: list[Mutant], root: Path, test_names: list[str]) -> list[str]:
    """Reasons why the tables cannot run: a text that is gone, a test that is gone, a fault that is listed twice."""
    lines: list[str] = []
    for mutant in mutants:
        file = root / mutant.file
        count = file.read_text("utf-8").count(mutant.original) if file.is_file() else -1
        if count < 0:
            lines.append(f"{mutant.fault}: there is no file {mutant.file}")
        elif count != 1:
            lines.append(f"{mutant.fault}: its text is in {mutant.file} {count} times")
        if mutant.original == mutant.replacement:
            lines.append(f"{mutant.fault}: it changes nothing")
        if not any(re.fullmatch(mutant.tests, name) for name in test_names):
            lines.append(f"{mutant.fault}: no test is called {mutant.tests}")
    faults = [(mutant.file, mutant.fault) for mutant in mutants]
    lines += sorted({f"{fault}: is there twice" for file, fault in faults if faults.count((file, fault)) > 1})
    return lines
