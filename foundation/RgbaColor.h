// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace lumora
{

/// A color to compute with: calibrated RGB in single precision. Components run from 0 to 1 and are kept as they are
/// given, also beyond that range.
struct RgbaColor
{
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;
    float alpha = 1.0F;

    bool operator==(const RgbaColor &) const = default;
};

/// The components of a platform color, whatever model it was made in.
RgbaColor rgbaFrom(const QColor &color);

/// The color for painting and for the clipboard; components outside 0 to 1 are clamped, since no screen shows them.
QColor platformColor(const RgbaColor &color);

} // namespace lumora
