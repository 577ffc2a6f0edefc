#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: make_corpora.py FOLDER   Seeds for the fuzz targets, one folder each, from the test suite's fixtures."""

import re
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


def seed_colors(folder):
    """All texts in the rows of the reader's test."""
    folder.mkdir(parents=True, exist_ok=True)
    test = (TESTS / "color/forms/ColorReaderTest.cpp").read_text()
    for number, text in enumerate(re.findall(r'row\("((?:[^"\\]|\\.)+)"', test)):
        (folder / f"color{number:03}").write_text(text.replace('\\"', '"'))


def seed_models(folder):
    """A few rows of the device list each, since a whole list is too large for a fuzzer."""
    folder.mkdir(parents=True, exist_ok=True)
    lines = (TESTS.parent / "devices/today/models.csv").read_text().splitlines(keepends=True)
    rows = [line for line in lines if not line.startswith("#")]
    for first in range(1, len(rows), 20):
        (folder / f"models{first:03}.csv").write_text(rows[0] + "".join(rows[first : first + 3]))


def main():
    out = Path(sys.argv[1])
    seed(out / "fuzz_archive", "validator/make_archives.py", "*.zip")
    seed(out / "fuzz_archive", "validator/make_packages.py", "*.ipa")
    seed(out / "fuzz_asset_catalog", "validator/make_catalogs.py", "*")
    seed(out / "fuzz_binary", "validator/make_binaries.py", "*")
    seed(out / "fuzz_binary", "validator/make_binaries.py", "*", "compiled")
    seed(out / "fuzz_code_signature", "validator/make_signatures.py", "*")
    seed(out / "fuzz_code_signature", "validator/make_signatures.py", "*", "parts")
    seed(out / "fuzz_code_signature", "validator/make_provisioning.py", "*")
    seed(out / "fuzz_property_list", "validator/make_property_lists.py", "*.plist")
    seed(out / "fuzz_signed_message", "validator/make_profiles.py", "*.mobileprovision")
    seed(out / "fuzz_signed_message", "validator/make_profiles.py", "*.mobileprovision", "forms")
    seed(out / "fuzz_apple_png", "validator/make_pictures.py", "*.png")
    seed(out / "fuzz_picture", "pictures/make_pictures.py", "*")
    seed_colors(out / "fuzz_color")
    seed_models(out / "fuzz_model_list")


if __name__ == "__main__":
    main()
