// SPDX-License-Identifier: MIT
#include "WideColor.h"

#include "ColorMatrix.h"
#include "ColorModels.h"

#include <algorithm>
#include <cmath>

namespace lumora
{

namespace
{

constexpr double byteScale = 255.0;
constexpr ColorMatrix srgbOfXyz = inverted(xyzOfSrgb);
constexpr ColorMatrix displayP3OfXyz = inverted(xyzOfDisplayP3);

} // namespace

WideColor wideColorFromBytes(int red, int green, int blue, int alpha)
{
    return {RgbSpace::Srgb, red / byteScale, green / byteScale, blue / byteScale, alpha / byteScale};
}

WideColor inSpace(const WideColor &color, RgbSpace space)
{
    if (color.space == space)
        return color;
    // Both spaces have the same curve and white, so grays must stay the same to the last bit.
    if (color.red == color.green && color.green == color.blue)
        return {space, color.red, color.green, color.blue, color.alpha};
    const ColorVector linear{linearComponent(color.red), linearComponent(color.green), linearComponent(color.blue)};
    const bool toSrgb = space == RgbSpace::Srgb;
    const ColorVector xyz = multiplied(toSrgb ? xyzOfDisplayP3 : xyzOfSrgb, linear);
    const ColorVector result = multiplied(toSrgb ? srgbOfXyz : displayP3OfXyz, xyz);
    return {space, encodedComponent(result[0]), encodedComponent(result[1]), encodedComponent(result[2]), color.alpha};
}

bool isClippedIn(const WideColor &color, RgbSpace space)
{
    constexpr double unseen = 0.5 / byteScale;
    const WideColor shown = inSpace(color, space);
    const auto [smallest, largest] = std::minmax({shown.red, shown.green, shown.blue});
    return smallest < -unseen || largest > 1.0 + unseen;
}

WideColor clippedTo(const WideColor &color, RgbSpace space)
{
    const WideColor shown = inSpace(color, space);
    const auto clipped = [](double component) { return std::clamp(component, 0.0, 1.0); };
    return {space, clipped(shown.red), clipped(shown.green), clipped(shown.blue), clipped(shown.alpha)};
}

std::array<int, 4> bytesOf(const WideColor &color)
{
    const WideColor shown = clippedTo(color, RgbSpace::Srgb);
    // Half a step, such as in hwb(40 50% 0%), is rounded up even where the calculation ends just below it.
    constexpr double inexact = 1e-9;
    const auto byte = [](double component) { return static_cast<int>(std::lround(component * byteScale + inexact)); };
    return {byte(shown.red), byte(shown.green), byte(shown.blue), byte(shown.alpha)};
}

QString hex8Of(const WideColor &color)
{
    QString text(u'#');
    for (const int byte : bytesOf(color))
        text += QString::asprintf("%02x", static_cast<unsigned>(byte));
    return text;
}

} // namespace lumora
