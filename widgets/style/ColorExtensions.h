// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace lumora
{

/// A colour by its calibrated components in single precision. 0 to 1 is what a screen shows; a component may lie
/// outside of that until toColor() is asked for what to paint with.
struct CalibratedColor
{
    float red = 0;
    float green = 0;
    float blue = 0;
    float alpha = 1;

    static CalibratedColor fromColor(const QColor &color);
    /// The nearest colour that can be painted with.
    QColor toColor() const;

    bool operator==(const CalibratedColor &other) const = default;
};

/// A colour that has one grey component.
struct CalibratedGray
{
    float gray = 0;
    float alpha = 1;
};

/// Red, green and blue each raised by the value, not clamped; opaque whatever the colour was.
CalibratedColor lightenColorByValue(const CalibratedColor &color, float value);
/// Red, green and blue each lowered by the value, not clamped; opaque whatever the colour was.
CalibratedColor darkenColorByValue(const CalibratedColor &color, float value);

/// Whether the mean of red, green and blue is above 0.8, that is, whether only dark text can be read on the colour.
bool isLightColor(const CalibratedColor &color);
/// Whether the grey is above 0.8.
bool isLightColor(const CalibratedGray &color);

} // namespace lumora
