# SPDX-License-Identifier: MIT
"""The icon tool: a source by drag, by a second start and by paste, refused ones, an export through the real dialog."""

import subprocess
import sys
import tempfile
from pathlib import Path

from desktop import wait_for
from window_system import Desktop


def picture(path, size):
    """A photo-like picture: a plasma cloud, the same on every run."""
    subprocess.run(["convert", "-seed", "7", "-size", f"{size}x{size}", "plasma:tomato-steelblue", str(path)],
                   check=True)
    return path


def files_below(folder):
    return {str(path.relative_to(folder)): path.read_bytes() for path in folder.rglob("*") if path.is_file()}


def main(program, drag_source):
    with tempfile.TemporaryDirectory() as scratch, Desktop(program, drag_source) as desktop:
        scratch = Path(scratch)
        mine, other, small = (picture(scratch / "mine.png", 1024), picture(scratch / "other.png", 1024),
                              picture(scratch / "small.png", 512))
        lumora = desktop.start()
        desktop.move_window(lumora, 100, 100)
        lumora.wait_shown("Source icon")
        drop_area = lumora.controls(None, "Drop area for the source icon")[0]

        # A drag that may only be copied is turned away, one that may be linked is taken.
        if desktop.has_links:
            desktop.drag_files([mine], drop_area.middle, actions="copy")
            wait_for("the refusal in the log", lambda: "Error - Copied?!" in desktop.log())
            assert not lumora.shows("mine.png")
        desktop.drag_files([mine, other], drop_area.middle)
        lumora.wait_shown("mine.png")

        # A picture of another size is refused with a message that goes away by its button.
        desktop.drag_files([small], drop_area.middle)
        lumora.wait_shown("This picture does not fit")
        lumora.button("Close").click()
        lumora.wait_gone("This picture does not fit")
        assert lumora.shows("mine.png")

        # Opened with the program from outside.
        assert desktop.start_again(str(other)) == 0
        lumora.wait_shown("other.png")
        assert desktop.start_again(str(mine)) == 0
        lumora.wait_shown("mine.png")

        # Export all platforms to a folder chosen in the real dialog.
        for name in ("iPhone", "iPad", "Mac", "Android", "Web touch", "Favicon"):
            lumora.find("check box", name).click()
        destination = scratch / "from the window"
        destination.mkdir()
        lumora.button("Generate", 0).click()
        lumora.choose_in_dialog(destination)
        wait_for("the export", lambda: (destination / "icons/Favicon/favicon-128.png").exists())
        wait_for("the end of the export", lambda: lumora.controls("push button", "Generate")[1:])

        # The command line writes the same files, byte by byte.
        reference = scratch / "from the command line"
        reference.mkdir()
        subprocess.run([program, "icons", str(mine), "--platform", "all", "--to", str(reference)], check=True, capture_output=True)
        window, command = files_below(destination / "icons"), files_below(reference / "icons")
        assert len(window) == 52, sorted(window)
        assert window == command, sorted(name for name in window if window[name] != command.get(name))

        # Closing the window in the middle of an export ends cleanly, with every file whole.
        closed = scratch / "while closing"
        closed.mkdir()
        lumora.button("Generate", 0).click()
        lumora.choose_in_dialog(closed)
        wait_for("the beginning of the export", lambda: (closed / "icons/iPhone").exists())
        assert lumora.close() == 0
        assert files_below(closed / "icons") == command
        assert "lumora: Folder" not in desktop.log()


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
