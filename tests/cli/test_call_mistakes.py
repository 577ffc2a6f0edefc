# SPDX-License-Identifier: MIT
"""usage: test_call_mistakes.py LUMORA   The mistakes that people make at a prompt: the exit status, one line with the problem
and what may have been meant, and nothing written."""
import io
import os
import struct
import subprocess
import sys
import tempfile
import unittest
import zipfile
import zlib
from pathlib import Path

LUMORA = str(Path(sys.argv[1]).resolve())

# The typed line, the exit status and the beginning of the one line on standard error.
MISTAKES = [
    ("icno", 2, 'lumora: "icno" is neither a command nor a file that exists; did you mean icon or icons?'),
    ("validte x.ipa", 2, 'lumora: "validte" is neither a command nor a file that exists; did you mean validate'),
    ("Icons", 2, 'lumora: "Icons" is neither a command nor a file that exists; did you mean icons'),
    ("placeholder", 2, 'lumora: "placeholder" is neither a command nor a file that exists; did you mean placeholders?'),
    ("missing.png", 2, 'lumora: "missing.png" is neither a command nor a file that exists; see "lumora help"'),
    ("help --bogus", 2, "lumora: --bogus is no option"),
    ("help color icons", 2, 'lumora: "icons" is one argument too many'),
    ("version icons", 2, 'lumora: "icons" is one argument too many'),
    ("-V --jsno", 2, "lumora: --jsno is no option; did you mean --json?"),
    ("help icno", 2, 'lumora: "icno" is neither a command'),
    ("''", 2, "lumora: an argument is empty"),
    ("-q", 2, "lumora: COMMAND is missing"),
    ("--verison", 2, "lumora: --verison is no option; did you mean --version"),
    ("--tool", 2, "lumora: --tool lacks its value: --tool NAME; it takes icons, placeholders"),
    ("--tool=ikons", 2, 'lumora: --tool takes icons, placeholders, resizer, color, devices or validator, not "ikons"; did you mean icons?'),
    ("--tool icons missing.png", 2, "lumora: missing.png: does not exist"),
    ("icon.png missing.png", 2, "lumora: missing.png: does not exist"),
    ("icon.png --tol=icons", 2, "lumora: --tol=icons is no option; did you mean --tool?"),
    ("icons", 2, "lumora icons: SOURCE, --example or --check DIR is missing"),
    ("icons icon.png", 2, "lumora icons: --to DIR, --out DIR or --into DIR is missing"),
    ("icons icon.png --platform all", 2, "lumora icons: --to DIR or --out DIR is missing"),
    ("icons --platform all", 2, "lumora icons: SOURCE or --example is missing"),
    ("icons --check out --to out", 2, "lumora icons: --to and --check exclude each other"),
    ("icons icon.png --into out --out out", 2, "lumora icons: --out and --into exclude each other"),
    ("icons icon.png --to out", 2, "lumora icons: --platform LIST is missing; it takes iphone"),
    ("icons icon.png --platform --to out", 2, "lumora icons: --platform lacks its value: --platform LIST; it takes iphone"),
    ("icons icon.png --platform all --to", 2, "lumora icons: --to lacks its value: --to DIR"),
    ("icons icon.png --platform all --to -out", 2, "lumora icons: --to lacks its value: --to DIR; for a value that begins with a dash write --to=-out"),
    ("icons icon.png --platform all --to ''", 2, "lumora icons: --to is empty"),
    ("icons icon.png --platform all --out=", 2, "lumora icons: --out is empty"),
    ("icons '' --platform all --to out", 2, "lumora icons: SOURCE is empty"),
    ("icons icon.png icon.png --platform all --to out", 2, 'lumora icons: "icon.png" is one argument too many'),
    ("icons icon.png ios --to out", 2, 'lumora icons: "ios" is one argument too many; did you mean --platform ios?'),
    ("placeholders 64x64 --to out", 2, 'lumora placeholders: "64x64" is one argument too many; did you mean --size 64x64?'),
    ("icons icon.png --platfrom all --to out", 2, "lumora icons: --platfrom is no option; did you mean --platform?"),
    ("icons icon.png -platform all --to out", 2, "lumora icons: -platform is no option; did you mean --platform?"),
    ("icons icon.png --platform iOS --to out", 2, "lumora icons: --platform takes iphone, ipad, mac, android, web-touch, favicon, all, ios, macos, "
     'watchos, adaptive, web, windows, linux, tvos, visionos, icon-composer or today, not "iOS"; did you mean ios?'),
    ("icons icon.png --platform all --to a --to b", 2, "lumora icons: --to is given twice"),
    ("icons icon.png --platform all --to a --out b", 2, "lumora icons: --to and --out exclude each other"),
    ("icons icon.png --example --platform all --to a", 2, "lumora icons: SOURCE and --example exclude each other"),
    ("icons icon.png --platform all --to out --json=yes", 2, "lumora icons: --json takes no value"),
    ("icons icon.png --platform all --to out -qv", 2, "lumora icons: --quiet and --verbose exclude each other"),
    ("icon --corners ios8 --example --size 1 --to out", 2, 'lumora icon: --corners takes none, ios6 or ios7, not "ios8"'),
    ("icon --corners foo --example --size 1 --to out", 2, 'lumora icon: --corners takes none, ios6 or ios7, not "foo"'),
    ("icon icon.png --size 180.5 --to out", 2, 'lumora icon: --size takes a whole number from 1 to 1024, not "180.5"'),
    ("icon icon.png --size 16,32px --to out", 2, 'lumora icon: --size takes a whole number from 1 to 1024, not "32px"'),
    ("icon icon.png --size 2000 --to out", 1, 'lumora: --size takes a whole number from 1 to 1024, not "2000"'),
    ("placeholders --size 1e3x5 --to out", 2, "lumora placeholders: --size 1e3x5: is no size; give width x height"),
    ("placeholders --set iso --to out", 2, 'lumora placeholders: --set takes ios, mac, app-store, play, feature-graphic, tv, watch, social or '
     'launch, not "iso"; did you mean ios?'),
    ("placeholders --size 8x8 --check out", 2, "lumora placeholders: --size and --check exclude each other"),
    ("placeholders --set play,ios --check bare", 2, "lumora placeholders: --check goes with --set app-store or --set play only"),
    ("placeholders --check bare", 1, "lumora: bare: lacks what it has to contain (no picture in it); check how it was made"),
    ("downscale art --layout windows --dry-run", 2, "lumora downscale: --layout takes ios, android, flutter, react-native or web"),
    ("downscale art --layout ios --from sgv", 2, "lumora downscale: --from sgv: is no density; give 1x, 1.5x, 2x, 3x, 4x, a name such as xxhdpi, or svg"),
    ("downscale art --layout ios --to-scales 7x", 2, "lumora downscale: --to-scales 7x: is no density"),
    ("downscale art --layout ios --from 2x --to-scales 3x", 2, "lumora downscale: 3x is not below 2x"),
    ("color abc --as css --all", 2, "lumora color: --as and --all exclude each other"),
    ("color abc --form swift", 2, "lumora color: --form takes swiftui,"),
    ("devices --today --ios 15..12", 2, "lumora devices: --ios 15..12: is no range of versions"),
    ("devices --ios 15..", 2, 'lumora devices: --ios takes 4, 5, 6 or 7, not "15.."; add --today, which knows all versions'),
    ("devices --chip a12z,m9x", 2, "lumora devices: --chip m9x: is no chip in the list; did you mean A9X, A9 or M4?"),
    ("devices --model iphone15.2", 1, 'lumora: "iphone15.2": is no model in the list; did you mean iPhone15,2'),
    ("devices --today --feature gps", 2, "lumora devices: --feature and --today exclude each other"),
    ("downscale art --from 3x", 2, "lumora downscale: --to DIR, --out DIR or --layout LAYOUT is missing"),
    ("downscale --to out", 2, "lumora downscale: SOURCE is missing"),
    ("downscale '' --to out", 2, "lumora downscale: SOURCE is empty"),
    ("downscale icon.png --to out --overwirte", 2, "lumora downscale: --overwirte is no option; did you mean --overwrite?"),
    ("color", 2, "lumora color: TEXT is missing"),
    ("color 1z2z3z", 1, 'lumora: "1z2z3z": is no color code; give three or six hexadecimal digits'),
    ("color abc --as CSS", 2, 'lumora color: --as takes hex, ios, mac, rgb, css or all, not "CSS"; did you mean css?'),
    ("devices --ios ''", 2, "lumora devices: --ios is empty"),
    ("devices --ios 7.0", 2, 'lumora devices: --ios takes 4, 5, 6 or 7, not "7.0"; did you mean 7?'),
    ("devices --feature bluetooth", 2, "lumora devices: --feature takes retina,"),
    ("validate", 2, "lumora validate: FILE is missing"),
    ("validate a.ipa --ignore sael", 2, 'lumora validate: "sael" is no rule; did you mean seal?'),
    ("validate a.ipa --ignore-file missing", 3, "lumora: missing: does not exist"),
    ("validate a.ipa --on 2026-02-30", 2, 'lumora validate: "2026-02-30" is no date; write it as in 2027-04-30'),
    ("validate a.ipa --rules all,store", 2, 'lumora validate: --rules takes auto, store, classic or all, not "all,store"'),
    ("validate a.ipa --sarif - --junit -", 2, "lumora validate: standard output takes one of the report, --json and --icon"),
    ("diff a.ipa", 2, "lumora diff: NEW is missing"),
    ("diff a.ipa b.ipa icon.png", 2, 'lumora diff: "icon.png" is one argument too many'),
    ("diff a.ipa b.ipa --on never", 2, 'lumora diff: "never" is no date'),
    ("icons icon.png --platform ipad --to out --dark icon.png", 2,
     "lumora icons: --dark goes only with --into or a platform of today: ios, macos,"),
    ("icons icon.png --platform ios --to out --dry-run", 2, "lumora icons: --dry-run goes with --into only"),
    ("rules sael", 2, 'lumora rules: "sael" is no rule; did you mean seal?'),
    ("rules seal --markdown", 2, "lumora rules: ID and --markdown exclude each other"),
    ("validate App.IPA", 3, "lumora: App.IPA: the name does not end in .ipa, .app or .xcarchive; rename it"),
    ("validate missing.IPA", 3, "lumora: missing.IPA: does not exist; check the path"),
    ("validate a.ipa b.ipa --icon i.png", 2, "lumora validate: --icon writes the icon of one file"),
    ("validate - -", 2, "lumora validate: - is given twice"),
]

