// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine.h"

namespace lumora
{

/// `lumora color TEXT`: a colour text as code in every notation or in one.
CommandBody declareColorCommand(CLI::App &subcommand);

} // namespace lumora
