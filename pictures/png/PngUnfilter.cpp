// SPDX-License-Identifier: MIT
#include "PngUnfilter.h"

#include "Paeth.h"

#include <array>

namespace lumora
{

namespace
{

enum Filter : std::uint8_t { None = 0, Sub = 1, Up = 2, Average = 3, Paeth = 4 };

void undoUp(std::uint8_t *row, const std::uint8_t *above, std::size_t bytes)
{
    for (std::size_t i = 0; i < bytes; ++i)
        row[i] = static_cast<std::uint8_t>(row[i] + above[i]);
}

/// Runs a filter that uses the previous pixel; the channels stay in registers from one pixel to the next.
template <int PixelBytes, typename Predict>
void undoWithLeft(std::uint8_t *row, const std::uint8_t *above, std::size_t bytes, Predict predict)
{
    std::array<int, PixelBytes> left{};
    std::array<int, PixelBytes> aboveLeft{};
    for (std::size_t i = 0; i + PixelBytes <= bytes; i += PixelBytes) {
        for (std::size_t channel = 0; channel < PixelBytes; ++channel) {
            const int upper = above[i + channel];
            const int value = (row[i + channel] + predict(left[channel], upper, aboveLeft[channel])) & 255;
            row[i + channel] = static_cast<std::uint8_t>(value);
            left[channel] = value;
            aboveLeft[channel] = upper;
        }
    }
}

template <int PixelBytes>
bool undo(std::uint8_t filter, std::uint8_t *row, const std::uint8_t *above, std::size_t bytes)
{
    switch (filter) {
    case None:
        return true;
    case Sub:
        undoWithLeft<PixelBytes>(row, above, bytes, [](int left, int, int) { return left; });
        return true;
    case Up:
        undoUp(row, above, bytes);
        return true;
    case Average:
        undoWithLeft<PixelBytes>(row, above, bytes, [](int left, int up, int) { return (left + up) / 2; });
        return true;
    case Paeth:
        undoWithLeft<PixelBytes>(row, above, bytes,
                                 [](int left, int up, int upperLeft) { return paeth(left, up, upperLeft); });
        return true;
    default:
        return false;
    }
}

} // namespace

bool unfilterRow(std::uint8_t filter, std::uint8_t *row, const std::uint8_t *above, std::size_t bytes, int pixelBytes)
{
    switch (pixelBytes) {
    case 1:
        return undo<1>(filter, row, above, bytes);
    case 2:
        return undo<2>(filter, row, above, bytes);
    case 3:
        return undo<3>(filter, row, above, bytes);
    default:
        return undo<4>(filter, row, above, bytes);
    }
}

} // namespace lumora
