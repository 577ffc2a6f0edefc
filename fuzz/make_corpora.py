#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: make_corpora.py FOLDER   Seeds for the fuzz targets, one folder each, out of the test suite's fixtures."""

import subprocess
import sys
import tempfile
from pathlib import Path

TESTS = Path(__file__).resolve().parent.parent / "tests"
LARGEST_SEED = 100_000


def seed(folder, script, pattern, *arguments):
    folder.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as made:
        subprocess.run([sys.executable, "-B", TESTS / script, made, *arguments], check=True)
        for path in Path(made).glob(pattern):
            if path.stat().st_size <= LARGEST_SEED:
                (folder / path.name.replace(" ", "-")).write_bytes(path.read_bytes())


def main():
    out = Path(sys.argv[1])
    seed(out / "fuzz_archive", "validator/make_archives.py", "*.zip")
    seed(out / "fuzz_archive", "validator/make_packages.py", "*.ipa")
    seed(out / "fuzz_binary", "validator/make_binaries.py", "*")
    seed(out / "fuzz_binary", "validator/make_binaries.py", "*", "compiled")
    seed(out / "fuzz_property_list", "validator/make_property_lists.py", "*.plist")
    seed(out / "fuzz_signed_message", "validator/make_profiles.py", "*.mobileprovision")
    seed(out / "fuzz_signed_message", "validator/make_profiles.py", "*.mobileprovision", "forms")
    seed(out / "fuzz_apple_png", "validator/make_pictures.py", "*.png")
    seed(out / "fuzz_picture", "pictures/make_pictures.py", "*")


if __name__ == "__main__":
    main()
