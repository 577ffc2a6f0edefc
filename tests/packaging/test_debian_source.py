# SPDX-License-Identifier: MIT
"""dpkg-buildpackage makes both packages from the tracked files in a system with only the packages that debian/control requires.

Runs only with `./test -C Cross -L cross`, because it compiles everything again. Needs root.
"""
import os
import re
import subprocess
import tempfile
import unittest
from pathlib import Path

from build_root import BuildRoot
from place import BUILD, SOURCE, VERSION, run


def build_dependencies():
    control = (SOURCE / "debian/control").read_text()
    listed = re.search(r"^Build-Depends:(.*?)^\S", control, re.M | re.S).group(1)
    return sorted(re.match(r"[^ (]+", item.strip()).group(0).replace("debhelper-compat", "debhelper") for item in listed.split(","))


@unittest.skipIf(os.geteuid() != 0, "a system of its own needs root")
class DebianSource(unittest.TestCase):
    def test_the_tracked_files_make_both_packages(self):
        place = BUILD / "debian-root"
        system = BuildRoot(place, ["ca-certificates", "build-essential", "fakeroot", *build_dependencies()])
        with tempfile.TemporaryDirectory(dir=place) as folder:
            tree = Path(folder) / f"lumora-{VERSION}"
            tree.mkdir()
            archive = subprocess.run(["git", "-C", str(SOURCE), "archive", "HEAD"], stdout=subprocess.PIPE, check=True).stdout
            subprocess.run(["tar", "--extract", "--directory", str(tree)], input=archive, check=True)
            made = system.run("sh", "-c", f"cd /source/{tree.name} && dpkg-buildpackage --unsigned-source --unsigned-changes", source=folder)
            self.assertEqual(made.returncode, 0, made.stdout[-4000:])
            packages = sorted(path.name.split("_")[0] for path in Path(folder).glob("*.deb") if "dbgsym" not in path.name)
            self.assertEqual(packages, ["lumora", "lumora-cli"])
            changes = next(Path(folder).glob("*.changes"))
            said = run("lintian", "--allow-root", "--display-info", "--pedantic", "--no-cfg", changes)
            self.assertEqual((said.returncode, said.stdout.strip()), (0, ""))


if __name__ == "__main__":
    unittest.main()
