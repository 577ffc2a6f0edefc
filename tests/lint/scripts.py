# SPDX-License-Identifier: MIT
"""Finds the shell scripts of the tree and what shellcheck says about them."""

import re
import subprocess
from pathlib import Path

from tree import files_of

SHEBANG = re.compile(rb"#!.*\b(?:ba|da)?sh\b")
# A running shell reads completions, so they have no interpreter line.
SOURCED = {".bash": "bash"}


def shell_scripts(root: Path) -> dict[Path, str | None]:
    """Each script with the dialect for shellcheck, None if the first line names it."""
    found: dict[Path, str | None] = {}
    for file in files_of(root):
        with file.open("rb") as stream:
            first_line = stream.readline(200)
        if SHEBANG.match(first_line):
            found[file] = None
        elif file.suffix in SOURCED:
            found[file] = SOURCED[file.suffix]
    return found


def complaints(root: Path) -> list[str]:
    lines: list[str] = []
    for script, dialect in shell_scripts(root).items():
        command = ["shellcheck", "--format=gcc", *([f"--shell={dialect}"] if dialect else []), str(script.relative_to(root))]
        run = subprocess.run(command, cwd=root, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
        lines += run.stdout.splitlines()
        if run.returncode != 0 and not run.stdout:
            raise RuntimeError(f"shellcheck ended with {run.returncode} at {script}")
    return lines
