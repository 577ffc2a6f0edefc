// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

namespace lumora
{

class PngRows;

/// The picture as a PNG file: always 8-bit straight RGBA, tagged sRGB, without time, resolution or other extras, the
/// same bytes on every run and machine. Empty for a null picture.
QByteArray encodePng(const QImage &picture);

/// The same pixels in about half the time for noisy photos, at up to a twentieth more bytes: for batches of many
/// pictures. Again the same bytes on every run and machine.
QByteArray encodePngQuickly(const QImage &picture);

/// The same file as `encodePng` from rows of pixels, with several threads at work and no more than their own sections
/// of the picture in memory besides the compressed file.
QByteArray encodePng(const PngRows &picture, int threads);

} // namespace lumora
