#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: make_corpora.py FOLDER   Seeds for the fuzz targets, one folder each, from the test suite's fixtures."""

import json
import re
import struct
import subprocess
import sys
import tempfile
from pathlib import Path

TESTS = Path(__file__).resolve().parent.parent / "tests"
LARGEST_SEED = 100_000


def seed(folder, script, pattern, *arguments):
    folder.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as made:
        subprocess.run([sys.executable, "-B", TESTS / script, made, *arguments], check=True)
        for path in Path(made).glob(pattern):
            if path.stat().st_size <= LARGEST_SEED:
                (folder / path.name.replace(" ", "-")).write_bytes(path.read_bytes())


def seed_colors(folder):
    """All texts in the rows of the reader's test."""
    folder.mkdir(parents=True, exist_ok=True)
    test = (TESTS / "color/forms/ColorReaderTest.cpp").read_text()
    for number, text in enumerate(re.findall(r'row\("((?:[^"\\]|\\.)+)"', test)):
        (folder / f"color{number:03}").write_text(text.replace('\\"', '"'))


def seed_models(folder):
    """A few rows of the device list each, since a whole list is too large for a fuzzer."""
    folder.mkdir(parents=True, exist_ok=True)
    lines = (TESTS.parent / "devices/today/models.csv").read_text().splitlines(keepends=True)
    rows = [line for line in lines if not line.startswith("#")]
    for first in range(1, len(rows), 20):
        (folder / f"models{first:03}.csv").write_text(rows[0] + "".join(rows[first : first + 3]))


def cbor(value):
    """Concise binary form of numbers, texts, bytes, lists and dictionaries."""
    def head(kind, number):
        if number < 24:
            return bytes([kind << 5 | number])
        return bytes([kind << 5 | 26]) + struct.pack(">I", number)

    if value is None or isinstance(value, bool):
        return {None: b"\xf6", False: b"\xf4", True: b"\xf5"}[value]
    if isinstance(value, int):
        return head(0, value)
    if isinstance(value, bytes):
        return head(2, len(value)) + value
    if isinstance(value, str):
        return head(3, len(value.encode())) + value.encode()
    if isinstance(value, list):
        return head(4, len(value)) + b"".join(map(cbor, value))
    return head(5, len(value)) + b"".join(cbor(key) + cbor(each) for key, each in value.items())


def seed_answers(folder):
    """What the reading process answers about a package, about another file, and about a package it cannot read."""
    folder.mkdir(parents=True, exist_ok=True)
    size = {"name": "Payload", "bytes": 1000, "files": 2, "more": 1, "parts": [
        {"name": "Lamp.app", "bytes": 900, "files": 1, "more": 0, "parts": []}]}
    review = json.dumps({
        "old": False, "file": "Lamp.ipa", "icon": "iVBORw0KGgo=", "largeIcon": "", "facts": [{"name": "Name", "value": "Lamp"}],
        "verdicts": [{"rule": "seal", "state": 1, "reason": "", "evidence": [{"name": "Payload/Lamp.app/a", "value": "differs"}]},
                     {"rule": "icons", "state": 0, "reason": "", "evidence": []},
                     {"rule": "debuggable", "state": 3, "reason": "no profile", "evidence": []}],
        "signature": [{"name": "Team", "value": "TEAM123456"}], "sizes": size, "json": {"schema": 2, "findings": []},
        "bundles": [{"path": "Payload/Lamp.app", "kind": 0, "identifier": "com.example.lamp", "version": "1 (2)",
                     "minimum": "15.0", "signed": True}],
        "manifests": [{"path": "Payload/Lamp.app/PrivacyInfo.xcprivacy", "tracks": True, "domains": 1, "collected": 2,
                       "reasons": {"UserDefaults": ["CA92.1"]}}],
        "kinds": [{"kind": "code", "files": 1, "bytes": 900}], "minimum": "15.0", "padOnly": False,
        "capabilities": ["arm64"], "otherDevice": ""}).encode()
    gathered = cbor({
        "folder": "/tmp/Lamp.app", "info": {"CFBundleIdentifier": "com.example.lamp", "UIDeviceFamily": [1, 2],
                                            "MinimumOSVersion": "15.0"},
        "localized": {"en": {"CFBundleDisplayName": "Lamp"}, "de": {"CFBundleDisplayName": "Lampe"}},
        "localizations": ["en", "de"], "images": ["icon.png"], "profile": "<plist/>", "app": True, "failure": None,
        "damaged": ["Payload/Lamp.app/a"], "found": None})
    other = cbor({"folder": "", "info": None, "localized": {}, "localizations": [], "images": [], "profile": None, "app": False,
                  "failure": 3, "damaged": [], "found": {"kind": 1, "names": ["a", "b"], "count": 2, "payload": False}})
    artwork = cbor({"icons": [57, 120], "launchImages": [[640, 960]],
                    "icon": {"width": 2, "height": 2, "pixels": bytes(16)}})

    def message(word, content):
        return f"{word} {len(content)}\n".encode() + content

    answers = {
        "review": b"read 10\nread 1000\n" + message("review", review), "review alone": review,
        "inspection": message("gathered", gathered) + message("artwork", artwork), "facts alone": gathered,
        "artwork alone": artwork, "another file": message("gathered", other), "failure": b"read 5\nfailure 3\n"}
    for name, content in answers.items():
        (folder / name.replace(" ", "-")).write_bytes(content)


