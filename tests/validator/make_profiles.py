#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: make_profiles.py FOLDER   Provisioning profiles signed by a certificate made for the moment, named for form or fault."""

import plistlib
import subprocess
import sys
import tempfile
from pathlib import Path


def profile(identifier, devices=()):
    content = {"Name": "A profile", "Entitlements": {"application-identifier": f"ABCDE12345.{identifier}"}}
    if devices:
        content["ProvisionedDevices"] = list(devices)
    return plistlib.dumps(content)


class Signer:
    """A throw-away certificate authority of one certificate."""

    def __init__(self, folder):
        self.folder = Path(folder)
        self.run("req", "-x509", "-newkey", "rsa:2048", "-nodes", "-subj", "/CN=Test only", "-days", "2",
                 "-keyout", "key.pem", "-out", "certificate.pem")

    def run(self, *arguments, **how):
        return subprocess.run(["openssl", *arguments], cwd=self.folder, check=True, capture_output=True, **how).stdout

    def sign(self, content, *options, form="DER"):
        return self.run("cms", "-sign", "-binary", "-nodetach", "-signer", "certificate.pem", "-inkey", "key.pem",
                        "-outform", form, *options, input=content)

    def encrypt(self, content):
        return self.run("cms", "-encrypt", "-binary", "-outform", "DER", "certificate.pem", input=content)


def main():
    out = Path(sys.argv[1])
    text = profile("com.example.app", ["0123456789abcdef"])
    with tempfile.TemporaryDirectory() as folder:
        signer = Signer(folder)
        signed = signer.sign(text)
        indefinite = signer.sign(text * 40, "-stream")
        assert indefinite[:2] == b"\x30\x80"
        profiles = {
            "signed": signed,
            "signed, indefinite lengths": indefinite,
            "signed, of non-ASCII text": signer.sign("Équipe com.example.app".encode()),
            "signed, of utf-16 text": signer.sign("com.example.app".encode("utf-16-le")),
            "signed, of nothing": signer.sign(b""),
            "signed with damaged content": signed.replace(b"com.example.app", b"com.exemple.app"),
            "signature apart": signer.run("cms", "-sign", "-binary", "-signer", "certificate.pem", "-inkey", "key.pem",
                                          "-outform", "DER", input=text),
            "encrypted": signer.encrypt(text),
            "pem": signer.sign(text, form="PEM"),
            "plain xml": text,
            "cut off": signed[: len(signed) // 2],
            "length beyond the end": b"\x30\x84\x7f\xff\xff\xff" + signed[4:],
            "noise": bytes(range(256)) * 8,
            "empty": b"",
        }
    for name, data in profiles.items():
        (out / f"{name}.mobileprovision").write_bytes(data)


if __name__ == "__main__":
    main()
