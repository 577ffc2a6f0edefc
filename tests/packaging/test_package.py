# SPDX-License-Identifier: MIT
"""The Debian package: clean in lintian's eyes, complete, and depending on all it loads."""
import re
import tempfile
import unittest
from pathlib import Path

from place import APPLICATION_ID, package, run


def control(field):
    return run("dpkg-deb", "--field", package(), field).stdout.strip()


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.stage = tempfile.TemporaryDirectory()
        cls.root = Path(cls.stage.name)
        result = run("dpkg-deb", "--extract", package(), cls.root)
        assert result.returncode == 0, result.stdout

    @classmethod
    def tearDownClass(cls):
        cls.stage.cleanup()

    def test_lintian_has_nothing_to_say(self):
        result = run("lintian", "--allow-root", "--display-info", "--pedantic", "--no-cfg", package())
        self.assertEqual((result.returncode, result.stdout), (0, ""))

    def test_every_file_has_its_place(self):
        for name in (
            "bin/lumora",
            f"share/applications/{APPLICATION_ID}.desktop",
            f"share/dbus-1/services/{APPLICATION_ID}.service",
            f"share/icons/hicolor/scalable/apps/{APPLICATION_ID}.svg",
            f"share/icons/hicolor/16x16/apps/{APPLICATION_ID}.png",
            f"share/icons/hicolor/512x512/apps/{APPLICATION_ID}.png",
            f"share/metainfo/{APPLICATION_ID}.metainfo.xml",
            f"share/mime/packages/{APPLICATION_ID}.xml",
            "share/doc/lumora/changelog.gz",
            "share/doc/lumora/copyright",
            "share/man/man1/lumora.1.gz",
            "share/bash-completion/completions/lumora",
            "share/zsh/vendor-completions/_lumora",
            "share/fish/vendor_completions.d/lumora.fish",
        ):
            self.assertTrue((self.root / "usr" / name).is_file(), name)

    def test_the_service_starts_the_installed_program(self):
        service = self.root / "usr/share/dbus-1/services" / f"{APPLICATION_ID}.service"
        self.assertIn('Exec="/usr/bin/lumora"\n', service.read_text())

    def test_icons_have_the_size_of_their_folder(self):
        pictures = list((self.root / "usr/share/icons/hicolor").glob("*/apps/*.png"))
        self.assertEqual(len(pictures), 9)
        for picture in pictures:
            size = picture.parent.parent.name
            self.assertIn(f"{size.replace('x', ' x ')}, 8-bit/color RGBA", run("file", picture).stdout)

    def test_libraries_and_plug_ins_are_depended_on(self):
        depends = control("Depends")
        names = {re.match(r"[^ (]+", item).group(0) for item in depends.split(", ")}
        needed = run("readelf", "--dynamic", self.root / "usr/bin/lumora").stdout
        places = dict(re.findall(r"(\S+) => (\S+)", run("ldd", self.root / "usr/bin/lumora").stdout))
        for library in re.findall(r"NEEDED.*\[(lib[^]]+)\]", needed):
            # Package lists may still know the file by its place before /lib became a link into /usr.
            place = Path(places[library]).resolve()
            owners = run("dpkg", "--search", place, str(place).removeprefix("/usr")).stdout
            self.assertIn(re.search(r"^([^\s:]+):\S+: /", owners, re.M).group(1), names, library)
        self.assertLessEqual({"libqt6svg6", "qt6-image-formats-plugins", "qt6-qpa-plugins", "qt6-wayland"}, names)

    def test_the_toolkits_own_texts_are_recommended(self):
        self.assertEqual(control("Recommends"), "qt6-translations-l10n")

    def test_nothing_is_run_while_installing(self):
        with tempfile.TemporaryDirectory() as folder:
            run("dpkg-deb", "--control", package(), folder)
            self.assertEqual(sorted(path.name for path in Path(folder).iterdir()), ["control", "md5sums"])


if __name__ == "__main__":
    unittest.main()
