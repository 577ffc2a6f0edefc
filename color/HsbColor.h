// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/RgbaColor.h"

namespace lumora
{

/// A color by hue (a turn of the wheel, 0 up to but not including 1, beginning at red), saturation and brightness (0
/// to 1 each).
struct HsbColor
{
    float hue = 0.0F;
    float saturation = 0.0F;
    float brightness = 0.0F;

    bool operator==(const HsbColor &) const = default;
};

/// The color with the opacity. The hue may be any number of turns; saturation and brightness are taken as 0 to 1.
RgbaColor rgbaFrom(const HsbColor &color, float alpha);

/// Hue, saturation and brightness of components from 0 to 1. Where the color says nothing about its hue (grays) or its
/// saturation (black), those of `fallback` are kept, so that a slider does not jump away from where the user left it.
HsbColor hsbFrom(const RgbaColor &color, const HsbColor &fallback = {});

} // namespace lumora
