// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>

namespace lumora
{

/// How far the bytes are from all being equally frequent: the sum of n * log2(n) over the counts n of all values, in
/// fixed point. Of several rows of the same length, the row with the largest sum takes the fewest bits when each byte
/// is coded by itself. All arithmetic is in integers, so that the same row wins on every machine.
std::uint64_t orderliness(std::span<const std::uint8_t> bytes);

} // namespace lumora
