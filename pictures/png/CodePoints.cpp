// SPDX-License-Identifier: MIT
#include "CodePoints.h"

#include <QList>
#include <QPointF>

#include <array>
#include <cmath>

namespace lumora
{

namespace
{

enum Primaries : int { Bt709 = 1, Bt2020 = 9, DisplayP3 = 12 };

enum Transfer : int {
    TransferBt709 = 1,
    Gamma22 = 4,
    Gamma28 = 5,
    TransferBt601 = 6,
    LinearLight = 8,
    TransferSrgb = 13,
    TransferBt2020Of10Bits = 14,
    TransferBt2020Of12Bits = 15,
    PerceptualQuantizer = 16,
    HybridLogGamma = 18,
};

struct Gamut
{
    int primaries = 0;
    QPointF red;
    QPointF green;
    QPointF blue;
};

/// All three have the white point of D65.
const std::array<Gamut, 3> gamuts = {{
    {Bt709, {0.640, 0.330}, {0.300, 0.600}, {0.150, 0.060}},
    {Bt2020, {0.708, 0.292}, {0.170, 0.797}, {0.131, 0.046}},
    {DisplayP3, {0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}},
}};
const QPointF d65(0.3127, 0.3290);

/// The linear light of an encoded value. BT.709, BT.601 and BT.2020 share this curve, which is linear below 0.018.
double lightOfBt709(double sample)
{
    return sample < 0.081 ? sample / 4.5 : std::pow((sample + 0.099) / 1.099, 1 / 0.45);
}

/// A table of 16-bit light in steps of a 16th of an 8-bit level, so that each 8-bit value has an exact entry.
QList<uint16_t> tableOfBt709()
{
    constexpr int steps = 255 * 16;
    QList<uint16_t> table;
    table.reserve(steps + 1);
    for (int step = 0; step <= steps; ++step)
        table.append(static_cast<uint16_t>(std::lround(65535 * lightOfBt709(static_cast<double>(step) / steps))));
    return table;
}

std::optional<QColorSpace> colorSpaceOf(const Gamut &gamut, int transfer)
{
    const auto space = [&gamut](QColorSpace::TransferFunction curve, float gamma = 0) {
        return QColorSpace(d65, gamut.red, gamut.green, gamut.blue, curve, gamma);
    };
    switch (transfer) {
    case TransferSrgb:
        return space(QColorSpace::TransferFunction::SRgb);
    case LinearLight:
        return space(QColorSpace::TransferFunction::Linear);
    case Gamma22:
        return space(QColorSpace::TransferFunction::Gamma, 2.2F);
    case Gamma28:
        return space(QColorSpace::TransferFunction::Gamma, 2.8F);
    case TransferBt709:
    case TransferBt601:
    case TransferBt2020Of10Bits:
    case TransferBt2020Of12Bits:
        // Qt 6.4 makes an invalid color space of a table with custom primaries.
        return space(QColorSpace::TransferFunction::Linear).withTransferFunction(tableOfBt709());
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<CodePoints> codePoints(QByteArrayView content)
{
    // Four bytes: primaries, transfer, matrix, and whether samples use their full range.
    constexpr qsizetype fields = 4;
    constexpr char rgbMatrix = 0;
    constexpr char fullRange = 1;
    if (content.size() != fields || content[2] != rgbMatrix || content[3] != fullRange)
        return std::nullopt;
    return CodePoints{static_cast<unsigned char>(content[0]), static_cast<unsigned char>(content[1])};
}

bool isHighDynamicRange(CodePoints points)
{
    return points.transfer == PerceptualQuantizer || points.transfer == HybridLogGamma;
}

std::optional<QColorSpace> colorSpaceOf(CodePoints points)
{
    for (const Gamut &gamut : gamuts) {
        if (gamut.primaries == points.primaries)
            return colorSpaceOf(gamut, points.transfer);
    }
    return std::nullopt;
}

bool isSrgb(CodePoints points)
{
    return points == CodePoints{Bt709, TransferSrgb};
}

} // namespace lumora
