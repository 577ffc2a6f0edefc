// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <cstdint>
#include <span>

namespace lumora
{

/// The bytes as one raw deflate stream, by libdeflate at that level; the same on every run and machine.
QByteArray deflated(std::span<const std::uint8_t> bytes, int level);

/// Turns a finished stream into one that another may follow: clears the mark of its last block and adds an empty stored
/// block, which ends at a byte boundary.
void keepOpen(QByteArray &stream);

} // namespace lumora
