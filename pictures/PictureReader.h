// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace lumora
{

/// The longest picture file that is read, in bytes. Together with `largestPictureArea` and `largestDecodedBytes` it
/// keeps the memory for reading below 1 GB, whatever a file claims or holds.
inline constexpr qint64 largestPictureFile = 192LL * 1024 * 1024;

/// The most pixels a picture may have to be decoded.
inline constexpr qint64 largestPictureArea = 64LL * 1024 * 1024;

/// The most bytes a picture may take in the depth its file stores.
inline constexpr qint64 largestDecodedBytes = 512LL * 1024 * 1024;

/// The size in pixels that a picture file's header gives, before its EXIF orientation turns it. Decodes nothing. Fails
/// as `readPicture` does, but finds no damage behind the header.
Result<QSize> storedPixelSize(const QByteArray &bytes, const QString &name);
Result<QSize> storedPixelSize(const QString &path);

/// Decodes a PNG, JPEG, TIFF, WebP, BMP, GIF or ICNS file, recognized by its content, not its name. The result is a
/// `QImage::Format_RGBA8888_Premultiplied`, turned as the EXIF orientation asks, with colors converted to sRGB from the
/// color space that the file names. A profile that cannot be understood is ignored: the colors then count as sRGB. Of
/// several pictures in a file the first is decoded, of those in an ICNS file the largest. Resolution is ignored: the
/// result's scale factor is 1. Formats that can run or fetch something (SVG) are not accepted. `name` is the subject of
/// a failure. Keeps no state; callable on any thread.
Result<QImage> readPicture(const QByteArray &bytes, const QString &name);
Result<QImage> readPicture(const QString &path);

/// The same as straight `QImage::Format_RGBA8888`, so that nearly transparent pixels keep their exact colors.
Result<QImage> readStraightPicture(const QByteArray &bytes, const QString &name);

} // namespace lumora
