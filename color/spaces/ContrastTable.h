// SPDX-License-Identifier: MIT
#pragma once

#include "color/spaces/Contrast.h"

#include <array>

namespace lumora
{

/// The purposes for which WCAG 2 sets thresholds.
enum class ContrastUse { Text, LargeText, InterfacePart };

/// The verdict on one purpose.
struct ContrastRow
{
    ContrastUse use = {};
    bool aa = false;
    bool aaa = false; ///< false for interface parts, which have no such level
    bool hasAaa = true;
    /// The lowest threshold that is missed; 0 if none is.
    double missed = 0.0;
    /// Whether some color reaches it on this background.
    bool canPass = false;
};

/// The verdicts on the color on a background. Cheap enough for every step of a slider.
std::array<ContrastRow, 3> contrastTable(const WideColor &color, const WideColor &background);

} // namespace lumora
