// SPDX-License-Identifier: MIT
#include "ColorModels.h"

#include "ColorMatrix.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lumora
{

namespace
{

// The matrices of CSS Color Module Level 4, section 18: XYZ to cone responses, and their cube roots to OKLab.
constexpr ColorMatrix conesOfXyz{{{0.8190224379967030, 0.3619062600528904, -0.1288737815209879},
                                  {0.0329836539323885, 0.9292868615863434, 0.0361446663506424},
                                  {0.0481771893596242, 0.2642395317527308, 0.6335478284694309}}};
constexpr ColorMatrix oklabOfCones{{{0.2104542683093140, 0.7936177747023054, -0.0040720430116193},
                                    {1.9779985324311684, -2.4285922420485799, 0.4505937096174110},
                                    {0.0259040424655478, 0.7827717124575296, -0.8086757549230774}}};
constexpr ColorMatrix xyzOfCones = inverted(conesOfXyz);
constexpr ColorMatrix conesOfOklab = inverted(oklabOfCones);
constexpr ColorMatrix srgbOfXyz = inverted(xyzOfSrgb);

/// A color of less chroma is a gray. The limit is about a hundred times the rounding errors of the matrices, and a
/// tenth of the last digit that a form prints.
constexpr double grayChroma = 1e-6;
constexpr double degrees = 180.0 / std::numbers::pi;

double turned(double hue)
{
    const double turn = std::fmod(hue, 360.0);
    const double positive = turn < 0.0 ? turn + 360.0 : turn;
    return positive < 360.0 ? positive : 0.0;
}

struct Extremes
{
    double smallest;
    double largest;
    double hue;
};

Extremes extremesOf(const WideColor &rgb)
{
    const double largest = std::max({rgb.red, rgb.green, rgb.blue});
    const double smallest = std::min({rgb.red, rgb.green, rgb.blue});
    const double range = largest - smallest;
    if (range < grayChroma)
        return {smallest, largest, 0.0};
    double sector = 0.0;
    if (largest == rgb.red)
        sector = (rgb.green - rgb.blue) / range;
    else if (largest == rgb.green)
        sector = 2.0 + (rgb.blue - rgb.red) / range;
    else
        sector = 4.0 + (rgb.red - rgb.green) / range;
    return {smallest, largest, turned(sector * 60.0)};
}

/// One component of a fully saturated color of the hue: a trapezoid over the wheel, turned by `shift` sixths.
double pureComponent(double hue, double shift)
{
    const double sector = std::fmod(turned(hue) / 60.0 + shift, 6.0);
    return 1.0 - std::clamp(std::min(sector, 4.0 - sector), 0.0, 1.0);
}

WideColor pureColor(double hue, double scale, double offset, double alpha)
{
    return {RgbSpace::Srgb, offset + scale * pureComponent(hue, 5.0), offset + scale * pureComponent(hue, 3.0),
            offset + scale * pureComponent(hue, 1.0), alpha};
}

} // namespace

double linearComponent(double encoded)
{
    const double magnitude = std::abs(encoded);
    const double linear = magnitude <= 0.04045 ? magnitude / 12.92 : std::pow((magnitude + 0.055) / 1.055, 2.4);
    return std::copysign(linear, encoded);
}

double encodedComponent(double linear)
{
    const double magnitude = std::abs(linear);
    const double encoded = magnitude <= 0.0031308 ? magnitude * 12.92 : 1.055 * std::pow(magnitude, 1.0 / 2.4) - 0.055;
    return std::copysign(encoded, linear);
}

HslColor hslOf(const WideColor &color)
{
    const Extremes extremes = extremesOf(clippedTo(color, RgbSpace::Srgb));
    const double lightness = (extremes.largest + extremes.smallest) / 2.0;
    const double range = extremes.largest - extremes.smallest;
    const double room = 1.0 - std::abs(2.0 * lightness - 1.0);
    return {extremes.hue, range < grayChroma ? 0.0 : std::min(range / room, 1.0), lightness};
}

HwbColor hwbOf(const WideColor &color)
{
    const Extremes extremes = extremesOf(clippedTo(color, RgbSpace::Srgb));
    return {extremes.hue, extremes.smallest, 1.0 - extremes.largest};
}

OklabColor oklabOf(const WideColor &color)
{
    const ColorVector linear{linearComponent(color.red), linearComponent(color.green), linearComponent(color.blue)};
    const ColorVector xyz = multiplied(color.space == RgbSpace::Srgb ? xyzOfSrgb : xyzOfDisplayP3, linear);
    ColorVector cones = multiplied(conesOfXyz, xyz);
    for (double &cone : cones)
        cone = std::cbrt(cone);
    const ColorVector lab = multiplied(oklabOfCones, cones);
    return {lab[0], lab[1], lab[2]};
}

OklchColor oklchOf(const WideColor &color)
{
    const OklabColor lab = oklabOf(color);
    const double chroma = std::hypot(lab.a, lab.b);
    if (chroma < grayChroma)
        return {lab.lightness, 0.0, 0.0};
    return {lab.lightness, chroma, turned(std::atan2(lab.b, lab.a) * degrees)};
}

WideColor wideColorFrom(const HslColor &color, double alpha)
{
    const double chroma = (1.0 - std::abs(2.0 * color.lightness - 1.0)) * color.saturation;
    return pureColor(color.hue, chroma, color.lightness - chroma / 2.0, alpha);
}

WideColor wideColorFrom(const HwbColor &color, double alpha)
{
    const double sum = color.whiteness + color.blackness;
    if (sum >= 1.0) {
        const double gray = color.whiteness / sum;
        return {RgbSpace::Srgb, gray, gray, gray, alpha};
    }
    return pureColor(color.hue, 1.0 - sum, color.whiteness, alpha);
}

WideColor wideColorFrom(const OklabColor &color, double alpha)
{
    ColorVector cones = multiplied(conesOfOklab, {color.lightness, color.a, color.b});
    for (double &cone : cones)
        cone = cone * cone * cone;
    const ColorVector linear = multiplied(srgbOfXyz, multiplied(xyzOfCones, cones));
    return {RgbSpace::Srgb, encodedComponent(linear[0]), encodedComponent(linear[1]), encodedComponent(linear[2]),
            alpha};
}

WideColor wideColorFrom(const OklchColor &color, double alpha)
{
    const double angle = color.hue / degrees;
    return wideColorFrom(OklabColor{color.lightness, color.chroma * std::cos(angle), color.chroma * std::sin(angle)},
                         alpha);
}

double oklabDistance(const OklabColor &one, const OklabColor &other)
{
    return std::hypot(one.lightness - other.lightness, one.a - other.a, one.b - other.b);
}

} // namespace lumora
