// SPDX-License-Identifier: MIT
#pragma once

#include "Console.h"

namespace lumora
{

struct IconExport;

enum class IconReportForm { Text, Json };

/// Prints what an export wrote and complains about what it could not: the first failure whole, the rest by the names of
/// the files that are missing.
ExitStatus reportIcons(Console &console, const IconExport &result, IconReportForm form);

} // namespace lumora
