// SPDX-License-Identifier: MIT
#pragma once

#include "WideColor.h"

#include <optional>

namespace lumora
{

/// WCAG 2's thresholds for the ratio of a text, or a part of an interface, to what is behind it.
inline constexpr double contrastForText = 4.5;
inline constexpr double contrastForLargeText = 3.0;
inline constexpr double contrastForInterface = 3.0;
inline constexpr double enhancedContrastForText = 7.0;
inline constexpr double enhancedContrastForLargeText = 4.5;

/// How two colors stand out against each other, and what that is enough for. Judged by the ratio itself, never by a
/// rounded one.
struct Contrast
{
    double ratio = 1.0; ///< 1 to 21

    bool aa() const { return ratio >= contrastForText; }
    bool aaLarge() const { return ratio >= contrastForLargeText; }
    bool aaa() const { return ratio >= enhancedContrastForText; }
    bool aaaLarge() const { return ratio >= enhancedContrastForLargeText; }
    bool interfacePart() const { return ratio >= contrastForInterface; }
};

/// WCAG 2's relative luminance, 0 to 1, of the color as sRGB shows it; opacity is left out.
double relativeLuminance(const WideColor &color);

/// The contrast of a color on a background. A translucent color is what it looks like on the background, a translucent
/// background what it looks like on white.
Contrast contrastOf(const WideColor &color, const WideColor &background);

/// The ratio with two decimals, such as "4.48"; with more where two would round it up to a threshold that it misses.
QString ratioText(double ratio);

/// The sRGB color of whole bytes that looks most like the given one and reaches the ratio against the background; the
/// color itself where it does. Opaque, since what shines through is part of the ratio. None where not even black or
/// white reaches it.
std::optional<WideColor> nearestWithContrast(const WideColor &color, const WideColor &background, double ratio);

} // namespace lumora
