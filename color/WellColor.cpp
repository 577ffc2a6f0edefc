// SPDX-License-Identifier: MIT
#include "WellColor.h"

#include "color/ColorCode.h"

#include <algorithm>
#include <cmath>

namespace lumora
{

RgbaColor wellColor(const WideColor &color)
{
    const auto [red, green, blue, alpha] = bytesOf(color);
    const auto fraction = [](int byte) { return static_cast<float>(byte) / 255.0F; };
    return {fraction(red), fraction(green), fraction(blue), fraction(alpha)};
}

WideColor wideColorFrom(const RgbaColor &color)
{
    const auto byte = [](float component) {
        return static_cast<int>(std::lround(std::clamp(component, 0.0F, 1.0F) * 255.0F));
    };
    return wideColorFromBytes(byte(color.red), byte(color.green), byte(color.blue), byte(color.alpha));
}

WideColor wideColorOfCode(const RgbaColor &color)
{
    const auto byte = [](float component) { return std::clamp(componentByte(component), 0, 255); };
    return wideColorFromBytes(byte(color.red), byte(color.green), byte(color.blue), byte(color.alpha));
}

} // namespace lumora