# The same in German, as the environment requests.
GERMAN = [
    ("icno", 2, 'lumora: "icno" ist weder ein Befehl noch eine vorhandene Datei; war icon oder icons gemeint?'),
    ("icons missing.png --platform all --to out", 1, "lumora: missing.png: gibt es nicht; den Pfad prüfen"),
    ("icon --corners ios8 --example --size 1 --to out", 2, 'lumora icon: --corners nimmt none, ios6 oder ios7, nicht "ios8"'),
    ("--tool=ikons", 2, "lumora: --tool nimmt icons,"),
]

def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def png(width, height, more=b""):
    head = chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0))
    rows = zlib.compress((b"\0" + bytes(4 * width)) * height)
    return b"\x89PNG\r\n\x1a\n" + head + more + chunk(b"IDAT", rows) + chunk(b"IEND", b"")


def archive(name):
    content = io.BytesIO()
    with zipfile.ZipFile(content, "w") as entries:
        entries.writestr(name, b"")
    return content.getvalue()


# Files that cannot be used, the line that names one, and the detail that the German message gives in brackets or alone.
GERMAN_DETAILS = [
    ("small.png", png(2, 3), "icons small.png --platform all --to out", "hat die falsche Größe (2 x 3 Pixel)"),
    ("cut.png", png(1024, 1024)[:60], "icons cut.png --platform all --to out", "ist kein lesbares Bild (beschädigt)"),
    ("bright.png", png(1024, 1024, chunk(b"cICP", bytes([9, 16, 0, 1]))), "icons bright.png --platform all --to out", "(PQ oder HLG)"),
    ("none", b"", "icons /dev/zero --platform all --to out", "ließ sich nicht lesen (keine gewöhnliche Datei)"),
    ("art/a.9.png", png(2, 2), "downscale art/a.9.png art --layout ios --out out", "kein Bild, das sich verkleinern lässt"),
    ("empty.ipa", archive("a"), "validate empty.ipa", "(keine App im Ordner Payload)"),
    ("empty.ipa", archive("a"), "diff empty.ipa empty.ipa", "(keine App im Ordner Payload)"),
    ("list.csv", b"\x89PNG\0", "devices --data list.csv", "list.csv: kein UTF-8-Text"),
    ("list.csv", b"a,b\n", "devices --data list.csv", "list.csv: Zeile 1: verlangt ist die Kopfzeile: identifier,"),
    ("list.csv", b"", "devices --data list.csv", "list.csv: kein Modell darin"),
]

