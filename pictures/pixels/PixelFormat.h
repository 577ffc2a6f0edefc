// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <cstdint>

namespace lumora
{

/// Converts any picture to `QImage::Format_RGBA8888_Premultiplied`. Written out here, since Qt's own conversions round
/// differently from one processor to the next and the files must not.
QImage premultiplied(QImage picture);

/// Converts any picture that is not so yet to straight `QImage::Format_RGBA8888`; fully transparent pixels of a
/// converted one become transparent black.
QImage straight(const QImage &picture);

/// Turns that many premultiplied RGBA pixels into straight ones where they stand, as `straight` does.
void straightenPixels(std::uint8_t *pixels, int count);

} // namespace lumora
