# SPDX-License-Identifier: MIT
"""What the panes say after a job: the result line with its way to the folder, by keyboard, and how long it
stays; a batch of the down-scaler by drag."""

import sys
import tempfile
from pathlib import Path

from desktop import wait_for
from sample_files import photo
from window_system import Desktop


def export(desktop, lumora, scratch):
    desktop.run("/usr/bin/python3", Path(__file__).with_name("fake_file_manager.py"))
    wait_for("the file manager", lambda: "ready to select" in desktop.log())
    out = scratch / "with a blank"
    out.mkdir()
    lumora.find("check box", "Favicon").click()
    lumora.button("Generate", 0).click()
    lumora.choose_in_dialog(out)
    lumora.wait_shown("5 icons in with a blank/icons")
    lumora.tab_to("push button", "Show in folder")
    desktop.key("space")
    wait_for("the folder to be selected", lambda: f"selected {(out / 'icons').as_uri()}" in desktop.log())
    lumora.tab_to("push button", "Copy path")
    desktop.key("space")
    lumora.wait_shown("Copied")
    # The caption goes, the result stays.
    wait_for("the button at rest", lambda: lumora.controls("push button", "Generate")[1:])
    lumora.wait_shown("5 icons in with a blank/icons")


def batch(desktop, lumora, scratch):
    art = scratch / "art"
    art.mkdir()
    files = [photo(art / "a@2x.png", 101, 75), photo(art / "plain.png", 10, 10)]
    lumora.activate()
    desktop.key("ctrl+3")
    area = wait_for("the drop area", lambda: lumora.controls(None, "Drop area for double-resolution pictures"))[0]
    desktop.drag_files(files, area.middle)
    lumora.choose_in_dialog(art)
    lumora.wait_shown("1 picture in " + "/".join(art.parts[-2:]))
    assert (art / "a.png").exists()


def main():
    with tempfile.TemporaryDirectory(prefix="lumora-results-") as scratch, Desktop(sys.argv[1], sys.argv[2]) as desktop:
        lumora = desktop.start()
        desktop.move_window(lumora, 100, 100)
        lumora.wait_shown("Source icon")
        export(desktop, lumora, Path(scratch))
        batch(desktop, lumora, Path(scratch))
        assert lumora.close() == 0


if __name__ == "__main__":
    main()