PROJECT = """// !$*UTF8*$!
{ objects = {
 T1 = {isa = PBXNativeTarget; buildConfigurationList = L1; name = "Lamp"; };
 L1 = {isa = XCConfigurationList; buildConfigurations = (C1 /* Debug */,); };
 C1 = {isa = XCBuildConfiguration; buildSettings = {ASSETCATALOG_COMPILER_APPICON_NAME = AppIcon; SDKROOT = iphoneos; }; };
}; }
"""
CONFIGURED = """{ objects = {
 P = {isa = PBXProject; mainGroup = G; buildConfigurationList = L0; };
 G = {isa = PBXGroup; children = (F,); sourceTree = "<group>"; };
 F = {isa = PBXFileReference; path = Config/App.xcconfig; sourceTree = "<group>"; };
 T = {isa = PBXNativeTarget; name = Lamp; buildConfigurationList = L1; };
 L1 = {isa = XCConfigurationList; buildConfigurations = (C1,); };
 C1 = {isa = XCBuildConfiguration; name = Debug; baseConfigurationReference = F; };
}; }
"""
ICON_LIST = json.dumps({"images": [
    {"idiom": "universal", "platform": "ios", "size": "1024x1024", "filename": "a.png"},
    {"idiom": "universal", "platform": "ios", "size": "1024x1024", "appearances": [
        {"appearance": "luminosity", "value": "tinted"}]}], "info": {"author": "xcode", "version": 1}})
MANIFEST = ('<manifest xmlns:android="http://schemas.android.com/apk/res/android"><application android:icon="@mipmap/ic_lamp" '
            'android:roundIcon="@mipmap/ic_round"/></manifest>')
ADAPTIVE = ('<adaptive-icon xmlns:android="http://schemas.android.com/apk/res/android"><background '
            'android:drawable="@color/ground"/><foreground android:drawable="@mipmap/ic_front"/></adaptive-icon>')
EXPO = {"expo": {"icon": "./assets/icon.png", "ios": {"icon": {"dark": "./a/d.png"}}, "android": {
    "adaptiveIcon": {"foregroundImage": "./a/f.png", "backgroundColor": "#fff"}}, "web": {"favicon": "./a/w.png"}}}
ICON = struct.pack("<HHHBBBBHHII", 0, 1, 1, 1, 1, 0, 0, 1, 32, 48, 22) + struct.pack(
    "<IiiHHIIiiII", 40, 1, 2, 1, 32, 0, 8, 0, 0, 0, 0) + bytes(8)
