# SPDX-License-Identifier: MIT
"""usage: test_interruption.py LUMORA   Ctrl+C in the middle of a batch: it ends soon with status 130, the files it names are
complete, no partial file is left, and the result reports the interruption. Also the progress line, on a terminal and elsewhere."""
import json
import os
import pty
import select
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

LUMORA = str(Path(sys.argv[1]).resolve())
COUNT = 60


def whole(path):
    return subprocess.run(["identify", "-regard-warnings", path], capture_output=True).returncode == 0


class Interruption(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.scratch.cleanup)
        cls.art = Path(cls.scratch.name, "art")
        cls.art.mkdir()
        # Noise takes long to compress, so that a signal arrives in time.
        subprocess.run(["convert", "-size", "1600x1600", "plasma:", cls.art / "p0@2x.png"], check=True)
        for number in range(1, COUNT):
            (cls.art / f"p{number}@2x.png").write_bytes((cls.art / "p0@2x.png").read_bytes())
        cls.dense = Path(cls.scratch.name, "dense")
        cls.dense.mkdir()
        for number in range(COUNT):
            (cls.dense / f"p{number}@3x.png").hardlink_to(cls.art / "p0@2x.png")

    def stopped(self, number, *arguments):
        """Sends the signal once the first file is there."""
        out = Path(tempfile.mkdtemp(dir=self.scratch.name))
        process = subprocess.Popen([LUMORA, *arguments, "--out", out], stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        end = time.monotonic() + 60
        # Polled without a pause, since nothing sends a notification.
        while time.monotonic() < end and process.poll() is None and not any(path.is_file() for path in out.rglob("*")):
            select.select([], [], [], 0.001)
        process.send_signal(number)
        printed, complained = process.communicate(timeout=60)
        return process.returncode, printed.decode(), complained.decode(), out

    def test_what_is_named_is_whole(self):
        for number, status in ((signal.SIGINT, 130), (signal.SIGTERM, 143)):
            with self.subTest(number):
                returned, printed, complained, out = self.stopped(number, "downscale", str(self.art))
                self.assertEqual(returned, status, complained)
                named = {Path(line) for line in printed.splitlines()}
                self.assertEqual(named, {path for path in out.rglob("*") if path.is_file()})
                self.assertTrue(0 < len(named) < COUNT, len(named))
                self.assertTrue(all(whole(path) for path in named))
                self.assertEqual(complained, f"lumora: interrupted; {len(named)} of {COUNT} files are whole; run it again for the rest\n")

    def test_all_densities_in_work_are_named(self):
        returned, printed, complained, out = self.stopped(signal.SIGINT, "downscale", str(self.dense), "--layout", "ios")
        self.assertEqual(returned, 130, complained)
        named = {Path(line) for line in printed.splitlines()}
        self.assertEqual(named, {path for path in out.rglob("*") if path.is_file()})
        self.assertTrue(all(whole(path) for path in named))
        self.assertEqual(complained, f"lumora: interrupted; {len(named)} of {2 * COUNT} files are whole; run it again for the rest\n")

    def test_the_result_says_so(self):
        returned, printed, _, out = self.stopped(signal.SIGINT, "downscale", str(self.art), "--json")
        self.assertEqual(returned, 130)
        result = json.loads(printed)
        self.assertFalse(result["ok"])
        self.assertEqual([error["code"] for error in result["errors"]], ["interrupted"])
        self.assertEqual({file["path"] for file in result["files"]}, {str(path) for path in out.rglob("*") if path.is_file()})

    def test_icons(self):
        returned, printed, complained, out = self.stopped(signal.SIGINT, "icons", "--example", "--platform", "all")
        # A fast machine may have finished.
        if returned == 0:
            self.assertEqual(sum(path.is_file() for path in out.rglob("*")), 52)
            return
        self.assertEqual(returned, 130, complained)
        self.assertEqual(printed, f"{out}\n")
        self.assertIn("interrupted; ", complained)
        written = [path for path in out.rglob("*") if path.is_file()]
        self.assertFalse([path for path in written if path.name.startswith(".")])
        self.assertTrue(all(whole(f"png:{path}") for path in written if path.suffix != ".icns"))


class Progress(unittest.TestCase):
    def shown(self, *options, **variables):
        """The output of a run on a terminal for standard error."""
        with tempfile.TemporaryDirectory() as folder:
            master, slave = pty.openpty()
            ended = subprocess.Popen([LUMORA, "icons", "--example", "--platform", "all", "--to", folder, *options],
                                     stdout=subprocess.DEVNULL, stderr=slave, env={**os.environ, "TERM": "xterm", **variables})
            os.close(slave)
            text = b""
            while True:
                try:
                    piece = os.read(master, 65536)
                except OSError:
                    break
                if not piece:
                    break
                text += piece
            os.close(master)
            self.assertEqual(ended.wait(), 0)
            return text.decode()

    def test_one_calm_line(self):
        start = time.monotonic()
        shown = self.shown()
        steps = shown.split("\r\x1b[K")[1:]
        # Ten per second, plus the first and the last; the very last one removes the line.
        self.assertLessEqual(len(steps), 3 + 10 * (time.monotonic() - start) + 1)
        self.assertTrue(steps[0].startswith("1/51 "), steps)
        self.assertTrue(steps[-2].startswith("51/51 "), steps)
        self.assertEqual(steps[-1], "")
        self.assertNotIn("\n", shown)

    def test_none_where_nobody_wants_it(self):
        self.assertEqual(self.shown(TERM="dumb"), "")
        self.assertEqual(self.shown("-q"), "")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
