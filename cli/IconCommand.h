// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine.h"

namespace lumora
{

/// `lumora icon`: one icon of a custom size, with or without rounded corners.
CommandBody declareIconCommand(CLI::App &subcommand);

} // namespace lumora
