// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Complaint.h"
#include "cli/console/Console.h"

#include <functional>

namespace lumora
{

/// True when the arguments are for the command line, false when they ask for the window: there are none, or they begin
/// with a file that exists, with --tool or with --. What is neither is the command line's, which says what may have
/// been meant.
bool isCommandLine(int argc, const char *const *argv);

/// Runs the command line and answers the exit status. Makes its own application object.
int runCommandLine(int argc, char **argv);

/// Ends a program that has no application object yet: one line on stderr, worded by `complaint` once the texts of the
/// user's language are there. Answers the exit status.
int endWithComplaint(int argc, char **argv, ExitStatus status, const std::function<Complaint()> &complaint);

} // namespace lumora
