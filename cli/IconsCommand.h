// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine.h"

namespace lumora
{

/// `lumora icons`: the icon sets of whole platforms from one picture.
CommandBody declareIconsCommand(CLI::App &subcommand);

} // namespace lumora
