// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QSize>

/// Where a text field draws what, in points with y counted upwards from the field's lower edge.
namespace lumora::textfieldgeometry
{

/// From the field's left and right edges to the text.
inline constexpr qreal textInset = 4;
/// The rounding of the box.
inline constexpr qreal clippingRadius = 4;
inline constexpr qreal borderWidth = 2;
inline constexpr QSize minimumSize(60, 24);

/// The lower edge of a line of text that stands in the middle, on a whole point.
qreal textOffset(qreal boundsHeight, qreal lineHeight);
/// The area of the line of text.
QRectF textRect(QSizeF bounds, qreal lineHeight);
/// The size brought between the minimum and the maximum, width and height each for itself. A bound of 0 or less does
/// not bind; where the bounds contradict each other the maximum holds.
QSize clampedSize(QSize size, QSize minimum, QSize maximum);

} // namespace lumora::textfieldgeometry
