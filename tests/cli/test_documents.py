# SPDX-License-Identifier: MIT
"""usage: test_documents.py LUMORA SOURCE   Types the commands in README, the manual, docs/ci.md, docs/devices.md and
the help, word for word; they must succeed. The lines that install a package get an apt-get that only checks whether it is given
one."""
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

LUMORA, SOURCE = (Path(argument).resolve() for argument in sys.argv[1:3])
COMMANDS = ["icons", "icon", "placeholders", "downscale", "color", "devices", "validate", "diff", "rules"]
# Not the real apt-get: packaging's tests install the packages with that.
APT_GET = """#!/bin/sh
case $1 in
  update) exit 0 ;;
  install) [ "$2" = -y ] && [ -f "$3" ] && [ $# = 3 ] ;;
  *) exit 1 ;;
esac
"""


def fenced(text, kind):
    return "\n".join(re.findall(rf"^```{kind}\n(.*?)^```", text, re.DOTALL | re.MULTILINE)).splitlines()


def readme_lines():
    text = (SOURCE / "README.md").read_text()
    # The commands under Install build the program itself.
    return fenced(text.split("## One example per tool")[1], "sh")


def ci_lines():
    """The lines of each block, one list per block."""
    text = (SOURCE / "docs/ci.md").read_text()
    scripts = [fenced(text, "sh")]
    yaml, groovy = fenced(text, "yaml"), fenced(text, "groovy")
    scripts.append([line.split("run: ", 1)[1] for line in yaml if "run: " in line])
    scripts.append([line.strip()[2:] for line in yaml if re.match(r"\s+- (apt-get|lumora)", line)])
    scripts.append([re.search(r"sh '(.*)'", line)[1] for line in groovy if "sh '" in line])
    return scripts


def manual_lines():
    text = (SOURCE / "packaging/man/lumora.1.in").read_text()
    block = re.search(r"\.SH EXAMPLES\n\.nf\n(.*?)\.fi", text, re.DOTALL)[1]
    return block.replace("\\-", "-").splitlines()


def help_lines(command):
    shown = subprocess.run([LUMORA, *command], capture_output=True, text=True, env={"LC_ALL": "C.UTF-8"}).stdout
    return [line.strip() for line in shown.split("Examples:\n")[1].splitlines()]


def made_package():
    with tempfile.TemporaryDirectory() as made:
        subprocess.run([sys.executable, SOURCE / "tests/validator/make_packages.py", made], check=True, capture_output=True)
        return Path(made, "valid.ipa").read_bytes()


