# SPDX-License-Identifier: MIT
"""Reads the text tables resources/strings/lumora_*.ts and compares them with the English one."""

import re
import xml.etree.ElementTree as ElementTree
from dataclasses import dataclass
from pathlib import Path

# "[FOLDER]" and its like are replaced by the code; "%i" and its like, and Qt's "%1", are formats.
BRACKETED = re.compile(r"\[[A-Z]+\]")
FORMATTED = re.compile(r"%(?:\d+|[-+0#]*\d*(?:\.\d+)?[a-zA-Z@])")

# The parts of a text that the code replaces, whatever the tables say.
REQUIRED_PLACEHOLDERS = {
    "INFORMATION_APP": ["[VERSION]"],
    "INFORMATION_INFO_2": ["[FACEBOOK]", "[MAIL]", "[TWITTER]"],
    "ICONS_NEW_FOLDER_ALERT_MESSAGE": ["[FOLDER]"],
    "PLACEHOLDER_NEW_FOLDER_ALERT_MESSAGE": ["[FOLDER]"],
    "RESIZER_PROGRESS": ["%i", "%i"],
    "VALIDATER_READING": ["[FILE]"],
    "VALIDATE_ICONS_TEXT": ["[ICON]"],
    "VALIDATE_DEFAULTS_TEXT": ["[DEFAULT]"],
}


@dataclass(frozen=True)
class Message:
    key: str
    source: str
    text: str
    finished: bool


@dataclass(frozen=True)
class Table:
    path: Path
    language: str
    messages: list[Message]

    def texts(self) -> dict[str, str]:
        return {message.key: message.text for message in self.messages}


def load_table(path: Path) -> Table:
    """Raises ElementTree.ParseError if the file is not well-formed."""
    root = ElementTree.parse(path).getroot()
    messages = []
    for element in root.iter("message"):
        translation = element.find("translation")
        messages.append(
            Message(
                key=element.get("id", ""),
                source=element.findtext("source", ""),
                text="" if translation is None else "".join(translation.itertext()),
                finished=translation is not None and translation.get("type") is None,
            )
        )
    return Table(path, root.get("language", ""), messages)


def placeholders(text: str) -> list[str]:
    """Bracketed names may change their order in a sentence; formats are filled in order and must keep it."""
    return sorted(BRACKETED.findall(text)) + FORMATTED.findall(text)


def edge_whitespace(text: str) -> tuple[str, str]:
    """Texts are joined with values and lists, so spaces and line breaks at their ends matter."""
    return text[: len(text) - len(text.lstrip())], text[len(text.rstrip()) :]


def table_problems(table: Table) -> list[str]:
    """The faults of one table alone."""
    name = table.path.name
    problems = []
    if name != f"lumora_{table.language}.ts":
        problems.append(f"{name}: is marked as language \"{table.language}\", which its name does not say")
    seen = set()
    for message in table.messages:
        if message.key in seen:
            problems.append(f"{name}: {message.key} stands there twice")
        seen.add(message.key)
        if not message.text.strip():
            problems.append(f"{name}: {message.key} is empty")
        if not message.finished:
            problems.append(f"{name}: {message.key} has no finished translation")
        required = REQUIRED_PLACEHOLDERS.get(message.key)
        if required is not None and placeholders(message.text) != required:
            problems.append(f"{name}: {message.key} must hold exactly {' '.join(required)}")
    return problems


def comparison_problems(english: Table, other: Table) -> list[str]:
    """The differences of another table (or the English one itself) from the English texts."""
    name = other.path.name
    reference = english.texts()
    texts = other.texts()
    problems = [f"{name}: {key} is missing" for key in reference if key not in texts]
    problems += [f"{name}: {key} is unknown to {english.path.name}" for key in texts if key not in reference]
    if not problems and list(texts) != list(reference):
        first = next(a for a, b in zip(texts, reference) if a != b)
        problems.append(f"{name}: {first} is out of the order of {english.path.name}")
    for message in other.messages:
        if message.key not in reference:
            continue
        original = reference[message.key]
        if message.source != original:
            problems.append(f"{name}: the <source> of {message.key} is not the English text: "
                            "look at the translation again, then bring <source> up to date")
        if placeholders(message.text) != placeholders(original):
            problems.append(f"{name}: {message.key} holds {placeholders(message.text)}, "
                            f"the English text {placeholders(original)}")
        if edge_whitespace(message.text) != edge_whitespace(original):
            problems.append(f"{name}: {message.key} begins or ends with other white space than the English text")
    return problems
