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
/// pictures. The bytes are the same on every run and machine, too.
QByteArray encodePngQuickly(const QImage &picture);

/// The same file as `encodePng` makes, from rows of pixels. Several threads work at once; besides the compressed file,
/// only one section for each thread is in memory.
QByteArray encodePng(const PngRows &picture, int threads);

} // namespace lumora
