// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QColorSpace>

#include <optional>

namespace lumora
{

/// How a PNG file names its colors by the code points of ITU-T H.273, in its cICP chunk.
struct CodePoints
{
    int primaries = 0;
    int transfer = 0;

    bool operator==(const CodePoints &) const = default;
};

/// The code points in the content of a cICP chunk. Empty for a chunk that RGB pictures cannot have: one of another
/// length, with samples other than RGB, or with samples that do not use their full range.
std::optional<CodePoints> codePoints(QByteArrayView content);

/// Whether the brightest sample is far brighter than white (PQ, HLG), which sRGB cannot show.
bool isHighDynamicRange(CodePoints points);

/// The color space that they name: primaries of BT.709 and sRGB, BT.2020 or Display P3, with the transfer curve of
/// sRGB, BT.709, BT.601 or BT.2020, linear light, or a gamma of 2.2 or 2.8. Empty for others.
std::optional<QColorSpace> colorSpaceOf(CodePoints points);

/// Whether they name sRGB itself.
bool isSrgb(CodePoints points);

} // namespace lumora
