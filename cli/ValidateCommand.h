// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine.h"

namespace lumora
{

/// `lumora validate`: the facts of app packages and what is wrong with them.
CommandBody declareValidateCommand(CLI::App &subcommand);

} // namespace lumora
