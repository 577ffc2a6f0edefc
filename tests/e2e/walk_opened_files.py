# SPDX-License-Identifier: MIT
"""Files opened with the program: by its first start, by a second one that passes them on, and by one whose first is busy,
hangs, dies, or cannot be found."""

import signal
import subprocess
import sys
import tempfile
import time
import zipfile
from pathlib import Path

from desktop import Lumora, wait_for
from window_system import Desktop

# The time that the program waits for one that does not answer, plus time for starting.
PATIENCE = 5
MARGIN = 25


def picture(path):
    subprocess.run(["convert", "-size", "1024x1024", "gradient:tomato-steelblue", str(path)], check=True)
    return path


def package(path, name):
    with zipfile.ZipFile(path, "w") as archive:
        archive.writestr("Payload/Walk.app/Info.plist", f"""<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict><key>CFBundleDisplayName</key><string>{name}</string>
<key>CFBundleIdentifier</key><string>org.example.walk</string></dict></plist>""")
    return path


def is_current(lumora, number):
    return lumora.controls("page tab")[number - 1].has_state("selected")


def running_and_second(desktop, scratch):
    lumora = desktop.start(str(picture(scratch / "first.png")))
    lumora.wait_shown("first.png")

    # A picture while the validator is in view, and a package while the icon tool is.
    lumora.activate()
    desktop.key("ctrl+6")
    wait_for("the validator", lambda: is_current(lumora, 6))
    assert desktop.start_again(str(picture(scratch / "second.png"))) == 0
    lumora.wait_shown("second.png")
    wait_for("the icon tool", lambda: is_current(lumora, 1))
    assert desktop.start_again(str(package(scratch / "app.ipa", "Walked through"))) == 0
    wait_for("the validator", lambda: is_current(lumora, 6))
    wait_for("what was read of the package", lambda: any("Walked through" in c.name for c in lumora.controls("label")))

    # Spaces, special characters and other scripts; a path relative to another folder; only the first of several.
    strange = picture(scratch / "my ü – 画像 #1 100%.png")
    assert desktop.start_again(strange.name, "app.ipa", cwd=scratch) == 0
    lumora.wait_shown(strange.name)
    wait_for("the icon tool", lambda: is_current(lumora, 1))

    # A busy program is waited for.
    lumora.process.send_signal(signal.SIGSTOP)
    second = desktop.start_program(str(scratch / "first.png"))
    time.sleep(1)
    assert second.poll() is None, "the second start did not wait"
    lumora.process.send_signal(signal.SIGCONT)
    assert second.wait(PATIENCE + MARGIN) == 0
    lumora.wait_shown("first.png")
    return lumora


def dying_first(desktop, scratch, lumora):
    # The first one ends while a second start waits for its answer: then the second becomes the program.
    lumora.process.send_signal(signal.SIGSTOP)
    process = desktop.start_program(str(scratch / "second.png"))
    time.sleep(1)
    lumora.process.kill()
    lumora.process.wait()
    heir = Lumora(desktop, process)
    heir.wait_shown("second.png")
    assert desktop.start_again(str(scratch / "first.png")) == 0
    heir.wait_shown("first.png")
    return heir


def hanging_first(desktop, scratch, lumora):
    # One that never answers costs a limited time; then there is a second window, which is found once the first has ended.
    lumora.process.send_signal(signal.SIGSTOP)
    begin = time.monotonic()
    process = desktop.start_program(str(scratch / "second.png"))
    alone = Lumora(desktop, process)
    alone.wait_shown("second.png")
    assert time.monotonic() - begin < PATIENCE + MARGIN
    # Awake again, it does not repeat the other one's work; both continue on their own.
    lumora.process.send_signal(signal.SIGCONT)
    lumora.find("push button", "Help on this tool").press()
    lumora.wait_shown("Report a bug")
    assert lumora.shows("first.png") and not lumora.shows("second.png")
    lumora.process.kill()
    lumora.process.wait()
    assert desktop.start_again(str(scratch / "first.png")) == 0
    alone.wait_shown("first.png")
    assert alone.close() == 0


def without_a_bus(desktop, scratch):
    # Without a bus, each start opens its own window.
    nowhere = {"DBUS_SESSION_BUS_ADDRESS": f"unix:path={scratch}/nowhere"}
    processes = [desktop.run(desktop.program, str(scratch / "first.png"), **nowhere) for _ in range(2)]
    for process in processes:
        wait_for("a window of its own", lambda process=process: desktop.has_window(process))
        assert process.poll() is None, "it ended by itself: " + desktop.log()
        process.terminate()
        assert process.wait(MARGIN) == 0


def main(program):
    with tempfile.TemporaryDirectory() as scratch, Desktop(program) as desktop:
        scratch = Path(scratch)
        lumora = running_and_second(desktop, scratch)
        heir = dying_first(desktop, scratch, lumora)
        hanging_first(desktop, scratch, heir)
        without_a_bus(desktop, scratch)


if __name__ == "__main__":
    main(sys.argv[1])
