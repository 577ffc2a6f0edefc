#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: make_rule_packages.py FOLDER [NAME...]   Signed packages: one that follows all rules, and for each rule one that breaks it.

A package that breaks a rule is named for the rule's id, or for several ids if the faults only occur together; other words
distinguish several ways to break a rule.
"""

import plistlib
import sys
from pathlib import Path

from catalog_builder import app_icon, rendition
from macho_builder import DYLIB, BUNDLE, MachO, patched_bytes
from make_provisioning import TEAM, profile, signed
from rule_package import APP, BULB, ORIENTATIONS, SHARE, Link, Package
from signing import SHA1, Identity, Signer, seal, super_blob

def with_pictures(entries, megabytes=5):
    """The catalogue's entries, and so many of a megabyte that it does not come in one piece."""
    return entries + [(facet, numbers, entry + bytes(1 << 20)) for facet, numbers, entry in
                      (rendition(f"picture {n}", f"{n}.png", 900, 900, 2, part=181) for n in range(megabytes))]


def with_rows(rows):
    """A function that puts the rows into the newer list of the app's seal."""
    def change(sealed):
        at = sealed.rindex(b"</dict>", 0, sealed.index(b"<key>rules</key>"))
        return sealed[:at] + rows + sealed[at:]
    return change


# About two megabytes, of files that may be missing.
LONG_ROWS = b"".join(b"<key>%d.strings</key><dict><key>optional</key><true/></dict>" % n for n in range(30_000))


def nested_twice(blobs):
    """The blobs of a signature, and a signature with another in it."""
    return blobs + [(9, super_blob([(0, super_blob(blobs))]))]


def without(dictionary, *keys):
    return {key: value for key, value in dictionary.items() if key not in keys}


def for_mac(sandbox, **changes):
    def change(package):
        package.is_for_mac = True
        if sandbox is not None:
            package.entitlements["com.apple.security.app-sandbox"] = sandbox
            package.profile["Entitlements"]["com.apple.security.app-sandbox"] = True
        for name, value in changes.items():
            setattr(package, name, value)
    return change


def languages(**tables):
    """The languages' own values for the Info.plist."""
    return lambda package: package.files.update(
        {f"{language}.lproj/InfoPlist.strings": content for language, content in tables.items()})


