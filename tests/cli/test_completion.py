# SPDX-License-Identifier: MIT
"""usage: test_completion.py SHELL FOLDER   Types lines and the tab key into an interactive SHELL (bash, zsh or fish) that knows the
completions in FOLDER, and sees which arguments the program would get."""
import os
import pty
import re
import select
import shutil
import signal
import sys
import tempfile
import time
import unittest
from pathlib import Path

SHELL, FOLDER = sys.argv[1], Path(sys.argv[2]).resolve()
FACTOR = max(1, int(os.environ.get("LUMORA_TIME_FACTOR", "1")))
FILES = ["my icon.png", "plain.JPG", "notes.txt", "Great App.ipa", "other.zip"]

# The text before the tab key, and the resulting arguments. Each has one answer, so that one tab is enough.
LINES = {
    "a command": ("plac", ["placeholders"]),
    "a command of help": ("help dow", ["help", "downscale"]),
    "an option": ("icons --pl", ["icons", "--platform"]),
    "an option of every command": ("validate --verb", ["validate", "--verbose"]),
    "an option of a command by its tool's name": ("resizer --dr", ["resizer", "--dry-run"]),
    "a platform": ("icons --platform and", ["icons", "--platform", "android"]),
    "a platform behind the equals sign": ("icons --platform=and", ["icons", "--platform=android"]),
    "a second platform": ("icons --platform mac,fav", ["icons", "--platform", "mac,favicon"]),
    "a second platform behind the equals sign": ("icons --platform=mac,fav", ["icons", "--platform=mac,favicon"]),
    "a tool": ("--tool dev", ["--tool", "devices"]),
    "a tool behind the equals sign": ("--tool=dev", ["--tool=devices"]),
    "a feature": ("devices --feature gyr", ["devices", "--feature", "gyroscope"]),
    "a feature behind the equals sign": ("devices --feature=gyr", ["devices", "--feature=gyroscope"]),
    "a picture with a blank": ("icons my", ["icons", "my icon.png"]),
    "a picture in capital letters": ("icon pl", ["icon", "plain.JPG"]),
    "a package with a blank": ("validate Gr", ["validate", "Great App.ipa"]),
    "no file of another kind": ("validate no", ["validate", "no"]),
    "no archive of another kind": ("validate ot", ["validate", "ot"]),
    "a folder with a blank": ("icons --to res", ["icons", "--to", "res folder/"]),
    "a folder behind the equals sign": ("icons --out=res", ["icons", "--out=res folder/"]),
    "no file where a folder belongs": ("icons --to my", ["icons", "--to", "my"]),
}

START = {
    "bash": (["bash", "--noprofile", "--norc", "-i"],
             "bind 'set enable-bracketed-paste off'; bind 'set bell-style none'; . '{folder}/lumora.bash'; "
             "lumora() {{ printf '<%s>' \"$@\"; echo; }}; PS1='rea''dy> '\n"),
    "zsh": (["zsh", "-f", "-i"],
            "fpath=('{folder}' $fpath); autoload -U compinit && compinit -D -u && compdef _lumora lumora; unsetopt beep zle_bracketed_paste; "
            "lumora() {{ printf '<%s>' \"$@\"; echo; }}; PS1='rea''dy> '\n"),
    "fish": (["fish", "--no-config", "-i"],
             "source '{folder}/lumora.fish'; function lumora; printf '<%s>' $argv; echo; end; "
             "function fish_prompt; echo -n 'rea''dy> '; end; set -g fish_autosuggestion_enabled 0\n"),
}
STEERING = re.compile(r"\x1b(\[[0-9;?>=<]*[a-zA-Z]|\][^\x07\x1b]*(\x07|\x1b\\)|[()][A-B0-9]|[=>])|[\r\x07\x0e\x0f]")


class Shell:
    """An interactive shell on its own terminal."""

    def __init__(self, folder):
        arguments, start = START[SHELL]
        self.process, self.terminal = pty.fork()
        if self.process == 0:
            os.chdir(folder)
            os.environ.update(TERM="xterm", HOME=folder, LC_ALL="C.UTF-8", COLUMNS="200")
            os.execvp(arguments[0], arguments)
        self.shown = ""
        self.type(start.format(folder=FOLDER))
        self.wait(r"ready> ")

    def type(self, text):
        os.write(self.terminal, text.encode())

    def wait(self, pattern):
        """Reads until the pattern is shown; returns the match."""
        end = time.monotonic() + 20 * FACTOR
        while time.monotonic() < end:
            found = re.search(pattern, STEERING.sub("", self.shown))
            if found:
                self.shown = ""
                return found
            if select.select([self.terminal], [], [], 0.2)[0]:
                try:
                    self.shown += os.read(self.terminal, 65536).decode("utf-8", "replace")
                except OSError:
                    break
        raise AssertionError(f"{SHELL} never showed {pattern!r}: {self.shown!r}")

    def close(self):
        os.close(self.terminal)
        os.kill(self.process, signal.SIGKILL)
        os.waitpid(self.process, 0)


class Completion(unittest.TestCase):
    def test_each_line(self):
        with tempfile.TemporaryDirectory() as folder:
            for name in FILES:
                Path(folder, name).touch()
            Path(folder, "res folder").mkdir()
            shell = Shell(folder)
            self.addCleanup(shell.close)
            for name, (typed, arguments) in LINES.items():
                with self.subTest(name):
                    # The mark after the line shows that the shell has finished the completion.
                    shell.type(f"lumora {typed}\t")
                    shell.type(" #end\n" if SHELL == "fish" else "\n")
                    given = shell.wait(r"\n((<[^\n]*>)+)\n").group(1)
                    # zsh removes the slash after a folder when the line ends there.
                    self.assertEqual([word.rstrip("/") for word in re.findall(r"<(.*?)>", given)],
                                     [word.rstrip("/") for word in arguments])


if __name__ == "__main__":
    if shutil.which(SHELL) is None:
        sys.exit(f"{SHELL} is not installed")
    unittest.main(argv=sys.argv[:1])
