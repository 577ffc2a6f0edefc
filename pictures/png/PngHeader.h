// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QSize>

#include <optional>

namespace lumora
{

/// What a PNG file's first chunks say.
struct PngHeader
{
    QSize size; ///< pixels, 1 to 2^31 - 1 either way
    int bitDepth = 0;
    int colorType = 0; ///< 0 grey, 2 RGB, 3 palette, 4 grey and alpha, 6 RGBA
    bool interlaced = false;
    bool appleOptimized = false; ///< a CgBI chunk stands in front of the header chunk
    bool opaque = false;         ///< Apple-optimised, and its fourth channel means nothing
};

/// Bytes at the start of a file that `pngHeader` needs.
constexpr qsizetype pngHeaderBytes = 64;

/// Nothing when the bytes do not begin a PNG file, Apple-optimised or not.
std::optional<PngHeader> pngHeader(QByteArrayView start);

} // namespace lumora
