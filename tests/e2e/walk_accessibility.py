# SPDX-License-Identifier: MIT
"""For screen readers and the keyboard: every control of every tool and popup has a name and a role, the focus is visible
everywhere, and popovers announce themselves."""

import subprocess
import sys
import tempfile
from pathlib import Path

from desktop import wait_for
from window_system import Desktop

HELP_TITLES = ("Icon generator", "Placeholder generator", "Retina down-scaler", "Color codes", "Device matrix",
               "App package check")
TOOLS = len(HELP_TITLES)
# The tools with a side of today, which are the first ones.
TODAY_SIDES = 5
# The roles of operable controls. The others are containers and texts.
OPERATED = {"push button", "toggle button", "check box", "radio button", "text", "entry", "combo box", "spin button",
            "slider", "dial", "list", "list item", "page tab", "page tab list", "color chooser", "menu item", "link",
            "password text", "progress bar", "image", "icon"}
NO_ROLE = {"unknown", "invalid", "unused", ""}
# Fewer pixels than a ring around the smallest control, more than a blinking cursor.
LEAST_CHANGE = 60

# Prints one line for each popup that announces itself: its role and its name.
LISTENER = """
import pyatspi
def shown(event):
    if event.detail1 and event.source.getRoleName() in ("alert", "dialog", "notification"):
        print(event.source.getRoleName(), "|", event.source.name, flush=True)
pyatspi.Registry.registerEventListener(shown, "object:state-changed:showing")
# A name is asked for once and kept; as a screen reader does, ask to hear of changes.
pyatspi.Registry.registerEventListener(lambda event: None, "object:property-change:accessible-name")
print("ready", flush=True)
pyatspi.Registry.start()
"""


def nameless(lumora):
    """The visible operable controls without a name, and everything without a role."""
    controls = lumora.controls()
    # Screen readers skip a name on filler. A popup's content has the popup's name.
    popups = {control.name for control in controls if control.role in ("dialog", "alert")}
    return [f"{control.role} {control.name} at {control.box}" for control in controls
            if control.role in NO_ROLE
            or control.role == "filler" and control.name.strip() not in {"", "Lumora"} | popups
            or (control.role in OPERATED or control.has_state("focusable")) and not control.name.strip()]


def unlabeled(lumora):
    """The visible drop-down lists that say nothing but their choice, which is their name."""
    # The only relation of these lists is the one with their label.
    return [f"{control.role} {control.name} at {control.box}" for control in lumora.controls("combo box")
            if not control.description.strip() and not control.node.getRelationSet()]


def names_are_complete(desktop, lumora):
    def check(where):
        found = nameless(lumora) + unlabeled(lumora)
        assert not found, f"{where}: {found}"

    for tool in lumora.controls("page tab"):
        tool.press()
        wait_for(f"{tool.name} to be selected", lambda tool=tool: tool.has_state("selected"))
        check(tool.name)
        desktop.key("F1")
        lumora.wait_shown("Report a bug")
        check(f"the help on {tool.name}")
        desktop.key("Escape")
        lumora.wait_gone("Report a bug")
    lumora.button("About Lumora").press()
    lumora.wait_shown("KESTREL interactive")
    check("the about panel")
    desktop.key("Escape")
    lumora.wait_gone("KESTREL interactive")

    for tool in lumora.controls("page tab")[:TODAY_SIDES]:
        tool.press()
        wait_for(f"{tool.name} to be selected", lambda tool=tool: tool.has_state("selected"))
        lumora.button("Today").press()
        wait_for("its side of today", lambda: lumora.button("Today").has_state("checked"))
        check(f"the side of today of {tool.name}")
        lumora.button("Classic").press()
        wait_for("its classic side", lambda: lumora.button("Classic").has_state("checked"))

    lumora.controls("page tab")[3].press()
    lumora.find("color chooser", "Color well, opens the color picker").press()
    for page in wait_for("the picker's pages", lambda: lumora.controls("page tab")[TOOLS:]):
        page.press()
        wait_for(f"{page.name} to be selected", lambda page=page: page.has_state("selected"))
        check(f"the picker's {page.name}")
    lumora.find("color chooser", "Color well, opens the color picker").press()
    lumora.wait_gone("Hexadecimal code")


