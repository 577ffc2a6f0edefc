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
    "resources/Names.h": ('#include "foundation/Base.h"\n', "lumora_engine(lumora_resources"),
    "pictures/Picture.h": ('#include "foundation/Base.h"\n#include <QImage>\n', "lumora_engine(lumora_pictures"),
    "pictures/png/Png.h": ("#include <QImage>\n", "lumora_engine(lumora_pictures"),
    "widgets/Button.h": ('#include <QWidget>\n#include "foundation/Base.h"\n', "lumora_widget_library(lumora_widgets"),
    "tool/DropView.h": ('#include "widgets/Button.h"\n', "lumora_widget_library(lumora_tool"),
    "icons/Engine.h": ('#include "foundation/Base.h"\n#include "pictures/Picture.h"\n', "lumora_engine(lumora_icons_engine"),
    "icons/Pane.h": ('#include "Engine.h"\n#include "tool/DropView.h"\n', "lumora_widget_library(lumora_icons_pane"),
    "color/Engine.h": ("", "lumora_engine(lumora_color_engine"),
    "color/Pane.h": ('#include "Engine.h"\n#include "tool/DropView.h"\n', "lumora_widget_library(lumora_color_pane"),
    "app/Shell.h": ('#include "icons/Pane.h"\n#include "color/Pane.h"\n', "lumora_widget_library(lumora_shell"),
    "cli/Command.h": ('#include "icons/Engine.h"\n', "lumora_engine(lumora_cli"),
}

FAULTS = {
    "an engine includes Qt Widgets": ("icons/Engine.h", "#include <QLabel>", "engines know no widgets"),
    "an engine includes Qt Widgets by module": ("icons/Engine.h", "#include <QtWidgets/QLabel>", "engines know no widgets"),
    "an engine includes a control": ("icons/Engine.h", '#include "widgets/Button.h"', "engines know no widgets"),
    "an engine includes another tool's": ("color/Engine.h", '#include "icons/Engine.h"', "a tool knows no other tool"),
    "a command includes a pane": ("cli/Command.h", '#include "icons/Pane.h"', "engines know no widgets"),
    "the picture library includes a tool": ("pictures/Picture.h", '#include "color/Engine.h"', "pictures/ is below color/"),
    "the picture library includes a text": ("pictures/Picture.h", '#include "resources/Names.h"', "is on one floor with"),
    "a control includes an engine": ("widgets/Button.h", '#include "color/Engine.h"', "widgets/ is below color/"),
    "a control includes the panes' base": ("widgets/Button.h", '#include "tool/DropView.h"', "widgets/ is below tool/"),
    "a pane includes another": ("color/Pane.h", '#include "icons/Pane.h"', "a tool knows no other tool"),
    "a pane includes another tool's engine": ("color/Pane.h", '#include "icons/Engine.h"', "a tool knows no other tool"),
    "a pane includes the shell": ("color/Pane.h", '#include "app/Shell.h"', "color/ is below app/"),
    "a command includes the shell's texts": ("cli/Command.h", '#include "app/Shell.h"', "engines know no widgets"),
    "the panes' base includes a pane": ("tool/DropView.h", '#include "color/Pane.h"', "tool/ is below color/"),
    "the foundation includes an engine": ("foundation/Base.h", '#include "color/Engine.h"', "foundation/ is below color/"),
}


def write_tree(folder, files):
    lists = {}
    for name, (text, target) in files.items():
        file = folder / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text)
        lists.setdefault(file.parent, []).append(f"{target} SOURCES {file.name})\n")
    for parent, lines in lists.items():
        (parent / "CMakeLists.txt").write_text("".join(lines))


class Borders(unittest.TestCase):
    def test_the_tree_keeps_them(self):
        found = list(layers.violations(SOURCE, qt_widgets_headers()))
        self.assertEqual(found, [], "\n" + "\n".join(found))

    def test_no_include_runs_in_a_circle(self):
        self.assertEqual(list(layers.circles(SOURCE)), [])

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

    def test_it_sees_a_circle_of_rooms(self):
        write_tree(self.folder, SOUND)
        self.assertEqual(list(layers.circles(self.folder)), [])
        target = "lumora_engine(lumora_pictures"
        write_tree(self.folder, SOUND | {"pictures/png/Png.h": ('#include "pictures/Picture.h"\n', target)})
        self.assertEqual(list(layers.circles(self.folder)), [])
        (self.folder / "pictures/Picture.h").write_text('#include "png/Row.h"\n')
        (self.folder / "pictures/png/Row.h").write_text("")
        (self.folder / "pictures/png/CMakeLists.txt").write_text(f"{target} SOURCES Png.h Row.h)\n")
        room = "pictures (lumora_pictures)"
        self.assertEqual(
            list(layers.circles(self.folder)), [f"{room} -> pictures/png (lumora_pictures) -> {room}: a circle"]
        )

    def test_a_tool_is_two_rooms(self):
        write_tree(self.folder, SOUND)
        (self.folder / "color/picker").mkdir()
        (self.folder / "color/picker/Wheel.h").write_text('#include "color/Engine.h"\n')
        (self.folder / "color/picker/CMakeLists.txt").write_text("lumora_widget_library(lumora_color_pane SOURCES Wheel.h)\n")
        (self.folder / "color/Pane.h").write_text('#include "picker/Wheel.h"\n')
        self.assertEqual(list(layers.circles(self.folder)), [])

    def test_it_sees_a_circle_of_files(self):
        target = "lumora_engine(lumora_color_engine"
        circle = {
            "color/Engine.h": ('#include "Form.h"\n', target),
            "color/Form.h": ('#include "Code.h"\n', target),
            "color/Code.h": ('#include "Engine.h"\n', target),
        }
        write_tree(self.folder, circle)
        found = list(layers.circles(self.folder))
        self.assertEqual(found, ["color/Code.h -> color/Engine.h -> color/Form.h -> color/Code.h: a circle"])

    def test_it_sees_a_file_that_no_target_lists(self):
        write_tree(self.folder, SOUND)
        (self.folder / "color/Forgotten.cpp").write_text("")
        self.assertEqual(layers.orphans(self.folder), ["color/Forgotten.cpp"])


if __name__ == "__main__":
    unittest.main()
