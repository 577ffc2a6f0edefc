// SPDX-License-Identifier: MIT
#include "WheelGeometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lumora
{

namespace
{

constexpr qreal fullTurn = 2 * std::numbers::pi;

} // namespace

WheelGeometry::WheelGeometry(const QRectF &bounds, qreal margin)
    : m_center(bounds.center()), m_radius(std::max<qreal>(0, std::min(bounds.width(), bounds.height()) / 2 - margin))
{
}

QRectF WheelGeometry::disc() const
{
    return {m_center.x() - m_radius, m_center.y() - m_radius, 2 * m_radius, 2 * m_radius};
}

WheelPosition WheelGeometry::positionAt(const QPointF &point) const
{
    const QPointF offset = point - m_center;
    const qreal distance = std::hypot(offset.x(), offset.y());
    if (distance <= 0 || m_radius <= 0)
        return {};
    const qreal turn = std::atan2(-offset.y(), offset.x()) / fullTurn;
    const auto hue = static_cast<float>(turn < 0 ? turn + 1 : turn);
    return {hue < 1.0F ? hue : 0.0F, static_cast<float>(std::min<qreal>(1, distance / m_radius))};
}

QPointF WheelGeometry::pointAt(const WheelPosition &position) const
{
    const qreal angle = static_cast<qreal>(position.hue) * fullTurn;
    const qreal distance = static_cast<qreal>(position.saturation) * m_radius;
    return {m_center.x() + distance * std::cos(angle), m_center.y() - distance * std::sin(angle)};
}

bool WheelGeometry::contains(const QPointF &point) const
{
    const QPointF offset = point - m_center;
    return std::hypot(offset.x(), offset.y()) <= m_radius;
}

} // namespace lumora
