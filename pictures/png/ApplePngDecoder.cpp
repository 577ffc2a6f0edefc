// SPDX-License-Identifier: MIT
#include "ApplePngDecoder.h"

#include "PngHeader.h"
#include "PngRowReader.h"
#include "foundation/MemoryLimit.h"
#include "pictures/pixels/SizeText.h"

#include <algorithm>
#include <array>
#include <vector>

namespace lumora
{

namespace
{

constexpr int rgb = 2;
constexpr int rgba = 6;

/// One pass over the picture: its first pixel and the steps between its pixels.
struct Pass
{
    int x;
    int y;
    int stepX;
    int stepY;
};

constexpr std::array<Pass, 1> wholePicture = {{{0, 0, 1, 1}}};

/// The seven passes of PNG's Adam7 interlacing.
constexpr std::array<Pass, 7> interlacePasses = {
    {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4}, {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}}};

int countFrom(int first, int step, int size)
{
    return size > first ? (size - first + step - 1) / step : 0;
}

/// Writes a row of BGRA or BGR pixels to every `stepX`-th place of the picture's line.
void placeRow(std::span<const std::uint8_t> row, int channels, bool opaque, unsigned char *line, const Pass &pass)
{
    const auto pixels = row.size() / static_cast<std::size_t>(channels);
    for (std::size_t i = 0; i < pixels; ++i) {
        const unsigned char *from = row.data() + i * static_cast<std::size_t>(channels);
        unsigned char *to = line + (static_cast<std::size_t>(pass.x) + i * static_cast<std::size_t>(pass.stepX)) * 4;
        const unsigned char alpha = opaque ? 255 : from[3];
        to[0] = std::min(from[2], alpha);
        to[1] = std::min(from[1], alpha);
        to[2] = std::min(from[0], alpha);
        to[3] = alpha;
    }
}

} // namespace

Result<QImage> decodeApplePng(QByteArrayView bytes, const QString &name, qint64 largestArea)
{
    const Failure damaged{FailureCode::NotAPicture, name, {}};
    const auto header = pngHeader(bytes);
    if (!header || !header->appleOptimized || header->bitDepth != 8 ||
        (header->colorType != rgb && header->colorType != rgba))
        return damaged;
    const QSize size = header->size;
    if (qint64{size.width()} * size.height() > largestArea)
        return Failure{FailureCode::TooLarge, name, pixelsDetail(size)};
    QImage picture(size, QImage::Format_RGBA8888_Premultiplied);
    if (picture.isNull())
        return outOfMemory(name);

    const int channels = header->colorType == rgba ? 4 : 3;
    // Without a fourth channel every pixel is opaque, whatever the first chunk says.
    const bool opaque = header->opaque || channels == 3;
    PngRowReader rows(bytes, channels);
    const auto passes =
        header->interlaced ? std::span<const Pass>(interlacePasses) : std::span<const Pass>(wholePicture);
    for (const Pass &pass : passes) {
        const int columns = countFrom(pass.x, pass.stepX, size.width());
        if (columns == 0)
            continue;
        rows.beginPass(columns);
        for (int y = pass.y; y < size.height(); y += pass.stepY) {
            const auto row = rows.next();
            if (row.empty())
                return damaged;
            placeRow(row, channels, opaque, picture.scanLine(y), pass);
        }
    }
    return picture;
}

} // namespace lumora
