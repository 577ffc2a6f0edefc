// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <cstdint>
#include <span>

namespace lumora
{

/// The bytes as one raw deflate stream, by libdeflate at that level; the same on every run and machine.
QByteArray deflated(std::span<const std::uint8_t> bytes, int level);

/// Turns a finished stream into one that another may follow: its last block is no longer marked as such, and an empty
/// stored block fills it up to a byte's border.
void keepOpen(QByteArray &stream);

} // namespace lumora
