# SPDX-License-Identifier: MIT
"""The flags of a packager's configuration: our own hardening, but nothing that conflicts with the packager's."""
import tempfile
import unittest
from pathlib import Path

from place import SOURCE, run


def build_rules(*options):
    """The build rules of a release build with these options."""
    with tempfile.TemporaryDirectory() as folder:
        result = run(
            "cmake", "-G", "Ninja", "-S", SOURCE, "-B", folder, "-DCMAKE_BUILD_TYPE=Release", "-DLUMORA_TESTS=OFF", *options
        )
        assert result.returncode == 0, result.stdout
        return (Path(folder) / "build.ninja").read_text()


class CompilerFlags(unittest.TestCase):
    def test_without_options_it_is_guarded_and_warnings_are_no_errors(self):
        rules = build_rules()
        self.assertIn("-D_FORTIFY_SOURCE=2", rules)
        self.assertIn("-fstack-protector-strong", rules)
        self.assertNotIn("-Werror", rules)

    def test_a_packagers_level_of_fortification_stays(self):
        rules = build_rules("-DCMAKE_CXX_FLAGS=-D_FORTIFY_SOURCE=3")
        self.assertIn("-D_FORTIFY_SOURCE=3", rules)
        self.assertNotIn("_FORTIFY_SOURCE=2", rules)

    def test_a_flag_that_the_compiler_does_not_know_is_left_out(self):
        known = "LUMORA_COMPILER_KNOWS_fcf_protection"
        self.assertIn("-fcf-protection", build_rules(f"-D{known}=ON"))
        self.assertNotIn("-fcf-protection", build_rules(f"-D{known}=OFF"))

    def test_development_stops_at_the_first_warning(self):
        self.assertIn("-Werror", build_rules("-DLUMORA_WARNINGS_AS_ERRORS=ON"))


if __name__ == "__main__":
    unittest.main()
