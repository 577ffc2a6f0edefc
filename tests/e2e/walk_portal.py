# SPDX-License-Identifier: MIT
"""In a sandbox, as started by Flatpak: files and folders are chosen in the desktop's own dialogs, which its portal shows; in
the toolkit's where there is no portal, or one without such dialogs."""

import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

from desktop import Desktop, wait_for

PORTAL = Path(__file__).parent / "fake_file_portal.py"
OTHER_PORTAL = Path(__file__).parent / "fake_portal.py"


def chooses_in_own_dialog(lumora, picture):
    lumora.button("Browse…").press()
    lumora.choose_by_reader(str(picture), "Open")
    lumora.wait_shown(picture.name)


def main(program):
    with tempfile.TemporaryDirectory() as scratch, Desktop(program) as desktop:
        scratch = Path(scratch)
        source, out = scratch / "through the portal ü.png", scratch / "out"
        out.mkdir()
        subprocess.run(["convert", "-size", "1024x1024", "gradient:tomato-steelblue", source], check=True)
        portal = subprocess.Popen(["/usr/bin/python3", PORTAL, source, out], env=desktop.environment,
                                  stdout=subprocess.PIPE, text=True)
        desktop.processes.append(portal)
        assert portal.stdout.readline() == "ready\n"

        desktop.environment["QT_QPA_PLATFORMTHEME"] = "xdgdesktopportal"
        lumora = desktop.start()
        lumora.button("Browse…").press()
        assert portal.stdout.readline() == "asked for a file\n"
        lumora.wait_shown(source.name)
        lumora.find("check box", "Favicon").press()
        lumora.button("Generate", 0).press()
        assert portal.stdout.readline() == "asked for a folder\n"
        wait_for("the icons", lambda: len(list(out.glob("icons/Favicon/*.png"))) == 5)
        # The toolkit showed no dialog of its own.
        assert not lumora.controls("push button", "Open") and not lumora.controls("push button", "Choose")

        portal.terminate()
        portal.wait()
        others = [scratch / "without a portal.png", scratch / "beside another portal.png"]
        for other in others:
            shutil.copy(source, other)
        chooses_in_own_dialog(lumora, others[0])
        desktop.run("/usr/bin/python3", str(OTHER_PORTAL), "cancel")
        subprocess.run(["gdbus", "wait", "--session", "org.freedesktop.portal.Desktop"], env=desktop.environment, check=True)
        chooses_in_own_dialog(lumora, others[1])
        assert lumora.close() == 0


if __name__ == "__main__":
    main(sys.argv[1])
