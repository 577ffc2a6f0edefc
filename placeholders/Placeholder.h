// SPDX-License-Identifier: MIT
#pragma once

#include "OutlineCoverage.h"

#include <QImage>
#include <QSize>

#include <memory>
#include <span>

namespace lumora
{

class LabelFont;

/// One placeholder picture: 50 % gray with its own size written on it in white. It keeps the shape of its label and
/// computes rows of pixels on demand, so the largest takes no more memory than the smallest. A cheap value: copies
/// share the label. Several threads may read rows at once.
class Placeholder
{
public:
    /// The standard 50 % gray, as a byte.
    static constexpr unsigned char gray = 128;

    /// The picture's size in pixels, truncated to whole numbers.
    QSize size() const { return m_size; }
    /// Writes a row as straight RGBA, 4 bytes a pixel; `rgba` holds 4 * width bytes.
    void readRow(int row, std::span<unsigned char> rgba) const;
    /// All rows at once, as `QImage::Format_RGBA8888`.
    QImage toImage() const;

private:
    friend Placeholder placeholderWithSize(QSizeF size, const LabelFont &font);
    Placeholder(QSize size, std::shared_ptr<const OutlineCoverage> label);

    QSize m_size;
    std::shared_ptr<const OutlineCoverage> m_label;
};

/// Draws the placeholder of that width and height in pixels.
Placeholder placeholderWithSize(QSizeF size, const LabelFont &font);

} // namespace lumora
