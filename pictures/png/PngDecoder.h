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
    QImage picture;  ///< `Format_RGBA8888` or `Format_RGBA64` as the file's depth is, with the color space it names
    QByteArray exif; ///< the content of its EXIF chunk, empty where it has none
};

/// Decodes a PNG file of any kind but Apple's. Its colors are those that its cICP chunk names, else its iCCP, sRGB, or
/// gAMA and cHRM chunks; what cannot be understood of these is as good as missing. Fails for a damaged file
/// (`NotAPicture`) and for colors of high dynamic range (`HighDynamicRange`), which have no place in sRGB. `name` is
/// what a failure calls the file.
Result<DecodedPng> decodePng(const QByteArray &file, const QString &name);

} // namespace lumora
