// SPDX-License-Identifier: MIT
#include "RgbaColor.h"

#include <algorithm>

namespace lumora
{

RgbaColor rgbaFrom(const QColor &color)
{
    RgbaColor result;
    color.getRgbF(&result.red, &result.green, &result.blue, &result.alpha);
    return result;
}

QColor platformColor(const RgbaColor &color)
{
    const auto shown = [](float component) { return std::clamp(component, 0.0F, 1.0F); };
    return QColor::fromRgbF(shown(color.red), shown(color.green), shown(color.blue), shown(color.alpha));
}

} // namespace lumora
