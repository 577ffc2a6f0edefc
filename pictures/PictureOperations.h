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

/// The whole picture stretched to `toSize` x `toSize` pixels, as `QImage::Format_RGBA8888_Premultiplied`. A size below
/// 1 gives a null picture. Keeps no state; callable on any thread.
QImage resizeImage(const QImage &image, int toSize);

/// The same with its corners cut; square corners give the same pixels as the plain operation.
QImage resizeImage(const QImage &image, int toSize, CornerMode withRoundedCorners);

/// The same by the number of a style (see `cornerModeOf`).
QImage resizeImage(const QImage &image, int toSize, int withRoundedCorners);

/// Writes the picture to a file as 8-bit RGBA, one pixel per point whatever its scale factor. An existing file is
/// replaced only once the new one is complete (see `writeWholeFile`). Panes ignore the outcome, the command line must
/// not.
Outcome saveImage(const QImage &image, BitmapType withType, const QString &toPath);

} // namespace lumora
