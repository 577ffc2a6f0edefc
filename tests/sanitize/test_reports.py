# SPDX-License-Identifier: MIT
"""Does a sanitizer report faults in our code? Each fault of faulty.cpp must be reported, by name and in the place where the
runs of the suite look for reports; the correct variants must not.

usage: test_reports.py FAULTY SANITIZERS
"""
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

FAULTY, SANITIZERS = sys.argv[1], sys.argv[2].split(",")
OPTIONS = ("ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS", "TSAN_OPTIONS")

WRONG = {
    "address": {"use after free": "heap-use-after-free", "overrun": "heap-buffer-overflow", "leak": "detected memory leaks"},
    "undefined": {"overflow": "signed integer overflow"},
    "thread": {f"race {where}": "data race" for where in ("of threads", "of toolkit threads", "on a thread pool", "by the event loop")},
}
RIGHT = {
    "thread": ["threads in turn", "toolkit threads in turn", "a thread pool in turn", "the event loop in turn",
               "word by the event loop"],
}


def run(kind):
    """The exit status, and the reports."""
    with tempfile.TemporaryDirectory() as folder:
        environment = os.environ | {
            name: f"{os.environ.get(name, '')}:log_path='{folder}/report'" for name in OPTIONS}
        ended = subprocess.run([FAULTY, kind], env=environment, capture_output=True, text=True, check=False)
        return ended.returncode, "".join(report.read_text() for report in Path(folder).iterdir()), ended.stderr


class Reports(unittest.TestCase):
    def test_a_fault_is_reported(self):
        for sanitizer in SANITIZERS:
            for kind, words in WRONG[sanitizer].items():
                with self.subTest(kind):
                    status, report, _ = run(kind)
                    self.assertNotEqual(status, 0)
                    self.assertIn(words, report)
                    self.assertIn("Faulty.cpp", report)

    def test_what_is_right_is_not(self):
        for sanitizer in SANITIZERS:
            for kind in RIGHT.get(sanitizer, []):
                with self.subTest(kind):
                    self.assertEqual(run(kind), (0, "", ""))

    def test_a_container_looks_at_the_index(self):
        status, _, error = run("index past the end")
        self.assertNotEqual(status, 0)
        self.assertIn("index out of range", error)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
