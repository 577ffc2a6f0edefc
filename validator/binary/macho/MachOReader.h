// SPDX-License-Identifier: MIT
#pragma once

#include "validator/binary/BinaryFacts.h"

#include <QByteArrayView>

#include <optional>

namespace lumora
{

/// The limits of reading a binary, far above those of real ones.
struct BinaryLimits
{
    qsizetype slices = 32;
    qsizetype loadCommands = 20'000;
    qsizetype symbols = 2'000'000;             ///< entries of a slice's table that are read
    qsizetype nameBytes = qsizetype{24} << 20; ///< bytes of all names that are kept of a slice
    qsizetype nameLength = 16 << 10;           ///< longer names are cut
};

/// True when the bytes begin like a Mach-O file or a fat file.
bool isMachO(QByteArrayView bytes);

/// True when the bytes begin like a static library.
bool isStaticArchive(QByteArrayView bytes);

/// The places of the slices that are read. Of the bytes, only the first `fatHeaderSize` are looked at.
QList<FileRange> sliceRanges(QByteArrayView bytes, const BinaryLimits &limits = {});
constexpr quint64 fatHeaderSize = 8 + 32 * 32;

/// The facts of a Mach-O file, thin or fat, of either byte order and width; empty when the bytes are not such a file.
/// Time and memory are bounded whatever the file contains: each byte is read at most a fixed number of times, and
/// exceeding a limit is a fault.
std::optional<BinaryFacts> readMachO(QByteArrayView bytes, const BinaryLimits &limits = {});

} // namespace lumora
