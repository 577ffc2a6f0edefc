# SPDX-License-Identifier: MIT
"""Starts, switches tools, opens and closes the popups, starts a second time, ends."""

import subprocess
import sys

from desktop import wait_for
from window_system import Desktop


def main(program):
    with Desktop(program) as desktop:
        lumora = desktop.start()
        lumora.wait_shown("Lumora | Icons")

        # All tools of the sidebar, by mouse and by key.
        sidebar = lumora.controls("page tab")
        assert sidebar, "the sidebar offers no tool"
        titles = set()
        for number, tool in enumerate(sidebar, start=1):
            tool.click()
            wait_for(f"{tool.name} to be selected", lambda tool=tool: tool.has_state("selected"))
            titles.add(wait_for(f"the title of {tool.name}", lambda: next(
                (c.name for c in lumora.controls("label") if c.name.startswith("Lumora | ") and c.name not in titles), None)))
            sidebar[0].press()
            desktop.key(f"ctrl+{number}")
            wait_for(f"{tool.name} by its key", lambda tool=tool: tool.has_state("selected"))
        assert len(titles) == len(sidebar), titles
        desktop.key("ctrl+1")
        lumora.wait_shown("Lumora | Icons")

        # Help and about: a second click hides a popup, opening one closes the other, a tool switch closes both.
        help_button, about_button = lumora.button("Help on this tool"), lumora.button("About Lumora")
        help_button.click()
        lumora.wait_shown("Report a bug")
        help_button.click()
        lumora.wait_gone("Report a bug")
        desktop.key("F1")
        lumora.wait_shown("Report a bug")
        about_button.click()
        lumora.wait_shown("KESTREL interactive")
        lumora.wait_gone("Report a bug")
        desktop.key("Escape")
        lumora.wait_gone("KESTREL interactive")
        for button, text in ((help_button, "Report a bug"), (about_button, "KESTREL interactive")):
            for number in (2, 1):
                button.press()
                lumora.wait_shown(text)
                desktop.key(f"ctrl+{number}")
                lumora.wait_gone(text)
                wait_for("the tool", lambda number=number: sidebar[number - 1].has_state("selected"))

        # A second start contacts the first and ends.
        assert desktop.start_again() == 0
        assert desktop.start_again("--tool=icons") == 0
        lumora.wait_shown("Lumora | Icons")
        assert lumora.close() == 0

        # The end of the session closes it as cleanly.
        assert desktop.start().terminate() == 0

        # Without a display: one line, and no window.
        without = {name: value for name, value in desktop.environment.items()
                   if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        ended = subprocess.run([program], env=without, capture_output=True, text=True)
        assert ended.returncode == 1, ended
        assert ended.stderr.count("\n") == 1 and "icons" in ended.stderr, ended.stderr


if __name__ == "__main__":
    main(sys.argv[1])
