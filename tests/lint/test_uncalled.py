# SPDX-License-Identifier: MIT
"""The program calls each of its functions, or the function is marked as part of the public face with a reason."""

import os
import subprocess
import tempfile
import unittest
from pathlib import Path

from uncalled import (
    PUBLIC_FACE, defined, defined_inline, outdated, problems, program_objects, public_face, uncalled, unnamed_inline_functions
)

SOURCE = Path(os.environ["LUMORA_SOURCE"])
BUILD = Path(os.environ["LUMORA_BUILD"])
COMPILER = os.environ["LUMORA_COMPILER"]

LIBRARY = """
namespace lumora {
struct Shape {
    Shape();
    virtual ~Shape();
    virtual int corners() const;
    int called() const;
    int calledByMain() const;
    int uncalled() const;
    int uncalled(int) const;
    int recursive(int) const;
    static void slot();
};
using Function = void (*)();
Function table[] = {&Shape::slot};
Shape::Shape() {}
Shape::~Shape() {}
int Shape::corners() const { return 4; }
int Shape::called() const { return 1; }
int Shape::calledByMain() const { return called(); }
int Shape::uncalled() const { return 2; }
int Shape::uncalled(int) const { return 3; }
int Shape::recursive(int depth) const { return depth > 0 ? recursive(depth - 1) * depth + depth : 0; }
void Shape::slot() {}
}
"""
MAIN = "namespace lumora { struct Shape { Shape(); virtual ~Shape(); int calledByMain() const; }; }\n" \
       "int main() { return lumora::Shape().calledByMain(); }\n"


class Uncalled(unittest.TestCase):
    def test_the_tree_calls_its_functions(self):
        objects = program_objects(BUILD)
        self.assertGreater(len(objects), 20, "the libraries of the program are not there: build them first")
        nobodys = uncalled(objects) + unnamed_inline_functions(SOURCE)
        marks = public_face(PUBLIC_FACE.read_text("utf-8"))
        print("marks to take away:", ", ".join(outdated(marks, defined(objects) | defined_inline(SOURCE))) or "none")
        found = problems(nobodys, marks)
        self.assertEqual(found, [], "\nremove these, or give a reason in tests/lint/public_face.txt:\n" + "\n".join(found))


class TheCheckItself(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def compile(self, name, text, *options):
        source = self.folder / f"{name}.cpp"
        source.write_text(text)
        subprocess.run([COMPILER, "-std=c++20", "-fPIC", "-c", *options, str(source), "-o", f"{self.folder}/{name}.o"], check=True)
        return self.folder / f"{name}.o"

    def archive(self, name, *objects):
        library = self.folder / name
        subprocess.run(["ar", "qcs", str(library), *map(str, objects)], check=True)
        return library

    def test_functions_that_nothing_calls_are_seen(self):
        for options in (["-O0"], ["-O2"], ["-O2", "-ffunction-sections"]):
            with self.subTest(options):
                library = self.archive(f"lib{len(options)}{options[0]}.a", self.compile("a_file_with_a_long_name", LIBRARY, *options))
                objects = [library, self.compile("main", MAIN, *options)]
                self.assertEqual(uncalled(objects), ["Shape::recursive(int) const", "Shape::uncalled() const", "Shape::uncalled(int) const"])
                self.assertEqual([name for name in uncalled(objects[:1]) if "Main" in name], ["Shape::calledByMain() const"])

    def test_a_call_from_another_library_counts(self):
        caller = "namespace lumora { struct Shape { int uncalled() const; }; }\nint twice(lumora::Shape &s) { return s.uncalled(); }\n"
        objects = [self.compile("library", LIBRARY), self.compile("caller", caller), self.compile("main", MAIN)]
        self.assertNotIn("Shape::uncalled() const", uncalled(objects))

    def test_a_mark_needs_a_reason_and_a_function(self):
        kept = public_face("Shape::slot\n\n# Its reason is given.\nShape::uncalled\nShape::called\nNobody::knows\n")
        self.assertEqual(outdated(kept, defined([self.compile("library", LIBRARY)])), ["Nobody::knows"])
        self.assertEqual(problems(["Shape::uncalled(int) const", "Shape::recursive(int) const"], kept), [
            "Shape::recursive(int) const: nothing calls it",
            "Shape::slot: marked without a reason",
        ])

    def test_an_inline_function_that_nothing_names_is_seen(self):
        (self.folder / "app").mkdir()
        (self.folder / "app/Shape.h").write_text(
            "struct Shape {\n    int sides() const { return m_sides; }\n    int area() const { return m_sides * 2; }\n"
            "    void grow(int by) { m_sides += by; }\n    void shrink(int by) { grow(-by); }\n"
            "    int m_sides;  // area() follows from it\n};\n")
        self.assertEqual(unnamed_inline_functions(self.folder), ["Shape::area() in app/Shape.h", "Shape::shrink() in app/Shape.h"])
        (self.folder / "app/Shape.cpp").write_text("void half(Shape &s) { s.shrink(s.area()); }\n")
        self.assertEqual(unnamed_inline_functions(self.folder), [])


if __name__ == "__main__":
    unittest.main()
