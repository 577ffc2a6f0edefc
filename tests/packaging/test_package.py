# SPDX-License-Identifier: MIT
"""The two Debian packages: without complaints from lintian, complete, and depending on everything that they load."""
import os
import re
import tempfile
import unittest
from pathlib import Path

from place import APPLICATION_ID, METADATA, SOURCE, package, run

COMMANDS = [
    "bin/lumora",
    "share/doc/lumora-cli/changelog.gz",
    "share/doc/lumora-cli/copyright",
    "share/man/man1/lumora.1.gz",
    "share/bash-completion/completions/lumora",
    "share/zsh/vendor-completions/_lumora",
    "share/fish/vendor_completions.d/lumora.fish",
]
WINDOW = [
    "libexec/lumora/lumora-window",
    f"share/applications/{APPLICATION_ID}.desktop",
    f"share/dbus-1/services/{APPLICATION_ID}.service",
    f"share/icons/hicolor/scalable/apps/{APPLICATION_ID}.svg",
    f"share/icons/hicolor/16x16/apps/{APPLICATION_ID}.png",
    f"share/icons/hicolor/512x512/apps/{APPLICATION_ID}.png",
    f"share/metainfo/{APPLICATION_ID}.metainfo.xml",
    f"share/mime/packages/{APPLICATION_ID}.xml",
    "share/doc/lumora/copyright",
]
PROGRAMS = {"lumora-cli": "usr/bin/lumora", "lumora": "usr/libexec/lumora/lumora-window"}


def control(name, field):
    return run("dpkg-deb", "--field", package(name), field).stdout.strip()


def depends(name):
    return {re.match(r"[^ (]+", item).group(0) for item in control(name, "Depends").split(", ")}


def needed(program):
    return re.findall(r"NEEDED.*\[(lib[^]]+)\]", run("readelf", "--dynamic", program).stdout)


class Packages(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.stage = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.stage.cleanup)
        cls.roots = {}
        for name in PROGRAMS:
            cls.roots[name] = Path(cls.stage.name) / name
            result = run("dpkg-deb", "--extract", package(name), cls.roots[name])
            assert result.returncode == 0, result.stdout

    def test_lintian_has_nothing_to_say(self):
        for name in PROGRAMS:
            with self.subTest(name):
                result = run("lintian", "--allow-root", "--display-info", "--pedantic", "--no-cfg", package(name))
                self.assertEqual((result.returncode, result.stdout), (0, ""))

    def test_every_file_is_in_its_package(self):
        for name, other, files in (("lumora-cli", "lumora", COMMANDS), ("lumora", "lumora-cli", WINDOW)):
            for file in files:
                with self.subTest(file):
                    self.assertTrue((self.roots[name] / "usr" / file).is_file())
                    self.assertFalse((self.roots[other] / "usr" / file).exists())

    def test_the_service_starts_the_installed_program(self):
        service = self.roots["lumora"] / "usr/share/dbus-1/services" / f"{APPLICATION_ID}.service"
        self.assertIn('Exec="/usr/bin/lumora"\n', service.read_text())

    def test_icons_have_the_size_of_their_folder(self):
        pictures = list((self.roots["lumora"] / "usr/share/icons/hicolor").glob("*/apps/*.png"))
        self.assertEqual(len(pictures), 9)
        for picture in pictures:
            size = picture.parent.parent.name
            self.assertIn(f"{size.replace('x', ' x ')}, 8-bit/color RGBA", run("file", picture).stdout)

    def test_libraries_and_plug_ins_are_depended_on(self):
        for name, program in PROGRAMS.items():
            places = dict(re.findall(r"(\S+) => (\S+)", run("ldd", self.roots[name] / program).stdout))
            for library in needed(self.roots[name] / program):
                # Package lists may still have the file's old path, from before /lib became a link into /usr.
                place = Path(places[library]).resolve()
                owners = run("dpkg", "--search", place, str(place).removeprefix("/usr")).stdout
                owner = re.search(r"^([^\s:]+):\S+: /", owners, re.M).group(1)
                self.assertIn(owner, depends(name), f"{name} loads {library}")
        self.assertIn("qt6-image-formats-plugins", depends("lumora-cli"))
        self.assertLessEqual({"lumora-cli", "libqt6svg6", "qt6-qpa-plugins", "qt6-wayland"}, depends("lumora"))

    def test_commands_need_no_window_system(self):
        loaded = " ".join(needed(self.roots["lumora-cli"] / PROGRAMS["lumora-cli"]))
        self.assertIn("libQt6Core", loaded)
        self.assertNotRegex(loaded, r"Qt6Widgets|Qt6DBus|libxcb|libX11|wayland")

    def test_without_the_window_its_package_is_named(self):
        result = run(self.roots["lumora-cli"] / PROGRAMS["lumora-cli"])
        self.assertEqual(result.returncode, 1)
        self.assertIn('the window is not installed; install the package "lumora"', result.stdout)

    def test_with_both_installed_the_command_finds_the_window(self):
        with tempfile.TemporaryDirectory() as folder:
            for root in self.roots.values():
                copied = run("cp", "-R", f"{root}/.", folder)
                self.assertEqual(copied.returncode, 0, copied.stdout)
            # The window program's own complaint without a display.
            bare = {name: value for name, value in os.environ.items() if "DISPLAY" not in name} | {"XDG_RUNTIME_DIR": folder}
            result = run(Path(folder) / "usr/bin/lumora", env=bare)
            self.assertIn("no display to open the window on", result.stdout)

    def test_the_toolkits_own_texts_are_recommended(self):
        self.assertEqual(control("lumora", "Recommends"), "qt6-translations-l10n")

    def test_nothing_is_run_while_installing(self):
        for name in PROGRAMS:
            with tempfile.TemporaryDirectory() as folder:
                run("dpkg-deb", "--control", package(name), folder)
                self.assertEqual(sorted(path.name for path in Path(folder).iterdir()), ["control", "md5sums"])


class SourcePackage(unittest.TestCase):
    def test_it_is_as_its_templates_make_it(self):
        """debian/ is read before anything is configured, so it contains copies; packaging/deb/refresh renews them."""
        for name in ("control", "copyright", "changelog"):
            made = (METADATA / "debian" / name).read_text(encoding="utf-8")
            self.assertEqual((SOURCE / "debian" / name).read_text(encoding="utf-8"), made, name)

    def test_it_asks_for_every_library_that_building_needs(self):
        wanted = re.findall(r"^[\w+.-]+-dev$", (SOURCE / "packaging/build-packages.txt").read_text(), re.M)
        asked = re.search(r"Build-Depends:(.*?)\n\S", (SOURCE / "debian/control").read_text(), re.S).group(1)
        asked = {re.match(r"\s*([\w+.-]+)", item).group(1) for item in asked.split(",")}
        self.assertGreater(len(wanted), 10)
        self.assertEqual(sorted(set(wanted) - asked), [])


if __name__ == "__main__":
    unittest.main()
