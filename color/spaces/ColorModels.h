// SPDX-License-Identifier: MIT
#pragma once

#include "WideColor.h"

namespace lumora
{

/// Hue in degrees, 0 up to but not including 360; the others from 0 to 1. A gray's hue is exactly 0.
struct HslColor
{
    double hue = 0.0;
    double saturation = 0.0;
    double lightness = 0.0;
};

struct HwbColor
{
    double hue = 0.0;
    double whiteness = 0.0;
    double blackness = 0.0;
};

/// OKLab, the perceptual space of CSS Color 4: lightness 0 to 1, a and b around 0.
struct OklabColor
{
    double lightness = 0.0;
    double a = 0.0;
    double b = 0.0;
};

/// OKLab by chroma and hue.
struct OklchColor
{
    double lightness = 0.0;
    double chroma = 0.0;
    double hue = 0.0;
};

/// These two use the color as sRGB shows it.
HslColor hslOf(const WideColor &color);
HwbColor hwbOf(const WideColor &color);
/// These two use the color itself, in any gamut.
OklabColor oklabOf(const WideColor &color);
OklchColor oklchOf(const WideColor &color);

/// In sRGB. The hue may be any number of degrees. If whiteness and blackness together exceed 1, the color is a gray in
/// their proportion.
WideColor wideColorFrom(const HslColor &color, double alpha);
WideColor wideColorFrom(const HwbColor &color, double alpha);
WideColor wideColorFrom(const OklabColor &color, double alpha);
WideColor wideColorFrom(const OklchColor &color, double alpha);

/// The perceived difference of two colors: the distance in OKLab.
double oklabDistance(const OklabColor &one, const OklabColor &other);

/// From a gamma-encoded component to linear light, and back. Negative values mirror positive ones.
double linearComponent(double encoded);
double encodedComponent(double linear);

} // namespace lumora
