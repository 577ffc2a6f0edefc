# SPDX-License-Identifier: MIT
"""The Debian package, installed into a bare Debian: dependencies, commands, window, removal.

Needs root (for chroot) and the Debian mirror that this machine itself uses. The bare system and the dependencies'
packages are kept below the build folder, so that the second run is a quick one. Without root the package is unpacked
instead and run against this machine's libraries, its dependencies only resolved; the output says so.
"""
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
import zipfile
from pathlib import Path

from place import BUILD, SOURCE, VERSION, package, run

CACHE = BUILD / "fresh-root"
BASE = CACHE / "base.tar"
ARCHIVES = CACHE / "archives"
AS_ROOT = os.geteuid() == 0


def sources():
    """The Debian repositories of this machine, as apt lines; anything that is not Debian's is left out."""
    listed = run(
        "apt-get", "indextargets", "--format", "$(ORIGIN)|deb $(REPO_URI) $(RELEASE) $(COMPONENT)", "Created-By: Packages"
    ).stdout.splitlines()
    return sorted({line.split("|")[1] for line in listed if line.startswith("Debian|")})


def make_base():
    CACHE.mkdir(exist_ok=True)
    ARCHIVES.mkdir(exist_ok=True)
    (ARCHIVES / "partial").mkdir(exist_ok=True)
    release = dict(line.split("=", 1) for line in Path("/etc/os-release").read_text().splitlines() if "=" in line)
    partial = BASE.with_suffix(".partial.tar")
    result = run(
        "mmdebstrap", "--quiet", "--variant=minbase", "--skip=cleanup/apt/lists", release["VERSION_CODENAME"], partial,
        *sources(),
    )
    if result.returncode != 0:
        raise AssertionError(f"no bare system could be made:\n{result.stdout}")
    partial.rename(BASE)


class Root:
    """A temporary system below the build folder; mounts for a command disappear when the command ends."""

    def __init__(self):
        self.folder = Path(tempfile.mkdtemp(prefix="root-", dir=CACHE))
        self.folder.chmod(0o755)
        result = run("tar", "--extract", "--numeric-owner", "--file", BASE, "--directory", self.folder, "--exclude=./dev/*")
        assert result.returncode == 0, result.stdout
        # For the network, the name server's address is enough.
        shutil.copy("/etc/resolv.conf", self.folder / "etc/resolv.conf")

    def remove(self):
        shutil.rmtree(self.folder)

    def command(self, *command, display=""):
        mounts = (
            'cd "$1" && mkdir -p archives && mount --bind "$2" archives && mount --rbind /dev dev && mount -t proc proc proc && '
            'folder=$1 && shift 2 && exec chroot "$folder" "$@"'
        )
        environment = [
            "env", "-i", "PATH=/usr/sbin:/usr/bin:/sbin:/bin", "HOME=/root", "LC_ALL=C.UTF-8",
            "DEBIAN_FRONTEND=noninteractive", f"DISPLAY={display}",
        ]
        return [
            "unshare", "--mount", "--propagation", "private", "sh", "-c", mounts, "sh", str(self.folder), str(ARCHIVES),
            *environment, *map(str, command),
        ]

    def run(self, *command):
        return run(*self.command(*command))

    def apt(self, *arguments):
        return self.run(
            "apt-get", "--yes", "--quiet", "--no-install-recommends", "-o", "Dir::Cache::archives=/archives",
            "-o", "Dpkg::Options::=--force-unsafe-io", "-o", "APT::Keep-Downloaded-Packages=true", "-o", "APT::Sandbox::User=root", *arguments,
        )


