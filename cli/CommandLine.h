// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Complaint.h"
#include "cli/console/Console.h"

#include <functional>

namespace lumora
{

/// True when the arguments are for the command line, false when they are for the window: there are none, or they begin
/// with an existing file, with --tool, --today or --. All others are for the command line, which suggests what may have
/// been meant.
bool isCommandLine(int argc, const char *const *argv);

/// Runs the command line and returns the exit status. Makes its own application object.
int runCommandLine(int argc, char **argv);

/// Ends a program without an application object: prints one line on stderr, which `complaint` words once the texts of
/// the user's language are loaded. Returns the exit status.
int endWithComplaint(int argc, char **argv, ExitStatus status, const std::function<Complaint()> &complaint);

} // namespace lumora
