# SPDX-License-Identifier: MIT
"""The path of the build under test, from CTest, and the function by which these tests run a command."""
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
    """The finished process, with stdout and stderr as one text, so that a failed assertion shows both."""
    return subprocess.run(
        [str(part) for part in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False, **options
    )


def package(name="lumora"):
    """The .deb of that name and this version that `packaging/deb/make-packages` made."""
    found = glob.glob(str(BUILD / "package" / f"{name}_{VERSION}_*.deb"))
    assert len(found) == 1, f"expected one package {name} of version {VERSION}, found {found}"
    return Path(found[0])
