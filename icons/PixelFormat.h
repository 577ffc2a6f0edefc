// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

namespace lumora
{

/// Converts any picture to `QImage::Format_RGBA8888_Premultiplied`. Written out here, since Qt's own conversions round
/// differently from one processor to the next and the files must not.
QImage premultiplied(const QImage &picture);

/// Converts any picture to straight `QImage::Format_RGBA8888`; fully transparent pixels become transparent black.
QImage straight(const QImage &picture);

} // namespace lumora
