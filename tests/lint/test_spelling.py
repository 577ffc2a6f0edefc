# SPDX-License-Identifier: MIT
"""Names, texts and documents are American English."""

import os
import tempfile
import unittest
from pathlib import Path

from spelling import KEPT, british_names

SOURCE = Path(os.environ["LUMORA_SOURCE"])

# A file's text, and the names in it that must be found.
FAULTS = {
    "a function": ("a.h", "void setColour(int value);", ["setColour"]),
    "a constant in capitals": ("a.cpp", "constexpr int GREY_LEVELS = 4;", ["GREY_LEVELS"]),
    "a member": ("a.h", "int m_centreOfGravity;", ["m_centreOfGravity"]),
    "an operation": ("a.cpp", "void Sidebar::normaliseAll() { minimise(); }", ["minimise", "normaliseAll"]),
    "a doubled letter": ("a.cpp", "bool isLabelled = cancelled;", ["cancelled", "isLabelled"]),
    "a test": ("a.py", "def test_colours_stay(self):", ["test_colours_stay"]),
    "a text of the window": ("lumora_en.ts", "<translation>A grey centre</translation>", ["centre", "grey"]),
    "a document": ("a.md", "The colour of `colour`.", ["colour"]),
    "a desktop entry": ("a.desktop.in", "Name=Colours\nName[de]=Grey", ["Colours"]),
    "a target": ("CMakeLists.txt", "add_library(lumora_colours STATIC)", ["lumora_colours"]),
}
SOUND = {
    "a comment": ("a.cpp", "// The colour of the centre\n/* grey\n colours */ int color;"),
    "a text": ("a.cpp", 'f("Colour", R"(grey)", u"centre"_s);'),
    "a script's text": ("a.py", '"""Colours."""\nname = "grey"  # centre\n'),
    "an include": ("a.h", "#include <grey.h>"),
    "words that contain one": ("a.cpp", "bool precise, rise, otherwise, likewise, promised, excellent, catalogue;"),
    "a name that is fixed elsewhere": ("a.cpp", "void ITSidebar::initialiseScrollView() {}"),
}


class Spelling(unittest.TestCase):
    def found(self, name, text):
        with tempfile.TemporaryDirectory() as folder:
            (Path(folder) / name).write_text(text)
            return [line.split(": ")[1] for line in british_names(Path(folder))]

    def test_the_trees_names_are_american(self):
        found = british_names(SOURCE)
        self.assertEqual(found, [], "\n" + "\n".join(found))

    def test_each_fault_is_seen(self):
        for fault, (name, text, expected) in FAULTS.items():
            with self.subTest(fault):
                self.assertEqual(self.found(name, text), expected)

    def test_nothing_else_is_taken_for_one(self):
        for text, (name, code) in SOUND.items():
            with self.subTest(text):
                self.assertEqual(self.found(name, code), [])

    def test_each_name_kept_has_a_reason(self):
        self.assertTrue(all(KEPT.values()))


if __name__ == "__main__":
    unittest.main()
