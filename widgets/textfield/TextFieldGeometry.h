// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QSize>

/// The geometry of a text field, in points; y counts upwards from the field's lower edge.
namespace lumora::textfieldgeometry
{

/// The distance from the field's left and right edges to the text.
inline constexpr qreal textInset = 4;
/// The corner radius of the box.
inline constexpr qreal clippingRadius = 4;
inline constexpr qreal borderWidth = 2;
inline constexpr QSize minimumSize(60, 24);

/// The lower edge of a vertically centered line of text, on a whole point.
qreal textOffset(qreal boundsHeight, qreal lineHeight);
/// The area of the line of text.
QRectF textRect(QSizeF bounds, qreal lineHeight);
/// The size, clamped to the minimum and the maximum, width and height separately. A bound of 0 or less is ignored;
/// where the bounds contradict each other, the maximum wins.
QSize clampedSize(QSize size, QSize minimum, QSize maximum);

} // namespace lumora::textfieldgeometry
