// SPDX-License-Identifier: MIT
#pragma once

#include "BinaryFacts.h"

#include <QByteArrayView>

#include <optional>

namespace lumora
{

/// How much of a binary is taken in. Real ones stay far below.
struct BinaryLimits
{
    qsizetype slices = 32;
    qsizetype loadCommands = 20'000;
    qsizetype symbols = 2'000'000;             ///< entries of a slice's table that are looked at
    qsizetype nameBytes = qsizetype{24} << 20; ///< of all names that are kept of a slice
    qsizetype nameLength = 16 << 10;           ///< a longer name is cut
};

/// True when the bytes begin as a Mach-O file or a fat file around some does.
bool isMachO(QByteArrayView bytes);

/// True when the bytes begin as a static library does.
bool isStaticArchive(QByteArrayView bytes);

/// The facts of a Mach-O file, thin or fat, of either byte order and width; nothing when the bytes are no such file.
/// Time and memory are bounded whatever the file says: each byte is looked at a fixed number of times at the most, and
/// what the limits cut off is a fault.
std::optional<BinaryFacts> readMachO(QByteArrayView bytes, const BinaryLimits &limits = {});

} // namespace lumora
