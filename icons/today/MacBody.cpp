// SPDX-License-Identifier: MIT
#include "MacBody.h"

#include "AppleSlots.h"
#include "Artwork.h"
#include "pictures/RoundedCorners.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

namespace lumora
{

namespace
{

/// The alpha channel of a square picture, one byte per pixel.
using Shape = std::vector<std::uint8_t>;

/// A measure of the grid in a picture of that edge length.
int onGrid(int measure, int edge)
{
    return measure * edge / storeIconSize;
}

/// Replaces each value by the mean of the values within `radius` in its row, and mirrors the picture at its diagonal.
/// Two calls blur in both directions.
Shape blurredAndTurned(const Shape &shape, int edge, int radius)
{
    Shape result(shape.size());
    const int window = 2 * radius + 1;
    for (int y = 0; y < edge; ++y) {
        const std::uint8_t *row = shape.data() + static_cast<std::size_t>(y * edge);
        const auto at = [row, edge](int x) { return x < 0 || x >= edge ? 0 : int{row[x]}; };
        int sum = 0;
        for (int x = -radius; x <= radius; ++x)
            sum += at(x);
        for (int x = 0; x < edge; ++x) {
            result[static_cast<std::size_t>(x * edge + y)] = static_cast<std::uint8_t>((sum + window / 2) / window);
            sum += at(x + radius + 1) - at(x - radius);
        }
    }
    return result;
}

/// The body's alpha channel, moved down and blurred: three means are close to a Gaussian.
Shape shadowOf(const QImage &body, int edge, int margin)
{
    Shape shape(static_cast<std::size_t>(edge * edge));
    for (int y = 0; y < body.height(); ++y) {
        const uchar *pixel = body.constScanLine(y);
        const int row = (margin + onGrid(macGrid.shadowOffset, edge) + y) * edge;
        for (int x = 0; x < body.width(); ++x)
            shape[static_cast<std::size_t>(row + margin + x)] = pixel[4 * x + 3];
    }
    const int radius = onGrid(macGrid.shadowBlur / 3, edge);
    for (int pass = 0; pass < 3; ++pass)
        shape = blurredAndTurned(blurredAndTurned(shape, edge, radius), edge, radius);
    return shape;
}

} // namespace

QImage macBody(const Artwork &icon, int edge)
{
    QImage body = icon.at(onGrid(macGrid.body, edge));
    if (body.isNull())
        return {};
    roundCorners(body, macGrid.cornerRadius * static_cast<float>(edge) / storeIconSize);
    const int margin = (edge - body.width()) / 2;
    const Shape shadow = shadowOf(body, edge, margin);
    QImage picture(edge, edge, QImage::Format_RGBA8888_Premultiplied);
    picture.fill(Qt::transparent);
    for (int y = 0; y < edge; ++y) {
        uchar *row = picture.scanLine(y);
        const std::uint8_t *shades = shadow.data() + static_cast<std::size_t>(y * edge);
        for (int x = 0; x < edge; ++x)
            row[4 * x + 3] = static_cast<uchar>((shades[x] * macGrid.shadowOpacity + 127) / 255);
        const int inBody = y - margin;
        if (inBody < 0 || inBody >= body.height())
            continue;
        const uchar *from = body.constScanLine(inBody);
        uchar *to = row + 4 * margin;
        for (int x = 0; x < body.width(); ++x, from += 4, to += 4) {
            const int below = (to[3] * (255 - from[3]) + 127) / 255;
            std::memcpy(to, from, 3);
            to[3] = static_cast<uchar>(std::min(from[3] + below, 255));
        }
    }
    return picture;
}

} // namespace lumora