class Unpacked:
    """The replacement without root rights: the package's files, run on this system."""

    def __init__(self):
        self.folder = Path(tempfile.mkdtemp(prefix="unpacked-", dir=BUILD))
        for name in ("lumora", "lumora-cli"):
            result = run("dpkg-deb", "--extract", package(name), self.folder)
            assert result.returncode == 0, result.stdout

    def remove(self):
        shutil.rmtree(self.folder)

    def command(self, *command, display=""):
        environment = ["env", f"PATH={self.folder}/usr/bin:{os.environ['PATH']}", "LC_ALL=C.UTF-8", f"DISPLAY={display}"]
        return [*environment, *map(str, command)]

    def run(self, *command):
        return run(*self.command(*command))


def wait_for(what, condition):
    end = time.monotonic() + 60
    while not condition():
        assert time.monotonic() < end, f"waited in vain for {what}"
        time.sleep(0.1)


class Screen:
    """An X server of this machine's, for the time of the block; it listens on a socket without a place in the file system, too, so
    that what runs in the root finds it."""

    def __enter__(self):
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", "1", "-screen", "0", "1280x900x24", "-ac"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
            text=True,
        )
        self.display = f":{self.server.stdout.readline().strip()}"
        return self

    def __exit__(self, *_):
        self.server.terminate()
        self.server.communicate(timeout=20)

    def run(self, *command):
        return run(*command, env=os.environ | {"DISPLAY": self.display})

    def find_window(self):
        return self.run("timeout", "60", "xdotool", "search", "--sync", "--onlyvisible", "--class", "lumora")

    def share(self, color):
        """The part of the screen that has exactly this color, 0 to 1."""
        name = "rgb(%d,%d,%d)" % color
        mask = ["-fill", "black", "+opaque", name, "-fill", "white", "-opaque", name]
        return float(self.run("convert", "x:root", *mask, "-format", "%[fx:mean]", "info:").stdout)


