// SPDX-License-Identifier: MIT
#pragma once

namespace lumora
{

/// Opens the window and runs until it is closed; returns the exit status. If a window is already open, passes the
/// request to it and returns.
int runWindow(int argc, char **argv);

} // namespace lumora
