// SPDX-License-Identifier: MIT
#pragma once

#include <QPolygonF>
#include <QRectF>
#include <QSizeF>

/// The arithmetic of the striped progress bar, in points with y counted upwards from the bar's lower edge.
namespace lumora::progressgeometry
{

/// The rounding of everything in the bar.
inline constexpr qreal cornerRadius = 10;

/// The offset of the next redraw: 1, 2, ..., 20, 0, 1, ... from 0 on.
double nextOffset(double offset);

/// How much of the bar is filled, in single precision. The minimum counts in the range but is not taken off the value,
/// so the answer may lie outside of 0 to 1; it is 0 where minimum and maximum are equal.
float fraction(double value, double minimum, double maximum);

/// The filled part of a bar whose frame has that size; of no or negative width for small fractions.
QRectF progressRect(float fraction, QSizeF frame);

/// How many stripes a filled part of that width has, whether they can be seen or not.
qint64 stripeCount(qreal progressWidth);

/// Stripe k: 10 wide, leaning 8 to the left over the height of the filled part, 20 right of stripe k - 1.
QPolygonF stripe(qint64 k, double offset, qreal progressHeight);

} // namespace lumora::progressgeometry
