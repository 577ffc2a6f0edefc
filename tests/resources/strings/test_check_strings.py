# SPDX-License-Identifier: MIT
"""Breaks a small copy of the tree in one place at a time, and expects the check to name exactly that fault."""

import shutil
import tempfile
import unittest
from pathlib import Path

from check_strings import problems_of

ROOT = Path(__file__).resolve().parents[3]
STRINGS = Path("resources/strings")
ENGLISH = STRINGS / "lumora_en.ts"
GERMAN = STRINGS / "lumora_de.ts"
CATALOGUE = Path("icons/IconCatalogue.cpp")
CODE = Path("app/Example.cpp")
INTERFACE = Path("app/Example.ui")

IPHONE = ["Icon.png", "Icon@2x.png", "Icon-60.png", "Icon-60@2x.png", "iTunesArtwork", "iTunesArtwork@2x"]
IPAD = ["Icon-72.png", "Icon-72@2x.png", "Icon-76.png", "Icon-76@2x.png", "Icon-Small.png", "Icon-Small@2x.png",
        "Icon-Small-40.png", "Icon-Small-40@2x.png", "Icon-Small-50.png", "Icon-Small-50@2x.png"]
MAC = [f"icon_{n}x{n}{scale}.png" for n in (16, 32, 128, 256, 512) for scale in ("", "@2x")]
ANDROID = [f"ic_launcher_{density}.png" for density in ("ldpi", "mdpi", "hdpi", "xhdpi")] + ["ic_512x512.png"]
WEB_TOUCH = ["apple-touch-icon.png", "apple-touch-icon-precomposed.png"] + [
    f"apple-touch-icon-{n}x{n}-precomposed.png" for n in (114, 72, 144, 60, 120, 76, 152)]
FAVICON = [f"favicon-{n}.png" for n in (16, 32, 48, 64, 128)]
NAMES = IPHONE + IPAD + MAC + ANDROID + WEB_TOUCH + FAVICON

# Each row: the fault, the file, the text to replace (once), its replacement, and words of the report.
FAULTS = [
    ("table that is not XML", GERMAN, "</TS>", "", "lumora_de.ts: is not well-formed XML"),
    ("English table that is not XML", ENGLISH, "</TS>", "", "lumora_en.ts: cannot be read"),
    ("table of another language than its name says", GERMAN, ' language="de"', ' language="fr"', 'marked as language "fr"'),
    ("key missing from a table", GERMAN, 'id="DISMISS"', 'id="DISMISSED"', "lumora_de.ts: DISMISS is missing"),
    ("key that English lacks", ENGLISH, 'id="DISMISS"', 'id="DISMISSED"', "DISMISS is unknown to lumora_en.ts"),
    ("key given twice", ENGLISH, 'id="DISMISS"', 'id="CLOSE"', "lumora_en.ts: CLOSE stands there twice"),
    ("order of the keys", GERMAN, ('id="COPY"', 'id="COPIED"'), ('id="COPIED"', 'id="COPY"'), "COPIED is out of the order"),
    ("empty text", GERMAN, ">Verstanden<", "> <", "lumora_de.ts: DISMISS is empty"),
    ("unfinished text", GERMAN, "<translation>Verstanden", '<translation type="unfinished">Verstanden',
     "DISMISS has no finished translation"),
    ("English text changed since the translation", ENGLISH, "<translation>Got it", "<translation>All right",
     "lumora_de.ts: the <source> of DISMISS is not the English text"),
    ("bracketed placeholder lost in one language", GERMAN, "[FILE] wird gelesen", "Datei wird gelesen",
     "lumora_de.ts: VALIDATER_READING must hold exactly [FILE]"),
    ("placeholder that the English text lacks", GERMAN, "[DEVICE], entspricht der Auswahl<", "[MODEL], entspricht<",
     "ACCESSIBLE_DEVICE_MATCH holds ['[MODEL]']"),
    ("format of another kind", GERMAN, "Bild %i von %i", "Bild %i von %@", "RESIZER_PROGRESS holds ['%i', '%@']"),
    ("blank lost at the end of a label", GERMAN, ">Ältestes iOS: <", ">Ältestes iOS:<",
     "VALIDATER_APP_MINIMUM_OS begins or ends with other white space"),
    ("snippet that is not well-formed", GERMAN, '-16.png" />\n', '-16.png">\n', "SNIPPET_FAVICON is not well-formed"),
    ("snippet with a name that is not written", ENGLISH, 'href="/favicon-48.png', 'href="/favicon-47.png',
     "SNIPPET_FAVICON names favicon-47.png"),
    ("icon that no snippet mentions", ENGLISH, "ic_512x512.png", "the picture of 512 pixels",
     "lumora_en.ts: no snippet says where ic_512x512.png goes"),
    ("link with another size than its file", ENGLISH, 'sizes="48x48"', 'sizes="49x49"', "favicon-48.png has the sizes 49x49"),
    ("snippet whose code differs between languages", GERMAN, 'type="image/png"', 'type="image/x-png"',
     "SNIPPET_FAVICON differs from the English snippet"),
    ("catalogue that is not there", CATALOGUE, "", None, "no file there quotes the icon file names"),
    ("catalogue that lost a name", CATALOGUE, '"icon_16x16.png", ', "", "quotes 44 distinct file names, not 45"),
    ("unknown key asked for with qtTrId", CODE, 'qtTrId("CLOSE")', 'qtTrId("CLOSED")', '"CLOSED", which no table holds'),
    ("unknown key asked for through a Latin-1 string", CODE, 'text("COPY")', 'text(QLatin1String("COPY_ALL"))', '"COPY_ALL"'),
    ("unknown key in a table of the code", CODE, '"HELP_ICONS"', '"HELP_ICON"', 'app/Example.cpp: uses the key "HELP_ICON"'),
    ("unknown key in an interface file", INTERFACE, "APP_DEFAULT", "WINDOW", 'app/Example.ui: uses the key "WINDOW"'),
]


