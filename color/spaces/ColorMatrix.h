// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace lumora
{

using ColorVector = std::array<double, 3>;
using ColorMatrix = std::array<ColorVector, 3>;

constexpr ColorVector multiplied(const ColorMatrix &matrix, const ColorVector &vector)
{
    ColorVector result{};
    for (std::size_t row = 0; row < 3; ++row)
        result[row] = matrix[row][0] * vector[0] + matrix[row][1] * vector[1] + matrix[row][2] * vector[2];
    return result;
}

/// The inverse of an invertible matrix.
constexpr ColorMatrix inverted(const ColorMatrix &m)
{
    const auto cofactor = [&m](std::size_t row, std::size_t column) {
        const std::size_t r1 = (row + 1) % 3;
        const std::size_t r2 = (row + 2) % 3;
        const std::size_t c1 = (column + 1) % 3;
        const std::size_t c2 = (column + 2) % 3;
        return m[r1][c1] * m[r2][c2] - m[r1][c2] * m[r2][c1];
    };
    const double determinant = m[0][0] * cofactor(0, 0) + m[0][1] * cofactor(0, 1) + m[0][2] * cofactor(0, 2);
    ColorMatrix result{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column)
            result[row][column] = cofactor(column, row) / determinant;
    }
    return result;
}

/// A point of the chromaticity diagram.
struct Chromaticity
{
    double x;
    double y;
};

/// The matrix from linear components to CIE XYZ, computed from the space's three primaries and its white, which has Y =
/// 1.
constexpr ColorMatrix xyzMatrix(const std::array<Chromaticity, 3> &primaries, const Chromaticity &white)
{
    const auto xyz = [](const Chromaticity &point) {
        return ColorVector{point.x / point.y, 1.0, (1.0 - point.x - point.y) / point.y};
    };
    ColorMatrix columns{};
    for (std::size_t column = 0; column < 3; ++column) {
        const ColorVector primary = xyz(primaries[column]);
        for (std::size_t row = 0; row < 3; ++row)
            columns[row][column] = primary[row];
    }
    const ColorVector amounts = multiplied(inverted(columns), xyz(white));
    for (ColorVector &row : columns) {
        for (std::size_t column = 0; column < 3; ++column)
            row[column] *= amounts[column];
    }
    return columns;
}

inline constexpr Chromaticity whiteD65{0.3127, 0.3290};
/// ITU-R BT.709's primaries, which sRGB has, and those of SMPTE RP 431-2, which Display P3 has.
inline constexpr ColorMatrix xyzOfSrgb = xyzMatrix({{{0.64, 0.33}, {0.30, 0.60}, {0.15, 0.06}}}, whiteD65);
inline constexpr ColorMatrix xyzOfDisplayP3 = xyzMatrix({{{0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}}}, whiteD65);

} // namespace lumora
