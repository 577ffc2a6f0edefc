// SPDX-License-Identifier: MIT
#pragma once

#include "SeenPixels.h"

#include <QSize>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace lumora
{

class ColorPlanes;

/// The shades that a scaled picture has along an edge between two areas of one colour each. Any shade between the two
/// tells no more than how far a pixel lies on one side, but a filter makes hundreds of them, and each that is new costs
/// its file as much as a new colour. So such pixels get the nearest of a few evenly spaced shades. What the filter
/// makes darker or lighter than both, a faint rim along the edge, gets the nearer of the two. What is not between two
/// flat colours, a line of a third colour or a gradient, keeps its own.
template <typename Sample> class EdgeShades
{
public:
    /// Keeps a reference to the picture and to `uneven`, which holds 0 for each of its blocks of two by two pixels of
    /// one colour.
    EdgeShades(const ColorPlanes &picture, const std::vector<std::uint8_t> &uneven, QSize scaled);

    /// Rounds the shades in the picture of that size.
    void roundIn(ColorPlanes &scaled);

private:
    /// One sample for each channel, 0 for channels that the picture does not have.
    using Colour = std::array<int, 4>;

    void findContrast(const ColorPlanes &scaled, int row);
    void findColours(Stretch columns, Stretch rows);
    void round(ColorPlanes &scaled, int row, int column);
    std::optional<Colour> shadeBetween(const Colour &one, const Colour &other, const Colour &own) const;
    /// Kept between the two colours, where nothing around the pixel is lighter or darker than they are, so that only
    /// the filter can have made it so.
    std::optional<Colour> withoutOvershoot(const Colour &own, const Colour &one, const Colour &other, Stretch columns,
                                           Stretch rows) const;
    bool occursBeyond(int channel, int limit, bool above, Stretch columns, Stretch rows) const;
    /// All samples of a pixel in one number, the quicker to be compared.
    static std::uint64_t packedAt(const ColorPlanes &planes, int column, int row);
    static Colour unpacked(std::uint64_t packed);

    const ColorPlanes &m_picture;
    const std::vector<std::uint8_t> &m_uneven;
    int m_blocks; ///< in a row
    std::vector<Stretch> m_columns;
    std::vector<Stretch> m_rows;
    /// 1 for each pixel of the row at hand that differs from a neighbour.
    std::vector<std::uint8_t> m_contrast;
    /// Flat colours around the pixel at hand, packed.
    std::vector<std::uint64_t> m_colours;
};

extern template class EdgeShades<std::uint8_t>;
extern template class EdgeShades<std::uint16_t>;

} // namespace lumora
