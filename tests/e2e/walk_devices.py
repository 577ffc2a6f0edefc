# SPDX-License-Identifier: MIT
"""Chooses devices with the mouse, with the keyboard alone and by the accessibility interface; checks which pictures fade."""

import subprocess
import sys

from desktop import wait_for
from window_system import Desktop

MATCHES, FADED = "meets the choice", "does not meet the choice"
IPODS = {"iPod 1G", "iPod 2G", "iPod 3G", "iPod 4G", "iPod 5G"}
BELOW_7 = {"iPhone 3G", "iPhone 3GS", "iPod 1G", "iPod 2G", "iPod 3G", "iPod 4G", "iPad 1st Gen"}
ALL = (IPODS | {f"iPhone {model}" for model in ("3G", "3GS", "4", "4S", "5", "5C", "5S")}
       | {f"iPad {model}" for model in ("1st Gen", "2th Gen", "3rd Gen", "4th Gen")} | {"iPad mini 1st Gen"})


def main(program):
    with Desktop(program) as desktop:
        lumora = desktop.start("--tool=devices")
        lumora.wait_shown("Lumora | Devices")
        wait_for("all pictures", lambda: {picture.name for picture in lumora.controls("image")} >= ALL)
        pictures = {picture.name: picture for picture in lumora.controls("image") if picture.name in ALL}

        def faded():
            told = {name: picture.node.description for name, picture in pictures.items()}
            assert all(text in (f"{name}, {MATCHES}", f"{name}, {FADED}") for name, text in told.items()), told
            return {name for name, text in told.items() if text.endswith(FADED)}

        def darkness(name):
            """The contrast of the picture with its background, 0 to 1."""
            x, y, width, height = pictures[name].box
            path = desktop.folder / "device.png"
            desktop.screenshot(path, f"{width}x{height}+{x}+{y}")
            answer = subprocess.run(["convert", str(path), "-colorspace", "gray", "-format", "%[fx:maxima-minima]",
                                     "info:"], stdout=subprocess.PIPE, text=True, check=True)
            return float(answer.stdout)

        def wait_faded(expected, clear, dim):
            wait_for(f"{sorted(expected)} to be told as faded", lambda: faded() == expected)
            wait_for(f"{dim} to fade", lambda: darkness(dim) < 0.35)
            wait_for(f"{clear} to stand out", lambda: darkness(clear) > 0.7)

        def wait_all():
            wait_for("all to match", lambda: not faded())
            wait_for("all to stand out", lambda: darkness("iPod 1G") > 0.7)
            for control in lumora.controls("check box") + lumora.controls("radio button"):
                wait_for(f"{control.name} to be empty", lambda control=control: not control.has_state("checked"))

        wait_all()

        # With the mouse.
        lumora.find("radio button", "iOS 7+").click()
        wait_faded(BELOW_7, "iPhone 5S", "iPod 4G")
        lumora.find("radio button", "iOS 4+").click()
        wait_faded({"iPod 1G"}, "iPod 4G", "iPod 1G")
        lumora.find("check box", "GPS").click()
        wait_faded(IPODS, "iPad 1st Gen", "iPod 5G")
        lumora.find("check box", "GPS").click()
        wait_faded({"iPod 1G"}, "iPod 5G", "iPod 1G")
        lumora.button("Reset").click()
        wait_all()

        # With the keyboard alone.
        desktop.xdotool("mousemove", 1590, 1190)
        lumora.activate()
        lumora.tab_to("radio button", "iOS 7+")
        desktop.key("space")
        wait_faded(BELOW_7, "iPhone 5S", "iPod 4G")
        lumora.tab_to("check box", "Camera Flash")
        desktop.key("space")
        wait_for("the flash to be asked for", lambda: "iPad 4th Gen" in faded() and "iPhone 4" not in faded())
        lumora.tab_to("push button", "Reset")
        desktop.key("space")
        wait_all()

        # By the accessibility interface.
        lumora.find("radio button", "iOS 7+").press()
        wait_faded(BELOW_7, "iPhone 5S", "iPod 4G")
        wait_for("the version to be chosen", lambda: lumora.find("radio button", "iOS 7+").has_state("checked"))
        lumora.find("check box", "OpenGL 3.0").press()
        wait_faded(ALL - {"iPhone 5S"}, "iPhone 5S", "iPad 4th Gen")
        wait_for("the feature to be chosen", lambda: lumora.find("check box", "OpenGL 3.0").has_state("checked"))
        lumora.button("Reset").press()
        wait_all()
        assert lumora.close() == 0


if __name__ == "__main__":
    main(sys.argv[1])
