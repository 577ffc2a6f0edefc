# SPDX-License-Identifier: MIT
"""The commands when the file system fails: no crash, no hang, no partial file, no false report of success."""
import os
import re
import shutil
import subprocess
import tempfile
import unittest
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass, replace
from pathlib import Path

from jobs import COMMANDS, WINDOW_JOBS

JOBS = COMMANDS + WINDOW_JOBS

PRELOAD = os.environ["LUMORA_FAILING_CALLS"]
# The hidden name of a file while it replaces an old one.
PENDING = re.compile(r"(.*/)?\.([^/]+)\.lumora-pending")
# A job takes a fraction of a second; the limit is a hundred times that, for a machine under load.
HANG = 60 * float(os.environ.get("LUMORA_TIME_FACTOR", "1"))


@dataclass
class Run:
    """The end of one run, and the files that it left."""

    status: int
    out: bytes
    err: str
    files: dict
    temporary: list


def contents(folder):
    return {str(path.relative_to(folder)): path.read_bytes() for path in sorted(folder.rglob("*")) if path.is_file()}


def run(job, stdout=subprocess.PIPE, prefix=(), again=False, **faults):
    """Runs the job in its own folder, with LUMORA_FAULT_* set from the keywords; with `again`, once more in
    the same folder without them, and returns the result of that run."""
    with tempfile.TemporaryDirectory() as place:
        place = Path(place)
        for name, files in {"in": job.sources, "out": job.present, "tmp": {}, "run": {}, "here": {}}.items():
            (place / name).mkdir(mode=0o700)
            for file, content in files.items():
                (place / name / file).parent.mkdir(exist_ok=True)
                (place / name / file).write_bytes(content)
        environment = os.environ | {"TMPDIR": str(place / "tmp"), "XDG_RUNTIME_DIR": str(place / "run"), "LD_PRELOAD": PRELOAD}
        environment |= {f"LUMORA_FAULT_{key.upper()}": str(value) for key, value in faults.items()}
        words = [word.replace("{in}", f"{place}/in").replace("{out}", f"{place}/out") for word in job.arguments]
        command = [*prefix, job.program, *words]
        process = subprocess.run(command, stdout=stdout, stderr=subprocess.PIPE, env=environment, cwd=place / "here",
                                 timeout=HANG, check=False)
        if again:
            environment = {key: value for key, value in environment.items()
                           if key not in ("LUMORA_FAULT_AT", "LUMORA_FAULT_LOG")}
            process = subprocess.run(command, stdout=stdout, stderr=subprocess.PIPE, env=environment, cwd=place / "here",
                                 timeout=HANG, check=False)
        # The folder has another name each time, so results are compared without the name.
        return Run(
            process.returncode,
            (process.stdout or b"").replace(bytes(place), b""),
            process.stderr.decode(),
            contents(place / "out"),
            # Qt makes its own folder there if it cannot use the given one. The user's working folder must stay unchanged.
            sorted(path.name for path in [*(place / "tmp").iterdir(), *(place / "here").iterdir()]
                   if not path.name.startswith("runtime-")),
        )


def counted_calls(job, **faults):
    with tempfile.NamedTemporaryFile() as log:
        run(job, log=log.name, **faults)
        return Path(log.name).read_text().split()


