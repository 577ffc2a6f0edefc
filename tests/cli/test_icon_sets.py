# SPDX-License-Identifier: MIT
"""usage: test_icon_sets.py LUMORA   What `lumora icons` writes for today's platforms is taken by the platforms' own tools: aapt2
compiles and links the Android resources, icotool reads every picture of the icon files, icns2png those of the Mac's,
gtk-update-icon-cache indexes the Linux tree, and Chromium has nothing against head tags, manifest and icons."""
import functools
import http.server
import json
import os
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import threading
import unittest
from pathlib import Path

LUMORA = Path(sys.argv[1]).resolve()
FRAMEWORK = Path("/usr/share/android-framework-res/framework-res.apk")
LOGO = """<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 100 100">
<circle cx="50" cy="50" r="48" fill="#2a6fdb"/><path d="M30 70L50 25L70 70z" fill="#ffffff"/></svg>"""
MANIFEST = """<manifest xmlns:android="http://schemas.android.com/apk/res/android" package="example.lumora.icons">
<application android:icon="@mipmap/ic_launcher" android:roundIcon="@mipmap/ic_launcher_round">
<meta-data android:name="notification" android:resource="@drawable/ic_notification"/></application></manifest>"""


def run(*arguments, **options):
    return subprocess.run([str(argument) for argument in arguments], check=True, capture_output=True, text=True, **options)


def png_size(file):
    return struct.unpack(">II", file.read_bytes()[16:24])


