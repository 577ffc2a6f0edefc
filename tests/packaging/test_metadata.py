# SPDX-License-Identifier: MIT
"""Menu entry, D-Bus service, file kinds, AppStream metadata and Flatpak manifest: valid and consistent."""
import configparser
import io
import json
import os
import re
import shlex
import shutil
import tempfile
import unittest
import xml.etree.ElementTree as ET
import zipfile
from pathlib import Path

from place import APPLICATION_ID, BUILD, METADATA, SOURCE, VERSION, run

TOOLS = ["icons", "placeholders", "resizer", "color", "devices", "validator"]
XML_LANG = "{http://www.w3.org/XML/1998/namespace}lang"


def desktop_entry():
    parser = configparser.ConfigParser(interpolation=None, strict=True, delimiters=("=",))
    parser.optionxform = str
    parser.read(METADATA / f"{APPLICATION_ID}.desktop", encoding="utf-8")
    return parser


def metainfo():
    return ET.parse(METADATA / f"{APPLICATION_ID}.metainfo.xml").getroot()


class DesktopEntry(unittest.TestCase):
    def test_the_validator_has_nothing_to_say(self):
        result = run("desktop-file-validate", "--warn-kde", METADATA / f"{APPLICATION_ID}.desktop")
        self.assertEqual((result.returncode, result.stdout), (0, ""))

    def test_there_is_one_action_for_each_tool_in_the_order_of_the_sidebar_and_one_for_today(self):
        entry = desktop_entry()
        self.assertEqual(entry["Desktop Entry"]["Actions"], "".join(f"{tool};" for tool in TOOLS) + "today;")
        self.assertEqual(entry["Desktop Action today"]["Exec"], "lumora --today")
        for tool in TOOLS:
            self.assertEqual(entry[f"Desktop Action {tool}"]["Exec"], f"lumora --tool={tool}")

    def test_every_text_is_in_german_too(self):
        for name, section in desktop_entry().items():
            for key in ("GenericName", "Comment", "Keywords"):
                if key in section:
                    self.assertIn(f"{key}[de]", section, name)
            if name.startswith("Desktop Action"):
                self.assertIn("Name[de]", section, name)

    def test_it_takes_pictures_and_packages_only(self):
        self.assertEqual(desktop_entry()["Desktop Entry"]["MimeType"], "image/png;application/x-ios-app;")


class Service(unittest.TestCase):
    def test_it_is_named_for_the_application_and_starts_what_is_installed_beside_it(self):
        with tempfile.TemporaryDirectory(dir=BUILD) as stage:
            result = run("cmake", "--install", METADATA, "--prefix", "/opt/a b", env=os.environ | {"DESTDIR": stage})
            self.assertEqual(result.returncode, 0, result.stdout)
            parser = configparser.ConfigParser(interpolation=None)
            parser.optionxform = str
            parser.read(Path(stage) / "opt/a b/share/dbus-1/services" / f"{APPLICATION_ID}.service")
        self.assertEqual(parser["D-BUS Service"]["Name"], APPLICATION_ID)
        # The bus splits the line as a shell would.
        self.assertEqual(shlex.split(parser["D-BUS Service"]["Exec"]), ["/opt/a b/bin/lumora"])


class Metainfo(unittest.TestCase):
    def test_appstream_accepts_it(self):
        result = run("appstreamcli", "validate", "--no-net", "--no-color", METADATA / f"{APPLICATION_ID}.metainfo.xml")
        self.assertEqual(result.returncode, 0, result.stdout)
        # The domain is reserved for examples and cannot be registered: appstreamcli notes that it knows no such top-level
        # domain. There is nothing else to note.
        notes = [line for line in result.stdout.splitlines() if re.match(r"[EWI]:", line)]
        expected = ["cid-maybe-not-rdns"] if APPLICATION_ID.startswith("example.") else []
        self.assertEqual([line.split()[2] for line in notes], expected, result.stdout)

    def test_each_tool_has_a_captioned_screenshot_in_both_languages(self):
        shots = metainfo().findall("screenshots/screenshot")
        names = [Path(shot.findtext("image")).stem for shot in shots]
        self.assertEqual(names, TOOLS)
        for shot in shots:
            self.assertEqual([caption.get(XML_LANG) for caption in shot.findall("caption")], [None, "de"])

    def test_the_newest_release_is_the_one_being_built_and_has_notes(self):
        release = metainfo().find("releases/release")
        self.assertEqual(release.get("version"), VERSION)
        changes = [item.text for item in release.iter("li")]
        notes = (SOURCE / "CHANGELOG.md").read_text(encoding="utf-8").replace("\n  ", " ")
        section = notes.split(f"## {VERSION} ")[1].split("\n## ")[0]
        self.assertEqual(changes, re.findall(r"^- (.+)$", section, re.M))
        entries = (METADATA / "debian/changelog").read_text(encoding="utf-8").replace("\n    ", " ").split("\n -- ")[0]
        self.assertEqual(re.findall(r"^  \* (.+)$", entries, re.M), changes)

    def test_it_launches_the_menu_entry_and_claims_the_same_files(self):
        root = metainfo()
        self.assertEqual(root.findtext("launchable"), f"{APPLICATION_ID}.desktop")
        kinds = "".join(f"{kind.text};" for kind in root.findall("provides/mediatype"))
        self.assertEqual(kinds, desktop_entry()["Desktop Entry"]["MimeType"])


