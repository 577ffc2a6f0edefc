# SPDX-License-Identifier: MIT
"""The device tool's side of today, in German and at scale 2: with the keyboard alone, with the mouse, and by the accessibility
interface; a copied fact is read in another process."""

import sys

from desktop import WAIT, wait_for
from walk_accessibility import nameless
from window_system import Desktop

ALL = "106 von 106 Modellen passen"
FITS = "entspricht der Auswahl"


def by_keyboard(desktop, lumora, on_clipboard):
    desktop.xdotool("mousemove", 5, 5)
    lumora.activate()
    desktop.key("ctrl+t")
    search = lumora.find("text", "Name oder Kennung")
    wait_for("the search to have the keyboard", search.has_focus)
    lumora.wait_shown(ALL)
    desktop.type("iphone16,")
    lumora.wait_shown("2 von 106 Modellen passen")
    desktop.key("ctrl+a", "Delete")
    lumora.wait_shown(ALL)
    slider = lumora.tab_to("slider", "Älteste iOS-Version")
    desktop.key("End")
    wait_for("the newest version", lambda: slider.node.description == "iOS 27")
    wait_for("models to fall out", lambda: not lumora.shows(ALL))
    lumora.button("Zurücksetzen").focus()
    desktop.key("space")
    lumora.wait_shown(ALL)
    # Behind the button is the one tile that Tab reaches.
    tile = lumora.button("iPhone 18 Pro")
    tile.focus()
    desktop.key("Right", "Down", "Return")
    lumora.wait_shown("Kennungen: iPhone18,2")
    lumora.tab_to("push button", "Chip: A19 Pro")
    desktop.key("space")
    on_clipboard("A19 Pro")
    desktop.key("Escape")
    wait_for("the keyboard to be back at the tile", lumora.button("iPhone 17 Pro Max").has_focus)
    desktop.key("Insert", "Right", "Insert")
    wait_for("two models to be marked", lambda: lumora.button("Vergleichen (2)").has_state("enabled"))


def by_mouse(desktop, lumora, on_clipboard):
    lumora.button("Vergleichen (2)").click()
    lumora.wait_shown("Kennungen: iPhone18,2")
    lumora.wait_shown("Kennungen: iPhone18,3")
    assert not nameless(lumora), nameless(lumora)
    lumora.find("push button", "Kennungen: iPhone18,3").click()
    on_clipboard("iPhone18,3")
    lumora.button("Alle Modelle").click()
    lumora.wait_shown(ALL)
    assert not nameless(lumora), nameless(lumora)
    lumora.find("check box", "Dynamic Island").click()
    tile = lumora.button("iPhone 17e")
    wait_for("a model to fall out", lambda: tile.node.description == "ohne Dynamic Island")
    # The tool tip says why.
    desktop.xdotool("mousemove", *tile.middle)
    lumora.wait_shown("ohne Dynamic Island")
    lumora.find("check box", "Dynamic Island").click()
    lumora.wait_shown(ALL)


def by_assistive_technology(lumora, on_clipboard):
    lumora.find("text", "Name oder Kennung").set_text("ipad mini")
    wait_for("the iPad minis", lambda: not lumora.shows(ALL))
    slider = lumora.find("slider", "Älteste iOS-Version")
    slider.node.queryValue().currentValue = 12
    wait_for("the version", lambda: slider.node.description == "iOS 13")
    tiles = {control.name: control for control in lumora.controls("push button", showing=False)}
    wait_for("the reason on a model's tile", lambda: tiles["iPad mini 2"].node.description == "endet bei iOS 12.5.8")
    wait_for("the tile of a model that fits", lambda: tiles["iPad mini (5th generation)"].node.description == FITS)
    tiles["iPad mini (5th generation)"].press()
    lumora.button("Chip: A12 Bionic").press()
    on_clipboard("A12 Bionic")
    lumora.button("In den Vergleich").press()
    lumora.wait_shown("Aus dem Vergleich")
    lumora.button("Alle Modelle").press()
    lumora.button("Vergleichen (3)")
    lumora.button("Zurücksetzen").press()
    lumora.wait_shown(ALL)


def main(program, clipboard_reader):
    with Desktop(program, size="2000x1500", scale=2, language="de_DE.UTF-8") as desktop:
        lumora = desktop.start("--tool=devices")
        lumora.wait_shown("Lumora | Geräte")

        def on_clipboard(text):
            reader = desktop.run(clipboard_reader, text)
            assert reader.wait(WAIT) == 0, f"the clipboard does not hold {text}"

        by_keyboard(desktop, lumora, on_clipboard)
        by_mouse(desktop, lumora, on_clipboard)
        by_assistive_technology(lumora, on_clipboard)
        # The classic side is as it was.
        lumora.button("Klassisch").press()
        lumora.wait_shown("17 von 17 Modellen passen")
        assert lumora.close() == 0


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
