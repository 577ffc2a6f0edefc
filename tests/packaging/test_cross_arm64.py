# SPDX-License-Identifier: MIT
"""Both programs compile for 64-bit ARM with Debian's cross compiler, and the command runs in an emulator.

Runs only with `./test -C Cross -L cross`: it makes a system of its own below the build folder, with a gigabyte of packages from the
mirror that this machine itself uses, and compiles everything again. Needs root.
"""
import os
import unittest

from build_root import BuildRoot
from place import BUILD, SOURCE, VERSION, run

PLACE = BUILD / "cross-arm64"
# Programs that run during the build are this machine's; libraries are the other's.
TOOLS = [
    "ca-certificates", "cmake", "ninja-build", "pkg-config", "crossbuild-essential-arm64", "qt6-base-dev-tools", "qt6-tools-dev-tools",
    "qt6-l10n-tools", "python3", "qemu-user", "qt6-base-dev", "qt6-tools-dev",
]
# The settings of cmake for the other machine; CMAKE_LIBRARY_ARCHITECTURE is the name of Debian's folders for it.
TOOLCHAIN = """set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
set(PKG_CONFIG_EXECUTABLE /usr/bin/aarch64-linux-gnu-pkg-config)
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)
"""


def target_libraries():
    lines = (SOURCE / "packaging/build-packages.txt").read_text().splitlines()
    names = {line.split("#")[0].strip() for line in lines}
    return sorted(f"{name}:arm64" for name in names if name.endswith("-dev"))


@unittest.skipIf(os.geteuid() != 0, "a system of its own needs root")
class CrossCompile(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.system = BuildRoot(PLACE, [*TOOLS, *target_libraries()], "amd64,arm64")
        (cls.system.root / "arm64.cmake").write_text(TOOLCHAIN)

    def test_1_it_configures_and_compiles_without_a_warning(self):
        made = self.system.run(
            "cmake", "-G", "Ninja", "-S", "/source", "-B", "/build", "-DCMAKE_TOOLCHAIN_FILE=/arm64.cmake", "-DCMAKE_BUILD_TYPE=Release",
            "-DLUMORA_TESTS=OFF", "-DLUMORA_WARNINGS_AS_ERRORS=ON",
        )
        self.assertEqual(made.returncode, 0, made.stdout[-4000:])
        built = self.system.run("ninja", "-C", "/build", "lumora", "lumora-window")
        self.assertEqual(built.returncode, 0, built.stdout[-4000:])

    def test_2_the_programs_are_the_other_machines_and_guarded(self):
        for name in ("lumora", "lumora-window"):
            header = run("readelf", "--file-header", PLACE / "build" / name).stdout
            self.assertRegex(header, r"Machine:\s+AArch64")
            notes = run("readelf", "--wide", "--dyn-syms", PLACE / "build" / name).stdout
            self.assertIn("__stack_chk_fail", notes)

    def test_3_the_command_runs_in_an_emulator(self):
        said = self.system.run("qemu-aarch64", "/build/lumora", "--version")
        self.assertEqual(said.stdout, f"lumora {VERSION}\n")
        code = self.system.run("qemu-aarch64", "/build/lumora", "color", "#34485e", "--as", "hex")
        self.assertEqual(code.stdout.strip(), "#34485e")


if __name__ == "__main__":
    unittest.main()
