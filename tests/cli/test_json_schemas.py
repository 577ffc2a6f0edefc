# SPDX-License-Identifier: MIT
"""usage: test_json_schemas.py LUMORA SCHEMAS PACKAGES   Every command's JSON, of success, failure and misuse, matches its
schema: it has that form, no key that the schema does not describe, and `ok` is true exactly when the exit status is 0."""
import json
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import jsonschema

LUMORA, SCHEMAS, MAKE_PACKAGES = (Path(argument).resolve() for argument in sys.argv[1:4])

# Schema, arguments and the exit status.
CALLS = {
    "icons": ("icons", ["icons", "icon.png", "--platform", "mac,favicon", "--out", "a"], 0),
    "icons in a fresh folder": ("icons", ["icons", "--example", "--platform", "web-touch", "--to", "b"], 0),
    "icons of no picture": ("icons", ["icons", "notes.txt", "--platform", "all", "--to", "b"], 1),
    "icons of a missing picture": ("icons", ["icons", "none.png", "--platform", "all", "--to", "b"], 1),
    "icons where a folder cannot be": ("icons", ["icons", "icon.png", "--platform", "all", "--out", "notes.txt/x"], 1),
    "icons some of which cannot be": ("icons", ["icons", "icon.png", "--platform", "favicon,ipad", "--out", "blocked"], 1),
    "icons without a source": ("icons", ["icons", "--platform", "all", "--to", "b"], 2),
    "icons of an unknown platform": ("icons", ["icons", "icon.png", "--platform", "palm", "--to", "b"], 2),
    "icons by an unknown option": ("icons", ["icons", "--json", "--plaform"], 2),
    "icons of today": ("icons", ["icons", "icon.png", "--flatten", "white", "--platform", "web,linux,mac", "--out", "today"], 0),
    "icons of today without layers": ("icons", ["icons", "icon.png", "--platform", "tvos", "--out", "today"], 1),
    "icons into no project": ("icons", ["icons", "icon.png", "--into", "empty"], 1),
    "icons that are checked": ("icons", ["icons", "--check", "today"], 0),
    "icons that are not there": ("icons", ["icons", "--check", "empty"], 1),
    "icons into a project and a folder": ("icons", ["icons", "icon.png", "--into", "empty", "--out", "today"], 2),
    "icon": ("icons", ["icon", "icon.png", "--size", "16,32", "--out", "c"], 0),
    "icon to a file": ("icons", ["icon", "icon.png", "--size", "16", "-o", "c.png"], 0),
    "icon to a folder's name": ("icons", ["icon", "icon.png", "--size", "16", "-o", "marked"], 1),
    "icon out of range": ("icons", ["icon", "icon.png", "--size", "1025", "--out", "c"], 1),
    "icon of no size": ("icons", ["icon", "icon.png", "--size", "180.5", "--out", "c"], 2),
    "placeholders": ("placeholders", ["placeholders", "--set", "mac", "--to", "d"], 0),
    "placeholders of sizes": ("placeholders", ["placeholders", "--size", "3x4,5x6", "--out", "d"], 0),
    "placeholders out of range": ("placeholders", ["placeholders", "--size", "10000x1", "--out", "d"], 1),
    "placeholders of no size": ("placeholders", ["placeholders", "--size", "0x7", "--out", "d"], 2),
    "placeholders of stores": ("placeholders", ["placeholders", "--set", "play,feature-graphic", "--format", "svg", "--to", "d"], 0),
    "placeholders with a look": ("placeholders", ["placeholders", "--size", "8x8@2x", "--background", "red", "--out", "d"], 0),
    "placeholders in no color": ("placeholders", ["placeholders", "--size", "8x8", "--background", "redd", "--out", "d"], 1),
    "placeholders of a quality of PNG": ("placeholders", ["placeholders", "--size", "8x8", "--quality", "9", "--out", "d"], 2),
    "screenshots checked": ("placeholders", ["placeholders", "--check", "marked"], 1),
    "screenshots nowhere": ("placeholders", ["placeholders", "--check", "nowhere"], 1),
    "downscale": ("downscale", ["downscale", "marked", "--out", "e"], 0),
    "downscale once more": ("downscale", ["downscale", "marked", "--out", "e"], 1),
    "downscale foreseen": ("downscale", ["downscale", "marked", "--out", "e", "--overwrite", "--dry-run"], 0),
    "downscale of nothing": ("downscale", ["downscale", "empty", "icon.png", "--out", "e"], 1),
    "downscale without a place": ("downscale", ["downscale", "marked"], 2),
    "downscale to densities": ("downscale", ["downscale", "dense", "--layout", "web", "--out", "f"], 0),
    "downscale to densities foreseen": ("downscale", ["downscale", "dense", "--layout", "web", "--dry-run"], 0),
    "downscale to no density": ("downscale", ["downscale", "dense", "--layout", "ios", "--to-scales", "5x"], 2),
    "downscale to densities of nothing": ("downscale", ["downscale", "empty", "--layout", "android"], 1),
    "color in forms": ("color", ["color", "color(display-p3 1 0 0)", "--all", "--contrast", "white"], 0),
    "no color in any form": ("color", ["color", "reddish", "--form", "qml"], 1),
    "devices of today": ("devices", ["devices", "--today", "--ios", "15..", "--capability", "arkit"], 0),
    "devices of no range": ("devices", ["devices", "--today", "--ios", "17..15"], 2),
    "devices of no model": ("devices", ["devices", "--model", "iPhone99,9"], 1),
    "devices of a list that is none": ("devices", ["devices", "--data", "notes.txt"], 1),
    "color": ("color", ["color", "#abc"], 0),
    "color in one notation": ("color", ["color", "34485e", "--as", "css"], 0),
    "no color": ("color", ["color", "1z2z3z"], 1),
    "color in no notation": ("color", ["color", "abc", "--as", "java"], 2),
    "devices": ("devices", ["devices"], 0),
    "devices by features": ("devices", ["devices", "--ios", "7", "--feature", "siri,gps"], 0),
    "devices of no version": ("devices", ["devices", "--ios", "7.0"], 2),
    "diff": ("diff", ["diff", "packages/valid.ipa", "packages/logo.ipa"], 0),
    "diff of what is none": ("diff", ["diff", "packages/valid.ipa", "packages/no app.ipa"], 3),
    "diff of one": ("diff", ["diff", "packages/valid.ipa"], 2),
    "rules": ("rules", ["rules"], 0),
    "one rule": ("rules", ["rules", "seal"], 0),
    "no rule": ("rules", ["rules", "sael"], 2),
    "version": ("version", ["version"], 0),
    "version of what is none": ("version", ["version", "icons"], 2),
    "validate": ("validate", ["validate", "packages/valid.ipa"], 0),
    "validate with faults": ("validate", ["validate", "packages/logo.ipa"], 1),
    "validate what is damaged": ("validate", ["validate", "packages/encrypted.ipa"], 1),
    "validate by the store's rules": ("validate", ["validate", "packages/valid.ipa", "--rules", "store"], 1),
    "validate by all rules, and let it pass": ("validate", ["validate", "packages/valid.ipa", "--rules", "all", "--fail-on",
                                                            "never"], 0),
    "validate for models": ("validate", ["validate", "packages/valid.ipa", "--devices"], 0),
    "validate with an unknown rule": ("validate", ["validate", "packages/valid.ipa", "--ignore", "no-rule"], 2),
    "validate for no day": ("validate", ["validate", "packages/valid.ipa", "--on", "yesterday"], 2),
    "validate what is none": ("validate", ["validate", "packages/no app.ipa"], 3),
    "validate several": ("validate", ["validate", "packages/valid.ipa", "packages/logo.ipa", "none.ipa"], 3),
    "validate another name": ("validate", ["validate", "notes.txt"], 3),
    "validate nothing": ("validate", ["validate"], 2),
}


