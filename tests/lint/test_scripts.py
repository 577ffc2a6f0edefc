# SPDX-License-Identifier: MIT
"""shellcheck has no complaint about any shell script."""

import os
import tempfile
import unittest
from pathlib import Path

from scripts import complaints, shell_scripts

SOURCE = Path(os.environ["LUMORA_SOURCE"])

SOUND = '#!/usr/bin/env bash\nset -euo pipefail\nfor name in "$@"; do\n  echo "$name"\ndone\n'
FAULTS = {
    "a variable without quotes": ("run", SOUND.replace('echo "$name"', "rm $name"), "SC2086"),
    "a variable nobody set": ("run", SOUND + 'echo "$nmae"\n', "SC2154"),
    "a cd that may fail": ("make.sh", "#!/bin/sh\ncd build\nls\n", "SC2164"),
    "a completion with a fault": ("shell/lumora.bash", "_lumora() { local a=$(compgen -W x); echo $a; }\n", "SC2155"),
}


class Scripts(unittest.TestCase):
    def test_the_trees_scripts_are_sound(self):
        found = complaints(SOURCE)
        self.assertEqual(found, [], "\n" + "\n".join(found))

    def test_scripts_are_found_by_their_first_line(self):
        names = {str(script.relative_to(SOURCE)) for script in shell_scripts(SOURCE)}
        self.assertLessEqual({"run", "test", ".ci/run", "tests/sanitize/asan", "packaging/shell/lumora.bash"}, names)

    def test_each_fault_is_seen(self):
        for fault, (name, text, number) in FAULTS.items():
            with self.subTest(fault), tempfile.TemporaryDirectory() as folder_name:
                folder = Path(folder_name)
                (folder / "sound").write_text(SOUND)
                self.assertEqual(complaints(folder), [])
                (folder / name).parent.mkdir(exist_ok=True)
                (folder / name).write_text(text)
                found = complaints(folder)
                self.assertTrue(any(line.startswith(name) and number in line for line in found), found)


if __name__ == "__main__":
    unittest.main()
