# SPDX-License-Identifier: MIT
"""./run on other kinds of machine: without root, without sudo, with an old package index, without Debian.

Each machine is a folder of commands, the only one in PATH: this system's text tools, and scripts that record their calls
instead of changing the system."""
import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

SOURCE = Path(os.environ["LUMORA_SOURCE"])
TOOLS = ("bash", "cat", "chmod", "comm", "dirname", "env", "mkdir", "mktemp", "rm", "sed", "sort", "stat")
# The result of the simulated build: a program that prints its arguments.
BUILD = 'mkdir -p "$FAKE_ROOT/build/release" && printf \'%s\\n\' \'#!/bin/sh\' \'echo "program: $*"\' >"$FAKE_ROOT/build/release/lumora" && chmod +x "$FAKE_ROOT/build/release/lumora"'


def packages():
    lines = (SOURCE / "packaging/build-packages.txt").read_text().splitlines()
    return sorted({line.split("#")[0].strip() for line in lines} - {""})


class EnsurePackages(unittest.TestCase):
    # The prefix of a command; empty to run it as the user of the tests.
    identity = ()

    def setUp(self):
        self.place = Path(tempfile.mkdtemp(prefix="lumora-machine-"))
        self.addCleanup(shutil.rmtree, self.place)
        self.calls = self.place / "calls"
        self.calls.touch()
        self.commands = self.place / "bin"
        self.commands.mkdir()
        for tool in TOOLS:
            (self.commands / tool).symlink_to(shutil.which(tool))
        self.root = self.place / "checkout"
        (self.root / "packaging").mkdir(parents=True)
        for name in ("run", "packaging/ensure-packages", "packaging/build-release", "packaging/build-packages.txt"):
            shutil.copy(SOURCE / name, self.root / name)
        self.command("cmake", "")
        self.command("ninja", BUILD)

    def command(self, name, script):
        """Makes a command that first records its call."""
        path = self.commands / name
        path.write_text(f'#!/bin/sh\necho "{name} $*" >>"$FAKE_CALLS"\n{script}\n')
        path.chmod(0o755)

    def be_debian(self, user, installed, apt="exit 0"):
        self.command("id", f"echo {user}")
        lines = "; ".join(f"echo '{name} installed'" for name in installed) or ":"
        self.command("dpkg-query", lines)
        self.command("apt-get", apt)

    def run_lumora(self, *arguments):
        environment = {"PATH": str(self.commands), "FAKE_CALLS": str(self.calls), "FAKE_ROOT": str(self.root)}
        return subprocess.run([*self.identity, self.root / "run", *arguments], env=environment, stdin=subprocess.DEVNULL,
                              capture_output=True, text=True, timeout=60)

    def called(self, *names):
        return [line for line in self.calls.read_text().splitlines() if line.split()[0] in names]

    def assert_runs(self, result, *arguments):
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(result.stdout, f"program: {' '.join(arguments)}\n")

    def test_making_packages_installs_what_that_takes_besides_a_build(self):
        (self.root / "packaging/deb").mkdir()
        shutil.copy(SOURCE / "packaging/deb/make-packages", self.root / "packaging/deb/make-packages")
        self.be_debian(0, packages(), apt="exit 1")
        environment = {"PATH": str(self.commands), "FAKE_CALLS": str(self.calls)}
        result = subprocess.run([self.root / "packaging/deb/make-packages", self.place / "made"], env=environment, capture_output=True,
                                text=True, timeout=60)
        self.assertNotEqual(result.returncode, 0)
        self.assertIn("installing 2 packages", result.stderr)
        self.assertTrue(self.called("apt-get")[0].endswith(" debhelper dpkg-dev"), self.calls.read_text())

    def test_another_system_is_told_every_package_and_tried(self):
        result = self.run_lumora("icons", "--help")
        self.assertIn("not a Debian system", result.stderr)
        told = {line.strip() for line in result.stderr.splitlines() if line.startswith("  ")}
        self.assertEqual(told, set(packages()))
        self.assertEqual(self.called("sudo", "apt-get"), [])
        self.assert_runs(result, "icons", "--help")

    def test_without_root_and_sudo_the_missing_packages_are_told(self):
        missing = packages()[1:3]
        self.be_debian(1000, [name for name in packages() if name not in missing])
        result = self.run_lumora("--version")
        self.assertEqual(result.returncode, 1)
        self.assertEqual(result.stdout, "")
        self.assertIn(f"need root to install: {' '.join(missing)}\n", result.stderr)
        self.assertIn(f"apt-get install {' '.join(missing)}  as root", result.stderr)
        # Nothing is built without the packages.
        self.assertEqual(self.called("apt-get", "cmake", "ninja"), [])

    def test_without_root_sudo_installs_what_is_missing(self):
        self.be_debian(1000, packages()[1:])
        self.command("sudo", 'exec "$@"')
        self.assert_runs(self.run_lumora("--version"), "--version")
        expected = f"install -y --no-install-recommends {packages()[0]}"
        self.assertEqual(self.called("sudo"), [f"sudo env DEBIAN_FRONTEND=noninteractive apt-get {expected}"])
        self.assertEqual(self.called("apt-get"), [f"apt-get {expected}"])

    def test_root_installs_everything_on_a_bare_system(self):
        self.be_debian(0, [])
        self.assert_runs(self.run_lumora("color", "#fff"), "color", "#fff")
        self.assertEqual(self.called("apt-get"), [f"apt-get install -y --no-install-recommends {' '.join(packages())}"])

    def test_an_old_package_index_is_renewed(self):
        self.be_debian(0, packages()[1:], 'case "$1" in update) : >"$FAKE_ROOT/index"; exit 0;; esac; '
                                          '[ -e "$FAKE_ROOT/index" ]')
        self.assert_runs(self.run_lumora("--version"), "--version")
        self.assertEqual([call.split()[1] for call in self.called("apt-get")], ["install", "update", "install"])

    def test_what_cannot_be_installed_ends_the_run(self):
        self.be_debian(0, packages()[1:], 'echo "E: no such package" >&2; exit 100')
        result = self.run_lumora("--version")
        self.assertNotEqual(result.returncode, 0)
        self.assertEqual(result.stdout, "")
        self.assertIn("E: no such package", result.stderr)
        self.assertEqual(self.called("cmake", "ninja"), [])

    def test_it_says_what_it_installs_and_how_long_that_takes(self):
        self.be_debian(0, packages()[2:])
        result = self.run_lumora("--version")
        expected = f"installing 2 packages with apt-get, which takes about a minute: {' '.join(packages()[:2])}\n"
        self.assertIn(expected, result.stderr)
        self.assertIn("the first time takes about four minutes on two cores\n", result.stderr)

    def test_without_a_terminal_each_tenth_of_the_build_is_a_line(self):
        self.be_debian(0, packages())
        lines = "; ".join(f"echo '[{step}/30] Building'" for step in range(1, 31))
        self.command("ninja", f"{lines}; {BUILD}")
        result = self.run_lumora("--version")
        self.assert_runs(result, "--version")
        built = [line for line in result.stderr.splitlines() if "built" in line]
        self.assertEqual(built, [f"lumora: built {tenth}0 %" for tenth in range(1, 11)])

    def test_a_build_that_fails_shows_the_compilers_words(self):
        self.be_debian(0, packages())
        self.command("ninja", "echo '[1/30] Building'; echo 'x.cpp: error: no'; exit 1")
        result = self.run_lumora("--version")
        self.assertNotEqual(result.returncode, 0)
        self.assertEqual(result.stdout, "")
        self.assertIn("x.cpp: error: no\n", result.stderr)

    def test_the_build_folder_of_another_user_is_named(self):
        self.be_debian(1000, packages())
        (self.root / "build/release").mkdir(parents=True)
        (self.root / "build/release/build.ninja").touch()
        if os.geteuid() == 0:
            self.identity = (shutil.which("setpriv"), "--reuid=65534", "--regid=65534", "--clear-groups")
            self.place.chmod(0o755)
            self.calls.chmod(0o666)
        else:
            (self.root / "build").chmod(0o555)
            self.addCleanup((self.root / "build").chmod, 0o755)
        result = self.run_lumora("--version")
        self.assertEqual(result.returncode, 1, result.stderr)
        self.assertEqual(result.stdout, "")
        self.assertIn("lumora: build belongs to another user (", result.stderr)
        self.assertIn("remove the folder build and start again.\n", result.stderr)
        self.assertEqual(self.called("cmake", "ninja"), [])

    def test_with_everything_there_nothing_is_said_or_installed(self):
        self.be_debian(1000, packages())
        (self.root / "build/release").mkdir(parents=True)
        (self.root / "build/release/build.ninja").touch()
        result = self.run_lumora("--version")
        self.assert_runs(result, "--version")
        self.assertEqual(result.stderr, "")
        self.assertEqual(self.called("apt-get", "sudo", "cmake"), [])


if __name__ == "__main__":
    unittest.main()
