// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/RgbaColor.h"

namespace lumora
{

/// A color that has one gray component.
struct CalibratedGray
{
    float gray = 0;
    float alpha = 1;
};

// The functions below are part of the kit's public face: KBButton and the tests use them.

/// Red, green and blue each raised by the value, not clamped; always opaque.
RgbaColor lightenColorByValue(const RgbaColor &color, float value);
/// Red, green and blue each lowered by the value, not clamped; always opaque.
RgbaColor darkenColorByValue(const RgbaColor &color, float value);

/// Whether the mean of red, green and blue is above 0.8, so that only dark text is readable on the color.
bool isLightColor(const RgbaColor &color);
/// Whether the gray is above 0.8.
bool isLightColor(const CalibratedGray &color);

} // namespace lumora
