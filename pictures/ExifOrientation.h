// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImageIOHandler>

namespace lumora
{

/// How the EXIF block (a TIFF header and its directories, as PNG and WebP files carry it) asks a picture to be turned;
/// no turn where the block has no orientation or is damaged.
QImageIOHandler::Transformations exifOrientation(const QByteArray &exif);

/// The EXIF block of a WebP file; empty if it has none.
QByteArray webpExif(const QByteArray &file);

} // namespace lumora
