// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

namespace lumora
{

class PngRows;

/// Rows `first` up to, not including, `end` of a picture as PNG stores them before compression: each row led by the
/// number of its filter. Of the five filters each row takes the one whose residues, read as signed bytes, have the
/// smallest sum of magnitudes.
std::vector<std::uint8_t> filteredRows(const PngRows &picture, int first, int end);

} // namespace lumora
