# SPDX-License-Identifier: MIT
"""Names the commits whose subject is too long for a list of commits."""

import subprocess
from dataclasses import dataclass, field
from pathlib import Path

LONGEST = 72

# The last unchecked commit, and its time (in seconds, by the committer's clock).
LAST_UNCHECKED = "c4bfc6f3a666f3e61c92dbe6429ec9bd9a1641b2"
LAST_UNCHECKED_TIME = 1795343186


@dataclass
class Report:
    """What was checked, in words, and one line for each subject that is too long."""

    looked_at: str
    too_long: list[str] = field(default_factory=list)


def git(root: Path, *arguments: str) -> str | None:
    """The output of git; None if there is no git, no history, or no such commit."""
    try:
        run = subprocess.run(["git", "-C", str(root), *arguments], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False)
    except FileNotFoundError:
        return None
    return run.stdout.decode("utf-8", "replace") if run.returncode == 0 else None


def is_root_of_history(root: Path) -> bool:
    """A tarball may be unpacked inside another project's working copy, which has another history."""
    top = git(root, "rev-parse", "--show-toplevel")
    return top is not None and Path(top.rstrip("\n")).resolve() == root.resolve()


def check(root: Path, after: str = LAST_UNCHECKED, after_time: int = LAST_UNCHECKED_TIME) -> Report:
    """Checks the commits made since `after`; if the history is cut off above it, those made after `after_time`."""
    if not is_root_of_history(root):
        return Report("no history here, nothing to check")
    log = ["log", "--no-merges", "--format=%h%x00%ct%x00%s"]
    known = git(root, "merge-base", "--is-ancestor", after, "HEAD") is not None
    listed = git(root, *log, f"{after}..HEAD" if known else "HEAD")
    if listed is None:
        return Report("no commit yet, nothing to check")
    commits = [line.split("\0") for line in listed.splitlines()]
    if not known:
        commits = [commit for commit in commits if int(commit[1]) > after_time]
    report = Report(f"{len(commits)} commits" + ("" if known else f" (the history here does not reach back to {after})"))
    report.too_long = [f"{short} {len(subject)}: {subject}" for short, _, subject in commits if len(subject) > LONGEST]
    return report
