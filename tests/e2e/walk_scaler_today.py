# SPDX-License-Identifier: MIT
"""The sides of today of the down-scaler and the placeholder tool, in German and at scale 2: with the keyboard, the mouse, and
by the accessibility interface."""

import subprocess
import sys
import tempfile
from pathlib import Path

from desktop import wait_for
from walk_accessibility import nameless
from window_system import Desktop


def picture(path, width, height):
    path.parent.mkdir(parents=True, exist_ok=True)
    subprocess.run(["convert", "-size", f"{width}x{height}", "plasma:tomato-steelblue", f"PNG24:{path}"], check=True)


def down_scaler(desktop, lumora, art):
    picture(art / "a@3x.png", 91, 60)
    desktop.xdotool("mousemove", 5, 5)
    lumora.activate()
    desktop.key("ctrl+t")
    projects = lumora.find("combo box", "iOS und macOS (name@3x.png)")
    wait_for("the projects to have the keyboard", projects.has_focus)
    assert not nameless(lumora), nameless(lumora)
    # By mouse.
    lumora.button("Ordner …").click()
    lumora.choose_in_dialog(art)
    lumora.wait_shown("2 Dateien · 2 gerundet")
    assert not nameless(lumora), nameless(lumora)
    # By keyboard: one density less.
    box = lumora.tab_to("check box", "1x")
    desktop.key("space")
    lumora.wait_shown("1 Datei · 1 gerundet")
    wait_for("the box to be empty", lambda: not box.has_state("checked"))
    lumora.tab_to("push button", "Dateien schreiben")
    desktop.key("Return")
    lumora.wait_shown("1 Bild in " + "/".join(art.parts[-2:]))
    assert sorted(path.name for path in art.iterdir()) == ["a@2x.png", "a@3x.png"]
    # By assistive technology: what is there is replaced only when the box says so.
    lumora.wait_shown("0 Dateien · 1 erhalten")
    lumora.find("check box", "Vorhandene ersetzen").press()
    lumora.wait_shown("1 Datei · 1 ersetzt · 1 gerundet")
    assert lumora.button("Dateien schreiben").has_state("enabled")


def placeholders(desktop, lumora, out):
    desktop.xdotool("mousemove", 5, 5)
    lumora.activate()
    desktop.key("ctrl+2", "ctrl+t")
    lumora.wait_shown("Sätze wählen oder Größen eingeben")
    assert not nameless(lumora), nameless(lumora)
    # By keyboard.
    tile = lumora.tab_to("check box", "Funktionsgrafik")
    desktop.key("space")
    lumora.wait_shown("1 Bild")
    assert tile.has_state("checked")
    # By assistive technology.
    lumora.find("text", "Eigene Größen").set_text("60x40 1")
    lumora.wait_shown("„1“ ist keine Größe wie 800x600@2x")
    lumora.find("text", "Eigene Größen").set_text("60x40")
    lumora.wait_shown("2 Bilder")
    # By mouse.
    lumora.button("Erzeugen").click()
    lumora.choose_in_dialog(out)
    lumora.wait_shown(f"2 Bilder in {out.name}/placeholders")
    lumora.button("Screenshots prüfen …").click()
    lumora.choose_in_dialog(out)
    lumora.wait_shown("2 Bilder · 2 Befunde")
    lumora.wait_shown("Fehler: Diese Größe nimmt keiner der Stores (60 x 40 Pixel)")
    assert not nameless(lumora), nameless(lumora)


def main(program):
    with tempfile.TemporaryDirectory() as scratch, \
            Desktop(program, size="2000x1500", scale=2, language="de_DE.UTF-8") as desktop:
        folder = Path(scratch)
        lumora = desktop.start("--tool=resizer")
        lumora.wait_shown("Lumora | Retina-Verkleinerer")
        down_scaler(desktop, lumora, folder / "art")
        (folder / "out").mkdir()
        placeholders(desktop, lumora, folder / "out")
        assert lumora.close() == 0


if __name__ == "__main__":
    main(sys.argv[1])
