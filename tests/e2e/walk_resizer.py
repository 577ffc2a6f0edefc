# SPDX-License-Identifier: MIT
"""The down-scaler: files by a real drag, by the file dialog with the keyboard alone, by the accessibility interface
alone, refused ones, and the window closed in the middle of a batch."""

import subprocess
import sys
import tempfile
from pathlib import Path

from desktop import wait_for
from sample_files import files_below, photo
from window_system import Desktop

DROP_AREA = "Drop area for double-resolution pictures"
PROGRESS = "Progress of the down-scaling"


class Walk:
    def __init__(self, program, desktop, scratch):
        self.program, self.desktop, self.scratch = program, desktop, scratch
        self.sources = self.folder("sources")
        self.button = photo(self.sources / "button@2x.png", 200, 80, 1)
        self.logo = photo(self.sources / "logo-hd@2x.png", 57, 57, 2)
        self.plain = photo(self.sources / "plain.png", 10, 10, 3)
        self.lumora = desktop.start("--tool=resizer")
        desktop.move_window(self.lumora, 100, 100)
        self.lumora.wait_shown("Lumora | Retina down-scaler")

    def folder(self, name):
        path = self.scratch / name
        path.mkdir()
        return path

    def commanded(self, *sources):
        """The files that the command line makes of them."""
        with tempfile.TemporaryDirectory(dir=self.scratch) as reference:
            subprocess.run([self.program, "downscale", *map(str, sources), "--to", reference], check=True,
                           capture_output=True)
            return files_below(Path(reference))

    def expect(self, folder, *sources):
        self.lumora.wait_shown("All done")
        assert files_below(folder) == self.commanded(*sources), sorted(files_below(folder))
        # The notice stays for two seconds; then files may come again.
        wait_for("the drop area", lambda: self.lumora.controls(None, DROP_AREA), 5)
        self.lumora.wait_gone("All done")
        self.lumora.wait_gone(PROGRESS)

    def by_drag(self):
        drop_area = self.lumora.controls(None, DROP_AREA)[0]
        # A single file without a marker is refused, and so is a drag that only allows copying.
        self.desktop.drag_files([self.plain], drop_area.middle)
        self.lumora.wait_shown("Nothing to scale down")
        self.lumora.button("Close").click()
        self.lumora.wait_gone("Nothing to scale down")
        if self.desktop.has_links:
            self.desktop.drag_files([self.button], drop_area.middle, actions="copy")
            wait_for("the refusal in the log", lambda: "Error - Copied?!" in self.desktop.log())

        # Together with others it is left out. Canceling the destination writes nothing.
        self.desktop.drag_files([self.button, self.plain, self.logo], drop_area.middle)
        wait_for("the dialog", lambda: self.lumora.controls("push button", "Choose"))
        self.desktop.key("Escape")
        wait_for("the dialog to close", lambda: not self.lumora.controls("push button", "Choose"))
        assert len(list(self.sources.iterdir())) == 3
        out = self.folder("dragged")
        self.desktop.drag_files([self.button, self.plain, self.logo], drop_area.middle)
        self.lumora.choose_in_dialog(out)
        self.expect(out, self.button, self.logo)
        assert sorted(files_below(out)) == ["button.png", "logo.png"]

    def by_keyboard(self):
        out = self.folder("keyboard")
        self.lumora.activate()
        self.desktop.key("ctrl+o")
        wait_for("the file dialog", lambda: self.lumora.controls("push button", "Open"))
        self.desktop.type(" ".join(f'"{file}"' for file in (self.logo, self.button)))
        self.desktop.key("Return")
        wait_for("the folder dialog", lambda: self.lumora.controls("push button", "Choose"))
        self.desktop.key("ctrl+a")
        self.desktop.type(str(out))
        self.desktop.key("Return")
        self.expect(out, self.logo, self.button)

    def by_reader(self):
        out = self.folder("reader")
        self.lumora.button("Browse…").press()
        self.lumora.choose_by_reader(str(self.button), "Open")
        self.lumora.choose_by_reader(str(out), "Choose")
        self.expect(out, self.button)

    def closed_in_the_middle(self):
        many = self.folder("many@2x")
        first = photo(many / "p000.png", 1200, 900, 4)
        for number in range(1, 200):
            (many / f"p{number:03}.png").write_bytes(first.read_bytes())
        half = self.commanded(first)["p000.png"]
        out = self.folder("closed")
        self.desktop.drag_files(sorted(many.iterdir()), self.lumora.controls(None, DROP_AREA)[0].middle)
        self.lumora.choose_in_dialog(out)
        self.lumora.wait_shown(PROGRESS)
        wait_for("some of the halves", lambda: len(list(out.glob("*.png"))) > 2)
        wait_for("the count", lambda: any(label.name.endswith(" of 200") for label in self.lumora.controls("label")))
        assert self.lumora.close() == 0
        # It stops after the file in work and reports that; the written files are complete.
        written = files_below(out)
        assert 2 < len(written) < 200, len(written)
        assert set(written.values()) == {half}
        assert f"Closed after {len(written)} of 200 pictures" in self.desktop.log()


def main(program, drag_source):
    with tempfile.TemporaryDirectory() as scratch, Desktop(program, drag_source) as desktop:
        walk = Walk(program, desktop, Path(scratch))
        walk.by_drag()
        walk.by_keyboard()
        walk.by_reader()
        walk.closed_in_the_middle()


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
