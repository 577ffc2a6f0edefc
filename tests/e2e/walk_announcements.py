# SPDX-License-Identifier: MIT
"""The events for screen readers while the program is used: changed names, values, states and selections, each by its own
event. Without these, a reader that does not read again would keep the first values."""

import subprocess
import sys
import tempfile
import threading
from pathlib import Path

from desktop import wait_for
from window_system import Desktop

# Prints one line for each event: its kind, and the role and name of its source.
LISTENER = """
import pyatspi
def heard(event):
    try:
        say(event)
    except Exception:  # what it comes from went away meanwhile
        pass
def say(event):
    print(event.type, "|", event.source.getRoleName(), "|", event.source.name, flush=True)
pyatspi.Registry.registerEventListener(heard, "object:property-change:accessible-name",
                                       "object:property-change:accessible-value", "object:state-changed:checked",
                                       "object:state-changed:selected", "object:selection-changed",
                                       "object:text-changed:insert")
print("ready", flush=True)
pyatspi.Registry.start()
"""
NAME, VALUE = "object:property-change:accessible-name", "object:property-change:accessible-value"
TEXT = "object:text-changed:insert"
CHECKED, SELECTION = "object:state-changed:checked", ("object:state-changed:selected", "object:selection-changed")


class Reader:
    """Listens on the accessibility bus from a process of its own, as a screen reader does."""

    def __init__(self, desktop):
        self.process = subprocess.Popen([sys.executable, "-c", LISTENER], env=desktop.environment,
                                        stdout=subprocess.PIPE, text=True)
        desktop.processes.append(self.process)
        assert self.process.stdout.readline() == "ready\n"
        self.lines = []
        threading.Thread(target=self._read, daemon=True).start()

    def _read(self):
        for line in self.process.stdout:
            self.lines.append(line.rstrip("\n").split(" | "))

    def hears(self, kinds, role, name, cause):
        """Whether the cause makes the control send an event of one of the kinds."""
        kinds = (kinds,) if isinstance(kinds, str) else kinds
        begin = len(self.lines)
        cause()
        # Registered kinds are families: an event's name may end with a detail.
        wait_for(f"{kinds} of the {role} {name!r}; heard {self.lines[begin:]}", lambda: any(
            line[0].startswith(kinds) and line[1] == role and (name is None or line[2] == name)
            for line in list(self.lines[begin:])), 20)


def controls_speak(desktop, lumora, reader):
    tabs = lumora.controls("page tab")
    reader.hears(SELECTION, "page tab", tabs[3].name, lambda: desktop.key("ctrl+4"))

    # A button whose caption changes, and comes back.
    lumora.find("text", "Color code").set_text("#34485e")
    reader.hears(NAME, "push button", None, lumora.button("Copy CSS").press)
    lumora.wait_shown("Copy CSS")

    # The picker: its pages, and its wheel by key.
    well = lumora.find("color chooser", "Color well, opens the color picker")
    well.press()
    pages = wait_for("the picker's pages", lambda: lumora.controls("page tab")[len(tabs):])
    reader.hears(SELECTION, "page tab", pages[1].name, pages[1].press)
    pages[0].press()
    wheel = wait_for("the wheel", lambda: lumora.controls("dial"))[0]
    wheel.focus()
    wait_for("the wheel to have the focus", lambda: wheel.has_state("focused"))
    reader.hears(VALUE, "dial", wheel.name, lambda: desktop.key("Right"))
    well.press()
    lumora.wait_gone("Hexadecimal code")

    # Boxes and fields.
    desktop.key("ctrl+1")
    wait_for("the icon tool", lambda: tabs[0].has_state("selected"))
    box = wait_for("a check box", lambda: lumora.controls("check box"))[0]
    reader.hears(CHECKED, "check box", box.name, box.press)
    field = wait_for("the size field", lambda: lumora.controls("text"))[0]
    reader.hears(TEXT, "text", field.name, lambda: field.set_text("57"))


def popovers_tell_their_new_names(desktop, lumora, reader):
    """One popover has the help for every tool."""
    for number in (2, 3):
        desktop.key(f"ctrl+{number}")
        tab = lumora.controls("page tab")[number - 1]
        wait_for("the tool", lambda tab=tab: tab.has_state("selected"))
        reader.hears(NAME, "dialog", tab.name, lumora.button("Help on this tool").press)
        desktop.key("Escape")
        lumora.wait_gone("Report a bug")


def progress_is_told(desktop, lumora, reader, scratch):
    source, out = scratch / "button@2x.png", scratch / "out"
    out.mkdir()
    subprocess.run(["convert", "-size", "200x80", "plasma:tomato-steelblue", str(source)], check=True)
    desktop.key("ctrl+3")
    lumora.wait_shown("Lumora | Retina down-scaler")
    lumora.button("Browse…").press()
    lumora.choose_by_reader(str(source), "Open")
    reader.hears(VALUE, "progress bar", "Progress of the down-scaling",
                 lambda: lumora.choose_by_reader(str(out), "Choose"))
    lumora.wait_shown("All done")


def main(program):
    with tempfile.TemporaryDirectory() as scratch, Desktop(program) as desktop:
        lumora = desktop.start()
        desktop.move_window(lumora, 100, 100)
        lumora.activate()
        reader = Reader(desktop)
        controls_speak(desktop, lumora, reader)
        popovers_tell_their_new_names(desktop, lumora, reader)
        progress_is_told(desktop, lumora, reader, Path(scratch))
        assert lumora.close() == 0
        # The dialogs' settings are not stored either.
        kept = [path.name for path in (desktop.folder / "home/.config").rglob("*") if path.is_file()]
        assert kept == [], kept


if __name__ == "__main__":
    main(sys.argv[1])
