# SPDX-License-Identifier: MIT
"""The sides of today of the down-scaler and the placeholder tool, in German and at scale 2: with the keyboard, the mouse, and
by the accessibility interface."""

import shutil
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
    # By a drag: a folder, after a copy alone is refused.
    area = lumora.controls(None, "Fläche für Bilder, Zeichnungen und Ordner")[0].middle
    if desktop.has_links:
        desktop.drag_files([art], area, actions="copy")
        wait_for("the refusal in the log", lambda: "Error - Copied?!" in desktop.log())
        assert not lumora.controls("label", "2 Dateien · 2 gerundet")
    desktop.drag_files([art], area)
    lumora.wait_shown("2 Dateien · 2 gerundet")
    assert [path.name for path in art.iterdir()] == ["a@3x.png"]
    # By mouse.
    picture(art / "b@3x.png", 90, 60)
    lumora.button("Ordner …").click()
    lumora.choose_in_dialog(art)
    lumora.wait_shown("4 Dateien · 2 gerundet")
    (art / "b@3x.png").unlink()
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
    wait_for("the button to be enabled", lambda: lumora.button("Dateien schreiben").has_state("enabled"))


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
    wait_for("the tile to be chosen", lambda: tile.has_state("checked"))
    # By assistive technology.
    lumora.find("text", "Eigene Größen").set_text("60x40 1")
    lumora.wait_shown("„1“ ist keine Größe wie 800x600@2x")
    lumora.find("text", "Eigene Größen").set_text("60x40")
    lumora.wait_shown("2 Bilder")
    # By mouse.
    lumora.button("Erzeugen").click()
    lumora.choose_in_dialog(out)
    lumora.wait_shown(f"2 Bilder in {out.name}/placeholders")
    # By a drag: screenshots are checked, whatever else is in their folder.
    shots = [out / "shots" / "de" / name for name in ("one.png", "two.png")]
    picture(shots[0], 1320, 2868)
    picture(shots[1], 60, 40)
    desktop.drag_files(shots, lumora.controls(None, "Fläche für Screenshots, die geprüft werden")[0].middle)
    lumora.wait_shown("2 Bilder · 1 Befund")
    lumora.wait_shown("Fehler: Diese Größe nimmt keiner der Stores (60 x 40 Pixel)")
    desktop.drag_files([shots[0]], lumora.controls(None, "Fläche für Screenshots, die geprüft werden")[0].middle)
    lumora.wait_shown("1 Bild · keine Befunde")
    shutil.rmtree(out / "shots")
    desktop.xdotool("mousemove", 5, 5)
    lumora.activate()
    lumora.button("Screenshots prüfen …").click()
    lumora.choose_in_dialog(out)
    lumora.wait_shown("2 Bilder · 2 Befunde")
    lumora.wait_shown("Fehler: Diese Größe nimmt keiner der Stores (60 x 40 Pixel)")
    assert not nameless(lumora), nameless(lumora)


def main(program, drag_source):
    with tempfile.TemporaryDirectory() as scratch, \
            Desktop(program, drag_source, size="2000x1500", scale=2, language="de_DE.UTF-8") as desktop:
        folder = Path(scratch)
        lumora = desktop.start("--tool=resizer")
        lumora.wait_shown("Lumora | Retina-Verkleinerer")
        down_scaler(desktop, lumora, folder / "art")
        (folder / "out").mkdir()
        placeholders(desktop, lumora, folder / "out")
        assert lumora.close() == 0


if __name__ == "__main__":
    main(*sys.argv[1:])
