# SPDX-License-Identifier: MIT
"""The placeholder tool: a set by mouse, a size by the keyboard alone, a size by the accessibility interface alone,
refusals, a canceled and a second run, and closing the window in the middle of the largest picture."""

import subprocess
import sys
import tempfile
from pathlib import Path

from desktop import wait_for
from sample_files import files_below
from window_system import Desktop

SUBTITLES = {"ios": "Nine sizes for iPhone, iPod and iPad", "mac": "Four sizes for icons and screens",
             "custom": "One picture, 1 to 9999 pixels a side"}


class Walk:
    def __init__(self, program, desktop, scratch):
        self.program, self.desktop, self.scratch = program, desktop, scratch
        self.lumora = desktop.start("--tool=placeholders")
        self.lumora.wait_shown("Lumora | Placeholders")

    def generate(self, card):
        """The card's button, which differs from the other two by its description."""
        return wait_for(f"the button of {card}", lambda: next(
            (button for button in self.lumora.controls("push button") if button.description == SUBTITLES[card]), None))

    def folder(self, name):
        path = self.scratch / name
        path.mkdir()
        return path

    def expect_as_commanded(self, folder, *arguments):
        """Waits for the run to end and compares its files, byte by byte, with those of the command line."""
        reference = self.folder("command " + folder.parent.name + folder.name)
        subprocess.run([self.program, "placeholders", *arguments, "--to", str(reference)], check=True, capture_output=True)
        commanded = files_below(reference / "placeholders")
        wait_for("the files", lambda: folder.exists() and len(files_below(folder)) == len(commanded))
        assert files_below(folder) == commanded, sorted(files_below(folder))

    def by_mouse(self):
        out = self.folder("mouse")
        self.generate("ios").click()
        self.lumora.choose_in_dialog(out)
        wait_for("the caption", lambda: self.generate("ios").name == "All done")
        self.expect_as_commanded(out / "placeholders", "--set", "ios")
        wait_for("the caption at rest", lambda: self.generate("ios").name == "Generate", 5)

        # A second run finds the name taken, starts in the folder of the first, and reports the folder that it made.
        self.generate("mac").click()
        self.lumora.choose_in_dialog(out)
        self.lumora.wait_shown("Saved in a new folder")
        wait_for("the name of the folder",
                 lambda: any("placeholders_1" in label.name for label in self.lumora.controls("label")))
        self.expect_as_commanded(out / "placeholders_1", "--set", "mac")
        self.desktop.key("Escape")
        self.lumora.wait_gone("Saved in a new folder")

    def by_keyboard(self):
        out = self.folder("keyboard")
        self.lumora.activate()
        self.lumora.tab_to("text", "Width")
        self.desktop.type("320abc")
        self.desktop.key("Tab")
        wait_for("the height to have the keyboard", lambda: self.lumora.focused().name == "Height")
        self.desktop.type("0")
        self.desktop.key("Tab")
        wait_for("the button to have the keyboard", lambda: self.lumora.focused().description == SUBTITLES["custom"])
        self.desktop.key("space")
        self.lumora.wait_shown("This size will not work")
        self.desktop.key("Escape")
        self.lumora.wait_gone("This size will not work")
        self.lumora.tab_to("text", "Height")
        self.desktop.key("ctrl+a")
        self.desktop.type("100")
        self.desktop.key("Tab")
        wait_for("the button to have the keyboard", self.generate("custom").has_focus)
        self.desktop.key("space")

        # Canceling writes nothing; confirming writes the picture.
        wait_for("the dialog", lambda: self.lumora.controls("push button", "Choose"))
        self.desktop.key("Escape")
        wait_for("the dialog to close", lambda: not self.lumora.controls("push button", "Choose"))
        assert not list(out.iterdir())
        wait_for("the keyboard to be back", lambda: self.lumora.focused())
        self.desktop.key("space")
        wait_for("the dialog", lambda: self.lumora.controls("push button", "Choose"))
        self.desktop.key("ctrl+a")
        self.desktop.type(str(out))
        self.desktop.key("Return")
        self.expect_as_commanded(out / "placeholders", "--size", "320x100")

    def by_reader(self):
        out = self.folder("reader")
        self.lumora.find("text", "Width").set_text("64")
        self.lumora.find("text", "Height").set_text("9999")
        self.generate("custom").press()
        self.lumora.choose_by_reader(str(out), "Choose")
        self.expect_as_commanded(out / "placeholders", "--size", "64x9999")

    def closed_in_the_middle(self):
        out = self.folder("closed")
        self.lumora.find("text", "Width").set_text("9999")
        self.lumora.find("text", "Height").set_text("9999")
        self.generate("custom").press()
        self.lumora.choose_by_reader(str(out), "Choose")
        # The folder is made when the run begins; the picture takes its time.
        wait_for("the run to begin", (out / "placeholders").exists)
        assert self.lumora.close() == 0
        self.expect_as_commanded(out / "placeholders", "--size", "9999x9999")


def main(program):
    with tempfile.TemporaryDirectory() as scratch, Desktop(program) as desktop:
        walk = Walk(program, desktop, Path(scratch))
        walk.by_mouse()
        walk.by_keyboard()
        walk.by_reader()
        walk.closed_in_the_middle()
        assert "Folder error" not in desktop.log()


if __name__ == "__main__":
    main(sys.argv[1])
