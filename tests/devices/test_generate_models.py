#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# usage: test_generate_models.py cmake source-folder   The build makes a table of the tree's device list, and of no broken one.
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CMAKE, SOURCE = sys.argv[1], Path(sys.argv[2])
DEVICES = SOURCE / "devices/today"

NEW = '"iPhone18,5",iPhone 17e,2026-03-11,A19,arm64e,26,27,1170,2532,3,1170,2532,390,844,6.1,460,faceid,0,0,1,1,1,1,1,1,1'
OLD = '"iPhone17,5",iPhone 16e,2025-02-28,A18,arm64e,18,27,1170,2532,3,1170,2532,390,844,6.1,460,faceid,0,0,1,1,1,1,1,1,1'
PAD = '"iPad1,1",iPad,2010-04-03,A4,armv7,3.2,5.1.1,768,1024,1,768,1024,768,1024,9.7,132,none,0,0,0,0,0,0,0,0,0'

# The rows, and the reason to stop.
FAULTS = {
    "a width that is not points times scale": ([NEW.replace("390", "391")], "1170x2532 is not points times scale"),
    "a height that is not points times scale": ([NEW.replace("844", "845")], "1170x2532 is not points times scale"),
    "a scale without sizes": ([NEW.replace("3,1170,2532,390,844", ",1170,2532,390,844")], "1170x2532 is not points times scale"),
    "an identifier twice": ([NEW, NEW], "iPhone18,5\" comes twice"),
    "an identifier twice with another name": ([NEW, NEW.replace("17e", "17f")], "iPhone18,5\" comes twice"),
    "an older model first": ([OLD, NEW], "comes after an older day"),
    "a family in two places": ([NEW, PAD, OLD], "is apart from its family"),
    "another maker's model": ([NEW.replace("iPhone18,5", "Pixel9")], "is of no iPhone, iPad or iPod"),
    "a date of another form": ([NEW.replace("2026-03-11", "11.03.2026")], "is no date"),
    "a version of words": ([NEW.replace(",26,27,", ",new,27,")], "is no version"),
    "no flag": ([NEW[:-1] + "2"], "is no flag"),
    "a column too few": ([NEW[:-2]], "too few columns"),
    "a column too many": ([NEW + ",1"], "too many columns"),
}


class Generator(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def generated(self, rows):
        header = next(line for line in (DEVICES / "models.csv").read_text().splitlines() if line.startswith("identifier,"))
        (self.folder / "models.inc").unlink(missing_ok=True)
        (self.folder / "list.csv").write_text("\n".join(["# why", header, *rows]) + "\n")
        return self.run_on(self.folder / "list.csv")

    def run_on(self, models):
        call = [CMAKE, "-D", f"LIST={models}", "-D", f"TABLE={self.folder / 'models.inc'}"]
        return subprocess.run([*call, "-P", str(DEVICES / "GenerateModels.cmake")], capture_output=True, text=True)

    def test_the_list_of_the_tree_has_a_row_for_each_line(self):
        made = self.run_on(DEVICES / "models.csv")
        self.assertEqual(made.returncode, 0, made.stderr)
        lines = [line for line in (DEVICES / "models.csv").read_text().splitlines() if line.startswith('"')]
        self.assertEqual(len((self.folder / "models.inc").read_text().splitlines()), len(lines))

    def test_sound_rows_are_taken(self):
        made = self.generated([NEW, OLD, PAD])
        self.assertEqual(made.returncode, 0, made.stderr)

    def test_each_broken_list_stops_the_build(self):
        for fault, (rows, reason) in FAULTS.items():
            with self.subTest(fault):
                made = self.generated(rows)
                self.assertNotEqual(made.returncode, 0)
                self.assertRegex(" ".join(made.stderr.split()), reason)
                self.assertFalse((self.folder / "models.inc").exists())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
