// SPDX-License-Identifier: MIT
#include "WindowStart.h"

#include "CommandLine.h"
#include "cli/console/CommandText.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <unistd.h>

namespace lumora
{

int startWindow(int argc, char **argv)
{
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
    // Beside this program in a build folder; in libexec when installed.
    for (const char *place : {"lumora-window", LUMORA_WINDOW_FROM_BINDIR}) {
        execv((folder / place).c_str(), argv);
        if (errno != ENOENT && errno != ENOTDIR) {
            const QString reason = qt_error_string(errno);
            return endWithComplaint(argc, argv, ExitStatus::Refused, [&reason] {
                return Complaint{Complaint::Kind::Failure,
                                 QStringLiteral("no-window"),
                                 {},
                                 commandText("CLI_WINDOW_FAILED", {{"[REASON]", reason}}),
                                 {}};
            });
        }
    }
    return endWithComplaint(argc, argv, ExitStatus::Refused, [] {
        return Complaint{Complaint::Kind::Failure,
                         QStringLiteral("no-window"),
                         {},
                         commandText("CLI_NO_WINDOW"),
                         commandText("CLI_NO_WINDOW_ADVICE")};
    });
}

} // namespace lumora