def breaking(identity, other, developer, ended):
    """From a name to a function that changes a good package."""
    def info(**changes):
        return lambda package: package.info.update(changes)

    def drop(*keys):
        def change(package):
            package.info = without(package.info, *keys)
        return change

    def replace(path, content):
        def change(package):
            package.after = lambda files: files.update({path: content})
        return change

    def code(which="code", **changes):
        def change(package):
            for name, value in changes.items():
                setattr(getattr(package, which), name, value)
        return change

    def icons(entries):
        return lambda package: setattr(package, "icons", entries)

    def sealed_rows(rows):
        return lambda package: setattr(package, "change_seal", with_rows(rows))

    def signer(**changes):
        return lambda package: package.signer.update(changes)

    def entitlement(**claims):
        return lambda package: package.entitlements.update({key.replace("__", "-"): value for key, value in claims.items()})

    def by(someone, in_profile=None):
        """Signed by another key, whose certificate is in the profile or is not."""
        def change(package):
            package.signer["identity"] = someone
            package.profile["DeveloperCertificates"] = [(in_profile or someone).leaf]
        return change

    def byte(path):
        def change(package):
            def alter(files):
                files[path] = patched_bytes(files[path], len(files[path]) // 2, bytes([files[path][len(files[path]) // 2] ^ 1]))
            package.after = alter
        return change

    def remove(path):
        def change(package):
            package.after = lambda files: files.pop(path)
        return change

    def new_kind(package):
        package.share_info["EXAppExtensionAttributes"] = {"EXExtensionPointIdentifier": "com.example.point"}

    def moved_framework(name):
        def change(package):
            package.bulb_path = f"{APP}/Frameworks/{name}.framework"
        return change

    def store_swift(package, minimum="15.0", twice=False):
        library = MachO(filetype=DYLIB, minimum=minimum)
        library.signature_room = 0x6000
        library.sign = Signer(package.identity, "libswiftCore")
        package.files["Frameworks/libswiftCore.dylib"] = library.bytes()
        if twice:
            package.roots["SwiftSupport/iphoneos/libswiftCore.dylib"] = library.bytes()

    def loose(package):
        library = MachO(filetype=DYLIB)
        library.signature_room = 0x6000
        library.sign = Signer(package.identity, "libloose")
        package.files["libloose.dylib"] = library.bytes()

    def other_team(package):
        package.profile["TeamIdentifier"] = ["OTHER12345"]

    def profile_changes(**changes):
        return lambda package: package.profile.update(changes)

    def profile_entitlements(**changes):
        return lambda package: package.profile["Entitlements"].update(
            {key.replace("__", "-"): value for key, value in changes.items()})

    def debuggable(package):
        package.entitlements["get-task-allow"] = True
        package.profile["Entitlements"]["get-task-allow"] = True

    def runs_on(system):
        def change(package):
            for information in (package.info, package.bulb_info, package.share_info):
                information["MinimumOSVersion"] = system
            for binary in (package.code, package.bulb, package.share):
                binary.minimum = system
        return change

    def old_with_arm64(package):
        package.info |= {"MinimumOSVersion": "6.1", "UIRequiredDeviceCapabilities": ["arm64"]}

    def private_framework(package):
        package.code.libraries.append(("/System/Library/PrivateFrameworks/Bulb.framework/Bulb", "needed"))

    def listed_kit_without_receipt(package):
        moved_framework("Alamofire")(package)
        package.bulb_privacy = {"NSPrivacyTracking": False}

    def byte_of_entitlements(package):
        def alter(files):
            code = files[f"{APP}/Lamp"]
            place = code.index(b"<key>application-identifier")
            files[f"{APP}/Lamp"] = patched_bytes(code, place + 5, b"b")
        package.after = alter

    def long_privacy_manifest(package):
        package.code.imports = ["_statfs"]
        package.privacy["LampText"] = "x" * (4 << 20)

    small = app_icon(size=512, dark=False)
    return {
        "icon-phone": icons(app_icon(idioms=("pad",))),
        "icon-pad": icons(app_icon(idioms=("phone",))),
        "icon-marketing icon-phone icon-pad": icons(small),
        "icon-pad-pro": icons(app_icon(idioms=("phone",)) + [
            rendition("AppIcon", "pad.png", 152, 152, scale=2, idiom="pad")]),
        "icon-name": drop("CFBundleIcons", "CFBundleIcons~ipad"),
        "icon-name wrong": info(CFBundleIcons={"CFBundlePrimaryIcon": {"CFBundleIconName": "Other"}}),
        "icon-pad a JPEG": icons(app_icon(idioms=("phone",), pixel_format="JPEG", dark=False)),
        "icon-opaque": icons(app_icon(opaque=False)),
        "icon-opaque in a long catalogue": icons(with_pictures(app_icon(opaque=False))),
        "pad-orientations": info(UISupportedInterfaceOrientations=ORIENTATIONS[:1]),
        "launch-screen": drop("UILaunchScreen"),
        "package-type": info(CFBundlePackageType="FMWK"),
        "minimum-system": runs_on("14.5"),
        "arm64-capability minimum-system": runs_on("10.3"),
        "nested-version": lambda package: [information.update(CFBundleShortVersionString="1.2 beta")
                                           for information in (package.info, package.share_info)],
        "nested-version missing": lambda package: package.bulb_info.pop("CFBundleShortVersionString"),
        "extension-version": lambda package: package.share_info.update(CFBundleVersion="8"),
        "identifier-once": lambda package: package.bulb_info.update(CFBundleIdentifier="com.example.lamp"),
        "nested-identifier profile-identifier": lambda package: package.share_info.update(
            CFBundleIdentifier="com.example.share"),
        "sdk-age": code(sdk="18.5"),
        "executable": code("bulb", more_commands=[b"\x32\0\0\0\x08\0\0\0"]),
        "simulator-code": code("bulb", platform="ios-simulator"),
        "alignment": code("bulb", segments=[("__ODD", 0x200000123, 0x1000, 0x4000, 0x100)]),
        "bitcode": code("bulb", segments=[("__LLVM", 0x200000000, 0x4000, 0x4000, 0x100)]),
        "encryption-info": code(encryption=None),
        "encryption-info enciphered": code(encryption=(0x4000, 0x4000, 1)),
        "web-view": code(imports=["_OBJC_CLASS_$_UIWebView"]),
        "framework-minimum": lambda package: package.bulb_info.pop("MinimumOSVersion"),
        "framework-system": code("bulb", minimum="17.0"),
        "framework-type": code("bulb", filetype=BUNDLE),
        "swift-entry": new_kind,
        "loose-code": loose,
        "nested-frameworks": lambda package: setattr(package, "bulb_path", f"{SHARE}/Frameworks/Bulb.framework"),
        "swift-support": store_swift,
        "swift-support newer": lambda package: store_swift(package, minimum="17.0", twice=True),
        "signed": signer(identity=None, team="", flags=2),
        "signed not at all": lambda package: setattr(package, "sign_app", False),
        "signature": byte(f"{APP}/Lamp"),
        "signature nested": signer(change=nested_twice),
        "signature-digest": signer(kinds=(SHA1,)),
        "signature seal": byte(f"{BULB}/Bulb"),
        "seal": replace(f"{APP}/de.lproj/Localizable.strings", b"changed"),
        "seal Info.plist": lambda package: setattr(package, "after", lambda files: files.update(
            {f"{APP}/Info.plist": plistlib.dumps(package.info | {"CFBundleName": "Lump"})})),
        "seal package-type unreadable": replace(f"{APP}/Info.plist", b"<plist><dict><key>CFBundleNa"),
        "seal embedded": lambda package: setattr(package, "after", lambda files: files.update(
            {f"{APP}/embedded.mobileprovision": signed(package.identity, package.profile | {"Name": "Another"})})),
        "seal with more rows than can be compared": sealed_rows(
            b"<key>m</key><dict><key>optional</key><true/></dict>" * 500_001),
        "seal of files that are not there": sealed_rows(b"".join(b"<key>%d</key><dict/>" % n for n in range(20_000))),
        "seal missing": remove(f"{APP}/PrivacyInfo.xcprivacy"),
        "seal more": replace(f"{APP}/more.txt", b"more"),
        "certificate-kind": by(developer),
        "certificate-validity": by(ended),
        "certificate-profile": by(identity, in_profile=other),
        "profile": lambda package: setattr(package, "profile", None),
        "profile-kind": profile_changes(ProvisionedDevices=["device"]),
        "profile-expiry": profile_changes(ExpirationDate=plistlib.loads(
            b"<plist><date>2026-09-01T00:00:00Z</date></plist>")),
        "profile-identifier entitlements": lambda package: package.profile["Entitlements"].update(
            {"application-identifier": f"{TEAM}.com.example.*.other"}),
        "team": other_team,
        "entitlements": entitlement(**{"com.apple.developer.healthkit": True}),
        "debuggable profile-kind": debuggable,
        "push": code(selectors=["registerForRemoteNotifications"]),
        "purpose": code(imports=["_OBJC_CLASS_$_AVCaptureDevice"]),
        "purpose-likely": code(imports=["_OBJC_CLASS_$_EKEventStore"]),
        "purpose-likely microphone": code(imports=["_OBJC_CLASS_$_AVAudioRecorder"]),
        "purpose-likely local network": code(imports=["_OBJC_CLASS_$_NSNetServiceBrowser"]),
        "purpose-vague": info(NSCameraUsageDescription="Needs camera"),
        "purpose-vague unfilled": info(NSCameraUsageDescription="$(PRODUCT_NAME) would like to use the camera."),
        "purpose-vague in a language": languages(
            en=b'NSCameraUsageDescription = "To see how bright it is.";',
            de=b'NSCameraUsageDescription = "Kamera";'),
        "purpose-empty": info(NSCameraUsageDescription=" "),
        "purpose-empty in a language": languages(en=b'NSCameraUsageDescription = "To see how bright it is.";',
                                                 de=b'"NSCameraUsageDescription" = "";'),
        "required-reason": code(imports=["_statfs"]),
        "required-reason in a framework": code("bulb", selectors=["systemUptime"]),
        "privacy-form": lambda package: package.privacy.update({"NSPrivacyTracking": True}),
        "privacy-form reason": lambda package: package.privacy["NSPrivacyAccessedAPITypes"].append(
            {"NSPrivacyAccessedAPIType": "NSPrivacyAccessedAPICategoryDiskSpace", "NSPrivacyAccessedAPITypeReasons": ["X"]}),
        "privacy-form unknown key": lambda package: package.privacy["NSPrivacyAccessedAPITypes"][0].update({"Reason": "CA92.1"}),
        "privacy-form unknown key of data": lambda package: package.privacy.update({"NSPrivacyCollectedDataTypes": [
            {"NSPrivacyCollectedDataType": "NSPrivacyCollectedDataTypeName", "NSPrivacyCollectedDataTypePurposes": ["A"],
             "NSPrivacyCollectedDataTypeLinks": True}]}),
        "listed-kit listed-kit-signature": moved_framework("Alamofire"),
        "listed-kit-signature": listed_kit_without_receipt,
        "arm64-minimum minimum-system framework-system": old_with_arm64,
        "private-names": private_framework,
        "private-names symbol": code("bulb", imports=["_MGCopyAnswer"]),
        "seal a file named like the link": replace(f"{APP}/CodeResources", b"more"),
        "seal a link to elsewhere": replace(f"{APP}/CodeResources", Link("../../elsewhere")),
        "mac-sandbox": for_mac(None),
        "privacy-form of a Mac app": for_mac(True, mac_privacy={"NSPrivacyTracking": True}),
        "privacy-form of a Mac framework": for_mac(True, bulb_privacy={"NSPrivacyTracking": True}),
        "seal of a Mac framework": for_mac(True, bulb_privacy={}, after=lambda files: files.update(
            {f"{APP}/Contents/Frameworks/Bulb.framework/Versions/A/Resources/more.txt": b"more"})),
        "mac-profile": for_mac(True, profile=None),
        "signature entitlements by a byte": byte_of_entitlements,
        "export-compliance": drop("ITSAppUsesNonExemptEncryption"),
        "background-processing": info(UIBackgroundModes=["processing"]),
        "arbitrary-loads": info(NSAppTransportSecurity={"NSAllowsArbitraryLoads": True}),
        "localization-holes": lambda package: package.files.update({"de.lproj/More.strings": b""}),
        "facebook": info(FacebookAppID="12345"),
        "unread Info.plist": info(LampText="x" * (4 << 20)),
        "unread provisioning": profile_changes(LampText="x" * (4 << 20)),
        "unread privacy manifest": long_privacy_manifest,
    }


def keeping():
    """Packages at the limits that follow all rules."""
    def web_view_selector(package):
        package.code.selectors = ["UIWebView"]

    def declared(package):
        package.code.imports = ["_OBJC_CLASS_$_NSUserDefaults"]

    def purpose(package):
        package.code.imports = ["_OBJC_CLASS_$_AVCaptureDevice"]
        package.info["NSCameraUsageDescription"] = "The lamp sees how bright it is."

    def purpose_in_languages(package):
        package.code.imports = ["_OBJC_CLASS_$_AVCaptureDevice"]
        text = {"NSCameraUsageDescription": "The lamp sees how bright it is."}
        languages(en=plistlib.dumps(text, fmt=plistlib.FMT_BINARY), de=plistlib.dumps(text))(package)

    def purpose_from_a_language(package):
        package.info["NSCameraUsageDescription"] = ""
        text = '/* Why */\n"NSCameraUsageDescription" = "The lamp sees how bright it is.";\n'.encode("utf-16")
        languages(en=text, de=text)(package)

    def purpose_in_other_scripts(package):
        languages(en="NSCameraUsageDescription = \"明るさを見ます\";".encode(),
                  de="NSCameraUsageDescription = \"Misst die Helligkeit für Sie.\";".encode())(package)

    def facebook(package):
        package.info["FacebookAppID"] = "12345"
        package.info["CFBundleURLTypes"] = [{"CFBundleURLSchemes": ["lamp", "fb12345"]}]

    def full_screen(package):
        package.info |= {"UIRequiresFullScreen": True, "UISupportedInterfaceOrientations": ORIENTATIONS[:1]}

    def tasks(package):
        package.info |= {"UIBackgroundModes": ["processing"], "BGTaskSchedulerPermittedIdentifiers": ["com.example.lamp.task"]}

    def swift(package):
        library = MachO(filetype=DYLIB)
        library.signature_room = 0x6000
        library.sign = Signer(package.identity, "libswiftCore")
        package.files["Frameworks/libswiftCore.dylib"] = library.bytes()
        package.roots["SwiftSupport/iphoneos/libswiftCore.dylib"] = library.bytes()

    def push(package):
        package.code.selectors = ["registerForRemoteNotifications"]
        package.entitlements["aps-environment"] = "production"
        package.profile["Entitlements"]["aps-environment"] = "production"

    def wildcard(package):
        package.profile["Entitlements"]["application-identifier"] = f"{TEAM}.*"

    def entry(package):
        package.share_info["EXAppExtensionAttributes"] = {"EXExtensionPointIdentifier": "com.example.point"}
        package.share.sections = {"__swift5_entry": bytes(4)}

    def arm64(package):
        package.info["UIRequiredDeviceCapabilities"] = ["arm64"]

    def public_name(package):
        package.code.imports = ["_MGCopyAnswerNot"]
        package.code.libraries.append(("/System/Library/Frameworks/UIKit.framework/UIKit", "needed"))

    def receipt(package):
        package.bulb_path = f"{APP}/Frameworks/Alamofire.framework"
        package.bulb_privacy = {"NSPrivacyTracking": False}
        package.roots["Signatures/Alamofire.xcframework-ios.signature"] = b"signed"

    def old_link(package):
        package.after = lambda files: files.update({f"{APP}/CodeResources": Link("_CodeSignature/CodeResources")})

    def long_catalog(package):
        package.icons = with_pictures(package.icons)

    def long_seal(package):
        package.change_seal = with_rows(LONG_ROWS)

    return {"all": lambda package: None, "a long catalogue": long_catalog, "a long seal": long_seal, "arm64": arm64, "public names": public_name, "a kit with its receipt": receipt,
            "a link to the seal": old_link, "a Mac app": for_mac(True), "a selector of that name": web_view_selector, "declared use": declared,
            "purpose said": purpose, "purpose in languages": purpose_in_languages,
            "purpose from a language": purpose_from_a_language,
            "purpose in other scripts": purpose_in_other_scripts,
            "a Mac framework": for_mac(True, bulb_privacy={"NSPrivacyTracking": False}, mac_privacy={}), "facebook scheme": facebook, "the whole screen": full_screen, "tasks listed": tasks,
            "swift libraries twice": swift, "push with its entitlement": push, "wildcard profile": wildcard,
            "swift entry": entry}


def main():
    out = Path(sys.argv[1])
    identity = Identity()
    other = Identity()
    developer = Identity(common_name="Apple Development: Ann Example (ABCDE12345)")
    ended = Identity(start="20250101000000Z", end="20260901000000Z")
    changes = breaking(identity, other, developer, ended)
    changes |= {f"keeps, {name}": change for name, change in keeping().items()}
    for name in sys.argv[2:] or changes:
        package = Package(identity)
        changes[name](package)
        package.write(out / f"{name}.ipa")


if __name__ == "__main__":
    main()
