# SPDX-License-Identifier: MIT
"""The tree keeps its borders, and the check sees each kind of border crossed."""
import os
import subprocess
import tempfile
import unittest
from pathlib import Path

import layers

SOURCE = Path(os.environ["LUMORA_SOURCE"])


def qt_widgets_headers():
    folder = subprocess.run(
        ["pkg-config", "--variable=includedir", "Qt6Widgets"], stdout=subprocess.PIPE, text=True, check=True
    ).stdout.strip()
    names = {path.name for path in (Path(folder) / "QtWidgets").iterdir()}
    assert "QWidget" in names
    return names


# File, its text, and the target that lists it; together a small tree that keeps every rule.
SOUND = {
    "foundation/Base.h": ("", "lumora_engine(lumora_foundation"),
    "widgets/Button.h": ('#include <QWidget>\n#include "foundation/Base.h"\n', "lumora_widget_library(lumora_widgets"),
    "icons/Engine.h": ('#include "foundation/Base.h"\n#include <QImage>\n', "lumora_engine(lumora_icons_engine"),
    "icons/Pane.h": ('#include "Engine.h"\n#include "widgets/Button.h"\n', "lumora_widget_library(lumora_icons_pane"),
    "color/Pane.h": ('#include "icons/Engine.h"\n', "lumora_widget_library(lumora_color_pane"),
    "app/DropView.h": ('#include "widgets/Button.h"\n', "lumora_widget_library(lumora_tool"),
    "app/Shell.h": ('#include "icons/Pane.h"\n#include "color/Pane.h"\n', "lumora_widget_library(lumora_shell"),
    "cli/Command.h": ('#include "icons/Engine.h"\n', "lumora_engine(lumora_cli"),
}

FAULTS = {
    "an engine includes Qt Widgets": ("icons/Engine.h", "#include <QLabel>", "engines know no widgets"),
    "an engine includes Qt Widgets by module": ("icons/Engine.h", "#include <QtWidgets/QLabel>", "engines know no widgets"),
    "an engine includes a control": ("icons/Engine.h", '#include "widgets/Button.h"', "engines know no widgets"),
    "a command includes a pane": ("cli/Command.h", '#include "icons/Pane.h"', "engines know no widgets"),
    "a control includes an engine": ("widgets/Button.h", '#include "icons/Engine.h"', "the widget kit knows no tool"),
    "a control includes the application": ("widgets/Button.h", '#include "app/DropView.h"', "the widget kit knows no tool"),
    "a pane includes another": ("color/Pane.h", '#include "icons/Pane.h"', "a tool knows no other tool's pane"),
    "a pane includes the shell": ("color/Pane.h", '#include "app/Shell.h"', "a pane knows nothing of the window"),
    "the panes' base includes a pane": ("app/DropView.h", '#include "color/Pane.h"', "what panes stand on knows no pane"),
    "the foundation includes an engine": ("foundation/Base.h", '#include "icons/Engine.h"', "the foundation stands on"),
}


def write_tree(folder, files):
    lists = {}
    for name, (text, target) in files.items():
        file = folder / name
        file.parent.mkdir(exist_ok=True)
        file.write_text(text)
        lists.setdefault(file.parent, []).append(f"{target} SOURCES {file.name})\n")
    for parent, lines in lists.items():
        (parent / "CMakeLists.txt").write_text("".join(lines))


class Borders(unittest.TestCase):
    def test_the_tree_keeps_them(self):
        found = list(layers.violations(SOURCE, qt_widgets_headers()))
        self.assertEqual(found, [], "\n" + "\n".join(found))

    def test_every_source_file_belongs_to_a_target(self):
        self.assertEqual(layers.orphans(SOURCE), [])


class TheCheckItself(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def test_it_has_nothing_against_a_sound_tree(self):
        write_tree(self.folder, SOUND)
        self.assertEqual(list(layers.violations(self.folder, {"QWidget", "QLabel"})), [])
        self.assertEqual(layers.orphans(self.folder), [])

    def test_it_sees_each_fault(self):
        for fault, (file, line, reason) in FAULTS.items():
            with self.subTest(fault):
                text, target = SOUND[file]
                write_tree(self.folder, SOUND | {file: (f"{text}{line}\n", target)})
                found = list(layers.violations(self.folder, {"QWidget", "QLabel"}))
                self.assertTrue(any(sentence.startswith(file) and reason in sentence for sentence in found), found)

    def test_it_sees_a_fault_through_a_header(self):
        write_tree(self.folder, SOUND | {"icons/More.h": ("#include <QLabel>\n", "lumora_engine(lumora_icons_engine")})
        (self.folder / "icons/Engine.h").write_text('#include "More.h"\n')
        found = list(layers.violations(self.folder, {"QWidget", "QLabel"}))
        self.assertIn("cli/Command.h includes QLabel through icons/Engine.h through icons/More.h: engines know no widgets", found)

    def test_it_sees_a_file_that_no_target_lists(self):
        write_tree(self.folder, SOUND)
        (self.folder / "color/Forgotten.cpp").write_text("")
        self.assertEqual(layers.orphans(self.folder), ["color/Forgotten.cpp"])


if __name__ == "__main__":
    unittest.main()
