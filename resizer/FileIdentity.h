// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lumora
{

/// One path for each file, however it is spelled and through whatever links it is reached; for a file that does not
/// exist yet, the path that it would have.
QString fileIdentity(const QString &path);

} // namespace lumora
