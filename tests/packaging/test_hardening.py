# SPDX-License-Identifier: MIT
"""The guards that the release build asks for are in the program that came out; read from its ELF tables."""
import re
import unittest

from place import BUILD, run

PROGRAM = BUILD / "lumora"


def readelf(*options):
    result = run("readelf", "--wide", *options, PROGRAM)
    assert result.returncode == 0, result.stdout
    return result.stdout


class Hardening(unittest.TestCase):
    def test_it_is_position_independent(self):
        self.assertRegex(readelf("--file-header"), r"Type:\s+DYN")
        self.assertRegex(readelf("--dynamic"), r"\(FLAGS_1\).*\bPIE\b")

    def test_relocations_are_read_only_and_bound_at_start(self):
        self.assertIn("GNU_RELRO", readelf("--program-headers"))
        self.assertRegex(readelf("--dynamic"), r"\(FLAGS(_1)?\).*\b(BIND_)?NOW\b")

    def test_the_stack_is_not_executable(self):
        self.assertRegex(readelf("--program-headers"), r"GNU_STACK.* RW +0x")

    def test_functions_check_their_stack(self):
        self.assertIn("__stack_chk_fail", readelf("--dyn-syms"))

    def test_fortified_calls_are_used(self):
        # Which ones they are depends on what the code calls; formatting into a buffer is always among them.
        self.assertIn("vsnprintf", re.findall(r"\b__(\w+)_chk\b", readelf("--dyn-syms")))

    def test_no_search_path_is_built_in_after_installation(self):
        script = (BUILD / "app" / "cmake_install.cmake").read_text()
        self.assertIn('RPATH ""', script)


if __name__ == "__main__":
    unittest.main()
