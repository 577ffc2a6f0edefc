# SPDX-License-Identifier: MIT
"""The package check: opened by a relative path, by drag, by the dialog, by keys alone, by the accessibility interface alone; what it
says of a package, what it explains, and that it leaves nothing behind, however it ends."""

import os
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from desktop import wait_for
from window_system import Desktop

FIXTURES = Path(__file__).resolve().parent.parent / "validator"
FACTS = ("Name: Demo", "Version: 1.2.3", "Platform: iPhone", "Oldest iOS: 7.0", "Bundle ID: com.example.app", "Build: Debug")
DROP_AREA = "Drop area for an app package"


def shows_verdicts(lumora, **wrong):
    """Waits until the boxes show their results; the given ones must show something other than success."""
    said = {"App icons": "passed", "Launch images": "passed", "Bundle identifier": "passed", "Localizations": "passed",
            "URL schemes": "passed", "Facebook app ID": "passed"} | wrong
    for box, verdict in said.items():
        lumora.find("check box", f"{box}: {verdict}")


def close_button(lumora):
    """The texts of the popup if there is one, else of the report."""
    return wait_for("a button to close by", lambda: lumora.controls("push button", "Close"))[-1]


def explanation(lumora, box):
    """The text of the box's popup, by the accessibility interface; closes it again."""
    before = {control.name for control in lumora.controls("label")}

    def added():
        return [control.name for control in lumora.controls("label") if control.name not in before]

    lumora.find("check box", box).press()
    # All of it: a look may come while it is being shown.
    new = wait_for(f"what {box} explains", lambda: (seen := added()) and seen == added() and seen)
    close_button(lumora).press()
    wait_for("the popup to go", lambda: not any(lumora.shows(text) for text in new))
    return "\n".join(new)


def work_folders(folder):
    return [path.name for path in folder.iterdir() if path.name.startswith("lumora-work-")]


def current_folder(lumora):
    return Path(os.readlink(f"/proc/{lumora.process.pid}/cwd"))


def by_mouse(desktop, scratch, work):
    """Opened by a path relative to the user's folder; a drag; the real dialog."""
    lumora = desktop.start("valid.ipa", cwd=scratch)
    for fact in FACTS:
        lumora.wait_shown(fact)
    shows_verdicts(lumora)
    assert current_folder(lumora) == scratch, "the user's folder stays the current one"
    folders = work_folders(work)
    assert len(folders) == 1 and (work / folders[0]).stat().st_mode & 0o077 == 0, folders
    close_button(lumora).click()
    lumora.wait_shown(DROP_AREA)

    desktop.move_window(lumora, 100, 100)
    drop_area = lumora.controls(None, DROP_AREA)[0]
    desktop.drag_files([scratch / "valid.ipa", scratch / "one icon.ipa"], drop_area.middle)
    lumora.wait_shown("One package at a time")
    lumora.button("Got it").click()
    lumora.wait_gone("One package at a time")
    desktop.drag_files([scratch / "one icon.ipa"], drop_area.middle)
    shows_verdicts(lumora, **{"App icons": "problems found"})
    lumora.activate()
    lumora.find("check box", "App icons: problems found").click()
    wait_for("the missing sizes", lambda: any("114 × 114" in c.name or "114x114" in c.name for c in lumora.controls("label")))
    desktop.key("Escape")
    wait_for("the popup to go", lambda: not lumora.shows("Icon sizes are missing"))
    close_button(lumora).click()
    lumora.wait_shown(DROP_AREA)

    lumora.button("Browse…").click()
    wait_for("the dialog", lambda: lumora.controls("dialog") or lumora.controls("file chooser"))
    assert not any("lumora-work" in control.name for control in lumora.controls()), "the dialog shows the work folder"
    lumora.choose_in_dialog(scratch / "no links.ipa")
    shows_verdicts(lumora, **{"URL schemes": "not present", "Facebook app ID": "not present"})
    wait_for("the box without a verdict to be disabled",
             lambda: not lumora.find("check box", "URL schemes: not present").has_state("enabled"))
    assert lumora.close() == 0
    assert not work_folders(work), "the work folder outlived its program"
    assert sorted(path.name for path in scratch.iterdir() if path.is_dir()) == ["work"], "something was left where the user stands"


