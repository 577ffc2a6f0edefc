# SPDX-License-Identifier: MIT
"""Checks that the code snippets are well-formed and declare exactly the files that the icon export writes."""

import re
import xml.etree.ElementTree as ElementTree
from pathlib import Path

from source_code import string_literals
from tables import Table

ICON_NAME = re.compile(r"[\w@.-]+\.png|iTunesArtwork(?:@2x)?")
FILE_NAME = re.compile(r"[\w@.-]+\.(?:png|icns|ico)\b|iTunesArtwork(?:@2x)?")
COMMENT = re.compile(r"<!--.*?-->", re.DOTALL)

# 51 entries; iPhone and iPad share six names.
DISTINCT_ICON_NAMES = 45

# Names that a snippet may use although the export writes no picture of that name.
OTHER_NAMES = {
    "icons.icns",  # packed from the Mac pictures
    "ic_launcher.png",  # what an Android project calls each of its launcher pictures
}

# The Mac pictures are declared by the icon file that contains them.
PACKED = re.compile(r"icon_\d+x\d+(?:@2x)?\.png")


def catalogue_names(icons_folder: Path) -> set[str]:
    """The names in the file of the folder that quotes most of them; empty if there is none."""
    best: set[str] = set()
    for path in sorted(icons_folder.glob("*.h")) + sorted(icons_folder.glob("*.cpp")):
        names = {text for text in string_literals(path.read_text("utf-8")) if ICON_NAME.fullmatch(text)}
        best = max(best, names, key=len)
    return best


def catalogue_problems(names: set[str]) -> list[str]:
    if len(names) == DISTINCT_ICON_NAMES:
        return []
    if not names:
        return ["icons/: no file there quotes the icon file names, so those in the snippets could not be checked"]
    return [f"icons/: the icon catalogue quotes {len(names)} distinct file names, not {DISTINCT_ICON_NAMES}"]


def snippets(table: Table) -> dict[str, str]:
    return {key: text for key, text in table.texts().items() if key.startswith("SNIPPET_")}


def link_problems(where: str, root: ElementTree.Element) -> list[str]:
    """A link's sizes are those in its file's name; the two touch icons without a number measure 57 pixels."""
    problems = []
    for link in root.iter("link"):
        numbers = re.findall(r"\d+", link.get("href", "")) or ["57"]
        if link.get("sizes") != f"{numbers[-1]}x{numbers[-1]}":
            problems.append(f"{where}: {link.get('href')} has the sizes {link.get('sizes')}")
    return problems


def snippet_problems(table: Table, english: Table, names: set[str]) -> list[str]:
    """File names are not checked if the catalogue's names are not known; catalogue_problems() reports that."""
    problems = []
    declared = set()
    reference = snippets(english)
    for key, text in snippets(table).items():
        where = f"{table.path.name}: {key}"
        try:
            root = ElementTree.fromstring(f"<snippet>{text}</snippet>")
        except ElementTree.ParseError as error:
            problems.append(f"{where} is not well-formed: {error}")
        else:
            problems += link_problems(where, root)
        found = set(FILE_NAME.findall(text))
        declared |= found
        unknown = sorted(found - names - OTHER_NAMES) if names else []
        problems += [f"{where} names {name}, which no export writes" for name in unknown]
        if COMMENT.sub("", text) != COMMENT.sub("", reference.get(key, "")):
            problems.append(f"{where} differs from the English snippet outside the comments")
    forgotten = [name for name in sorted(names - declared) if not PACKED.fullmatch(name)]
    return problems + [f"{table.path.name}: no snippet says where {name} goes" for name in forgotten]
