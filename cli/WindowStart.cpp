// SPDX-License-Identifier: MIT
#include "WindowStart.h"

#include "Console.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>

#include <unistd.h>

namespace lumora
{

int startWindow(char **argv)
{
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
    // Beside this program in a build folder, in the folder of programs for programs where it is installed.
    for (const char *place : {"lumora-window", LUMORA_WINDOW_FROM_BINDIR}) {
        execv((folder / place).c_str(), argv);
        if (errno != ENOENT && errno != ENOTDIR) {
            std::fprintf(stderr, "lumora: the window could not be started: %s\n", std::strerror(errno));
            return static_cast<int>(ExitStatus::Refused);
        }
    }
    std::fputs("lumora: the window is not installed; install the package \"lumora\", or see \"lumora --help\" for the"
               " commands, which work without it\n",
               stderr);
    return static_cast<int>(ExitStatus::Refused);
}

} // namespace lumora
