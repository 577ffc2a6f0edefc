// SPDX-License-Identifier: MIT
#include "PickedColor.h"

#include "color/ColorCode.h"

#include <algorithm>
#include <cmath>

namespace lumora
{

namespace
{

constexpr int byteMaximum = 255;
constexpr int percentMaximum = 100;
constexpr int degreeMaximum = 359;

/// The lightness of a color in black and white, by the luma weights of ITU-R BT.601.
float grayOf(const RgbaColor &color)
{
    return 0.299F * color.red + 0.587F * color.green + 0.114F * color.blue;
}

int rounded(float value, int scale)
{
    return static_cast<int>(std::lround(value * static_cast<float>(scale)));
}

PickedColor withOpacity(PickedColor color, float alpha)
{
    color.rgba.alpha = alpha;
    return color;
}

} // namespace

PickedColor withColor(const PickedColor &before, const RgbaColor &color)
{
    return {color, hsbFrom(color, before.hsb)};
}

PickedColor withHsb(const PickedColor &before, const HsbColor &hsb)
{
    return {rgbaFrom(hsb, before.rgba.alpha), hsb};
}

int channelMaximum(ColorChannel channel)
{
    switch (channel) {
    case ColorChannel::Red:
    case ColorChannel::Green:
    case ColorChannel::Blue:
    case ColorChannel::Gray:
        return byteMaximum;
    case ColorChannel::Hue:
        return degreeMaximum;
    case ColorChannel::Saturation:
    case ColorChannel::Brightness:
    case ColorChannel::Opacity:
        return percentMaximum;
    }
    return 0;
}

int channelNumber(const PickedColor &color, ColorChannel channel)
{
    const auto byte = [](float component) { return std::clamp(componentByte(component), 0, byteMaximum); };
    switch (channel) {
    case ColorChannel::Red:
        return byte(color.rgba.red);
    case ColorChannel::Green:
        return byte(color.rgba.green);
    case ColorChannel::Blue:
        return byte(color.rgba.blue);
    case ColorChannel::Hue:
        return rounded(color.hsb.hue, degreeMaximum + 1) % (degreeMaximum + 1);
    case ColorChannel::Saturation:
        return rounded(color.hsb.saturation, percentMaximum);
    case ColorChannel::Brightness:
        return rounded(color.hsb.brightness, percentMaximum);
    case ColorChannel::Gray:
        return std::clamp(rounded(grayOf(color.rgba), byteMaximum), 0, byteMaximum);
    case ColorChannel::Opacity:
        return rounded(color.rgba.alpha, percentMaximum);
    }
    return 0;
}

PickedColor withChannel(const PickedColor &before, ColorChannel channel, int number)
{
    const int maximum = channelMaximum(channel);
    const float fraction = static_cast<float>(std::clamp(number, 0, maximum)) / static_cast<float>(maximum);
    RgbaColor rgba = before.rgba;
    HsbColor hsb = before.hsb;
    switch (channel) {
    case ColorChannel::Red:
        rgba.red = fraction;
        return withColor(before, rgba);
    case ColorChannel::Green:
        rgba.green = fraction;
        return withColor(before, rgba);
    case ColorChannel::Blue:
        rgba.blue = fraction;
        return withColor(before, rgba);
    case ColorChannel::Hue:
        hsb.hue = static_cast<float>(std::clamp(number, 0, maximum)) / static_cast<float>(maximum + 1);
        return withHsb(before, hsb);
    case ColorChannel::Saturation:
        hsb.saturation = fraction;
        return withHsb(before, hsb);
    case ColorChannel::Brightness:
        hsb.brightness = fraction;
        return withHsb(before, hsb);
    case ColorChannel::Gray:
        return withColor(before, {fraction, fraction, fraction, before.rgba.alpha});
    case ColorChannel::Opacity:
        return withOpacity(before, fraction);
    }
    return before;
}

QGradientStops channelStops(const PickedColor &color, ColorChannel channel)
{
    const PickedColor opaque = withOpacity(color, channel == ColorChannel::Opacity ? color.rgba.alpha : 1.0F);
    // Only the hue's colors are not on the straight line between the two ends.
    const int steps = channel == ColorChannel::Hue ? 6 : 1;
    QGradientStops stops;
    for (int step = 0; step <= steps; ++step) {
        const int number = channelMaximum(channel) * step / steps;
        stops << QGradientStop(static_cast<qreal>(step) / steps,
                               platformColor(withChannel(opaque, channel, number).rgba));
    }
    return stops;
}

} // namespace lumora
