# SPDX-License-Identifier: MIT
"""Every C++ file is formatted by clang-format."""

import os
import shutil
import tempfile
import unittest
from pathlib import Path

from formatting import unformatted

SOURCE = Path(os.environ["LUMORA_SOURCE"])

SOUND = "int twice(int number)\n{\n    return number * 2;\n}\n"
FAULTS = {
    "an indentation of two": SOUND.replace("    return", "  return"),
    "a brace at the end of a line": SOUND.replace(")\n{", ") {"),
    "a line of more than 120 columns": f"int {'a' * 70} = 1 +\n    {'b' * 50} + 2;\n{SOUND}".replace(" +\n    ", " + "),
    "includes out of order": '#include "b.h"\n#include "a.h"\n' + SOUND,
    "a space too many": SOUND.replace("number * 2", "number  * 2"),
}


class Formatting(unittest.TestCase):
    def test_the_tree_is_formatted(self):
        found = unformatted(SOURCE)
        self.assertEqual(found, [], "\nclang-format -i mends these:\n" + "\n".join(found))

    def test_each_fault_is_seen(self):
        for fault, text in FAULTS.items():
            with self.subTest(fault), tempfile.TemporaryDirectory() as name:
                folder = Path(name)
                shutil.copy(SOURCE / ".clang-format", folder)
                (folder / "sound").mkdir()
                (folder / "sound/Sound.h").write_text(SOUND)
                self.assertEqual(unformatted(folder), [])
                (folder / "sound/Faulty.cpp").write_text(text)
                found = unformatted(folder)
                self.assertEqual([line.split(":")[0] for line in found], ["sound/Faulty.cpp"])


if __name__ == "__main__":
    unittest.main()
