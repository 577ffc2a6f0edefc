// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>
#include <QString>

namespace lumora
{

/// The category of every line that `logLine` writes; the command line switches it off, tests listen to it.
Q_DECLARE_LOGGING_CATEGORY(lumoraLog)

/// Writes one plain line to the system log: the journal where the program runs under it, else stderr. Safe on any
/// thread.
void logLine(const QString &line);

} // namespace lumora
