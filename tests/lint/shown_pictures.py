# SPDX-License-Identifier: MIT
"""Finds pictures that are compiled in but shown nowhere, and pictures in the folder that are not compiled in.

A picture is shown where the program's code or an interface file names it: by its whole name in a literal, or by pieces
that literals of one subsystem (a top folder) hold. One of the pieces must say that it is one: "window_" or "_hover".
"""

import re
import xml.etree.ElementTree as ElementTree
from collections.abc import Iterator
from pathlib import Path

from tree import files_of

LIST = Path("resources/images/images.qrc")
# Tests, benchmarks and fuzz targets are not part of the program.
NOT_THE_PROGRAM = {"tests", "bench", "fuzz", "docs"}
TOKEN = re.compile(r"//[^\n]*|/\*.*?\*/|\"((?:[^\"\\\n]|\\.)*)\"|'((?:[^'\\\n]|\\.)+)'", re.DOTALL)
NAME_SHAPE = re.compile(r"[a-z0-9_]+")
TEXT = re.compile(r">([^<>]*)<|\"([^\"<>]*)\"")


def program_files(root: Path) -> Iterator[Path]:
    for file in files_of(root):
        if file.relative_to(root).parts[0] not in NOT_THE_PROGRAM and file.suffix in (".cpp", ".h", ".ui"):
            yield file


def words_of(file: Path) -> set[str]:
    """The literals of code, or the texts of an interface file, split at characters that are not in pictures' names."""
    text = file.read_text("utf-8")
    pattern = TEXT if file.suffix == ".ui" else TOKEN
    literals = {group for match in pattern.finditer(text) for group in match.groups() if group}
    return {word for literal in literals for word in NAME_SHAPE.findall(literal)}


def names(words: set[str], picture: str) -> bool:
    """Whether these words contain the name, or pieces that form it when joined with or without "_"."""
    return picture in words or joined(words, picture, False)


def joined(words: set[str], rest: str, says_so: bool) -> bool:
    """Whether `rest` can be formed; `says_so` is true if a piece before it began or ended with "_"."""
    for word in words:
        piece = word.strip("_")
        if not piece or not rest.startswith(piece):
            continue
        is_piece = says_so or word != piece
        if rest == piece and is_piece:
            return True
        if rest.startswith(piece + "_") and joined(words, rest[len(piece) + 1 :], is_piece):
            return True
    return False


def compiled_in(root: Path) -> list[str]:
    return [element.get("alias") or element.text or "" for element in ElementTree.parse(root / LIST).iter("file")]


def shown_nowhere(root: Path) -> list[str]:
    words: dict[str, set[str]] = {}
    for file in program_files(root):
        words.setdefault(file.relative_to(root).parts[0], set()).update(words_of(file))
    return [picture for picture in compiled_in(root) if not any(names(some, Path(picture).stem) for some in words.values())]


def not_compiled_in(root: Path) -> list[str]:
    listed = {element.text for element in ElementTree.parse(root / LIST).iter("file")}
    folder = (root / LIST).parent
    return [file.name for file in files_of(folder) if file.suffix in (".svg", ".png") and str(file.relative_to(folder)) not in listed]
