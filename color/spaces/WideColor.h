// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>

namespace lumora
{

/// The color spaces of color codes. Both have the same white and the same curve.
enum class RgbSpace { Srgb, DisplayP3 };

/// A color in double precision, gamma-encoded as code states it. Components are from 0 to 1 if the space can show the
/// color, otherwise outside that range; they are clamped only when a form prints them.
struct WideColor
{
    RgbSpace space = RgbSpace::Srgb;
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double alpha = 1.0; ///< 0 to 1

    bool operator==(const WideColor &) const = default;
};

/// The sRGB color of four bytes.
WideColor wideColorFromBytes(int red, int green, int blue, int alpha = 255);

/// The same color with its components in another space.
WideColor inSpace(const WideColor &color, RgbSpace space);

/// Whether the space cannot show the color, so that its form there is clipped. A difference that 8 bits cannot show
/// does not count.
bool isClippedIn(const WideColor &color, RgbSpace space);

/// The color in the space, with each component clamped to 0 to 1 separately, as browsers and drawing libraries do.
WideColor clippedTo(const WideColor &color, RgbSpace space);

/// Red, green, blue and alpha from 0 to 255, clipped to sRGB and rounded to nearest.
std::array<int, 4> bytesOf(const WideColor &color);

/// "#rrggbbaa" in lower case, alpha last.
QString hex8Of(const WideColor &color);

} // namespace lumora
