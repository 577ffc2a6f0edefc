# SPDX-License-Identifier: MIT
"""A signed package that follows all rules of the store, to be changed before it is written."""

import plistlib
import zipfile

from catalog_builder import app_icon, catalog
from macho_builder import DYLIB, MachO
from make_provisioning import TEAM, profile, signed
from signing import Signer, seal

APP = "Payload/Lamp.app"
BULB = f"{APP}/Frameworks/Bulb.framework"
SHARE = f"{APP}/PlugIns/Share.appex"
ORIENTATIONS = [f"UIInterfaceOrientation{name}" for name in ("Portrait", "PortraitUpsideDown", "LandscapeLeft", "LandscapeRight")]


class Link(str):
    """The target of a symbolic link, in the place of a file's content."""


def linked(name):
    entry = zipfile.ZipInfo(name)
    entry.create_system = 3
    entry.external_attr = 0o120777 << 16
    return entry


class Package:
    """A package for the store. Every attribute may be changed before `write`."""

    def __init__(self, identity):
        self.identity = identity
        common = {"CFBundleShortVersionString": "1.2.0", "CFBundleVersion": "7", "MinimumOSVersion": "15.0", "DTXcode": "2600",
                  "CFBundleSupportedPlatforms": ["iPhoneOS"], "DTPlatformName": "iphoneos", "DTPlatformVersion": "26.0"}
        icons = {"CFBundlePrimaryIcon": {"CFBundleIconName": "AppIcon", "CFBundleIconFiles": ["AppIcon60x60"]}}
        self.info = common | {
            "CFBundleIdentifier": "com.example.lamp", "CFBundleExecutable": "Lamp", "CFBundlePackageType": "APPL",
            "CFBundleName": "Lamp", "UIDeviceFamily": [1, 2], "CFBundleIcons": icons, "CFBundleIcons~ipad": icons,
            "UISupportedInterfaceOrientations": ORIENTATIONS, "UILaunchScreen": {}, "ITSAppUsesNonExemptEncryption": False}
        self.bulb_info = common | {"CFBundleIdentifier": "com.example.bulb", "CFBundleExecutable": "Bulb",
                                   "CFBundlePackageType": "FMWK"}
        self.share_info = common | {"CFBundleIdentifier": "com.example.lamp.share", "CFBundleExecutable": "Share",
                                    "CFBundlePackageType": "XPC!"}
        self.code = MachO()
        self.bulb = MachO(filetype=DYLIB)
        self.share = MachO()
        for code in (self.code, self.bulb, self.share):
            code.signature_room = 0x6000
        self.icons = app_icon()
        self.privacy = {"NSPrivacyTracking": False, "NSPrivacyAccessedAPITypes": [
            {"NSPrivacyAccessedAPIType": "NSPrivacyAccessedAPICategoryUserDefaults",
             "NSPrivacyAccessedAPITypeReasons": ["CA92.1"]}]}
        self.bulb_privacy = None
        self.is_for_mac = False
        self.mac_privacy = None
        self.profile = profile(identity)
        self.share_profile = profile(identity)
        self.share_profile["Entitlements"] = self.share_profile["Entitlements"] | {
            "application-identifier": f"{TEAM}.com.example.lamp.share"}
        self.entitlements = {"application-identifier": f"{TEAM}.com.example.lamp", "get-task-allow": False,
                             "com.apple.developer.team-identifier": TEAM}
        self.files = {"en.lproj/Localizable.strings": b"\"on\" = \"On\";", "de.lproj/Localizable.strings": b"\"on\" = \"An\";"}
        self.roots = {}
        self.sign_app = True
        self.signer = {}
        self.executable = "Lamp"
        self.bulb_path = BULB
        self.change_seal = None  # changes the app's seal before it is signed
        self.after = None  # changes the package after signing

    def sealed(self, folder, files, info, code, name, entitlements, sign=True, **changes):
        """The files of a bundle, signed; paths are those of the package."""
        executable = info.get("CFBundleExecutable", "")
        files = files | {"Info.plist": plistlib.dumps(info)}
        if sign and executable:
            signer = Signer(self.identity, name, entitlements)
            signer.info = files["Info.plist"]
            signer.seal = seal(files, executable)
            if self.change_seal and folder == APP:
                signer.seal = self.change_seal(signer.seal)
            for key, value in changes.items():
                setattr(signer, key, value)
            code.sign = signer
            files["_CodeSignature/CodeResources"] = signer.seal
        if executable:
            files[executable] = code.bytes() if isinstance(code, MachO) else code
        return {f"{folder}/{path}": content for path, content in files.items()}

    def mac_contents(self):
        """The same app for the Mac, without extensions; with a framework only if it has a privacy manifest."""
        info = self.info | {"CFBundleSupportedPlatforms": ["MacOSX"], "DTPlatformName": "macosx", "LSMinimumSystemVersion": "13.0"}
        files = {"Info.plist": plistlib.dumps(info), "Resources/en.lproj/Localizable.strings": b""}
        if self.profile is not None:
            files["embedded.provisionprofile"] = signed(self.identity, self.profile)
        if self.mac_privacy is not None:
            files["Resources/PrivacyInfo.xcprivacy"] = plistlib.dumps(self.mac_privacy)
        links = {}
        if self.bulb_privacy is not None:
            files |= self.mac_framework()
            bulb = "Frameworks/Bulb.framework"
            links = {f"{bulb}/Versions/Current": "A", f"{bulb}/Bulb": "Versions/Current/Bulb",
                     f"{bulb}/Resources": "Versions/Current/Resources"}
        signer = Signer(self.identity, "com.example.lamp", self.entitlements)
        signer.info = files["Info.plist"]
        signer.seal = seal(files, "MacOS/Lamp", links)
        code = MachO(platform="macos", minimum="13.0")
        code.encryption = None
        code.signature_room = 0x6000
        code.sign = signer
        files |= {"MacOS/Lamp": code.bytes(), "_CodeSignature/CodeResources": signer.seal}
        files |= {path: Link(target) for path, target in links.items()}
        return {f"{APP}/Contents/{path}": content for path, content in files.items()}

    def mac_framework(self):
        """The framework as the Mac has it: in a folder for its version."""
        info = {key: value for key, value in self.bulb_info.items() if key != "MinimumOSVersion"}
        files = {"Resources/Info.plist": plistlib.dumps(info | {"LSMinimumSystemVersion": "13.0"}),
                 "Resources/PrivacyInfo.xcprivacy": plistlib.dumps(self.bulb_privacy)}
        signer = Signer(self.identity, "com.example.bulb")
        signer.info = files["Resources/Info.plist"]
        signer.seal = seal(files, "Bulb")
        code = MachO(filetype=DYLIB, platform="macos", minimum="13.0")
        code.encryption = None
        code.signature_room = 0x6000
        code.sign = signer
        files |= {"Bulb": code.bytes(), "_CodeSignature/CodeResources": signer.seal}
        return {f"Frameworks/Bulb.framework/Versions/A/{path}": content for path, content in files.items()}

    def contents(self):
        if self.is_for_mac:
            everything = self.mac_contents()
            if self.after:
                self.after(everything)
            return everything
        bulb_files = {} if self.bulb_privacy is None else {"PrivacyInfo.xcprivacy": plistlib.dumps(self.bulb_privacy)}
        nested = self.sealed(self.bulb_path, bulb_files, self.bulb_info, self.bulb, "com.example.bulb", None)
        share_files = {"embedded.mobileprovision": signed(self.identity, self.share_profile)}
        share_files |= {path[len(SHARE) + 1:]: content for path, content in nested.items() if path.startswith(SHARE)}
        nested |= self.sealed(SHARE, share_files, self.share_info, self.share, "com.example.lamp.share",
                              {"application-identifier": f"{TEAM}.com.example.lamp.share"})
        files = {path[len(APP) + 1:]: content for path, content in nested.items()} | self.files | {"PkgInfo": b"APPL????"}
        if self.icons is not None:
            files["Assets.car"] = catalog(self.icons).bytes()
        if self.privacy is not None:
            files["PrivacyInfo.xcprivacy"] = plistlib.dumps(self.privacy)
        if self.profile is not None:
            files["embedded.mobileprovision"] = signed(self.identity, self.profile)
        everything = self.sealed(APP, files, self.info, self.code, "com.example.lamp", self.entitlements, self.sign_app,
                                 **self.signer) | self.roots
        if self.after:
            self.after(everything)
        return everything

    def write(self, path):
        with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as archive:
            for name, content in sorted(self.contents().items()):
                archive.writestr(linked(name) if isinstance(content, Link) else name, content)