def replace_last(content: str, old: str, new: str) -> str:
    """Replaces the last occurrence, which is the translation if <source> has the same words."""
    head, found, tail = content.rpartition(old)
    if not found:
        raise AssertionError(f"the fault cannot be made: {old!r} is not in the file")
    return head + new + tail


class CheckStringsTest(unittest.TestCase):
    def setUp(self) -> None:
        self.root = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.root)
        shutil.copytree(ROOT / STRINGS, self.root / STRINGS)
        self.write(CATALOGUE, "constexpr const char *names[] = {" + ", ".join(f'"{name}"' for name in NAMES) + "};\n")
        self.write(CODE, '// qtTrId("NEVER_MIND")\nauto a = qtTrId("CLOSE") + text("COPY");\nTool t{"HELP_ICONS", "NDEBUG_X"};\n')
        self.write(INTERFACE, '<ui><string id="APP_DEFAULT">Lumora</string></ui>\n')

    def write(self, path: Path, content: str) -> None:
        (self.root / path).parent.mkdir(parents=True, exist_ok=True)
        (self.root / path).write_text(content, "utf-8")

    def break_file(self, path: Path, old, new) -> None:
        if new is None:
            (self.root / path).unlink()
            return
        content = (self.root / path).read_text("utf-8")
        if isinstance(old, tuple):
            content = content.replace(old[0], "\0").replace(old[1], new[1]).replace("\0", new[0])
        else:
            content = replace_last(content, old, new)
        self.write(path, content)

    def test_whole_tree_has_no_problem(self) -> None:
        self.assertEqual(problems_of(self.root, strict=False), [])

    def test_each_fault_is_named(self) -> None:
        for name, path, old, new, expected in FAULTS:
            with self.subTest(name):
                before = (self.root / path).read_text("utf-8")
                self.break_file(path, old, new)
                report = problems_of(self.root, strict=False)
                self.write(path, before)
                self.assertTrue(any(expected in line for line in report), report)

    def test_tests_and_hidden_folders_are_not_the_program(self) -> None:
        for folder in ("tests/app", "build/dev", "build-asan", ".cache"):
            self.write(Path(folder) / "Example.cpp", 'auto a = qtTrId("NO_SUCH_KEY");')
        self.assertEqual(problems_of(self.root, strict=False), [])

    def test_unused_key_is_refused_only_when_strict(self) -> None:
        expected = "lumora_en.ts: GENERATE is used nowhere"
        self.assertNotIn(expected, problems_of(self.root, strict=False))
        report = problems_of(self.root, strict=True)
        self.assertIn(expected, report)
        self.assertNotIn("lumora_en.ts: CLOSE is used nowhere", report)

    def test_another_language_is_one_more_file(self) -> None:
        german = (self.root / GERMAN).read_text("utf-8")
        self.write(STRINGS / "lumora_fr.ts", german.replace('language="de"', 'language="fr"', 1))
        self.assertEqual(problems_of(self.root, strict=False), [])


if __name__ == "__main__":
    unittest.main()
