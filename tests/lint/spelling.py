# SPDX-License-Identifier: MIT
"""Finds British spellings in the names that code declares and uses, in the window's texts and in documents: the tree's language
is American English.

"Catalogue" and "judgement" are spelled both ways in America and stay; so do names that an interface from outside fixes (KEPT).
"""

import re
from pathlib import Path

from tree import files_of

BRITISH = re.compile(
    r"colour|behaviour|favour|flavour|honour|neighbour|labour|humour|vapour"
    r"|centre|metre(?!d)|fibre|grey"
    r"|(?:initial|serial|normal|organ|recogn|optim|minim|maxim|local|quant|summar|synchron|util|sanit|special|styl|general|real"
    r"|token|capital|emphas|visual|custom|standard|final|categor|priorit|author|stabil)is(?:e[drs]?|ing|ation|ations)$"
    r"|analys(?:e[drs]?|ing)$|(?:label|cancel|model|travel|signal|marshal|pencil|channel|level)l(?:ed|ing|er)"
    r"|artefact|licence|defence|offence|dialogue|programme$|skilful|fulfil(?!l)|whilst"
)
# Names that the design or a library fixes, each with its origin.
KEPT = {
    "initialise": "an operation of ITSidebar that its design names",
    "initialiseScrollView": "an operation of ITSidebar that its design names",
    "selectNeighbourItemWithValue": "an operation of ITSidebar that its design names",
    "ZIMG_COLOR_GREY": "libzimg",
}
LANGUAGES = {".cpp": "c", ".h": "c", ".py": "python", ".cmake": "cmake", ".md": "prose", ".in": "prose"}
NO_NAMES = {
    "c": re.compile(r"//[^\n]*|/\*.*?\*/|R\"(\w*)\(.*?\)\1\"|\"(?:[^\"\\\n]|\\.)*\"|^\s*#\s*include[^\n]*", re.DOTALL | re.MULTILINE),
    "python": re.compile(r"\"\"\".*?\"\"\"|'''.*?'''|#[^\n]*|\"(?:[^\"\\\n]|\\.)*\"|'(?:[^'\\\n]|\\.)*'", re.DOTALL),
    "cmake": re.compile(r"#[^\n]*|\"(?:[^\"\\]|\\.)*\"", re.DOTALL),
    "prose": re.compile(r"https?://\S+|^\S*\[de\]=.*$|<(\w+) xml:lang=\"de\">.*?</\1>|`[^`\n]*`", re.DOTALL | re.MULTILINE),
}
NAME = re.compile(r"[A-Za-z_]\w{3,}")
PARTS = re.compile(r"[A-Z]+(?![a-z])|[A-Z]?[a-z]+")


def language_of(file: Path) -> str | None:
    return {"CMakeLists.txt": "cmake", "lumora_en.ts": "prose"}.get(file.name, LANGUAGES.get(file.suffix))


def is_british(name: str) -> bool:
    return any(BRITISH.search(part.lower()) for part in PARTS.findall(name))


def british_names(root: Path) -> list[str]:
    """One line for each such name in each file."""
    found: set[str] = set()
    for file in files_of(root):
        language = language_of(file)
        if language is None:
            continue
        code = NO_NAMES[language].sub(" ", file.read_text("utf-8"))
        names = {name for name in NAME.findall(code) if name not in KEPT and is_british(name)}
        found.update(f"{file.relative_to(root)}: {name}" for name in names)
    return sorted(found)
