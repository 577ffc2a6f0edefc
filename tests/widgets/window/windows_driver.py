# SPDX-License-Identifier: MIT
"""Starts window systems and the windows probe on them, and talks to it."""
import json
import os
import shutil
import subprocess
import sys
import tempfile
import time


class Failure(Exception):
    pass


def check(condition, message):
    if not condition:
        raise Failure(message)


# Instrumented programs get more time.
FACTOR = float(os.environ.get("LUMORA_TIME_FACTOR", "1"))


def wait_for(what, condition, seconds=10 * FACTOR):
    """Calls the condition until its result is true, and returns the result."""
    end = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise Failure(f"waited in vain for {what}")
        time.sleep(0.05)


class Processes:
    """Child processes that end with the block, the last one first."""

    def __init__(self):
        self.started = []

    def __enter__(self):
        self.folder = tempfile.mkdtemp()
        return self

    def __exit__(self, *_):
        for process in reversed(self.started):
            process.terminate()
            try:
                process.wait(5)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        shutil.rmtree(self.folder)

    def start(self, command, environment=None, **options):
        process = subprocess.Popen(command, env=environment, **options)
        self.started.append(process)
        return process


class Probe:
    def __init__(self, processes, program, environment, *options):
        self.process = processes.start([program, *options], environment, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                       text=True)

    def tell(self, command):
        self.process.stdin.write(command + "\n")
        self.process.stdin.flush()

    def report(self):
        self.tell("report")
        line = self.process.stdout.readline()
        check(line, "the probe has ended")
        return json.loads(line)

    def wait(self, what, condition):
        """The first report that meets the condition."""
        last = None

        def met():
            nonlocal last
            last = self.report()
            return condition(last) and last

        try:
            return wait_for(what, met)
        except Failure as failure:
            raise Failure(f"{failure}; last: {last}") from None


def run(checks, *arguments):
    """Runs the checks, each with a new probe, and exits with the number that failed."""
    failed = 0
    for one in checks:
        name = one.__name__.replace("_", " ")
        try:
            one(*arguments)
            print("ok  ", name, flush=True)
        except Failure as failure:
            failed += 1
            print("FAIL", name + ":", failure, flush=True)
    sys.exit(failed)
