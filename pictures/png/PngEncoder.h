// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QByteArray>
#include <QImage>

namespace lumora
{

class PngRows;

/// The picture as a PNG file: always 8-bit straight RGBA, tagged sRGB, without time, resolution or other extras, the
/// same bytes on every run and machine. Fails with `InvalidValue` for a null picture and with `TooLarge` if memory
/// runs out; `name` is the subject of a failure.
Result<QByteArray> encodePng(const QImage &picture, const QString &name);

/// The same pixels in about half the time for noisy photos, at up to a twentieth more bytes: for batches of many
/// pictures. The bytes are the same on every run and machine, too. Fails as `encodePng` does.
Result<QByteArray> encodePngQuickly(const QImage &picture, const QString &name);

/// The same file as `encodePng` makes, from rows of pixels. Several threads work at once, one if `threads` is below 1;
/// besides the compressed file, only one section for each thread is in memory.
Result<QByteArray> encodePng(const PngRows &picture, int threads, const QString &name);

/// The rows as a PNG file without an alpha channel: 8-bit RGB, else as `encodePng` makes it. Their alpha is left out.
Result<QByteArray> encodeOpaquePng(const PngRows &picture, int threads, const QString &name);

/// The picture as a PNG file without an alpha channel; what it lets through shows black.
Result<QByteArray> encodeOpaquePng(const QImage &picture, int threads, const QString &name);

} // namespace lumora
