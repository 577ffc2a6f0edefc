# SPDX-License-Identifier: MIT
"""Lists the files of the tree, with git or without."""

from collections.abc import Iterator
from pathlib import Path

# The folders that a build leaves in the tree. Hidden folders except .ci belong to tools.
GENERATED = {"build", "node_modules", "__pycache__"}
HIDDEN = {".ci"}
CODE = (".cpp", ".h")


def files_of(folder: Path) -> Iterator[Path]:
    for entry in sorted(folder.iterdir()):
        if entry.is_symlink():
            continue
        if entry.is_dir():
            if entry.name not in GENERATED and (not entry.name.startswith(".") or entry.name in HIDDEN):
                yield from files_of(entry)
        elif entry.is_file():
            yield entry


def code_files(root: Path) -> list[Path]:
    return [file for file in files_of(root) if file.suffix in CODE]
