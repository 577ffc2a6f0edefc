// SPDX-License-Identifier: MIT
#pragma once

#include "WideColor.h"

#include <optional>

namespace lumora
{

/// WCAG 2's thresholds for the contrast of a text, or a part of an interface, with its background.
inline constexpr double contrastForText = 4.5;
inline constexpr double contrastForLargeText = 3.0;
inline constexpr double contrastForInterface = 3.0;
inline constexpr double enhancedContrastForText = 7.0;
inline constexpr double enhancedContrastForLargeText = 4.5;

/// The contrast of two colors, and the thresholds that it reaches. Compares the exact ratio, never a rounded one.
struct Contrast
{
    double ratio = 1.0; ///< 1 to 21

    bool aa() const { return ratio >= contrastForText; }
    bool aaLarge() const { return ratio >= contrastForLargeText; }
    bool aaa() const { return ratio >= enhancedContrastForText; }
    bool aaaLarge() const { return ratio >= enhancedContrastForLargeText; }
    bool interfacePart() const { return ratio >= contrastForInterface; }
};

/// WCAG 2's relative luminance, 0 to 1, of the color as sRGB shows it; ignores the opacity.
double relativeLuminance(const WideColor &color);

/// The contrast of a color on a background. A translucent color is blended with the background, a translucent
/// background with white.
Contrast contrastOf(const WideColor &color, const WideColor &background);

/// The ratio with two decimals, such as "4.48"; with more decimals if two would round it up to a threshold that it
/// misses.
QString ratioText(double ratio);

/// The sRGB color of whole bytes that is most similar to the given one and reaches the ratio on the background; the
/// color itself if it reaches the ratio. The result for a gray is a gray. The result is opaque, as the ratio takes
/// transparency into account. Empty if not even black or white reaches the ratio.
std::optional<WideColor> nearestWithContrast(const WideColor &color, const WideColor &background, double ratio);

} // namespace lumora
