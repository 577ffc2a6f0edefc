# SPDX-License-Identifier: MIT
"""Commit subjects stay short, in a clone, in a shallow one, and in a tree without history."""

import os
import subprocess
import tempfile
import unittest
from pathlib import Path

from subjects import LONGEST, check

SOURCE = Path(os.environ["LUMORA_SOURCE"])
AUTHOR = ["-c", "user.name=Test", "-c", "user.email=test@example.org", "-c", "commit.gpgsign=false"]
LONG = "icons: " + "x" * (LONGEST - 6)
FITTING = "icons: " + "x" * (LONGEST - 7)


class Subjects(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name) / "project"
        self.folder.mkdir()

    def git(self, *arguments, at=0):
        when = {"GIT_AUTHOR_DATE": f"{1_700_000_000 + at} +0000", "GIT_COMMITTER_DATE": f"{1_700_000_000 + at} +0000"}
        run = subprocess.run(["git", *AUTHOR, "-C", str(self.folder), *arguments],
                             stdout=subprocess.PIPE, text=True, check=True, env=os.environ | when)
        return run.stdout.strip()

    def commit(self, subject, at):
        self.git("commit", "--quiet", "--allow-empty", "--message", subject, at=at)
        return self.git("rev-parse", "HEAD")

    def check(self, after, after_time):
        return check(self.folder, after, 1_700_000_000 + after_time)

    def test_the_trees_subjects_are_short(self):
        report = check(SOURCE)
        print(report.looked_at)
        self.assertEqual(report.too_long, [], f"\nsubjects of more than {LONGEST} characters")

    def test_a_long_subject_is_seen(self):
        self.git("init", "--quiet")
        last_unchecked = self.commit(LONG, at=0)
        self.commit(FITTING, at=10)
        self.assertEqual(self.check(last_unchecked, 0).too_long, [])
        self.commit(LONG, at=20)
        report = self.check(last_unchecked, 0)
        self.assertEqual(report.looked_at, "2 commits")
        self.assertEqual([line.split(": ", 1)[1] for line in report.too_long], [LONG])

    def test_characters_count_not_bytes(self):
        self.git("init", "--quiet")
        last_unchecked = self.commit("first", at=0)
        self.commit("icons: " + "ü" * (LONGEST - 7), at=10)
        self.assertEqual(self.check(last_unchecked, 0).too_long, [])

    def test_a_shallow_clone_is_judged_by_time(self):
        self.git("init", "--quiet")
        last_unchecked = self.commit(LONG, at=0)
        self.commit(LONG, at=10)
        self.commit(FITTING, at=20)
        clone = self.folder.parent / "clone"
        self.git("clone", "--quiet", "--depth=2", f"file://{self.folder}", str(clone))
        self.folder = clone
        report = self.check(last_unchecked, 0)
        self.assertIn("does not reach back", report.looked_at)
        self.assertEqual(len(report.too_long), 1)
        self.assertEqual(self.check(last_unchecked, 10).too_long, [])

    def test_a_tree_without_history_passes(self):
        report = self.check("0" * 40, 0)
        self.assertEqual((report.looked_at, report.too_long), ("no history here, nothing to check", []))

    def test_a_tarball_inside_another_project_passes(self):
        self.git("init", "--quiet")
        self.commit(LONG, at=10)
        self.folder = self.folder / "lumora"
        self.folder.mkdir()
        self.assertEqual(self.check("0" * 40, 0).looked_at, "no history here, nothing to check")

    def test_a_history_without_commits_passes(self):
        self.git("init", "--quiet")
        self.assertEqual(self.check("0" * 40, 0).looked_at, "no commit yet, nothing to check")


if __name__ == "__main__":
    unittest.main()
