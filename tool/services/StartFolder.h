// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lumora
{

/// Where a chooser opens: the wanted folder, or the user's documents when none is wanted; if that does not exist, the
/// nearest existing folder above it. Never empty, which a dialog would take as the process's current folder.
QString existingStartFolder(const QString &wanted);

} // namespace lumora
