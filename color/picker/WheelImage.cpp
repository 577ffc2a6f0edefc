// SPDX-License-Identifier: MIT
#include "WheelImage.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lumora
{

namespace
{

constexpr float sectors = 6.0F;

/// One component of a fully bright colour, as a byte: a trapezium over the six sectors of the wheel, `shift` of them
/// turned.
int componentAt(float sector, float shift, float saturation)
{
    float turned = sector + shift;
    turned = turned < sectors ? turned : turned - sectors;
    const float chroma = std::clamp(std::min(turned, 4.0F - turned), 0.0F, 1.0F);
    return static_cast<int>((1.0F - saturation * chroma) * 255.0F + 0.5F);
}

/// The pixel at an offset from the middle, in pixels, y downwards. The same as taking the place on the wheel and its
/// colour one by one, but faster: the picker's first frame waits for some 50 000 of them.
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
