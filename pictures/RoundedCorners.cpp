// SPDX-License-Identifier: MIT
#include "RoundedCorners.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace lumora
{

namespace
{

/// How many horizontal slices a pixel is measured by. Within a slice the arc's crossing is exact, so the error is less
/// than half an 8-bit level.
constexpr int slices = 64;

/// The share of pixel (x, y) inside the top left arc, whose center is (radius, radius).
double insideShare(int x, int y, double radius)
{
    double sum = 0;
    for (int slice = 0; slice < slices; ++slice) {
        const double dy = radius - (y + (slice + 0.5) / slices);
        if (dy <= 0) {
            sum += 1;
            continue;
        }
        const double squared = radius * radius - dy * dy;
        if (squared <= 0)
            continue;
        const double crossing = radius - std::sqrt(squared);
        sum += std::clamp(x + 1 - crossing, 0.0, 1.0);
    }
    return sum / slices;
}

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
    for (int y = 0; y < reach; ++y) {
        std::uint8_t *top = picture.scanLine(y);
        std::uint8_t *mirrored = picture.scanLine(bottom - y);
        for (int x = 0; x < reach; ++x) {
            const auto share = static_cast<unsigned>(std::lround(insideShare(x, y, radius) * 255));
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
