// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lumora
{

/// Where a chooser opens: the wanted folder or, where that has gone since, the nearest one above it that exists; the
/// user's documents when none is wanted.
QString existingStartFolder(const QString &wanted);

} // namespace lumora
