#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: make_profiles.py FOLDER [forms]   Provisioning profiles signed by a temporary certificate, named for their form or
fault; with `forms` the same small text in every possible form of a message, as seeds."""

import plistlib
import shutil
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
    """A temporary certificate authority with one certificate."""

    def __init__(self, folder, *key):
        self.folder = Path(folder)
        self.run("req", "-x509", "-newkey", *(key or ["rsa:2048"]), "-nodes", "-subj", "/CN=Test only", "-days", "2",
                 "-keyout", "key.pem", "-out", "certificate.pem")

    def run(self, *arguments, **how):
        return subprocess.run(["openssl", *arguments], cwd=self.folder, check=True, capture_output=True, **how).stdout

    def sign(self, content, *options, form="DER"):
        return self.run("cms", "-sign", "-binary", "-nodetach", "-signer", "certificate.pem", "-inkey", "key.pem",
                        "-outform", form, *options, input=content)

    def encrypt(self, content):
        return self.run("cms", "-encrypt", "-binary", "-outform", "DER", "certificate.pem", input=content)


def forms(out):
    text = b"<plist><key>ProvisionedDevices</key></plist>"
    made = {}
    with tempfile.TemporaryDirectory() as rsa, tempfile.TemporaryDirectory() as curve:
        signer, small = Signer(rsa, "rsa:1024"), Signer(curve, "ec", "-pkeyopt", "ec_paramgen_curve:P-256")
        shutil.copy(small.folder / "certificate.pem", signer.folder / "second.pem")
        shutil.copy(small.folder / "key.pem", signer.folder / "second-key.pem")
        second = "-signer", "second.pem", "-inkey", "second-key.pem"
        for name, options in {
            "rsa": [], "no attributes": ["-noattr"], "no certificates": ["-nocerts"], "no abilities": ["-nosmimecap"],
            "key named": ["-keyid"], "sha-1": ["-md", "sha1"], "sha-512": ["-md", "sha512"], "two certificates": ["-certfile", "second.pem"],
            "two signers": second, "indefinite": ["-stream"], "indefinite, two signers": ["-stream", *second],
            "other content type": ["-econtent_type", "1.2.840.113549.1.9.16.1.4"], "advanced": ["-cades"],
            "pss": ["-keyopt", "rsa_padding_mode:pss"], "receipt asked for": ["-receipt_request_all", "-receipt_request_to", "a@example.com"],
        }.items():
            made[name] = signer.sign(text, *options)
        made["curve"] = small.sign(text)
        made["curve, no attributes"] = small.sign(text, "-noattr", "-nocerts")
        made["within another"] = small.sign(small.sign(text))
        made["older standard"] = signer.run("smime", "-sign", "-binary", "-nodetach", "-signer", "certificate.pem", "-inkey", "key.pem",
                                            "-outform", "DER", input=text)
        made["data only"] = signer.run("cms", "-data_create", "-outform", "DER", input=text)
        made["digested"] = signer.run("cms", "-digest_create", "-outform", "DER", input=text)
        made["encrypted by key"] = signer.run("cms", "-EncryptedData_encrypt", "-secretkey", "00" * 16, "-aes128", "-outform", "DER",
                                              input=text)
        made["certificates only"] = signer.run("crl2pkcs7", "-nocrl", "-certfile", "certificate.pem", "-outform", "DER")
    for name, data in made.items():
        (out / f"form, {name}.mobileprovision").write_bytes(data)


def main():
    out = Path(sys.argv[1])
    if "forms" in sys.argv[2:]:
        forms(out)
        return
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
