// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPointF>
#include <QRectF>

namespace lumora
{

/// A place on the color wheel.
struct WheelPosition
{
    float hue = 0.0F;        ///< 0 up to 1: red at the right, then counterclockwise as seen on screen
    float saturation = 0.0F; ///< 0 in the middle, 1 on the rim
};

/// The disc of colors inside a rectangle whose y runs downwards.
class WheelGeometry
{
public:
    /// The largest disc that fits with the margin around it; empty if none fits.
    explicit WheelGeometry(const QRectF &bounds, qreal margin = 0);

    QPointF center() const { return m_center; }
    qreal radius() const { return m_radius; }
    QRectF disc() const;

    /// The place at the point; beyond the rim, the place on the rim in that direction.
    WheelPosition positionAt(const QPointF &point) const;
    QPointF pointAt(const WheelPosition &position) const;
    bool contains(const QPointF &point) const;

private:
    QPointF m_center;
    qreal m_radius = 0;
};

/// The fully bright color wheel of a radius in points for a screen of the scale factor, with a smooth rim and
/// transparent around it. Its size is the disc's, rounded up to whole pixels.
QImage wheelImage(qreal radius, qreal devicePixelRatio);

} // namespace lumora
