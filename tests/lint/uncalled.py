# SPDX-License-Identifier: MIT
"""Finds functions of the program that nothing in the program calls, from what its object files refer to.

Calls from tests and benchmarks do not count. A function that stands in a virtual table or in Qt's table of slots and
properties counts as called. What is kept on purpose stands in public_face.txt, with the reason.
"""

import re
import subprocess
from collections import Counter
from pathlib import Path

from objects import object_files
from shown_pictures import program_files

PROGRAMS = ("lumora", "lumora-window")
PUBLIC_FACE = Path(__file__).parent / "public_face.txt"
# Made by Qt's tools: each picture or text set can be unloaded, which the program never does.
GENERATED = re.compile(r"^qCleanupResources_|^qUnregisterResourceData")
# A function with its body; what only returns a member is the readable half of a property and may wait for its reader.
INLINE = re.compile(r"\b(\w+)\((?:[^;{}()]|\([^;{}()]*\))*\)\s*(?:const\s*)?(?:noexcept\s*)?\{(?!\s*return m_\w+;)")
NO_CODE = re.compile(r"//[^\n]*|/\*.*?\*/|\"(?:[^\"\\\n]|\\.)*\"", re.DOTALL)
NOT_FUNCTIONS = {"if", "for", "while", "switch", "catch", "Q_PROPERTY", "operator"}


def program_objects(build: Path) -> list[Path]:
    """The libraries that the programs are linked from, and their main files."""
    tests = build / "tests"
    libraries = [file for file in sorted(build.rglob("liblumora_*.a")) if tests not in file.parents]
    programs = [folder for name in PROGRAMS for folder in build.glob(f"*/CMakeFiles/{name}.dir")]
    return libraries + [file for folder in programs for file in sorted(folder.rglob("*.o"))]


def demangled(names: list[str]) -> list[str]:
    run = subprocess.run(["c++filt"], input="\n".join(names), stdout=subprocess.PIPE, text=True, check=True)
    return run.stdout.splitlines()


def plain(name: str) -> str:
    """lumora::Popover::show(int) const as Popover::show: overloads share a name."""
    name = re.sub(r"\[abi:\w+\]", "", name)
    return name.split("(")[0].removeprefix("lumora::")


def uncalled(objects: list[Path]) -> list[str]:
    files = list(object_files(objects))
    referred = set().union(*(file.referred for file in files))
    nobodys = sorted(min(names) for file in files for names in file.aliases if not names & referred and "main" not in names)
    signatures = demangled(nobodys)
    return sorted(signature.removeprefix("lumora::") for signature in signatures if not GENERATED.match(signature))


def public_face(text: str) -> dict[str, str]:
    """Each name kept on purpose with its reason: a "# reason" line, then the names it holds for, one a line."""
    kept: dict[str, str] = {}
    reason = ""
    for line in text.splitlines():
        line = line.strip()
        if line.startswith("# "):
            reason = line[2:]
        elif line:
            kept[line] = reason
    return kept


def defined(objects: list[Path]) -> set[str]:
    """The plain names of all functions that other files could call."""
    return {plain(name) for name in demangled([min(names) for file in object_files(objects) for names in file.aliases])}


def outdated(kept: dict[str, str], known: set[str]) -> list[str]:
    """Marks that name no function any more."""
    return sorted(set(kept) - known)


def problems(signatures: list[str], kept: dict[str, str]) -> list[str]:
    """Functions without a caller that nobody marked, and marks without a reason."""
    found = [f"{signature}: nothing calls it" for signature in signatures if plain(signature) not in kept]
    return found + [f"{name}: marked without a reason" for name, reason in kept.items() if not reason]


def inline_functions(root: Path) -> dict[str, str]:
    """The names of functions written in a header, each with its place. The class is taken from the file's name."""
    found: dict[str, str] = {}
    for file in program_files(root):
        if file.suffix == ".h":
            names = INLINE.findall(NO_CODE.sub(" ", file.read_text("utf-8")))
            found.update({name: str(file.relative_to(root)) for name in names if name not in NOT_FUNCTIONS})
    return found


def defined_inline(root: Path) -> set[str]:
    return {f"{Path(place).stem}::{name}" for name, place in inline_functions(root).items()}


def unnamed_inline_functions(root: Path) -> list[str]:
    """Functions written in a header that leave no symbol where nobody calls them: their name is nowhere else."""
    words: Counter[str] = Counter()
    for file in program_files(root):
        text = file.read_text("utf-8")
        words.update(re.findall(r"\w+", text if file.suffix == ".ui" else NO_CODE.sub(" ", text)))
    unnamed = {name: place for name, place in inline_functions(root).items() if words[name] == 1}
    return sorted(f"{Path(place).stem}::{name}() in {place}" for name, place in unnamed.items())
