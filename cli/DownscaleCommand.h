// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine.h"

namespace lumora
{

/// `lumora downscale FILE|FOLDER... --to DIR`: halves double-resolution pictures, prints each written path.
CommandBody declareDownscaleCommand(CLI::App &subcommand);

} // namespace lumora
