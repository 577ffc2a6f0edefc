// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <cstdint>

namespace lumora
{

/// Converts any picture to `QImage::Format_RGBA8888_Premultiplied`. Written out here, since Qt's own conversions round
/// differently from one processor to the next and the files must not.
QImage premultiplied(QImage picture);

/// Turns `count` premultiplied RGBA pixels into straight ones in place. A translucent pixel has as many colors as its
/// premultiplied bytes tell apart, which are all that show on any ground: 23 shades of gray at an alpha of 22. Fully
/// transparent pixels become transparent black, and a color above its alpha is taken for equal to it.
void straightenPixels(std::uint8_t *pixels, int count);

/// Whether the alpha of all these RGBA pixels is 255.
bool areOpaque(const std::uint8_t *pixels, int count);

} // namespace lumora
