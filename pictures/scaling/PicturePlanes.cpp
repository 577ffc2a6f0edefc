// SPDX-License-Identifier: MIT
#include "PicturePlanes.h"

#include "ColorPlanes.h"
#include "pictures/pixels/PictureMemory.h"
#include "pictures/pixels/PixelFormat.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <new>

namespace lumora
{

namespace
{

constexpr int colors = 3;
constexpr std::size_t alphaChannel = 3;
constexpr std::size_t pixelBytes = 4;

/// The factor from 8 to 16 bits, so that 255 becomes 65535.
constexpr unsigned to16Bits = 257;

/// The samples of one row; alpha is null in an opaque picture.
template <typename Sample> using Rows = std::array<Sample *, pixelBytes>;

template <typename Sample, typename Planes> Rows<Sample> rowsOf(Planes &planes, int y)
{
    Rows<Sample> rows{};
    for (int channel = 0; channel < planes.channels(); ++channel)
        rows[static_cast<std::size_t>(channel)] = planes.template row<std::remove_const_t<Sample>>(channel, y);
    return rows;
}

void takeApart(const std::uint8_t *pixel, int width, const Rows<std::uint8_t> &rows)
{
    for (int x = 0; x < width; ++x) {
        rows[0][x] = pixel[4 * x];
        rows[1][x] = pixel[4 * x + 1];
        rows[2][x] = pixel[4 * x + 2];
    }
    if (rows[alphaChannel] == nullptr)
        return;
    for (int x = 0; x < width; ++x)
        rows[alphaChannel][x] = pixel[4 * x + 3];
}

void takeApart(const std::uint8_t *pixel, int width, const Rows<std::uint16_t> &rows)
{
    for (int x = 0; x < width; ++x, pixel += pixelBytes) {
        const unsigned alpha = pixel[alphaChannel];
        for (std::size_t channel = 0; channel < alphaChannel; ++channel)
            rows[channel][x] = static_cast<std::uint16_t>((pixel[channel] * alpha * to16Bits + 127) / 255);
        if (rows[alphaChannel] != nullptr)
            rows[alphaChannel][x] = static_cast<std::uint16_t>(alpha * to16Bits);
    }
}

void putTogether(const Rows<const std::uint8_t> &rows, int width, std::uint8_t *pixel)
{
    for (int x = 0; x < width; ++x, pixel += pixelBytes) {
        const std::uint8_t alpha = rows[alphaChannel] != nullptr ? rows[alphaChannel][x] : std::uint8_t{255};
        pixel[0] = std::min(rows[0][x], alpha);
        pixel[1] = std::min(rows[1][x], alpha);
        pixel[2] = std::min(rows[2][x], alpha);
        pixel[3] = alpha;
    }
}

void putTogether(const Rows<const std::uint16_t> &rows, int width, std::uint8_t *pixel)
{
    for (int x = 0; x < width; ++x, pixel += pixelBytes) {
        const unsigned alpha = rows[alphaChannel] != nullptr ? rows[alphaChannel][x] : 255 * to16Bits;
        const unsigned alphaByte = (alpha + to16Bits / 2) / to16Bits;
        if (alphaByte == 0) {
            std::fill_n(pixel, pixelBytes, std::uint8_t{0});
            continue;
        }
        // The color keeps its ratio to the alpha, which is rounded, too.
        for (std::size_t channel = 0; channel < alphaChannel; ++channel) {
            const unsigned value = std::min<unsigned>(rows[channel][x], alpha);
            pixel[channel] = static_cast<std::uint8_t>((value * alphaByte + alpha / 2) / alpha);
        }
        pixel[alphaChannel] = static_cast<std::uint8_t>(alphaByte);
    }
}

template <typename Sample> void takeRowsApart(const QImage &picture, ColorPlanes &planes)
{
    for (int y = 0; y < picture.height(); ++y)
        takeApart(picture.constScanLine(y), picture.width(), rowsOf<Sample>(planes, y));
}

template <typename Sample> void putRowsTogether(const ColorPlanes &planes, QImage &picture)
{
    for (int y = 0; y < picture.height(); ++y)
        putTogether(rowsOf<const Sample>(planes, y), picture.width(), picture.scanLine(y));
}

} // namespace

bool isOpaque(const QImage &picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        if (!areOpaque(picture.constScanLine(y), picture.width()))
            return false;
    }
    return true;
}

std::unique_ptr<ColorPlanes> takenApart(const QImage &picture)
{
    const SampleDepth depth = picture.format() == QImage::Format_RGBA8888 ? SampleDepth::Bits16 : SampleDepth::Bits8;
    auto planes = std::make_unique<ColorPlanes>(picture.size(), isOpaque(picture) ? colors : colors + 1, depth);
    if (depth == SampleDepth::Bits8)
        takeRowsApart<std::uint8_t>(picture, *planes);
    else
        takeRowsApart<std::uint16_t>(picture, *planes);
    return planes;
}

QImage putTogether(const ColorPlanes &planes)
{
    QImage picture = newPicture(planes.size(), QImage::Format_RGBA8888_Premultiplied);
    if (planes.depth() == SampleDepth::Bits8)
        putRowsTogether<std::uint8_t>(planes, picture);
    else
        putRowsTogether<std::uint16_t>(planes, picture);
    return picture;
}

} // namespace lumora
