// SPDX-License-Identifier: MIT
#include "PixelFormat.h"

#include "PictureMemory.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace lumora
{

namespace
{

/// value * alpha / 255, rounded to nearest.
std::uint8_t scaledByAlpha(unsigned value, unsigned alpha)
{
    const unsigned product = value * alpha + 128;
    return static_cast<std::uint8_t>((product + (product >> 8)) >> 8);
}

/// 255 / alpha in 16.16 fixed point, rounded up so that value * 255 / alpha rounds exactly at every byte.
constexpr std::array<std::uint32_t, 256> inverseAlpha = [] {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t alpha = 1; alpha < 256; ++alpha)
        table[alpha] = (255U * 65536U + alpha - 1) / alpha;
    return table;
}();

void premultiplyRow(std::uint8_t *pixel, int width)
{
    if (areOpaque(pixel, width))
        return;
    for (const std::uint8_t *end = pixel + 4 * width; pixel != end; pixel += 4) {
        const unsigned alpha = pixel[3];
        if (alpha == 255)
            continue;
        for (int channel = 0; channel < 3; ++channel)
            pixel[channel] = scaledByAlpha(pixel[channel], alpha);
    }
}

} // namespace

bool areOpaque(const std::uint8_t *pixels, int count)
{
    // Without branches, so that the compiler can vectorize it.
    std::uint8_t smallest = 255;
    for (int i = 0; i < count; ++i)
        smallest = std::min(smallest, pixels[4 * i + 3]);
    return smallest == 255;
}

QImage premultiplied(QImage picture)
{
    if (picture.isNull() || picture.format() == QImage::Format_RGBA8888_Premultiplied)
        return picture;
    if (picture.format() == QImage::Format_ARGB32_Premultiplied)
        return withPixels(picture.convertToFormat(QImage::Format_RGBA8888_Premultiplied));
    QImage result = withPixels(std::move(picture).convertToFormat(QImage::Format_RGBA8888));
    takeOwnPixels(result);
    const int width = result.width();
    for (int y = 0; y < result.height(); ++y)
        premultiplyRow(result.scanLine(y), width);
    result.reinterpretAsFormat(QImage::Format_RGBA8888_Premultiplied);
    return result;
}

void straightenPixels(std::uint8_t *pixels, int count)
{
    if (areOpaque(pixels, count))
        return;
    for (std::uint8_t *pixel = pixels; pixel != pixels + 4 * count; pixel += 4) {
        const unsigned alpha = pixel[3];
        if (alpha == 255)
            continue;
        for (int channel = 0; channel < 3; ++channel) {
            const unsigned value = std::min<unsigned>(pixel[channel], alpha);
            pixel[channel] = static_cast<std::uint8_t>((value * inverseAlpha[alpha] + 0x8000) >> 16);
        }
    }
}

} // namespace lumora
