// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace lumora
{

/// The picture at half its pixels in each direction (see `halfSize`), as `QImage::Format_RGBA8888_Premultiplied`. For
/// callers that have nobody to report a failure to: a null picture.
QImage unRetinaImage(const QImage &picture);

/// A half-size picture ready to be written.
struct HalvedPicture
{
    QByteArray png;
    QSize size; ///< in pixels

    bool operator==(const HalvedPicture &) const = default;
};

/// Decodes the content of a picture file, halves it and encodes it as an 8-bit RGBA PNG. `name` is the subject of a
/// failure. Keeps no state; callable on any thread.
Result<HalvedPicture> halvedPicture(const QByteArray &bytes, const QString &name);

/// The peak memory of `halvedPicture` for a picture of that size, in bytes, besides the file's content.
qint64 halvingMemory(QSize pixels);

/// The size that `halvedPicture` would return for a picture whose header gives `pixels`, or its failure.
Result<QSize> halvedSize(QSize pixels, const QString &name);

} // namespace lumora
