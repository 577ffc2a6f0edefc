// SPDX-License-Identifier: MIT
#pragma once

#include "InspectionResults.h"
#include "ReaderProcess.h"

namespace lumora
{

/// Unpacks and inspects the package in a process of its own, as `readInProcess` does. Whatever that process leaves in
/// the work folder is removed.
std::optional<ReaderEnd> inspectInProcess(const ReaderOrder &order, const QString &workFolder, int iconScale,
                                          const std::stop_token &stop, const InspectionResults &results);

} // namespace lumora
