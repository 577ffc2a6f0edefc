// SPDX-License-Identifier: MIT
#include "Wheel.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lumora
{

namespace
{

constexpr qreal fullTurn = 2 * std::numbers::pi;
constexpr float sectors = 6.0F;

/// One component of a fully bright color, as a byte: a trapezoid over the six sectors of the wheel, turned by `shift`
/// sectors.
int componentAt(float sector, float shift, float saturation)
{
    float turned = sector + shift;
    turned = turned < sectors ? turned : turned - sectors;
    const float chroma = std::clamp(std::min(turned, 4.0F - turned), 0.0F, 1.0F);
    return static_cast<int>(255.5F - saturation * chroma * 255.0F);
}

/// The pixel at an offset from the middle, in pixels, y downwards. Gives the same color as computing the place on the
/// wheel first, but faster: the picker's first frame needs about 50,000 of them.
QRgb pixelAt(float x, float y, float radius)
{
    const float distance = std::sqrt(x * x + y * y);
    const float inside = radius - distance + 0.5F;
    if (inside <= 0.0F)
        return 0;
    constexpr float sectorsInRadian = sectors / (2 * std::numbers::pi_v<float>);
    const float turn = std::atan2(-y, x) * sectorsInRadian;
    const float sector = turn < 0.0F ? turn + sectors : turn;
    const float saturation = std::min(1.0F, distance / radius);
    const QRgb opaque = qRgb(componentAt(sector, 5.0F, saturation), componentAt(sector, 3.0F, saturation),
                             componentAt(sector, 1.0F, saturation));
    if (inside >= 1.0F)
        return opaque;
    return qPremultiply(
        qRgba(qRed(opaque), qGreen(opaque), qBlue(opaque), static_cast<int>(std::lround(inside * 255))));
}

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

QImage wheelImage(qreal radius, qreal devicePixelRatio)
{
    const qreal pixels = 2 * radius * devicePixelRatio;
    const int side = static_cast<int>(std::ceil(pixels));
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    const auto middle = static_cast<float>(pixels / 2);
    for (int y = 0; y < side; ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < side; ++x)
            line[x] = pixelAt(static_cast<float>(x) + 0.5F - middle, static_cast<float>(y) + 0.5F - middle, middle);
    }
    image.setDevicePixelRatio(devicePixelRatio);
    return image;
}

} // namespace lumora
