// SPDX-License-Identifier: MIT
#pragma once

#include "SizeList.h"
#include "placeholders/OutlineCoverage.h"

#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <QString>

#include <memory>
#include <span>

namespace lumora
{

class LabelFont;

/// The look of a custom placeholder.
struct PictureLook
{
    /// The text; "{size}", "{width}" and "{height}" are replaced by the size in points, and a line break begins a line.
    QString text = QStringLiteral("{size}");
    QColor foreground{255, 255, 255};
    QColor background{128, 128, 128};
};

/// One placeholder: a background with a text in its middle, as large as fits well. Rows of pixels and SVG come from the
/// same outline. A cheap value; several threads may read rows at once.
class LabeledPicture
{
public:
    LabeledPicture(const ListedSize &size, const PictureLook &look, const LabelFont &font);

    const ListedSize &size() const { return m_size; }
    /// Writes a row as straight RGBA, 4 bytes a pixel; `rgba` holds 4 * width bytes.
    void readRow(int row, std::span<unsigned char> rgba) const;
    /// All rows at once, as `QImage::Format_RGBA8888`.
    QImage toImage() const;
    /// Whether every pixel is opaque.
    bool isOpaque() const { return m_ground.alpha() == 255 && m_ink.alpha() == 255; }
    /// The picture as an SVG document; a user unit is a point.
    QByteArray toSvg() const;

private:
    ListedSize m_size;
    QString m_text;
    QColor m_ink;
    QColor m_ground;
    QPainterPath m_outline; ///< in pixels
    std::shared_ptr<const OutlineCoverage> m_coverage;
};

/// The characters of the text without a glyph in the labels' font, without duplicates.
QString withoutShape(const QString &text, const LabelFont &font);

} // namespace lumora
