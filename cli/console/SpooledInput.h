// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QString>

namespace lumora
{

/// The longest package that is taken from standard input, in bytes; it lies on the disk while it is read.
inline constexpr qint64 largestSpooledPackage = 8'000'000'000;

/// Copies all that a descriptor gives into a new file, for readers that have to go back and forth. Fails with
/// `TooLarge` past `limit` bytes. `name` is what failures call the descriptor.
Outcome spoolDescriptor(int descriptor, const QString &name, const QString &path, qint64 limit);

} // namespace lumora
