// SPDX-License-Identifier: MIT
#include "ColorShades.h"

namespace lumora
{

namespace
{

/// Above this mean only dark text is readable.
constexpr float lightFrom = 0.8F;

} // namespace

RgbaColor lightenColorByValue(const RgbaColor &color, float value)
{
    return {color.red + value, color.green + value, color.blue + value, 1.0F};
}

RgbaColor darkenColorByValue(const RgbaColor &color, float value)
{
    return {color.red - value, color.green - value, color.blue - value, 1.0F};
}

bool isLightColor(const RgbaColor &color)
{
    return (color.red + color.green + color.blue) / 3.0F > lightFrom;
}

bool isLightColor(const CalibratedGray &color)
{
    return color.gray > lightFrom;
}

} // namespace lumora
