# SPDX-License-Identifier: MIT
"""The color tool's side of today, in German and at scale 2: with the keyboard alone, with the mouse, and by the accessibility
interface; what is copied is read in another process."""

import sys

from desktop import WAIT, wait_for
from walk_accessibility import nameless
from window_system import Desktop

FIELD = "Farbe in beliebiger Form"
BACKGROUND = "Hintergrundfarbe in beliebiger Form"


def by_keyboard(desktop, lumora, on_clipboard):
    desktop.xdotool("mousemove", 5, 5)
    lumora.activate()
    desktop.key("ctrl+t")
    field = lumora.find("text", FIELD)
    wait_for("the field to have the keyboard", field.has_focus)
    assert field.text == "#34485e", field.text
    wait_for("the side of today to be chosen", lambda: lumora.button("Heute").has_state("checked")
             and not lumora.button("Klassisch").has_state("checked"))
    desktop.key("ctrl+a")
    desktop.type("color(display-p3 1 0 0)")
    desktop.key("Return")
    lumora.tab_to("push button", "Apple")
    desktop.key("Right", "Right", "Left", "Left")
    wait_for("Apple to be chosen", lambda: lumora.button("Apple").has_state("checked"))
    lumora.tab_to("check box", "Display P3")
    desktop.key("space")
    lumora.wait_shown("in sRGB beschnitten")
    desktop.key("alt+2")
    on_clipboard("UIColor(displayP3Red: 1, green: 0, blue: 0, alpha: 1)")
    desktop.key("alt+shift+1")
    on_clipboard("#ff0000ff")
    # The confirmed color is in the palette, from where it comes back.
    field.set_text("navy")
    lumora.button("Hinzufügen").focus()
    desktop.key("shift+Tab")
    palette = lumora.find("list", "Bisher gewählte Farben")
    wait_for("the palette to have the keyboard", lambda: palette.has_focus())
    desktop.key("End", "space")
    wait_for("the color of the palette", lambda: field.text == "color(display-p3 1 0 0)")
    # The classic side has the same color as far as it can.
    desktop.key("ctrl+t")
    wait_for("the classic side", lambda: lumora.find("text", "Farbcode").text == "#ff0000")
    desktop.key("ctrl+t")
    lumora.find("text", FIELD)


def by_mouse(desktop, lumora, on_clipboard):
    lumora.button("Klassisch").click()
    lumora.find("text", "Farbcode")
    lumora.button("Heute").click()
    field = lumora.find("text", FIELD)
    field.click()
    desktop.key("ctrl+a")
    desktop.type("rgb(255 107 71)")
    lumora.find("check box", "Display P3").click()
    lumora.button("SwiftUI kopieren").click()
    on_clipboard("Color(red: 1, green: 0.4196, blue: 0.2784, opacity: 1)")
    lumora.button("Web").click()
    wait_for("the codes of the web to come first", lambda: copied_first(lumora) == "CSS hex kopieren")
    assert not nameless(lumora), nameless(lumora)
    # A text that is no color stays as it is typed, and the color, too.
    field.click()
    desktop.key("ctrl+a")
    desktop.type("#12zz")
    lumora.wait_shown("Das ist kein Farbcode. Die Farbe bleibt, wie sie ist.")
    assert field.text == "#12zz", field.text
    lumora.button("CSS hex kopieren").click()
    on_clipboard("#ff6b47ff")
    lumora.button("Text: Nächste").click()
    wait_for("a color that passes", lambda: lumora.shows("AA erfüllt") and field.text not in ("#12zz", "#ff6b47"))
    lumora.wait_gone("Das ist kein Farbcode. Die Farbe bleibt, wie sie ist.")


def copied_first(lumora):
    return next(button.name for button in lumora.controls("push button") if button.name.endswith(" kopieren"))


def by_assistive_technology(lumora, on_clipboard):
    lumora.find("text", FIELD).set_text("rebeccapurple")
    lumora.find("text", BACKGROUND).set_text("black")
    lumora.wait_shown("2,50 : 1")
    lumora.button("Text: Nächste").press()
    wait_for("a color that passes", lambda: not lumora.shows("2,50 : 1") and lumora.shows("AA erfüllt"))
    lumora.button("Android").press()
    wait_for("Android to be chosen", lambda: copied_first(lumora) == "Jetpack Compose kopieren")
    lumora.find("text", FIELD).set_text("teal")
    lumora.button("Kotlin kopieren").press()
    on_clipboard("Color.argb(255, 0, 128, 128)")
    before = len(swatches(lumora))
    lumora.button("Hinzufügen").press()
    wait_for("one more color", lambda: len(swatches(lumora)) == before + 1)


def swatches(lumora):
    node = lumora.find("list", "Bisher gewählte Farben").node
    return [node.getChildAtIndex(index).name for index in range(node.childCount)]


def main(program, clipboard_reader):
    with Desktop(program, size="2000x1500", scale=2, language="de_DE.UTF-8") as desktop:
        lumora = desktop.start("--tool=color")
        lumora.wait_shown("Lumora | Farben")

        def on_clipboard(text):
            reader = desktop.run(clipboard_reader, text)
            assert reader.wait(WAIT) == 0, f"the clipboard does not hold {text}"

        by_keyboard(desktop, lumora, on_clipboard)
        by_mouse(desktop, lumora, on_clipboard)
        by_assistive_technology(lumora, on_clipboard)
        # A second start asks the running program for today.
        lumora.button("Klassisch").press()
        lumora.find("text", "Farbcode")
        assert desktop.start_again("--today") == 0
        lumora.find("text", FIELD)
        assert lumora.close() == 0


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
