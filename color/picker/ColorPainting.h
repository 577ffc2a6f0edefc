// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/RgbaColor.h"

#include <QRectF>

class QPainter;

namespace lumora
{

/// Fills the rounded rectangle with the pattern that marks translucent colors.
void paintTransparencyPattern(QPainter &painter, const QRectF &rect, qreal corner);
/// Fills the rounded rectangle with the color, over the pattern if it is translucent, and draws a thin outline so that
/// white shows on white.
void paintSwatch(QPainter &painter, const QRectF &rect, const RgbaColor &color, qreal corner);
/// Draws a ring that shows on every color: white, with a dark edge on both sides.
void paintMarker(QPainter &painter, const QRectF &rect);
/// Draws the focus ring around the rectangle.
void paintFocusRing(QPainter &painter, const QRectF &rect, qreal corner);

} // namespace lumora
