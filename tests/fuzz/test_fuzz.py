# SPDX-License-Identifier: MIT
"""Builds the fuzz targets and runs each over its seeds and for a moment more: too short to find new faults, but
old ones stay repaired. fuzz/README.md describes longer runs.
"""
import os
import subprocess
import sys
import unittest
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

SOURCE = Path(os.environ["LUMORA_SOURCE"])
BUILD = SOURCE / "build" / "fuzz"
SECONDS = 2


def checked(*command):
    result = subprocess.run(
        [str(part) for part in command], cwd=SOURCE, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False
    )
    assert result.returncode == 0, f"{' '.join(map(str, command))}\n{result.stdout[-5000:]}"
    return result.stdout


def targets():
    """The targets are listed only in the build."""
    listing = (SOURCE / "fuzz" / "CMakeLists.txt").read_text()
    return [line.split("(")[1].split()[0] for line in listing.splitlines() if line.startswith("lumora_fuzzer(")]


def fuzz(target):
    seeds = BUILD / "corpora" / target
    found = BUILD / "found" / target
    found.mkdir(parents=True, exist_ok=True)
    return subprocess.run(
        [
            BUILD / "fuzz" / target, f"-max_total_time={SECONDS}", "-timeout=10", "-rss_limit_mb=2048", "-print_final_stats=1",
            f"-artifact_prefix={found}/", found, seeds,
        ],
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace", check=False,
        env=os.environ | {"UBSAN_OPTIONS": "print_stacktrace=1", "QT_LOGGING_RULES": "*=false"},
    )


class Fuzz(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        # It starts with the first tests, uses what they leave of the processors, and would otherwise be alone at the end.
        os.nice(5)
        checked("cmake", "--preset", "fuzz")
        checked("cmake", "--build", "--preset", "fuzz", "--target", *targets())
        checked(sys.executable, SOURCE / "fuzz" / "make_corpora.py", BUILD / "corpora")

    def test_every_target_has_seeds(self):
        self.assertGreater(len(targets()), 0)
        for target in targets():
            self.assertTrue(any((BUILD / "corpora" / target).iterdir()), target)

    def test_nothing_is_found(self):
        with ThreadPoolExecutor(max_workers=2) as pool:
            for target, result in zip(targets(), pool.map(fuzz, targets())):
                with self.subTest(target):
                    self.assertEqual(result.returncode, 0, result.stdout[-6000:])
                    runs = [line.split()[1] for line in result.stdout.splitlines() if "number_of_executed_units" in line]
                    seeds = len(list((BUILD / "corpora" / target).iterdir()))
                    self.assertGreaterEqual(int(runs[0]), seeds, "it did not get through its seeds")


if __name__ == "__main__":
    unittest.main()