class Documents(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.package = made_package()

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name, "project")
        self.folder.mkdir()
        tools = Path(folder.name, "tools")
        tools.mkdir()
        (tools / "lumora").symlink_to(LUMORA)
        (tools / "apt-get").write_text(APT_GET)
        (tools / "apt-get").chmod(0o755)
        self.environment = {"PATH": f"{tools}:/usr/bin:/bin", "LC_ALL": "C.UTF-8", "HOME": folder.name}

    def put_package(self, name):
        place = self.folder / name
        place.parent.mkdir(parents=True, exist_ok=True)
        place.write_bytes(self.package)

    def put_picture(self, name, size):
        place = self.folder / name
        place.parent.mkdir(parents=True, exist_ok=True)
        subprocess.run(["convert", "-size", f"{size}x{size}", "xc:tomato", f"png:{place}"], check=True)

    def put_screenshot(self, name):
        place = self.folder / name
        place.parent.mkdir(parents=True, exist_ok=True)
        subprocess.run(["convert", "-size", "1320x2868", "xc:tomato", f"png24:{place}"], check=True)

    def type(self, lines):
        self.assertTrue(lines)
        for line in lines:
            with self.subTest(line):
                ended = subprocess.run(["sh", "-c", line], cwd=self.folder, env=self.environment, capture_output=True, timeout=120)
                self.assertEqual((ended.returncode, ended.stderr), (0, b""), ended)

    def commands_of(self, lines):
        return {word for line in lines for word in re.findall(r"lumora ([a-z]+)", line)}

    def test_readme(self):
        self.put_package("App.ipa")
        self.type(readme_lines())
        self.assertEqual(self.commands_of(readme_lines()), set(COMMANDS))
        # As in the table.
        self.assertEqual(sum(path.is_file() for path in (self.folder / "build/icons").rglob("*")), 52)
        self.assertTrue((self.folder / "build/art/button.png").is_file())

    def test_manual(self):
        self.put_package("App.ipa")
        self.put_package("build/App.ipa")
        self.put_picture("artwork.png", 1024)
        self.put_picture("art/button@2x.png", 64)
        self.put_picture("art/logo@3x.png", 96)
        self.put_screenshot("screenshots/first.png")
        (self.folder / "artwork.svg").write_text(
            '<svg xmlns="http://www.w3.org/2000/svg" width="64" height="64"><rect width="64" height="64" fill="tomato"/></svg>')
        self.type(manual_lines())
        self.assertEqual(self.commands_of(manual_lines()), set(COMMANDS))

    def test_devices(self):
        text = (SOURCE / "docs/devices.md").read_text()
        rows = fenced(text, "text")
        (self.folder / "models.csv").write_text("\n".join(rows) + "\n")
        self.type(fenced(text, "sh"))
        shown = subprocess.run(["lumora", "devices", "--data", "models.csv"], cwd=self.folder, env=self.environment, capture_output=True)
        self.assertTrue(shown.stdout.startswith(b"iPhone: iPhone 14 Pro\n"), shown)
        described = [name for row in re.findall(r"^\| ([a-z][^|]*) \|", text, re.MULTILINE) for name in row.split(", ")]
        self.assertEqual(described, rows[0].split(","))

    def test_figures_come_with_commands_that_start(self):
        documents = ["README.md", "docs/performance.md", "bench/README.md"]
        named = {name for document in documents
                 for name in re.findall(r"`((?:bench|packaging)/[\w/.-]+)(?= |`)", (SOURCE / document).read_text())
                 if (SOURCE / name).is_file() and not name.endswith((".md", ".txt"))}
        self.assertGreater(len(named), 5)
        self.assertEqual([name for name in sorted(named) if not os.access(SOURCE / name, os.X_OK)], [])
        figures = (SOURCE / "README.md").read_text().split("Why not", 1)[1].split("## Install")[0].split("\n- ")[1:]
        self.assertEqual([figure for figure in figures if not re.search(r"`bench/[\w.-]+[^`]*`", figure)], [])
        self.assertEqual(len(figures), 3)

    def test_the_page_of_rules(self):
        page = subprocess.run([LUMORA, "rules", "--markdown"], capture_output=True, text=True, check=True, env=self.environment)
        self.assertEqual((SOURCE / "docs/rules.md").read_text(), page.stdout)

    def test_build_servers(self):
        for number, lines in enumerate(ci_lines()):
            with self.subTest(number):
                subprocess.run(["rm", "-rf", self.folder], check=True)
                self.folder.mkdir()
                subprocess.run(["git", "init", "--quiet"], cwd=self.folder, env=self.environment, check=True)
                self.put_package("build/App.ipa")
                self.put_picture("art/icon.png", 1024)
                self.put_picture("art/screens/first/start@2x.png", 64)
                (self.folder / "packages").mkdir()
                (self.folder / "packages/lumora-cli_1.0.0_amd64.deb").touch()
                self.type(lines)
                self.assertTrue((self.folder / "build/screens/first/start.png").is_file())
                self.assertTrue({"icons", "downscale", "validate"} <= self.commands_of(lines))

    def test_help(self):
        for command in [["help"]] + [["help", name] for name in COMMANDS]:
            with self.subTest(command):
                subprocess.run(["rm", "-rf", self.folder], check=True)
                self.folder.mkdir()
                self.put_package("App.ipa")
                self.put_package("build/App.ipa")
                self.put_picture("logo.png", 1024)
                self.put_picture("logo@2x.png", 64)
                self.put_picture("art/button@2x.png", 64)
                self.put_picture("art/logo@3x.png", 96)
                lines = help_lines(command)
                self.assertEqual(len(lines), 2)
                self.type(lines)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
