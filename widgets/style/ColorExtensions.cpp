// SPDX-License-Identifier: MIT
#include "ColorExtensions.h"

#include <algorithm>

namespace lumora
{

namespace
{

constexpr float lightFrom = 0.8F;

float shown(float component)
{
    return std::clamp(component, 0.0F, 1.0F);
}

} // namespace

CalibratedColor CalibratedColor::fromColor(const QColor &color)
{
    return {color.redF(), color.greenF(), color.blueF(), color.alphaF()};
}

QColor CalibratedColor::toColor() const
{
    return QColor::fromRgbF(shown(red), shown(green), shown(blue), shown(alpha));
}

CalibratedColor lightenColorByValue(const CalibratedColor &color, float value)
{
    return {color.red + value, color.green + value, color.blue + value, 1.0F};
}

CalibratedColor darkenColorByValue(const CalibratedColor &color, float value)
{
    return {color.red - value, color.green - value, color.blue - value, 1.0F};
}

bool isLightColor(const CalibratedColor &color)
{
    return (color.red + color.green + color.blue) / 3.0F > lightFrom;
}

bool isLightColor(const CalibratedGray &color)
{
    return color.gray > lightFrom;
}

} // namespace lumora
