// SPDX-License-Identifier: MIT
#include "HsbColor.h"

#include <algorithm>
#include <cmath>

namespace lumora
{

namespace
{

constexpr float sectors = 6.0F;

/// One component of a fully bright color: a trapezoid over the six sectors of the wheel, turned by `shift` sectors.
float wheelComponent(float hue, float shift, float saturation)
{
    const float sector = std::fmod(hue * sectors + shift, sectors);
    const float chroma = std::clamp(std::min(sector, 4.0F - sector), 0.0F, 1.0F);
    return 1.0F - saturation * chroma;
}

/// The component of a whole byte, if the component misses it only by single precision's error. Bytes are truncated, so
/// that a tiny bit less would be a whole byte less.
float withoutError(float component)
{
    constexpr float error = 0.001F;
    const float scaled = component * 255.0F;
    const float byte = std::round(scaled);
    return std::abs(scaled - byte) < error ? byte / 255.0F : component;
}

float turnFraction(float hue)
{
    const float fraction = hue - std::floor(hue);
    return fraction < 1.0F ? fraction : 0.0F;
}

} // namespace

RgbaColor rgbaFrom(const HsbColor &color, float alpha)
{
    const float hue = turnFraction(color.hue);
    const float saturation = std::clamp(color.saturation, 0.0F, 1.0F);
    const float brightness = std::clamp(color.brightness, 0.0F, 1.0F);
    return {withoutError(brightness * wheelComponent(hue, 5.0F, saturation)),
            withoutError(brightness * wheelComponent(hue, 3.0F, saturation)),
            withoutError(brightness * wheelComponent(hue, 1.0F, saturation)), alpha};
}

HsbColor hsbFrom(const RgbaColor &color, const HsbColor &fallback)
{
    const float largest = std::max({color.red, color.green, color.blue});
    const float smallest = std::min({color.red, color.green, color.blue});
    const float range = largest - smallest;
    if (largest <= 0.0F)
        return {fallback.hue, fallback.saturation, 0.0F};
    if (range <= 0.0F)
        return {fallback.hue, 0.0F, largest};
    float sector = 0.0F;
    if (largest == color.red)
        sector = (color.green - color.blue) / range;
    else if (largest == color.green)
        sector = 2.0F + (color.blue - color.red) / range;
    else
        sector = 4.0F + (color.red - color.green) / range;
    return {turnFraction(sector / sectors), range / largest, largest};
}

} // namespace lumora
