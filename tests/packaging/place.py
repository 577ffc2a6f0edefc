# SPDX-License-Identifier: MIT
"""Where the build under test is, as CTest passes it, and the one way in which these tests run a command."""
import glob
import os
import subprocess
from pathlib import Path

SOURCE = Path(os.environ["LUMORA_SOURCE"])
BUILD = Path(os.environ["LUMORA_BUILD"])
APPLICATION_ID = os.environ["LUMORA_ID"]
VERSION = os.environ["LUMORA_VERSION"]
METADATA = BUILD / "packaging"


def run(*command, **options):
    """The finished process, its output as text; stdout and stderr in one, so that a failed assertion shows both."""
    return subprocess.run(
        [str(part) for part in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False, **options
    )


def package(name="lumora"):
    """The one .deb of that name and this version that `packaging/deb/make-packages` made."""
    found = glob.glob(str(BUILD / "package" / f"{name}_{VERSION}_*.deb"))
    assert len(found) == 1, f"expected one package {name} of version {VERSION}, found {found}"
    return Path(found[0])
