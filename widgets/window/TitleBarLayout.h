// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QSizeF>

#include <array>

namespace lumora
{

// Where the parts of a window with a tall title bar lie. All rectangles count y upwards from the window's lower edge,
// all lengths are points.

/// How the close, minimize and zoom buttons stand in their title bar.
struct TrafficLights
{
    /// Close, minimize, zoom.
    std::array<QSizeF, 3> sizes;
    qreal leftMargin = 0;
    qreal topMargin = 0; ///< where they are not centered
    qreal separation = 0;
    bool centered = true;
    bool vertical = false;
};

/// The title bar's container: full width, at the top of the window.
QRectF titleBarRect(const QSizeF &window, qreal titleBarHeight);
/// What is left below it.
QRectF contentRectBelowTitleBar(const QSizeF &window, qreal titleBarHeight);

/// The close, minimize and zoom buttons inside the container. Upright, the buttons lie 2 points closer together than
/// side by side, and the centered group stands on a whole point.
std::array<QRectF, 3> trafficLightRects(const TrafficLights &lights, const QRectF &container);

/// The full-screen button, centered or by its margin from the container's top.
QRectF fullScreenButtonRect(const QSizeF &button, qreal rightMargin, qreal topMargin, bool centered,
                            const QRectF &container);

/// The title: as near to the container's middle as the buttons on both sides let it, cut where it does not fit between
/// them. `standardHeight` is the band at the container's top that the title stands in when it is not centered.
QRectF titleRect(const QSizeF &text, const QRectF &container, qreal leftLimit, qreal rightLimit, bool centered,
                 qreal standardHeight);

} // namespace lumora