def described_keys(schema, root, found=None):
    """The names of all keys in the schema, at any depth."""
    found = set() if found is None else found
    if isinstance(schema, dict):
        found.update(schema.get("properties", {}))
        for part in schema.values():
            described_keys(part, root, found)
    elif isinstance(schema, list):
        for part in schema:
            described_keys(part, root, found)
    return found


def keys_of(value):
    if isinstance(value, dict):
        for key, part in value.items():
            yield key
            yield from keys_of(part)
    elif isinstance(value, list):
        for part in value:
            yield from keys_of(part)


class JsonContract(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.scratch.cleanup)
        folder = Path(cls.scratch.name)
        (folder / "notes.txt").write_text("notes")
        for name in ("marked/sub", "dense", "empty", "blocked"):
            (folder / name).mkdir(parents=True)
        # A file at the path of the folder to make.
        (folder / "blocked/iPad").write_text("mine")
        for name, size in (("icon.png", "1024x1024"), ("marked/a@2x.png", "8x6"), ("marked/sub/b-hd.png", "8x6"), ("dense/a@3x.png", "10x9")):
            subprocess.run(["convert", "-size", size, "xc:tomato", folder / name], check=True)
        (folder / "packages").mkdir()
        subprocess.run([sys.executable, MAKE_PACKAGES, folder / "packages"], check=True, capture_output=True)

    def test_each_schema_is_one(self):
        files = sorted(SCHEMAS.glob("*.schema.json"))
        self.assertTrue(files)
        for file in files:
            with self.subTest(file.name):
                jsonschema.Draft202012Validator.check_schema(json.loads(file.read_text()))
        self.assertEqual({file.name.split(".")[0] for file in files}, {schema for schema, _, _ in CALLS.values()})

    def test_each_call(self):
        for name, (schema_name, arguments, status) in CALLS.items():
            for language in ("C.UTF-8", "de_DE.UTF-8"):
                # The same run in another language finds the files of the first.
                if language == "de_DE.UTF-8" and schema_name == "downscale" and status == 0 and "--dry-run" not in arguments:
                    continue
                with self.subTest(name, language=language):
                    self.check(schema_name, arguments, status, language)

    def check(self, schema_name, arguments, status, language):
        schema = json.loads((SCHEMAS / f"{schema_name}.schema.json").read_text())
        ended = subprocess.run([LUMORA, *arguments, "--json"], cwd=self.scratch.name, capture_output=True, timeout=120,
                               env={"PATH": "/usr/bin:/bin", "LC_ALL": language})
        self.assertEqual(ended.returncode, status, ended)
        result = json.loads(ended.stdout)
        jsonschema.validate(result, schema, cls=jsonschema.Draft202012Validator)
        self.assertEqual(set(keys_of(result)) - described_keys(schema, schema), set())
        objects = result if isinstance(result, list) else [result]
        self.assertEqual(all(one["ok"] for one in objects), status == 0)
        complaints = [line for line in ended.stderr.decode().splitlines() if line.startswith("lumora")]
        self.assertEqual(sum(len(one["errors"]) for one in objects), len(complaints), ended)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
