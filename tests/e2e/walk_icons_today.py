# SPDX-License-Identifier: MIT
"""The icon tool's side of today, in German and at scale 2: sources by keyboard and by drag, a set in a folder of its own with the
keyboard alone, a project by the accessibility interface. What is written is compared with that of the command line."""

import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

from desktop import wait_for
from sample_files import files_below
from walk_accessibility import nameless
from window_system import Desktop


def disk(path, ground):
    subprocess.run(["convert", "-size", "600x600", f"xc:{ground}", "-fill", "tomato", "-draw", "circle 300,300 300,60", str(path)],
                   check=True)
    return path


class Walk:
    def __init__(self, program, desktop, scratch):
        self.program, self.desktop, self.scratch = program, desktop, scratch
        self.icon, self.dark = disk(scratch / "icon.png", "none"), disk(scratch / "dark.png", "navy")
        self.lumora = desktop.start("--today", str(self.icon))
        self.lumora.wait_shown("icon.png")

    def command(self, *arguments):
        subprocess.run([self.program, "icons", self.icon, "--fit", "--flatten", "white", "--quiet", *map(str, arguments)], check=True)

    def well(self, name, state):
        wait_for(f"{name} to be {state}", lambda: self.lumora.button(name).description == state)

    def sources(self):
        desktop, lumora = self.desktop, self.lumora
        desktop.drag_files([self.dark], lumora.button("Dunkel").middle)
        self.well("Dunkel", "dark.png")
        desktop.xdotool("mousemove", 5, 5)
        lumora.activate()
        lumora.button("Dunkel").focus()
        desktop.key("Delete")
        self.well("Dunkel", "abgeleitet")
        desktop.key("space")
        lumora.choose_in_dialog(self.dark)
        self.well("Dunkel", "dark.png")
        assert not nameless(lumora), nameless(lumora)

    def by_keyboard(self):
        desktop, lumora = self.desktop, self.lumora
        lumora.activate()
        lumora.tab_to("check box", "iOS")
        desktop.key("space")
        wait_for("the lines of iOS", lambda: "CFBundleIconName" in lumora.find("text", "Code-Schnipsel").text)
        lumora.tab_to("push button", "Erzeugen")
        desktop.key("space")
        lumora.wait_shown("Das Icon ist durchsichtig")
        desktop.key("Escape")
        lumora.wait_gone("Das Icon ist durchsichtig")
        lumora.find("text", "Auf diese Farbe reduzieren").focus()
        desktop.type("white")
        out = self.scratch / "keyboard"
        out.mkdir()
        lumora.tab_to("push button", "Erzeugen")
        desktop.key("space")
        lumora.choose_in_dialog(out)
        lumora.wait_shown("Im Ordner zeigen")
        reference = self.scratch / "reference"
        self.command("--platform", "ios", "--dark", self.dark, "--out", reference)
        assert files_below(out / "icons") == files_below(reference)

    def by_reader(self):
        lumora = self.lumora
        lumora.button("Dunkel: zurück zum Abgeleiteten").press()
        self.well("Dunkel", "abgeleitet")
        project = self.scratch / "app"
        (project / "web" / "icons").mkdir(parents=True)
        (project / "pubspec.yaml").write_text("name: app\nflutter:\n  uses: x\n", encoding="utf-8")
        (project / "web" / "manifest.json").write_text("{}", encoding="utf-8")
        (project / "web" / "icons" / "Icon-192.png").write_text("old", encoding="utf-8")
        reference = self.scratch / "reference app"
        shutil.copytree(project, reference)
        self.command("--into", reference)
        lumora.button("Erzeugen").press()
        lumora.choose_in_dialog(project)
        lumora.wait_shown("Flutter-Projekt")
        lumora.wait_shown("ersetzt: web/icons/Icon-192.png")
        lumora.button("Ins Projekt").press()
        lumora.wait_shown("Im Ordner zeigen")
        assert files_below(project) == files_below(reference)


def main(program, drag_source):
    with tempfile.TemporaryDirectory() as scratch, \
            Desktop(program, drag_source, size="2400x1700", scale=2, language="de_DE.UTF-8") as desktop:
        walk = Walk(program, desktop, Path(scratch))
        walk.sources()
        walk.by_keyboard()
        walk.by_reader()
        assert walk.lumora.close() == 0


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
