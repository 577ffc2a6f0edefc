// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/RgbaColor.h"

#include <QRectF>

class QPainter;

namespace lumora
{

/// Fills the rounded rectangle with the pattern that marks what is not opaque.
void paintTransparencyPattern(QPainter &painter, const QRectF &rect, qreal corner);
/// Fills the rounded rectangle with the color, over the pattern where it is not opaque, with a thin outline that keeps
/// white visible on white.
void paintSwatch(QPainter &painter, const QRectF &rect, const RgbaColor &color, qreal corner);
/// A ring that can be seen on every color: white, with a dark edge on both sides.
void paintMarker(QPainter &painter, const QRectF &rect);
/// What shows the keyboard's place: around the rectangle, outside it.
void paintFocusRing(QPainter &painter, const QRectF &rect, qreal corner);

} // namespace lumora
