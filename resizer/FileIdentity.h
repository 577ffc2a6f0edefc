// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lumora
{

/// The same path for the same file, whatever the spelling and the links in it; for a file that does not exist yet, the
/// path that it would have.
QString fileIdentity(const QString &path);

} // namespace lumora
