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

/// How a placeholder of somebody's own looks.
struct PictureLook
{
    /// What it says; "{size}", "{width}" and "{height}" give the size in points, a line break begins a line.
    QString text = QStringLiteral("{size}");
    QColor foreground{255, 255, 255};
    QColor background{128, 128, 128};
};

/// One placeholder: a ground with a text in its middle, as large as fits well. Rows of pixels and SVG are two
/// renderings of one outline. A cheap value; rows may be read from several threads.
class LabeledPicture
{
public:
    LabeledPicture(const ListedSize &size, const PictureLook &look, const LabelFont &font);

    const ListedSize &size() const { return m_size; }
    /// Writes a row as straight RGBA, 4 bytes a pixel; `rgba` holds 4 * width bytes.
    void readRow(int row, std::span<unsigned char> rgba) const;
    /// All rows at once, as `QImage::Format_RGBA8888`.
    QImage toImage() const;
    /// Whether no pixel lets anything through.
    bool isOpaque() const { return m_ground.alpha() == 255 && m_ink.alpha() == 255; }
    /// The picture as an SVG document, as wide and high in user units as it has points.
    QByteArray toSvg() const;

private:
    ListedSize m_size;
    QString m_text;
    QColor m_ink;
    QColor m_ground;
    QPainterPath m_outline; ///< in pixels
    std::shared_ptr<const OutlineCoverage> m_coverage;
};

/// The characters of the text that the labels' font has no shape for, each once.
QString withoutShape(const QString &text, const LabelFont &font);

} // namespace lumora