HELP_OF_ALL = ["help", "--help", "-h"] + [f"help {command}" for command in (
    "icons", "icon", "placeholders", "downscale", "color", "devices", "validate", "diff", "rules", "resizer", "validator")] + ["icons --help", "color -h"]


class Calls(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        for name in ("icon.png", "App.IPA", "a.ipa", "b.ipa"):
            (self.folder / name).write_bytes(b"")
        (self.folder / "bare").mkdir()

    def run_line(self, line, cwd=None, **variables):
        environment = {"PATH": "/usr/bin:/bin", "LC_ALL": "C.UTF-8", "HOME": str(self.folder), **variables}
        return subprocess.run(["sh", "-c", f'"$0" {line}', LUMORA], cwd=cwd or self.folder, env=environment,
                              capture_output=True, text=True, timeout=60)

    def expect(self, line, status, said, **variables):
        before = sorted(self.folder.rglob("*"))
        ended = self.run_line(line, **variables)
        self.assertEqual(ended.returncode, status, ended)
        self.assertEqual(ended.stdout, "")
        self.assertEqual(ended.stderr.count("\n"), 1, ended.stderr)
        self.assertTrue(ended.stderr.startswith(said), ended.stderr)
        self.assertEqual(sorted(self.folder.rglob("*")), before)

    def test_each_mistake(self):
        for line, status, said in MISTAKES:
            with self.subTest(line):
                self.expect(line, status, said)

    def test_german(self):
        for variable in ("LC_ALL", "LC_MESSAGES", "LANG"):
            for line, status, said in GERMAN:
                with self.subTest(line, variable=variable):
                    self.expect(line, status, said, **{"LC_ALL": "", variable: "de_DE.UTF-8"})

    def test_details_are_german(self):
        for name, content, line, said in GERMAN_DETAILS:
            with self.subTest(line, name=name):
                file = self.folder / name
                file.parent.mkdir(exist_ok=True)
                file.write_bytes(content)
                ended = self.run_line(line, LC_ALL="de_DE.UTF-8")
                self.assertIn(ended.returncode, (1, 2, 3), ended)
                self.assertIn(said, ended.stderr)

    def test_results_for_people_are_german_those_for_scripts_are_not(self):
        line = "devices --feature flash_cam"
        self.assertIn("iPod: none\n", self.run_line(line).stdout)
        self.assertIn("iPod: keine\n", self.run_line(line, LC_ALL="de_DE.UTF-8").stdout)
        self.assertEqual(self.run_line(f"{line} --json").stdout, self.run_line(f"{line} --json", LC_ALL="de_DE.UTF-8").stdout)

    def test_help_fits_a_terminal(self):
        for language in ("C.UTF-8", "de_DE.UTF-8"):
            for line in HELP_OF_ALL:
                with self.subTest(line, language=language):
                    ended = self.run_line(line, LC_ALL=language)
                    self.assertEqual((ended.returncode, ended.stderr), (0, ""))
                    lines = ended.stdout.splitlines()
                    self.assertLessEqual(max(map(len, lines)), 80)
                    examples = lines[lines.index("Examples:" if language == "C.UTF-8" else "Beispiele:") + 1:]
                    self.assertEqual(len(examples), 2)
                    for word in ("CLI_", "[WORDS]", "TEXT TEXT"):
                        self.assertNotIn(word, ended.stdout)

    def test_commands_and_tools_answer_to_each_others_names(self):
        for command, tool in (("downscale", "resizer"), ("validate", "validator")):
            self.assertEqual(self.run_line(f"help {command}").stdout, self.run_line(f"help {tool}").stdout)
            self.assertEqual(self.run_line(f"{tool} --help").stdout, self.run_line(f"help {tool}").stdout)
        # There is no display, so the complaint is about the display, not about the name.
        for tool in ("resizer", "downscale", "validator", "validate", "icon"):
            for line in (f"--tool {tool}", f"--tool={tool}"):
                ended = self.run_line(line)
                self.assertEqual(ended.returncode, 1, ended)
                self.assertIn("no display", ended.stderr)

    def test_quiet_and_verbose(self):
        self.assertEqual(self.run_line("-q color abc").stdout, "")
        self.assertEqual(self.run_line("color abc --quiet --json").stdout, self.run_line("--json color abc").stdout)
        ended = self.run_line("icon --example --size 16,32 --out o -v")
        self.assertEqual((ended.returncode, ended.stderr.count("icon_16x16.png"), ended.stderr.count("\n")), (0, 1, 2))
        self.assertEqual(ended.stdout.strip(), str(self.folder.resolve() / "o"))

    def test_a_removed_working_folder(self):
        for line in ("icons --example --platform favicon --to .", "icons --example --platform favicon --out out",
                     "placeholders --set ios --to .", "icon --example --size 16 -o icon.png",
                     f"downscale {self.folder}/a@2x.png --to ."):
            with self.subTest(line):
                gone = self.folder / "gone"
                gone.mkdir()
                (self.folder / "a@2x.png").write_bytes(b"")
                before = sorted(os.listdir("/"))
                ended = self.run_line(f'>/dev/null 2>&1; rmdir "$PWD"; "$0" {line}', cwd=gone)
                self.assertEqual(ended.returncode, 1, ended)
                self.assertIn("the working folder has been removed", ended.stderr)
                self.assertEqual(sorted(os.listdir("/")), before)

    def test_a_file_of_a_commands_name_is_opened_by_its_path(self):
        (self.folder / "icons").write_bytes(b"")
        self.assertIn("SOURCE, --example or --check DIR is missing", self.run_line("icons").stderr)
        self.assertIn("no display", self.run_line("./icons").stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
