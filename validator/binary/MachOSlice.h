// SPDX-License-Identifier: MIT
#pragma once

#include "MachOReader.h"

#include <QByteArrayView>

#include <optional>

namespace lumora
{

/// One architecture of a binary: its header, its load commands and what they point at inside the slice's bytes. The
/// caller sets `BinarySlice::range`. Empty when the bytes do not begin with a Mach-O header.
std::optional<BinarySlice> readMachOSlice(QByteArrayView bytes, const BinaryLimits &limits);

} // namespace lumora
