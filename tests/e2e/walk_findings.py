# SPDX-License-Identifier: MIT
"""The findings of the package check, in German: with the keyboard alone, then by the accessibility interface; a rule that is
ignored, a search, a broken reader's package, and what the icon and device tools are given."""

import subprocess
import sys
import tempfile
from pathlib import Path

from desktop import wait_for
from walk_accessibility import nameless
from window_system import Desktop

MAKE_PACKAGES = Path(__file__).resolve().parent.parent / "validator" / "make_rule_packages.py"
BROKEN = "icon-marketing icon-phone icon-pad"
GOOD = "keeps, all"
PHONE = "Fehler: Kein Icon für das iPhone, ITMS-90022"
PAD = "Fehler: Kein Icon für das iPad, ITMS-90023"


def by_keyboard(desktop, lumora):
    desktop.xdotool("mousemove", 5, 5)
    lumora.activate()
    lumora.tab_to("push button", PHONE)
    desktop.key("space")
    lumora.wait_shown("Was gefunden wurde")
    desktop.key("Down")
    wait_for("the keyboard to go on", lumora.button(PAD).has_focus)
    desktop.key("Up", "space")
    lumora.wait_gone("Was gefunden wurde")
    desktop.key("shift+Tab")
    wait_for("the search to have the keyboard", lumora.find("text", "Befunde durchsuchen").has_focus)
    desktop.type("90023")
    wait_for("the other rows to go", lambda: not lumora.shows(PHONE))
    desktop.key("ctrl+a", "Delete")
    lumora.wait_shown(PHONE)


def by_assistive_technology(lumora):
    lumora.button(PAD).press()
    lumora.button("Diese Regel übergehen").press()
    lumora.wait_shown("2 Fehler")
    lumora.button("Übergangene Regeln: 1. Wieder zeigen").press()
    lumora.wait_shown("3 Fehler")
    assert not nameless(lumora), nameless(lumora)
    lumora.button("Modelle, auf denen es läuft").press()
    lumora.wait_shown("Lumora | Geräte")
    wait_for("the version that the package asks for",
             lambda: lumora.find("slider", "Älteste iOS-Version").node.description == "iOS 15")


def main(program, _):
    with tempfile.TemporaryDirectory() as folder, Desktop(program, language="de_DE.UTF-8") as desktop:
        subprocess.run([sys.executable, "-B", MAKE_PACKAGES, folder, BROKEN, GOOD], check=True)
        lumora = desktop.start(f"{folder}/{BROKEN}.ipa")
        lumora.wait_shown("3 Fehler")
        by_keyboard(desktop, lumora)
        by_assistive_technology(lumora)
        assert desktop.start_again(f"{folder}/{GOOD}.ipa") == 0
        lumora.wait_shown("Nichts gefunden")
        lumora.wait_shown("Die Regeln des Stores finden nichts in diesem Paket.")
        assert lumora.close() == 0


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
