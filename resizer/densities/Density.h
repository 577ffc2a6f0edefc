// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>
#include <QStringView>

#include <compare>
#include <optional>

namespace lumora
{

/// The number of pixels per point, as a fraction: 3 for @3x and xxhdpi, 3/2 for hdpi.
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

/// Reads "3x", "1.5x", or the name of an Android bucket ("xxhdpi"). Empty for a density that no layout has.
std::optional<Density> densityNamed(QStringView text);

/// "3x", "1.5x".
QString densityText(const Density &density);

/// The density's Android bucket, "xxhdpi"; empty for one that has none.
QString bucketText(const Density &density);

/// A size after a change of density.
struct ScaledSize
{
    QSize size;
    /// Whether an edge was not a whole number of pixels, or below one, and was rounded.
    bool rounded = false;
};

/// Each edge times to/from, rounded to the nearest pixel (a half rounds up), at least 1.
ScaledSize scaledSize(QSize pixels, const Density &from, const Density &to);

} // namespace lumora
