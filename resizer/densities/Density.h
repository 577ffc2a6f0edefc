// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>
#include <QStringView>

#include <compare>
#include <optional>

namespace lumora
{

/// How many pixels a point has, as a fraction: 3 for @3x and xxhdpi, 3/2 for hdpi.
struct Density
{
    int numerator = 1;
    int denominator = 1;

    constexpr double factor() const { return static_cast<double>(numerator) / denominator; }
    constexpr bool operator==(const Density &other) const { return (*this <=> other) == 0; }
    constexpr std::strong_ordering operator<=>(const Density &other) const
    {
        return numerator * other.denominator <=> other.numerator * denominator;
    }
};

/// "3x", "1.5x", or the name of an Android bucket ("xxhdpi"). None for a density that no layout has.
std::optional<Density> densityNamed(QStringView text);

/// "3x", "1.5x".
QString densityText(const Density &density);

/// What becomes of a size when a picture changes its density.
struct ScaledSize
{
    QSize size;
    /// Whether an edge was no whole number of pixels, or none at all, and was rounded.
    bool rounded = false;
};

/// Each edge times to/from, rounded to the nearest pixel (a half goes up), at least 1.
ScaledSize scaledSize(QSize pixels, const Density &from, const Density &to);

} // namespace lumora
