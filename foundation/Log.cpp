// SPDX-License-Identifier: MIT
#include "Log.h"

namespace lumora
{

Q_LOGGING_CATEGORY(lumoraLog, "lumora")

void logLine(const QString &line)
{
    qCInfo(lumoraLog).noquote() << line;
}

} // namespace lumora
