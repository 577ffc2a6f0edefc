// SPDX-License-Identifier: MIT
#include "TranslucentResampler.h"

#include "ColorPlanes.h"
#include "FlatAreas.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>

namespace lumora
{

namespace
{

constexpr std::size_t channels = 4;
constexpr std::size_t alphaChannel = 3;
/// What makes 16 bits of 8, so that 255 becomes 65535.
constexpr unsigned to16Bits = 257;

/// The samples of one row, premultiplied.
using Rows = std::array<std::uint16_t *, channels>;

Rows rowsOf(ColorPlanes &planes, int y)
{
    Rows rows{};
    for (std::size_t channel = 0; channel < channels; ++channel)
        rows[channel] = planes.row<std::uint16_t>(static_cast<int>(channel), y);
    return rows;
}

void takeApart(const std::uint8_t *pixel, int width, const Rows &rows)
{
    for (int x = 0; x < width; ++x, pixel += channels) {
        const unsigned alpha = pixel[alphaChannel];
        for (std::size_t channel = 0; channel < alphaChannel; ++channel)
            rows[channel][x] = static_cast<std::uint16_t>((pixel[channel] * alpha * to16Bits + 127) / 255);
        rows[alphaChannel][x] = static_cast<std::uint16_t>(alpha * to16Bits);
    }
}

void putTogether(const Rows &rows, int width, std::uint8_t *pixel)
{
    for (int x = 0; x < width; ++x, pixel += channels) {
        const unsigned alpha = rows[alphaChannel][x];
        const unsigned alphaByte = (alpha + to16Bits / 2) / to16Bits;
        if (alphaByte == 0) {
            std::fill_n(pixel, channels, std::uint8_t{0});
            continue;
        }
        // The filter's overshoot may lift a colour above its alpha, which no colour can be.
        for (std::size_t channel = 0; channel < alphaChannel; ++channel) {
            const unsigned value = std::min<unsigned>(rows[channel][x], alpha);
            pixel[channel] = static_cast<std::uint8_t>((value * 255 + alpha / 2) / alpha);
        }
        pixel[alphaChannel] = static_cast<std::uint8_t>(alphaByte);
    }
}

} // namespace

QImage resampleTranslucent(const QImage &source, QSize size)
{
    ColorPlanes from(source.size(), channels, SampleDepth::Bits16);
    for (int y = 0; y < source.height(); ++y)
        takeApart(source.constScanLine(y), source.width(), rowsOf(from, y));
    const std::unique_ptr<ColorPlanes> to = from.scaledTo(size);
    if (to == nullptr)
        return {};
    const FlatAreas flat(from);
    flat.restoreIn(*to);
    flat.roundEdgesIn(*to);
    QImage result(size, QImage::Format_RGBA8888);
    if (result.isNull())
        return {};
    for (int y = 0; y < size.height(); ++y)
        putTogether(rowsOf(*to, y), size.width(), result.scanLine(y));
    return result;
}

} // namespace lumora
