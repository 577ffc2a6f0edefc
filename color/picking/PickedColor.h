// SPDX-License-Identifier: MIT
#pragma once

#include "color/HsbColor.h"

#include <QBrush>

namespace lumora
{

/// The color that is being picked, as RGB and as HSB. Hue and saturation are stored, since they do not follow from a
/// gray.
struct PickedColor
{
    RgbaColor rgba;
    HsbColor hsb;

    bool operator==(const PickedColor &) const = default;
};

/// The picked color replaced by another that is given by its components only.
PickedColor withColor(const PickedColor &before, const RgbaColor &color);
/// The picked color with other hue, saturation and brightness, its opacity kept.
PickedColor withHsb(const PickedColor &before, const HsbColor &hsb);

/// The values that the picker's sliders change.
enum class ColorChannel { Red, Green, Blue, Hue, Saturation, Brightness, Gray, Opacity };

/// The largest number of a channel; the smallest is 0. Bytes for red, green, blue and gray, degrees for the hue,
/// percent for the others.
int channelMaximum(ColorChannel channel);
/// The number that a channel shows. Red, green and blue are truncated as in the color's text, so that both agree; gray
/// is the color's lightness in black and white.
int channelNumber(const PickedColor &color, ColorChannel channel);
/// The color with one channel set and the others unchanged; gray sets red, green and blue to the same value. Numbers
/// out of range are clamped.
PickedColor withChannel(const PickedColor &before, ColorChannel channel, int number);
/// The colors along a channel's slider from 0 to its maximum, opaque except for the opacity channel.
QGradientStops channelStops(const PickedColor &color, ColorChannel channel);

} // namespace lumora