def by_interface(desktop, scratch):
    """The whole job by the accessibility interface: no key, no mouse."""
    lumora = desktop.start("--tool=validator")
    lumora.button("Browse…").press()
    field = wait_for("the file dialog", lambda: (lumora.controls("text") or [None])[-1])
    field.node.queryEditableText().setTextContents(str(scratch / "no launch image.ipa"))
    lumora.button("Open").press()
    shows_verdicts(lumora, **{"Launch images": "problems found", "Bundle identifier": "problems found",
                              "Localizations": "problems found"})
    lumora.wait_shown("Build: Release")
    said = explanation(lumora, "Launch images: problems found")
    assert all(size in said for size in ("640x960", "1136x640", "480x320")), said
    assert "Every required icon size" in explanation(lumora, "App icons: passed")
    assert "does not name" in explanation(lumora, "Bundle identifier: problems found")
    assert "• fb123://" in explanation(lumora, "URL schemes: passed")
    assert "123" in explanation(lumora, "Facebook app ID: passed")
    close_button(lumora).press()
    lumora.wait_shown(DROP_AREA)
    assert lumora.button("Browse…").has_state("enabled")
    assert lumora.close() == 0


def by_keys(desktop, scratch):
    """The whole job without a pointer."""
    lumora = desktop.start("--tool=validator")
    lumora.wait_shown(DROP_AREA)
    lumora.activate()
    lumora.tab_to("push button", "Browse…")
    desktop.key("space")
    lumora.choose_in_dialog(scratch / "one icon.ipa")
    shows_verdicts(lumora, **{"App icons": "problems found"})
    lumora.tab_to("check box", "App icons: problems found")
    desktop.key("space")
    lumora.wait_shown("Icon sizes are missing")
    desktop.key("Escape")
    lumora.wait_gone("Icon sizes are missing")
    lumora.tab_to("check box", "Localizations: passed")
    desktop.key("space")
    wait_for("the localizations", lambda: any("• French" in control.name for control in lumora.controls("label")))
    desktop.key("Escape")
    wait_for("the popup to go", lambda: not any("• French" in control.name for control in lumora.controls("label")))
    lumora.tab_to("push button", "Close")
    desktop.key("space")
    lumora.wait_shown(DROP_AREA)
    assert lumora.close() == 0


def in_mid_read(desktop, scratch, work):
    """Closed, ended and killed while a large package is read."""
    subprocess.run([sys.executable, "-B", FIXTURES / "make_large_package.py", scratch / "large.ipa", "500"], check=True)
    for end in ("close", "terminate", "kill"):
        lumora = desktop.start(str(scratch / "large.ipa"))
        wait_for("the reading", lambda: list(work.glob("lumora-work-*/Documents/app/Payload/Large.app/file01*")))
        assert not list(work.glob("lumora-work-*/Documents/app/Payload/Large.app/file999"))
        if end == "kill":
            lumora.process.send_signal(signal.SIGKILL)
            lumora.process.wait()
            left = work_folders(work)
            assert left, "a killed program cannot tidy up"
        else:
            began = time.monotonic()
            assert (lumora.close() if end == "close" else lumora.terminate()) == 0
            assert time.monotonic() - began < 10
            assert not work_folders(work)
    lumora = desktop.start()
    now = work_folders(work)
    assert len(now) == 1 and now != left, "what a killed program left goes with the next start"
    assert lumora.close() == 0


def main(program, drag_source):
    with tempfile.TemporaryDirectory() as scratch, Desktop(program, drag_source) as desktop:
        scratch = Path(scratch).resolve()
        subprocess.run([sys.executable, "-B", FIXTURES / "make_packages.py", scratch], check=True)
        work = scratch / "work"
        work.mkdir()
        desktop.environment["TMPDIR"] = str(work)
        by_mouse(desktop, scratch, work)
        by_interface(desktop, scratch)
        by_keys(desktop, scratch)
        in_mid_read(desktop, scratch, work)


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
