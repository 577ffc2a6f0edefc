# SPDX-License-Identifier: MIT
"""A Debian system below the build folder for compiling the tree again, kept for the next run. Needs root and the mirror
that this machine itself uses."""
import subprocess
from pathlib import Path

from place import SOURCE, run


def mirrors():
    listed = run(
        "apt-get", "indextargets", "--format", "$(ORIGIN)|deb $(REPO_URI) $(RELEASE) $(COMPONENT)", "Created-By: Packages"
    ).stdout.splitlines()
    return sorted({line.split("|")[1] for line in listed if line.startswith("Debian|")})


class BuildRoot:
    """The system in `place`/root; the tree is /source in it, and `place`/build is /build."""

    def __init__(self, place, packages, architectures="amd64"):
        self.place = place
        self.root = place / "root"
        # The list of packages is stored, so that another list makes another system.
        made = place / "made"
        wanted = f"{architectures}: {' '.join(packages)}\n"
        if made.exists() and made.read_text() == wanted:
            return
        subprocess.run(["rm", "-rf", str(place)], check=True)
        place.mkdir(parents=True)
        release = dict(line.split("=", 1) for line in Path("/etc/os-release").read_text().splitlines() if "=" in line)
        result = run(
            "mmdebstrap", "--quiet", "--variant=minbase", f"--architectures={architectures}", f"--include={','.join(packages)}",
            release["VERSION_CODENAME"], self.root, *mirrors(),
        )
        assert result.returncode == 0, result.stdout
        made.write_text(wanted)

    def run(self, *command, source=SOURCE):
        mounts = (
            'cd "$1" && mkdir -p source build && mount --bind "$2" source && mount --bind "$3" build && mount --rbind /dev dev && '
            'mount -t proc proc proc && folder=$1 && shift 3 && exec chroot "$folder" "$@"'
        )
        (self.place / "build").mkdir(exist_ok=True)
        environment = ["env", "-i", "PATH=/usr/sbin:/usr/bin:/sbin:/bin", "HOME=/root", "LC_ALL=C.UTF-8"]
        return run(
            "unshare", "--mount", "--propagation", "private", "sh", "-c", mounts, "sh", self.root, source, self.place / "build",
            *environment, *command,
        )
