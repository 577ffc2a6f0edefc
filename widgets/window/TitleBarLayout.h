// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QSizeF>

#include <array>

namespace lumora
{

// The layout of a window with a tall title bar. Rectangles count y upwards from the window's lower edge; lengths are in
// points.

/// The arrangement of the close, minimize and zoom buttons in their title bar.
struct TrafficLights
{
    /// The buttons close, minimize and zoom.
    std::array<QSizeF, 3> sizes;
    qreal leftMargin = 0;
    qreal topMargin = 0; ///< where they are not centered
    qreal separation = 0;
    bool centered = true;
    bool vertical = false;
};

/// The rectangle of the title bar's container: full width, at the top of the window.
QRectF titleBarRect(const QSizeF &window, qreal titleBarHeight);
/// The rest of the window, below the container.
QRectF contentRectBelowTitleBar(const QSizeF &window, qreal titleBarHeight);

/// The close, minimize and zoom buttons inside the container. Stacked, the buttons are 2 points closer together than
/// side by side, and the centered group is on a whole point.
std::array<QRectF, 3> trafficLightRects(const TrafficLights &lights, const QRectF &container);

/// The full-screen button, centered or by its margin from the container's top.
QRectF fullScreenButtonRect(const QSizeF &button, qreal rightMargin, qreal topMargin, bool centered,
                            const QRectF &container);

/// The title: as near to the container's middle as the buttons on both sides allow, shortened if it does not fit
/// between them. `standardHeight` is the height of the band at the container's top that holds a title that is not
/// centered vertically.
QRectF titleRect(const QSizeF &text, const QRectF &container, qreal leftLimit, qreal rightLimit, bool centered,
                 qreal standardHeight);

} // namespace lumora
