// SPDX-License-Identifier: MIT
#pragma once

#include <QPolygonF>
#include <QRectF>
#include <QSizeF>

/// The geometry of the striped progress bar, in points; y counts upwards from the bar's lower edge.
namespace lumora::progressgeometry
{

/// The corner radius of everything in the bar.
inline constexpr qreal cornerRadius = 10;

/// The offset of the next redraw: from 0 on 1, 2, ..., 20, 0, 1, ...
double nextOffset(double offset);

/// The filled share of the bar, in single precision. The minimum counts in the range but is not subtracted from the
/// value, so the result may be outside 0 to 1; it is 0 where minimum and maximum are equal.
float fraction(double value, double minimum, double maximum);

/// The filled part of a bar whose frame has that size. Its width is zero or negative for small fractions.
QRectF progressRect(float fraction, QSizeF frame);

/// The number of stripes in a filled part of that width, visible or not.
qint64 stripeCount(qreal progressWidth);

/// Stripe k: 10 wide, leaning 8 to the left over the height of the filled part, 20 right of stripe k - 1.
QPolygonF stripe(qint64 k, double offset, qreal progressHeight);

} // namespace lumora::progressgeometry
