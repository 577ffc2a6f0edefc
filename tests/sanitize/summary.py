# SPDX-License-Identifier: MIT
"""usage: summary.py PRESET FOLDER STATUS   The number of tests, the failures, and one line for each report in the folder.

Ends with STATUS, the suite's own, or with 1 if there is a report.
"""
import re
import sys
from pathlib import Path
from xml.etree import ElementTree


def heading(report):
    """The finding and its place: the sanitizer's own summary, or the single line about undefined behavior."""
    text = report.read_text(errors="replace")
    found = re.search(r"^SUMMARY: (.*)$", text, re.M) or re.search(r"^.*: runtime error: .*$", text, re.M)
    return found[0] if found else (text.splitlines() or ["(empty)"])[0]


def main(preset, folder, status):
    suite = ElementTree.parse(folder / "tests.xml").getroot()
    failed = [test.get("name") for test in suite if test.get("status") == "fail"]
    skipped = [test.get("name") for test in suite if test.get("status") not in ("fail", "run")]
    reports = sorted(folder.glob("report.*"))
    for report in reports:
        print(f"{report}: {heading(report)}")
    for name, tests in (("failed", failed), ("not run", skipped)):
        if tests:
            print(f"{name}: {' '.join(tests)}")
    print(f"{preset}: {len(suite)} tests, {len(failed)} failed, {len(skipped)} not run, {len(reports)} reports")
    return status or (1 if failed or skipped or reports else 0)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], Path(sys.argv[2]), int(sys.argv[3])))
