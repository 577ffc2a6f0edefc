// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QString>

namespace lumora
{

/// The longest package that is read from standard input, in bytes; it is on disk while it is read.
inline constexpr qint64 largestSpooledPackage = 8'000'000'000;

/// Copies everything from a descriptor into a new file, for readers that need to seek. Fails with `TooLarge` beyond
/// `limit` bytes. `name` is the subject of failures.
Outcome spoolDescriptor(int descriptor, const QString &name, const QString &path, qint64 limit);

} // namespace lumora
