// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>

class QWidget;

namespace lumora
{

/// Converts between Qt's screen coordinates and those that count y upwards from the lower edge of the primary screen,
/// in points. Each function is its own inverse.
QRectF flippedOnScreen(const QRectF &rect);
QPointF flippedOnScreen(const QPointF &point);

/// A point in a window's base coordinates (from its lower left corner, y upwards) on screen, y upwards.
QPointF basePointToScreen(const QWidget *window, const QPointF &point);

} // namespace lumora
