// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace lumora
{

/// A color to compute with: calibrated RGB in single precision. Components run from 0 to 1; values beyond that range
/// are kept as given.
struct RgbaColor
{
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;
    float alpha = 1.0F;

    bool operator==(const RgbaColor &) const = default;
};

/// The components of a platform color, in whatever color model it was made.
RgbaColor rgbaFrom(const QColor &color);

/// The color for painting and for the clipboard; components outside 0 to 1 are clamped, since no screen shows them.
QColor platformColor(const RgbaColor &color);

} // namespace lumora
