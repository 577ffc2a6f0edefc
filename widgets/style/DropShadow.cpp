// SPDX-License-Identifier: MIT
#include "DropShadow.h"

#include <QPainter>

#include <algorithm>
#include <vector>

namespace lumora
{

namespace
{

/// One pass of a box of 2 * radius + 1 pixels along the rows; pixels beyond the edge count as transparent.
void blurRows(QImage &image, int radius)
{
    const int width = image.width();
    const int box = 2 * radius + 1;
    std::vector<uchar> row(static_cast<size_t>(width));
    for (int y = 0; y < image.height(); ++y) {
        uchar *line = image.scanLine(y);
        std::copy_n(line, width, row.begin());
        const auto at = [&row, width](int x) { return x >= 0 && x < width ? int{row[static_cast<size_t>(x)]} : 0; };
        int sum = 0;
        for (int x = -radius; x < radius; ++x)
            sum += at(x);
        for (int x = 0; x < width; ++x) {
            sum += at(x + radius);
            line[x] = static_cast<uchar>(sum / box);
            sum -= at(x - radius);
        }
    }
}

/// The same along the columns, all of them at once, row after row.
void blurColumns(QImage &image, int radius)
{
    const int width = image.width();
    const int height = image.height();
    const int box = 2 * radius + 1;
    const QImage source = image.copy();
    std::vector<int> sums(static_cast<size_t>(width), 0);
    const auto add = [&](int y, int sign) {
        if (y < 0 || y >= height)
            return;
        const uchar *line = source.constScanLine(y);
        for (int x = 0; x < width; ++x)
            sums[static_cast<size_t>(x)] += sign * line[x];
    };
    for (int y = -radius; y < radius; ++y)
        add(y, 1);
    for (int y = 0; y < height; ++y) {
        add(y + radius, 1);
        uchar *line = image.scanLine(y);
        for (int x = 0; x < width; ++x)
            line[x] = static_cast<uchar>(sums[static_cast<size_t>(x)] / box);
        add(y - radius, -1);
    }
}

} // namespace

QImage shadowOf(const QPainterPath &path, const QSize &area, const DropShadow &shadow)
{
    QImage mask(area, QImage::Format_Alpha8);
    mask.fill(0);
    {
        QPainter painter(&mask);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(0, shadow.offset);
        painter.fillPath(path, Qt::black);
    }
    // Three passes are close to a Gaussian; each spreads by a third of the blur.
    const int radius = std::max(1, qRound(shadow.blur / 3));
    for (int pass = 0; pass < 3; ++pass) {
        blurRows(mask, radius);
        blurColumns(mask, radius);
    }
    QImage result(area, QImage::Format_ARGB32_Premultiplied);
    result.fill(shadow.color);
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, mask);
    return result;
}

} // namespace lumora
