// SPDX-License-Identifier: MIT
#include "MacBody.h"

#include "AppleSlots.h"
#include "Artwork.h"
#include "pictures/RoundedCorners.h"
#include "pictures/pixels/PictureMemory.h"

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

/// Replaces each value by the mean of a window of values along one direction; beyond the picture the values are 0.
class BoxBlur
{
public:
    BoxBlur(int edge, int radius)
        : m_edge(edge), m_radius(radius), m_means(static_cast<std::size_t>(255 * window() + 1)),
          m_sums(static_cast<std::size_t>(edge))
    {
        for (int sum = 0; sum <= 255 * window(); ++sum)
            m_means[static_cast<std::size_t>(sum)] = static_cast<std::uint8_t>((sum + window() / 2) / window());
    }

    Shape alongRows(const Shape &shape) const
    {
        Shape result(shape.size());
        std::vector<std::uint8_t> padded(static_cast<std::size_t>(m_edge + window() + 1));
        for (int y = 0; y < m_edge; ++y) {
            std::memcpy(padded.data() + m_radius, rowOf(shape, y), static_cast<std::size_t>(m_edge));
            std::uint8_t *to = result.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(m_edge);
            unsigned sum = 0;
            for (int x = 0; x < window(); ++x)
                sum += padded[static_cast<std::size_t>(x)];
            for (std::size_t x = 0; x < static_cast<std::size_t>(m_edge); ++x) {
                to[x] = m_means[sum];
                sum += padded[x + static_cast<std::size_t>(window())];
                sum -= padded[x];
            }
        }
        return result;
    }

    Shape alongColumns(const Shape &shape)
    {
        Shape result(shape.size());
        std::fill(m_sums.begin(), m_sums.end(), 0);
        for (int y = 0; y < m_radius; ++y)
            addRow(shape, y);
        for (int y = 0; y < m_edge; ++y) {
            addRow(shape, y + m_radius);
            std::uint8_t *to = result.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(m_edge);
            for (std::size_t x = 0; x < m_sums.size(); ++x)
                to[x] = m_means[m_sums[x]];
            takeRow(shape, y - m_radius);
        }
        return result;
    }

private:
    int window() const { return 2 * m_radius + 1; }
    const std::uint8_t *rowOf(const Shape &shape, int y) const
    {
        return shape.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(m_edge);
    }
    void addRow(const Shape &shape, int y)
    {
        if (y >= m_edge)
            return;
        const std::uint8_t *row = rowOf(shape, y);
        for (std::size_t x = 0; x < m_sums.size(); ++x)
            m_sums[x] += row[x];
    }
    void takeRow(const Shape &shape, int y)
    {
        if (y < 0)
            return;
        const std::uint8_t *row = rowOf(shape, y);
        for (std::size_t x = 0; x < m_sums.size(); ++x)
            m_sums[x] -= row[x];
    }

    int m_edge;
    int m_radius;
    std::vector<std::uint8_t> m_means; ///< by the sum of a window
    std::vector<unsigned> m_sums;      ///< of the window in each column
};

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
    BoxBlur blur(edge, onGrid(macGrid.shadowBlur / 3, edge));
    for (int pass = 0; pass < 3; ++pass)
        shape = blur.alongColumns(blur.alongRows(shape));
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
    QImage picture = newPicture(QSize(edge, edge), QImage::Format_RGBA8888_Premultiplied);
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