class FileKinds(unittest.TestCase):
    """Puts the definitions into an empty data folder beside the system's, and returns glib's view."""

    @classmethod
    def setUpClass(cls):
        cls.folder = Path(tempfile.mkdtemp(dir=BUILD))
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        packages = cls.folder / "mime" / "packages"
        packages.mkdir(parents=True)
        shutil.copy(METADATA / f"{APPLICATION_ID}.mime.xml", packages / f"{APPLICATION_ID}.xml")
        shutil.copy("/usr/share/mime/packages/freedesktop.org.xml", packages)
        applications = cls.folder / "applications"
        applications.mkdir()
        shutil.copy(METADATA / f"{APPLICATION_ID}.desktop", applications)
        cls.environment = os.environ | {
            "XDG_DATA_DIRS": str(cls.folder),
            "XDG_DATA_HOME": str(cls.folder / "home"),
            "XDG_CONFIG_HOME": str(cls.folder / "config"),
            # TryExec is looked up in the path, as the desktop does.
            "PATH": f"{BUILD}:{os.environ['PATH']}",
        }
        result = run("update-mime-database", cls.folder / "mime", env=cls.environment)
        assert (result.returncode, result.stdout) == (0, ""), result.stdout
        result = run("update-desktop-database", applications)
        assert result.returncode == 0, result.stdout

    def kind(self, name, content):
        file = self.folder / name
        file.write_bytes(content)
        result = run("gio", "info", "-a", "standard::content-type", file, env=self.environment)
        return re.search(r"standard::content-type: (.*)", result.stdout).group(1)

    @staticmethod
    def archive(entry):
        content = io.BytesIO()
        with zipfile.ZipFile(content, "w") as archive:
            archive.writestr(entry, "")
        return content.getvalue()

    def test_the_extension_tells_a_package(self):
        self.assertEqual(self.kind("An app ü.ipa", self.archive("Payload/")), "application/x-ios-app")

    def test_the_content_tells_a_package_without_an_extension(self):
        self.assertEqual(self.kind("download", self.archive("Payload/An.app/")), "application/x-ios-app")

    def test_another_archive_stays_an_archive(self):
        self.assertEqual(self.kind("other", self.archive("Documents/")), "application/zip")

    def test_the_extension_tells_a_profile(self):
        self.assertEqual(self.kind("a.mobileprovision", b"\x30\x80"), "application/x-ios-mobileprovision")

    def test_a_package_and_a_picture_are_opened_with_lumora(self):
        for kind in ("application/x-ios-app", "image/png"):
            with self.subTest(kind):
                result = run("gio", "mime", kind, env=self.environment)
                self.assertIn(f"{APPLICATION_ID}.desktop", result.stdout)

    def test_a_package_is_a_zip_archive_too(self):
        subclasses = (self.folder / "mime" / "subclasses").read_text()
        self.assertIn("application/x-ios-app application/zip\n", subclasses)
        self.assertIn("application/x-ios-mobileprovision application/pkcs7-mime\n", subclasses)


class Flatpak(unittest.TestCase):
    def setUp(self):
        result = run("flatpak-builder", "--show-manifest", METADATA / f"{APPLICATION_ID}.yml", cwd=BUILD)
        self.assertEqual(result.returncode, 0, result.stdout)
        self.manifest = json.loads(result.stdout[result.stdout.index("{") :])
        self.said = result.stdout[: result.stdout.index("{")]

    def test_the_builder_knows_every_property(self):
        self.assertEqual(self.said, "")

    def test_it_is_named_for_the_application(self):
        self.assertEqual((self.manifest["id"], self.manifest["command"]), (APPLICATION_ID, "lumora"))

    def test_it_asks_for_a_window_and_nothing_else(self):
        permissions = {argument for argument in self.manifest["finish-args"] if not argument.startswith("--env=")}
        self.assertLessEqual(permissions, {"--socket=wayland", "--socket=fallback-x11", "--share=ipc", "--device=dri"})

    def test_its_file_dialogs_are_the_portals(self):
        # tests/e2e/walk_portal.py shows that these are needed.
        self.assertIn("--env=QT_QPA_PLATFORMTHEME=xdgdesktopportal", self.manifest["finish-args"])

    def test_every_download_is_fixed_by_its_checksum(self):
        for module in self.manifest["modules"]:
            for source in module["sources"]:
                if source["type"] != "dir":
                    self.assertTrue(source["url"].startswith("https://"), module["name"])
                    self.assertRegex(source["sha256"], "^[0-9a-f]{64}$", module["name"])

    def test_every_library_that_the_runtime_lacks_is_built(self):
        # The contents of org.kde.Platform and its SDK.
        runtime = {"qt6", "openssl", "icu", "zlib", "png", "tiff", "xcb", "fontconfig", "pkgconfig", "threads", "python3"}
        text = (SOURCE / "cmake" / "LumoraDependencies.cmake").read_text()
        found = re.findall(r"find_package\((\w+)", text) + re.findall(r"pkg_check_modules\((\w+)", text)
        wanted = {name.lower() for name in found} - runtime
        names = {"plist": "libplist", "seccomp": "libseccomp", "webp": "libwebp"}
        built = {module["name"] for module in self.manifest["modules"]}
        self.assertLessEqual({names.get(name, name) for name in wanted}, built)


if __name__ == "__main__":
    unittest.main()
