// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Console.h"

namespace lumora
{

struct IconExport;

/// Prints the written files of an export and complains about the others: about the first failure in full, about the
/// rest by the names of the missing files. `expected` is the planned number of files. Ends the command.
ExitStatus reportIcons(Console &console, const IconExport &result, qsizetype expected);

} // namespace lumora
