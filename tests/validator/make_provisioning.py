#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: make_provisioning.py FOLDER   Provisioning profiles, each named for its kind or fault."""

import datetime
import plistlib
import sys
from pathlib import Path

from signing import Identity

TEAM = "TEAM123456"


def profile(identity, devices=None, all_devices=False, debug=False, **changes):
    """The property list of a profile that fits the identity."""
    entitlements = {"application-identifier": f"{TEAM}.com.example.lamp", "get-task-allow": debug,
                    "com.apple.developer.team-identifier": TEAM, "keychain-access-groups": [f"{TEAM}.*"]}
    listing = {"Name": "Lamp Profile", "UUID": "00112233-4455-6677-8899-aabbccddeeff", "TeamIdentifier": [TEAM],
               "TeamName": "Lamp Works", "ApplicationIdentifierPrefix": [TEAM], "Platform": ["iOS"], "Version": 1,
               "CreationDate": datetime.datetime(2026, 1, 1), "ExpirationDate": datetime.datetime(2027, 6, 1, 12, 30),
               "DeveloperCertificates": [identity.leaf], "Entitlements": entitlements}
    if devices is not None:
        listing["ProvisionedDevices"] = devices
    if all_devices:
        listing["ProvisionsAllDevices"] = True
    if devices is None and not all_devices and not debug:
        entitlements["beta-reports-active"] = True
    return listing | changes


def signed(identity, listing, **options):
    return identity.message(plistlib.dumps(listing), detached=False, **options)


def main():
    out = Path(sys.argv[1])
    identity = Identity()
    profiles = {
        "development": signed(identity, profile(identity, devices=["device-1", "device-2"], debug=True)),
        "ad-hoc": signed(identity, profile(identity, devices=["device-1"])),
        "enterprise": signed(identity, profile(identity, all_devices=True)),
        "app-store": signed(identity, profile(identity)),
        "app-store, lengths indefinite": signed(identity, profile(identity), indefinite=True),
        "plain list": plistlib.dumps(profile(identity)),
        "no list": identity.message(b"text", detached=False),
        "strange kinds": signed(identity, {"Name": 7, "TeamIdentifier": "text", "Entitlements": ["a"],
                                           "ExpirationDate": "tomorrow", "DeveloperCertificates": {"a": 1}}),
    }
    for name, content in profiles.items():
        (out / name).write_bytes(content)


if __name__ == "__main__":
    main()
