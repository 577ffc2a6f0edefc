// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lumora
{

/// Where a chooser opens: the wanted folder, the user's documents when none is wanted; where that does not exist, the
/// nearest one above it that does. Never nothing, which a dialog takes for the process's current folder.
QString existingStartFolder(const QString &wanted);

} // namespace lumora
