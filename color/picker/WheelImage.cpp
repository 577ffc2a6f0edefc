// SPDX-License-Identifier: MIT
#include "WheelImage.h"

#include "WheelGeometry.h"
#include "color/HsbColor.h"

#include <algorithm>
#include <cmath>

namespace lumora
{

namespace
{

QRgb pixelAt(const WheelGeometry &wheel, const QPointF &point)
{
    const QPointF offset = point - wheel.center();
    const qreal inside = wheel.radius() - std::hypot(offset.x(), offset.y()) + 0.5;
    if (inside <= 0)
        return 0;
    const WheelPosition position = wheel.positionAt(point);
    const RgbaColor color = rgbaFrom(HsbColor{position.hue, position.saturation, 1.0F}, 1.0F);
    const auto byte = [](float component) { return static_cast<int>(std::lround(component * 255.0F)); };
    const int alpha = byte(static_cast<float>(std::min<qreal>(1, inside)));
    return qPremultiply(qRgba(byte(color.red), byte(color.green), byte(color.blue), alpha));
}

} // namespace

QImage wheelImage(qreal radius, qreal devicePixelRatio)
{
    const int side = static_cast<int>(std::ceil(2 * radius * devicePixelRatio));
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    const qreal pixels = 2 * radius * devicePixelRatio;
    const WheelGeometry wheel(QRectF(0, 0, pixels, pixels));
    for (int y = 0; y < side; ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < side; ++x)
            line[x] = pixelAt(wheel, QPointF(x + 0.5, y + 0.5));
    }
    image.setDevicePixelRatio(devicePixelRatio);
    return image;
}

} // namespace lumora
