// SPDX-License-Identifier: MIT
#pragma once

#include <QEasingCurve>
#include <QPointF>

namespace lumora
{

/// The duration of every short interface animation, in milliseconds.
inline constexpr int shortAnimationDuration = 250;

/// Slow at both ends: the cubic curve with the handles (0.42, 0) and (0.58, 1).
inline QEasingCurve easeInEaseOut()
{
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment(QPointF(0.42, 0), QPointF(0.58, 1), QPointF(1, 1));
    return curve;
}

} // namespace lumora
