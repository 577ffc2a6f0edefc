# SPDX-License-Identifier: MIT
"""A desktop of its own for one test, as in desktop.py, under mutter, the Wayland compositor of GNOME. It has no screen that
could be photographed: what the program shows is asked from the accessibility tree. Mouse and keyboard go through the bus
interface for remote desktops.

    with MutterDesktop(program) as desktop:
        lumora = desktop.start()
        lumora.button("Generate").click()
"""

import subprocess
import time

from desktop import Desktop, wait_for

LEFT = 0x110  # the kernel's number of the mouse's left button
FAR = 10000.0


class MutterDesktop(Desktop):
    """The desktop under mutter, which puts each new window in the middle of its one screen. A window does not know where it
    is, so `offset` is where this expects it."""

    has_links = False
    places_windows = False
    BUS = "org.gnome.Mutter.RemoteDesktop"
    SETTINGS = "[org/gnome/mutter]\ncenter-new-windows=true\n"

    def _start_x(self):
        return ""

    def _start_window_system(self):
        del self.environment["DISPLAY"]
        settings = self.folder / "home/.config/glib-2.0/settings"
        settings.mkdir(parents=True)
        (settings / "keyfile").write_text(self.SETTINGS)
        self.run("mutter", "--headless", "--wayland", "--no-x11", "--virtual-monitor", self.size, "--wayland-display=lumora",
                 GSETTINGS_BACKEND="keyfile")
        wait_for("the compositor", (self.folder / "runtime/lumora").exists)
        self.environment |= {"WAYLAND_DISPLAY": "lumora", "QT_QPA_PLATFORM": "wayland", "QT_SCALE_FACTOR": str(self.scale)}
        self.offset = (0, 0)
        self.session = wait_for("mouse and keyboard", self._begin_session)
        # The compositor takes relative moves only; at the corner the position is certain.
        self.pointer = (0, 0)
        self._call("NotifyPointerMotionRelative", "dd", -FAR, -FAR)
        # The seat has a keyboard from its first key on, which itself gets lost.
        self.key("shift")

    def _begin_session(self):
        from gi.repository import Gio

        self.bus = Gio.DBusConnection.new_for_address_sync(
            self.environment["DBUS_SESSION_BUS_ADDRESS"],
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)
        try:
            answer = self.bus.call_sync(self.BUS, "/" + self.BUS.replace(".", "/"), self.BUS, "CreateSession", None, None,
                                        Gio.DBusCallFlags.NONE, -1, None)
        except Exception:  # it is on the bus a moment after its socket is there
            return None
        self.session = answer.unpack()[0]
        self._call("Start", "")
        return self.session

    def _call(self, method, signature, *arguments):
        from gi.repository import Gio, GLib

        parameters = GLib.Variant(f"({signature})", arguments) if arguments else None
        self.bus.call_sync(self.BUS, self.session, self.BUS + ".Session", method, parameters, None, Gio.DBusCallFlags.NONE,
                           -1, None)

    def move_pointer(self, x, y):
        self._call("NotifyPointerMotionRelative", "dd", float(x - self.pointer[0]), float(y - self.pointer[1]))
        self.pointer = (x, y)

    def press(self, down):
        self._call("NotifyPointerButton", "ib", LEFT, down)

    def click(self, x, y):
        self.move_pointer(x, y)
        self.press(True)
        self.press(False)

    def drag(self, lumora, start, travel):
        """Drags with the mouse. Before each step the program answers, so that it has handled the one before."""
        self.move_pointer(*start)
        self.press(True)
        for part in (0, 0.2, 0.4, 1):
            self.move_pointer(*(start[axis] + travel[axis] * part for axis in (0, 1)))
            for _ in range(3):
                lumora.shows("")
        self.press(False)

    def key(self, *keys):
        for key in keys:
            symbols = [keysym(name) for name in key.split("+")]
            for symbol in symbols:
                self._call("NotifyKeyboardKeysym", "ub", symbol, True)
            for symbol in reversed(symbols):
                self._call("NotifyKeyboardKeysym", "ub", symbol, False)

    def type(self, text):
        for letter in text:
            self.key(letter)

    def find_window(self, lumora):
        """Expects the window in the middle."""
        x, y, width, height = wait_for("Lumora's window", lambda: lumora.controls() and next(lumora.walk()).box_as_told)
        screen = [int(side) for side in self.size.split("x")]
        self.offset = ((screen[0] - round(width * self.scale)) // 2 - x, (screen[1] - round(height * self.scale)) // 2 - y)

    def activate(self, lumora):
        """The window has the keyboard: it is the only one."""

    def to_screen(self, x, y, width, height):
        x, y, width, height = super().to_screen(x, y, width, height)
        return x + self.offset[0], y + self.offset[1], width, height


KEYS = {"ctrl": 0xffe3, "shift": 0xffe1, "alt": 0xffe9, "Escape": 0xff1b, "Return": 0xff0d, "Tab": 0xff09, "space": 0x20,
        "F1": 0xffbe, "F11": 0xffc8, "Delete": 0xffff, "Down": 0xff54, "Right": 0xff53, "End": 0xff57, "BackSpace": 0xff08}


def keysym(name):
    return KEYS[name] if name in KEYS else ord(name)
