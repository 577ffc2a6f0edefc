# SPDX-License-Identifier: MIT
"""What the package check says of a package as a whole and of what is none, and where it goes from there: copied, run
again, dropped over by the next one, all in the real program."""

import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

from desktop import wait_for
from window_system import Desktop

FIXTURES = Path(__file__).resolve().parent.parent / "validator"
DROP_AREA = "Drop area for an app package"


def wait_report(lumora, name, result):
    """The report has the keyboard, and screen readers announce it first."""
    report = wait_for(f"the report on {name}",
                      lambda: next((c for c in lumora.controls() if c.name == f"Report on {name}: {result}"), None))
    lumora.wait_shown(result)
    return report


def main(program, drag_source):
    with tempfile.TemporaryDirectory() as scratch, Desktop(program, drag_source) as desktop:
        scratch = Path(scratch).resolve()
        for script in ("make_packages.py", "make_no_packages.py"):
            subprocess.run([sys.executable, "-B", FIXTURES / script, scratch], check=True)

        lumora = desktop.start("--tool=validator")
        lumora.wait_shown(DROP_AREA)
        lumora.activate()
        lumora.tab_to("push button", "Browse…")
        desktop.key("space")
        lumora.choose_in_dialog(scratch / "one icon.ipa")
        report = wait_report(lumora, "one icon.ipa", "1 of 6 checks failed")
        wait_for("the report to have the keyboard", report.has_focus)
        wait_for("the missing size", lambda: any("114x114" in control.name and control.name.startswith("Missing")
                                                 for control in lumora.controls("label")))

        # The next file is dropped on the report.
        desktop.move_window(lumora, 100, 100)
        desktop.drag_files([scratch / "a text.ipa"], report.middle)
        wait_report(lumora, "a text.ipa", "No readable app package")
        wait_for("what the file is",
                 lambda: any("The file is a text." in control.name for control in lumora.controls("label")))
        wait_for("the verdicts to go, for it is no app", lambda: not lumora.controls("check box"))

        # By keys: checks a repaired package again.
        shutil.copyfile(scratch / "valid.ipa", scratch / "a text.ipa")
        lumora.activate()
        lumora.tab_to("push button", "Check again")
        desktop.key("space")
        report = wait_report(lumora, "a text.ipa", "All 6 checks passed")
        wait_for("the report to have the keyboard", report.has_focus)
        lumora.button("Copy report").press()
        lumora.wait_shown("Copied")
        lumora.wait_shown("Copy report")

        lumora.button("Close").press()
        lumora.wait_shown(DROP_AREA)
        assert lumora.close() == 0


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
