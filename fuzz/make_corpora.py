#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: make_corpora.py FOLDER   Seeds for the fuzz targets, one folder each, out of the test suite's fixtures."""

import subprocess
import sys
import tempfile
from pathlib import Path

SCRIPTS = Path(__file__).resolve().parent.parent / "tests" / "validator"
LARGEST_SEED = 100_000


def seed(folder, script, pattern, *arguments):
    folder.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as made:
        subprocess.run([sys.executable, "-B", SCRIPTS / script, made, *arguments], check=True)
        for path in Path(made).glob(pattern):
            if path.stat().st_size <= LARGEST_SEED:
                (folder / path.name.replace(" ", "-")).write_bytes(path.read_bytes())


def main():
    out = Path(sys.argv[1])
    seed(out / "fuzz_archive", "make_archives.py", "*.zip")
    seed(out / "fuzz_archive", "make_packages.py", "*.ipa")
    seed(out / "fuzz_property_list", "make_property_lists.py", "*.plist")
    seed(out / "fuzz_signed_message", "make_profiles.py", "*.mobileprovision")
    seed(out / "fuzz_signed_message", "make_profiles.py", "*.mobileprovision", "forms")
    seed(out / "fuzz_apple_png", "make_pictures.py", "*.png")


if __name__ == "__main__":
    main()
