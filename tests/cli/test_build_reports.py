# SPDX-License-Identifier: MIT
"""usage: test_build_reports.py LUMORA MAKE_RULE_PACKAGES   What `lumora validate` writes for build servers, and what `lumora diff`
says of two packages, read by other readers."""
import json
import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as xml
from pathlib import Path

LUMORA, MAKE_RULE_PACKAGES = (Path(argument).resolve() for argument in sys.argv[1:3])
LEVELS = {"error", "warning", "note"}
# Of these each breaks the rule of its name.
PACKAGES = ["keeps, all", "keeps, a Mac app", "seal", "purpose-likely"]


class Reports(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.scratch.cleanup)
        cls.folder = Path(cls.scratch.name)
        subprocess.run([sys.executable, "-B", MAKE_RULE_PACKAGES, cls.folder, *PACKAGES], check=True, capture_output=True)
        (cls.folder / "broken.ipa").write_bytes(b"PK\x03\x04 and nothing else")
        # Names that an address, XML and a terminal have their own ideas of.
        (cls.folder / "a & <b>.ipa").write_bytes((cls.folder / "seal.ipa").read_bytes())

    def run_lumora(self, *arguments):
        return subprocess.run([LUMORA, *arguments, "--on", "2026-11-22"], cwd=self.folder, capture_output=True, timeout=120,
                              env={"PATH": "/usr/bin:/bin", "LC_ALL": "de_DE.UTF-8"})

    def sarif(self, *packages, options=()):
        ended = self.run_lumora("validate", *packages, *options, "--sarif", "report.sarif")
        return ended, json.loads((self.folder / "report.sarif").read_text())

    def junit(self, *packages, options=()):
        ended = self.run_lumora("validate", *packages, *options, "--junit", "report.xml")
        return ended, xml.parse(self.folder / "report.xml").getroot()

    def test_sarif_of_a_broken_rule(self):
        ended, report = self.sarif("seal.ipa")
        self.assertEqual(ended.returncode, 1, ended)
        self.assertEqual(report["version"], "2.1.0")
        run, = report["runs"]
        result, = run["results"]
        rule = run["tool"]["driver"]["rules"][result["ruleIndex"]]
        self.assertEqual((result["ruleId"], rule["id"], result["level"]), ("seal", "seal", "error"))
        self.assertEqual(rule["properties"]["tags"], ["ITMS-90035"])
        location, = result["locations"]
        self.assertEqual(location["physicalLocation"]["artifactLocation"], {"uri": "seal.ipa", "index": 0})
        self.assertEqual(location["logicalLocations"][0]["fullyQualifiedName"], "Payload/Lamp.app/de.lproj/Localizable.strings")
        self.assertIn("wurde nach dem Signieren geändert", result["message"]["text"])
        self.assertTrue(run["invocations"][0]["executionSuccessful"])

    def test_sarif_of_several_packages(self):
        ended, report = self.sarif("a & <b>.ipa", "keeps, all.ipa", "broken.ipa", "purpose-likely.ipa")
        self.assertEqual(ended.returncode, 3, ended)
        run, = report["runs"]
        self.assertEqual([artifact["location"]["uri"] for artifact in run["artifacts"]],
                         ["a%20%26%20%3Cb%3E.ipa", "keeps%2C%20all.ipa", "broken.ipa", "purpose-likely.ipa"])
        self.assertEqual([result["ruleId"] for result in run["results"]], ["seal", "purpose-likely"])
        self.assertTrue(all(result["level"] in LEVELS for result in run["results"]))
        invocation, = run["invocations"]
        self.assertFalse(invocation["executionSuccessful"])
        notification, = invocation["toolExecutionNotifications"]
        self.assertEqual(notification["locations"][0]["physicalLocation"]["artifactLocation"]["index"], 2)

    def test_sarif_of_ignored_and_classic_rules(self):
        self.assertEqual(self.sarif("seal.ipa", options=("--ignore", "seal"))[1]["runs"][0]["results"], [])
        classic = self.sarif("seal.ipa", options=("--rules", "classic"))[1]["runs"][0]["results"]
        self.assertIn("classic-icons", [result["ruleId"] for result in classic])

    def test_junit(self):
        ended, suites = self.junit("seal.ipa")
        self.assertEqual(ended.returncode, 1, ended)
        self.assertEqual(suites.tag, "testsuites")
        suite, = suites
        self.assertEqual((suite.get("name"), suite.get("failures"), suite.get("errors")), ("seal.ipa", "1", "0"))
        self.assertEqual(int(suite.get("tests")), len(suite))
        self.assertEqual(int(suite.get("skipped")), len(suite.findall("testcase/skipped")))
        failed = [case for case in suite if case.find("failure") is not None]
        self.assertEqual([case.get("name") for case in failed], ["seal"])
        failure = failed[0].find("failure")
        self.assertEqual((failure.get("type"), failure.get("message")), ("ITMS-90035", "Das Siegel ist gebrochen"))
        self.assertEqual(failure.text.splitlines()[0],
                         "Payload/Lamp.app/de.lproj/Localizable.strings: wurde nach dem Signieren geändert")

    def test_junit_counts_what_counts(self):
        for fail_on, failures in (("error", "0"), ("warning", "1"), ("never", "0")):
            with self.subTest(fail_on):
                ended, suites = self.junit("purpose-likely.ipa", options=("--fail-on", fail_on))
                self.assertEqual((suites.get("failures"), ended.returncode), (failures, int(failures)))
                self.assertEqual(len(suites.findall(".//system-out")), 1 - int(failures))

    def test_junit_of_several_packages(self):
        ended, suites = self.junit("a & <b>.ipa", "broken.ipa", "keeps, all.ipa")
        self.assertEqual(ended.returncode, 3, ended)
        self.assertEqual([suite.get("name") for suite in suites], ["a & <b>.ipa", "broken.ipa", "keeps, all.ipa"])
        self.assertEqual([(suite.get("failures"), suite.get("errors")) for suite in suites], [("1", "0"), ("0", "1"), ("0", "0")])
        self.assertEqual(int(suites.get("tests")), sum(int(suite.get("tests")) for suite in suites))

    def test_both_at_once_and_on_standard_output(self):
        ended = self.run_lumora("validate", "seal.ipa", "--sarif", "both.sarif", "--junit", "-")
        self.assertEqual(xml.fromstring(ended.stdout).get("failures"), "1")
        self.assertEqual(len(json.loads((self.folder / "both.sarif").read_text())["runs"][0]["results"]), 1)
        self.assertIn(b"seal.ipa", ended.stderr)

    def test_a_page(self):
        ended = self.run_lumora("validate", self.folder / "a & <b>.ipa", "broken.ipa", "keeps, all.ipa", "--html", "page.html")
        self.assertEqual(ended.returncode, 3, ended)
        page = (self.folder / "page.html").read_text()
        # A page is passed on, and where the package was is of no use there.
        self.assertNotIn(str(self.folder), page)
        for shown in ("<h1>Lamp</h1>", "<h1>broken.ipa</h1>", ">a &amp; &lt;b&gt;.ipa<", "Befunde: 1 Fehler<", "Befunde: Nichts gefunden<", "com.example.lamp",
                      "Das Siegel ist gebrochen", "Localizable.strings", "<td>TEAM123456</td>", "<td>für den App Store</td>", "Lamp.app"):
            self.assertIn(shown, page)
        # Nothing runs, and nothing comes from elsewhere.
        self.assertEqual(re.findall(r"<script|<link|<iframe|\bon\w+=|(?:src|href)=\"(?!data:)", page), [])
        self.assertEqual(page.count("<section>"), 3)

    def test_models(self):
        models = json.loads(self.run_lumora("validate", "keeps, all.ipa", "--devices", "--json").stdout)["models"]
        # The package asks for iOS 15.0 and arm64.
        by_name = {model["name"]: model for model in models}
        self.assertEqual(by_name["iPhone 5s"]["reasons"], ["ends at iOS 12.5.8"])
        self.assertTrue(by_name["iPhone 6s"]["fits"])
        self.assertTrue(all(model["fits"] == (not model["reasons"]) for model in models))
        text = self.run_lumora("validate", "keeps, all.ipa", "--devices", "--rules", "classic").stdout.decode()
        self.assertRegex(text, r"(?m)^    iPhone: .*iPhone 6s")
        self.assertRegex(text, r"(?m)^    endet bei iOS 12.5.8: .*iPhone 5s")
        self.assertNotRegex(text, "ends at|lacks")

    def test_models_of_another_device(self):
        models = json.loads(self.run_lumora("validate", "keeps, a Mac app.ipa", "--devices", "--json").stdout)["models"]
        self.assertEqual({tuple(model["reasons"]) for model in models}, {("the app is for Mac",)})
        text = self.run_lumora("validate", "keeps, a Mac app.ipa", "--devices").stdout.decode()
        self.assertRegex(text, r"(?m)^    iPhone: keine?$")
        self.assertRegex(text, r"(?m)^    die App ist für Mac: .*iPhone 17")

    def test_facts_of_a_mac_app(self):
        facts = json.loads(self.run_lumora("validate", "keeps, a Mac app.ipa", "--json").stdout)
        for key, value in {"name": "Lamp", "platform": "Mac", "minimumOS": "13.0", "bundleIdentifier": "com.example.lamp",
                           "build": "release", "localizations": ["English"]}.items():
            self.assertEqual(facts[key], value, key)
        self.assertEqual(facts["checks"]["icons"], {"valid": True, "missing": []})

    def test_a_code_that_nobody_can_judge(self):
        ended = subprocess.run([LUMORA, "rules", "ITMS-90186", "seal"], capture_output=True, env={"LC_ALL": "de_DE.UTF-8"})
        self.assertEqual((ended.returncode, ended.stderr), (0, b""))
        lines = ended.stdout.decode().splitlines()
        self.assertRegex(lines[0], "^ITMS-90186: .*nur der Store")
        self.assertRegex(lines[1], "^id +seal")
        unknown = subprocess.run([LUMORA, "rules", "ITMS-90187"], capture_output=True, env={"LC_ALL": "de_DE.UTF-8"})
        self.assertEqual(unknown.returncode, 2)

    def test_no_report_in_the_place_of_a_package(self):
        whole = (self.folder / "seal.ipa").read_bytes()
        (self.folder / "link.html").symlink_to("seal.ipa")
        for option in ("--html", "--sarif", "--junit", "--icon"):
            for place in ("seal.ipa", "./seal.ipa", str(self.folder / "seal.ipa"), "link.html"):
                ended = self.run_lumora("validate", "seal.ipa", option, place)
                self.assertEqual((ended.returncode, ended.stdout), (1, b""), (option, place, ended))
                self.assertEqual((self.folder / "seal.ipa").read_bytes(), whole, (option, place))

    def test_no_two_reports_in_one_place(self):
        ended = self.run_lumora("validate", "seal.ipa", "--html", "new.report", "--sarif", "./new.report")
        self.assertEqual((ended.returncode, ended.stdout), (2, b""), ended)
        self.assertFalse((self.folder / "new.report").exists())

    def test_no_place_for_a_report(self):
        ended = self.run_lumora("validate", "keeps, all.ipa", "--sarif", "none/report.sarif", "--json")
        self.assertEqual(ended.returncode, 1, ended)
        result = json.loads(ended.stdout)
        self.assertFalse(result["ok"])
        self.assertEqual(len(result["errors"]), 1)
        self.assertIn(b"none/report.sarif", ended.stderr)

    def test_difference(self):
        ended = self.run_lumora("diff", "keeps, all.ipa", "seal.ipa", "--json")
        self.assertEqual(ended.returncode, 0, ended)
        result = json.loads(ended.stdout)
        self.assertEqual(([finding["id"] for finding in result["gained"]], result["lost"]), (["seal"], []))
        back = json.loads(self.run_lumora("diff", "seal.ipa", "keeps, all.ipa", "--json").stdout)
        self.assertEqual(([finding["id"] for finding in back["lost"]], back["gained"]), (["seal"], []))
        self.assertEqual((back["sizes"]["old"], back["sizes"]["new"]), (result["sizes"]["new"], result["sizes"]["old"]))
        for side in ("old", "new"):
            for part in ("files", "bytes"):
                self.assertEqual(sum(kind[side][part] for kind in result["sizes"]["kinds"]), result["sizes"][side][part])

    def test_difference_in_lines(self):
        for locale, total, one in (("de_DE.UTF-8", "  Alles       16 Dateien, ", "  Kataloge    1 Datei, "),
                                   ("C.UTF-8", "  All         16 files, ", "  Catalogs    1 file, ")):
            lines = subprocess.run([LUMORA, "diff", "keeps, all.ipa", "seal.ipa"], cwd=self.folder, capture_output=True,
                                   env={"LC_ALL": locale}).stdout.decode()
            self.assertIn(total, lines)
            self.assertIn(one, lines)

    def test_difference_that_counts(self):
        for before, after, least, status in (
                ("keeps, all", "seal", "error", 1), ("keeps, all", "seal", "never", 0), ("seal", "keeps, all", "warning", 0),
                ("keeps, all", "purpose-likely", "error", 0), ("keeps, all", "purpose-likely", "warning", 1),
                ("seal", "seal", "warning", 0)):
            with self.subTest(before=before, after=after, least=least):
                ended = self.run_lumora("diff", f"{before}.ipa", f"{after}.ipa", "--fail-on", least)
                self.assertEqual(ended.returncode, status, ended)

    def test_german(self):
        self.run_lumora("validate", "seal.ipa", "--html", "page.html")
        page = (self.folder / "page.html").read_text()
        lines = self.run_lumora("validate", "seal.ipa").stdout.decode()
        rule = subprocess.run([LUMORA, "rules", "seal"], capture_output=True, env={"LC_ALL": "de_DE.UTF-8"}).stdout.decode()
        for text in (page, lines, rule):
            self.assertIn("Das Siegel ist gebrochen", text)
            self.assertNotIn("seal is broken", text)
        self.assertIn('<html lang="de">', page)
        for text in (page, lines):
            self.assertIn("wurde nach dem Signieren geändert", text)
        self.assertIn("Befunde: 1 Fehler", page)
        written = subprocess.run([LUMORA, "rules", "--markdown"], capture_output=True, env={"LC_ALL": "de_DE.UTF-8"}).stdout
        self.assertIn(b"### The seal is broken", written)

    def test_no_difference(self):
        ended = self.run_lumora("diff", "seal.ipa", "a & <b>.ipa", "--json")
        result = json.loads(ended.stdout)
        for part in ("facts", "entitlements", "permissions", "gained", "lost"):
            self.assertEqual(result[part], [])
        self.assertEqual(result["sizes"]["growth"], [])

    def test_difference_of_what_is_not_there_or_no_package(self):
        ended = self.run_lumora("diff", "gone", __file__)
        self.assertEqual(ended.returncode, 3)
        missing, wrong = ended.stderr.decode().splitlines()
        self.assertEqual(missing, "lumora: gone: gibt es nicht; den Pfad prüfen")
        self.assertTrue(wrong.startswith(f"lumora: {__file__}: der Name endet nicht auf .ipa, .app oder .xcarchive; "), wrong)

    def test_difference_with_what_is_none(self):
        ended = self.run_lumora("diff", "broken.ipa", "none.ipa")
        self.assertEqual((ended.returncode, ended.stdout), (3, b""))
        self.assertEqual(ended.stderr.count(b"\n"), 2, ended)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
