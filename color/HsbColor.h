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

/// The color with the opacity. The hue may be any number of turns; saturation and brightness are clamped to 0 to 1.
RgbaColor rgbaFrom(const HsbColor &color, float alpha);

/// Hue, saturation and brightness of components from 0 to 1. Grays have no hue and black has no saturation; they get
/// those of `fallback`, so that a slider stays where the user left it.
HsbColor hsbFrom(const RgbaColor &color, const HsbColor &fallback = {});

} // namespace lumora