TREES = {
    "xcode": {"Lamp.xcodeproj/project.pbxproj": PROJECT, "Lamp/Assets.xcassets/AppIcon.appiconset/Contents.json": ICON_LIST},
    "configured": {"Lamp.xcodeproj/project.pbxproj": CONFIGURED, "Lamp/Assets.xcassets/Lamp.appiconset/Contents.json": ICON_LIST,
                   "Config/App.xcconfig": '#include "B.xcconfig"\nASSETCATALOG_COMPILER_APPICON_NAME = $(A)p // b\n',
                   "Config/B.xcconfig": "A = Lam\n"},
    "flutter": {"pubspec.yaml": "name: lamp\nflutter:\n  uses-material-design: true\n",
                "android/app/src/main/AndroidManifest.xml": MANIFEST, "ios/Runner.xcodeproj/project.pbxproj": PROJECT},
    "gradle": {"settings.gradle": "include ':app'", "app/src/main/AndroidManifest.xml": MANIFEST,
               "app/build.gradle": "android { productFlavors { demo { } } }"},
    "android": {"res/mipmap-anydpi-v26/ic_launcher.xml": ADAPTIVE, "res/values/colors.xml": "<resources/>",
                "src/main/AndroidManifest.xml": MANIFEST},
    "expo": {"app.json": json.dumps(EXPO), "package.json": json.dumps({"dependencies": {"expo": "1"}})},
    "electron": {"package.json": json.dumps({"devDependencies": {"electron": "1"}, "build": {
        "directories": {"buildResources": "res"}}})},
    "builder": {"package.json": json.dumps({"devDependencies": {"electron": "1"}}), "electron-builder.yml":
                "directories:\n  buildResources: res\nmac:\n  icon: 'a.icns' # b\nwin:\n  icon: a\nlinux:\n  icon: art\n"},
    "layers of cordova": {"config.xml": '<widget><platform name="android"><icon foreground="f.png" background="b.png" '
                                        'monochrome="m.png" density="hdpi"/></platform></widget>'},
    "cordova": {"config.xml": '<widget><platform name="ios"><icon src="a.png" width="1024"/></platform></widget>',
                "manifest.json": "{}"},
    "tauri": {"src-tauri/tauri.conf.json": json.dumps({"bundle": {"icon": ["icons/icon.png", "icons/icon.ico"]}})},
    "maui": {"Lamp.csproj": "<Project><PropertyGroup><UseMaui>true</UseMaui></PropertyGroup></Project>"},
    "capacitor": {"capacitor.config.json": "{}", "ios/App/App.xcodeproj/project.pbxproj": PROJECT},
    "web": {"site.webmanifest": json.dumps({"icons": [{"src": "a.png", "sizes": "192x192", "type": "image/png",
                                                       "purpose": "maskable"}]}), "favicon.ico": ICON, "a.png": b"\x89PNG"},
    "mac": {"Lamp.icns": b"icns" + struct.pack(">I", 24) + b"ic10" + struct.pack(">I", 16) + b"\x89PNG\r\n\x1a\n"},
    "composer": {"Lamp.icon/icon.json": json.dumps({"groups": [{"layers": [{"image-name": "a.png", "name": "a"}]}],
                                                    "supported-platforms": {"squares": "shared"}})},
    "layers": {"Lamp.solidimagestack/Contents.json": json.dumps({"layers": [{"filename": "A.solidimagestacklayer"}]}),
               "Lamp.brandassets/Contents.json": json.dumps({"assets": [{"size": "400x240", "filename": "a.imagestack"}]})},
}


def seed_trees(folder):
    """Projects of each kind and folders of icons, a few files each."""
    folder.mkdir(parents=True, exist_ok=True)
    for name, files in TREES.items():
        parts = [path.encode() + b"\n" + (text.encode() if isinstance(text, str) else text) for path, text in files.items()]
        (folder / name).write_bytes(b"\n====\n".join(parts))


def main():
    out = Path(sys.argv[1])
    seed(out / "fuzz_archive", "validator/make_archives.py", "*.zip")
    seed(out / "fuzz_archive", "validator/make_packages.py", "*.ipa")
    seed(out / "fuzz_asset_catalog", "validator/make_catalogs.py", "*")
    seed(out / "fuzz_binary", "validator/make_binaries.py", "*")
    seed(out / "fuzz_binary", "validator/make_binaries.py", "*", "compiled")
    seed(out / "fuzz_code_signature", "validator/make_signatures.py", "*")
    seed(out / "fuzz_code_signature", "validator/make_signatures.py", "*", "parts")
    seed(out / "fuzz_code_signature", "validator/make_provisioning.py", "*")
    seed(out / "fuzz_property_list", "validator/make_property_lists.py", "*.plist")
    seed(out / "fuzz_signed_message", "validator/make_profiles.py", "*.mobileprovision")
    seed(out / "fuzz_signed_message", "validator/make_profiles.py", "*.mobileprovision", "forms")
    seed(out / "fuzz_apple_png", "validator/make_pictures.py", "*.png")
    seed(out / "fuzz_picture", "pictures/make_pictures.py", "*")
    seed_answers(out / "fuzz_reader_answer")
    seed_trees(out / "fuzz_icon_project")
    seed_colors(out / "fuzz_color")
    seed_models(out / "fuzz_model_list")


if __name__ == "__main__":
    main()
