// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Console.h"

namespace lumora
{

struct PlaceholderRun;

/// Prints the folder and the written pictures, complains of the others, and ends the command. `expected` is the number
/// of pictures that a run writes when nobody interrupts it.
ExitStatus reportPlaceholders(Console &console, const PlaceholderRun &run, qsizetype expected);

} // namespace lumora
