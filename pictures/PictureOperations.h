// SPDX-License-Identifier: MIT
#pragma once

#include "RoundedCorners.h"
#include "foundation/Result.h"

#include <QImage>
#include <QString>

namespace lumora
{

/// The file types of bitmaps; the tools pass their numbers on.
enum class BitmapType : int { Png = 4 };

/// The whole picture stretched to `size` x `size` pixels with its corners cut, as
/// `QImage::Format_RGBA8888_Premultiplied`. Fails as `resample` does; `name` is the subject of a failure. Keeps no
/// state; callable on any thread.
Result<QImage> squarePicture(const QImage &image, int size, CornerMode corners, const QString &name);

/// The same with square corners, for callers that have nobody to report a failure to: a null picture.
QImage resizeImage(const QImage &image, int toSize);

/// The same by the number of a corner style (see `cornerModeOf`).
QImage resizeImage(const QImage &image, int toSize, int withRoundedCorners);

/// Writes the picture to a file as 8-bit RGBA, one pixel per point whatever its scale factor. An existing file is
/// replaced only once the new one is complete (see `writeWholeFile`). Every failure is `CannotWrite`, with its reason.
Outcome saveImage(const QImage &image, BitmapType withType, const QString &toPath);

} // namespace lumora
