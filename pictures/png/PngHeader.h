// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QSize>

#include <optional>

namespace lumora
{

/// The facts in a PNG file's first chunks.
struct PngHeader
{
    QSize size; ///< pixels, 1 to 2^31 - 1 either way
    int bitDepth = 0;
    int colorType = 0; ///< 0 gray, 2 RGB, 3 palette, 4 gray and alpha, 6 RGBA
    bool interlaced = false;
    bool appleOptimized = false; ///< a CgBI chunk is in front of the header chunk
    bool opaque = false;         ///< Apple-optimized, and its fourth channel means nothing
};

/// Bytes at the start of a file that `pngHeader` needs.
constexpr qsizetype pngHeaderBytes = 64;

/// Empty when the bytes do not begin a PNG file, Apple-optimized or not, or when they name a compression, filtering or
/// interlacing that PNG does not define. Checksums are not checked.
std::optional<PngHeader> pngHeader(QByteArrayView start);

} // namespace lumora
