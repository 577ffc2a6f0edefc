# SPDX-License-Identifier: MIT
"""The hardening that the release build asks for is in the built program, as its ELF tables show."""
import re
import unittest

from place import BUILD, run

PROGRAMS = ["lumora", "lumora-window"]


def readelf(program, *options):
    result = run("readelf", "--wide", *options, BUILD / program)
    assert result.returncode == 0, result.stdout
    return result.stdout


class Hardening(unittest.TestCase):
    def check(self, expected, *options):
        for program in PROGRAMS:
            with self.subTest(program):
                self.assertTrue(re.search(expected, readelf(program, *options)), expected)

    def test_they_are_position_independent(self):
        self.check(r"Type:\s+DYN", "--file-header")
        self.check(r"\(FLAGS_1\).*\bPIE\b", "--dynamic")

    def test_relocations_are_read_only_and_bound_at_start(self):
        self.check("GNU_RELRO", "--program-headers")
        self.check(r"\(FLAGS(_1)?\).*\b(BIND_)?NOW\b", "--dynamic")

    def test_the_stack_is_not_executable(self):
        self.check(r"GNU_STACK.* RW +0x", "--program-headers")

    def test_functions_check_their_stack(self):
        self.check("__stack_chk_fail", "--dyn-syms")

    def test_fortified_calls_are_used(self):
        # The set depends on the functions that the code calls.
        self.check(r"\b__(?!stack_)\w+_chk@", "--dyn-syms")

    def test_a_start_binds_no_library_that_few_runs_need(self):
        needed = re.findall(r"\(NEEDED\).*\[(.+)\]", readelf("lumora", "--dynamic"))
        self.assertIn("libQt6Core.so.6", needed)
        self.assertEqual([name for name in needed if name.startswith(("libcrypto", "libtiff"))], [])

    def test_no_search_path_is_built_in_after_installation(self):
        for folder in ("app", "cli"):
            self.assertIn('RPATH ""', (BUILD / folder / "cmake_install.cmake").read_text())


if __name__ == "__main__":
    unittest.main()
