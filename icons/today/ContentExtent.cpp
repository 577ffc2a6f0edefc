// SPDX-License-Identifier: MIT
#include "ContentExtent.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace lumora
{

namespace
{

/// The largest error of a channel in a lossy picture, in levels of 255.
constexpr int tolerance = 8;

/// Pixels with less alpha, of 255, are the fading end of an edge and not content.
constexpr int faintest = 8;

bool isNear(const uchar *pixel, const std::array<int, 3> &color)
{
    for (std::size_t channel = 0; channel < 3; ++channel) {
        if (std::abs(pixel[channel] - color[channel]) > tolerance)
            return false;
    }
    return true;
}

/// Calls `visit` with each pixel along the edges.
template <typename Visit> void alongEdges(const QImage &picture, Visit visit)
{
    const int last = picture.height() - 1;
    for (int y = 0; y <= last; ++y) {
        const uchar *row = picture.constScanLine(y);
        const int step = y == 0 || y == last ? 1 : std::max(picture.width() - 1, 1);
        for (int x = 0; x < picture.width(); x += step)
            visit(row + 4 * x);
    }
}

} // namespace

std::optional<QColor> borderColor(const QImage &picture)
{
    std::array<qint64, 3> sums = {};
    qint64 count = 0;
    bool opaque = true;
    alongEdges(picture, [&](const uchar *pixel) {
        opaque = opaque && pixel[3] == 255;
        for (std::size_t channel = 0; channel < 3; ++channel)
            sums[channel] += pixel[channel];
        ++count;
    });
    if (count == 0)
        return std::nullopt;
    std::array<int, 3> mean = {};
    for (std::size_t channel = 0; channel < 3; ++channel)
        mean[channel] = static_cast<int>((sums[channel] + count / 2) / count);
    bool uniform = opaque;
    alongEdges(picture, [&](const uchar *pixel) { uniform = uniform && isNear(pixel, mean); });
    return uniform ? std::optional(QColor(mean[0], mean[1], mean[2])) : std::nullopt;
}

double contentDiameter(const QImage &picture)
{
    const std::optional<QColor> ground = borderColor(picture);
    const std::array<int, 3> groundColor =
        ground ? std::array{ground->red(), ground->green(), ground->blue()} : std::array<int, 3>{};
    const double middle = picture.width() / 2.0;
    double farthest = 0;
    for (int y = 0; y < picture.height(); ++y) {
        const uchar *row = picture.constScanLine(y);
        const auto isContent = [&](int x) {
            const uchar *pixel = row + 4 * x;
            return pixel[3] > faintest && !(ground && isNear(pixel, groundColor));
        };
        // Only the outermost pixels of a row count.
        int first = 0;
        while (first < picture.width() && !isContent(first))
            ++first;
        if (first == picture.width())
            continue;
        int end = picture.width();
        while (!isContent(end - 1))
            --end;
        const double across = std::max(middle - first, end - middle);
        const double along = std::max(middle - y, y + 1 - middle);
        farthest = std::max(farthest, across * across + along * along);
    }
    return picture.isNull() ? 0 : 2 * std::sqrt(farthest) / picture.width();
}

} // namespace lumora