class Browser:
    """Chromium without a screen, spoken to over two pipes in its debugging language."""

    def __init__(self, profile):
        to_browser, ours = os.pipe()
        theirs, from_browser = os.pipe()

        def place():
            # The numbers that the browser expects; the pipe's own may be among them.
            first, second = os.dup(to_browser), os.dup(from_browser)
            os.dup2(first, 3)
            os.dup2(second, 4)

        self.process = subprocess.Popen(
            ["chromium", "--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--no-first-run",
             "--disable-extensions", "--disable-background-networking", f"--user-data-dir={profile}",
             "--remote-debugging-pipe", "about:blank"],
            preexec_fn=place, close_fds=False, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            env=os.environ | {"HOME": str(profile), "TMPDIR": str(profile)})
        os.close(to_browser)
        os.close(from_browser)
        self.output, self.input = ours, os.fdopen(theirs, "rb", 0)
        self.last = 0
        self.unread = b""
        target = self.ask("Target.createTarget", url="about:blank")["targetId"]
        self.session = self.ask("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]

    def message(self):
        while b"\0" not in self.unread:
            piece = self.input.read(1 << 16)
            if not piece:
                raise EOFError("Chromium has ended")
            self.unread += piece
        message, self.unread = self.unread.split(b"\0", 1)
        return json.loads(message)

    def ask(self, method, **parameters):
        self.last += 1
        call = {"id": self.last, "method": method, "params": parameters}
        if hasattr(self, "session"):
            call["sessionId"] = self.session
        os.write(self.output, json.dumps(call).encode() + b"\0")
        while (answer := self.message()).get("id") != self.last:
            pass
        assert "error" not in answer, answer
        return answer["result"]

    def wait_for(self, event):
        while self.message().get("method") != event:
            pass

    def close(self):
        self.process.terminate()
        self.process.wait()
        self.input.close()
        os.close(self.output)


class Sets(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.work = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.work.cleanup)
        cls.folder = Path(cls.work.name)
        (cls.folder / "logo.svg").write_text(LOGO)
        run(LUMORA, "icons", cls.folder / "logo.svg", "--platform", "adaptive,macos,web,windows,linux", "--flatten", "white",
            "--name", "logo", "--out", cls.folder / "out")
        cls.out = cls.folder / "out"

    def test_android_compiles_and_links_the_resources(self):
        compiled = self.folder / "compiled.zip"
        run("aapt2", "compile", "--dir", self.out / "Android/res", "-o", compiled)
        manifest = self.folder / "AndroidManifest.xml"
        manifest.write_text(MANIFEST)
        package = self.folder / "icons.apk"
        run("aapt2", "link", "-I", FRAMEWORK, "--manifest", manifest, "--min-sdk-version", "21", "--target-sdk-version", "29",
            "-o", package, compiled)
        resources = run("aapt2", "dump", "resources", package).stdout
        for name in ("mipmap/ic_launcher", "mipmap/ic_launcher_round", "mipmap/ic_launcher_foreground",
                     "mipmap/ic_launcher_monochrome", "color/ic_launcher_background", "drawable/ic_notification"):
            self.assertRegex(resources, rf"\b{name}\b")
        self.assertIn("anydpi-v26", resources)

    def test_icotool_reads_every_picture(self):
        for file, sizes in (("Windows/app.ico", [16, 20, 24, 30, 32, 36, 40, 48, 60, 64, 72, 80, 96, 256]),
                            ("Web/favicon.ico", [16, 32, 48])):
            listed = run("icotool", "-l", self.out / file).stdout
            self.assertEqual([int(width) for width in re.findall(r"--width=(\d+)", listed)], sizes)
            self.assertEqual(set(re.findall(r"--bit-depth=(\d+)", listed)), {"32"})
            extracted = self.folder / Path(file).stem
            extracted.mkdir()
            run("icotool", "-x", "-o", extracted, self.out / file)
            self.assertEqual(sorted(png_size(picture)[0] for picture in extracted.iterdir()), sizes)

    def test_the_mac_file_lists_every_picture(self):
        listed = run("icns2png", "-l", self.out / "macOS/AppIcon.icns").stdout
        for kind in ("icp4", "ic11", "icp5", "ic12", "ic07", "ic13", "ic08", "ic14", "ic09", "ic10"):
            self.assertIn(kind, listed)

    def test_the_icon_cache_finds_the_linux_icons(self):
        theme = self.folder / "hicolor"
        shutil.copytree(self.out / "Linux/hicolor", theme)
        shutil.copy("/usr/share/icons/hicolor/index.theme", theme)
        known = re.findall(r"^\[(\S+/apps)\]", (theme / "index.theme").read_text(), re.M)
        for picture in theme.rglob("logo.*"):
            self.assertIn(str(picture.parent.relative_to(theme)), known)
        run("gtk-update-icon-cache", "--force", theme)
        run("gtk-update-icon-cache", "--validate", theme)
        self.assertIn(b"logo\0", (theme / "icon-theme.cache").read_bytes())

    def test_a_browser_takes_the_site(self):
        site = self.out / "Web"
        (self.folder / "index.html").write_text("<!doctype html><title>logo</title>" + (site / "head.html").read_text())
        shutil.copytree(site, self.folder / "site")
        shutil.copy(self.folder / "index.html", self.folder / "site/index.html")
        handler = functools.partial(QuietHandler, directory=self.folder / "site")
        server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler)
        self.addCleanup(server.server_close)
        threading.Thread(target=server.serve_forever, daemon=True).start()
        self.addCleanup(server.shutdown)
        browser = Browser(self.folder / "profile")
        self.addCleanup(browser.close)
        browser.ask("Page.enable")
        browser.ask("Page.navigate", url=f"http://127.0.0.1:{server.server_port}/index.html")
        browser.wait_for("Page.loadEventFired")
        manifest = browser.ask("Page.getAppManifest")
        self.assertEqual(manifest["errors"], [])
        self.assertTrue(manifest["url"].endswith("/site.webmanifest"))
        # Every picture that the head and the manifest name is loaded and as large as they say.
        script = """(async () => {
            const manifest = await (await fetch(document.querySelector('link[rel=manifest]').href)).json();
            const wanted = manifest.icons.map(icon => [icon.src, parseInt(icon.sizes)]);
            for (const link of document.querySelectorAll('link[rel=icon], link[rel=apple-touch-icon]'))
                wanted.push([link.href, 0]);
            const found = [];
            for (const [source, size] of wanted) {
                const picture = new Image();
                picture.src = source;
                await picture.decode();
                found.push([source, size, picture.naturalWidth]);
            }
            return JSON.stringify(found);
        })()"""
        answer = browser.ask("Runtime.evaluate", expression=script, awaitPromise=True, returnByValue=True)
        found = json.loads(answer["result"]["value"])
        self.assertEqual(len(found), 4 + 3)
        for source, size, width in found:
            self.assertGreater(width, 0, source)
            if size:
                self.assertEqual(width, size, source)


class QuietHandler(http.server.SimpleHTTPRequestHandler):
    extensions_map = http.server.SimpleHTTPRequestHandler.extensions_map | {".webmanifest": "application/manifest+json"}

    def log_message(self, *arguments):
        pass


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
