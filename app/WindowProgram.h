// SPDX-License-Identifier: MIT
#pragma once

namespace lumora
{

/// Opens the window and runs until it is closed; answers the exit status. With a window open already, hands over what
/// was asked for and returns.
int runWindow(int argc, char **argv);

} // namespace lumora
