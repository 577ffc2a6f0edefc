// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace lumora
{

/// The size in a PNG file's header; empty where that is damaged.
QSize pngPixelSize(const QByteArray &file);

/// A PNG file's pixels in the depth it stores, as `Format_RGBA8888` or `Format_RGBA64`, with the colour space it names;
/// null where anything is damaged. `exif` receives the content of its EXIF chunk, if it has one.
QImage decodePng(const QByteArray &file, QByteArray *exif);

} // namespace lumora
