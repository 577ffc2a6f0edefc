// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine.h"

namespace lumora
{

/// `lumora devices`: the models that run an iOS version and have the wanted features.
CommandBody declareDevicesCommand(CLI::App &subcommand);

} // namespace lumora
