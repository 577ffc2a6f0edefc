// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QByteArray>
#include <QImage>
#include <QString>

namespace lumora
{

/// What a PNG file holds.
struct DecodedPng
{
    QImage picture;  ///< `Format_RGBA8888` or `Format_RGBA64` by the file's depth, with the file's color space
    QByteArray exif; ///< the content of its EXIF chunk; empty if it has none
};

/// Decodes a PNG file of any kind but Apple's. The cICP chunk names the color space, else the iCCP, sRGB, or gAMA and
/// cHRM chunks; a chunk that cannot be understood is ignored. Fails for a damaged file (`NotAPicture`) and for colors
/// of high dynamic range (`HighDynamicRange`), which sRGB cannot hold. `name` is the subject of a failure.
Result<DecodedPng> decodePng(const QByteArray &file, const QString &name);

} // namespace lumora
