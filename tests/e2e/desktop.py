# SPDX-License-Identifier: MIT
"""A desktop of its own for one test: X server, window manager, session bus, accessibility bus, and Lumora on it.

    with Desktop(program) as desktop:
        lumora = desktop.start("picture.png")
        lumora.button("Generate").press()

Everything is driven from outside: controls are found by role and name in the accessibility tree, the mouse and the
keyboard are the X server's. Each walk starts its own desktop, so that walks may run side by side. Needs Debian's
python3-pyatspi; run with /usr/bin/python3.

wayland_desktop.WaylandDesktop is the same under a Wayland compositor.
"""

import os
import random
import shutil
import signal
import subprocess
import tempfile
import time
from pathlib import Path

from control import Control
from waiting import FACTOR, WAIT, Missing, wait_for

TYPING_ATTEMPTS = 4
TYPING_WAIT = WAIT / TYPING_ATTEMPTS


class Desktop:
    """Owns every process of the desktop; leaving the `with` block ends them all."""

    # Whether a drag can offer only a link, or a copy without a link.
    has_links = True
    # Whether a program or a script can set and read the place of a window.
    places_windows = True

    def __init__(self, program, drag_source=None, size="1600x1200", scale=1, language="en_GB.UTF-8"):
        self.program = Path(program)
        self.drag_source = drag_source
        self.size, self.scale, self.language = size, scale, language
        self.folder = Path(tempfile.mkdtemp(prefix="lumora-e2e-"))
        self.processes = []
        self.source = None
        self.environment = {}

    def __enter__(self):
        try:
            self._begin()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for process in reversed(self.processes):
            if process.poll() is None:
                process.terminate()
                try:
                    process.wait(10)
                except subprocess.TimeoutExpired:
                    process.kill()
                    process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def _begin(self):
        home, runtime = self.folder / "home", self.folder / "runtime"
        (home / "Documents").mkdir(parents=True)
        runtime.mkdir(mode=0o700)
        self.environment = {
            "PATH": os.environ["PATH"],
            "HOME": str(home),
            "XDG_RUNTIME_DIR": str(runtime),
            "XDG_CONFIG_HOME": str(home / ".config"),
            "LC_ALL": "C.UTF-8",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "NO_AT_BRIDGE": "1",
        }
        # The settings of an instrumented program's reports.
        self.environment |= {name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")}
        self.environment["DISPLAY"] = self._start_x()
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._start_bus()
        self._start_window_system()
        self.run("/usr/libexec/at-spi-bus-launcher", "--launch-immediately")
        # This process finds the accessibility bus by its own environment.
        os.environ.update(self.environment)
        # By itself the library waits less than a second for an answer, too short on a machine with other work.
        import gi

        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi

        Atspi.set_timeout(int(5000 * FACTOR), int(15000 * FACTOR))

    def _start_window_system(self):
        self.environment["QT_SCALE_FACTOR"] = str(self.scale)
        # A window that is mapped while the window manager starts is lost: it stays unmapped. The manager's start command runs
        # when the start is over; the properties that it sets on the root window come too early.
        ready = self.folder / "managed"
        self.run("openbox", "--sm-disable", "--startup", f"touch {ready}")
        wait_for("the window manager", ready.exists)

    def _start_x(self):
        # Several desktops may start at once; if a number is taken, tries the next one.
        for _ in range(20):
            number = random.randint(200, 30000)
            read, write = os.pipe()
            # Without -noreset the server drops a client that connects while its only client leaves.
            server = self.run("Xvfb", f":{number}", "-noreset", "-displayfd", str(write), "-screen", "0", f"{self.size}x24",
                              "-nolisten", "tcp", pass_fds=[write])
            os.close(write)
            with os.fdopen(read) as answer:
                if answer.readline().strip() == str(number):
                    return f":{number}"
            server.wait()
        raise Missing("no X server came up: " + self.log())

    def _start_bus(self):
        address = f"unix:path={self.folder}/runtime/bus"
        self.run("dbus-daemon", "--session", "--nofork", f"--address={address}")
        wait_for("the session bus", (self.folder / "runtime/bus").exists)
        return address

    def run(self, *command, pass_fds=(), cwd=None, **variables):
        """Starts a process of the desktop, in a folder of its own and with further environment variables."""
        with open(self.folder / "log", "a", encoding="utf-8") as log:
            process = subprocess.Popen(command, env=self.environment | variables, stdout=log, stderr=log,
                                       pass_fds=pass_fds, cwd=cwd)
        self.processes.append(process)
        return process

    def log(self):
        """The output of all processes of the desktop."""
        return (self.folder / "log").read_text("utf-8")

    def start(self, *arguments, cwd=None):
        """Starts Lumora, from a folder if one is given, and waits for its window."""
        return Lumora(self, self.start_program(*arguments, cwd=cwd))

    def start_again(self, *arguments, cwd=None):
        """Starts it a second time and returns its exit status once it has ended."""
        return self.start_program(*arguments, cwd=cwd).wait(WAIT)

    def start_program(self, *arguments, cwd=None):
        """Starts Lumora and waits for nothing."""
        # Only its language: the locale itself may not be installed.
        return self.run(str(self.program), *arguments, cwd=cwd, LC_ALL=self.language)

    # The mouse and the keyboard

    def xdotool(self, *arguments):
        return subprocess.run(["xdotool", *map(str, arguments)], env=self.environment, check=True,
                              capture_output=True, text=True).stdout.strip()

    def key(self, *keys):
        self.xdotool("key", "--clearmodifiers", *keys)

    def type(self, text):
        self.xdotool("type", "--delay", 20, text)

    def click(self, x, y):
        self.xdotool("mousemove", x, y, "click", 1)

    def drag_files(self, files, to, actions="copy,move,link", before_drop=None):
        """Drags the files, or a color as #rrggbb, from another process's window and drops them at the point. Calls
        `before_drop` while the pointer rests there."""
        start = None
        while not start:
            if self.source:
                self.source.terminate()
                self.source.wait(WAIT)
                wait_for("the last drag's source to go", self._is_source_gone)
            self.source = self.run(str(self.drag_source), actions, *map(str, files))
            start = self._grip(to)
        self.xdotool("mousemove", *start, "mousedown", 1)
        # The drag begins only once the pointer has moved, and every window on the way must get events.
        steps = 16
        for step in range(1, steps + 1):
            self.xdotool("mousemove", *(start[axis] + (to[axis] - start[axis]) * step // steps for axis in (0, 1)))
            time.sleep(0.05)
        time.sleep(0.5)
        if before_drop:
            before_drop()
        self.xdotool("mouseup", 1)

    def _is_source_gone(self):
        """Whether the visible window is the next drag's source."""
        return True

    def _grip(self, _):
        """A place for the drag's source beside the way of the drag; None if there is none."""
        window = wait_for("the drag's source", lambda: self._window_of(self.source))
        self.xdotool("windowmove", "--sync", window, 1400, 20)
        return 1450, 80

    def move_window(self, lumora, x, y):
        """Moves Lumora's window there, if programs may move windows here."""
        self.xdotool("windowmove", "--sync", lumora.window, x, y)

    def _window_of(self, process):
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(process.pid)],
                               env=self.environment, capture_output=True, text=True)
        return found.stdout.split()[0] if found.stdout.split() else None

    def screenshot(self, path, geometry=None):
        """A picture of the whole screen, or of the part WIDTHxHEIGHT+X+Y."""
        crop = ["-crop", geometry, "+repage"] if geometry else []
        subprocess.run(["import", "-silent", "-window", "root", *crop, str(path)], env=self.environment, check=True)

    def has_window(self, process):
        """Whether a visible window may be this process's."""
        return bool(self._window_of(process))

    def find_window(self, lumora):
        """Waits for Lumora's window, and returns xdotool's id of it."""
        return wait_for("Lumora's window", lambda: self._window_of(lumora.process))

    def activate(self, lumora):
        self.xdotool("windowactivate", "--sync", lumora.window)

    def photograph(self, process, path):
        """Takes the picture of the process's window."""
        subprocess.run(["import", "-silent", "-window", self._window_of(process), str(path)], env=self.environment, check=True)

    def to_screen(self, x, y, width, height):
        """From a rectangle on the screen in points, as Lumora reports it, to pixels."""
        return tuple(round(value * self.scale) for value in (x, y, width, height))


class Lumora:
    """The running program."""

    def __init__(self, desktop, process):
        self.desktop, self.process = desktop, process
        self.node = wait_for("Lumora in the accessibility tree", self._find_application)
        self.window = desktop.find_window(self)

    def _find_application(self):
        import pyatspi

        if self.process.poll() is not None:
            raise Missing("Lumora ended: " + self.desktop.log())
        for application in pyatspi.Registry.getDesktop(0):
            if application is not None and application.get_process_id() == self.process.pid:
                return application if application.childCount else None
        return None

    def _walk(self, node, showing=False):
        try:
            children = [node.getChildAtIndex(index) for index in range(node.childCount)]
        except Exception:  # the node was deleted meanwhile
            return
        for child in children:
            # The children of a hidden node are hidden, so five of the six tools are skipped.
            if child is not None and (not showing or self._is_showing(child)):
                yield child
                yield from self._walk(child, showing)

    def _is_showing(self, node):
        try:
            return Control(node, self.desktop).has_state("showing")
        except Exception:  # as above
            return False

    def walk(self):
        """All controls, the main window first."""
        return (Control(node, self.desktop) for node in self._walk(self.node))

    def controls(self, role=None, name=None, showing=True):
        """All controls with the role and the name, if given."""
        found = []
        for node in self._walk(self.node, showing):
            try:
                control = Control(node, self.desktop)
                if (role is None or control.role == role) and (name is None or control.name == name):
                    found.append(control)
            except Exception:  # as above
                continue
        return found

    def find(self, role, name, seconds=WAIT):
        """Waits until a control is visible."""
        return wait_for(f'the {role} "{name}"', lambda: next(iter(self.controls(role, name)), None), seconds)

    def button(self, name, index=0):
        return wait_for(f'the button "{name}"', lambda: (self.controls("push button", name) + [None] * 9)[index])

    def shows(self, name):
        """Whether a control of that name is visible now."""
        return bool(self.controls(None, name))

    def wait_shown(self, name):
        wait_for(f'"{name}" to show', lambda: self.shows(name))

    def wait_gone(self, name):
        wait_for(f'"{name}" to go', lambda: not self.shows(name))

    def choose_in_dialog(self, path):
        """Types a path into the file or folder dialog that is open and confirms."""
        field = wait_for("the file dialog", lambda: next(iter(self.controls("text", None)[::-1]), None)
                         if self.controls("dialog") or self.controls("file chooser") else None)
        field.focus()
        # Keys typed before the dialog is the active window go to the window behind it.
        wait_for("the dialog to have the keyboard", lambda: field.has_state("focused"))
        # On a busy machine a key can repeat before its release is read, and the dialog can still fill in a name of its own.
        for _ in range(TYPING_ATTEMPTS):
            self.desktop.key("ctrl+a")
            self.desktop.type(str(path))
            try:
                wait_for("the path in the dialog", lambda: field.text == str(path), TYPING_WAIT)
                break
            except Missing:
                typed = field.text
        else:
            raise Missing(f"the dialog has {typed!r}, not {path}")
        self.desktop.key("Return")

    def choose_by_reader(self, text, confirm):
        """Fills in the open file or folder dialog and presses its button, by the accessibility interface alone."""
        wait_for("the dialog's button", lambda: self.controls("push button", confirm))
        wait_for("the dialog's field", lambda: self.controls("text")[-1:])[0].set_text(text)
        self.button(confirm).press()
        wait_for("the dialog to close", lambda: not self.controls("push button", confirm))

    def focused(self):
        """The control that has the keyboard, if any."""
        return next((control for control in self.controls() if control.has_state("focused")), None)

    def activate(self):
        """Gives the window the keyboard, which another window may have taken."""
        self.desktop.activate(self)

    def tab_to(self, role, name, steps=60):
        """Presses Tab until the control has the focus, and returns the control."""
        control = self.find(role, name)

        def place():
            focused = self.focused()
            return focused and (focused.role, focused.name, focused.box)

        for _ in range(steps):
            if control.has_focus():
                return control
            before = place()
            self.desktop.key("Tab")
            # A second key before the end of the first one's work would move the focus past the control.
            try:
                wait_for("the focus to move", lambda before=before: place() not in (before, None), 3)
            except Missing:
                continue  # the window did not have the keyboard yet
        raise Missing(f"Tab never comes to {name}")

    def close(self):
        """Closes the window as its user would and returns the exit status."""
        end = time.monotonic() + WAIT
        while True:
            self.activate()
            self.desktop.key("ctrl+q")
            try:
                return self.process.wait(WAIT / 6)
            except subprocess.TimeoutExpired:
                # The key is lost if a dialog that was just closed still had the keyboard; a user presses it again.
                if time.monotonic() > end:
                    raise

    def terminate(self, number=signal.SIGTERM):
        self.process.send_signal(number)
        return self.process.wait(WAIT)
