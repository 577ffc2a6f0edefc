// SPDX-License-Identifier: MIT
#pragma once

#include "color/HsbColor.h"

#include <QBrush>

namespace lumora
{

/// The color being picked, in both of the ways it is shown. Hue and saturation are carried along because a gray does
/// not tell them.
struct PickedColor
{
    RgbaColor rgba;
    HsbColor hsb;

    bool operator==(const PickedColor &) const = default;
};

/// The picked color replaced by another that says nothing of hue and saturation beyond its components.
PickedColor withColor(const PickedColor &before, const RgbaColor &color);
/// The picked color with other hue, saturation and brightness, its opacity kept.
PickedColor withHsb(const PickedColor &before, const HsbColor &hsb);

/// What a slider of the picker changes.
enum class ColorChannel { Red, Green, Blue, Hue, Saturation, Brightness, Gray, Opacity };

/// The largest number of a channel; the smallest is 0. Bytes for red, green, blue and gray, degrees for the hue,
/// percent for the others.
int channelMaximum(ColorChannel channel);
/// The number that a channel shows. Red, green and blue are cut as in the color's text, so that both agree; gray is
/// the lightness a color has in black and white.
int channelNumber(const PickedColor &color, ColorChannel channel);
/// The color with one channel set, every other as it was; gray sets red, green and blue alike. Numbers out of range
/// count as the nearest in range.
PickedColor withChannel(const PickedColor &before, ColorChannel channel, int number);
/// The colors along a channel's slider from 0 to its maximum, opaque but for the opacity channel.
QGradientStops channelStops(const PickedColor &color, ColorChannel channel);

} // namespace lumora
