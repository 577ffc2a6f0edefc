// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/Result.h"

#include <QByteArrayView>
#include <QImage>
#include <QString>

namespace lumora
{

/// Decodes the PNG variant of iOS packages, which no ordinary decoder reads: a CgBI chunk in front of the header,
/// pixels as one raw deflate stream without zlib's frame, blue and red swapped, colors multiplied by alpha. 8-bit
/// RGBA or RGB, interlaced or not; other forms are not made by Apple's tools and count as no picture. The result is
/// `QImage::Format_RGBA8888_Premultiplied`; a color above its alpha is brought down to it. `largestArea` is the most
/// pixels decoded (`TooLarge` beyond); memory stays within that picture and two of its rows. `name` is what a failure
/// calls the bytes.
Result<QImage> decodeApplePng(QByteArrayView bytes, const QString &name, qint64 largestArea);

} // namespace lumora