def pixels(desktop, folder, box):
    """A picture of the screen in and around the box."""
    x, y, width, height = box
    picture = Path(folder) / "control.rgb"
    desktop.screenshot(picture, f"{width + 12}x{height + 12}+{max(x - 6, 0)}+{max(y - 6, 0)}")
    return picture.read_bytes()


def changed(one, other):
    return sum(one[at:at + 3] != other[at:at + 3] for at in range(0, min(len(one), len(other)), 3))


def focused(lumora):
    found = [control for control in lumora.controls() if control.has_state("focused")]
    return found[-1] if found else None


def focus_is_seen(desktop, lumora):
    """Tab goes through each tool; every stop looks different with the focus than without."""
    with tempfile.TemporaryDirectory() as folder:
        for number in range(1, TOOLS + 1):
            desktop.key(f"ctrl+{number}")
            tool = lumora.controls("page tab")[number - 1]
            wait_for(f"{tool.name} to be selected", lambda tool=tool: tool.has_state("selected"))
            # Away from controls that the pointer would highlight.
            desktop.xdotool("mousemove", 1590, 1190)
            desktop.key("Tab")
            stops = []
            control = wait_for(f"a first stop in {tool.name}", lambda: focused(lumora))
            while (control.role, control.name, control.box) not in stops:
                stops.append((control.role, control.name, control.box))
                box = control.box
                # Colors fade in.
                wait_for("the picture to rest", lambda box=box: pixels(desktop, folder, box) == pixels(desktop, folder, box))
                before = pixels(desktop, folder, box)
                desktop.key("Tab")
                last = stops[-1]
                control = wait_for(f"the stop after {last}", lambda last=last: (new := focused(lumora)) and
                                   (new.role, new.name, new.box) != last and new)
                wait_for(f"the focus to be seen on {last}, in {tool.name}",
                         lambda before=before, box=box: changed(before, pixels(desktop, folder, box)) >= LEAST_CHANGE, 5)
                assert len(stops) < 60, stops
            # Header and sidebar are stops in every tool.
            assert len(stops) >= 4, stops


def popovers_are_announced(desktop, lumora):
    listener = subprocess.Popen([sys.executable, "-c", LISTENER], env=desktop.environment, stdout=subprocess.PIPE, text=True)
    desktop.processes.append(listener)
    assert listener.stdout.readline() == "ready\n"

    def announced(role, name):
        # Announcing itself twice is accepted, too.
        heard = ""
        while heard != f"{role} | {name}\n":
            heard = listener.stdout.readline()
            assert heard, f"{role} {name} was not announced"

    def opens(name, button):
        """The button's popover announces itself by the name, and Escape closes it."""
        button.press()
        announced("dialog", name)
        # A tool's tab has the same name as its help.
        lumora.find("dialog", name)
        desktop.key("Escape")
        wait_for(f"the popup {name} to go", lambda: not lumora.controls("dialog", name))

    for number, title in enumerate(HELP_TITLES, start=1):
        desktop.key(f"ctrl+{number}")
        wait_for(f"tool {number}", lambda number=number: lumora.controls("page tab")[number - 1].has_state("selected"))
        opens(title, lumora.button("Help on this tool"))
    opens("About Lumora", lumora.button("About Lumora"))

    # A tool's message.
    desktop.key("ctrl+1")
    opens("No size given", lumora.button("Generate", 1))
    desktop.key("ctrl+2")
    opens("This size will not work", lumora.button("Generate", 2))
    desktop.key("ctrl+4")
    lumora.find("text", "Color code").set_text("")
    opens("This is no color code", lumora.button("Copy CSS"))
    lumora.find("text", "Color code").set_text("#34485e")
    opens("Colors", lumora.find("color chooser", "Color well, opens the color picker"))


def main(program):
    with Desktop(program) as desktop:
        lumora = desktop.start()
        desktop.move_window(lumora, 100, 100)
        lumora.activate()
        # First, before a list is used: a list's current row counts as focused wherever the focus is.
        focus_is_seen(desktop, lumora)
        popovers_are_announced(desktop, lumora)
        names_are_complete(desktop, lumora)
        assert lumora.close() == 0


if __name__ == "__main__":
    main(sys.argv[1])
