// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace lumora
{

/// A picture with gradients, hard edges, transparency and a little noise, the same on every call.
QImage testPicture(int width, int height);

/// Colored quarters: red, green / blue, half-transparent white.
QImage quarters(int width, int height);

/// The picture in that size. Ends the test if it cannot be made.
QImage resampled(const QImage &picture, QSize size);

/// The engine's PNG file of the picture. Ends the test if it cannot be made.
QByteArray encodedPng(const QImage &picture);

/// The same without an alpha channel.
QByteArray encodedOpaquePng(const QImage &picture);

/// The premultiplied picture in straight colors, as in a written file.
QImage straightened(const QImage &picture);

/// True if no channel of the two colors differs by more than that.
bool near(QRgb one, QRgb other, int tolerance);

/// The picture in a format that Qt writes ("png", "jpeg", "tiff", "webp", "bmp"), at best quality.
QByteArray pictureFile(const QImage &picture, const char *format = "png");

/// A PNG file of 64 x 64 pixels whose header claims another size, with a correct checksum.
QByteArray pngClaiming(quint32 width, quint32 height);

/// A complete PNG file of transparent black with 16 bits a sample, made without uncompressed pixels in memory.
QByteArray pngOfZeroes(quint32 width, quint32 height);

/// A complete PNG file of 64 x 64 pixels whose color profile unpacks to that many zeroes.
QByteArray pngWithLongProfile(qsizetype bytes);

/// The file with another chunk after its header.
QByteArray withPngChunk(const QByteArray &file, const QByteArray &type, const QByteArray &content);

/// The JPEG file with another segment at its beginning.
QByteArray withJpegSegment(const QByteArray &file, uchar marker, const QByteArray &content);

/// The WebP file, which only has pixels, with another chunk: "EXIF" or "ICCP".
QByteArray withWebpChunk(const QByteArray &file, QSize size, const QByteArray &type, const QByteArray &content);

} // namespace lumora
