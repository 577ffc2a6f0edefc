# SPDX-License-Identifier: MIT
"""Names the C++ files that clang-format would change."""

import subprocess
from pathlib import Path

from tree import code_files


def unformatted(root: Path) -> list[str]:
    """One line per file, with the first difference. The style is the tree's .clang-format."""
    files = [str(file.relative_to(root)) for file in code_files(root)]
    if not files:
        return []
    run = subprocess.run(
        ["clang-format", "--dry-run", "--Werror", "--style=file", *files],
        cwd=root, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False,
    )
    first: dict[str, str] = {}
    for line in run.stdout.splitlines():
        if "clang-format-violations" in line:
            first.setdefault(line.split(":")[0], line)
    if run.returncode != 0 and not first:
        raise RuntimeError(run.stdout)
    return list(first.values())
