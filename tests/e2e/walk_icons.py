# SPDX-License-Identifier: MIT
"""The icon tool: a source by drag and by a second start, refused sources, an export through the real dialog; a whole job with the
keyboard alone, one by the accessibility interface alone."""

import subprocess
import sys
import tempfile
from pathlib import Path

from desktop import wait_for
from sample_files import files_below, photo
from window_system import Desktop


PLATFORMS = ("iPhone", "iPad", "Mac", "Android", "Web touch", "Favicon")


class Walk:
    def __init__(self, program, desktop, scratch):
        self.program, self.desktop, self.scratch = program, desktop, scratch
        self.mine = photo(scratch / "mine.png", 1024, 1024)
        self.other = photo(scratch / "other.png", 1024, 1024)
        self.small = photo(scratch / "small.png", 512, 512)
        self.lumora = desktop.start()
        desktop.move_window(self.lumora, 100, 100)
        self.lumora.wait_shown("Source icon")

    def folder(self, name):
        path = self.scratch / name
        path.mkdir()
        return path

    def commanded(self, *arguments):
        """The files that the command line makes."""
        with tempfile.TemporaryDirectory(dir=self.scratch) as reference:
            subprocess.run([self.program, *map(str, arguments), "--to", reference], check=True, capture_output=True)
            return files_below(Path(reference))

    def expect(self, folder, *arguments):
        """Waits for the run to end and compares its files, byte by byte, with those of the command line."""
        reference = self.commanded(*arguments)
        wait_for("the files", lambda: set(files_below(folder)) == set(reference))
        wait_for("the end of the run", lambda: self.lumora.controls("push button", "Generate")[1:])
        written = files_below(folder)
        assert written == reference, sorted(name for name in written if written[name] != reference.get(name))
        return reference

    def by_mouse(self):
        desktop, lumora = self.desktop, self.lumora
        drop_area = lumora.controls(None, "Drop area for the source icon")[0]

        # A drag that only allows copying is refused, one that allows linking is accepted.
        if desktop.has_links:
            desktop.drag_files([self.mine], drop_area.middle, actions="copy")
            wait_for("the refusal in the log", lambda: "Error - Copied?!" in desktop.log())
            assert not lumora.shows("mine.png")
        desktop.drag_files([self.mine, self.other], drop_area.middle)
        lumora.wait_shown("mine.png")

        # A picture of another size is refused with a message; its button closes it.
        desktop.drag_files([self.small], drop_area.middle)
        lumora.wait_shown("This picture does not fit")
        lumora.button("Close").click()
        lumora.wait_gone("This picture does not fit")
        assert lumora.shows("mine.png")

        # A color alone is for the color tool.
        desktop.drag_files(["#12ab34"], drop_area.middle)
        wait_for("the color", lambda: [field.text for field in lumora.controls("text")] == ["#12ab34"])
        lumora.find("page tab", "Icon generator").click()
        lumora.wait_shown("mine.png")

        # Opened with the program from outside.
        assert desktop.start_again(str(self.other)) == 0
        lumora.wait_shown("other.png")
        assert desktop.start_again(str(self.mine)) == 0
        lumora.wait_shown("mine.png")

        # Export all platforms to a folder chosen in the real dialog.
        for name in PLATFORMS:
            lumora.find("check box", name).click()
        out = self.folder("mouse")
        lumora.button("Generate", 0).click()
        lumora.choose_in_dialog(out)
        assert len(self.expect(out, "icons", self.mine, "--platform", "all")) == 52

    def by_keyboard(self):
        desktop, lumora = self.desktop, self.lumora
        # Away from controls that the pointer would highlight, and back to no choice.
        desktop.xdotool("mousemove", 1590, 1190)
        lumora.activate()
        desktop.key("ctrl+o")
        lumora.choose_in_dialog(self.other)
        lumora.wait_shown("other.png")
        for name in PLATFORMS:
            if name not in ("Mac", "Favicon"):
                lumora.tab_to("check box", name)
                desktop.key("space")
        out = self.folder("keyboard")
        lumora.tab_to("push button", "Generate")
        desktop.key("space")
        lumora.choose_in_dialog(out)
        self.expect(out, "icons", self.other, "--platform", "mac", "--platform", "favicon")

        # An icon of any size, after a refused size.
        lumora.tab_to("text", "Size")
        desktop.type("1025")
        lumora.tab_to("radio button", "iOS 7 corners")
        desktop.key("space", "Tab")
        wait_for("the button to have the keyboard", lumora.button("Generate", 1).has_focus)
        desktop.key("space")
        lumora.wait_shown("This size will not work")
        desktop.key("Escape")
        lumora.wait_gone("This size will not work")
        lumora.tab_to("text", "Size")
        desktop.key("ctrl+a")
        desktop.type("180")
        desktop.key("Tab", "Tab", "Tab")
        wait_for("the button to have the keyboard", lumora.button("Generate", 1).has_focus)
        out = self.folder("one by keyboard")
        desktop.key("space")
        lumora.choose_in_dialog(out)
        self.expect(out, "icon", self.other, "--size", "180", "--corners", "ios7")

    def by_reader(self):
        lumora = self.lumora
        lumora.button("Browse…").press()
        lumora.choose_by_reader(str(self.mine), "Open")
        lumora.wait_shown("mine.png")
        for name in ("Mac", "Favicon", "Android"):
            lumora.find("check box", name).press()
        out = self.folder("reader")
        lumora.button("Generate", 0).press()
        lumora.choose_by_reader(str(out), "Choose")
        self.expect(out, "icons", self.mine, "--platform", "android")
        out = self.folder("one by reader")
        lumora.find("text", "Size").set_text("57")
        lumora.find("radio button", "iOS 6 corners").press()
        lumora.button("Generate", 1).press()
        lumora.choose_by_reader(str(out), "Choose")
        self.expect(out, "icon", self.mine, "--size", "57", "--corners", "ios6")
        for name in PLATFORMS:
            if name != "Android":
                lumora.find("check box", name).press()

    def closed_in_the_middle(self):
        """Ends cleanly, with every file complete."""
        out = self.folder("while closing")
        self.lumora.button("Generate", 0).click()
        self.lumora.choose_in_dialog(out)
        wait_for("the beginning of the export", lambda: (out / "icons/iPhone").exists())
        assert self.lumora.close() == 0
        assert files_below(out) == self.commanded("icons", self.mine, "--platform", "all")


def main(program, drag_source):
    with tempfile.TemporaryDirectory() as scratch, Desktop(program, drag_source) as desktop:
        walk = Walk(program, desktop, Path(scratch))
        walk.by_mouse()
        walk.by_keyboard()
        walk.by_reader()
        walk.closed_in_the_middle()
        assert "lumora: Folder" not in desktop.log()


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