class Faults(unittest.TestCase):
    def each(self, job, kind, **faults):
        """The run without a fault, its calls, and the run with a fault, for each call in turn."""
        if kind not in job.kinds:
            return
        sound = run(job)
        self.assertEqual((sound.status, sound.temporary, sound.err), (job.status, [], ""), sound.out)
        calls = counted_calls(job, **faults)
        self.assertGreater(len(calls), 2, "the preload counts nothing")
        with ThreadPoolExecutor(max_workers=2) as pool:
            runs = pool.map(lambda number: run(job, at=number, kind=kind, **faults), range(1, len(calls) + 1))
            yield from ((sound, f"{job.name}, {kind} at {number}: {calls[number - 1]}", ended)
                        for number, ended in enumerate(runs, 1))

    def assert_no_torso(self, job, sound, ended):
        for name, content in job.present.items():
            self.assertIn(name, ended.files, "a file of the user's is gone")
            self.assertIn(ended.files[name], (content, sound.files[name]), f"{name} is neither old nor new")
        for name, content in ended.files.items():
            if name not in job.present:
                self.assertEqual(content, sound.files.get(name), f"{name} is no whole result")

    def assert_honest(self, job, sound, ended):
        self.assertGreaterEqual(ended.status, 0, f"ended by signal {-ended.status}")
        self.assert_no_torso(job, sound, ended)
        self.assertEqual(ended.temporary, [], "something was left behind")
        if ended.err == "" or ended.status == 0:
            self.assertEqual((ended.status, ended.out, ended.files), (job.status, sound.out, sound.files), "nothing was said")
        else:
            self.assertRegex(ended.err, "(?m)^lumora: ")

    def test_a_call_that_fails_once_is_told(self):
        for job in JOBS:
            for sound, what, ended in self.each(job, "once"):
                with self.subTest(what):
                    self.assert_honest(job, sound, ended)

    def test_a_disk_that_stays_full_is_told(self):
        for job in JOBS:
            for sound, what, ended in self.each(job, "onwards"):
                with self.subTest(what):
                    self.assert_honest(job, sound, ended)

    def test_a_file_system_without_unnamed_files_does_as_well(self):
        for job in JOBS:
            for sound, what, ended in self.each(job, "once", named=1):
                with self.subTest(what):
                    self.assert_honest(job, sound, ended)

    def test_a_write_that_takes_half_is_continued(self):
        for job in JOBS:
            for sound, what, ended in self.each(job, "short"):
                with self.subTest(what):
                    self.assertEqual((ended.status, ended.out, ended.files), (job.status, sound.out, sound.files), ended.err)

    def test_an_interrupted_write_is_repeated(self):
        for job in JOBS:
            for sound, what, ended in self.each(job, "interrupted"):
                with self.subTest(what):
                    self.assertEqual((ended.status, ended.out, ended.files), (job.status, sound.out, sound.files), ended.err)

    def test_a_killed_job_leaves_whole_files_only(self):
        for job in JOBS:
            for sound, what, ended in self.each(job, "kill"):
                with self.subTest(what):
                    self.assertEqual(ended.status, -9)
                    # A file can only be replaced by renaming another. Just before that, the complete new file is beside it.
                    for name in list(ended.files):
                        waiting = PENDING.fullmatch(name)
                        if waiting and what.endswith(": rename"):
                            replaced = (waiting[1] or "") + waiting[2]
                            self.assertEqual(ended.files.pop(name), sound.files[replaced])
                    self.assert_no_torso(job, sound, ended)

    def test_what_a_killed_job_left_goes_with_the_next_one(self):
        for job in JOBS:
            # The others write into a folder of their own, which stays unchanged.
            if not job.replaces and "{out}" in job.arguments:
                continue
            for named in ({}, {"named": 1}) if job.replaces else ({},):
                for sound, what, ended in self.each(job, "kill", again=True, **named):
                    with self.subTest(f"{what} {named}"):
                        self.assertEqual((ended.status, ended.temporary, ended.files), (job.status, [], sound.files))

    def test_the_window_outlives_a_call_that_fails(self):
        for job in JOBS:
            for sound, what, ended in self.each(job, "once in the window"):
                with self.subTest(what):
                    self.assertEqual((ended.status, ended.temporary), (0, []), ended.err)
                    self.assert_no_torso(job, sound, ended)

    def test_results_that_nobody_receives_are_no_success(self):
        for job in COMMANDS:
            with self.subTest(job.name), open("/dev/full", "wb") as full:
                ended = run(job, stdout=full)
                self.assertGreater(ended.status, 0)
                self.assertIn("standard output", ended.err)

    @unittest.skipUnless(os.geteuid() == 0 and shutil.which("unshare"), "mounting needs root; the full disk above is the same")
    def test_a_small_file_system_is_filled_and_told(self):
        # One page has space for the folders, but not for the results.
        mount = ["unshare", "--mount", "--propagation", "private", "sh", "-c", 'mount -t tmpfs -o size=4k,mode=700 tmpfs "$0"; exec "$@"']
        for job in [job for job in COMMANDS if not job.reads_present]:
            with self.subTest(job.name), tempfile.TemporaryDirectory() as small:
                words = [word.replace("{out}", small) for word in job.arguments]
                filled = replace(job, arguments=words, present={})
                ended = run(filled, prefix=[*mount, small, "env", f"TMPDIR={small}"])
                self.assertGreater(ended.status, 0)
                self.assertRegex(ended.err, "No space left on device|the disk is nearly full")


if __name__ == "__main__":
    unittest.main()
