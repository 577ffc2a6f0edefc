// SPDX-License-Identifier: MIT
#pragma once

namespace lumora
{

/// Replaces this process by the window's program, with the same arguments. It is a program of its own, so that commands
/// start without the libraries of a window, and so that a build server can do without it. Returns only when it is not
/// installed or cannot be started, with the exit status; standard error says what to install. The arguments are
/// main()'s.
int startWindow(int argc, char **argv);

} // namespace lumora
