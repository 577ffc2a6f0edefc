// SPDX-License-Identifier: MIT
#include "Placeholder.h"

#include "PlaceholderLabel.h"

#include <algorithm>
#include <vector>

namespace lumora
{

namespace
{

constexpr std::size_t bytesPerPixel = 4;
constexpr unsigned char opaque = 255;

/// Gray with the share of white that the coverage gives, rounded to the nearest byte.
unsigned char whiteOverGray(unsigned char coverage)
{
    constexpr int lift = 255 - Placeholder::gray;
    return static_cast<unsigned char>(Placeholder::gray + (lift * coverage + 127) / 255);
}

void setPixel(std::span<unsigned char> rgba, std::size_t column, unsigned char level)
{
    const auto pixel = rgba.subspan(column * bytesPerPixel, bytesPerPixel);
    std::fill_n(pixel.begin(), 3, level);
    pixel[3] = opaque;
}

} // namespace

Placeholder::Placeholder(QSize size, std::shared_ptr<const OutlineCoverage> label)
    : m_size(size), m_label(std::move(label))
{
}

void Placeholder::readRow(int row, std::span<unsigned char> rgba) const
{
    const auto width = static_cast<std::size_t>(m_size.width());
    for (std::size_t column = 0; column < width; ++column)
        setPixel(rgba, column, gray);

    const QRect label = m_label->bounds().intersected(QRect(QPoint(0, 0), m_size));
    if (row < label.top() || row > label.bottom() || label.isEmpty())
        return;
    std::vector<unsigned char> coverage(static_cast<std::size_t>(m_label->bounds().width()));
    m_label->readRow(row, coverage);
    for (int column = label.left(); column <= label.right(); ++column) {
        const unsigned char covered = coverage[static_cast<std::size_t>(column - m_label->bounds().left())];
        if (covered > 0)
            setPixel(rgba, static_cast<std::size_t>(column), whiteOverGray(covered));
    }
}

QImage Placeholder::toImage() const
{
    QImage image(m_size, QImage::Format_RGBA8888);
    for (int row = 0; row < image.height(); ++row)
        readRow(row, {image.scanLine(row), static_cast<std::size_t>(image.bytesPerLine())});
    return image;
}

Placeholder placeholderWithSize(QSizeF size, const LabelFont &font)
{
    // Lengths are truncated after conversion to single precision, as for every written picture.
    const QSize pixels(static_cast<int>(static_cast<float>(size.width())),
                       static_cast<int>(static_cast<float>(size.height())));
    return {pixels, std::make_shared<const OutlineCoverage>(labelOutline(size, font))};
}

} // namespace lumora
