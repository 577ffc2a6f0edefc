# SPDX-License-Identifier: MIT
"""Builds one mutant, runs its tests, and puts the file back."""

import enum
import os
import signal
import subprocess
from pathlib import Path

from mutants import Mutant


class Verdict(enum.Enum):
    KILLED = "killed"
    SURVIVED = "survived"
    DOES_NOT_BUILD = "does not build"


def run_quietly(command: list[str], tree: Path, seconds: float) -> bool | None:
    """Whether the command succeeded; None if it did not end in time and was killed with all its children."""
    process = subprocess.Popen(command, cwd=tree, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True)
    try:
        return process.wait(seconds) == 0
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        process.wait()
        return None


def judge(mutant: Mutant, tree: Path, build: list[str], test: list[str], seconds: float) -> Verdict:
    """`seconds` is the time limit of the tests; a mutant that makes them hang counts as killed, as with CTest's limits."""
    file = tree / mutant.file
    original = file.read_text("utf-8")
    try:
        file.write_text(mutant.apply(original), "utf-8")
        if not run_quietly(build, tree, 3600):
            return Verdict.DOES_NOT_BUILD
        return Verdict.SURVIVED if run_quietly(test, tree, seconds) else Verdict.KILLED
    finally:
        file.write_text(original, "utf-8")
