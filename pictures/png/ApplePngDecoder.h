// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QByteArrayView>
#include <QImage>
#include <QString>

namespace lumora
{

/// Decodes the PNG variant of iOS packages, which no ordinary decoder reads: a CgBI chunk in front of the header,
/// pixels as one raw deflate stream without zlib's frame, blue and red swapped, colors multiplied by alpha. Decodes
/// 8-bit RGBA or RGB, interlaced or not; Apple's tools make no other forms, and these fail with `NotAPicture`. The
/// result is `QImage::Format_RGBA8888_Premultiplied`; a color above its alpha is lowered to it. A picture of more than
/// `largestArea` pixels fails with `TooLarge`. Memory is limited to the picture and two of its rows. `name` is the
/// subject of a failure.
Result<QImage> decodeApplePng(QByteArrayView bytes, const QString &name, qint64 largestArea);

} // namespace lumora
