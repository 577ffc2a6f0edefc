# SPDX-License-Identifier: MIT
"""usage: test_undecodable_names.py LUMORA   Names that are not UTF-8: every command refuses them in one clear line, does the
rest of its work, and writes under no other name."""
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

LUMORA = str(Path(sys.argv[1]).resolve())
# Latin-1.
SOURCE, MARKED, PACKAGE, FOLDER = b"ic\xe9ne.png", b"ic\xe9ne@2x.png", b"ic\xe9ne.ipa", b"dossi\xe9"


class UndecodableNames(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name.encode()
        for name in (SOURCE, MARKED, b"good@2x.png"):
            subprocess.run(["convert", "-size", "1024x1024", "xc:tomato", "png:-"], check=True,
                           stdout=open(os.path.join(self.folder, name), "wb"))
        for name in (FOLDER, b"out"):
            os.mkdir(os.path.join(self.folder, name))

    def refused(self, *arguments, status=1):
        ended = subprocess.run([LUMORA, *arguments], cwd=self.folder, capture_output=True, timeout=60)
        self.assertEqual(ended.returncode, status, ended)
        self.assertEqual(ended.stderr.count(b"\n"), 1, ended.stderr)
        self.assertIn(b"UTF-8", ended.stderr)
        return ended

    def written(self):
        return sorted(os.path.join(where, name).removeprefix(self.folder) for where, _, names in os.walk(self.folder)
                      for name in names if where != self.folder)

    def test_a_source_is_refused(self):
        self.refused("icons", SOURCE, "--platform", "favicon", "--to", "out")
        self.refused("icon", SOURCE, "--size", "16", "--to", "out")
        self.assertEqual(self.written(), [])

    def test_a_destination_is_refused(self):
        self.refused("icons", "--example", "--platform", "favicon", "--to", FOLDER)
        self.refused("icon", "--example", "--size", "16", "--to", FOLDER)
        self.refused("placeholders", "--set", "mac", "--to", FOLDER)
        self.refused("downscale", "good@2x.png", "--to", FOLDER)
        self.assertEqual(self.written(), [])

    def test_the_pictures_beside_it_are_halved(self):
        self.refused("downscale", MARKED, "good@2x.png", "--to", "out")
        self.assertEqual(self.written(), [b"/out/good.png"])

    def test_a_package_is_refused(self):
        Path(os.fsdecode(os.path.join(self.folder, PACKAGE))).write_bytes(b"PK")
        self.refused("validate", PACKAGE, status=3)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
