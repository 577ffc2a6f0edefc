#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes the largest placeholder, 9999 x 9999, and the two sets, as whole processes: time, processor time, memory, bytes.

usage: bench/largest_placeholder.py LUMORA [--runs N]
"""
import argparse
import os
import tempfile
import time
from pathlib import Path

JOBS = {"9999 x 9999": ["--size", "9999x9999"], "the iOS set": ["--set", "ios"], "the Mac set": ["--set", "mac"]}


def run(command):
    """Seconds, seconds of processor time, and the process's peak memory in bytes."""
    start = time.perf_counter()
    child = os.posix_spawn(command[0], command, os.environ, file_actions=[(os.POSIX_SPAWN_OPEN, 1, "/dev/null", os.O_WRONLY, 0)])
    _, status, usage = os.wait4(child, 0)
    if status != 0:
        raise SystemExit(f"{' '.join(command)} ended with {os.waitstatus_to_exitcode(status)}")
    return time.perf_counter() - start, usage.ru_utime + usage.ru_stime, usage.ru_maxrss * 1024


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("lumora")
    parser.add_argument("--runs", type=int, default=5)
    options = parser.parse_args()
    lumora = str(Path(options.lumora).resolve())
    for name, arguments in JOBS.items():
        figures = []
        for _ in range(options.runs):
            with tempfile.TemporaryDirectory() as out:
                figures.append(run([lumora, "placeholders", *arguments, "--to", out]))
                size = sum(file.stat().st_size for file in Path(out).rglob("*.png"))
        times, processor_times, memories = zip(*figures)
        print(f"{name:12} {min(times) * 1000:6.0f} ms  {min(processor_times) * 1000:6.0f} ms of processor  "
              f"{max(memories) / 1e6:5.0f} MB of memory  {size / 1e6:6.2f} MB written")


if __name__ == "__main__":
    main()
