// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QRectF>

namespace lumora
{

/// A place on the colour wheel.
struct WheelPosition
{
    float hue = 0.0F;        ///< 0 up to 1: red at the right, then counterclockwise as seen on screen
    float saturation = 0.0F; ///< 0 in the middle, 1 on the rim
};

/// The disc of colours inside a rectangle whose y runs downwards.
class WheelGeometry
{
public:
    /// The largest disc that fits with the margin around it; empty where none does.
    explicit WheelGeometry(const QRectF &bounds, qreal margin = 0);

    QPointF center() const { return m_center; }
    qreal radius() const { return m_radius; }
    QRectF disc() const;

    /// What is at the point; beyond the rim, what is on the rim in that direction.
    WheelPosition positionAt(const QPointF &point) const;
    QPointF pointAt(const WheelPosition &position) const;
    bool contains(const QPointF &point) const;

private:
    QPointF m_center;
    qreal m_radius = 0;
};

} // namespace lumora
