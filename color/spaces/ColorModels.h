// SPDX-License-Identifier: MIT
#pragma once

#include "WideColor.h"

namespace lumora
{

/// Hue in degrees, 0 up to but not including 360; the others from 0 to 1. A gray's hue is 0 whatever rounding left of
/// it.
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

/// Of the color as sRGB shows it.
HslColor hslOf(const WideColor &color);
HwbColor hwbOf(const WideColor &color);
/// Of the color itself, in whatever gamut.
OklabColor oklabOf(const WideColor &color);
OklchColor oklchOf(const WideColor &color);

/// In sRGB. The hue may be any number of degrees. A whiteness and blackness of more than 1 together are a gray in their
/// proportion.
WideColor wideColorFrom(const HslColor &color, double alpha);
WideColor wideColorFrom(const HwbColor &color, double alpha);
WideColor wideColorFrom(const OklabColor &color, double alpha);
WideColor wideColorFrom(const OklchColor &color, double alpha);

/// How far apart two colors look: the distance in OKLab.
double oklabDistance(const OklabColor &one, const OklabColor &other);

/// The share of light that a gamma-encoded component is, and back. Negative ones mirror the positive.
double linearComponent(double encoded);
double encodedComponent(double linear);

} // namespace lumora
