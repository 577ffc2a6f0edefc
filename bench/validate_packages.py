#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: validate_packages.py PATH-TO-LUMORA [RUNS]   `lumora validate` as a whole process, against its promises:

on a signed package of 100 MB in 2,000 files, with all rules and all hashes at most 0.8 times `unzip -q` into a fresh folder
and `rm -rf` of it, and with the classic rules alone at most 0.6 times, measured in turn in the same run;
at most 20 ms more processor time for 200 pictures when they have names of icons (in a package without other files, where the
unpacking does not hide the difference); never more than 80 MB of memory, not for 3.9 GB, not for 100,000 files and not for
a binary of 300 MB either. Times are the best of the runs. The exit status is 1 when a promise is broken.
"""

import os
import plistlib
import random
import subprocess
import sys
import tempfile
import time
import zipfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent.parent / "tests" / "validator"))
from rule_package import Package  # noqa: E402
from signing import Identity  # noqa: E402

MAKER = Path(__file__).with_name("make_package.py")
# Made of holes, so that it takes no disk space.
LARGE_MAKER = Path(__file__).parent.parent / "tests" / "validator" / "make_large_package.py"


def run(command, **how):
    """Seconds and processor seconds."""
    start = time.perf_counter()
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, **how)
    _, status, usage = os.wait4(process.pid, 0)
    seconds = time.perf_counter() - start
    if os.waitstatus_to_exitcode(status) not in (0, 1):
        sys.exit(f"{command[0]} failed")
    return seconds, usage.ru_utime + usage.ru_stime


def peak_memory(command, **how):
    """The peak memory in MB. The system's own figure includes this script's memory before it becomes the program. So the
    peak so far is read from the running program."""
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, **how)
    peak = 0
    while process.poll() is None:
        try:
            if os.readlink(f"/proc/{process.pid}/exe") == str(command[0]):
                status = Path(f"/proc/{process.pid}/status").read_text()
                peak = max(peak, *(int(line.split()[1]) for line in status.splitlines() if line.startswith("VmHWM")))
        except (OSError, TypeError):  # it has ended, or has returned its memory
            pass
        time.sleep(0.001)
    return peak / 1024


def signed(path, files, code_bytes=0):
    """A package for the store with that many files of 50 KB beside its code."""
    package = Package(Identity())
    source = random.Random(1)
    for number in range(files):
        # Half of it can be packed, as of real files.
        package.files[f"art/{number % 40}/{number}.bin"] = source.randbytes(25_000) + bytes(25_000)
    if code_bytes:
        package.code.sections = {"__large": random.Random(2).randbytes(1 << 20) * (code_bytes >> 20)}
        package.code.signature_room = 8 << 20
    package.write(path)


def unpack_and_remove(path, out):
    start = time.perf_counter()
    subprocess.run(["unzip", "-q", path, "-d", out], check=True)
    subprocess.run(["rm", "-rf", out], check=True)
    return time.perf_counter() - start


def many_files(path):
    with zipfile.ZipFile(path, "w") as archive:
        archive.writestr("Payload/Many.app/Info.plist", plistlib.dumps({"CFBundleDisplayName": "Many"}))
        for number in range(100_000):
            archive.writestr(f"Payload/Many.app/{number % 100}/{number}", b"")


def main():
    program, runs = Path(sys.argv[1]).resolve(), int(sys.argv[2]) if len(sys.argv) > 2 else 7
    with tempfile.TemporaryDirectory(dir="/var/tmp") as folder:
        folder = Path(folder)
        names = ("large", "plain", "icons", "huge", "many", "code")
        large, plain, icons, huge, many, code = (folder / f"{name}.ipa" for name in names)
        for arguments in ((plain, "picture"), (icons, "icon")):
            subprocess.run([sys.executable, MAKER, *arguments], check=True)
        signed(large, 2000)
        signed(code, 1, 300_000_000)
        subprocess.run([sys.executable, LARGE_MAKER, huge, "3900"], check=True)
        many_files(many)
        environment = {**os.environ, "TMPDIR": str(folder)}
        unzip, ours, classic, plain_work, icon_work = [], [], [], [], []
        for _ in range(runs):
            unzip.append(unpack_and_remove(large, folder / "unzipped"))
            ours.append(run([program, "validate", "--json", "--rules", "all", large], env=environment)[0])
            classic.append(run([program, "validate", "--json", "--rules", "classic", large], env=environment)[0])
            for _ in range(3):
                for path, works in ((plain, plain_work), (icons, icon_work)):
                    works.append(run([program, "validate", "--json", path], env=environment)[1])
        peaks = [peak_memory([program, "validate", "--json", path], env=environment) for path in (large, huge, many, code)]
    extra = (min(icon_work) - min(plain_work)) * 1000
    shares = ((f"{what} / unzip -q and rm -rf", min(times) / min(unzip), limit,
               f"{min(times) * 1000:.0f} ms / {min(unzip) * 1000:.0f} ms = {min(times) / min(unzip):.2f}")
              for what, times, limit in (("all rules", ours, 0.8), ("classic rules", classic, 0.6)))
    results = (
        *shares,
        ("200 candidate icons on top", extra, 20, f"{extra:.1f} ms"),
        *((f"peak memory, {what}", peak, 80, f"{peak:.1f} MB")
          for what, peak in zip(("100 MB", "3.9 GB", "100,000 files", "code of 300 MB"), peaks)),
    )
    for name, value, limit, text in results:
        print(f"{'ok  ' if value <= limit else 'MISS'} {name}: {text} (at most {limit})")
    sys.exit(any(value > limit for _, value, limit, _ in results))


if __name__ == "__main__":
    main()
