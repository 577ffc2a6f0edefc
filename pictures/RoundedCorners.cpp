// SPDX-License-Identifier: MIT
#include "RoundedCorners.h"

#include "pictures/pixels/PictureMemory.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

namespace lumora
{

namespace
{

/// How many horizontal slices a pixel is measured by. Within a slice the arc's crossing is exact, so the error is less
/// than half an 8-bit level.
constexpr int slices = 64;

/// Where the top left arc, whose center is (radius, radius), crosses the slices of one row of pixels.
class RowCrossings
{
public:
    RowCrossings(int y, double radius)
    {
        for (int slice = 0; slice < slices; ++slice) {
            const double dy = radius - (y + (slice + 0.5) / slices);
            const double squared = radius * radius - dy * dy;
            // A slice below the center is inside, one above the arc is outside.
            const double crossing = dy <= 0 ? 0 : squared <= 0 ? radius + 1 : radius - std::sqrt(squared);
            m_crossings[static_cast<std::size_t>(slice)] = crossing;
            m_first = std::min(m_first, crossing);
            m_last = std::max(m_last, crossing);
        }
    }

    /// The share of pixel x inside the arc, in 255ths.
    unsigned share(int x) const
    {
        if (x + 1 <= m_first)
            return 0;
        if (x >= m_last)
            return 255;
        double sum = 0;
        for (const double crossing : m_crossings)
            sum += std::clamp(x + 1 - crossing, 0.0, 1.0);
        return static_cast<unsigned>(std::lround(sum / slices * 255));
    }

private:
    std::array<double, slices> m_crossings{};
    double m_first = std::numeric_limits<double>::max();
    double m_last = 0;
};

void fade(std::uint8_t *pixel, unsigned share)
{
    for (int channel = 0; channel < 4; ++channel)
        pixel[channel] = static_cast<std::uint8_t>((pixel[channel] * share + 127) / 255);
}

} // namespace

CornerMode cornerModeOf(int number)
{
    const CornerMode mode{number};
    return mode == CornerMode::Ios6 || mode == CornerMode::Ios7 ? mode : CornerMode::None;
}

float cornerRadius(int size, CornerMode mode)
{
    switch (mode) {
    case CornerMode::Ios6:
        return static_cast<float>(size) / 6.4F;
    case CornerMode::Ios7:
        return static_cast<float>(size) / 4.444444F;
    case CornerMode::None:
        break;
    }
    return 0;
}

void roundCorners(QImage &picture, float radius)
{
    const int right = picture.width() - 1;
    const int bottom = picture.height() - 1;
    const int reach = std::min({static_cast<int>(std::ceil(radius)), (right + 2) / 2, (bottom + 2) / 2});
    if (reach > 0)
        takeOwnPixels(picture);
    for (int y = 0; y < reach; ++y) {
        std::uint8_t *top = picture.scanLine(y);
        std::uint8_t *mirrored = picture.scanLine(bottom - y);
        const RowCrossings crossings(y, radius);
        for (int x = 0; x < reach; ++x) {
            const unsigned share = crossings.share(x);
            if (share == 255)
                break;
            // In a picture of one pixel, all four corners cut from the same pixel.
            fade(top + 4 * x, share);
            fade(top + 4 * (right - x), share);
            fade(mirrored + 4 * x, share);
            fade(mirrored + 4 * (right - x), share);
        }
    }
}

} // namespace lumora
