// SPDX-License-Identifier: MIT
#pragma once

#include "MachOLoadCommands.h"

#include <QByteArrayView>

#include <optional>

namespace lumora
{

/// One architecture of a binary: its header, its load commands and what they point at inside the slice's bytes. The
/// caller sets `BinarySlice::range`. Empty when the bytes do not begin with a Mach-O header.
std::optional<BinarySlice> readMachOSlice(QByteArrayView bytes, const BinaryLimits &limits);

/// The header and the load commands of a slice, without what they point at.
struct SliceLayout
{
    BinarySlice facts;
    NamePlaces places;
    ByteOrder order = ByteOrder::Little;
};

/// Empty when the bytes do not begin with a Mach-O header.
std::optional<SliceLayout> readSliceLayout(QByteArrayView bytes, const BinaryLimits &limits);

/// The length of the header and the load commands, as the header states it; 0 without such a header. The first
/// `sliceHeaderSize` bytes are enough for it.
quint64 sliceLayoutSize(QByteArrayView bytes);
constexpr quint64 sliceHeaderSize = 32;

/// Whether the section has the texts of Objective-C names that are read.
bool hasObjectiveCNames(const BinarySection &section);

} // namespace lumora
