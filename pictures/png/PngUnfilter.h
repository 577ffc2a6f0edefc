// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumora
{

/// Undoes a PNG row filter in place. `above` is the finished previous row, or zeroes of the same length. `pixelBytes`
/// is 1 to 4. False for a filter that does not exist.
bool unfilterRow(std::uint8_t filter, std::uint8_t *row, const std::uint8_t *above, std::size_t bytes, int pixelBytes);

} // namespace lumora
