// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace lumora
{

class PngRows;

/// How the rows of a section are filtered.
enum class PngFilterChoice {
    ByEntropy,   ///< each row by the filter that leaves residues of the fewest bits, were each coded by itself
    ByMagnitude, ///< each row by the smallest sum of residues, read as signed bytes: faster, and less often right
    Left,        ///< what each pixel differs by from the one to its left
    Up,          ///< from the one above
    Average,     ///< from the mean of both
    None,        ///< as they are, which lets repeated shapes be found
};

/// Rows from `first` up to, not including, `end`.
struct RowRange
{
    int first = 0;
    int end = 0;
};

/// Rows of a picture, one range after the other, as PNG stores them before compression: each row led by the number of
/// its filter.
std::vector<std::uint8_t> filteredRows(const PngRows &picture, std::span<const RowRange> ranges,
                                       PngFilterChoice choice);

/// Of rows as `PngFilterChoice::None` gives them, the share of pixels that differ from the one to their left and from
/// the one above: 0 for one color, near 1 for a photograph.
double novelty(const std::vector<std::uint8_t> &rows, int width);

} // namespace lumora
