// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Console.h"

namespace lumora
{

struct IconExport;

/// Prints what an export wrote and complains about what it could not: the first failure whole, the rest by the names of
/// the files that are missing. `expected` is how many files were to be written. Ends the command.
ExitStatus reportIcons(Console &console, const IconExport &result, qsizetype expected);

} // namespace lumora
