#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks the text tables against each other, the icon catalogue and the code; exits with 1 if there is a fault."""

import argparse
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

from snippets import catalogue_names, catalogue_problems, snippet_problems
from source_code import unused_keys, usage_of, usage_problems
from tables import Table, comparison_problems, load_table, table_problems

ENGLISH = "lumora_en.ts"


def load_tables(folder: Path) -> tuple[list[Table], list[str]]:
    tables, problems = [], []
    for path in sorted(folder.glob("lumora_*.ts")):
        try:
            tables.append(load_table(path))
        except ElementTree.ParseError as error:
            problems.append(f"{path.name}: is not well-formed XML: {error}")
    return tables, problems


def problems_of(root: Path, strict: bool) -> list[str]:
    """One line for each fault."""
    tables, problems = load_tables(root / "resources" / "strings")
    english = next((table for table in tables if table.path.name == ENGLISH), None)
    if english is None:
        return problems + [f"resources/strings/{ENGLISH}: cannot be read; every other table is compared with it"]
    names = catalogue_names(root / "icons")
    problems += catalogue_problems(names)
    for table in tables:
        problems += table_problems(table)
        problems += comparison_problems(english, table)
        problems += snippet_problems(table, english, names)
    keys = [message.key for message in english.messages]
    usage = usage_of(root)
    problems += usage_problems(usage, set(keys))
    if strict:
        problems += [f"{ENGLISH}: {key} is used nowhere" for key in unused_keys(usage, keys)]
    return problems


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--root", type=Path, default=Path(__file__).resolve().parents[3], help="top folder of the tree")
    parser.add_argument("--strict", action="store_true", help="also refuse keys that no code uses")
    arguments = parser.parse_args()
    problems = problems_of(arguments.root, arguments.strict)
    for problem in problems:
        print(problem, file=sys.stderr)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
