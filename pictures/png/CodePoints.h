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

/// The code points in the content of a cICP chunk. Nothing for a chunk that is no use to a decoder of RGB pictures: of
/// another length, with other than RGB samples, or with samples that do not use their whole range.
std::optional<CodePoints> codePoints(QByteArrayView content);

/// Whether the brightest sample is meant to be far brighter than white (PQ, HLG): nothing that sRGB can show.
bool isHighDynamicRange(CodePoints points);

/// The color space that they name: primaries of BT.709 and sRGB, BT.2020 or Display P3, with the transfer curve of
/// sRGB, of BT.709 and its like, linear, or a gamma of 2.2 or 2.8. Nothing for others.
std::optional<QColorSpace> colorSpaceOf(CodePoints points);

/// Whether they name sRGB itself.
bool isSrgb(CodePoints points);

} // namespace lumora
