// SPDX-License-Identifier: MIT
#include "ColorExtensions.h"

#include <cmath>

namespace lumora
{

QColor copyCGColor(const QColor &color)
{
    return platformColor(rgbaFrom(color));
}

RgbaColor randomColor(const RandomSource &random)
{
    const auto component = [&random] { return static_cast<float>(std::ldexp(static_cast<double>(random()), -31)); };
    // One statement for each, since the numbers must be drawn in this order.
    const float red = component();
    const float green = component();
    const float blue = component();
    return {red, green, blue, 1.0F};
}

QString colorDescription(const RgbaColor &color)
{
    const auto rounded = [](float component) { return static_cast<int>(std::lround(component * 255.0F)); };
    return QString::asprintf("r: %d, g: %d, b: %d, a: %d", rounded(color.red), rounded(color.green),
                             rounded(color.blue), rounded(color.alpha));
}

} // namespace lumora