class FreshRoot(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        if not AS_ROOT:
            print(
                "NOT ROOT, so no fresh root: the package is unpacked and run on this system, and apt only says whether it "
                "could resolve the dependencies.",
                file=sys.stderr,
            )
            cls.root = Unpacked()
            result = run("apt-get", "install", "--simulate", "--no-install-recommends", package("lumora-cli"), package())
            assert result.returncode == 0, result.stdout
        else:
            cls.root = cls.installed()
        shutil.rmtree(cls.root.folder / "scratch", ignore_errors=True)
        (cls.root.folder / "scratch").mkdir()

    @classmethod
    def installed(cls):
        made_now = not BASE.exists()
        if made_now:
            make_base()
        root = Root()
        for name in ("lumora", "lumora-cli"):
            shutil.copy(package(name), root.folder / f"{name}.deb")
        result = root.apt("install", "/lumora-cli.deb", "/lumora.deb")
        if result.returncode != 0 and not made_now:
            # The stored package lists may name versions that the mirror no longer has.
            root.remove()
            BASE.unlink()
            return cls.installed()
        assert result.returncode == 0, result.stdout
        for name in ("lumora", "lumora-cli"):
            (root.folder / f"{name}.deb").unlink()
        return root

    @classmethod
    def tearDownClass(cls):
        cls.root.remove()

    def lumora(self, *arguments):
        result = self.root.run("lumora", *arguments)
        self.assertEqual(result.returncode, 0, result.stdout)
        return result.stdout

    def work(self, name):
        """The program's path of a file in the scratch folder."""
        return f"/scratch/{name}" if AS_ROOT else str(self.root.folder / "scratch" / name)

    def test_1_the_version_is_the_packages(self):
        self.assertEqual(self.lumora("--version"), f"lumora {VERSION}\n")

    def test_2_a_color_becomes_code(self):
        self.assertEqual(self.lumora("color", "#34485e", "--as", "hex").strip().lower(), "#34485e")

    def test_2_devices_are_listed(self):
        self.assertIn("iPhone", self.lumora("devices"))

    def test_2_every_icon_is_written(self):
        self.lumora("icons", "--example", "--platform", "all", "--to", self.work("."))
        written = [path for path in (self.root.folder / "scratch/icons").rglob("*") if path.is_file()]
        # The catalogue's 51, and the Mac icon file.
        self.assertEqual(len(written), 52)

    def test_2_placeholders_are_written(self):
        self.lumora("placeholders", "--set", "mac", "--to", self.work("."))
        self.assertEqual(len(list((self.root.folder / "scratch/placeholders").iterdir())), 4)

    def test_2_pictures_that_need_a_plug_in_are_read(self):
        for kind in ("tiff", "webp"):
            source = self.root.folder / "scratch" / f"source.{kind}"
            made = run("convert", "-size", "1024x1024", "plasma:red-blue", source)
            self.assertEqual(made.returncode, 0, made.stdout)
            self.lumora("icon", self.work(source.name), "--size", "16", "--to", self.work("."))

    def test_3_the_window_opens(self):
        (self.root.folder / "scratch" / "dropped.png").touch()
        with Screen() as screen:
            window = subprocess.Popen(
                self.root.command("lumora", self.work("dropped.png"), display=screen.display),
                stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, start_new_session=True,
            )
            try:
                seen = screen.find_window()
                self.assertEqual(seen.returncode, 0, window.communicate(timeout=5)[0] if window.poll() is not None else "")
                name = screen.run("xdotool", "getwindowname", seen.stdout.split()[0])
                self.assertIn("Lumora", name.stdout)
            finally:
                os.killpg(window.pid, signal.SIGTERM)
                window.communicate(timeout=20)

    @unittest.skipUnless(AS_ROOT, "nothing was installed")
    def test_4_a_file_manager_opens_packages_and_pictures_with_it(self):
        """Like a file manager: glib finds the file's kind and its program, and the session bus starts that."""
        # Files that every desktop has.
        result = self.root.apt("install", "dbus", "desktop-file-utils", "libglib2.0-bin", "shared-mime-info")
        self.assertEqual(result.returncode, 0, result.stdout)
        package = self.root.folder / "scratch" / "Eine App ü.ipa"
        with zipfile.ZipFile(package, "w") as archive:
            archive.writestr("Payload/A.app/Info.plist", "<plist version='1.0'><dict/></plist>")
        picture = self.root.folder / "scratch" / "a picture.png"
        made = run("convert", "-size", "1024x1024", "plasma:red-blue", picture)
        self.assertEqual(made.returncode, 0, made.stdout)
        address = "unix:path=/scratch/bus"
        with Screen() as screen:
            bus = subprocess.Popen(
                self.root.command("dbus-daemon", "--session", "--nofork", f"--address={address}", display=screen.display),
                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True,
            )
            try:
                wait_for("the session bus", (self.root.folder / "scratch/bus").exists)
                # The tool for the file is then the current one; the second file goes to the running program.
                for file, header in ((package, (241, 196, 15)), (picture, (52, 152, 219))):
                    opened = self.root.run("env", f"DBUS_SESSION_BUS_ADDRESS={address}", "gio", "open", self.work(file.name))
                    self.assertEqual(opened.returncode, 0, opened.stdout)
                    wait_for(f"the tool for {file.name}", lambda header=header: screen.share(header) > 0.05)
                windows = screen.find_window().stdout.split()
                self.assertEqual(len(windows), 1, windows)
            finally:
                os.killpg(bus.pid, signal.SIGTERM)
                bus.wait(20)

    @unittest.skipUnless(AS_ROOT, "nothing was installed")
    def test_9_removal_leaves_no_trace(self):
        result = self.root.apt("purge", "--autoremove", "lumora", "lumora-cli")
        self.assertEqual(result.returncode, 0, result.stdout)
        left = self.root.run("find", "/", "-xdev", "-iname", "*lumora*", "-not", "-path", "/archives/*").stdout
        self.assertEqual(left, "")
        remembered = self.root.run("grep", "-l", "-i", "-r", "lumora", "/var/lib/dpkg", "/etc", "/usr/share").stdout
        self.assertEqual(remembered, "")


if __name__ == "__main__":
    unittest.main()
