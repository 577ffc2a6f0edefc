# SPDX-License-Identifier: MIT
"""Every picture that is compiled in is shown somewhere."""

import os
import tempfile
import unittest
from pathlib import Path

from shown_pictures import LIST, not_compiled_in, shown_nowhere

SOURCE = Path(os.environ["LUMORA_SOURCE"])

# The ways to name a picture; each is enough for "window_close_pressed".
NAMINGS = {
    "a literal": ("app/Header.cpp", 'NamedImage(u"window_close_pressed"_s);'),
    "a path in a style sheet": ("app/Header.cpp", '"QFrame { image: url(:/images/window_close_pressed.svg); }"'),
    "an interface file's text": ("resources/interfaces/Pane.ui", "<string notr=\"true\">window_close_pressed</string>"),
    "pieces with a letter between": ("widgets/Button.cpp", 'u"window_"_s + kind + u\'_\' + "pressed"; f("close");'),
    "a beginning and a word": ("widgets/Button.cpp", 'u"window_close_"_s + state; f("pressed");'),
    "a word and an end": ("widgets/Button.cpp", 'f(u"window_close"_s); stem + u"_pressed"_s;'),
}
NOT_NAMINGS = {
    "nothing": ("app/Header.cpp", ""),
    "a comment": ("app/Header.cpp", '// NamedImage("window_close_pressed")'),
    "a test": ("tests/app/HeaderTest.cpp", 'NamedImage(u"window_close_pressed"_s);'),
    "a longer name": ("app/Header.cpp", '"window_close_pressed_twice"'),
    "a beginning alone": ("widgets/Button.cpp", '"window_close_"'),
    "an end that nobody joins": ("widgets/Button.cpp", 'f("close_pressed", "window");'),
}


class ShownPictures(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.write(str(LIST), '<RCC><qresource><file alias="window_close_pressed.svg">window_close_pressed.svg</file></qresource></RCC>')
        self.write("resources/images/window_close_pressed.svg", "<svg/>")

    def write(self, name, text):
        (self.folder / name).parent.mkdir(parents=True, exist_ok=True)
        (self.folder / name).write_text(text)

    def test_the_tree_shows_all_of_its_pictures(self):
        self.assertEqual(shown_nowhere(SOURCE), [])
        self.assertEqual(not_compiled_in(SOURCE), [])

    def test_each_way_to_name_a_picture_counts(self):
        for naming, (file, text) in NAMINGS.items():
            with self.subTest(naming):
                self.write(file, text)
                self.assertEqual(shown_nowhere(self.folder), [])
                (self.folder / file).unlink()

    def test_each_picture_shown_nowhere_is_seen(self):
        for fault, (file, text) in NOT_NAMINGS.items():
            with self.subTest(fault):
                self.write(file, text)
                self.assertEqual(shown_nowhere(self.folder), ["window_close_pressed.svg"])
                (self.folder / file).unlink()

    def test_a_picture_left_out_of_the_list_is_seen(self):
        self.assertEqual(not_compiled_in(self.folder), [])
        self.write("resources/images/left_out.svg", "<svg/>")
        self.assertEqual(not_compiled_in(self.folder), ["left_out.svg"])


if __name__ == "__main__":
    unittest.main()
