// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRectF>
#include <QSizeF>

namespace lumora
{

/// The caption below a miniature whose own label is too small to be read.
struct CaptionRule
{
    double readableWidth = 0; ///< of a miniature in points; narrower ones get a caption
    QSizeF size;              ///< of a caption
};

/// A picture's place, and that of its caption; the latter is null if it has none.
struct Miniature
{
    QRectF picture;
    QRectF caption;
};

/// As `miniatureRectangles`, with room for the captions.
QList<Miniature> captionedMiniatures(const QList<QSize> &pictures, const QRectF &area, double gap,
                                     const CaptionRule &rule);

/// The rectangle with its edges on the pixels of a screen of that scale, at least one pixel wide and high.
QRectF onPixels(const QRectF &rectangle, double scale);

/// Arranges pictures like a contact sheet: in their order, in centered rows from the top, with `gap` between them, and
/// the whole in the middle of the area. All have the same scale, the largest up to 1 at which they fit. Empty if the
/// area is empty.
QList<QRectF> miniatureRectangles(const QList<QSize> &pictures, const QRectF &area, double gap);

} // namespace lumora
