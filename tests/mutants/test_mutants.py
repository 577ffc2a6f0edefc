# SPDX-License-Identifier: MIT
"""The tables of mutants fit the tree, and the check sees each way in which they might not. ./run plants the mutants."""

import json
import os
import subprocess
import tempfile
import unittest
from dataclasses import replace
from pathlib import Path

from mutants import FEWEST, FOLDERS, Mutant, problems, read_tables
from verdicts import Verdict, judge

SOURCE = Path(os.environ["LUMORA_SOURCE"])
BUILD = Path(os.environ["LUMORA_BUILD"])

SOUND = Mutant("an edge of ten is refused", "icons/Edge.cpp", "edge <= 10", "edge < 10", "test_edge|test_icons")
FAULTS = {
    "a text that is gone": (replace(SOUND, original="edge <= 11"), "0 times"),
    "a text that is there twice": (replace(SOUND, original="edge"), "2 times"),
    "a file that is gone": (replace(SOUND, file="icons/Gone.cpp"), "no file"),
    "a mutant that changes nothing": (replace(SOUND, replacement="edge <= 10"), "changes nothing"),
    "a test that is gone": (replace(SOUND, tests="test_gone"), "no test"),
    "a part of a test's name": (replace(SOUND, tests="edge"), "no test"),
}


def tests_of_the_build():
    run = subprocess.run(["ctest", "--show-only=json-v1"], cwd=BUILD, stdout=subprocess.PIPE, check=True)
    return [test["name"] for test in json.loads(run.stdout)["tests"]]


class Tables(unittest.TestCase):
    def test_they_fit_the_tree(self):
        found = problems(read_tables(), SOURCE, tests_of_the_build())
        self.assertEqual(found, [], "\nfit the rows of tests/mutants/*.toml to the change:\n" + "\n".join(found))

    def test_there_are_enough_in_every_folder(self):
        mutants = read_tables()
        self.assertGreaterEqual(len(mutants), FEWEST)
        self.assertEqual({mutant.file.split("/")[0] for mutant in mutants}, FOLDERS)


class TheCheckItself(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        (self.folder / "icons").mkdir()
        (self.folder / "icons/Edge.cpp").write_text("bool fits(int edge) { return edge <= 10; }\n")

    def found(self, *mutants):
        return problems(list(mutants), self.folder, ["test_edge", "test_other"])

    def test_it_has_nothing_against_a_sound_table(self):
        self.assertEqual(self.found(SOUND), [])

    def test_it_sees_each_fault(self):
        for fault, (mutant, words) in FAULTS.items():
            with self.subTest(fault):
                found = self.found(mutant)
                self.assertEqual(len(found), 1)
                self.assertIn(words, found[0])

    def test_it_sees_the_same_mutant_twice(self):
        self.assertEqual(self.found(SOUND, SOUND), ["an edge of ten is refused: is there twice"])


class Verdicts(unittest.TestCase):
    """judge() over a tree in which `sh` is the compiler and the test."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tree = Path(folder.name)
        (self.tree / "icons").mkdir()
        self.file = self.tree / "icons/Edge.cpp"
        self.file.write_text("test $1 -le 10 # edge <= 10\n")

    def judge(self, original, replacement, build="true"):
        mutant = Mutant("a fault", "icons/Edge.cpp", original, replacement, "test_edge")
        verdict = judge(mutant, self.tree, ["sh", "-c", build], ["sh", str(self.file), "10"], seconds=5)
        self.assertEqual(self.file.read_text(), "test $1 -le 10 # edge <= 10\n", "the file is put back")
        return verdict

    def test_a_failing_test_kills(self):
        self.assertEqual(self.judge("-le 10", "-lt 10"), Verdict.KILLED)

    def test_a_test_that_does_not_end_kills(self):
        verdict = judge(Mutant("a fault", "icons/Edge.cpp", "test $1 -le 10", "exec sleep 60", "test_edge"), self.tree,
                        ["true"], ["sh", str(self.file)], seconds=1)
        self.assertEqual(verdict, Verdict.KILLED)

    def test_what_no_test_sees_survives(self):
        self.assertEqual(self.judge("# edge", "# limit"), Verdict.SURVIVED)

    def test_what_does_not_compile_is_no_mutant(self):
        self.assertEqual(self.judge("-le 10", "-lt 10", build="exit 1"), Verdict.DOES_NOT_BUILD)

    def test_the_file_is_put_back_after_an_interruption(self):
        mutant = Mutant("a fault", "icons/Edge.cpp", "-le 10", "-lt 10", "test_edge")
        with self.assertRaises(FileNotFoundError):
            judge(mutant, self.tree, ["/nowhere/ninja"], ["true"], seconds=5)
        self.assertEqual(self.file.read_text(), "test $1 -le 10 # edge <= 10\n")


if __name__ == "__main__":
    unittest.main()
