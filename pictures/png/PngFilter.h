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
    ByEntropy,   ///< each row by the filter whose residues take the fewest bits when each byte is coded by itself
    ByMagnitude, ///< each row by the smallest sum of residues, read as signed bytes: faster, less often the best choice
    Left,        ///< the difference from the pixel to the left
    Up,          ///< the difference from the pixel above
    Average,     ///< the difference from the mean of both
    None,        ///< unfiltered, so that the compressor finds repeated shapes
};

/// Rows from `first` up to, not including, `end`.
struct RowRange
{
    int first = 0;
    int end = 0;
};

/// The rows of a picture, one range after the other, as PNG stores them before compression: each begins with the number
/// of its filter.
std::vector<std::uint8_t> filteredRows(const PngRows &picture, std::span<const RowRange> ranges,
                                       PngFilterChoice choice);

/// The share of pixels that differ both from their left and from their upper neighbor, in rows filtered by
/// `PngFilterChoice::None`: 0 for one color, near 1 for a photograph.
double novelty(const std::vector<std::uint8_t> &rows, int width);

} // namespace lumora
