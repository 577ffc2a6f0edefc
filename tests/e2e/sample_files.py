# SPDX-License-Identifier: MIT
"""Files that walks give to the program, and what they find afterwards."""

import subprocess


def photo(path, width, height, seed=7):
    """A photo-like picture: plasma noise, the same on every run."""
    subprocess.run(["convert", "-seed", str(seed), "-size", f"{width}x{height}", "plasma:tomato-steelblue", str(path)],
                   check=True)
    return path


def files_below(folder):
    """The content of every file, by its path from the folder."""
    return {str(path.relative_to(folder)): path.read_bytes() for path in folder.rglob("*") if path.is_file()}
