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
/// keeps the memory that reading takes below 1 GB, whatever a file claims or holds.
inline constexpr qint64 largestPictureFile = 192LL * 1024 * 1024;

/// The most pixels a picture may have to be decoded.
inline constexpr qint64 largestPictureArea = 64LL * 1024 * 1024;

/// The most bytes a picture may take in the depth its file stores.
inline constexpr qint64 largestDecodedBytes = 512LL * 1024 * 1024;

/// The pixel counts a picture file stores, read from its header without decoding and before any turning that its EXIF
/// orientation asks for. Fails as `readPicture` does, but finds no damage behind the header.
Result<QSize> storedPixelSize(const QByteArray &bytes, const QString &name);
Result<QSize> storedPixelSize(const QString &path);

/// Decodes a PNG, JPEG, TIFF, WebP, BMP, GIF or ICNS file, known by its content and not its name: turned as its EXIF
/// orientation asks, the colors that its profile or marks name converted to sRGB, as
/// `QImage::Format_RGBA8888_Premultiplied`. A profile that cannot be understood is as good as none: the colors are
/// taken for sRGB. Of several pictures in a file it takes the first, of an ICNS file's the largest. Resolution is
/// ignored: the result's scale factor is 1. Formats that can run or fetch something (SVG) are not accepted. `name` is
/// what a failure calls the bytes. Keeps no state; callable on any thread.
Result<QImage> readPicture(const QByteArray &bytes, const QString &name);
Result<QImage> readPicture(const QString &path);

/// The same as straight `QImage::Format_RGBA8888`, as the file stores its colors: faint pixels keep theirs whole.
Result<QImage> readStraightPicture(const QByteArray &bytes, const QString &name);

} // namespace lumora
