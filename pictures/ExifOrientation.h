// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImageIOHandler>

namespace lumora
{

/// How the EXIF block (a TIFF header and its directories, as PNG and WebP files carry it) asks a picture to be turned;
/// no turn where it says nothing or makes no sense.
QImageIOHandler::Transformations exifOrientation(const QByteArray &exif);

/// The EXIF block of a WebP file, empty where it has none.
QByteArray webpExif(const QByteArray &file);

} // namespace lumora
